#include "ui/PostActions.h"

#include "Lists.h"
#include "model/NotificationCenter.h"
#include "tests/support/TemporaryHome.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

class PostActionsTest : public testing::Test
{
protected:
    bool saved() const { return home.read(QStringLiteral("posts.json")).has_value(); }

    TemporaryHome home;
    std::shared_ptr<BlogViewModel> store = BlogViewModel::create();
    QSignalSpy notifications{NotificationCenter::defaultCenter(), &NotificationCenter::posted};
    PostActions actions;
};

TEST_F(PostActionsTest, edit_postsTheWholePostOnce)
{
    const BlogPost post = numbered(1, QStringLiteral("as it was"));
    actions.edit(QVariant::fromValue(post));
    ASSERT_EQ(notifications.count(), 1);
    EXPECT_EQ(notifications.first()[0].toString(), editPost);
    const auto object = notifications.first()[1].value<QVariant>();
    ASSERT_EQ(object.metaType(), QMetaType::fromType<BlogPost>());
    EXPECT_EQ(object.value<BlogPost>(), post);
}

TEST_F(PostActionsTest, edit_leavesTheStoreAlone)
{
    store->setPosts(numberedPosts({1}));
    const QSignalSpy changes(store.get(), &BlogViewModel::objectWillChange);
    actions.edit(QVariant::fromValue(numbered(1)));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_FALSE(saved());
}

TEST_F(PostActionsTest, anythingButAPost_isIgnored)
{
    store->setPosts(numberedPosts({1}));
    for (const QVariant &other : {QVariant(), QVariant(1), QVariant(QStringLiteral("post")),
                                  QVariant::fromValue<QObject *>(nullptr),
                                  QVariant(QVariantMap{{QStringLiteral("id"), numbered(1).id}})}) {
        actions.edit(other);
        actions.remove(store.get(), other);
    }
    EXPECT_EQ(notifications.count(), 0);
    EXPECT_EQ(store->posts().size(), 1);
    EXPECT_FALSE(saved());
}

TEST_F(PostActionsTest, remove_deletesThePostByItsIdAlone)
{
    store->setPosts({numbered(1), numbered(2, QStringLiteral("new")), numbered(3)});
    actions.remove(store.get(), QVariant::fromValue(numbered(2, QStringLiteral("out of date"))));
    EXPECT_EQ(store->posts(), numberedPosts({1, 3}));
    EXPECT_TRUE(saved());
}

TEST_F(PostActionsTest, remove_ofAnIdThatStandsTwice_deletesTheFirst)
{
    store->setPosts(
        {numbered(2), numbered(1, QStringLiteral("first")), numbered(1, QStringLiteral("second"))});
    actions.remove(store.get(), QVariant::fromValue(numbered(1, QStringLiteral("second"))));
    ASSERT_EQ(store->posts().size(), 2);
    EXPECT_EQ(store->posts()[1].title, QStringLiteral("second"));
}

TEST_F(PostActionsTest, remove_ofAPostThatHasGone_doesNothingAndSavesNothing)
{
    store->setPosts(numberedPosts({1}));
    const QSignalSpy changes(store.get(), &BlogViewModel::objectWillChange);
    actions.remove(store.get(), QVariant::fromValue(numbered(2)));
    EXPECT_EQ(changes.count(), 0);
    EXPECT_FALSE(saved());
}

TEST_F(PostActionsTest, remove_withoutAStore_doesNothing)
{
    actions.remove(nullptr, QVariant::fromValue(numbered(1)));
    EXPECT_FALSE(saved());
}

} // namespace
