#include "ui/LocalTime.h"

#include "model/FloorDivide.h"

#include <unicode/basictz.h>
#include <unicode/gregocal.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr qint64 secondsPerMinute = 60;
constexpr qint64 secondsPerHour = 3600;
constexpr qint64 secondsPerDay = 86400;

icu::GregorianCalendar universalCalendar()
{
    UErrorCode status = U_ZERO_ERROR;
    return {*icu::TimeZone::getGMT(), icu::Locale::getRoot(), status};
}

qint64 numberOf(const CalendarDay &day, icu::GregorianCalendar &calendar)
{
    UErrorCode status = U_ZERO_ERROR;
    calendar.clear();
    calendar.set(UCAL_ERA, icu::GregorianCalendar::AD);
    calendar.set(day.year, day.month - 1, day.day);
    return static_cast<qint64>(calendar.getTime(status) / U_MILLIS_PER_DAY);
}

CalendarDay dayAt(qint64 number, icu::GregorianCalendar &calendar)
{
    UErrorCode status = U_ZERO_ERROR;
    calendar.setTime(static_cast<UDate>(number) * U_MILLIS_PER_DAY, status);
    const int year = calendar.get(UCAL_YEAR, status);
    const bool afterChrist = calendar.get(UCAL_ERA, status) == icu::GregorianCalendar::AD;
    return {.year = afterChrist ? year : 1 - year,
            .month = calendar.get(UCAL_MONTH, status) + 1,
            .day = calendar.get(UCAL_DATE, status)};
}

bool isInRange(int year)
{
    return year >= CalendarDay::firstYear && year <= CalendarDay::lastYear;
}

/// The instant that lies a fraction of a second after a whole one. It never reaches the next
/// second, which the plain sum may round up to.
Date withFraction(qint64 wholeSeconds, double fraction)
{
    const auto whole = static_cast<double>(wholeSeconds);
    const double sum = whole + fraction;
    return Date(std::floor(sum) == whole
                    ? sum
                    : std::nextafter(whole + 1, -std::numeric_limits<double>::infinity()));
}

} // namespace

bool CalendarDay::exists() const
{
    if (!isInRange(year) || month < 1 || month > 12 || day < 1 || day > 31)
        return false;
    auto calendar = universalCalendar();
    return dayAt(numberOf(*this, calendar), calendar) == *this;
}

qint64 CalendarDay::number() const
{
    auto calendar = universalCalendar();
    return numberOf(*this, calendar);
}

CalendarDay CalendarDay::ofNumber(qint64 number)
{
    static const qint64 first = CalendarDay{.year = firstYear, .month = 1, .day = 1}.number();
    static const qint64 last = CalendarDay{.year = lastYear, .month = 12, .day = 31}.number();
    auto calendar = universalCalendar();
    return dayAt(std::clamp(number, first, last), calendar);
}

CalendarDay CalendarDay::nearestInMonth() const
{
    CalendarDay nearest = *this;
    while (nearest.day > 1 && !nearest.exists())
        --nearest.day;
    return nearest;
}

class LocalClock::Zone
{
public:
    explicit Zone(const std::string &name)
        : m_zone(icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(name)))
    {
    }

    /// Seconds east of Greenwich at an instant in Unix time.
    qint64 offsetAt(qint64 unixTime) const
    {
        constexpr UBool isLocal = 0;
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t standard = 0;
        std::int32_t saving = 0;
        m_zone->getOffset(static_cast<UDate>(unixTime) * U_MILLIS_PER_SECOND, isLocal, standard,
                          saving, status);
        return toSeconds(standard, saving);
    }

    /// The offset of a local time, given in seconds as if it were Unix time. Where the zone's rule
    /// changes, `choice` says whether the offset before the change is meant, or the one after it.
    qint64 offsetOfLocal(qint64 localTime, UTimeZoneLocalOption choice) const
    {
        const auto *zone = dynamic_cast<const icu::BasicTimeZone *>(m_zone.get());
        if (!zone)
            return offsetAt(localTime);
        UErrorCode status = U_ZERO_ERROR;
        std::int32_t standard = 0;
        std::int32_t saving = 0;
        zone->getOffsetFromLocal(static_cast<UDate>(localTime) * U_MILLIS_PER_SECOND, choice,
                                 choice, standard, saving, status);
        return toSeconds(standard, saving);
    }

private:
    static qint64 toSeconds(std::int32_t standard, std::int32_t saving)
    {
        return floorDivide(qint64{standard} + saving, U_MILLIS_PER_SECOND);
    }

    std::unique_ptr<icu::TimeZone> m_zone;
};

LocalClock::LocalClock(const std::string &timeZone)
    : m_zone(std::make_unique<Zone>(timeZone))
{
}

LocalClock::~LocalClock() = default;

std::optional<LocalMinute> LocalClock::minuteAt(Date date) const
{
    // Ten thousand years: what lies farther has no day here, and NaN fails the comparison too.
    constexpr double farthest = 10'000.0 * 366 * secondsPerDay;
    if (!(std::abs(date.secondsSinceReferenceDate()) < farthest))
        return {};
    const qint64 unixTime = date.wholeSecondsOfUnixTime();
    const qint64 local = unixTime + m_zone->offsetAt(unixTime);
    const qint64 dayNumber = floorDivide(local, secondsPerDay);
    auto calendar = universalCalendar();
    const CalendarDay day = dayAt(dayNumber, calendar);
    if (!isInRange(day.year))
        return {};
    const auto secondOfDay = static_cast<int>(local - dayNumber * secondsPerDay);
    return LocalMinute{.day = day,
                       .hour = secondOfDay / static_cast<int>(secondsPerHour),
                       .minute = secondOfDay / static_cast<int>(secondsPerMinute) % 60};
}

Date LocalClock::dateAt(const LocalMinute &minute, Date start) const
{
    const auto startMinute = minuteAt(start);
    qint64 startOffset = 0;
    qint64 second = 0;
    double fraction = 0;
    if (startMinute) {
        const qint64 unixTime = start.wholeSecondsOfUnixTime();
        startOffset = m_zone->offsetAt(unixTime);
        const qint64 local = unixTime + startOffset;
        second = local - floorDivide(local, secondsPerMinute) * secondsPerMinute;
        const double seconds = start.secondsSinceReferenceDate();
        fraction = seconds - std::floor(seconds);
    }

    const qint64 local = minute.day.number() * secondsPerDay + minute.hour * secondsPerHour
        + minute.minute * secondsPerMinute + second;
    const qint64 before = m_zone->offsetOfLocal(local, UCAL_TZ_LOCAL_FORMER);
    const qint64 after = m_zone->offsetOfLocal(local, UCAL_TZ_LOCAL_LATTER);
    // A skipped time has the offset before the change: it comes out later by what was skipped. Of
    // a repeated time, that offset makes the earlier of the two.
    const bool repeated = before > after;
    const qint64 offset = startMinute && repeated && startOffset == after ? after : before;
    const Date date = withFraction(local - offset - Date::referenceDateInUnixTime, fraction);
    return startMinute && minuteAt(date) == startMinute ? start : date;
}
