#include "ui/PostDate.h"

#include "tests/ui/date/Dates.h"

#include <QSignalSpy>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using Limits = std::numeric_limits<double>;

const DateRegion german{.locale = "de_DE", .timeZone = "Europe/Berlin"};
const DateRegion american{.locale = "en_US", .timeZone = "America/New_York"};

/// Five past nine in the evening in Berlin, and 17.125 seconds.
const Date evening = utcDate(2026, 1, 31, 20, 5, 17.125);

class PostDateTest : public testing::Test
{
protected:
    PostDateTest() { date.setDate(evening); }

    void step(DatePart::Kind kind, int by) { partOf(date, kind)->step(by); }

    PostDate date{german};
};

TEST_F(PostDateTest, holdsThePresentMomentAtFirst)
{
    const double before = Date::now().secondsSinceReferenceDate();
    const double held = PostDate(german).date().secondsSinceReferenceDate();
    EXPECT_GE(held, before);
    EXPECT_LE(held, Date::now().secondsSinceReferenceDate());
}

TEST_F(PostDateTest, givesBackUntouchedBits)
{
    for (const double seconds : {-0.0, 0.1, 1e300, -1e300, Limits::infinity(), -Limits::infinity(),
                                 Limits::quiet_NaN(), Limits::denorm_min(), Limits::max()}) {
        date.setDate(Date(seconds));
        date.showMonth();
        date.settle();
        partOf(date, DatePart::Day)->leave();
        EXPECT_EQ(bitsOf(date.date()), bitsOf(Date(seconds))) << seconds;
    }
}

TEST_F(PostDateTest, showsTheLocalTime)
{
    EXPECT_EQ(shown(date), QStringLiteral("31 01 2026 21 05"));
    EXPECT_EQ(date.dayInWords(), QStringLiteral("Samstag, 31. Januar 2026"));
    EXPECT_FALSE(date.isUnsettled());
}

TEST_F(PostDateTest, steppedParts_keepSecondsAndFraction)
{
    step(DatePart::Minute, 1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 31, 20, 6, 17.125)));
    step(DatePart::Day, -1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 30, 20, 6, 17.125)));
    step(DatePart::Year, -40);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(1986, 1, 30, 20, 6, 17.125)));
}

TEST_F(PostDateTest, changedBack_hasItsOldBits)
{
    const Date awkward(700000000.12345678);
    date.setDate(awkward);
    for (const DatePart::Kind kind :
         {DatePart::Year, DatePart::Month, DatePart::Day, DatePart::Hour, DatePart::Minute}) {
        step(kind, 1);
        EXPECT_NE(bitsOf(date.date()), bitsOf(awkward));
        step(kind, -1);
        EXPECT_EQ(bitsOf(date.date()), bitsOf(awkward));
    }
}

TEST_F(PostDateTest, steps_goRoundWithinTheirPart)
{
    step(DatePart::Day, 1);
    EXPECT_EQ(shown(date), QStringLiteral("01 01 2026 21 05"));
    step(DatePart::Month, -1);
    EXPECT_EQ(shown(date), QStringLiteral("01 12 2026 21 05"));
    step(DatePart::Hour, 3);
    EXPECT_EQ(shown(date), QStringLiteral("01 12 2026 00 05"));
    step(DatePart::Minute, -6);
    EXPECT_EQ(shown(date), QStringLiteral("01 12 2026 00 59"));
    step(DatePart::Year, 10000);
    EXPECT_EQ(shown(date), QStringLiteral("01 12 9999 00 59"));
    step(DatePart::Year, -20000);
    EXPECT_EQ(shown(date), QStringLiteral("01 12 0001 00 59"));
}

TEST_F(PostDateTest, aStepToAShortMonth_movesTheDay_andBack)
{
    step(DatePart::Month, 1);
    EXPECT_EQ(shown(date), QStringLiteral("28 02 2026 21 05"));
    step(DatePart::Month, 1);
    EXPECT_EQ(shown(date), QStringLiteral("31 03 2026 21 05"));
    step(DatePart::Month, -1);
    step(DatePart::Month, -1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(evening));
}

