#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process unless `holds`: libFuzzer then keeps the input.
inline void check(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "This does not hold: %s\n", what);
    std::abort();
}
