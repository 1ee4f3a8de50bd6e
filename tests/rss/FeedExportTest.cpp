// Writing the feed to a file: whole or not at all, in the target's place, and nothing else.
#include "model/BlogViewModel.h"
#include "model/Files.h"
#include "tests/rss/ExportFolder.h"
#include "tests/rss/FeedSamples.h"
#include "tests/rss/Watchdog.h"
#include "tests/support/FileCreationMask.h"
#include "tests/support/FileSizeLimit.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"
#include "tests/support/SpecialFiles.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <atomic>
#include <cmath>
#include <limits>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

using FeedExport = ExportFolder;

} // namespace

TEST_F(FeedExport, holdsTheFeedInUtf8WithoutAByteOrderMark)
{
    store->setBlogTitle(u"\u00c4rger & \u65e5\u672c \U0001F600"_s);
    store->addPost(postTitled(u"\ufeffHello"_s));
    store->exportRSS(path("feed.xml"));
    EXPECT_EQ(bytesOf("feed.xml"), store->generateRSSFeed());
    EXPECT_TRUE(
        bytesOf("feed.xml").startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<rss "));
    EXPECT_TRUE(
        bytesOf("feed.xml")
            .contains(
                "    <title>\xC3\x84rger & \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80</title>\n"));
    EXPECT_TRUE(bytesOf("feed.xml").endsWith("\n  </channel>\n</rss>"));
    EXPECT_EQ(names(), (QStringList{u"feed.xml"_s}));
}

TEST_F(FeedExport, isInTheRegionOfTheMoment)
{
    const EnvironmentVariable messages("LANG", "en_US.UTF-8");
    const EnvironmentVariable times("LC_TIME", "en_US.UTF-8");
    const EnvironmentVariable all("LC_ALL", "de_DE.UTF-8");
    const EnvironmentVariable timeZone("TZ", "America/St_Johns");
    const auto pubDate = [this] {
        return between(store->generateRSSFeed(), "<pubDate>", "</pubDate>");
    };
    store->addPost(postTitled(u"Post"_s, instant("2026-01-05T09:03:07Z")));
    EXPECT_EQ(pubDate(), "Mo., 5 Jan. 2026 05:33:07 -0330");
    all.set("ja_JP.UTF-8");
    timeZone.set("Asia/Kathmandu");
    EXPECT_EQ(pubDate(), QByteArray("月, 5 1月 2026 14:48:07 +0545"));
    all.set("");
    EXPECT_EQ(pubDate(), "Mon, 5 Jan 2026 14:48:07 +0545");
    all.set("C");
    timeZone.set("UTC");
    EXPECT_EQ(pubDate(), "Mon, 5 Jan 2026 09:03:07 +0000");
}

TEST_F(FeedExport, carriesTheDescriptionWhateverTheArticleOption)
{
    BlogPost post = postTitled(u"Post"_s);
    post.description = u"short"_s;
    post.content = u"the body text"_s;
    store->addPost(post);
    const QByteArray feed = store->generateRSSFeed();
    EXPECT_TRUE(feed.contains("<description>short</description>"));
    EXPECT_FALSE(feed.contains("body text"));
    store->setUseDescriptionAsArticle(true);
    EXPECT_EQ(store->generateRSSFeed(), feed);
}

TEST_F(FeedExport, hasThePostAddedLastFirst)
{
    store->addPost(postTitled(u"older"_s, instant("2030-01-01T00:00:00Z")));
    store->addPost(postTitled(u"newer"_s, instant("2020-01-01T00:00:00Z")));
    const QByteArray feed = store->generateRSSFeed();
    EXPECT_LT(feed.indexOf("newer"), feed.indexOf("older"));
}

TEST_F(FeedExport, ofDatesThatJsonCannotHold_isWrittenAllTheSame)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double seconds : {std::nan(""), infinity, -infinity, 1e300, -1e300})
        store->addPost(postTitled(u"Far"_s, Date(seconds)));
    store->exportRSS(path("feed.xml"));
    EXPECT_EQ(bytesOf("feed.xml").count("<title>Far</title>"), 5);
}

