#pragma once

#include <string>

/// Where dates are written: a locale and a time zone.
struct DateRegion
{
    std::string locale;   ///< name as Unicode's ICU knows it: "de_DE", "sr_Latn_RS"
    std::string timeZone; ///< name from the IANA time zone database, or an offset: "Europe/Berlin"

    /// The user's own, read from the environment at each call.
    static DateRegion current();
};
