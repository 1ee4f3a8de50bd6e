#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

#include <QByteArray>

#include <optional>

// The records' JSON form (RFC 8259), which is the form of the two data files.
//
// Written: compact UTF-8 with the keys in the records' order, each slash as "\/", characters
// outside ASCII as themselves, ids in upper case, dates as seconds since the reference date in
// the shortest form that reads back to the same bits.
//
// Read: keys in any order, the last of a repeated key, any further key ignored; every key of the
// record must be there with a value of its type. A byte order mark may stand ahead. One error
// anywhere fails the whole document, as do more than 512 arrays and objects in one another and
// more than 4 GiB.

/// The posts as a JSON array in list order; nothing when a date is NaN or infinite, which JSON
/// cannot hold.
std::optional<QByteArray> encodePosts(const BlogPosts &posts);

/// The settings as a JSON object.
QByteArray encodeSettings(const RSSSettings &settings);

/// The posts of a JSON array of posts; nothing when the document is anything else.
std::optional<BlogPosts> decodePosts(QByteArray json);

/// The settings of a JSON object; nothing when the document is anything else.
std::optional<RSSSettings> decodeSettings(QByteArray json);
