// The store's state, operations and signals. What it keeps on disk has tests of its own.
#include "model/BlogViewModel.h"

#include "tests/support/CapturedOutput.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString placeholderDescription =
    u"Lorem ipsum dolor sit amet consectetur adipiscing elit. Consectetur adipiscing elit quisque "
    u"faucibus ex sapien vitae. Ex sapien vitae pellentesque sem placerat in id. Placerat in id "
    u"cursus mi pretium tellus duis. Pretium tellus duis convallis tempus leo eu aenean."_s;

class BlogViewModelTest : public testing::Test
{
protected:
    /// What a window has after the program's next start.
    void restart()
    {
        m_store.reset();
        m_store = BlogViewModel::create();
    }

    BlogViewModel &store() { return *m_store; }

    void addPosts(const QStringList &titlesFromLastToFirst)
    {
        for (const QString &title : titlesFromLastToFirst)
            store().addPost(postTitled(title));
    }

    QStringList titles() { return titlesOf(store().posts()); }

    TemporaryHome m_home;
    std::shared_ptr<BlogViewModel> m_store = BlogViewModel::create();
};

/// Writes down each signal of a store with what the store held at that moment.
class SignalLog
{
public:
    explicit SignalLog(BlogViewModel &store)
        : m_store(store)
    {
        const auto log = [this](auto signal, const QString &name) {
            QObject::connect(&m_store, signal, &m_context,
                             [this, name] { m_entries += name + u": "_s + state(); });
        };
        log(&BlogViewModel::objectWillChange, u"will change"_s);
        log(&BlogViewModel::postsChanged, u"posts"_s);
        log(&BlogViewModel::useDescriptionAsArticleChanged, u"option"_s);
        log(&BlogViewModel::blogTitleChanged, u"title"_s);
        log(&BlogViewModel::blogLinkChanged, u"link"_s);
        log(&BlogViewModel::blogDescriptionChanged, u"description"_s);
    }

    /// Everything since the last call.
    QStringList take() { return std::exchange(m_entries, {}); }

private:
    QString state() const
    {
        return titlesOf(m_store.posts()).join(u',') + u'|'
            + (m_store.useDescriptionAsArticle() ? u'1' : u'0') + u'|' + m_store.blogTitle() + u'|'
            + m_store.blogLink() + u'|' + m_store.blogDescription();
    }

    BlogViewModel &m_store;
    QObject m_context;
    QStringList m_entries;
};

} // namespace

TEST_F(BlogViewModelTest, aFreshStart_hasTheDefaults)
{
    EXPECT_TRUE(store().posts().isEmpty());
    EXPECT_FALSE(store().useDescriptionAsArticle());
    EXPECT_EQ(store().blogTitle(), u"My Tavlo"_s);
    EXPECT_EQ(store().blogDescription(), placeholderDescription);
    EXPECT_EQ(store().blogDescription().size(), 264);
    EXPECT_TRUE(store().blogLink().startsWith(u"https://"_s));
    EXPECT_EQ(store().blogLink().size(), 19);
}

TEST_F(BlogViewModelTest, addPost_putsThePostFirst)
{
    addPosts({u"A"_s, u"B"_s});
    EXPECT_EQ(titles(), QStringList({u"B"_s, u"A"_s}));
    restart();
    EXPECT_EQ(titles(), QStringList({u"B"_s, u"A"_s}));
}

TEST_F(BlogViewModelTest, addPost_ofAnIdThatIsThere_addsASecondOne)
{
    const BlogPost older = postTitled(u"Older"_s);
    BlogPost newer = older;
    newer.title = u"Newer"_s;
    store().addPost(older);
    store().addPost(newer);
    EXPECT_EQ(titles(), QStringList({u"Newer"_s, u"Older"_s}));

    newer.title = u"Changed"_s;
    store().updatePost(newer);
    EXPECT_EQ(titles(), QStringList({u"Changed"_s, u"Older"_s}));
    restart();
    EXPECT_EQ(titles(), QStringList({u"Changed"_s, u"Older"_s}));
}

TEST_F(BlogViewModelTest, addPost_ofAPostOfItsOwnList_addsThatPost)
{
    addPosts({u"A"_s, u"B"_s, u"C"_s});
    store().addPost(store().posts().constLast());
    EXPECT_EQ(titles(), QStringList({u"A"_s, u"C"_s, u"B"_s, u"A"_s}));
}

