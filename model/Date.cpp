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
    // The calendars of Unicode's ICU end there; the bound keeps the conversion to an integer
    // defined. Floored before the sum: the sum of a fraction just below a second would round up.
    constexpr double furthest = 183'882'168'921'600.0;
    const double wholeSeconds = std::clamp(std::floor(m_seconds), -furthest, furthest);
    return static_cast<qint64>(wholeSeconds) + referenceDateInUnixTime;
}
