#include "ui/PostListModel.h"

#include "Lists.h"
#include "tests/support/EnvironmentVariable.h"
#include "tests/support/TemporaryHome.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <utility>
#include <vector>

namespace {

class PostListModelTest : public testing::Test
{
protected:
    void show(const BlogPosts &posts)
    {
        store->setPosts(posts);
        model.setViewModel(store.get());
    }

    QStringList titles() const
    {
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row)
            all.append(model.index(row).data(PostListModel::Post).value<BlogPost>().title);
        return all;
    }

    TemporaryHome home;
    std::shared_ptr<BlogViewModel> store = BlogViewModel::create();
    PostListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PostListModelTest, rowsAreThePostsInTheirOrder)
{
    show({numbered(1, QStringLiteral("b")), numbered(2, QStringLiteral("a"))});
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("b"), QStringLiteral("a")}));
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_FALSE(model.isEmpty());
}

TEST_F(PostListModelTest, firstRowsComeByAReset)
{
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    const QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy changes(&model, &PostListModel::changed);
    show(numberedPosts({1, 2, 3}));
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(insertions.count(), 0);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(PostListModelTest, anAddedPost_isOneInsertion_andNamed)
{
    show(numberedPosts({1, 2}));
    const QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
    const QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy changes(&model, &PostListModel::changed);
    store->addPost(numbered(3));
    EXPECT_EQ(insertions.count(), 1);
    EXPECT_EQ(removals.count(), 0);
    ASSERT_EQ(changes.count(), 1);
    EXPECT_EQ(changes.first(), (QVariantList{0, false}));
    EXPECT_TRUE(model.isNew(0));
    EXPECT_FALSE(model.isNew(1));
}

TEST_F(PostListModelTest, anUpdatedPost_isOneChangeOfItsRow)
{
    show(numberedPosts({1, 2, 3}));
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy changes(&model, &PostListModel::changed);
    const QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
    store->updatePost(numbered(2, QStringLiteral("new")));
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.first()[0].toModelIndex().row(), 1);
    EXPECT_EQ(changed.first()[1].toModelIndex().row(), 1);
    EXPECT_EQ(insertions.count(), 0);
    EXPECT_EQ(titles()[1], QStringLiteral("new"));
    EXPECT_EQ(changes.first(), (QVariantList{-1, false}));
}

TEST_F(PostListModelTest, aTextThatIsOnlyCanonicallyEqual_isShownAnew)
{
    show({numbered(1, QStringLiteral("\u00e9"))});
    const QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    store->updatePost(numbered(1, QStringLiteral("e\u0301")));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(titles().first().size(), 2);
}

TEST_F(PostListModelTest, aDeletedPost_isOneRemoval)
{
    show(numberedPosts({1, 2, 3}));
    QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
    store->deletePost({1});
    ASSERT_EQ(removals.count(), 1);
    EXPECT_EQ(removals.first()[1], 1);
    EXPECT_EQ(removals.first()[2], 1);
    EXPECT_EQ(model.rowCount(), 2);
}

TEST_F(PostListModelTest, anImport_isToldAsReplacingAll)
{
    show(numberedPosts({1, 2, 3}));
    QSignalSpy changes(&model, &PostListModel::changed);
    store->setPosts(numberedPosts({4, 5}));
    EXPECT_EQ(changes.first(), (QVariantList{-1, true}));
    EXPECT_TRUE(model.isNew(0));
    EXPECT_TRUE(model.isNew(1));
    EXPECT_FALSE(model.isNew(2));
}

TEST_F(PostListModelTest, empty_isToldOnceWhenItChanges)
{
    show({});
    EXPECT_TRUE(model.isEmpty());
    const QSignalSpy empty(&model, &PostListModel::emptyChanged);
    store->addPost(numbered(1));
    EXPECT_EQ(empty.count(), 1);
    store->setPosts(numberedPosts({7}));
    EXPECT_EQ(empty.count(), 1);
    store->deletePost({0});
    EXPECT_EQ(empty.count(), 2);
}

TEST_F(PostListModelTest, otherPropertiesOfTheStore_changeNoRow)
{
    show(numberedPosts({1}));
    const QSignalSpy changes(&model, &PostListModel::aboutToChange);
    store->setBlogTitle(QStringLiteral("x"));
    store->setUseDescriptionAsArticle(true);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(PostListModelTest, aChangeThatAListenerMakes_comesAfterTheOneUnderWay)
{
    show(numberedPosts({1, 2}));
    bool once = true;
    QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model, [&] {
        if (std::exchange(once, false))
            store->deletePost({1});
    });
    store->addPost(numbered(3, QStringLiteral("c")));
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(titles().first(), QStringLiteral("c"));
}

TEST_F(PostListModelTest, withoutAStore_isEmpty)
{
    show(numberedPosts({1, 2}));
    model.setViewModel(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_TRUE(model.isEmpty());
}

TEST_F(PostListModelTest, outlivesItsStore)
{
    show(numberedPosts({1, 2}));
    store.reset();
    EXPECT_EQ(model.viewModel(), nullptr);
    EXPECT_EQ(model.rowCount(), 2);
}

TEST_F(PostListModelTest, followsOnlyTheStoreItWasGivenLast)
{
    show(numberedPosts({1, 2}));
    const auto other = BlogViewModel::create();
    other->setPosts(numberedPosts({3}));
    model.setViewModel(other.get());
    EXPECT_EQ(model.rowCount(), 1);
    store->setPosts({});
    EXPECT_EQ(model.rowCount(), 1);
}

TEST_F(PostListModelTest, dateText_isLongAndWithoutTheWeekday)
{
    const EnvironmentVariable locale("LC_ALL", "de_DE.UTF-8");
    const EnvironmentVariable zone("TZ", "UTC");
    BlogPosts posts = numberedPosts({1});
    posts[0].date = Date(800'000'000);
    show(posts);
    EXPECT_EQ(model.index(0).data(PostListModel::DateText).toString(),
              QStringLiteral("9. Mai 2026"));
}

TEST_F(PostListModelTest, rolesAndRowsThatAreNotThere_giveNothing)
{
    show(numberedPosts({1}));
    EXPECT_FALSE(model.index(0).data(Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.data(QModelIndex(), PostListModel::Post).isValid());
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
}

TEST_F(PostListModelTest, staysRightThroughAnyListsInARow)
{
    show({});
    const bool held = rc::check([this] {
        BlogPosts posts;
        const auto numbers = *rc::gen::container<std::vector<uint>>(rc::gen::inRange<uint>(0, 9));
        for (const uint number : numbers)
            posts.append(numbered(number, QString::number(*rc::gen::inRange(0, 3))));
        store->setPosts(posts);
        QStringList expected;
        for (const BlogPost &post : posts)
            expected.append(post.title);
        RC_ASSERT(titles() == expected);
    });
    EXPECT_TRUE(held);
}

} // namespace
