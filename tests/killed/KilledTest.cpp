// What is left of the files when the process that writes them is killed, at any moment.
#include "model/BlogViewModel.h"
#include "model/RecordsJson.h"
#include "tests/killed/KilledWriter.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kills = 300;
constexpr unsigned seed = 20260101;

/// About 1 KB a post.
BlogPosts blogOf(qsizetype count, char16_t letter)
{
    BlogPosts posts;
    for (qsizetype i = 0; i < count; ++i) {
        BlogPost post = postTitled(QString::number(i));
        post.description = QString(800, letter);
        posts.append(post);
    }
    return posts;
}

class Killed : public testing::Test
{
protected:
    /// So many posts, and another document of fewer.
    explicit Killed(qsizetype count)
        : m_longer(blogOf(count, u'l'))
        , m_shorter(blogOf(2 * count / 3, u's'))
    {
        const auto start = std::chrono::steady_clock::now();
        m_store->setPosts(m_longer);
        m_store->exportRSS(m_home.path(u"feed.xml"_s));
        m_store->savePosts();
        const auto time = std::chrono::steady_clock::now() - start;
        m_longest = std::chrono::duration_cast<std::chrono::microseconds>(2 * time);
    }

    /// A moment within the first few rounds of work.
    std::chrono::microseconds someTime()
    {
        return std::chrono::microseconds(
            std::uniform_int_distribution<std::int64_t>(0, m_longest.count())(m_random));
    }

    /// Lets a process write, over and over, and kills it.
    void killWhile(const std::function<void(unsigned)> &write)
    {
        KilledWriter writer(write);
        writer.work(someTime());
        writer.kill();
        EXPECT_TRUE(writer.wasKilled());
        m_inTheMidst += writer.wasWriting();
    }

    const TemporaryHome m_home;
    const std::shared_ptr<BlogViewModel> m_store = BlogViewModel::create();
    const BlogPosts m_longer;
    const BlogPosts m_shorter;
    int m_inTheMidst = 0;

private:
    std::mt19937 m_random{seed};
    std::chrono::microseconds m_longest;
};

class KilledExporting : public Killed
{
protected:
    KilledExporting()
        : Killed(1000)
    {
    }
};

class KilledSaving : public Killed
{
protected:
    KilledSaving()
        : Killed(300)
    {
    }
};

} // namespace

TEST_F(KilledExporting, leavesTheTargetWhole)
{
    const QString target = m_home.path(u"feed.xml"_s);
    m_store->setPosts(m_shorter);
    const QByteArray shorter = m_store->generateRSSFeed();
    m_store->setPosts(m_longer);
    const QByteArray longer = m_store->generateRSSFeed();
    int leftovers = 0;
    int ofShorter = 0;
    for (int i = 0; i < kills; ++i) {
        killWhile([&](unsigned round) {
            m_store->setPosts(round % 2 == 0 ? m_shorter : m_longer);
            m_store->exportRSS(target);
        });
        const auto feed = m_home.read(u"feed.xml"_s);
        ASSERT_TRUE(feed);
        ASSERT_TRUE(*feed == longer || *feed == shorter) << feed->size() << " bytes, kill " << i;
        ofShorter += *feed == shorter;
        for (const QString &name : m_home.names()) {
            if (name == u"feed.xml"_s || name == u"posts.json"_s)
                continue;
            EXPECT_TRUE(name.startsWith(u"feed.xml."_s)) << name.toStdString();
            QFile::remove(m_home.path(name));
            ++leftovers;
        }
    }
    std::printf(
        "%d kills, %d of them in the midst of an export: %d times the one document, %d times "
        "the other, %d auxiliary files left\n",
        kills, m_inTheMidst, ofShorter, kills - ofShorter, leftovers);
    EXPECT_GT(m_inTheMidst, kills / 2);
    EXPECT_GT(ofShorter, 0);
    EXPECT_LT(ofShorter, kills);
}

TEST_F(KilledSaving, isFollowedByAStartFromWhateverIsLeft)
{
    const QByteArray shorter = encodePosts(m_shorter).value();
    const QByteArray longer = encodePosts(m_longer).value();
    int partial = 0;
    for (int i = 0; i < kills; ++i) {
        m_store->setPosts(m_longer);
        m_store->savePosts();
        killWhile([&](unsigned round) {
            m_store->setPosts(round % 2 == 0 ? m_shorter : m_longer);
            m_store->savePosts();
            m_store->setBlogTitle(QString::number(round));
            m_store->saveSettings();
        });
        const QByteArray left = m_home.read(u"posts.json"_s).value_or("not there");
        ASSERT_TRUE(longer.startsWith(left) || shorter.startsWith(left)) << "kill " << i;
        const auto restarted = BlogViewModel::create();
        if (left == longer || left == shorter) {
            EXPECT_TRUE(identical(restarted->posts(), left == longer ? m_longer : m_shorter));
        } else {
            ++partial;
            EXPECT_TRUE(restarted->posts().isEmpty());
        }
        restarted->addPost(postTitled(u"New"_s));
        EXPECT_TRUE(identical(BlogViewModel::create()->posts(), restarted->posts()));
    }
    std::printf("%d kills, %d of them in the midst of a save, %d left a part of posts.json\n",
                kills, m_inTheMidst, partial);
    EXPECT_GT(m_inTheMidst, kills / 2);
}

TEST_F(KilledSaving, twoAtOnce_isFollowedByAStartFromWhateverIsLeft)
{
    int undecodable = 0;
    const auto save = [this](const BlogPosts &posts) {
        return [this, &posts](unsigned round) {
            m_store->setPosts(posts.mid(0, posts.size() - qsizetype(round % 100)));
            m_store->savePosts();
            m_store->setBlogTitle(QString(qsizetype(round % 100), u't'));
            m_store->saveSettings();
        };
    };
    for (int i = 0; i < kills / 10; ++i) {
        {
            const KilledWriter one(save(m_longer));
            const KilledWriter other(save(m_shorter));
            one.work(someTime());
            other.work(someTime());
        }
        const bool decodes = decodePosts(m_home.read(u"posts.json"_s).value()).has_value();
        undecodable += !decodes;
        const auto restarted = BlogViewModel::create();
        EXPECT_NE(restarted->posts().isEmpty(), decodes);
        restarted->addPost(postTitled(u"New"_s));
        EXPECT_TRUE(identical(BlogViewModel::create()->posts(), restarted->posts()));
    }
    std::printf("%d times killed, %d of them with a posts.json that cannot be read\n", kills / 10,
                undecodable);
}
