#pragma once

#include "tests/faults/FaultyDisk.h"

#include <vector>

// What can go wrong with the calls of a run in which all of them worked.

/// Each call in turn, with each error that it can give: once, from there on, and from the
/// middle of it on. An interruption is none of them.
std::vector<DiskFault> everyFailure(const std::vector<DiskCall> &calls);

/// Each call in turn interrupted, or doing a part of what it was asked to: what is to be carried
/// on.
std::vector<DiskFault> everyHindrance(const std::vector<DiskCall> &calls);
