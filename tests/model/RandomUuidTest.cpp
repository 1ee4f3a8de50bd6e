#include "model/RandomUuid.h"

#include <QSet>

#include <gtest/gtest.h>

TEST(RandomUuid, isOfVersion4AndTheRfcsVariant)
{
    for (int i = 0; i < 1'000; ++i) {
        const QUuid id = randomUuid();
        EXPECT_EQ(id.version(), QUuid::Random) << id.toString().toStdString();
        EXPECT_EQ(id.variant(), QUuid::DCE) << id.toString().toStdString();
    }
}

TEST(RandomUuid, isAnotherEachTime)
{
    constexpr qsizetype count = 100'000;
    QSet<QUuid> ids;
    for (qsizetype i = 0; i < count; ++i)
        ids.insert(randomUuid());
    EXPECT_EQ(ids.size(), count);
}

TEST(RandomUuid, leavesEveryOtherBitToChance)
{
    // A bit that never changes in 1,000 ids is no random bit, but for one run in 10^300.
    QByteArray everSet(16, '\0');
    QByteArray everClear(16, '\0');
    for (int i = 0; i < 1'000; ++i) {
        const QByteArray bytes = randomUuid().toRfc4122();
        for (qsizetype place = 0; place < bytes.size(); ++place) {
            everSet[place] = char(everSet[place] | bytes[place]);
            everClear[place] = char(everClear[place] | ~bytes[place]);
        }
    }
    QByteArray changing(16, '\xff');
    changing[6] = '\x0f'; // the version's four bits stand still
    changing[8] = '\x3f'; // and the variant's two
    for (qsizetype place = 0; place < changing.size(); ++place)
        EXPECT_EQ(char(everSet[place] & everClear[place]), changing[place]) << "byte " << place;
}
