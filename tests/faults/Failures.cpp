#include "tests/faults/Failures.h"

#include <cerrno>

namespace {

using Extent = DiskFault::Extent;

bool movesBytes(DiskCall call)
{
    return call == DiskCall::Read || call == DiskCall::Write;
}

std::vector<int> errorsOf(DiskCall call)
{
    switch (call) {
    case DiskCall::Open:
        return {ENOSPC, EIO, EMFILE, ENFILE, EDQUOT, EACCES, EROFS, ENOMEM};
    case DiskCall::Read:
        return {EIO};
    case DiskCall::Write:
        return {ENOSPC, EIO, EDQUOT, EFBIG};
    case DiskCall::Sync:
    case DiskCall::Close:
        return {ENOSPC, EIO, EDQUOT};
    case DiskCall::Truncate:
        return {EIO, EPERM};
    case DiskCall::Link:
    case DiskCall::Rename:
        return {ENOSPC, EIO, EDQUOT, EACCES, EROFS, EBUSY};
    case DiskCall::Permissions:
        return {EIO, EPERM, EROFS};
    case DiskCall::Status:
        return {EIO, EACCES, ENOMEM};
    }
    return {};
}

} // namespace

std::vector<DiskFault> everyFailure(const std::vector<DiskCall> &calls)
{
    std::vector<DiskFault> faults;
    for (std::size_t position = 0; position < calls.size(); ++position) {
        for (const int error : errorsOf(calls[position])) {
            faults.push_back({position, error, Extent::Once});
            faults.push_back({position, error, Extent::Lasting});
            if (movesBytes(calls[position]))
                faults.push_back({position, error, Extent::Midway});
        }
    }
    return faults;
}

std::vector<DiskFault> everyHindrance(const std::vector<DiskCall> &calls)
{
    std::vector<DiskFault> faults;
    for (std::size_t position = 0; position < calls.size(); ++position) {
        const DiskCall call = calls[position];
        if (movesBytes(call) || call == DiskCall::Open || call == DiskCall::Sync
            || call == DiskCall::Close)
            faults.push_back({position, EINTR, Extent::Once});
        if (movesBytes(call))
            faults.push_back({position, 0, Extent::Partial});
        if (call == DiskCall::Sync) {
            for (const int notKnownHere : {EINVAL, ENOTSUP, ENOSYS})
                faults.push_back({position, notKnownHere, Extent::Lasting});
        }
    }
    return faults;
}
