#pragma once

#include "tests/faults/FaultyDisk.h"

#include <vector>

// What can go wrong with the calls of a run in which all of them worked.

/// Each call in turn, with each error that it can give: once, from there on, and from the
/// middle of it on. An interruption is none of them.
std::vector<DiskFault> everyFailure(const std::vector<DiskCall> &calls);

/// Each call in turn interrupted, doing a part of what it was asked to, or not known to a file
/// system that has no disk to sync: what is to be carried on.
std::vector<DiskFault> everyHindrance(const std::vector<DiskCall> &calls);
