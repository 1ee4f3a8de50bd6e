#include "model/Utf8.h"

#include <QStringDecoder>

#include <simdjson.h>

#include <algorithm>
#include <utility>

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

} // namespace

bool isUtf8(QByteArrayView bytes)
{
    return simdjson::validate_utf8(bytes.data(), std::size_t(bytes.size()));
}

QString textFromUtf8(QByteArrayView utf8)
{
    if (!utf8.startsWith(byteOrderMark))
        return QString::fromUtf8(utf8);
    QStringDecoder keepingByteOrderMark(QStringDecoder::Utf8,
                                        QStringDecoder::Flag::ConvertInitialBom);
    return keepingByteOrderMark(utf8);
}

QString wellFormed(const QString &text)
{
    if (text.isValidUtf16())
        return text;
    Utf8Document document;
    document.appendText(text);
    return textFromUtf8(document.take());
}

void Utf8Document::appendText(QStringView text)
{
    static constexpr Escapes none;
    appendEscaped(text, none);
}

void Utf8Document::appendEscaped(QStringView text, const Escapes &escapes)
{
    char *out = room(text.size() * std::max(bytesPerUnit, escapes.longest()));
    const char16_t *unit = text.utf16();
    const char16_t *const end = unit + text.size();
    while (unit != end) {
        if (*unit >= 0x80)
            out = writeNonAscii(out, unit, end);
        else if (const std::string_view replacement = escapes[*unit]; replacement.empty())
            *out++ = char(*unit++);
        else {
            out = std::copy(replacement.begin(), replacement.end(), out);
            ++unit;
        }
    }
    m_size = out - m_bytes.constData();
}

QByteArray Utf8Document::take()
{
    m_bytes.resize(std::exchange(m_size, 0));
    return std::exchange(m_bytes, {});
}
