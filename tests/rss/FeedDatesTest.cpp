// How a feed writes dates: languages, calendars, digits, zones, and instants at every edge.
#include "rss/FeedDateFormatter.h"
#include "rss/RSSFeedWriter.h"
#include "tests/rss/FeedSamples.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <unicode/basictz.h>
#include <unicode/tztrans.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <regex>

namespace {

std::string written(Date date, const DateRegion &region = neutralRegion)
{
    return FeedDateFormatter(region).format(date);
}

} // namespace

struct WrittenDate
{
    const char *locale;
    const char *timeZone;
    const char *instant;
    const char *text;

    friend std::ostream &operator<<(std::ostream &out, const WrittenDate &date)
    {
        return out << date.instant << " in " << date.locale << ", " << date.timeZone;
    }
};

class FeedDates : public testing::TestWithParam<WrittenDate>
{
};

TEST_P(FeedDates, anInstant_isWrittenAsItsRegionWritesIt)
{
    const WrittenDate &date = GetParam();
    EXPECT_EQ(written(instant(date.instant), {date.locale, date.timeZone}), date.text);
}

INSTANTIATE_TEST_SUITE_P(
    LanguagesCalendarsAndDigits, FeedDates,
    testing::Values(
        WrittenDate{"en_US_POSIX", "UTC", "2026-01-05T09:03:07Z", "Mon, 5 Jan 2026 09:03:07 +0000"},
        WrittenDate{"en_US", "UTC", "2026-02-14T18:30:00Z", "Sat, 14 Feb 2026 18:30:00 +0000"},
        WrittenDate{"de_DE", "UTC", "2026-01-05T09:03:07Z", "Mo., 5 Jan. 2026 09:03:07 +0000"},
        WrittenDate{"de_DE", "UTC", "2026-05-05T09:03:07Z", "Di., 5 Mai 2026 09:03:07 +0000"},
        WrittenDate{"ja_JP", "UTC", "2026-01-05T09:03:07Z", "月, 5 1月 2026 09:03:07 +0000"},
        WrittenDate{"ar_EG", "UTC", "2026-01-05T09:03:07Z", "الاثنين, ٥ يناير ٢٠٢٦ ٠٩:٠٣:٠٧ +0000"},
        // The Buddhist year is 543 ahead.
        WrittenDate{"th_TH", "UTC", "2026-01-05T09:03:07Z", "จ., 5 ม.ค. 2569 09:03:07 +0000"},
        // The Persian year begins at the equinox of March: 5 January is 15 Dey.
        WrittenDate{"fa_IR", "UTC", "2026-01-05T09:03:07Z", "دوشنبه, ۱۵ دی ۱۴۰۴ ۰۹:۰۳:۰۷ +0000"}));

INSTANTIATE_TEST_SUITE_P(
    TimeZones, FeedDates,
    testing::Values(WrittenDate{"en_US", "America/St_Johns", "2026-01-05T09:03:07Z",
                                "Mon, 5 Jan 2026 05:33:07 -0330"},
                    WrittenDate{"en_US", "Asia/Kathmandu", "2026-01-05T09:03:07Z",
                                "Mon, 5 Jan 2026 14:48:07 +0545"},
                    WrittenDate{"en_US", "Asia/Kolkata", "2026-01-05T20:03:07Z",
                                "Tue, 6 Jan 2026 01:33:07 +0530"},
                    WrittenDate{"en_US", "America/Los_Angeles", "2026-01-01T07:59:59Z",
                                "Wed, 31 Dec 2025 23:59:59 -0800"},
                    WrittenDate{"en_US", "Pacific/Kiritimati", "2025-12-31T10:00:00Z",
                                "Thu, 1 Jan 2026 00:00:00 +1400"},
                    // The second before and after the clocks change.
                    WrittenDate{"en_US", "Europe/Berlin", "2026-03-29T00:59:59Z",
                                "Sun, 29 Mar 2026 01:59:59 +0100"},
                    WrittenDate{"en_US", "Europe/Berlin", "2026-03-29T01:00:00Z",
                                "Sun, 29 Mar 2026 03:00:00 +0200"},
                    // The repeated hour of autumn.
                    WrittenDate{"en_US", "Europe/Berlin", "2026-10-25T00:30:00Z",
                                "Sun, 25 Oct 2026 02:30:00 +0200"},
                    WrittenDate{"en_US", "Europe/Berlin", "2026-10-25T01:30:00Z",
                                "Sun, 25 Oct 2026 02:30:00 +0100"},
                    // A change of half an hour.
                    WrittenDate{"en_US", "Australia/Lord_Howe", "2026-01-05T00:00:00Z",
                                "Mon, 5 Jan 2026 11:00:00 +1100"},
                    WrittenDate{"en_US", "Australia/Lord_Howe", "2026-07-05T00:00:00Z",
                                "Sun, 5 Jul 2026 10:30:00 +1030"},
                    // Local mean times: 53 minutes 28 seconds east, 44 minutes 30 seconds west.
                    WrittenDate{"en_US", "Europe/Berlin", "1880-01-01T00:00:00Z",
                                "Thu, 1 Jan 1880 00:53:28 +0053"},
                    WrittenDate{"en_US", "Africa/Monrovia", "1960-01-01T00:44:30Z",
                                "Fri, 1 Jan 1960 00:00:00 -0044"}));

