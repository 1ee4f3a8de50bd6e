#include "model/DateRegion.h"

#include <unicode/timezone.h>
#include <unicode/unistr.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

std::string_view environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

/// ICU's name for a fixed offset from UTC: "GMT+09:00".
std::string nameOfOffset(int milliseconds)
{
    const int minutes = std::abs(milliseconds) / (60 * U_MILLIS_PER_SECOND);
    std::array<char, 16> name{};
    std::snprintf(name.data(), name.size(), "GMT%c%02d:%02d", milliseconds < 0 ? '-' : '+',
                  minutes / 60, minutes % 60);
    return name.data();
}

/// The zone's name or, where the environment describes one without a name ("JST-9"), its offset's.
std::string userTimeZone()
{
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
    icu::UnicodeString id;
    zone->getID(id);
    const std::unique_ptr<icu::TimeZone> named(icu::TimeZone::createTimeZone(id));
    if (*named == icu::TimeZone::getUnknown())
        return nameOfOffset(zone->getRawOffset());
    std::string name;
    return id.toUTF8String(name);
}

/// ICU names a script between language and country, where POSIX appends a modifier.
std::string_view scriptOfModifier(std::string_view modifier)
{
    if (modifier == "latin")
        return "_Latn";
    if (modifier == "cyrillic")
        return "_Cyrl";
    if (modifier == "devanagari")
        return "_Deva";
    return {};
}

} // namespace

DateRegion DateRegion::current()
{
    return {userLocale("LC_TIME"), userTimeZone()};
}

std::string userLocale(const char *category)
{
    for (const char *name : {"LC_ALL", category, "LANG"}) {
        if (const std::string_view value = environment(name); !value.empty())
            return icuLocaleName(value);
    }
    return icuLocaleName("C");
}

std::string icuLocaleName(std::string_view posixName)
{
    const std::string_view place = posixName.substr(0, posixName.find_first_of(".@"));
    if (place.empty() || place == "C" || place == "POSIX")
        return "en_US_POSIX";

    const std::size_t at = posixName.find('@');
    const std::string_view modifier =
        at == std::string_view::npos ? std::string_view() : posixName.substr(at + 1);
    const std::string_view language = place.substr(0, place.find('_'));
    std::string name(language);
    name += scriptOfModifier(modifier);
    name += place.substr(language.size());
    return name;
}
