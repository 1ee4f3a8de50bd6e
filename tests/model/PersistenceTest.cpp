// What the store keeps in the user's documents directory, from one run to the next.
#include "model/BlogViewModel.h"
#include "model/RecordsJson.h"
#include "tests/model/JsonSamples.h"
#include "tests/support/CapturedOutput.h"
#include "tests/support/FileCreationMask.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/Generators.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Posts.h"
#include "tests/support/SpecialFiles.h"
#include "tests/support/TemporaryHome.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sys/stat.h>

#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

const QString postsName = u"posts.json"_s;
const QString settingsName = u"rss_settings.json"_s;

/// A blog in a home of its own. Nothing may be said on either standard stream while it lives.
class PersistenceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_output.emplace(stdout);
        m_errors.emplace(stderr);
    }

    void TearDown() override
    {
        std::fflush(stdout);
        const QByteArray output = m_output->text();
        const QByteArray errors = m_errors->text();
        m_output.reset();
        m_errors.reset();
        EXPECT_EQ(output, "");
        EXPECT_EQ(errors, "");
    }

    /// A store as the program's next start has it.
    static std::shared_ptr<BlogViewModel> start() { return BlogViewModel::create(); }

    void write(const QString &name, const QByteArray &bytes) const { m_home.write(name, bytes); }
    std::optional<QByteArray> read(const QString &name) const { return m_home.read(name); }

    QStringList storedTitles(const QString &name = postsName) const
    {
        const auto posts = decodePosts(read(name).value_or("no file"));
        return posts ? titlesOf(*posts) : QStringList(u"undecodable"_s);
    }

    TemporaryHome m_home;

private:
    std::optional<CapturedOutput> m_output;
    std::optional<CapturedOutput> m_errors;
};

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    EXPECT_EQ(lstat(QFile::encodeName(path).constData(), &status), 0);
    return status;
}

/// Sets a file's times far back, so that any write shows.
void age(const QString &path)
{
    const timespec times[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
    EXPECT_EQ(utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0), 0);
}

bool isAged(const QString &path)
{
    return statusOf(path).st_mtim.tv_sec == 1'000'000'000;
}

} // namespace

// Starting.

TEST_F(PersistenceTest, aFreshStart_createsNoFile_untilTheFirstChange)
{
    const auto store = start();
    store->setBlogTitle(u"Unsaved"_s);
    store->setUseDescriptionAsArticle(true);
    store->updatePost(postTitled(u"Unknown"_s));
    EXPECT_EQ(m_home.names(), QStringList());
    store->addPost(postTitled(u"A"_s));
    EXPECT_EQ(m_home.names(), QStringList({postsName}));
    EXPECT_EQ(storedTitles(), QStringList({u"A"_s}));
    store->saveSettings();
    EXPECT_EQ(m_home.names(), QStringList({postsName, settingsName}));
}

TEST_F(PersistenceTest, aDeletionOfNothing_isAFirstChangeToo)
{
    start()->deletePost({});
    EXPECT_EQ(read(postsName), "[]");
    EXPECT_EQ(m_home.names(), QStringList({postsName}));
}

TEST_F(PersistenceTest, anExport_isNoChange)
{
    start()->exportRSS(m_home.path(u"feed.xml"_s));
    EXPECT_EQ(m_home.names(), QStringList({u"feed.xml"_s}));
}

TEST_F(PersistenceTest, aStore_writesNothingWhenItEnds)
{
    auto store = start();
    store->setPosts({postTitled(u"A"_s)});
    store->setBlogTitle(u"Unsaved"_s);
    store.reset();
    EXPECT_EQ(m_home.names(), QStringList());
}

TEST_F(PersistenceTest, anEmptyArray_isAnEmptyBlog)
{
    write(postsName, "[]");
    EXPECT_TRUE(start()->posts().isEmpty());
}

TEST_F(PersistenceTest, posts_areLoadedInTheOrderOfTheFile)
{
    const BlogPosts posts{postTitled(u"B"_s, Date(1)), postTitled(u"C"_s, Date(3)),
                          postTitled(u"A"_s, Date(2))};
    write(postsName, encodePosts(posts).value());
    EXPECT_TRUE(identical(start()->posts(), posts));
}