INSTANTIATE_TEST_SUITE_P(
    YearsAndFractions, FeedDates,
    testing::Values(
        WrittenDate{"en_US", "UTC", "1969-12-31T23:59:59.750Z", "Wed, 31 Dec 1969 23:59:59 +0000"},
        WrittenDate{"en_US", "UTC", "1969-12-31T23:59:58.250Z", "Wed, 31 Dec 1969 23:59:58 +0000"},
        WrittenDate{"en_US", "UTC", "1970-01-01T00:00:00.999Z", "Thu, 1 Jan 1970 00:00:00 +0000"},
        WrittenDate{"en_US", "UTC", "2000-12-31T23:59:59.999Z", "Sun, 31 Dec 2000 23:59:59 +0000"},
        WrittenDate{"en_US", "UTC", "2001-01-01T00:00:00.001Z", "Mon, 1 Jan 2001 00:00:00 +0000"},
        WrittenDate{"en_US", "UTC", "0900-06-01T00:00:00Z", "Tue, 27 May 0900 00:00:00 +0000"},
        WrittenDate{"en_US", "UTC", "9999-12-31T23:59:59Z", "Fri, 31 Dec 9999 23:59:59 +0000"}));

TEST(FeedDate, justBelowAWholeSecond_isWrittenAsTheSecondBefore)
{
    const double second = instant("2026-01-05T09:03:07Z").secondsSinceReferenceDate();
    EXPECT_EQ(written(Date(std::nextafter(second, 0.0))), "Mon, 5 Jan 2026 09:03:06 +0000");
    EXPECT_EQ(written(Date(std::nextafter(second, 1e300))), "Mon, 5 Jan 2026 09:03:07 +0000");
    EXPECT_EQ(written(Date(std::nextafter(1.0, 0.0))), "Mon, 1 Jan 2001 00:00:00 +0000");
    const double smallest = std::numeric_limits<double>::denorm_min();
    EXPECT_EQ(written(Date(-smallest)), "Sun, 31 Dec 2000 23:59:59 +0000");
    EXPECT_EQ(written(Date(smallest)), "Mon, 1 Jan 2001 00:00:00 +0000");
    EXPECT_EQ(written(Date(-0.0)), "Mon, 1 Jan 2001 00:00:00 +0000");
}

TEST(FeedDate, thatNoCalendarReaches_isWrittenAsTheNearestOneReached)
{
    const double largest = std::numeric_limits<double>::max();
    const double infinity = std::numeric_limits<double>::infinity();
    // The first and the last day of ICU's calendars.
    const double first = -184'303'902'528'000.0 - double(Date::referenceDateInUnixTime);
    const double last = 183'882'168'921'600.0 - double(Date::referenceDateInUnixTime);
    EXPECT_NE(written(Date(first)), written(Date(first + 86400)));
    EXPECT_NE(written(Date(last)), written(Date(last - 86400)));
    for (const double seconds : {1e15, 1e300, largest, infinity}) {
        EXPECT_EQ(written(Date(seconds)), written(Date(last))) << seconds;
        EXPECT_EQ(written(Date(-seconds)), written(Date(first))) << seconds;
    }
}