TEST_F(PostDateTest, aLeapDay_isMovedInOtherYears_andBack)
{
    const Date leapDay = utcDate(2024, 2, 29, 12, 0, 0.5);
    date.setDate(leapDay);
    step(DatePart::Year, 1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2025, 2, 28, 12, 0, 0.5)));
    step(DatePart::Year, -1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(leapDay));
    step(DatePart::Year, 4);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2028, 2, 29, 12, 0, 0.5)));
}

TEST_F(PostDateTest, aStepOverASkippedHour_comesBackToTheTime)
{
    date.setDate(utcDate(2026, 3, 28, 1, 30));
    step(DatePart::Day, 1);
    EXPECT_EQ(shown(date), QStringLiteral("29 03 2026 03 30"));
    step(DatePart::Day, 1);
    EXPECT_EQ(shown(date), QStringLiteral("30 03 2026 02 30"));
    step(DatePart::Day, -2);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 3, 28, 1, 30)));
}

TEST_F(PostDateTest, aRepeatedHour_keepsItsOffset)
{
    const Date second = utcDate(2026, 10, 25, 1, 30, 0.5);
    date.setDate(second);
    EXPECT_EQ(shown(date), QStringLiteral("25 10 2026 02 30"));
    step(DatePart::Minute, 1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 10, 25, 1, 31, 0.5)));
    step(DatePart::Hour, -1);
    step(DatePart::Hour, 1);
    step(DatePart::Minute, -1);
    EXPECT_EQ(bitsOf(date.date()), bitsOf(second));
}

TEST_F(PostDateTest, typedParts_makeTheDate)
{
    typeInto(date, DatePart::Day, QStringLiteral("5"));
    typeInto(date, DatePart::Month, QStringLiteral("07"));
    typeInto(date, DatePart::Year, QStringLiteral("1999"));
    typeInto(date, DatePart::Hour, QStringLiteral("0"));
    typeInto(date, DatePart::Minute, QStringLiteral("59"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(1999, 7, 4, 22, 59, 17.125)));
    EXPECT_EQ(shown(date), QStringLiteral("05 07 1999 00 59"));
}

TEST_F(PostDateTest, aPartIsFull_whenNoMoreDigitsFit)
{
    const auto isFull = [this](DatePart::Kind kind, const QString &text) {
        DatePart *part = partOf(date, kind);
        bool full = false;
        for (const QChar character : text)
            full = part->type(character);
        date.settle();
        return full;
    };
    EXPECT_FALSE(isFull(DatePart::Day, QStringLiteral("3")));
    EXPECT_TRUE(isFull(DatePart::Day, QStringLiteral("4")));
    EXPECT_TRUE(isFull(DatePart::Day, QStringLiteral("31")));
    EXPECT_FALSE(isFull(DatePart::Day, QStringLiteral("32")));
    EXPECT_FALSE(isFull(DatePart::Day, QStringLiteral("00")));
    EXPECT_FALSE(isFull(DatePart::Month, QStringLiteral("1")));
    EXPECT_TRUE(isFull(DatePart::Month, QStringLiteral("2")));
    EXPECT_FALSE(isFull(DatePart::Month, QStringLiteral("13")));
    EXPECT_FALSE(isFull(DatePart::Year, QStringLiteral("202")));
    EXPECT_TRUE(isFull(DatePart::Year, QStringLiteral("2027")));
    EXPECT_FALSE(isFull(DatePart::Year, QStringLiteral("0000")));
    EXPECT_FALSE(isFull(DatePart::Hour, QStringLiteral("2")));
    EXPECT_TRUE(isFull(DatePart::Hour, QStringLiteral("3")));
    EXPECT_FALSE(isFull(DatePart::Hour, QStringLiteral("24")));
    EXPECT_TRUE(isFull(DatePart::Minute, QStringLiteral("6")));
    EXPECT_FALSE(isFull(DatePart::Minute, QStringLiteral("0")));
    EXPECT_FALSE(isFull(DatePart::Day, QStringLiteral("x")));
    EXPECT_TRUE(isFull(DatePart::Day, QStringLiteral("1.")));
    EXPECT_FALSE(isFull(DatePart::Day, QStringLiteral(".")));
    EXPECT_EQ(bitsOf(date.date()) == bitsOf(evening), false);
}