TEST_F(PersistenceTest, aPostsFileWithOneBadElement_isAnEmptyBlog_andLostToTheNextPost)
{
    const QByteArray bad = "[" + jsonObject(goodPostFields()) + ','
        + jsonObject(with(goodPostFields(), "date", R"("788918400")")) + ']';
    write(postsName, bad);
    const auto store = start();
    EXPECT_TRUE(store->posts().isEmpty());
    EXPECT_EQ(read(postsName), bad);
    store->addPost(postTitled(u"New"_s));
    EXPECT_EQ(storedTitles(), QStringList({u"New"_s}));
}

TEST_F(PersistenceTest, aSettingsFileThatLacksAKey_isIgnoredAsAWhole)
{
    const QByteArray bad = R"({"title":"T","link":"L"})";
    write(settingsName, bad);
    const auto store = start();
    EXPECT_EQ(store->blogTitle(), u"My Tavlo"_s);
    EXPECT_EQ(store->blogLink().size(), 19);
    EXPECT_EQ(store->blogDescription().size(), 264);
    EXPECT_EQ(read(settingsName), bad);
}

TEST_F(PersistenceTest, anEmptySetting_replacesItsDefault)
{
    write(settingsName, R"({"title":"","link":"","description":""})");
    const auto store = start();
    EXPECT_EQ(store->blogTitle(), QString());
    EXPECT_EQ(store->blogLink(), QString());
    EXPECT_EQ(store->blogDescription(), QString());
}

TEST_F(PersistenceTest, postsAndSettings_failByThemselves)
{
    write(postsName, "[");
    write(settingsName, jsonObject(goodSettingsFields()));
    EXPECT_EQ(start()->blogTitle(), u"A blog"_s);

    write(postsName, postsDocument(goodPostFields()));
    write(settingsName, "[]");
    EXPECT_EQ(titlesOf(start()->posts()), QStringList({u"A title"_s}));
    EXPECT_EQ(start()->blogTitle(), u"My Tavlo"_s);
}

// Restarting.

TEST_F(PersistenceTest, theOption_isFalseAgainAfterARestart)
{
    auto store = start();
    store->setUseDescriptionAsArticle(true);
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_FALSE(start()->useDescriptionAsArticle());
}

TEST_F(PersistenceTest, settings_areKeptOnceSaved)
{
    const auto store = start();
    store->setBlogTitle(u"Title"_s);
    store->setBlogLink(u"Link"_s);
    store->setBlogDescription(u"Description"_s);
    EXPECT_EQ(start()->blogTitle(), u"My Tavlo"_s);

    store->saveSettings();
    EXPECT_EQ(read(settingsName), R"({"title":"Title","link":"Link","description":"Description"})");
    EXPECT_EQ(start()->blogTitle(), u"Title"_s);
    EXPECT_EQ(start()->blogLink(), u"Link"_s);
    EXPECT_EQ(start()->blogDescription(), u"Description"_s);

    store->setBlogTitle(u"Another"_s);
    store->addPost(postTitled(u"A"_s));
    EXPECT_EQ(start()->blogTitle(), u"Title"_s);
}

TEST_F(PersistenceTest, eachListOperation_savesTheWholeList)
{
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->addPost(postTitled(u"B"_s));
    EXPECT_EQ(storedTitles(), QStringList({u"B"_s, u"A"_s}));
    BlogPost changed = store->posts().constLast();
    changed.title = u"A2"_s;
    store->updatePost(changed);
    EXPECT_EQ(storedTitles(), QStringList({u"B"_s, u"A2"_s}));
    store->deletePost({0});
    EXPECT_EQ(storedTitles(), QStringList({u"A2"_s}));
    store->deletePost({0});
    EXPECT_EQ(read(postsName), "[]");
    EXPECT_EQ(read(settingsName), std::nullopt);
}

TEST_F(PersistenceTest, assigningPosts_savesNothing)
{
    const auto store = start();
    store->setPosts({postTitled(u"A"_s)});
    EXPECT_EQ(m_home.names(), QStringList());
}

TEST_F(PersistenceTest, updatePost_ofAnUnknownId_leavesTheFileUntouched)
{
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    age(m_home.path(postsName));
    store->updatePost(postTitled(u"A"_s));
    EXPECT_TRUE(isAged(m_home.path(postsName)));
    store->updatePost(store->posts().first());
    EXPECT_FALSE(isAged(m_home.path(postsName)));
}

