#include "tests/faults/FaultyDisk.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <optional>
#include <stdexcept>
#include <utility>

namespace {

using Extent = DiskFault::Extent;

struct Watch
{
    std::string folder;
    std::optional<DiskFault> fault;
    std::vector<DiskCall> calls;
};

std::optional<Watch> watch; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void begin(std::string folder, std::optional<DiskFault> fault)
{
    if (watch)
        throw std::logic_error("the disk is watched already");
    watch = Watch{std::move(folder), fault, {}};
}

bool isWatched(const char *path)
{
    return watch && path && std::strncmp(path, watch->folder.c_str(), watch->folder.size()) == 0;
}

bool isWatched(int file)
{
    if (!watch)
        return false;
    char path[PATH_MAX] = {};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    // Not by the function of that name, which is one of those below.
    return syscall(SYS_readlink, link.c_str(), path, sizeof path - 1) > 0 && isWatched(path);
}

/// Of a file named from a folder: by the file's path or, for an empty one, the descriptor.
bool isWatched(int folder, const char *path)
{
    return path && *path ? isWatched(path) : isWatched(folder);
}

/// What is to become of a call that is now made.
enum class Outcome { Success, Part, Failure };

/// Counts a call, and says what is to become of it.
Outcome outcomeOf(DiskCall call)
{
    const std::size_t position = watch->calls.size();
    watch->calls.push_back(call);
    if (!watch->fault || position < watch->fault->position)
        return Outcome::Success;
    const DiskFault &fault = *watch->fault;
    const bool partFirst = fault.extent == Extent::Partial || fault.extent == Extent::Midway;
    if (position == fault.position)
        return partFirst ? Outcome::Part : Outcome::Failure;
    const bool lasts = fault.extent == Extent::Lasting || fault.extent == Extent::Midway;
    return lasts && call == watch->calls[fault.position] ? Outcome::Failure : Outcome::Success;
}

int failure()
{
    errno = watch->fault->error;
    return -1;
}

template <typename Function>
Function *behind(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

/// Carries a call out, unless it is one on a watched file and is to fail.
template <typename Function, typename... Arguments>
auto carriedOut(Function *function, DiskCall call, bool watched, Arguments... arguments)
{
    using Result = decltype(function(arguments...));
    return watched && outcomeOf(call) == Outcome::Failure ? Result(failure())
                                                          : function(arguments...);
}

/// The same for a call that moves a number of bytes.
template <typename Function, typename... Place>
ssize_t moved(Function *function, DiskCall call, int file, auto *bytes, std::size_t size,
              Place... place)
{
    const Outcome outcome = isWatched(file) ? outcomeOf(call) : Outcome::Success;
    if (outcome == Outcome::Failure)
        return failure();
    const std::size_t part = std::max<std::size_t>(size / 2, std::min<std::size_t>(size, 1));
    return function(file, bytes, outcome == Outcome::Part ? part : size, place...);
}

/// And for one that has its bytes in several pieces, of which a part is the first.
template <typename Function>
ssize_t gathered(Function *function, DiskCall call, int file, const iovec *pieces, int count)
{
    const Outcome outcome = isWatched(file) ? outcomeOf(call) : Outcome::Success;
    if (outcome == Outcome::Failure)
        return failure();
    return function(file, pieces, outcome == Outcome::Part ? std::min(count, 1) : count);
}

/// The permissions of a file that is opened, given only where it may be made.
mode_t permissionsOf(int flags, va_list rest)
{
    return (flags & O_CREAT) || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;
}

} // namespace

const char *nameOf(DiskCall call)
{
    switch (call) {
    case DiskCall::Open:
        return "open";
    case DiskCall::Read:
        return "read";
    case DiskCall::Write:
        return "write";
    case DiskCall::Sync:
        return "sync";
    case DiskCall::Truncate:
        return "truncate";
    case DiskCall::Link:
        return "link";
    case DiskCall::Rename:
        return "rename";
    case DiskCall::Permissions:
        return "permissions";
    case DiskCall::Status:
        return "status";
    case DiskCall::Close:
        return "close";
    }
    return "unknown";
}

std::ostream &operator<<(std::ostream &out, const DiskFault &fault)
{
    static constexpr const char *extents[] = {"once", "lasting", "partly", "midway"};
    return out << strerrorname_np(fault.error) << ' ' << extents[int(fault.extent)] << " at call "
               << fault.position;
}

FaultyDisk::FaultyDisk(std::string folder)
{
    begin(std::move(folder), std::nullopt);
}

FaultyDisk::FaultyDisk(std::string folder, DiskFault fault)
{
    begin(std::move(folder), fault);
}

FaultyDisk::~FaultyDisk()
{
    watch.reset();
}

std::vector<DiskCall> FaultyDisk::calls() const
{
    return watch->calls;
}

// The calls themselves, under every name that the C library has for them.
// NOLINTBEGIN(readability-identifier-naming, cert-dcl50-cpp)
extern "C" {

int open(const char *path, int flags, ...)
{
    static const auto function = behind<decltype(open)>("open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = permissionsOf(flags, rest);
    va_end(rest);
    return carriedOut(function, DiskCall::Open, isWatched(path), path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    static const auto function = behind<decltype(open64)>("open64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = permissionsOf(flags, rest);
    va_end(rest);
    return carriedOut(function, DiskCall::Open, isWatched(path), path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    static const auto function = behind<decltype(openat)>("openat");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = permissionsOf(flags, rest);
    va_end(rest);
    return carriedOut(function, DiskCall::Open, isWatched(folder, path), folder, path, flags, mode);
}

int openat64(int folder, const char *path, int flags, ...)
{
    static const auto function = behind<decltype(openat64)>("openat64");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = permissionsOf(flags, rest);
    va_end(rest);
    return carriedOut(function, DiskCall::Open, isWatched(folder, path), folder, path, flags, mode);
}

int creat(const char *path, mode_t mode)
{
    static const auto function = behind<decltype(creat)>("creat");
    return carriedOut(function, DiskCall::Open, isWatched(path), path, mode);
}

int creat64(const char *path, mode_t mode)
{
    static const auto function = behind<decltype(creat64)>("creat64");
    return carriedOut(function, DiskCall::Open, isWatched(path), path, mode);
}

/// A descriptor is gone whatever its close reports.
int close(int file)
{
    static const auto function = behind<decltype(close)>("close");
    const bool fails = isWatched(file) && outcomeOf(DiskCall::Close) == Outcome::Failure;
    const int result = function(file);
    return fails ? failure() : result;
}

ssize_t read(int file, void *bytes, size_t size)
{
    static const auto function = behind<decltype(read)>("read");
    return moved(function, DiskCall::Read, file, bytes, size);
}

ssize_t pread(int file, void *bytes, size_t size, off_t place)
{
    static const auto function = behind<decltype(pread)>("pread");
    return moved(function, DiskCall::Read, file, bytes, size, place);
}

ssize_t pread64(int file, void *bytes, size_t size, off64_t place)
{
    static const auto function = behind<decltype(pread64)>("pread64");
    return moved(function, DiskCall::Read, file, bytes, size, place);
}

ssize_t readv(int file, const iovec *pieces, int count)
{
    static const auto function = behind<decltype(readv)>("readv");
    return gathered(function, DiskCall::Read, file, pieces, count);
}

ssize_t write(int file, const void *bytes, size_t size)
{
    static const auto function = behind<decltype(write)>("write");
    return moved(function, DiskCall::Write, file, bytes, size);
}

ssize_t pwrite(int file, const void *bytes, size_t size, off_t place)
{
    static const auto function = behind<decltype(pwrite)>("pwrite");
    return moved(function, DiskCall::Write, file, bytes, size, place);
}

ssize_t pwrite64(int file, const void *bytes, size_t size, off64_t place)
{
    static const auto function = behind<decltype(pwrite64)>("pwrite64");
    return moved(function, DiskCall::Write, file, bytes, size, place);
}

ssize_t writev(int file, const iovec *pieces, int count)
{
    static const auto function = behind<decltype(writev)>("writev");
    return gathered(function, DiskCall::Write, file, pieces, count);
}

int fsync(int file)
{
    static const auto function = behind<decltype(fsync)>("fsync");
    return carriedOut(function, DiskCall::Sync, isWatched(file), file);
}

int fdatasync(int file)
{
    static const auto function = behind<decltype(fdatasync)>("fdatasync");
    return carriedOut(function, DiskCall::Sync, isWatched(file), file);
}

int ftruncate(int file, off_t size) noexcept
{
    static const auto function = behind<decltype(ftruncate)>("ftruncate");
    return carriedOut(function, DiskCall::Truncate, isWatched(file), file, size);
}

int ftruncate64(int file, off64_t size) noexcept
{
    static const auto function = behind<decltype(ftruncate64)>("ftruncate64");
    return carriedOut(function, DiskCall::Truncate, isWatched(file), file, size);
}

int link(const char *from, const char *to) noexcept
{
    static const auto function = behind<decltype(link)>("link");
    return carriedOut(function, DiskCall::Link, isWatched(to), from, to);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    static const auto function = behind<decltype(linkat)>("linkat");
    return carriedOut(function, DiskCall::Link, isWatched(to), fromFolder, from, toFolder, to,
                      flags);
}

int rename(const char *from, const char *to) noexcept
{
    static const auto function = behind<decltype(rename)>("rename");
    return carriedOut(function, DiskCall::Rename, isWatched(to), from, to);
}

int renameat(int fromFolder, const char *from, int toFolder, const char *to) noexcept
{
    static const auto function = behind<decltype(renameat)>("renameat");
    return carriedOut(function, DiskCall::Rename, isWatched(to), fromFolder, from, toFolder, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    static const auto function = behind<decltype(renameat2)>("renameat2");
    return carriedOut(function, DiskCall::Rename, isWatched(to), fromFolder, from, toFolder, to,
                      flags);
}

int chmod(const char *path, mode_t mode) noexcept
{
    static const auto function = behind<decltype(chmod)>("chmod");
    return carriedOut(function, DiskCall::Permissions, isWatched(path), path, mode);
}

int fchmod(int file, mode_t mode) noexcept
{
    static const auto function = behind<decltype(fchmod)>("fchmod");
    return carriedOut(function, DiskCall::Permissions, isWatched(file), file, mode);
}

int stat(const char *path, struct stat *status) noexcept
{
    static const auto function = behind<int(const char *, struct stat *)>("stat");
    return carriedOut(function, DiskCall::Status, isWatched(path), path, status);
}

int stat64(const char *path, struct stat64 *status) noexcept
{
    static const auto function = behind<int(const char *, struct stat64 *)>("stat64");
    return carriedOut(function, DiskCall::Status, isWatched(path), path, status);
}

int lstat(const char *path, struct stat *status) noexcept
{
    static const auto function = behind<int(const char *, struct stat *)>("lstat");
    return carriedOut(function, DiskCall::Status, isWatched(path), path, status);
}

int lstat64(const char *path, struct stat64 *status) noexcept
{
    static const auto function = behind<int(const char *, struct stat64 *)>("lstat64");
    return carriedOut(function, DiskCall::Status, isWatched(path), path, status);
}

int fstat(int file, struct stat *status) noexcept
{
    static const auto function = behind<int(int, struct stat *)>("fstat");
    return carriedOut(function, DiskCall::Status, isWatched(file), file, status);
}

int fstat64(int file, struct stat64 *status) noexcept
{
    static const auto function = behind<int(int, struct stat64 *)>("fstat64");
    return carriedOut(function, DiskCall::Status, isWatched(file), file, status);
}

int statx(int folder, const char *path, int flags, unsigned mask, struct statx *status) noexcept
{
    static const auto function =
        behind<int(int, const char *, int, unsigned, struct statx *)>("statx");
    return carriedOut(function, DiskCall::Status, isWatched(folder, path), folder, path, flags,
                      mask, status);
}

int access(const char *path, int kind) noexcept
{
    static const auto function = behind<decltype(access)>("access");
    return carriedOut(function, DiskCall::Status, isWatched(path), path, kind);
}

ssize_t readlink(const char *path, char *target, size_t size) noexcept
{
    static const auto function = behind<decltype(readlink)>("readlink");
    return carriedOut(function, DiskCall::Status, isWatched(path), path, target, size);
}

} // extern "C"
// NOLINTEND(readability-identifier-naming, cert-dcl50-cpp)