TEST_F(FeedExport, ofAnOlderFile_leavesOnlyTheNewDocument)
{
    for (int i = 0; i < 500; ++i)
        store->setPosts(store->posts() + BlogPosts{postTitled(u"Long"_s)});
    store->exportRSS(path("feed.xml"));
    const QByteArray longer = bytesOf("feed.xml");
    store->setPosts({postTitled(u"Short"_s)});
    store->exportRSS(path("feed.xml"));
    EXPECT_LT(bytesOf("feed.xml").size(), longer.size());
    EXPECT_EQ(bytesOf("feed.xml"), store->generateRSSFeed());
    EXPECT_EQ(names(), (QStringList{u"feed.xml"_s}));
}

TEST_F(FeedExport, leavesTheStoreAsItIs)
{
    store->addPost(postTitled(u"Post"_s));
    const BlogPosts posts = store->posts();
    int changes = 0;
    QObject::connect(store.get(), &BlogViewModel::objectWillChange, [&changes] { ++changes; });
    store->exportRSS(path("feed.xml"));
    store->exportRSS(path("missing/feed.xml"));
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(identical(store->posts(), posts));
}

TEST_F(FeedExport, leavesTheStoresFilesAsTheyAre)
{
    store->addPost(postTitled(u"Post"_s));
    store->saveSettings();
    store->setBlogTitle(u"Not saved"_s);
    const auto postsFile = home.read(u"posts.json"_s);
    const auto settingsFile = home.read(u"rss_settings.json"_s);
    ASSERT_TRUE(postsFile && settingsFile);
    const auto modified = [this](const char *name) {
        const auto time = status(QFile::encodeName(home.path()) + '/' + name).st_mtim;
        return std::pair(time.tv_sec, time.tv_nsec);
    };
    const auto before = std::pair(modified("posts.json"), modified("rss_settings.json"));

    store->exportRSS(path("feed.xml"));
    store->exportRSS(path("missing/feed.xml"));

    EXPECT_EQ(home.read(u"posts.json"_s), postsFile);
    EXPECT_EQ(home.read(u"rss_settings.json"_s), settingsFile);
    EXPECT_EQ(std::pair(modified("posts.json"), modified("rss_settings.json")), before);
}

TEST_F(FeedExport, takesTheTargetsPlaceByARename)
{
    write("feed.xml", "old");
    ASSERT_EQ(link(encoded("feed.xml"), encoded("second name")), 0);
    const int reader = open(encoded("feed.xml"), O_RDONLY);
    ASSERT_GE(reader, 0);
    const auto inode = status(encoded("feed.xml")).st_ino;

    store->exportRSS(path("feed.xml"));

    EXPECT_NE(status(encoded("feed.xml")).st_ino, inode);
    EXPECT_EQ(bytesOf("feed.xml"), store->generateRSSFeed());
    // Whoever had the old file, by another name or open, still has it whole.
    EXPECT_EQ(bytesOf("second name"), "old");
    char old[8] = {};
    EXPECT_EQ(read(reader, old, sizeof old), 3);
    EXPECT_STREQ(old, "old");
    close(reader);
}

TEST_F(FeedExport, isNeverSeenInParts)
{
    BlogPosts posts;
    for (int i = 0; i < 2000; ++i)
        posts.append(postTitled(u"Post"_s));
    store->setPosts(posts);
    const QByteArray longer = store->generateRSSFeed();
    store->setPosts({});
    const QByteArray shorter = store->generateRSSFeed();
    store->exportRSS(path("feed.xml"));

    std::atomic<bool> done = false;
    std::atomic<int> parts = 0;
    std::atomic<int> reads = 0;
    std::thread reader([&] {
        while (!done) {
            const QByteArray seen = bytesOf("feed.xml");
            if (seen != longer && seen != shorter)
                ++parts;
            ++reads;
        }
    });
    for (int i = 0; i < 20; ++i) {
        store->setPosts(i % 2 ? BlogPosts() : posts);
        store->exportRSS(path("feed.xml"));
    }
    while (reads < 20)
        std::this_thread::yield();
    done = true;
    reader.join();
    EXPECT_EQ(parts, 0);
}

