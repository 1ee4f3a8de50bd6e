#include "tests/references/TextByIcu.h"

#include <unicode/ustring.h>

#include <stdexcept>

namespace {

constexpr UChar32 replacementCharacter = 0xfffd;

/// ICU counts in 32 bits.
int32_t icuSize(qsizetype size)
{
    if (size > INT32_MAX)
        throw std::length_error("too long for ICU");
    return int32_t(size);
}

} // namespace

std::optional<QString> textByIcu(QByteArrayView utf8)
{
    // A byte never becomes more than one code unit.
    QString text(utf8.size(), QChar::Null);
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(reinterpret_cast<UChar *>(text.data()), icuSize(text.size()), &length,
                  utf8.data(), icuSize(utf8.size()), &status);
    if (U_FAILURE(status))
        return std::nullopt;
    text.resize(length);
    return text;
}

QByteArray utf8ByIcu(QStringView text)
{
    constexpr qsizetype mostBytesPerUnit = 3;
    QByteArray utf8(text.size() * mostBytesPerUnit, '\0');
    int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_strToUTF8WithSub(utf8.data(), icuSize(utf8.size()), &length, text.utf16(),
                       icuSize(text.size()), replacementCharacter, nullptr, &status);
    if (U_FAILURE(status))
        throw std::runtime_error("ICU cannot write UTF-8");
    utf8.resize(length);
    return utf8;
}
