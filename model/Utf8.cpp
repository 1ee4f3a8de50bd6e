#include "model/Utf8.h"

#include <QStringDecoder>

#include <algorithm>
#include <cstring>

namespace {

/// The most bytes that one UTF-16 code unit becomes; a surrogate pair becomes four for two.
constexpr qsizetype bytesPerUnit = 3;

/// Writes the character that begins at `unit`, ASCII excepted, and steps past it.
char *writeNonAscii(char *out, const char16_t *&unit, const char16_t *end)
{
    char32_t character = *unit++;
    if (QChar::isSurrogate(character)) {
        if (QChar::isHighSurrogate(character) && unit != end && QChar::isLowSurrogate(*unit))
            character = QChar::surrogateToUcs4(char16_t(character), *unit++);
        else
            character = QChar::ReplacementCharacter;
    }
    const auto continuation = [character](int shift) {
        return char(0x80 | ((character >> shift) & 0x3f));
    };
    if (character < 0x800) {
        *out++ = char(0xc0 | (character >> 6));
    } else if (character < 0x10000) {
        *out++ = char(0xe0 | (character >> 12));
        *out++ = continuation(6);
    } else {
        *out++ = char(0xf0 | (character >> 18));
        *out++ = continuation(12);
        *out++ = continuation(6);
    }
    *out++ = continuation(0);
    return out;
}

/// Appends `text`, with `writeAscii(out, character)` writing each ASCII character in at most
/// `bytesPerAscii` bytes.
template <typename WriteAscii>
void appendUtf16(QByteArray &bytes, QStringView text, qsizetype bytesPerAscii,
                 WriteAscii writeAscii)
{
    const qsizetype start = bytes.size();
    const qsizetype atMost = start + text.size() * std::max(bytesPerUnit, bytesPerAscii);
    if (bytes.capacity() < atMost)
        bytes.reserve(std::max(atMost, 2 * bytes.capacity()));
    bytes.resize(atMost);

    char *out = bytes.data() + start;
    const char16_t *unit = text.utf16();
    const char16_t *const end = unit + text.size();
    while (unit != end) {
        if (*unit < 0x80)
            out = writeAscii(out, char(*unit++));
        else
            out = writeNonAscii(out, unit, end);
    }
    bytes.resize(out - bytes.constData());
}

} // namespace

QString textFromUtf8(std::string_view utf8)
{
    const QByteArrayView bytes(utf8.data(), qsizetype(utf8.size()));
    if (!bytes.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(bytes);
    QStringDecoder keepingByteOrderMark(QStringDecoder::Utf8,
                                        QStringDecoder::Flag::ConvertInitialBom);
    return keepingByteOrderMark(bytes);
}

QString wellFormed(const QString &text)
{
    if (text.isValidUtf16())
        return text;
    Utf8Document document;
    document.appendText(text);
    return textFromUtf8(document.take().toStdString());
}

void Utf8Document::appendText(QStringView text)
{
    appendUtf16(m_bytes, text, 1, [](char *out, char character) {
        *out = character;
        return out + 1;
    });
}

void Utf8Document::appendEscaped(QStringView text, const Escapes &escapes)
{
    std::size_t longest = 1;
    for (const std::string_view replacement : escapes)
        longest = std::max(longest, replacement.size());
    appendUtf16(m_bytes, text, qsizetype(longest), [&escapes](char *out, char character) {
        const std::string_view replacement = escapes[std::size_t(character)];
        if (replacement.empty()) {
            *out = character;
            return out + 1;
        }
        std::memcpy(out, replacement.data(), replacement.size());
        return out + replacement.size();
    });
}
