#include "ui/LocalTime.h"

#include "tests/ui/date/Dates.h"

#include <QTimeZone>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using Limits = std::numeric_limits<double>;

struct Change
{
    const char *what;
    const char *zone;
    Date start;         ///< the date that is changed
    LocalMinute wanted; ///< the local time that it is to have
    Date result;
};

void PrintTo(const Change &change, std::ostream *out)
{
    *out << change.what << ' ' << change.zone;
}

class LocalChange : public testing::TestWithParam<Change>
{
};

TEST_P(LocalChange, comesOutAt)
{
    const LocalClock clock(GetParam().zone);
    const Date result = clock.dateAt(GetParam().wanted, GetParam().start);
    EXPECT_EQ(bitsOf(result), bitsOf(GetParam().result))
        << result.secondsSinceReferenceDate() - GetParam().result.secondsSinceReferenceDate()
        << " seconds too late";
}

INSTANTIATE_TEST_SUITE_P(
    Plain, LocalChange,
    testing::Values(
        Change{"seconds and fraction stay", "Europe/Berlin", utcDate(2026, 1, 5, 9, 30, 17.25),
               minuteOf(2026, 7, 6, 8, 1), utcDate(2026, 7, 6, 6, 1, 17.25)},
        Change{"before the reference date", "UTC", utcDate(1995, 1, 5, 9, 30, 59.5),
               minuteOf(1980, 2, 29, 0, 0), utcDate(1980, 2, 29, 0, 0, 59.5)},
        Change{"a fraction of almost a second", "UTC", Date(-Limits::denorm_min()),
               minuteOf(2026, 1, 1, 0, 0),
               Date(std::nextafter(utcDate(2026, 1, 1, 0, 0, 60).secondsSinceReferenceDate(), 0))},
        Change{"three quarters of an hour", "Asia/Kathmandu", utcDate(2026, 1, 5, 0, 0, 1),
               minuteOf(2026, 1, 5, 12, 0), utcDate(2026, 1, 5, 6, 15, 1)},
        Change{"west of Greenwich by half an hour", "America/St_Johns", utcDate(2026, 1, 5),
               minuteOf(2026, 7, 1, 12, 0), utcDate(2026, 7, 1, 14, 30)},
        Change{"half an hour of summer time", "Australia/Lord_Howe", utcDate(2026, 1, 5),
               minuteOf(2026, 7, 1, 12, 0), utcDate(2026, 7, 1, 1, 30)},
        // Berlin's own time was 53 minutes and 28 seconds before Greenwich's until 1893. The
        // seconds that the clock shows stay: 30.
        Change{"offsets with seconds", "Europe/Berlin", utcDate(2026, 1, 5, 9, 30, 30),
               minuteOf(1890, 1, 1, 12, 0), utcDate(1890, 1, 1, 11, 7, 2)},
        Change{"from a date that has no day", "Europe/Berlin", Date(1e300),
               minuteOf(2026, 1, 5, 9, 30), utcDate(2026, 1, 5, 8, 30)},
        Change{"from no number", "Europe/Berlin", Date(Limits::quiet_NaN()),
               minuteOf(2026, 1, 5, 9, 30), utcDate(2026, 1, 5, 8, 30)}));

INSTANTIATE_TEST_SUITE_P(
    Skipped, LocalChange,
    testing::Values(Change{"an hour in spring", "Europe/Berlin", utcDate(2026, 1, 5, 9, 30, 7.5),
                           minuteOf(2026, 3, 29, 2, 30), utcDate(2026, 3, 29, 1, 30, 7.5)},
                    Change{"an hour in spring, from summer", "Europe/Berlin",
                           utcDate(2026, 7, 5, 9, 30, 7.5), minuteOf(2026, 3, 29, 2, 30),
                           utcDate(2026, 3, 29, 1, 30, 7.5)},
                    Change{"its first minute", "Europe/Berlin", utcDate(2026, 1, 5),
                           minuteOf(2026, 3, 29, 2, 0), utcDate(2026, 3, 29, 1, 0)},
                    Change{"the minute before it", "Europe/Berlin", utcDate(2026, 1, 5),
                           minuteOf(2026, 3, 29, 1, 59), utcDate(2026, 3, 29, 0, 59)},
                    Change{"the minute after it", "Europe/Berlin", utcDate(2026, 1, 5),
                           minuteOf(2026, 3, 29, 3, 0), utcDate(2026, 3, 29, 1, 0)},
                    Change{"in America", "America/New_York", utcDate(2026, 1, 5),
                           minuteOf(2026, 3, 8, 2, 30), utcDate(2026, 3, 8, 7, 30)},
                    Change{"half an hour", "Australia/Lord_Howe", utcDate(2026, 6, 5),
                           minuteOf(2026, 10, 4, 2, 10), utcDate(2026, 10, 3, 15, 40)},
                    Change{"midnight", "America/Santiago", utcDate(2026, 6, 5),
                           minuteOf(2026, 9, 6, 0, 10), utcDate(2026, 9, 6, 4, 10)},
                    // From ten hours behind to fourteen ahead.
                    Change{"a whole day", "Pacific/Apia", utcDate(2011, 12, 1, 0, 0, 3),
                           minuteOf(2011, 12, 30, 10, 0), utcDate(2011, 12, 30, 20, 0, 3)},
                    Change{"the day before it", "Pacific/Apia", utcDate(2011, 12, 1),
                           minuteOf(2011, 12, 29, 23, 59), utcDate(2011, 12, 30, 9, 59)},
                    Change{"the day after it", "Pacific/Apia", utcDate(2011, 12, 1),
                           minuteOf(2011, 12, 31, 0, 0), utcDate(2011, 12, 30, 10, 0)}));