TEST(FeedDate, thatIsNoNumber_isWrittenAsTheReferenceDate)
{
    EXPECT_EQ(written(Date(std::numeric_limits<double>::quiet_NaN())),
              "Mon, 1 Jan 2001 00:00:00 +0000");
}

TEST(FeedDate, atTheEndsOfTime_isStillADateInEveryCalendar)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const char *locale : {"en_US", "ar_EG", "ar_SA", "fa_IR", "he_IL@calendar=hebrew", "ja_JP",
                               "ja_JP@calendar=japanese", "th_TH", "zh_CN@calendar=chinese"}) {
        for (const double seconds : {1e300, -1e300, infinity, -infinity, 1e15, -1e15}) {
            const std::string text = written(Date(seconds), {locale, "Asia/Kathmandu"});
            EXPECT_TRUE(std::regex_search(text, std::regex(" [+-][0-9]{4}$"))) << text;
        }
    }
}

TEST(FeedDate, ofAnUnknownRegion_isWrittenAllTheSame)
{
    const Date date = instant("2026-01-05T09:03:07Z");
    EXPECT_EQ(written(date, {"en_US", "Nowhere/Atall"}), "Mon, 5 Jan 2026 09:03:07 +0000");
    const std::string text = written(date, {"xx_YY", "UTC"});
    EXPECT_TRUE(text.ends_with(" 2026 09:03:07 +0000")) << text;
}

TEST(FeedDate, onBothSidesOfAClockChange_carriesBothOffsetsInOneDocument)
{
    const BlogPosts posts{postTitled({}, instant("2026-01-15T12:00:00Z")),
                          postTitled({}, instant("2026-07-15T12:00:00Z")),
                          postTitled({}, instant("2026-12-15T12:00:00Z"))};
    const QByteArray feed = feedOfPosts({}, posts, {"en_GB", "Europe/Berlin"});
    EXPECT_EQ(feed.count("<pubDate>Thu, 15 Jan 2026 13:00:00 +0100</pubDate>"), 1);
    EXPECT_EQ(feed.count("<pubDate>Wed, 15 Jul 2026 14:00:00 +0200</pubDate>"), 1);
    EXPECT_EQ(feed.count("<pubDate>Tue, 15 Dec 2026 13:00:00 +0100</pubDate>"), 1);
}

namespace {

const std::vector<const char *> locales{
    "en_US_POSIX", "en_GB",      "de_DE", "fr_FR",  "es_ES", "ja_JP", "zh_CN", "ko_KR", "ru_RU",
    "ar_EG",       "ar_SA",      "fa_IR", "th_TH",  "he_IL", "hi_IN", "bn_BD", "my_MM", "am_ET",
    "sr_Latn_RS",  "uz_Cyrl_UZ", "ps_AF", "ckb_IQ", "mr_IN", "ne_NP", "vi_VN"};

const std::vector<const char *> timeZones{
    "UTC",          "Europe/Berlin",       "Europe/London",       "Europe/Dublin",
    "Africa/Cairo", "Africa/Casablanca",   "Africa/Monrovia",     "America/St_Johns",
    "America/Lima", "America/New_York",    "America/Los_Angeles", "America/Sao_Paulo",
    "Asia/Tehran",  "Asia/Kathmandu",      "Asia/Kolkata",        "Asia/Tokyo",
    "Asia/Gaza",    "Australia/Lord_Howe", "Pacific/Apia",        "Pacific/Chatham",
    "Asia/Manila",  "Antarctica/Troll",    "Etc/GMT+12"};

/// The same pattern by plain calls of ICU.
class PlainFormat
{
public:
    explicit PlainFormat(const DateRegion &region)
        : m_format(u"E, d MMM yyyy HH:mm:ss Z", icu::Locale(region.locale.c_str()), m_status)
    {
        m_format.adoptTimeZone(
            icu::TimeZone::createTimeZone(icu::UnicodeString::fromUTF8(region.timeZone)));
    }

