#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <algorithm>
#include <array>
#include <string_view>

/// U+FEFF in UTF-8, the byte order mark that some programs put at the start of a file.
inline constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

/// Whether the bytes are valid UTF-8 (RFC 3629).
bool isUtf8(QByteArrayView bytes);

/// The text of bytes that are known to be valid UTF-8. Every character is kept, a
/// U+FEFF at the start too.
QString textFromUtf8(QByteArrayView utf8);

/// The text with each lone surrogate, which UTF-8 cannot hold, replaced by U+FFFD.
QString wellFormed(const QString &text);

/// What stands in a document for each ASCII character that may not stand for itself there.
class Escapes
{
public:
    constexpr void replace(char character, std::string_view replacement)
    {
        m_replacements[uchar(character)] = replacement;
        m_longest = std::max(m_longest, qsizetype(replacement.size()));
    }

    /// Empty for an ASCII character that stands for itself.
    constexpr std::string_view operator[](char16_t ascii) const { return m_replacements[ascii]; }

    /// The most bytes that an ASCII character becomes.
    constexpr qsizetype longest() const { return m_longest; }

private:
    std::array<std::string_view, 128> m_replacements;
    qsizetype m_longest = 1;
};

/// A UTF-8 document in the making.
///
/// A lone surrogate, which UTF-8 cannot hold, is written as U+FFFD.
class Utf8Document
{
public:
    /// Appends bytes that are UTF-8 already.
    void append(std::string_view utf8)
    {
        std::copy(utf8.begin(), utf8.end(), room(qsizetype(utf8.size())));
        m_size += qsizetype(utf8.size());
    }

    /// Appends a text as it stands.
    void appendText(QStringView text);

    /// Appends a text with each ASCII character that `escapes` names replaced.
    void appendEscaped(QStringView text, const Escapes &escapes);

    /// The document as it stands; the next one begins empty.
    QByteArray take();

private:
    /// Where the document goes on, with room for at least so many bytes.
    char *room(qsizetype bytes)
    {
        if (m_bytes.size() - m_size < bytes)
            m_bytes.resize(std::max(m_size + bytes, 2 * m_bytes.size()));
        return m_bytes.data() + m_size;
    }

    QByteArray m_bytes; ///< the document, and room for more of it
    qsizetype m_size = 0;
};
