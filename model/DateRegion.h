#pragma once

#include <string>
#include <string_view>

/// Where dates are written: a locale and a time zone.
struct DateRegion
{
    std::string locale;   ///< name as Unicode's ICU knows it: "de_DE", "sr_Latn_RS"
    std::string timeZone; ///< name from the IANA time zone database: "Europe/Berlin"

    /// The user's own, read from the environment at each call: the locale for times, as POSIX has
    /// it (the first of LC_ALL, LC_TIME and LANG that is set and not empty), and the time zone.
    static DateRegion current();
};

/// The ICU name of a POSIX locale such as "de_DE.UTF-8" or "sr_RS@latin". "C", "POSIX" and an
/// empty name give the neutral English locale.
std::string icuLocaleName(std::string_view posixName);
