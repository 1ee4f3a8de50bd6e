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
    const qint64 last = Date(1e15).wholeSecondsOfUnixTime();
    const qint64 first = Date(-1e15).wholeSecondsOfUnixTime();
    constexpr auto millionYears = qint64(1e6 * 365.25 * 86400);
    EXPECT_GT(last, 5 * millionYears);
    EXPECT_LT(first, -5 * millionYears);
    for (const double seconds : {1e19, 1e300, Limits::max(), Limits::infinity()}) {
        EXPECT_EQ(Date(seconds).wholeSecondsOfUnixTime(), last);
        EXPECT_EQ(Date(-seconds).wholeSecondsOfUnixTime(), first);
    }
    EXPECT_EQ(Date(Limits::quiet_NaN()).wholeSecondsOfUnixTime(), reference);
}

RC_GTEST_PROP(Date, wholeSeconds_areTheLastAtOrBeforeTheInstant, ())
{
    const auto seconds = *rc::gen::inRange<qint64>(-100'000'000'000, 100'000'000'000);
    const auto part = *rc::gen::inRange(0, 1024);
    const Date date(double(seconds) + part / 1024.0);
    RC_ASSERT(date.wholeSecondsOfUnixTime() == seconds + reference);
}
