#include "model/BlogPost.h"

#include <unicode/unorm.h>

namespace {

bool canonicallyEqual(const QString &left, const QString &right)
{
    if (left == right)
        return true;
    const auto units = [](const QString &text) {
        return reinterpret_cast<const UChar *>(text.utf16());
    };
    UErrorCode status = U_ZERO_ERROR;
    const int order =
        unorm_compare(units(left), static_cast<int32_t>(left.size()), units(right),
                      static_cast<int32_t>(right.size()), U_FOLD_CASE_DEFAULT, &status);
    return U_SUCCESS(status) && order == 0;
}

} // namespace

bool operator==(const BlogPost &left, const BlogPost &right)
{
    return left.id == right.id && canonicallyEqual(left.title, right.title)
        && canonicallyEqual(left.content, right.content) && left.date == right.date
        && canonicallyEqual(left.description, right.description)
        && canonicallyEqual(left.permalink, right.permalink);
}
