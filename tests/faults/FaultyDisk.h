#pragma once

#include <ostream>
#include <string>
#include <vector>

/// The calls of the C library that work on files, by what they do.
enum class DiskCall { Open, Read, Write, Sync, Truncate, Link, Rename, Permissions, Status, Close };

/// How it is called in the message of a failed check.
const char *nameOf(DiskCall call);

inline std::ostream &operator<<(std::ostream &out, DiskCall call)
{
    return out << nameOf(call);
}

/// What goes wrong, and where.
struct DiskFault
{
    enum class Extent {
        Once,    ///< one call fails, the next one works again
        Lasting, ///< so does every later call that does the same
        Partial, ///< one call reads or writes some of the bytes only, and reports no error
        Midway   ///< the same, and every later call that does the same fails
    };

    std::size_t position; ///< of the call among all on the folder, from 0
    int error;            ///< as errno has it
    Extent extent;
};

std::ostream &operator<<(std::ostream &out, const DiskFault &fault);

/// Watches what this process does to files below a folder, for as long as this object lives, and
/// lets it fail at one place. It sees the calls of every library of the process: this library
/// stands before the C library wherever it is linked. For one thread, and one object at a time.
class FaultyDisk
{
public:
    /// All calls work.
    explicit FaultyDisk(std::string folder);
    FaultyDisk(std::string folder, DiskFault fault);
    FaultyDisk(const FaultyDisk &) = delete;
    FaultyDisk &operator=(const FaultyDisk &) = delete;
    ~FaultyDisk();

    /// The calls so far, in order.
    std::vector<DiskCall> calls() const;
};
