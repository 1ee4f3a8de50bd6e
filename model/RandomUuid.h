#pragma once

#include <QUuid>

/// A random UUID (RFC 4122, version 4).
QUuid randomUuid();