TEST_F(PostDateTest, impossibleNumbers_leaveTheDateAsBeforeTheTyping)
{
    const struct
    {
        DatePart::Kind kind;
        const char *text;
    } cases[] = {
        {DatePart::Month, "13"},  {DatePart::Month, "00"}, {DatePart::Month, "2"},
        {DatePart::Day, "32"},    {DatePart::Day, "0"},    {DatePart::Year, "20"},
        {DatePart::Year, "0000"}, {DatePart::Hour, "24"},  {DatePart::Minute, "0"},
    };
    for (const auto &[kind, text] : cases) {
        if (kind == DatePart::Minute)
            continue;
        date.setDate(evening);
        typeInto(date, kind, QLatin1String(text));
        EXPECT_EQ(bitsOf(date.date()), bitsOf(evening)) << text;
        date.settle();
        EXPECT_EQ(shown(date), QStringLiteral("31 01 2026 21 05")) << text;
    }
}

TEST_F(PostDateTest, anImpossibleDay_isShownUntilItIsMadePossible)
{
    date.setDate(utcDate(2026, 2, 15, 8, 0));
    typeInto(date, DatePart::Day, QStringLiteral("31"));
    EXPECT_EQ(shown(date), QStringLiteral("31 02 2026 09 00"));
    EXPECT_TRUE(date.isUnsettled());
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 2, 15, 8, 0)));
    typeInto(date, DatePart::Month, QStringLiteral("3"));
    EXPECT_FALSE(date.isUnsettled());
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 3, 31, 7, 0)));
}

TEST_F(PostDateTest, anEmptiedPart_comesBackWhenItIsLeft)
{
    DatePart *year = partOf(date, DatePart::Year);
    year->erase();
    EXPECT_EQ(shown(date), QStringLiteral("31 01 \u2014 21 05"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(evening));
    year->leave();
    EXPECT_EQ(shown(date), QStringLiteral("31 01 2026 21 05"));
}

TEST_F(PostDateTest, erase_takesBackTheLastDigit)
{
    DatePart *day = partOf(date, DatePart::Day);
    day->type(QStringLiteral("1"));
    day->type(QStringLiteral("2"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 12, 20, 5, 17.125)));
    day->erase();
    EXPECT_EQ(day->text(), QStringLiteral("1"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 1, 20, 5, 17.125)));
    day->erase();
    EXPECT_EQ(day->text(), QStringLiteral("\u2014"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(evening));
}

TEST_F(PostDateTest, aDigitAfterAFullNumber_beginsANewOne)
{
    DatePart *minute = partOf(date, DatePart::Minute);
    for (const char digit : {'4', '5', '1'})
        minute->type(QString(QLatin1Char(digit)));
    EXPECT_EQ(minute->text(), QStringLiteral("1"));
    EXPECT_EQ(minute->value(), 1);
}

TEST_F(PostDateTest, digitsOfEveryScript_areTaken)
{
    typeInto(date, DatePart::Day, QStringLiteral("\u0661\u0662"));
    EXPECT_EQ(partOf(date, DatePart::Day)->value(), 12);
    typeInto(date, DatePart::Day, QStringLiteral("\uff10\uff13"));
    EXPECT_EQ(partOf(date, DatePart::Day)->value(), 3);
}

TEST_F(PostDateTest, values_areBroughtIntoTheirRange)
{
    partOf(date, DatePart::Month)->setValue(2);
    EXPECT_EQ(shown(date), QStringLiteral("28 02 2026 21 05"));
    EXPECT_EQ(partOf(date, DatePart::Day)->maximum(), 28);
    partOf(date, DatePart::Day)->setValue(31);
    EXPECT_EQ(shown(date), QStringLiteral("28 02 2026 21 05"));
    partOf(date, DatePart::Hour)->setValue(-5);
    partOf(date, DatePart::Minute)->setValue(99);
    EXPECT_EQ(shown(date), QStringLiteral("28 02 2026 00 59"));
}

