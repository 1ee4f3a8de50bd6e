#pragma once

#include <unistd.h>

/// Ends the process when a test that could wait for ever takes longer than it ever should.
class Watchdog
{
public:
    Watchdog() { alarm(20); }
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;
    ~Watchdog() { alarm(0); }
};
