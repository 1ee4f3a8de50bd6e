#pragma once

#include "model/Date.h"
#include "model/DateRegion.h"

#include <unicode/basictz.h>
#include <unicode/smpdtfmt.h>

#include <array>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>

/// Writes dates as a feed has them, "Mon, 5 Jan 2026 09:03:07 +0000": the pattern
/// "E, d MMM yyyy HH:mm:ss Z" of UTS #35 in a region's language, calendar, digits and time zone.
///
/// Made once for a document, and not kept between two. ICU's formatter costs more than all the rest
/// of a post, so a document's dates are put together from pieces that it has written before: the
/// day, the two-digit numbers, and the zone.
class FeedDateFormatter
{
public:
    explicit FeedDateFormatter(const DateRegion &region);

    /// The date in UTF-8. Fractions of a second are dropped; the zone is always a sign and four
    /// digits. A date that no calendar reaches is written as the nearest one that it does.
    std::string format(Date date);

private:
    /// A stretch of time in which the zone keeps one offset from UTC, in seconds of Unix time.
    struct Offset
    {
        qint64 end = 0; ///< the first second that is not in it any more
        qint64 seconds = 0;
        std::string text; ///< a blank, a sign and four digits
    };

    const Offset &offsetAt(qint64 unixTime);
    const std::string &textOfDay(qint64 daysOfUnixTime);
    std::string formatWhole(qint64 unixTime) const;

    std::unique_ptr<icu::SimpleDateFormat> m_whole;
    std::unique_ptr<icu::SimpleDateFormat> m_day; ///< the pattern's date, in UTC
    std::unique_ptr<icu::BasicTimeZone> m_zone;
    std::array<std::string, 60> m_twoDigits;
    std::unordered_map<qint64, std::string> m_days;
    std::map<qint64, Offset> m_offsets; ///< by the first second
};