TEST_F(PersistenceTest, deletePost_atNoPosition_rewritesTheSameContent)
{
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    const auto before = read(postsName);
    age(m_home.path(postsName));
    store->deletePost({});
    EXPECT_FALSE(isAged(m_home.path(postsName)));
    EXPECT_EQ(read(postsName), before);
}

TEST_F(PersistenceTest, aDateThatIsNoNumber_leavesTheFileAsItWas)
{
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    const auto before = read(postsName);
    age(m_home.path(postsName));
    for (const double seconds :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        store->addPost(postTitled(u"Not encodable"_s, Date(seconds)));
        EXPECT_EQ(read(postsName), before);
        EXPECT_TRUE(isAged(m_home.path(postsName)));
    }
    EXPECT_EQ(store->posts().size(), 3);
    EXPECT_EQ(titlesOf(start()->posts()), QStringList({u"A"_s}));
    store->deletePost({0, 1});
    EXPECT_FALSE(isAged(m_home.path(postsName)));
}

RC_GTEST_PROP(Persistence, aRestart_bringsBackEveryBit,
              (const BlogPosts &posts, const RSSSettings &settings))
{
    const TemporaryHome home;
    const auto store = BlogViewModel::create();
    store->setPosts(posts);
    store->setBlogTitle(settings.title);
    store->setBlogLink(settings.link);
    store->setBlogDescription(settings.description);
    store->savePosts();
    store->saveSettings();
    const auto restarted = BlogViewModel::create();
    RC_ASSERT(identical(restarted->posts(), posts));
    RC_ASSERT(restarted->blogTitle() == settings.title);
    RC_ASSERT(restarted->blogLink() == settings.link);
    RC_ASSERT(restarted->blogDescription() == settings.description);
}

// The files on disk.

