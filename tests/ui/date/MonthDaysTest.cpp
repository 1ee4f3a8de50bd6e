#include "ui/MonthDays.h"

#include "tests/ui/date/Dates.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class MonthDaysTest : public testing::Test
{
protected:
    MonthDaysTest() { days.show(CalendarDay{2026, 1, 31}, {2026, 2, 2}); }

    QVariant data(int row, MonthDays::Role role) const { return days.data(days.index(row), role); }

    QList<int> rowsWith(MonthDays::Role role) const
    {
        QList<int> rows;
        for (int row = 0; row < days.rowCount(); ++row) {
            if (data(row, role).toBool())
                rows += row;
        }
        return rows;
    }

    DateWords words{"de_DE"};
    MonthDays days{&words};
};

TEST_F(MonthDaysTest, showsTheMonthInWholeWeeks)
{
    EXPECT_EQ(days.title(), QStringLiteral("Januar 2026"));
    EXPECT_EQ(days.rowCount(), 42);
    // 1 January 2026 is a Thursday.
    EXPECT_EQ(data(0, MonthDays::DayTextRole).toString(), QStringLiteral("29"));
    EXPECT_EQ(data(3, MonthDays::FullDateRole).toString(),
              QStringLiteral("Donnerstag, 1. Januar 2026"));
    EXPECT_EQ(rowsWith(MonthDays::InMonthRole).first(), 3);
    EXPECT_EQ(rowsWith(MonthDays::InMonthRole).last(), 33);
    EXPECT_EQ(rowsWith(MonthDays::SelectedRole), QList<int>{33});
    EXPECT_EQ(rowsWith(MonthDays::CurrentRole), QList<int>{33});
    EXPECT_EQ(rowsWith(MonthDays::TodayRole), QList<int>{35});
    EXPECT_EQ(days.currentRow(), 33);
}

TEST_F(MonthDaysTest, showsToday_whereNothingIsSelected)
{
    days.show({}, {2026, 2, 2});
    EXPECT_EQ(days.title(), QStringLiteral("Februar 2026"));
    EXPECT_TRUE(rowsWith(MonthDays::SelectedRole).isEmpty());
    EXPECT_EQ(rowsWith(MonthDays::CurrentRole), rowsWith(MonthDays::TodayRole));
}

TEST_F(MonthDaysTest, movesByDays_overTheMonthsEnd)
{
    QSignalSpy moves(&days, &MonthDays::moved);
    days.moveByDays(1);
    EXPECT_EQ(days.current(), (CalendarDay{2026, 2, 1}));
    EXPECT_EQ(days.title(), QStringLiteral("Februar 2026"));
    EXPECT_EQ(moves.count(), 1);
    days.moveByDays(-7);
    EXPECT_EQ(days.current(), (CalendarDay{2026, 1, 25}));
}

TEST_F(MonthDaysTest, movesByMonths_andComesBackToTheDay)
{
    days.moveByMonths(1);
    EXPECT_EQ(days.current(), (CalendarDay{2026, 2, 28}));
    days.moveByMonths(1);
    EXPECT_EQ(days.current(), (CalendarDay{2026, 3, 31}));
    days.moveByMonths(-12);
    EXPECT_EQ(days.current(), (CalendarDay{2025, 3, 31}));
}

TEST_F(MonthDaysTest, movesToTheEndsOfTheWeek)
{
    days.moveToWeekStart();
    EXPECT_EQ(days.current(), (CalendarDay{2026, 1, 26}));
    days.moveToWeekEnd();
    EXPECT_EQ(days.current(), (CalendarDay{2026, 2, 1}));
    EXPECT_EQ(words.dayOfWeek(days.current()), 6);
}

TEST_F(MonthDaysTest, movesToTheDayOfARow)
{
    days.moveToRow(0);
    EXPECT_EQ(days.current(), (CalendarDay{2025, 12, 29}));
    EXPECT_EQ(days.title(), QStringLiteral("Dezember 2025"));
}

TEST_F(MonthDaysTest, endsWithTheCalendar)
{
    days.show(CalendarDay{9999, 12, 31}, {2026, 2, 2});
    days.moveByDays(1);
    days.moveByMonths(1);
    EXPECT_EQ(days.current(), (CalendarDay{9999, 12, 31}));
    EXPECT_EQ(data(41, MonthDays::DayTextRole).toString(), QString());
    days.moveByMonths(-12 * 20000);
    EXPECT_EQ(days.current(), (CalendarDay{1, 1, 31}));
    days.moveByDays(-31);
    EXPECT_EQ(days.current(), (CalendarDay{1, 1, 1}));
}

TEST_F(MonthDaysTest, hasTheWeekOfItsLocale)
{
    EXPECT_EQ(days.weekdays().first(), QStringLiteral("Mo"));
    const DateWords american("en_US");
    EXPECT_EQ(MonthDays(&american).weekdays().first(), QStringLiteral("Su"));
}

} // namespace
