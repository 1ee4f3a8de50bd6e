#pragma once

#include <string>
#include <string_view>

/// The ICU name of the user's locale for a POSIX category, "LC_TIME" say: the first of LC_ALL, the
/// category itself and LANG that is set and not empty.
std::string userLocale(const char *category);

/// The ICU name of a POSIX locale such as "de_DE.UTF-8" or "sr_RS@latin". "C", "POSIX" and an
/// empty name give the neutral English locale.
std::string icuLocaleName(std::string_view posixName);