TEST_F(BlogViewModelTest, updatePost_replacesAllSixFields_inPlace)
{
    addPosts({u"C"_s, u"B"_s, u"A"_s});
    const BlogPost changed{.id = store().posts().at(1).id,
                           .title = u"new title"_s,
                           .content = u"new content"_s,
                           .date = Date(-0.0),
                           .description = u"new description"_s,
                           .permalink = u"new permalink"_s};
    store().updatePost(changed);
    EXPECT_EQ(titles(), QStringList({u"A"_s, u"new title"_s, u"C"_s}));
    EXPECT_TRUE(identical(store().posts().at(1), changed));
    restart();
    EXPECT_TRUE(identical(store().posts().at(1), changed));
}

TEST_F(BlogViewModelTest, updatePost_ofAnUnknownId_changesNothing)
{
    addPosts({u"B"_s, u"A"_s});
    const BlogPosts before = store().posts();
    BlogPost stranger = before.first();
    stranger.id = QUuid::createUuid();
    SignalLog log(store());
    store().updatePost(stranger);
    EXPECT_EQ(log.take(), QStringList());
    EXPECT_TRUE(identical(store().posts(), before));
}

TEST_F(BlogViewModelTest, updatePost_thatDiffersInUnicodeFormOnly_isStored)
{
    BlogPost post = postTitled(u"caf\u00e9"_s);
    store().addPost(post);
    BlogPost decomposed = post;
    decomposed.title = u"cafe\u0301"_s;
    ASSERT_EQ(decomposed, post);
    SignalLog log(store());
    store().updatePost(decomposed);
    EXPECT_EQ(log.take().size(), 2);
    EXPECT_EQ(store().posts().first().title, u"cafe\u0301"_s);
    restart();
    EXPECT_EQ(store().posts().first().title, u"cafe\u0301"_s);
}

TEST_F(BlogViewModelTest, deletePost_removesTheGivenPositions_ofTheListAsItWas)
{
    addPosts({u"D"_s, u"C"_s, u"B"_s, u"A"_s});
    store().deletePost({0, 2});
    EXPECT_EQ(titles(), QStringList({u"B"_s, u"D"_s}));
    restart();
    EXPECT_EQ(titles(), QStringList({u"B"_s, u"D"_s}));
    store().deletePost({0, 1});
    EXPECT_EQ(titles(), QStringList());
}

TEST_F(BlogViewModelTest, deletePost_removesOneOfTwoPostsWithAnId)
{
    const BlogPost older = postTitled(u"Older"_s);
    BlogPost newer = older;
    newer.title = u"Newer"_s;
    store().addPost(older);
    store().addPost(newer);
    store().deletePost({1});
    EXPECT_EQ(titles(), QStringList({u"Newer"_s}));
}

TEST_F(BlogViewModelTest, deletePost_atNoPosition_changesNoPost)
{
    addPosts({u"B"_s, u"A"_s});
    const BlogPosts before = store().posts();
    store().deletePost({});
    EXPECT_TRUE(identical(store().posts(), before));
}

using BlogViewModelDeathTest = BlogViewModelTest;

TEST_F(BlogViewModelDeathTest, deletePost_outsideTheList_endsTheProcessAndSaysWhy)
{
    addPosts({u"B"_s, u"A"_s});
    const auto aborted = testing::KilledBySignal(SIGABRT);
    EXPECT_EXIT(store().deletePost({2}), aborted,
                "deletePost: position 2 is outside the list of 2 posts");
    EXPECT_EXIT(store().deletePost({0, 1, 7}), aborted, "position 7 is outside");
    EXPECT_EXIT(store().deletePost({-1}), aborted, "position -1 is outside");
    EXPECT_EXIT(store().deletePost({std::numeric_limits<qsizetype>::max()}), aborted, "outside");
    // Nothing was removed before the end.
    restart();
    EXPECT_EQ(titles(), QStringList({u"A"_s, u"B"_s}));
}

TEST_F(BlogViewModelDeathTest, deletePost_ofAnEmptyList_endsTheProcess)
{
    EXPECT_EXIT(store().deletePost({0}), testing::KilledBySignal(SIGABRT),
                "position 0 is outside the list of 0 posts");
}

