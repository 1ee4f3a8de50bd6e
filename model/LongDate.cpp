#include "model/LongDate.h"

#include <unicode/datefmt.h>
#include <unicode/timezone.h>

#include <memory>

QString longDate(Date date, const DateRegion &region)
{
    const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateInstance(
        icu::DateFormat::kLong, icu::Locale(region.locale.c_str())));
    if (!format)
        return {};
    format->adoptTimeZone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(region.timeZone)));
    icu::UnicodeString text;
    format->format(static_cast<UDate>(date.wholeSecondsOfUnixTime()) * U_MILLIS_PER_SECOND, text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}
