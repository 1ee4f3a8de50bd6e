#include "model/LongDate.h"

#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/// 2026-01-05 21:03:07 UTC.
const Date eveningInJanuary(1767646987.0 - double(Date::referenceDateInUnixTime));

} // namespace

TEST(LongDate, isWrittenInTheLocalesLanguageCalendarAndDigits)
{
    const auto written = [](const char *locale) {
        return longDate(eveningInJanuary, {locale, "UTC"});
    };
    EXPECT_EQ(written("en_US"), u"January 5, 2026"_s);
    EXPECT_EQ(written("en_US_POSIX"), u"January 5, 2026"_s);
    EXPECT_EQ(written("en_GB"), u"5 January 2026"_s);
    EXPECT_EQ(written("de_DE"), u"5. Januar 2026"_s);
    EXPECT_EQ(written("ja_JP"), u"2026年1月5日"_s);
    EXPECT_EQ(written("ar_EG"), u"٥ يناير ٢٠٢٦"_s);
    // The Buddhist and the Persian calendar.
    EXPECT_EQ(written("th_TH"), u"5 มกราคม 2569"_s);
    EXPECT_EQ(written("fa_IR"), u"۱۵ دی ۱۴۰۴"_s);
    EXPECT_EQ(written("sr_Latn_RS"), u"5. januar 2026."_s);
    EXPECT_EQ(written("sr_RS"), u"5. јануар 2026."_s);
}

TEST(LongDate, isTheDayOfTheTimeZone)
{
    EXPECT_EQ(longDate(eveningInJanuary, {"en_US", "America/St_Johns"}), u"January 5, 2026"_s);
    EXPECT_EQ(longDate(eveningInJanuary, {"en_US", "Asia/Tokyo"}), u"January 6, 2026"_s);
    const Date reference;
    EXPECT_EQ(longDate(reference, {"en_US", "UTC"}), u"January 1, 2001"_s);
    EXPECT_EQ(longDate(reference, {"en_US", "America/New_York"}), u"December 31, 2000"_s);
}

TEST(LongDate, ofAMomentBeforeMidnight_isTheEarlierDay)
{
    EXPECT_EQ(longDate(Date(-1e-9), {"en_US", "UTC"}), u"December 31, 2000"_s);
    EXPECT_EQ(longDate(Date(-double(Date::referenceDateInUnixTime) - 0.5), {"en_US", "UTC"}),
              u"December 31, 1969"_s);
}

TEST(LongDate, ofAnyDouble_isSomeDate)
{
    using Limits = std::numeric_limits<double>;
    for (const char *locale :
         {"en_US", "ar_EG", "th_TH", "fa_IR", "ja_JP", "he_IL@calendar=hebrew"}) {
        for (const double seconds : {1e12, 1e15, 1e300, Limits::max(), Limits::infinity()}) {
            EXPECT_NE(longDate(Date(seconds), {locale, "Europe/Berlin"}), QString());
            EXPECT_NE(longDate(Date(-seconds), {locale, "Europe/Berlin"}), QString());
        }
        EXPECT_NE(longDate(Date(Limits::quiet_NaN()), {locale, "UTC"}), QString());
    }
    EXPECT_EQ(longDate(Date(1e300), {"en_US", "UTC"}), longDate(Date(1e20), {"en_US", "UTC"}));
    EXPECT_EQ(longDate(Date(Limits::quiet_NaN()), {"en_US", "UTC"}), u"January 1, 2001"_s);
}

TEST(LongDate, inAnUnknownTimeZone_isTheDayOfUniversalTime)
{
    EXPECT_EQ(longDate(eveningInJanuary, {"en_US", "No/Such_Zone"}), u"January 5, 2026"_s);
}
