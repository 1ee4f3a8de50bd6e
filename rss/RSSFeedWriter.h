#pragma once

#include "model/BlogPost.h"
#include "model/DateRegion.h"
#include "model/RSSSettings.h"

#include <QByteArray>

/// The blog as one RSS 2.0 document in UTF-8, its posts in list order.
///
/// The layout is fixed to the byte. Only a post's description is escaped; every other text stands
/// as it is, so that the document is well-formed XML only if those texts are.
QByteArray feedOfPosts(const RSSSettings &channel, const BlogPosts &posts,
                       const DateRegion &region);