TEST_F(BlogViewModelTest, eachListOperation_isOneChange_announcedBeforeIt)
{
    store().setBlogTitle(u"t"_s);
    store().setBlogLink(u"l"_s);
    store().setBlogDescription(u"d"_s);
    SignalLog log(store());

    BlogPost post = postTitled(u"A"_s);
    store().addPost(post);
    EXPECT_EQ(log.take(), QStringList({u"will change: |0|t|l|d"_s, u"posts: A|0|t|l|d"_s}));

    post.title = u"B"_s;
    store().updatePost(post);
    EXPECT_EQ(log.take(), QStringList({u"will change: A|0|t|l|d"_s, u"posts: B|0|t|l|d"_s}));

    store().addPost(postTitled(u"C"_s));
    log.take();
    store().deletePost({0, 1});
    EXPECT_EQ(log.take(), QStringList({u"will change: C,B|0|t|l|d"_s, u"posts: |0|t|l|d"_s}));
}

TEST_F(BlogViewModelTest, eachAssignment_isOneChange_announcedBeforeIt)
{
    store().setBlogTitle(u"t"_s);
    store().setBlogLink(u"l"_s);
    store().setBlogDescription(u"d"_s);
    SignalLog log(store());

    store().setPosts({postTitled(u"A"_s), postTitled(u"B"_s)});
    EXPECT_EQ(log.take(), QStringList({u"will change: |0|t|l|d"_s, u"posts: A,B|0|t|l|d"_s}));
    store().setUseDescriptionAsArticle(true);
    EXPECT_EQ(log.take(), QStringList({u"will change: A,B|0|t|l|d"_s, u"option: A,B|1|t|l|d"_s}));
    store().setBlogTitle(u"T"_s);
    EXPECT_EQ(log.take(), QStringList({u"will change: A,B|1|t|l|d"_s, u"title: A,B|1|T|l|d"_s}));
    store().setBlogLink(u"L"_s);
    EXPECT_EQ(log.take(), QStringList({u"will change: A,B|1|T|l|d"_s, u"link: A,B|1|T|L|d"_s}));
    store().setBlogDescription(u"D"_s);
    EXPECT_EQ(log.take(),
              QStringList({u"will change: A,B|1|T|L|d"_s, u"description: A,B|1|T|L|D"_s}));
}

TEST_F(BlogViewModelTest, anAssignmentOfTheSameValue_isAChangeToo)
{
    addPosts({u"A"_s});
    SignalLog log(store());
    store().setPosts(store().posts());
    EXPECT_EQ(log.take().size(), 2);
    store().setUseDescriptionAsArticle(store().useDescriptionAsArticle());
    EXPECT_EQ(log.take().size(), 2);
    store().setBlogTitle(store().blogTitle());
    EXPECT_EQ(log.take().size(), 2);
    store().setBlogLink(store().blogLink());
    EXPECT_EQ(log.take().size(), 2);
    store().setBlogDescription(store().blogDescription());
    EXPECT_EQ(log.take().size(), 2);
    store().updatePost(store().posts().first());
    EXPECT_EQ(log.take().size(), 2);
    store().deletePost({});
    EXPECT_EQ(log.take().size(), 2);

    EXPECT_EQ(titles(), QStringList({u"A"_s}));
    EXPECT_EQ(store().blogTitle(), u"My Tavlo"_s);
    EXPECT_EQ(store().blogDescription(), placeholderDescription);
}

TEST_F(BlogViewModelTest, loadSettings_isThreeChanges_inTheOrderOfTheFields)
{
    m_home.write(u"rss_settings.json"_s, R"({"title":"T","link":"L","description":"D"})");
    SignalLog log(store());
    store().setBlogTitle(u"t"_s);
    store().setBlogLink(u"l"_s);
    store().setBlogDescription(u"d"_s);
    log.take();
    const QStringList expected{u"will change: |0|t|l|d"_s, u"title: |0|T|l|d"_s,
                               u"will change: |0|T|l|d"_s, u"link: |0|T|L|d"_s,
                               u"will change: |0|T|L|d"_s, u"description: |0|T|L|D"_s};
    store().loadSettings();
    EXPECT_EQ(log.take(), expected);
    // The values are equal to the old ones now.
    store().loadSettings();
    EXPECT_EQ(log.take().size(), 6);
}

