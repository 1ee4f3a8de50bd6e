#include "rss/FeedDateFormatter.h"

#include <unicode/fieldpos.h>
#include <unicode/timezone.h>

FeedDateFormatter::FeedDateFormatter(const DateRegion &region)
{
    UErrorCode status = U_ZERO_ERROR;
    m_format = std::make_unique<icu::SimpleDateFormat>(u"E, d MMM yyyy HH:mm:ss Z",
                                                       icu::Locale(region.locale.c_str()), status);
    m_format->adoptTimeZone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(region.timeZone)));
}

std::string FeedDateFormatter::format(Date date) const
{
    const auto milliseconds =
        static_cast<UDate>(date.wholeSecondsOfUnixTime()) * U_MILLIS_PER_SECOND;
    icu::UnicodeString text;
    icu::FieldPosition zone(UDAT_TIMEZONE_RFC_FIELD);
    m_format->format(milliseconds, text, zone);
    // Local times from before the age of time zones have seconds in their offset; a feed's has not.
    constexpr int32_t signAndFourDigits = 5;
    text.truncate(zone.getBeginIndex() + signAndFourDigits);
    std::string utf8;
    return text.toUTF8String(utf8);
}
