#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>

// UTF-8 to UTF-16 and back by ICU, which keeps every character, a U+FEFF at the start too.

/// The text of the bytes; nothing when they are not valid UTF-8 (RFC 3629).
std::optional<QString> textByIcu(QByteArrayView utf8);

/// The text as UTF-8, each lone surrogate as U+FFFD.
QByteArray utf8ByIcu(QStringView text);