TEST_F(FeedExport, ofANewFile_hasTheDefaultPermissions)
{
    for (const mode_t mask : {0022, 0077, 0002, 0}) {
        const FileCreationMask restricted(mask);
        unlink(encoded("feed.xml"));
        store->exportRSS(path("feed.xml"));
        EXPECT_EQ(status(encoded("feed.xml")).st_mode & 07777, 0666 & ~mask) << std::oct << mask;
    }
}

TEST_F(FeedExport, ofAnOlderFile_keepsItsPermissions)
{
    write("feed.xml", "old");
    ASSERT_EQ(chmod(encoded("feed.xml"), 0640), 0);
    store->exportRSS(path("feed.xml"));
    EXPECT_EQ(status(encoded("feed.xml")).st_mode & 07777, 0640U);
}

TEST_F(FeedExport, intoAMissingFolder_makesNothing)
{
    store->exportRSS(path("missing/feed.xml"));
    store->exportRSS(path("missing/"));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(FeedExport, belowAFile_makesNothing)
{
    write("file", "old");
    for (const char *name : {"file/feed.xml", "file/", "file/.", "file/.."})
        store->exportRSS(path(name));
    EXPECT_EQ(bytesOf("file"), "old");
    EXPECT_EQ(names(), (QStringList{u"file"_s}));
}

TEST_F(FeedExport, toAFolder_leavesItAsItIs)
{
    QDir().mkpath(path("folder"));
    const auto inode = status(encoded("folder")).st_ino;
    for (const char *name : {"folder", "folder/", "folder/.", "folder/..", ".", "..", ""})
        store->exportRSS(path(name));
    EXPECT_EQ(names(), (QStringList{u"folder"_s}));
    EXPECT_EQ(status(encoded("folder")).st_ino, inode);
    EXPECT_TRUE(QDir(path("folder")).isEmpty());
}

TEST_F(FeedExport, toAFileThatTheUserMayNotWrite_leavesItAlone)
{
    store->exportRSS(path("feed.xml"));
    const QByteArray before = bytesOf("feed.xml");
    ASSERT_EQ(chmod(encoded("feed.xml"), 0444), 0);
    store->setBlogTitle(u"Renamed"_s);
    {
        const OrdinaryUser user({home.path(), path(".")});
        store->exportRSS(path("feed.xml"));
        EXPECT_EQ(bytesOf("feed.xml"), before);
        store->exportRSS(path("other.xml"));
        EXPECT_EQ(bytesOf("other.xml"), store->generateRSSFeed());
    }
    EXPECT_EQ(names(), (QStringList{u"feed.xml"_s, u"other.xml"_s}));
}

TEST_F(FeedExport, toAPipe_leavesItAloneAndDoesNotWait)
{
    const Watchdog watchdog;
    makePipe(path("pipe"));
    makeLink("link", "pipe");
    const auto inode = status(encoded("pipe")).st_ino;
    store->exportRSS(path("pipe"));
    store->exportRSS(path("link"));
    EXPECT_TRUE(S_ISFIFO(status(encoded("pipe")).st_mode));
    EXPECT_EQ(status(encoded("pipe")).st_ino, inode);
    EXPECT_EQ(names(), (QStringList{u"link"_s, u"pipe"_s}));
}

TEST_F(FeedExport, toASocket_leavesItAlone)
{
    const Watchdog watchdog;
    const ListeningSocket listener(path("socket"));
    store->exportRSS(path("socket"));
    EXPECT_TRUE(S_ISSOCK(status(encoded("socket")).st_mode));
    EXPECT_EQ(names(), (QStringList{u"socket"_s}));
}

class FeedExportToAFullDisk : public FeedExport, public testing::WithParamInterface<rlim_t>
{
protected:
    void SetUp() override
    {
        FeedExport::SetUp();
        BlogPosts posts;
        for (int i = 0; i < 1000; ++i)
            posts.append(postTitled(u"A post that takes room"_s));
        store->setPosts(posts);
        ASSERT_GT(rlim_t(store->generateRSSFeed().size()), GetParam());
    }
};

TEST_P(FeedExportToAFullDisk, leavesNothingBehind)
{
    {
        const FileSizeLimit disk(GetParam());
        store->exportRSS(path("feed.xml"));
    }
    EXPECT_EQ(names(), QStringList());
}

TEST_P(FeedExportToAFullDisk, leavesTheOlderFileWhole)
{
    write("feed.xml", "old");
    const auto inode = status(encoded("feed.xml")).st_ino;
    {
        const FileSizeLimit disk(GetParam());
        store->exportRSS(path("feed.xml"));
    }
    EXPECT_EQ(bytesOf("feed.xml"), "old");
    EXPECT_EQ(status(encoded("feed.xml")).st_ino, inode);
    EXPECT_EQ(names(), (QStringList{u"feed.xml"_s}));
}

// Below, at and above the sizes of usual buffers.
INSTANTIATE_TEST_SUITE_P(Rooms, FeedExportToAFullDisk,
                         testing::Values(0, 1, 4095, 16384, 65536, 100'000));

TEST_F(FeedExport, ofAFeedOneByteLargerThanTheDisk_leavesNothingBehind)
{
    const auto size = rlim_t(store->generateRSSFeed().size());
    {
        const FileSizeLimit disk(size - 1);
        store->exportRSS(path("feed.xml"));
    }
    EXPECT_EQ(names(), QStringList());
    const FileSizeLimit disk(size);
    store->exportRSS(path("feed.xml"));
    EXPECT_EQ(bytesOf("feed.xml"), store->generateRSSFeed());
}

TEST_F(FeedExport, throughALink_keepsTheLinkAndReplacesItsTarget)
{
    QDir().mkpath(path("elsewhere"));
    write("elsewhere/feed.xml", "old");
    makeLink("link", "elsewhere/feed.xml");
    const auto inode = status(encoded("elsewhere/feed.xml")).st_ino;
    store->exportRSS(path("link"));
    EXPECT_EQ(linkTarget("link"), "elsewhere/feed.xml");
    EXPECT_EQ(bytesOf("elsewhere/feed.xml"), store->generateRSSFeed());
    EXPECT_NE(status(encoded("elsewhere/feed.xml")).st_ino, inode);
    EXPECT_EQ(names(), (QStringList{u"elsewhere"_s, u"link"_s}));
}

TEST_F(FeedExport, throughAChainOfLinks_replacesTheFileAtItsEnd)
{
    QDir().mkpath(path("a/b"));
    write("a/b/feed.xml", "old");
    makeLink("first", "a/second");
    makeLink("a/second", encoded("third"));
    makeLink("third", "./a/../a/b/feed.xml");
    store->exportRSS(path("first"));
    EXPECT_EQ(linkTarget("first"), "a/second");
    EXPECT_EQ(linkTarget("a/second"), encoded("third"));
    EXPECT_EQ(linkTarget("third"), "./a/../a/b/feed.xml");
    EXPECT_EQ(bytesOf("a/b/feed.xml"), store->generateRSSFeed());
}

TEST_F(FeedExport, throughALinkToNothing_makesTheFileThatItNames)
{
    QDir().mkpath(path("a"));
    makeLink("first", "a/second");
    makeLink("a/second", "feed.xml");
    store->exportRSS(path("first"));
    EXPECT_EQ(linkTarget("first"), "a/second");
    EXPECT_EQ(linkTarget("a/second"), "feed.xml");
    EXPECT_EQ(bytesOf("a/feed.xml"), store->generateRSSFeed());
}

TEST_F(FeedExport, throughALinkIntoAMissingFolder_makesNothing)
{
    makeLink("link", "missing/feed.xml");
    store->exportRSS(path("link"));
    EXPECT_EQ(linkTarget("link"), "missing/feed.xml");
    EXPECT_EQ(names(), (QStringList{u"link"_s}));
}

TEST_F(FeedExport, throughALinkedFolder_writesWhereThatFolderIs)
{
    QDir().mkpath(path("real/deep"));
    makeLink("folder", "real/deep");
    store->exportRSS(path("folder/feed.xml"));
    EXPECT_EQ(bytesOf("real/deep/feed.xml"), store->generateRSSFeed());
    // The system climbs from where the linked folder is, not from where its name stands.
    store->exportRSS(path("folder/../climbed.xml"));
    EXPECT_EQ(bytesOf("real/climbed.xml"), store->generateRSSFeed());
    EXPECT_EQ(names(), (QStringList{u"folder"_s, u"real"_s}));
}

TEST_F(FeedExport, throughALinkThatClimbsOutOfALinkedFolder_findsItsTarget)
{
    QDir().mkpath(path("real/deep"));
    write("real/feed.xml", "old");
    makeLink("folder", "real/deep");
    makeLink("link", "folder/../feed.xml");
    makeLink("toNothing", "folder/../new.xml");
    store->exportRSS(path("link"));
    store->exportRSS(path("toNothing"));
    EXPECT_EQ(bytesOf("real/feed.xml"), store->generateRSSFeed());
    EXPECT_EQ(bytesOf("real/new.xml"), store->generateRSSFeed());
    EXPECT_EQ(names(), (QStringList{u"folder"_s, u"link"_s, u"real"_s, u"toNothing"_s}));
}

TEST_F(FeedExport, throughLinksThatNeverEnd_makesNothing)
{
    const Watchdog watchdog;
    makeLink("first", "second");
    makeLink("second", "first");
    makeLink("self", "self");
    for (const char *name : {"first", "self"})
        store->exportRSS(path(name));
    EXPECT_EQ(linkTarget("first"), "second");
    EXPECT_EQ(linkTarget("second"), "first");
    EXPECT_EQ(linkTarget("self"), "self");
    EXPECT_EQ(names(), (QStringList{u"first"_s, u"second"_s, u"self"_s}));
}

TEST_F(FeedExport, throughALinkToAFolder_leavesBothAlone)
{
    QDir().mkpath(path("folder"));
    makeLink("link", "folder");
    store->exportRSS(path("link"));
    EXPECT_EQ(linkTarget("link"), "folder");
    EXPECT_TRUE(QDir(path("folder")).isEmpty());
    EXPECT_EQ(names(), (QStringList{u"folder"_s, u"link"_s}));
}

TEST(ReplaceFile, saysWhetherItDid)
{
    const TemporaryHome home;
    EXPECT_TRUE(replaceFile(home.path(u"file"_s), "new"));
    EXPECT_EQ(home.read(u"file"_s), "new");
    EXPECT_TRUE(replaceFile(home.path(u"file"_s), ""));
    EXPECT_EQ(home.read(u"file"_s), "");
    EXPECT_FALSE(replaceFile(home.path(), "new"));
    EXPECT_FALSE(replaceFile(home.path(u"missing/file"_s), "new"));
    EXPECT_FALSE(replaceFile(QString(), "new"));
    const FileSizeLimit disk(2);
    EXPECT_FALSE(replaceFile(home.path(u"file"_s), "new"));
}