TEST_F(PostDateTest, aDateWithoutADay_isEmpty_untilAllPartsAreTyped)
{
    date.setDate(Date(1e300));
    EXPECT_EQ(shown(date), QStringLiteral("\u2014 \u2014 \u2014 \u2014 \u2014"));
    EXPECT_EQ(date.dayInWords(), QString());
    typeInto(date, DatePart::Day, QStringLiteral("05"));
    typeInto(date, DatePart::Month, QStringLiteral("01"));
    typeInto(date, DatePart::Year, QStringLiteral("2026"));
    typeInto(date, DatePart::Hour, QStringLiteral("9"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(Date(1e300)));
    EXPECT_EQ(shown(date), QStringLiteral("05 01 2026 09 \u2014"));
    EXPECT_TRUE(date.isUnsettled());
    typeInto(date, DatePart::Minute, QStringLiteral("30"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 5, 8, 30)));
}

TEST_F(PostDateTest, aStepFromNothing_takesThePresent)
{
    date.setDate(Date(Limits::quiet_NaN()));
    for (DatePart *part = date.firstDayPart(); part; part = part->next())
        part->step(1);
    const double past =
        Date::now().secondsSinceReferenceDate() - date.date().secondsSinceReferenceDate();
    EXPECT_GE(past, 0);
    EXPECT_LT(past, 120);
}

TEST_F(PostDateTest, theDayTakenFromTheMonth_keepsTheTime)
{
    date.showMonth();
    EXPECT_EQ(date.month()->current(), (CalendarDay{2026, 1, 31}));
    date.month()->moveByMonths(1);
    date.takeDay();
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 2, 28, 20, 5, 17.125)));
    EXPECT_EQ(shown(date), QStringLiteral("28 02 2026 21 05"));
    date.showMonth();
    date.month()->moveByDays(-28);
    date.takeDay();
    EXPECT_EQ(bitsOf(date.date()), bitsOf(evening));
}

TEST_F(PostDateTest, theDayTakenForADateWithoutOne_hasThePresentTime)
{
    date.setDate(Date(1e300));
    date.showMonth();
    date.takeDay();
    EXPECT_NEAR(date.date().secondsSinceReferenceDate(), Date::now().secondsSinceReferenceDate(),
                120);
}

TEST_F(PostDateTest, aTextOfADayAndATime_setsAllParts)
{
    const struct
    {
        const char16_t *text;
        Date date;
    } cases[] = {
        {u"1999-07-04 23:59", utcDate(1999, 7, 4, 21, 59, 17.125)},
        {u"1999-07-04T23:59", utcDate(1999, 7, 4, 21, 59, 17.125)},
        {u"1999-07-04", utcDate(1999, 7, 4, 19, 5, 17.125)},
        {u"\n 1999-07-04 \u00a0 23:59\t", utcDate(1999, 7, 4, 21, 59, 17.125)},
        {u"\u0661\u0669\u0669\u0669-\u0660\u0667-\u0660\u0664", utcDate(1999, 7, 4, 19, 5, 17.125)},
        {u"1999-07-\U0001d7ce\U0001d7d2 23:59", utcDate(1999, 7, 4, 21, 59, 17.125)},
        {u"2024-02-29 00:00", utcDate(2024, 2, 28, 23, 0, 17.125)},
        {u"2026-03-29 02:30", utcDate(2026, 3, 29, 1, 30, 17.125)},
    };
    for (const auto &[text, expected] : cases) {
        date.setDate(evening);
        date.takeText(QString::fromUtf16(text));
        EXPECT_EQ(bitsOf(date.date()), bitsOf(expected)) << QString::fromUtf16(text).toStdString();
        EXPECT_FALSE(date.isUnsettled());
    }
}

TEST_F(PostDateTest, anyOtherText_changesNothing)
{
    for (const char *text :
         {"", " ", "1999", "1999-7-4", "1999-07-04 23", "1999-07-04 24:00", "1999-07-04 23:60",
          "1999-02-29", "0000-01-01", "1999-13-01", "1999-07-00", "19990704", "1999-07-04x",
          "x1999-07-04", "1999-07-0423:59", "1999-07-04 23:59:00", "99999-07-04", "-1999-07-04"}) {
        date.takeText(QString::fromLatin1(text));
        EXPECT_EQ(bitsOf(date.date()), bitsOf(evening)) << text;
        EXPECT_EQ(shown(date), QStringLiteral("31 01 2026 21 05")) << text;
    }
}

