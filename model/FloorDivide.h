#pragma once

#include <QtGlobal>

/// The quotient rounded down, where C++ rounds towards zero; the divisor is positive.
constexpr qint64 floorDivide(qint64 dividend, qint64 divisor)
{
    return dividend / divisor - (dividend % divisor < 0 ? 1 : 0);
}