TEST_F(BlogViewModelTest, loadPosts_isOneChange)
{
    store().setPosts({postTitled(u"A"_s), postTitled(u"B"_s)});
    store().savePosts();
    SignalLog log(store());
    store().loadPosts();
    EXPECT_EQ(log.take().size(), 2);
    EXPECT_EQ(titles(), QStringList({u"A"_s, u"B"_s}));
}

TEST_F(BlogViewModelTest, loading_whatCannotBeRead_isNoChange)
{
    addPosts({u"A"_s});
    m_home.write(u"posts.json"_s, "[");
    m_home.write(u"rss_settings.json"_s, "{}");
    SignalLog log(store());
    store().loadPosts();
    store().loadSettings();
    QFile::remove(m_home.path(u"posts.json"_s));
    QFile::remove(m_home.path(u"rss_settings.json"_s));
    store().loadPosts();
    store().loadSettings();
    EXPECT_EQ(log.take(), QStringList());
    EXPECT_EQ(titles(), QStringList({u"A"_s}));
}

TEST_F(BlogViewModelTest, savingAndWritingAFeed_areNoChange)
{
    addPosts({u"A"_s});
    SignalLog log(store());
    store().savePosts();
    store().saveSettings();
    store().generateRSSFeed();
    store().exportRSS(m_home.path(u"feed.xml"_s));
    EXPECT_EQ(log.take(), QStringList());
}

TEST_F(BlogViewModelTest, importRSSFeed_isOneChange_aTurnOfTheLoopLater)
{
    addPosts({u"Old"_s});
    m_home.write(u"in.rss"_s, "<item><title>1</title></item><item><title>2</title></item>");
    SignalLog log(store());
    store().importRSSFeed(m_home.path(u"in.rss"_s));
    EXPECT_EQ(log.take(), QStringList());
    EXPECT_EQ(titles(), QStringList({u"Old"_s}));

    QCoreApplication::processEvents();
    const QStringList entries = log.take();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_TRUE(entries.at(0).startsWith(u"will change: Old|"_s));
    EXPECT_TRUE(entries.at(1).startsWith(u"posts: 1,2|"_s));
    restart();
    EXPECT_EQ(titles(), QStringList({u"1"_s, u"2"_s}));
}

TEST_F(BlogViewModelTest, importRSSFeed_ofAFileThatCannotBeRead_saysSoAndChangesNothing)
{
    addPosts({u"Old"_s});
    m_home.write(u"latin1.rss"_s, "<item><title>caf\xE9</title></item>");
    SignalLog log(store());
    for (const QString &path : {m_home.path(u"missing.rss"_s), m_home.path(), QString(),
                                u"https://example.com/feed.xml"_s, m_home.path(u"latin1.rss"_s)}) {
        CapturedOutput output(stdout);
        store().importRSSFeed(path);
        EXPECT_EQ(output.text(), "Failed to read RSS file\n");
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(log.take(), QStringList());
    EXPECT_EQ(titles(), QStringList({u"Old"_s}));
}

TEST_F(BlogViewModelTest, importRSSFeed_isCarriedOut_whenItsWindowIsGone)
{
    m_home.write(u"in.rss"_s, "<item><title>Imported</title></item>");
    m_store->importRSSFeed(m_home.path(u"in.rss"_s));
    m_store.reset();
    QCoreApplication::processEvents();
    restart();
    EXPECT_EQ(titles(), QStringList({u"Imported"_s}));
}

TEST_F(BlogViewModelTest, readsPropertiesByTheirNames)
{
    // The names that the screens bind to.
    addPosts({u"A"_s});
    EXPECT_EQ(store().property("posts").value<BlogPosts>().size(), 1);
    for (const char *name : {"blogTitle", "blogLink", "blogDescription"}) {
        EXPECT_TRUE(store().setProperty(name, u"by name"_s)) << name;
        EXPECT_EQ(store().property(name).toString(), u"by name"_s) << name;
    }
    EXPECT_TRUE(store().setProperty("useDescriptionAsArticle", true));
    EXPECT_TRUE(store().useDescriptionAsArticle());
}
