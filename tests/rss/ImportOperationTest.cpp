// The store's import: what it reads, what it says, and when the list is replaced.
#include "model/BlogViewModel.h"
#include "model/RecordsJson.h"
#include "tests/rss/FeedSamples.h"
#include "tests/rss/Watchdog.h"
#include "tests/support/CapturedOutput.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QCoreApplication>
#include <QEventLoopLocker>
#include <QTimer>

#include <gtest/gtest.h>
#include <stdio_ext.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QByteArray failureLine = "Failed to read RSS file\n";

/// A store of ten posts in a home of its own.
class FeedImportOperation : public testing::Test
{
protected:
    void SetUp() override
    {
        store->setPosts(BlogPosts(10, postTitled(u"Old"_s)));
        store->savePosts();
        store->setBlogTitle(u"Title"_s);
        store->setBlogLink(u"Link"_s);
        store->setBlogDescription(u"Description"_s);
        store->saveSettings();
        m_savedPosts = saved();
    }

    void TearDown() override { QCoreApplication::processEvents(); }

    QString path(const QString &name) const { return home.path(name); }

    /// The path of a new file of these bytes.
    QString pathOf(const QByteArray &feed, const QString &name = u"feed.xml"_s) const
    {
        home.write(name, feed);
        return path(name);
    }

    /// The bytes of the posts' file.
    QByteArray saved() const { return home.read(u"posts.json"_s).value_or(QByteArray()); }

    /// What an import prints before it returns.
    QByteArray outputOfImport(const QString &from) const
    {
        CapturedOutput output(stdout);
        store->importRSSFeed(from);
        return output.text();
    }

    /// Neither now nor a turn of the event loop later.
    void expectThatNothingChanges() const
    {
        int changes = 0;
        const auto counting = QObject::connect(store.get(), &BlogViewModel::objectWillChange,
                                               [&changes] { ++changes; });
        QCoreApplication::processEvents();
        QObject::disconnect(counting);
        EXPECT_EQ(changes, 0);
        EXPECT_EQ(titlesOf(store->posts()), oldTitles);
        EXPECT_EQ(saved(), m_savedPosts);
    }

    const QByteArray threeItems = "<rss><channel><title>C</title><item><title>A</title></item>\n"
                                  "<item><title>B</title><link>/b</link></item>"
                                  "<item><title>C</title><description>c</description></item>"
                                  "</channel></rss>";
    const QStringList threeTitles{u"A"_s, u"B"_s, u"C"_s};
    const QStringList oldTitles = QStringList(10, u"Old"_s);
    const TemporaryHome home;
    std::shared_ptr<BlogViewModel> store = BlogViewModel::create();

private:
    QByteArray m_savedPosts;
};

} // namespace

TEST_F(FeedImportOperation, replacesTheWholeListAfterOneTurnOfTheEventLoop)
{
    const QByteArray savedBefore = saved();
    store->importRSSFeed(pathOf(threeItems));
    EXPECT_EQ(titlesOf(store->posts()), oldTitles);
    EXPECT_EQ(saved(), savedBefore);
    QCoreApplication::processEvents();
    EXPECT_EQ(titlesOf(store->posts()), threeTitles);
    EXPECT_EQ(titlesOf(decodePosts(saved()).value()), threeTitles);
}

TEST_F(FeedImportOperation, savesThePostsThatItShows)
{
    store->importRSSFeed(pathOf(threeItems));
    QCoreApplication::processEvents();
    EXPECT_TRUE(identical(decodePosts(saved()).value(), store->posts()));
    EXPECT_TRUE(identical(BlogViewModel::create()->posts(), store->posts()));
}

TEST_F(FeedImportOperation, signalsOneChangeAheadOfIt)
{
    QStringList seen;
    QObject::connect(store.get(), &BlogViewModel::objectWillChange,
                     [&] { seen += u"before: "_s + store->posts().first().title; });
    QObject::connect(store.get(), &BlogViewModel::postsChanged,
                     [&] { seen += u"after: "_s + store->posts().first().title; });
    store->importRSSFeed(pathOf(threeItems));
    EXPECT_EQ(seen, QStringList());
    QCoreApplication::processEvents();
    EXPECT_EQ(seen, (QStringList{u"before: Old"_s, u"after: A"_s}));
}

