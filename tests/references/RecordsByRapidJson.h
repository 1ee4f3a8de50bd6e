#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

#include <QByteArray>

#include <optional>

// The records of a JSON document as another strict reader has them: RapidJSON for the syntax, ICU
// for the texts, and the records' rules written plainly over a tree of values.

/// The posts of a JSON array of posts; nothing when the document is anything else.
std::optional<BlogPosts> postsByRapidJson(const QByteArray &json);

/// The settings of a JSON object; nothing when the document is anything else.
std::optional<RSSSettings> settingsByRapidJson(const QByteArray &json);