INSTANTIATE_TEST_SUITE_P(
    Repeated, LocalChange,
    testing::Values(
        Change{"from summer the first", "Europe/Berlin", utcDate(2026, 7, 5, 9, 30, 7.5),
               minuteOf(2026, 10, 25, 2, 30), utcDate(2026, 10, 25, 0, 30, 7.5)},
        Change{"from winter the second", "Europe/Berlin", utcDate(2026, 1, 5, 9, 30, 7.5),
               minuteOf(2026, 10, 25, 2, 30), utcDate(2026, 10, 25, 1, 30, 7.5)},
        Change{"within the first", "Europe/Berlin", utcDate(2026, 10, 25, 0, 30, 7.5),
               minuteOf(2026, 10, 25, 2, 59), utcDate(2026, 10, 25, 0, 59, 7.5)},
        Change{"within the second", "Europe/Berlin", utcDate(2026, 10, 25, 1, 30, 7.5),
               minuteOf(2026, 10, 25, 2, 0), utcDate(2026, 10, 25, 1, 0, 7.5)},
        Change{"the minute before it", "Europe/Berlin", utcDate(2026, 1, 5),
               minuteOf(2026, 10, 25, 1, 59), utcDate(2026, 10, 24, 23, 59)},
        Change{"the minute after it", "Europe/Berlin", utcDate(2026, 7, 5),
               minuteOf(2026, 10, 25, 3, 0), utcDate(2026, 10, 25, 2, 0)},
        Change{"half an hour, the first", "Australia/Lord_Howe", utcDate(2026, 1, 5),
               minuteOf(2026, 4, 5, 1, 45), utcDate(2026, 4, 4, 14, 45)},
        Change{"half an hour, the second", "Australia/Lord_Howe", utcDate(2026, 7, 5),
               minuteOf(2026, 4, 5, 1, 45), utcDate(2026, 4, 4, 15, 15)},
        // Berlin's offset in the year 1890 is neither of the two.
        Change{"from an offset of its own", "Europe/Berlin", utcDate(1890, 1, 1, 0, 0, 32),
               minuteOf(2026, 10, 25, 2, 30), utcDate(2026, 10, 25, 0, 30, 0)}));

TEST(LocalClock, showsNothing_whereNoDayReaches)
{
    const LocalClock clock("Europe/Berlin");
    for (const double seconds :
         {1e300, -1e300, Limits::max(), Limits::lowest(), Limits::infinity(), -Limits::infinity(),
          Limits::quiet_NaN(), 4e11, -4e11, 3e11, -1e11}) {
        EXPECT_FALSE(clock.minuteAt(Date(seconds)).has_value()) << seconds;
    }
}

TEST(LocalClock, reachesFromTheFirstYearToTheLast)
{
    const LocalClock clock("UTC");
    const Date last = utcDate(9999, 12, 31, 23, 59, 59.5);
    EXPECT_EQ(clock.minuteAt(last), minuteOf(9999, 12, 31, 23, 59));
    EXPECT_FALSE(clock.minuteAt(utcDate(10000, 1, 1)).has_value());
    // The calendar of that time was two days behind.
    const double first = utcDate(1, 1, 1).secondsSinceReferenceDate() - 2 * 86400;
    EXPECT_EQ(clock.minuteAt(Date(first)), minuteOf(1, 1, 1, 0, 0));
    EXPECT_FALSE(clock.minuteAt(Date(first - 1)).has_value());
}

TEST(LocalClock, aFractionBeforeAMinute_isInTheMinuteBefore)
{
    const LocalClock clock("UTC");
    EXPECT_EQ(clock.minuteAt(Date(-1e-9)), minuteOf(2000, 12, 31, 23, 59));
    EXPECT_EQ(clock.minuteAt(Date(std::nextafter(60.0, 0.0))), minuteOf(2001, 1, 1, 0, 0));
    EXPECT_EQ(clock.minuteAt(Date(60)), minuteOf(2001, 1, 1, 0, 1));
}

std::string anyZone()
{
    return *rc::gen::element<std::string>("UTC", "Europe/Berlin", "America/New_York",
                                          "America/St_Johns", "Asia/Kathmandu", "Asia/Tehran",
                                          "Australia/Lord_Howe", "Pacific/Apia", "Africa/Monrovia");
}

