#include "model/DateRegion.h"

#include "tests/support/EnvironmentVariable.h"

#include <gtest/gtest.h>

#include <ctime>
#include <ostream>

TEST(DateRegion, locale_isThatOfDatesAndReadFromTheEnvironmentAtEachCall)
{
    const EnvironmentVariable all("LC_ALL", {});
    const EnvironmentVariable messages("LC_MESSAGES", "de_DE.UTF-8");
    const EnvironmentVariable languages("LANGUAGE", "de:fr");
    const EnvironmentVariable time("LC_TIME", {});
    const EnvironmentVariable language("LANG", "th_TH.UTF-8");
    EXPECT_EQ(DateRegion::current().locale, "th_TH");
    time.set("ja_JP.UTF-8");
    EXPECT_EQ(DateRegion::current().locale, "ja_JP");
}

TEST(DateRegion, timeZone_isReadFromTheEnvironmentAtEachCall)
{
    const EnvironmentVariable zone("TZ", "Asia/Kathmandu");
    EXPECT_EQ(DateRegion::current().timeZone, "Asia/Kathmandu");
    zone.set("America/St_Johns");
    EXPECT_EQ(DateRegion::current().timeZone, "America/St_Johns");
    zone.set(":Europe/Berlin");
    EXPECT_EQ(DateRegion::current().timeZone, "Europe/Berlin");
    zone.set("UTC");
    EXPECT_EQ(DateRegion::current().timeZone, "UTC");
    zone.set("Etc/GMT+3"); // three hours west of Greenwich
    EXPECT_EQ(DateRegion::current().timeZone, "Etc/GMT+3");
}

namespace {

struct UnnamedZone
{
    const char *description;
    const char *offset;

    // NOLINTNEXTLINE(readability-identifier-naming): the name is GoogleTest's.
    friend void PrintTo(const UnnamedZone &zone, std::ostream *out) { *out << zone.description; }
};

class UnnamedZones : public testing::TestWithParam<UnnamedZone>
{
};

} // namespace

TEST_P(UnnamedZones, haveTheOffsetThatTheSystemsClockShows)
{
    const EnvironmentVariable zone("TZ", GetParam().description);
    EXPECT_EQ(DateRegion::current().timeZone, GetParam().offset);
}

// POSIX counts its offsets westwards.
INSTANTIATE_TEST_SUITE_P(
    Descriptions, UnnamedZones,
    testing::Values(UnnamedZone{"JST-9", "GMT+09:00"}, UnnamedZone{"XYZ4", "GMT-04:00"},
                    UnnamedZone{"<+03>-3", "GMT+03:00"}, UnnamedZone{"<+0530>-5:30", "GMT+05:30"},
                    UnnamedZone{"<-0930>9:30", "GMT-09:30"}, UnnamedZone{"GMT+3", "GMT-03:00"},
                    UnnamedZone{"", "GMT+00:00"}));

TEST(DateRegion, timeZone_ofADescriptionWithDaylightSaving_isItsPresentOffset)
{
    const EnvironmentVariable zone("TZ", "CET-1CEST,M3.5.0,M10.5.0/3");
    const std::string timeZone = DateRegion::current().timeZone;
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    EXPECT_EQ(timeZone, local.tm_isdst > 0 ? "GMT+02:00" : "GMT+01:00");
}
