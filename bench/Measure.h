#pragma once

#include <ctime>

/// The processor time that the calling thread has had, in seconds: what else the machine does
/// counts little.
inline double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}
