#include "rss/FeedDateFormatter.h"

#include "model/FloorDivide.h"

#include <unicode/fieldpos.h>
#include <unicode/timezone.h>
#include <unicode/tztrans.h>

#include <limits>

namespace {

constexpr qint64 secondsOfDay = 86'400;

// The years in which every calendar and every zone is as regular as the pieces take it to be.
constexpr qint64 firstSecondOf1900 = -2'208'988'800;
constexpr qint64 firstSecondOf2200 = 7'258'118'400;

/// A zone's sign and four digits.
constexpr int32_t lengthOfOffset = 5;

UDate milliseconds(qint64 unixTime)
{
    return static_cast<UDate>(unixTime) * U_MILLIS_PER_SECOND;
}

std::unique_ptr<icu::SimpleDateFormat> makeFormat(const char16_t *pattern,
                                                  const icu::Locale &locale,
                                                  const icu::TimeZone &zone)
{
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(pattern, locale, status);
    format->setTimeZone(zone);
    return format;
}

std::string toUtf8(const icu::UnicodeString &text)
{
    std::string utf8;
    return text.toUTF8String(utf8);
}

std::string formatted(const icu::SimpleDateFormat &format, qint64 unixTime)
{
    icu::UnicodeString text;
    return toUtf8(format.format(milliseconds(unixTime), text));
}

} // namespace

FeedDateFormatter::FeedDateFormatter(const DateRegion &region)
{
    const icu::Locale locale(region.locale.c_str());
    std::unique_ptr<icu::TimeZone> zone(
        icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(region.timeZone)));
    const icu::TimeZone &utc = *icu::TimeZone::getGMT();

    m_whole = makeFormat(u"E, d MMM yyyy HH:mm:ss Z", locale, *zone);
    m_day = makeFormat(u"E, d MMM yyyy ", locale, utc);
    const auto seconds = makeFormat(u"ss", locale, utc);
    for (std::size_t number = 0; number < m_twoDigits.size(); ++number)
        m_twoDigits[number] = formatted(*seconds, qint64(number));
    // Every zone that ICU makes from a name knows its transitions.
    m_zone.reset(static_cast<icu::BasicTimeZone *>(zone.release()));
}

std::string FeedDateFormatter::format(Date date)
{
    const qint64 unixTime = date.wholeSecondsOfUnixTime();
    if (unixTime < firstSecondOf1900 || unixTime >= firstSecondOf2200)
        return formatWhole(unixTime);

    const Offset &offset = offsetAt(unixTime);
    const qint64 localTime = unixTime + offset.seconds;
    const qint64 day = floorDivide(localTime, secondsOfDay);
    const auto second = std::size_t(localTime - day * secondsOfDay);

    std::string text = textOfDay(day);
    text += m_twoDigits[second / 3600];
    text += ':';
    text += m_twoDigits[second / 60 % 60];
    text += ':';
    text += m_twoDigits[second % 60];
    text += offset.text;
    return text;
}

const FeedDateFormatter::Offset &FeedDateFormatter::offsetAt(qint64 unixTime)
{
    const auto later = m_offsets.upper_bound(unixTime);
    if (later != m_offsets.begin() && unixTime < std::prev(later)->second.end)
        return std::prev(later)->second;

    const auto secondsOf = [](const icu::TimeZoneTransition &transition) {
        return static_cast<qint64>(transition.getTime() / U_MILLIS_PER_SECOND);
    };
    icu::TimeZoneTransition transition;
    qint64 begin = std::numeric_limits<qint64>::min();
    if (m_zone->getPreviousTransition(milliseconds(unixTime), UBool(true), transition))
        begin = secondsOf(transition);
    qint64 end = std::numeric_limits<qint64>::max();
    if (m_zone->getNextTransition(milliseconds(unixTime), UBool(false), transition))
        end = secondsOf(transition);

    int32_t raw = 0;
    int32_t daylightSaving = 0;
    UErrorCode status = U_ZERO_ERROR;
    m_zone->getOffset(milliseconds(unixTime), UBool(false), raw, daylightSaving, status);
    std::string text = formatWhole(unixTime);
    text.erase(0, text.size() - lengthOfOffset - 1); // the blank ahead of it stays
    return m_offsets[begin] = {end, (raw + daylightSaving) / U_MILLIS_PER_SECOND, text};
}

const std::string &FeedDateFormatter::textOfDay(qint64 daysOfUnixTime)
{
    std::string &text = m_days[daysOfUnixTime];
    if (text.empty())
        text = formatted(*m_day, daysOfUnixTime * secondsOfDay + secondsOfDay / 2);
    return text;
}

std::string FeedDateFormatter::formatWhole(qint64 unixTime) const
{
    icu::UnicodeString text;
    icu::FieldPosition zone(UDAT_TIMEZONE_RFC_FIELD);
    m_whole->format(milliseconds(unixTime), text, zone);
    // Local times from before the age of time zones have seconds in their offset; a feed's has not.
    text.truncate(zone.getBeginIndex() + lengthOfOffset);
    return toUtf8(text);
}
