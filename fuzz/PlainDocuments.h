#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

#include <QByteArray>

#include <optional>

// What the program writes, put together without any of its code, and without a thought for speed.

/// The posts as a JSON array; nothing when a date is NaN or infinite.
std::optional<QByteArray> plainPosts(const BlogPosts &posts);

/// The settings as a JSON object.
QByteArray plainSettings(const RSSSettings &settings);

/// The blog as a feed, with English names and in UTC.
QByteArray plainFeed(const RSSSettings &channel, const BlogPosts &posts);