TEST_F(PostDateTest, itsOwnText_isTheSameDate)
{
    EXPECT_EQ(date.text(), QStringLiteral("2026-01-31 21:05"));
    for (const double seconds : {700000000.12345678, -63100000000.5, 0.0}) {
        date.setDate(Date(seconds));
        date.takeText(date.text());
        EXPECT_EQ(bitsOf(date.date()), bitsOf(Date(seconds))) << seconds;
    }
    date.setDate(utcDate(33, 4, 3, 12));
    EXPECT_EQ(date.text().left(5), QStringLiteral("0033-"));
}

TEST_F(PostDateTest, aText_endsTheTyping)
{
    partOf(date, DatePart::Year)->type(QStringLiteral("2"));
    date.takeText(QStringLiteral("1999-07-04"));
    EXPECT_EQ(shown(date), QStringLiteral("04 07 1999 21 05"));
}

TEST_F(PostDateTest, aTextOfADay_givesADateWithoutOneThePresentTime)
{
    date.setDate(Date(1e300));
    EXPECT_EQ(date.text(), QString());
    date.takeText(QStringLiteral("1999-07-04 23:59"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(1999, 7, 4, 21, 59)));
    date.setDate(Date(1e300));
    PostDate present(german);
    date.takeText(present.text().left(10));
    EXPECT_NEAR(date.date().secondsSinceReferenceDate(), present.date().secondsSinceReferenceDate(),
                120);
}

TEST_F(PostDateTest, undo_givesBackTheBitsThatWereSet)
{
    for (const double seconds : {700000000.12345678, -0.0, 1e300, Limits::quiet_NaN()}) {
        date.setDate(Date(seconds));
        date.takeText(QStringLiteral("1999-07-04 23:59"));
        step(DatePart::Minute, 1);
        partOf(date, DatePart::Year)->type(QStringLiteral("2"));
        date.undo();
        EXPECT_EQ(bitsOf(date.date()), bitsOf(Date(seconds))) << seconds;
        EXPECT_FALSE(date.isUnsettled());
    }
}

TEST_F(PostDateTest, isChanged_whileItIsAnotherDateThanWasSet)
{
    EXPECT_FALSE(date.isChanged());
    step(DatePart::Minute, 1);
    EXPECT_TRUE(date.isChanged());
    step(DatePart::Minute, -1);
    EXPECT_FALSE(date.isChanged());
    step(DatePart::Minute, 1);
    date.setDate(date.date());
    EXPECT_FALSE(date.isChanged());
}

TEST_F(PostDateTest, tellsOfChangesOfTheDateOnly)
{
    QSignalSpy changes(&date, &PostDate::dateChanged);
    date.settle();
    date.setDate(evening);
    partOf(date, DatePart::Year)->type(QStringLiteral("2"));
    EXPECT_EQ(changes.count(), 0);
    partOf(date, DatePart::Year)->leave();
    step(DatePart::Minute, 1);
    EXPECT_EQ(changes.count(), 1);
}

