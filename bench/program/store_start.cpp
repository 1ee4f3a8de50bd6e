// Starts a store in the user's home, as the program does, and prints how many seconds its loading
// of the posts took by the clock.
#include "model/BlogViewModel.h"

#include <chrono>
#include <cstdio>

int main()
{
    const auto start = std::chrono::steady_clock::now();
    const auto store = BlogViewModel::create();
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    std::printf("%.9f\n", time.count());
    return 0;
}