    std::string operator()(double secondsSinceReferenceDate) const
    {
        const double unixSeconds = std::floor(secondsSinceReferenceDate) + 978'307'200;
        icu::UnicodeString text;
        m_format.format(unixSeconds * 1000, text);
        std::string utf8;
        return withZoneOfFourDigits(text.toUTF8String(utf8));
    }

    /// Seconds since the reference date at which the zone's offset changes, up to the year 2100.
    std::vector<qint64> clockChanges() const
    {
        std::vector<qint64> changes;
        const auto &zone = dynamic_cast<const icu::BasicTimeZone &>(m_format.getTimeZone());
        icu::TimeZoneTransition change;
        double after = -1e13;
        while (zone.getNextTransition(after, UBool(false), change) && change.getTime() < 4.1e12) {
            after = change.getTime();
            changes.push_back(qint64(after / 1000) - 978'307'200);
        }
        return changes;
    }

private:
    /// Without the seconds that stand behind the four digits of an old local time's offset.
    static std::string withZoneOfFourDigits(const std::string &date)
    {
        static const std::regex secondsOfOffset("([+-][0-9]{4})[0-9]{2}$");
        return std::regex_replace(date, secondsOfOffset, "$1");
    }

    UErrorCode m_status = U_ZERO_ERROR;
    icu::SimpleDateFormat m_format;
};

constexpr qint64 year = 31'556'952;

/// Up to so many seconds either way, to the millisecond.
rc::Gen<double> secondsUpTo(qint64 most)
{
    return rc::gen::map(rc::gen::inRange<qint64>(-most * 1000, most * 1000 + 1),
                        [](qint64 milliseconds) { return double(milliseconds) / 1000; });
}

/// Up to two seconds from one of these instants.
rc::Gen<double> near(rc::Gen<qint64> instants)
{
    return rc::gen::map(rc::gen::pair(std::move(instants), secondsUpTo(2)),
                        [](const auto &parts) { return double(parts.first) + parts.second; });
}

/// Seconds since the reference date: of our time, of time zones' history, of all recorded time and
/// beyond; around quarters of an hour, which every zone's midnight is in our time, and around the
/// zone's own clock changes.
rc::Gen<double> anySeconds(const std::vector<qint64> &clockChanges)
{
    const auto quarters = rc::gen::map(rc::gen::inRange<qint64>(-4'000'000, 4'000'000),
                                       [](qint64 quarter) { return quarter * 900; });
    const auto changes =
        clockChanges.empty() ? rc::gen::just<qint64>(0) : rc::gen::elementOf(clockChanges);
    const auto all = rc::gen::weightedOneOf<double>({{3, secondsUpTo(40 * year)},
                                                     {3, secondsUpTo(250 * year)},
                                                     {1, secondsUpTo(9000 * year)},
                                                     {2, near(quarters)},
                                                     {3, near(changes)}});
    // The whole of each range from the first run on.
    return rc::gen::resize(rc::kNominalSize, all);
}

} // namespace

RC_GTEST_PROP(FeedDate, isWhatThePatternsOwnEngineWrites, ())
{
    const DateRegion region{*rc::gen::elementOf(locales), *rc::gen::elementOf(timeZones)};
    const PlainFormat plain(region);
    const auto dates =
        *rc::gen::container<std::vector<double>>(200, anySeconds(plain.clockChanges()));
    // One formatter for all: no date may depend on the one before.
    FeedDateFormatter formatter(region);
    for (const double date : dates)
        RC_ASSERT(formatter.format(Date(date)) == plain(date));
}

TEST(FeedDate, inEveryLocaleAndZone_isWhatThePatternsOwnEngineWrites)
{
    for (const char *locale : locales) {
        for (const char *timeZone : timeZones) {
            const DateRegion region{locale, timeZone};
            const PlainFormat plain(region);
            FeedDateFormatter formatter(region);
            for (qint64 date = -250 * year; date < 250 * year; date += 7 * year + year / 3)
                ASSERT_EQ(formatter.format(Date(double(date))), plain(double(date)))
                    << locale << ' ' << timeZone;
        }
    }
}