TEST(PostDateOfTwelveHours, showsAndTakesBothHalvesOfTheDay)
{
    PostDate date(american);
    date.setDate(utcDate(2026, 1, 5, 5, 7, 0.5));
    EXPECT_EQ(shown(date), QStringLiteral("1 5 2026 12 07 AM"));
    typeInto(date, DatePart::Hour, QStringLiteral("3"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 5, 8, 7, 0.5)));
    typeInto(date, DatePart::DayPeriod, QStringLiteral("p"));
    EXPECT_EQ(shown(date), QStringLiteral("1 5 2026 3 07 PM"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 5, 20, 7, 0.5)));
    typeInto(date, DatePart::Hour, QStringLiteral("12"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 5, 17, 7, 0.5)));
    partOf(date, DatePart::Hour)->step(1);
    EXPECT_EQ(shown(date), QStringLiteral("1 5 2026 1 07 PM"));
    partOf(date, DatePart::DayPeriod)->step(1);
    EXPECT_EQ(shown(date), QStringLiteral("1 5 2026 1 07 AM"));
    typeInto(date, DatePart::Hour, QStringLiteral("15"));
    EXPECT_EQ(shown(date), QStringLiteral("1 5 2026 3 07 PM"));
    typeInto(date, DatePart::Hour, QStringLiteral("0"));
    EXPECT_EQ(shown(date), QStringLiteral("1 5 2026 3 07 PM"));
    typeInto(date, DatePart::Hour, QStringLiteral("00"));
    EXPECT_EQ(bitsOf(date.date()), bitsOf(utcDate(2026, 1, 5, 5, 7, 0.5)));
}

TEST(PostDateOfTheUser, hasTheEnvironmentsLocaleAndZone)
{
    qputenv("LC_ALL", "ja_JP.UTF-8");
    qputenv("TZ", "Asia/Tokyo");
    PostDate date;
    date.setDate(utcDate(2026, 1, 5, 23, 30));
    EXPECT_EQ(shown(date), QStringLiteral("2026 01 06 8 30"));
    EXPECT_EQ(date.dayInWords(), QStringLiteral("2026\u5e741\u67086\u65e5\u706b\u66dc\u65e5"));
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
}

DatePart *anyPart(const PostDate &date)
{
    return partOf(date,
                  *rc::gen::element(DatePart::Year, DatePart::Month, DatePart::Day, DatePart::Hour,
                                    DatePart::Minute));
}

RC_GTEST_PROP(PostDateProperties, untouched_anyBitsComeBack, (std::uint64_t bits))
{
    PostDate date(german);
    date.setDate(Date(std::bit_cast<double>(bits)));
    date.showMonth();
    date.settle();
    RC_ASSERT(bitsOf(date.date()) == bits);
}

RC_GTEST_PROP(PostDateProperties, theSameNumbersSetAgain_areTheSameBits, ())
{
    const auto milliseconds = *rc::gen::inRange<qint64>(-4'000'000'000'000, 4'000'000'000'000);
    const Date start(static_cast<double>(milliseconds) / 1000);
    PostDate date(german);
    date.setDate(start);
    QList<int> numbers;
    for (DatePart *part = date.firstDayPart(); part; part = part->next())
        numbers += part->value();
    for (int steps = *rc::gen::inRange(1, 6); steps > 0; --steps)
        anyPart(date)->step(*rc::gen::inRange(-3, 4));
    // Year and month first: a day may be there in this month only.
    partOf(date, DatePart::Year)->setValue(numbers[2]);
    partOf(date, DatePart::Month)->setValue(numbers[1]);
    partOf(date, DatePart::Day)->setValue(numbers[0]);
    partOf(date, DatePart::Hour)->setValue(numbers[3]);
    partOf(date, DatePart::Minute)->setValue(numbers[4]);
    RC_ASSERT(bitsOf(date.date()) == bitsOf(start));
}

RC_GTEST_PROP(PostDateProperties, whateverIsTyped_theDateIsOneThatTheFieldShows, ())
{
    PostDate date(german);
    date.setDate(evening);
    for (int keys = *rc::gen::inRange(1, 30); keys > 0; --keys) {
        DatePart *part = anyPart(date);
        switch (*rc::gen::inRange(0, 8)) {
        case 0:
            part->erase();
            break;
        case 1:
            part->leave();
            break;
        case 2:
            part->step(*rc::gen::inRange(-2, 3));
            break;
        default:
            part->type(QString::number(*rc::gen::inRange(0, 10)));
        }
        RC_ASSERT(std::isfinite(date.date().secondsSinceReferenceDate()));
    }
    date.settle();
    RC_ASSERT(!date.isUnsettled());
    const double seconds = date.date().secondsSinceReferenceDate();
    RC_ASSERT(bitsOf(Date(seconds - std::floor(seconds))) == bitsOf(Date(0.125)));
}

} // namespace
