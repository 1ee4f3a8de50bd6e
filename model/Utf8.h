#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <string_view>
#include <utility>

/// The text of bytes that are known to be valid UTF-8 (RFC 3629). Every character is kept, a
/// U+FEFF at the start too.
QString textFromUtf8(std::string_view utf8);

/// The text with each lone surrogate, which UTF-8 cannot hold, replaced by U+FFFD.
QString wellFormed(const QString &text);

/// What stands in a document for each ASCII character that may not stand for itself there. An
/// empty replacement leaves the character as it is.
using Escapes = std::array<std::string_view, 128>;

/// A UTF-8 document in the making.
///
/// A lone surrogate, which UTF-8 cannot hold, is written as U+FFFD.
class Utf8Document
{
public:
    /// Appends bytes that are UTF-8 already.
    void append(std::string_view utf8) { m_bytes.append(utf8.data(), qsizetype(utf8.size())); }

    /// Appends a text as it stands.
    void appendText(QStringView text);

    /// Appends a text with each ASCII character that `escapes` names replaced.
    void appendEscaped(QStringView text, const Escapes &escapes);

    /// The document as it stands; the next one begins empty.
    QByteArray take() { return std::exchange(m_bytes, {}); }

private:
    QByteArray m_bytes;
};
