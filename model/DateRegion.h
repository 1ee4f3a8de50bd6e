#pragma once

#include <string>
#include <string_view>

/// Where dates are written: a locale and a time zone.
struct DateRegion
{
    std::string locale;   ///< name as Unicode's ICU knows it: "de_DE", "sr_Latn_RS"
    std::string timeZone; ///< name from the IANA time zone database: "Europe/Berlin"

    /// The user's own, read from the environment at each call.
    static DateRegion current();
};

/// The ICU name of the user's locale for a POSIX category, "LC_TIME" say: the first of LC_ALL, the
/// category itself and LANG that is set and not empty.
std::string userLocale(const char *category);

/// The ICU name of a POSIX locale such as "de_DE.UTF-8" or "sr_RS@latin". "C", "POSIX" and an
/// empty name give the neutral English locale.
std::string icuLocaleName(std::string_view posixName);
