#include "ui/PostDraft.h"

#include "tests/support/Posts.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>

namespace {

class PostDraftTest : public testing::Test
{
protected:
    TemporaryHome home;
    std::shared_ptr<BlogViewModel> store = BlogViewModel::create();
    PostDraft draft;

    QVariant value(const char *property) const { return draft.property(property); }
};

BlogPost awkwardPost()
{
    return {.id = QUuid(QStringLiteral("E621E1F8-C36C-495A-93FC-0C247A3E6E5F")),
            .title = QStringLiteral("\ufeff e\u0301\r\nx"),
            .content = QStringLiteral("body\r\u2028\u00a0"),
            .date = Date(700000000.123456789),
            .description = QStringLiteral("a\u00a0b\rc\r\nd\u2028e\u2029f"),
            .permalink = QStringLiteral("not an address")};
}

TEST_F(PostDraftTest, beginsAsANewPostOfThePresentMoment)
{
    const Date before = Date::now();
    const PostDraft fresh;
    const Date after = Date::now();

    EXPECT_FALSE(fresh.isEditing());
    EXPECT_FALSE(fresh.isComplete());
    EXPECT_EQ(fresh.property("title").toString(), QString());
    EXPECT_EQ(fresh.property("content").toString(), QStringLiteral(" "));
    EXPECT_EQ(fresh.property("description").toString(), QString());
    EXPECT_EQ(fresh.property("permalink").toString(), QString());
    const double date = fresh.property("date").value<Date>().secondsSinceReferenceDate();
    EXPECT_GE(date, before.secondsSinceReferenceDate());
    EXPECT_LE(date, after.secondsSinceReferenceDate());
}

TEST_F(PostDraftTest, isCompleteFromTheFirstCharacterOfTheTitle)
{
    QSignalSpy changes(&draft, &PostDraft::completeChanged);
    draft.setTitle(QStringLiteral(" "));
    EXPECT_TRUE(draft.isComplete());
    draft.setTitle(QString());
    EXPECT_FALSE(draft.isComplete());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(PostDraftTest, isNeverCompleteWithoutContent)
{
    BlogPost post = awkwardPost();
    post.content.clear();
    draft.seed(QVariant::fromValue(post));
    EXPECT_FALSE(draft.isComplete());
    draft.setTitle(QStringLiteral("Another title"));
    draft.setProperty("description", QStringLiteral("A text"));
    EXPECT_FALSE(draft.isComplete());
}

TEST_F(PostDraftTest, savesANewPostFirstWithAFreshIdAndASpaceForContent)
{
    store->addPost(postTitled(QStringLiteral("Older")));
    const QUuid older = store->posts().first().id;
    draft.setTitle(QStringLiteral("Newer"));
    draft.setProperty("description", QStringLiteral("Words"));
    draft.setProperty("permalink", QStringLiteral("bare words"));
    draft.setProperty("date", QVariant::fromValue(Date(1.5)));
    draft.saveTo(store.get());

    ASSERT_EQ(store->posts().size(), 2);
    const BlogPost &saved = store->posts().first();
    EXPECT_EQ(saved.title, QStringLiteral("Newer"));
    EXPECT_EQ(saved.content, QStringLiteral(" "));
    EXPECT_EQ(saved.description, QStringLiteral("Words"));
    EXPECT_EQ(saved.permalink, QStringLiteral("bare words"));
    EXPECT_EQ(saved.date, Date(1.5));
    EXPECT_EQ(saved.id.version(), QUuid::Random);
    EXPECT_NE(saved.id, older);
}

TEST_F(PostDraftTest, savesAnUntouchedEditToTheBit)
{
    store->setPosts(
        {postTitled(QStringLiteral("First")), awkwardPost(), postTitled(QStringLiteral("Last"))});
    const BlogPosts before = store->posts();
    draft.seed(QVariant::fromValue(before.at(1)));
    EXPECT_TRUE(draft.isEditing());
    draft.saveTo(store.get());
    EXPECT_TRUE(identical(store->posts(), before));
}

TEST_F(PostDraftTest, keepsTheBitsOfADateThatNoCalendarReaches)
{
    for (const double seconds : {-0.0, 1e300, std::numeric_limits<double>::denorm_min()}) {
        BlogPost post = awkwardPost();
        post.date = Date(seconds);
        store->setPosts({post});
        PostDraft edit;
        edit.seed(QVariant::fromValue(post));
        edit.setTitle(QStringLiteral("Changed"));
        edit.saveTo(store.get());
        post.title = QStringLiteral("Changed");
        EXPECT_TRUE(identical(store->posts().first(), post)) << seconds;
    }
}

TEST_F(PostDraftTest, ofAPostThatHasGoneSavesNothing)
{
    store->addPost(postTitled(QStringLiteral("Still here")));
    const BlogPosts before = store->posts();
    draft.seed(QVariant::fromValue(awkwardPost()));
    draft.saveTo(store.get());
    EXPECT_TRUE(identical(store->posts(), before));
}

TEST_F(PostDraftTest, staysANewPostWhenSeededWithAnythingElse)
{
    for (const QVariant &other : {QVariant(), QVariant(QStringLiteral("a text")), QVariant(7),
                                  QVariant(QVariantMap{{QStringLiteral("title"), 1}})}) {
        draft.seed(other);
        EXPECT_FALSE(draft.isEditing());
        EXPECT_EQ(value("content").toString(), QStringLiteral(" "));
    }
}

TEST_F(PostDraftTest, savesALoneSurrogateAsAReplacementCharacter)
{
    draft.setTitle(QStringLiteral("a") + QChar(0xd800));
    draft.setProperty("description", QString(QChar(0xdc00)));
    draft.setProperty("permalink", QString(QChar(0xd83d)) + u'x');
    draft.saveTo(store.get());
    EXPECT_EQ(store->posts().first().title, QStringLiteral("a\ufffd"));
    EXPECT_EQ(store->posts().first().description, QStringLiteral("\ufffd"));
    EXPECT_EQ(store->posts().first().permalink, QStringLiteral("\ufffdx"));
}

} // namespace
