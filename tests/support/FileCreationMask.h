#pragma once

#include <sys/stat.h>

/// The permissions that the process's new files do not get, for as long as this object lives.
class FileCreationMask
{
public:
    explicit FileCreationMask(mode_t mask)
        : m_before(umask(mask))
    {
    }

    FileCreationMask(const FileCreationMask &) = delete;
    FileCreationMask &operator=(const FileCreationMask &) = delete;

    ~FileCreationMask() { umask(m_before); }

private:
    mode_t m_before;
};
