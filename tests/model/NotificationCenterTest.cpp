#include "model/NotificationCenter.h"

#include "model/BlogPost.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(NotificationCenter, editPost_isItsOwnName)
{
    EXPECT_EQ(editPost, u"editPost"_s);
}

TEST(NotificationCenter, defaultCenter_isOne)
{
    EXPECT_NE(NotificationCenter::defaultCenter(), nullptr);
    EXPECT_EQ(NotificationCenter::defaultCenter(), NotificationCenter::defaultCenter());
}

TEST(NotificationCenter, post_returnsAfterEveryReceiverHasRun)
{
    NotificationCenter center;
    QStringList received;
    for (const QString &receiver : {u"first "_s, u"second "_s}) {
        QObject::connect(
            &center, &NotificationCenter::posted,
            [&received, receiver](const QString &name) { received += receiver + name; });
    }
    center.post(editPost);
    EXPECT_EQ(received, QStringList({u"first editPost"_s, u"second editPost"_s}));
}

TEST(NotificationCenter, post_carriesAnObjectOfAnyType)
{
    NotificationCenter center;
    QVariant received;
    QObject::connect(&center, &NotificationCenter::posted,
                     [&received](const QString &, const QVariant &object) { received = object; });

    const BlogPost post = postTitled(u"A post"_s);
    center.post(editPost, QVariant::fromValue(post));
    ASSERT_EQ(received.metaType(), QMetaType::fromType<BlogPost>());
    EXPECT_TRUE(identical(received.value<BlogPost>(), post));

    center.post(editPost, u"a text"_s);
    EXPECT_EQ(received.metaType(), QMetaType::fromType<QString>());
    EXPECT_EQ(received.toString(), u"a text"_s);

    center.post(editPost, 42);
    EXPECT_EQ(received, QVariant(42));

    center.post(editPost, QVariant::fromValue(&center));
    EXPECT_EQ(received.value<NotificationCenter *>(), &center);

    center.post(editPost);
    EXPECT_FALSE(received.isValid());
}

TEST(NotificationCenter, post_carriesACopy)
{
    NotificationCenter center;
    QVariant received;
    QObject::connect(&center, &NotificationCenter::posted,
                     [&received](const QString &, const QVariant &object) { received = object; });
    BlogPost post = postTitled(u"As it was"_s);
    center.post(editPost, QVariant::fromValue(post));
    post.title = u"Changed later"_s;
    EXPECT_EQ(received.value<BlogPost>().title, u"As it was"_s);
}

TEST(NotificationCenter, post_carriesEveryName)
{
    NotificationCenter center;
    QStringList names;
    QObject::connect(&center, &NotificationCenter::posted,
                     [&names](const QString &name) { names += name; });
    center.post(u"editPost"_s);
    center.post(u"another"_s);
    center.post(QString());
    EXPECT_EQ(names, QStringList({u"editPost"_s, u"another"_s, QString()}));
}

TEST(NotificationCenter, aReceiverThatComesDuringDelivery_hearsTheNextNotificationOnly)
{
    NotificationCenter center;
    QStringList late;
    QObject::connect(
        &center, &NotificationCenter::posted, &center,
        [&] {
            QObject::connect(&center, &NotificationCenter::posted,
                             [&late](const QString &name) { late += name; });
        },
        Qt::SingleShotConnection);
    center.post(u"first"_s);
    EXPECT_EQ(late, QStringList());
    center.post(u"second"_s);
    EXPECT_EQ(late, QStringList({u"second"_s}));
}

TEST(NotificationCenter, aReceiverThatIsGone_isNotCalled)
{
    NotificationCenter center;
    int calls = 0;
    {
        const QObject receiver;
        QObject::connect(&center, &NotificationCenter::posted, &receiver, [&calls] { ++calls; });
        center.post(editPost);
    }
    center.post(editPost);
    EXPECT_EQ(calls, 1);
}

TEST(NotificationCenter, aNotificationPostedDuringDelivery_isDeliveredWithinIt)
{
    NotificationCenter center;
    QStringList names;
    QObject::connect(&center, &NotificationCenter::posted, [&](const QString &name) {
        names += name + u" begins"_s;
        if (name == u"outer"_s)
            center.post(u"inner"_s);
        names += name + u" ends"_s;
    });
    center.post(u"outer"_s);
    EXPECT_EQ(
        names,
        QStringList({u"outer begins"_s, u"inner begins"_s, u"inner ends"_s, u"outer ends"_s}));
}
