#include "ui/EditRequests.h"

#include "model/NotificationCenter.h"
#include "tests/support/Posts.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

void notify(const QVariant &object, const QString &name = editPost)
{
    NotificationCenter::defaultCenter()->post(name, object);
}

TEST(EditRequests, passOnAnExactCopyOfThePost)
{
    EditRequests requests;
    const BlogPost post = postTitled(QStringLiteral("e\u0301"), Date(0.1));
    QList<BlogPost> received;
    QObject::connect(&requests, &EditRequests::received,
                     [&](const BlogPost &copy) { received.append(copy); });
    notify(QVariant::fromValue(post));
    ASSERT_EQ(received.size(), 1);
    EXPECT_TRUE(identical(received.first(), post));
}

TEST(EditRequests, areDeliveredBeforePostingReturnsToEveryListener)
{
    EditRequests one;
    EditRequests other;
    QSignalSpy first(&one, &EditRequests::received);
    QSignalSpy second(&other, &EditRequests::received);
    notify(QVariant::fromValue(postTitled(QStringLiteral("Any"))));
    EXPECT_EQ(first.count(), 1);
    EXPECT_EQ(second.count(), 1);
}

TEST(EditRequests, ignoreWhatIsNotAPost)
{
    EditRequests requests;
    QSignalSpy received(&requests, &EditRequests::received);
    notify({});
    notify(QVariant::fromValue(nullptr));
    notify(QStringLiteral("a post's title"));
    notify(QVariantMap{{QStringLiteral("title"), QStringLiteral("looks like one")}});
    notify(QVariant::fromValue(BlogPosts{postTitled(QStringLiteral("in a list"))}));
    EXPECT_EQ(received.count(), 0);
}

TEST(EditRequests, ignoreOtherNotifications)
{
    EditRequests requests;
    QSignalSpy received(&requests, &EditRequests::received);
    notify(QVariant::fromValue(postTitled(QStringLiteral("Any"))), QStringLiteral("EditPost"));
    notify(QVariant::fromValue(postTitled(QStringLiteral("Any"))), QString());
    EXPECT_EQ(received.count(), 0);
}

} // namespace
