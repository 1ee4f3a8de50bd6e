#pragma once

#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

/// Stops this process from writing a file beyond `bytes`, as a full disk would, for as long as
/// this object lives: writes fail with EFBIG. It works for root too.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handlerBefore(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
            throw std::runtime_error("the size of files cannot be limited");
    }

    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handlerBefore);
    }

private:
    using Handler = void (*)(int);

    Handler m_handlerBefore;
    rlimit m_before{};
};
