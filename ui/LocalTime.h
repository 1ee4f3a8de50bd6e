#pragma once

#include "model/Date.h"

#include <QtGlobal>

#include <memory>
#include <optional>
#include <string>

/// A day of the Gregorian calendar, with the Julian one before 15 October 1582: the calendar in
/// which the feed writes its dates. The years 1 to 9999.
struct CalendarDay
{
    int year = 1;
    int month = 1; ///< 1 to 12
    int day = 1;   ///< 1 to 31

    static constexpr int firstYear = 1;
    static constexpr int lastYear = 9999;

    /// Whether the calendar has this day.
    bool exists() const;

    /// The number of days from 1 January 1970 to this day, which exists.
    qint64 number() const;

    /// The day of a number(), or the nearest one that has a year from 1 to 9999.
    static CalendarDay ofNumber(qint64 number);

    /// This day, or the last one before it in the same month that exists.
    CalendarDay nearestInMonth() const;

    friend constexpr bool operator==(CalendarDay, CalendarDay) = default;
};

/// What a clock on the wall shows at some instant, without its seconds.
struct LocalMinute
{
    CalendarDay day;
    int hour = 0; ///< 0 to 23
    int minute = 0;

    friend constexpr bool operator==(LocalMinute, LocalMinute) = default;
};

/// The clock on the wall in one time zone.
class LocalClock
{
public:
    /// timeZone: name from the IANA time zone database.
    explicit LocalClock(const std::string &timeZone);
    ~LocalClock();
    Q_DISABLE_COPY_MOVE(LocalClock)

    /// Nothing where no calendar day reaches: NaN, the infinities and all years but 1 to 9999.
    std::optional<LocalMinute> minuteAt(Date date) const;

    /// The instant at which the clock shows a minute, with the seconds and the fraction of a second
    /// that it shows at `start`, or with none if nothing is shown there.
    ///
    /// A minute that the clock skips is taken forward by what it skips. Of a minute that it shows
    /// twice, the one with the offset of `start`; if neither has it, the earlier one. A result that
    /// shows the same minute as `start` is `start` itself, bit for bit.
    Date dateAt(const LocalMinute &minute, Date start) const;

private:
    class Zone;

    std::unique_ptr<Zone> m_zone;
};
