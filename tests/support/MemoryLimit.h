#pragma once

#include <sys/resource.h>

#include <algorithm>
#include <stdexcept>

#if defined(__has_feature)
    #if __has_feature(address_sanitizer)
        #define TAVLO_ADDRESS_SANITIZER
    #endif
#endif

/// Keeps this process from mapping more than `bytes` of memory for as long as this object lives,
/// wherever the system would promise any amount. AddressSanitizer, which maps terabytes for itself,
/// has a limit of its own: a terabyte at once.
class MemoryLimit
{
public:
    explicit MemoryLimit([[maybe_unused]] rlim_t bytes)
    {
        getrlimit(RLIMIT_AS, &m_before);
#ifndef TAVLO_ADDRESS_SANITIZER
        const rlimit limit{std::min(bytes, m_before.rlim_max), m_before.rlim_max};
        if (setrlimit(RLIMIT_AS, &limit) != 0)
            throw std::runtime_error("memory cannot be limited");
#endif
    }

    MemoryLimit(const MemoryLimit &) = delete;
    MemoryLimit &operator=(const MemoryLimit &) = delete;

    ~MemoryLimit()
    {
        setrlimit(RLIMIT_AS, &m_before);
    }

private:
    rlimit m_before{};
};
