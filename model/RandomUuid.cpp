#include "model/RandomUuid.h"

#include <QRandomGenerator>

#include <array>
#include <bit>

QUuid randomUuid()
{
    // A generator that the system's source of randomness has seeded: QUuid's own maker asks that
    // source each time, which takes as long as all the rest of an imported post.
    QRandomGenerator *const random = QRandomGenerator::global();
    const std::array<quint64, 2> bits{random->generate64(), random->generate64()};
    auto id = std::bit_cast<QUuid>(bits);
    id.data3 = ushort((id.data3 & 0x0fff) | 0x4000);  // the version
    id.data4[0] = uchar((id.data4[0] & 0x3f) | 0x80); // the variant
    return id;
}
