#include "model/UserLocale.h"

#include <cstdlib>

namespace {

std::string_view environment(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
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
