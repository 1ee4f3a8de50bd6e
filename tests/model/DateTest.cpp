#include "model/Date.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

namespace {

using Limits = std::numeric_limits<double>;

constexpr qint64 reference = Date::referenceDateInUnixTime;

} // namespace

TEST(Date, byDefault_isTheReferenceDate)
{
    EXPECT_EQ(Date().secondsSinceReferenceDate(), 0);
    EXPECT_EQ(Date().wholeSecondsOfUnixTime(), 978307200);
}

TEST(Date, keepsTheBitsItIsMadeFrom)
{
    for (const double seconds : {0.1, -1.5, Limits::denorm_min(), Limits::max()})
        EXPECT_EQ(Date(seconds).secondsSinceReferenceDate(), seconds);
    EXPECT_TRUE(std::signbit(Date(-0.0).secondsSinceReferenceDate()));
    EXPECT_TRUE(std::isnan(Date(Limits::quiet_NaN()).secondsSinceReferenceDate()));
}

TEST(Date, equality_isOfInstants)
{
    EXPECT_EQ(Date(0.0), Date(-0.0));
    EXPECT_EQ(Date(0.5), Date(0.5));
    EXPECT_NE(Date(0.5), Date(std::nextafter(0.5, 1)));
    EXPECT_NE(Date(Limits::quiet_NaN()), Date(Limits::quiet_NaN()));
}

TEST(Date, now_readsTheSystemClock)
{
    using namespace std::chrono;
    const auto clock = [] {
        const duration<double> sinceEpoch = system_clock::now().time_since_epoch();
        return sinceEpoch.count() - double(reference);
    };
    constexpr double microsecond = 1e-6;
    const double before = clock();
    const double now = Date::now().secondsSinceReferenceDate();
    const double after = clock();
    EXPECT_GE(now, before - microsecond);
    EXPECT_LE(now, after + microsecond);
}

TEST(Date, now_hasFractionsOfASecond)
{
    // A hundred readings that are all whole seconds would be one in 10^300 by chance.
    for (int reading = 0; reading < 100; ++reading) {
        const double seconds = Date::now().secondsSinceReferenceDate();
        if (seconds != std::floor(seconds))
            return;
    }
    FAIL() << "every reading is a whole second";
}

TEST(Date, wholeSeconds_areRoundedDown)
{
    EXPECT_EQ(Date(0.999).wholeSecondsOfUnixTime(), reference);
    EXPECT_EQ(Date(-0.001).wholeSecondsOfUnixTime(), reference - 1);
    EXPECT_EQ(Date(-1).wholeSecondsOfUnixTime(), reference - 1);
    EXPECT_EQ(Date(-1.5).wholeSecondsOfUnixTime(), reference - 2);
    EXPECT_EQ(Date(-double(reference)).wholeSecondsOfUnixTime(), 0);
    EXPECT_EQ(Date(-double(reference) - 0.25).wholeSecondsOfUnixTime(), -1);
}

TEST(Date, wholeSeconds_ofAnInstantJustBelowASecond_areNotRoundedUpByTheSum)
{
    EXPECT_EQ(Date(std::nextafter(1.0, 0)).wholeSecondsOfUnixTime(), reference);
    EXPECT_EQ(Date(std::nextafter(0.0, -1)).wholeSecondsOfUnixTime(), reference - 1);
    EXPECT_EQ(Date(std::nextafter(788918400.0, 0)).wholeSecondsOfUnixTime(), reference + 788918399);
}

TEST(Date, wholeSeconds_outsideEveryCalendar_areTheNearestInsideOne)
{
    // The first and the last second of ICU's calendars.
    constexpr qint64 first = -184'303'902'528'000;
    constexpr qint64 last = 183'882'168'921'600;
    for (const qint64 second : {first, first + 1, last - 1, last})
        EXPECT_EQ(Date(double(second - reference)).wholeSecondsOfUnixTime(), second);
    EXPECT_EQ(Date(double(first - 1 - reference)).wholeSecondsOfUnixTime(), first);
    EXPECT_EQ(Date(double(last + 1 - reference)).wholeSecondsOfUnixTime(), last);
    for (const double seconds : {1e15, 1e19, 1e300, Limits::max(), Limits::infinity()}) {
        EXPECT_EQ(Date(seconds).wholeSecondsOfUnixTime(), last);
        EXPECT_EQ(Date(-seconds).wholeSecondsOfUnixTime(), first);
    }
    EXPECT_EQ(Date(Limits::quiet_NaN()).wholeSecondsOfUnixTime(), reference);
}

TEST(Date, bits_areTheSameForTheSameInstantOnly)
{
    EXPECT_EQ(Date(788918400.5).bits(), Date(788918400.5).bits());
    EXPECT_NE(Date(788918400.5).bits(), Date(std::nextafter(788918400.5, 0)).bits());
    EXPECT_NE(Date(0.0).bits(), Date(-0.0).bits());
    EXPECT_EQ(Date(Limits::quiet_NaN()).bits(), Date(Limits::quiet_NaN()).bits());
}

RC_GTEST_PROP(Date, wholeSeconds_areTheLastAtOrBeforeTheInstant, ())
{
    const auto seconds = *rc::gen::inRange<qint64>(-100'000'000'000, 100'000'000'000);
    const auto part = *rc::gen::inRange(0, 1024);
    const Date date(double(seconds) + part / 1024.0);
    RC_ASSERT(date.wholeSecondsOfUnixTime() == seconds + reference);
}
