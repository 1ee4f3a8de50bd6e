#include "model/DateRegion.h"

#include "model/UserLocale.h"

#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <memory>
#include <string_view>

namespace {

/// The offset from UTC that the system's clock shows now, in minutes.
long minutesFromUtcNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    tzset();
    localtime_r(&now, &local);
    return local.tm_gmtoff / 60;
}

/// ICU's name for a fixed offset from UTC: "GMT+09:00".
std::string nameOfOffset(long minutes)
{
    std::array<char, 32> name{};
    std::snprintf(name.data(), name.size(), "GMT%c%02ld:%02ld", minutes < 0 ? '-' : '+',
                  std::labs(minutes) / 60, std::labs(minutes) % 60);
    return name.data();
}

/// Whether the IANA time zone database has a zone of this name.
bool isInDatabase(const icu::UnicodeString &name)
{
    icu::UnicodeString canonicalName;
    UBool isInDatabase = false;
    UErrorCode status = U_ZERO_ERROR;
    icu::TimeZone::getCanonicalID(name, canonicalName, isInDatabase, status);
    return U_SUCCESS(status) && isInDatabase;
}

/// The zone's name. One that TZ describes and does not name ("JST-9", "<+0530>-5:30") is known by
/// its present offset: ICU passes it over and gives the system's own, or takes its sign for the
/// opposite one.
std::string userTimeZone()
{
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString id;
    std::string name;
    zone->getID(id).toUTF8String(name);

    const char *const asked = std::getenv("TZ");
    const bool isNamed = isInDatabase(id) && (!asked || std::string_view(asked).ends_with(name));
    return isNamed ? name : nameOfOffset(minutesFromUtcNow());
}

} // namespace

DateRegion DateRegion::current()
{
    return {userLocale("LC_TIME"), userTimeZone()};
}
