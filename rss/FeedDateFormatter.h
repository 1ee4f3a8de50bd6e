#pragma once

#include "model/Date.h"
#include "model/DateRegion.h"

#include <unicode/smpdtfmt.h>

#include <memory>
#include <string>

/// Writes dates as a feed has them, "Mon, 5 Jan 2026 09:03:07 +0000": the pattern
/// "E, d MMM yyyy HH:mm:ss Z" of UTS #35 in a region's language, calendar, digits and time zone.
///
/// Made once for a document, and not kept between two.
class FeedDateFormatter
{
public:
    explicit FeedDateFormatter(const DateRegion &region);

    /// The date in UTF-8. Fractions of a second are dropped; the zone is always a sign and four
    /// digits. A date that no calendar reaches is written as the nearest one that it does.
    std::string format(Date date) const;

private:
    std::unique_ptr<icu::SimpleDateFormat> m_format;
};
