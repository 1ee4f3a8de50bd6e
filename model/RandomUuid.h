#pragma once

#include <QUuid>

/// A random UUID (RFC 4122, version 4). Its bits come from a generator that the system's source of
/// randomness has seeded: QUuid's own maker asks that source each time, which takes as long as all
/// the rest of an imported post.
QUuid randomUuid();