TEST_F(FeedImportOperation, isReadAtOnce)
{
    const QString feed = pathOf(threeItems);
    store->importRSSFeed(feed);
    QFile::remove(feed);
    QCoreApplication::processEvents();
    EXPECT_EQ(titlesOf(store->posts()), threeTitles);
}

TEST_F(FeedImportOperation, replacesPostsThatWereAddedInBetween)
{
    store->importRSSFeed(pathOf(threeItems));
    store->addPost(postTitled(u"in between"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(titlesOf(store->posts()), threeTitles);
}

TEST_F(FeedImportOperation, ofTwoInARow_theLaterWins)
{
    const QString first = pathOf("<item><title>first</title></item>", u"first.xml"_s);
    const QString second = pathOf("<item><title>second</title></item>", u"second.xml"_s);
    QStringList shown;
    QObject::connect(store.get(), &BlogViewModel::postsChanged,
                     [&] { shown += store->posts().first().title; });
    store->importRSSFeed(first);
    store->importRSSFeed(second);
    EXPECT_EQ(titlesOf(store->posts()), oldTitles);
    QCoreApplication::processEvents();
    EXPECT_EQ(shown, (QStringList{u"first"_s, u"second"_s}));
    EXPECT_EQ(titlesOf(decodePosts(saved()).value()), QStringList{u"second"_s});
}

TEST_F(FeedImportOperation, thatFailsBehindAGoodOne_leavesTheGoodOne)
{
    store->importRSSFeed(pathOf(threeItems));
    EXPECT_EQ(outputOfImport(path(u"missing.xml"_s)), failureLine);
    QCoreApplication::processEvents();
    EXPECT_EQ(titlesOf(store->posts()), threeTitles);
}

TEST_F(FeedImportOperation, ofAFeedWithoutItems_emptiesTheStore)
{
    for (const char *feed : {"", "<rss><channel><title>T</title></channel></rss>", "<item>"}) {
        store->setPosts({postTitled(u"Old"_s)});
        store->savePosts();
        EXPECT_EQ(outputOfImport(pathOf(feed)), "") << feed;
        QCoreApplication::processEvents();
        EXPECT_EQ(store->posts().size(), 0) << feed;
        EXPECT_EQ(saved(), "[]") << feed;
    }
}

TEST_F(FeedImportOperation, leavesTheChannelAndTheOptionAlone)
{
    store->setUseDescriptionAsArticle(true);
    const auto settingsFile = home.read(u"rss_settings.json"_s);
    store->importRSSFeed(pathOf("<rss><channel><title>Other</title><link>Other</link>"
                                "<description>Other</description><item></item></channel></rss>"));
    QCoreApplication::processEvents();
    EXPECT_EQ(store->blogTitle(), u"Title"_s);
    EXPECT_EQ(store->blogLink(), u"Link"_s);
    EXPECT_EQ(store->blogDescription(), u"Description"_s);
    EXPECT_TRUE(store->useDescriptionAsArticle());
    EXPECT_EQ(home.read(u"rss_settings.json"_s), settingsFile);
}

TEST_F(FeedImportOperation, ofTheStoresOwnExport_givesTheTextsBackAndDescriptionsEscaped)
{
    store->setPosts({{.title = u"Tom & Jerry"_s,
                      .content = u"the body text"_s,
                      .date = {},
                      .description = u"a & b < c"_s,
                      .permalink = u"/tom?a=1&b=2"_s},
                     postTitled(u"  blanks \u00e9 e\u0301 \U0001F600\n"_s)});
    store->exportRSS(path(u"feed.xml"_s));
    store->importRSSFeed(path(u"feed.xml"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(titlesOf(store->posts()),
              (QStringList{u"Tom & Jerry"_s, u"  blanks \u00e9 e\u0301 \U0001F600\n"_s}));
    const BlogPost post = store->posts().first();
    EXPECT_EQ(post.permalink, u"/tom?a=1&b=2"_s);
    EXPECT_EQ(post.description, u"a &amp; b &lt; c"_s);
    EXPECT_EQ(post.content, u"a &amp; b &lt; c"_s);
}

TEST_F(FeedImportOperation, ofTheStoresOwnExport_makesNewPostsOfToday)
{
    const BlogPost exported = postTitled(u"Old"_s, instant("1999-01-05T09:03:07Z"));
    store->setPosts({exported});
    store->exportRSS(path(u"feed.xml"_s));
    const double before = Date::now().secondsSinceReferenceDate();
    store->importRSSFeed(path(u"feed.xml"_s));
    QCoreApplication::processEvents();
    const BlogPost post = store->posts().first();
    EXPECT_NE(post.id, exported.id);
    EXPECT_GE(post.date.secondsSinceReferenceDate(), before);
}

TEST_F(FeedImportOperation, savesAlsoWhenItsStoreIsReleasedRightAfter)
{
    store->importRSSFeed(pathOf(threeItems));
    const std::weak_ptr<BlogViewModel> watched = store;
    store.reset();
    EXPECT_FALSE(watched.expired());
    QCoreApplication::processEvents();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(titlesOf(decodePosts(saved()).value()), threeTitles);
}

TEST_F(FeedImportOperation, holdsTheEventLoopUntilItIsSaved)
{
    // What a window is to the program: when nothing holds the loop any more, it ends.
    auto window = std::make_unique<QEventLoopLocker>();
    bool savedInTheLoop = false;
    QTimer::singleShot(0, [&] {
        QObject::connect(store.get(), &QObject::destroyed,
                         [&] { savedInTheLoop = titlesOf(*decodePosts(saved())) == threeTitles; });
        store->importRSSFeed(pathOf(threeItems));
        store.reset();
        window.reset();
    });
    QTimer::singleShot(10'000, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(savedInTheLoop);
}

TEST_F(FeedImportOperation, whoseListCannotBeSaved_showsItAllTheSame)
{
    const QByteArray savedBefore = saved();
    QFile::remove(home.path(u"posts.json"_s));
    QDir().mkpath(home.path(u"posts.json"_s));
    CapturedOutput output(stdout);
    CapturedOutput errors(stderr);
    store->importRSSFeed(pathOf(threeItems));
    QCoreApplication::processEvents();
    EXPECT_EQ(titlesOf(store->posts()), threeTitles);
    EXPECT_EQ(output.text(), "");
    EXPECT_EQ(errors.text(), "");
}

TEST_F(FeedImportOperation, ofAFileThatIsNotUtf8_printsTheLineAndChangesNothing)
{
    for (const char *bytes : {"<item><title>caf\xE9</title></item>", "<item></item>\xE2\x82"}) {
        EXPECT_EQ(outputOfImport(pathOf(bytes)), failureLine);
        expectThatNothingChanges();
    }
}

TEST_F(FeedImportOperation, ofWhatIsNoReadableFile_printsTheLineAndChangesNothing)
{
    const Watchdog watchdog;
    home.write(u"folder/feed.xml"_s, threeItems);
    home.write(u"file"_s, threeItems);
    const auto encoded = [this](const QString &name) { return QFile::encodeName(home.path(name)); };
    ASSERT_EQ(mkfifo(encoded(u"pipe"_s), 0600), 0);
    for (const auto &[target, link] :
         {std::pair("pipe", u"link to pipe"_s), std::pair("nothing", u"link to nothing"_s),
          std::pair("link to itself", u"link to itself"_s)})
        ASSERT_EQ(symlink(target, encoded(link)), 0);
    for (const QString &name :
         {u"missing.xml"_s, u"missing/feed.xml"_s, u"folder"_s, u"folder/"_s, u"file/feed.xml"_s,
          u"pipe"_s, u"link to pipe"_s, u"link to nothing"_s, u"link to itself"_s}) {
        EXPECT_EQ(outputOfImport(path(name)), failureLine) << name.toStdString();
        expectThatNothingChanges();
    }
}

TEST_F(FeedImportOperation, ofWhatIsNoPath_printsTheLineAndChangesNothing)
{
    home.write(u"file"_s, threeItems);
    const QString nul = home.path(u"file"_s) + QChar::Null;
    for (const QString &address :
         {QString(), u"https://example.com/feed.xml"_s, u"file://"_s + home.path(u"file"_s),
          u":/qt-project.org/imports/Tavlo/rss-logo.svg"_s, nul}) {
        EXPECT_EQ(outputOfImport(address), failureLine) << address.toStdString();
        expectThatNothingChanges();
    }
}

TEST_F(FeedImportOperation, printsOneLineForEachFailure)
{
    CapturedOutput output(stdout);
    CapturedOutput errors(stderr);
    store->importRSSFeed(path(u"missing.xml"_s));
    store->importRSSFeed(path(u"missing.xml"_s));
    QCoreApplication::processEvents();
    EXPECT_EQ(output.text(), failureLine + failureLine);
    EXPECT_EQ(errors.text(), "");
}

TEST_F(FeedImportOperation, thatSucceeds_printsNothing)
{
    CapturedOutput output(stdout);
    CapturedOutput errors(stderr);
    store->importRSSFeed(pathOf(threeItems));
    QCoreApplication::processEvents();
    EXPECT_EQ(output.text(), "");
    EXPECT_EQ(errors.text(), "");
}

TEST_F(FeedImportOperation, followsLinksAndOddNames)
{
    home.write(u"50%20#1?.xml"_s, threeItems);
    ASSERT_EQ(symlink("50%20#1?.xml", QFile::encodeName(home.path(u"link"_s))), 0);
    for (const QString &name : {u"50%20#1?.xml"_s, u"link"_s}) {
        store->setPosts({});
        store->importRSSFeed(path(name));
        QCoreApplication::processEvents();
        EXPECT_EQ(titlesOf(store->posts()), threeTitles) << name.toStdString();
    }
}

namespace {

/// Standard output to nobody, for as long as this object lives; a signal of it is ignored, as the
/// program's main does.
class BrokenStandardOutput
{
public:
    BrokenStandardOutput()
        : m_onSignal(std::signal(SIGPIPE, SIG_IGN))
        , m_before(dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        int ends[2];
        EXPECT_EQ(pipe(ends), 0);
        close(ends[0]);
        dup2(ends[1], STDOUT_FILENO);
        close(ends[1]);
    }
    BrokenStandardOutput(const BrokenStandardOutput &) = delete;
    BrokenStandardOutput &operator=(const BrokenStandardOutput &) = delete;
    ~BrokenStandardOutput()
    {
        __fpurge(stdout);
        std::clearerr(stdout);
        dup2(m_before, STDOUT_FILENO);
        close(m_before);
        std::signal(SIGPIPE, m_onSignal);
    }

private:
    void (*m_onSignal)(int);
    int m_before;
};

} // namespace

TEST_F(FeedImportOperation, thatFailsWithNobodyAtTheOtherEndOfStandardOutput_goesOn)
{
    {
        const BrokenStandardOutput broken;
        store->importRSSFeed(path(u"missing.xml"_s));
        store->importRSSFeed(path(u"missing.xml"_s));
        expectThatNothingChanges();
    }
    EXPECT_EQ(outputOfImport(path(u"missing.xml"_s)), failureLine);
}

TEST_F(FeedImportOperation, withStandardOutputClosed_writesItsLineIntoNoFile)
{
    const BrokenStandardOutput restored;
    close(STDOUT_FILENO);
    // Files opened from here on get the number of standard output.
    store->importRSSFeed(path(u"missing.xml"_s));
    expectThatNothingChanges();
    store->importRSSFeed(pathOf(threeItems));
    QCoreApplication::processEvents();
    EXPECT_EQ(home.read(u"feed.xml"_s), threeItems);
    EXPECT_EQ(titlesOf(decodePosts(saved()).value()), threeTitles);
}
