#include "model/Date.h"

#include <algorithm>
#include <chrono>
#include <cmath>

Date Date::now()
{
    using namespace std::chrono;
    const auto sinceReference =
        system_clock::now().time_since_epoch() - seconds(referenceDateInUnixTime);
    return Date(duration<double>(sinceReference).count());
}

qint64 Date::wholeSecondsOfUnixTime() const
{
    if (std::isnan(m_seconds))
        return referenceDateInUnixTime;
    // The calendars of Unicode's ICU end there; the bounds keep the conversion to an integer
    // defined.
    constexpr double first = -184'303'902'528'000.0;
    constexpr double last = 183'882'168'921'600.0;
    // Floored before the sum: the sum of a fraction just below a second would round up.
    const double unixTime = std::floor(m_seconds) + double(referenceDateInUnixTime);
    return static_cast<qint64>(std::clamp(unixTime, first, last));
}