/// From the year 1902 to 2096, in which every time zone database agrees.
Date anyDateOfOurTime()
{
    const auto seconds = *rc::gen::inRange<qint64>(-3'100'000'000, 3'000'000'000);
    const auto parts = *rc::gen::inRange(0, 1000);
    return Date(static_cast<double>(seconds) + parts / 1000.0);
}

QDateTime inZone(Date date, const std::string &zone)
{
    return QDateTime::fromSecsSinceEpoch(date.wholeSecondsOfUnixTime(),
                                         QTimeZone(QByteArray::fromStdString(zone)));
}

RC_GTEST_PROP(LocalClockProperties, readsTheClockAsOthersDo, ())
{
    const std::string zone = anyZone();
    const Date date = anyDateOfOurTime();
    const QDateTime expected = inZone(date, zone);
    RC_ASSERT(LocalClock(zone).minuteAt(date)
              == minuteOf(expected.date().year(), expected.date().month(), expected.date().day(),
                          expected.time().hour(), expected.time().minute()));
}

RC_GTEST_PROP(LocalClockProperties, theSameMinute_isTheSameDateToTheBit, (quint32 parts))
{
    const LocalClock clock(anyZone());
    const auto wholeSeconds = *rc::gen::inRange<qint64>(-60'000'000'000, 250'000'000'000);
    const Date date(static_cast<double>(wholeSeconds) + parts * 0x1p-32);
    const auto minute = clock.minuteAt(date);
    RC_ASSERT(minute.has_value());
    RC_ASSERT(bitsOf(clock.dateAt(*minute, date)) == bitsOf(date));
}

RC_GTEST_PROP(LocalClockProperties, everyMinuteThatIs_isShown, ())
{
    const std::string zone = anyZone();
    const LocalClock clock(zone);
    const LocalMinute wanted{.day =
                                 CalendarDay::ofNumber(*rc::gen::inRange<qint64>(-20'000, 40'000)),
                             .hour = *rc::gen::inRange(0, 24),
                             .minute = *rc::gen::inRange(0, 60)};
    const Date start = anyDateOfOurTime();
    const auto shown = clock.minuteAt(clock.dateAt(wanted, start));
    if (shown == wanted)
        return;
    // The zone has no such minute: for others neither.
    const QDateTime other(QDate(wanted.day.year, wanted.day.month, wanted.day.day),
                          QTime(wanted.hour, wanted.minute),
                          QTimeZone(QByteArray::fromStdString(zone)));
    RC_ASSERT(other.time() != QTime(wanted.hour, wanted.minute));
}

TEST(CalendarDay, exists_inItsMonth)
{
    EXPECT_TRUE((CalendarDay{2024, 2, 29}.exists()));
    EXPECT_FALSE((CalendarDay{2026, 2, 29}.exists()));
    EXPECT_FALSE((CalendarDay{2100, 2, 29}.exists()));
    EXPECT_TRUE((CalendarDay{1500, 2, 29}.exists()));
    EXPECT_FALSE((CalendarDay{2026, 4, 31}.exists()));
    EXPECT_FALSE((CalendarDay{2026, 0, 1}.exists()));
    EXPECT_FALSE((CalendarDay{2026, 13, 1}.exists()));
    EXPECT_FALSE((CalendarDay{2026, 1, 0}.exists()));
    EXPECT_FALSE((CalendarDay{0, 1, 1}.exists()));
    EXPECT_FALSE((CalendarDay{10000, 1, 1}.exists()));
    EXPECT_FALSE((CalendarDay{1582, 10, 10}.exists()));
}

TEST(CalendarDay, nearestInMonth_isTheLastOneThatExists)
{
    EXPECT_EQ((CalendarDay{2026, 2, 31}.nearestInMonth()), (CalendarDay{2026, 2, 28}));
    EXPECT_EQ((CalendarDay{2024, 2, 31}.nearestInMonth()), (CalendarDay{2024, 2, 29}));
    EXPECT_EQ((CalendarDay{2026, 5, 31}.nearestInMonth()), (CalendarDay{2026, 5, 31}));
    EXPECT_EQ((CalendarDay{1582, 10, 10}.nearestInMonth()), (CalendarDay{1582, 10, 4}));
}

TEST(CalendarDay, numbersCountTheDays)
{
    EXPECT_EQ((CalendarDay{1970, 1, 1}.number()), 0);
    EXPECT_EQ((CalendarDay{2001, 1, 1}.number()), 11323);
    EXPECT_EQ((CalendarDay{1582, 10, 15}.number()), (CalendarDay{1582, 10, 4}.number()) + 1);
    EXPECT_EQ(CalendarDay::ofNumber(-1), (CalendarDay{1969, 12, 31}));
    EXPECT_EQ(CalendarDay::ofNumber(1'000'000'000'000), (CalendarDay{9999, 12, 31}));
    EXPECT_EQ(CalendarDay::ofNumber(-1'000'000'000'000), (CalendarDay{1, 1, 1}));
}

} // namespace