TEST_F(PersistenceTest, aShorterList_leavesNothingOfTheLongerOne)
{
    const auto store = start();
    store->addPost(postTitled(QString(100'000, u'x')));
    store->deletePost({0});
    EXPECT_EQ(read(postsName), "[]");
}

TEST_F(PersistenceTest, aSave_isInPlace)
{
    write(postsName, "[]");
    write(settingsName, "{}");
    const auto postsBefore = statusOf(m_home.path(postsName)).st_ino;
    const auto settingsBefore = statusOf(m_home.path(settingsName)).st_ino;
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_EQ(statusOf(m_home.path(postsName)).st_ino, postsBefore);
    EXPECT_EQ(statusOf(m_home.path(settingsName)).st_ino, settingsBefore);
    EXPECT_EQ(m_home.names(), QStringList({postsName, settingsName}));
}

TEST_F(PersistenceTest, newFiles_haveTheDefaultPermissions)
{
    const auto modeBy = [this](mode_t mask) {
        const FileCreationMask masked(mask);
        QFile::remove(m_home.path(postsName));
        QFile::remove(m_home.path(settingsName));
        const auto store = start();
        store->addPost(postTitled(u"A"_s));
        store->saveSettings();
        const mode_t posts = statusOf(m_home.path(postsName)).st_mode & 07777;
        EXPECT_EQ(statusOf(m_home.path(settingsName)).st_mode & 07777, posts);
        return posts;
    };
    EXPECT_EQ(modeBy(0), 0666U);
    EXPECT_EQ(modeBy(022), 0644U);
    EXPECT_EQ(modeBy(077), 0600U);
    EXPECT_EQ(modeBy(0137), 0640U);
}

TEST_F(PersistenceTest, permissionsOfAFileThatIsThere_areKept)
{
    write(postsName, "[]");
    ASSERT_EQ(chmod(QFile::encodeName(m_home.path(postsName)).constData(), 0606), 0);
    start()->addPost(postTitled(u"A"_s));
    EXPECT_EQ(statusOf(m_home.path(postsName)).st_mode & 07777, 0606U);
    EXPECT_EQ(storedTitles(), QStringList({u"A"_s}));
}

TEST_F(PersistenceTest, aSymbolicLink_isFollowedAndKept)
{
    write(u"elsewhere/real.json"_s, postsDocument(goodPostFields()));
    ASSERT_TRUE(QFile::link(u"elsewhere/real.json"_s, m_home.path(postsName)));
    const auto store = start();
    EXPECT_EQ(titlesOf(store->posts()), QStringList({u"A title"_s}));
    store->addPost(postTitled(u"B"_s));
    EXPECT_TRUE(S_ISLNK(statusOf(m_home.path(postsName)).st_mode));
    EXPECT_EQ(storedTitles(u"elsewhere/real.json"_s), QStringList({u"B"_s, u"A title"_s}));
}

TEST_F(PersistenceTest, aSymbolicLinkToNothing_getsItsTargetMade)
{
    ASSERT_TRUE(QFile::link(u"later.json"_s, m_home.path(postsName)));
    const auto store = start();
    EXPECT_TRUE(store->posts().isEmpty());
    store->addPost(postTitled(u"A"_s));
    EXPECT_TRUE(S_ISLNK(statusOf(m_home.path(postsName)).st_mode));
    EXPECT_EQ(storedTitles(u"later.json"_s), QStringList({u"A"_s}));
}

TEST_F(PersistenceTest, aSymbolicLinkThatCannotBeFollowed_isLeftAlone)
{
    ASSERT_TRUE(QFile::link(postsName, m_home.path(postsName)));
    ASSERT_TRUE(QFile::link(u"missing/settings.json"_s, m_home.path(settingsName)));
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_TRUE(S_ISLNK(statusOf(m_home.path(postsName)).st_mode));
    EXPECT_TRUE(S_ISLNK(statusOf(m_home.path(settingsName)).st_mode));
    EXPECT_EQ(m_home.names(), QStringList({postsName, settingsName}));
    EXPECT_EQ(store->posts().size(), 1);
}

TEST_F(PersistenceTest, aHardLink_goesOnSharingTheFile)
{
    write(postsName, "[]");
    ASSERT_EQ(link(QFile::encodeName(m_home.path(postsName)).constData(),
                   QFile::encodeName(m_home.path(u"other.json"_s)).constData()),
              0);
    start()->addPost(postTitled(u"A"_s));
    EXPECT_EQ(storedTitles(u"other.json"_s), QStringList({u"A"_s}));
    EXPECT_EQ(statusOf(m_home.path(postsName)).st_nlink, 2U);
}

// Failures, none of which says anything.

TEST_F(PersistenceTest, aReadOnlyFile_isLeftAlone_andWhatWasChangedIsLost)
{
    const auto first = start();
    first->addPost(postTitled(u"Kept"_s));
    first->saveSettings();
    const QStringList names{postsName, settingsName};
    for (const QString &name : names) {
        ASSERT_TRUE(QFile::setPermissions(m_home.path(name),
                                          QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
        age(m_home.path(name));
    }
    {
        const OrdinaryUser user({m_home.path()});
        const auto store = start();
        store->addPost(postTitled(u"Lost"_s));
        EXPECT_EQ(titlesOf(store->posts()), QStringList({u"Lost"_s, u"Kept"_s}));
        store->setBlogTitle(u"Lost"_s);
        store->saveSettings();
        EXPECT_EQ(store->blogTitle(), u"Lost"_s);
    }
    EXPECT_EQ(titlesOf(start()->posts()), QStringList({u"Kept"_s}));
    EXPECT_EQ(start()->blogTitle(), u"My Tavlo"_s);
    for (const QString &name : names)
        EXPECT_TRUE(isAged(m_home.path(name)));
    EXPECT_EQ(m_home.names(), names);
}

TEST_F(PersistenceTest, aFolderInAFilesPlace_isLeftAlone)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(postsName)));
    ASSERT_TRUE(QDir().mkpath(m_home.path(settingsName)));
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_EQ(titlesOf(store->posts()), QStringList({u"A"_s}));
    EXPECT_TRUE(QFileInfo(m_home.path(postsName)).isDir());
    EXPECT_TRUE(QFileInfo(m_home.path(settingsName)).isDir());
    EXPECT_TRUE(start()->posts().isEmpty());
}

TEST_F(PersistenceTest, aPipeInAFilesPlace_isLeftAlone_andBlocksNothing)
{
    makePipe(m_home.path(postsName));
    makePipe(m_home.path(settingsName));
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_EQ(store->posts().size(), 1);
    EXPECT_TRUE(S_ISFIFO(statusOf(m_home.path(postsName)).st_mode));
    EXPECT_TRUE(S_ISFIFO(statusOf(m_home.path(settingsName)).st_mode));
}

TEST_F(PersistenceTest, aPipeBehindALink_isLeftAlone_andBlocksNothing)
{
    makePipe(m_home.path(u"pipe"_s));
    ASSERT_TRUE(QFile::link(u"pipe"_s, m_home.path(postsName)));
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    EXPECT_TRUE(S_ISFIFO(statusOf(m_home.path(u"pipe"_s)).st_mode));
    EXPECT_TRUE(S_ISLNK(statusOf(m_home.path(postsName)).st_mode));
}

TEST_F(PersistenceTest, aSocketInAFilesPlace_isLeftAlone)
{
    const ListeningSocket posts(m_home.path(postsName));
    const ListeningSocket settings(m_home.path(settingsName));
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_EQ(store->posts().size(), 1);
    EXPECT_TRUE(S_ISSOCK(statusOf(m_home.path(postsName)).st_mode));
    EXPECT_TRUE(S_ISSOCK(statusOf(m_home.path(settingsName)).st_mode));
}

TEST_F(PersistenceTest, aMissingDirectory_isNotMade)
{
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Missing\"\n");
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    store->saveSettings();
    EXPECT_EQ(store->posts().size(), 1);
    EXPECT_EQ(m_home.names(), QStringList({u".config"_s}));
    EXPECT_TRUE(start()->posts().isEmpty());
}

TEST_F(PersistenceTest, aFileInTheDirectorysPlace_isLeftAlone)
{
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n");
    write(u"Documents"_s, "a file");
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    EXPECT_EQ(read(u"Documents"_s), "a file");
    EXPECT_EQ(store->posts().size(), 1);
}

TEST_F(PersistenceTest, aDiskThatFillsUpMidway_keepsTheListInMemory)
{
    constexpr qsizetype room = 8192;
    const auto store = start();
    {
        const FileSizeLimit full(room);
        store->addPost(postTitled(QString(5 * room, u'x')));
        EXPECT_EQ(store->posts().size(), 1);
        EXPECT_LE(read(postsName)->size(), room);
        EXPECT_TRUE(start()->posts().isEmpty());
    }
    // No retry of its own; the next change writes all.
    EXPECT_TRUE(start()->posts().isEmpty());
    store->addPost(postTitled(u"B"_s));
    EXPECT_EQ(start()->posts().size(), 2);
}

// Where the files are.

TEST_F(PersistenceTest, theDirectory_isLookedUpAtEachCall)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"One"_s)));
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"Two"_s)));
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/One\"\n");
    store->addPost(postTitled(u"B"_s));
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Two\"\n");
    store->addPost(postTitled(u"C"_s));
    store->saveSettings();

    EXPECT_EQ(storedTitles(postsName), QStringList({u"A"_s}));
    EXPECT_EQ(storedTitles(u"One/posts.json"_s), QStringList({u"B"_s, u"A"_s}));
    EXPECT_EQ(storedTitles(u"Two/posts.json"_s), QStringList({u"C"_s, u"B"_s, u"A"_s}));
    EXPECT_EQ(read(settingsName), std::nullopt);
    EXPECT_NE(read(u"Two/rss_settings.json"_s), std::nullopt);

    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/One\"\n");
    store->loadPosts();
    EXPECT_EQ(titlesOf(store->posts()), QStringList({u"B"_s, u"A"_s}));
}

TEST_F(PersistenceTest, aDocumentsFolderWithoutAnEntry_hidesNoBlog)
{
    const auto store = start();
    store->addPost(postTitled(u"A"_s));
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"Documents"_s)));
    EXPECT_EQ(titlesOf(start()->posts()), QStringList({u"A"_s}));
}

TEST_F(PersistenceTest, aDirectoryWithAnOddName_isUsedAsItIs)
{
    const QString odd = u"50%20 #1? caf\u00e9 \"q\""_s;
    ASSERT_TRUE(QDir().mkpath(m_home.path(odd)));
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/50%20 #1? caf\xC3\xA9 \\\"q\\\"\"\n");
    start()->addPost(postTitled(u"A"_s));
    EXPECT_EQ(storedTitles(odd + u"/posts.json"_s), QStringList({u"A"_s}));
}
