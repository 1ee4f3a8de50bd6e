#pragma once

#include "model/BlogPost.h"

#include <QByteArrayView>

#include <functional>
#include <optional>

/// The items of an RSS file as posts, in the order of the file; nothing when the bytes are not
/// valid UTF-8 (RFC 3629).
///
/// The file is searched for literal tags, not parsed as XML: an item is what stands between
/// "<item>" and the next "</item>", and each of its fields what stands between the first start tag
/// of that name and the next end tag. Texts are taken exactly as they stand, entities and
/// character-data sections too; a missing element is an empty text. A post's content is its
/// description again; its date is `now`'s reading when it is made, never before the one of the
/// post ahead of it.
std::optional<BlogPosts> postsOfFeed(QByteArrayView feed, const std::function<Date()> &now);
