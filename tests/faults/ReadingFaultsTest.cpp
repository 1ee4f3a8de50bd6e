// What the store does when the disk fails while it reads: a file counts as a whole, or not at all.
#include "model/RecordsJson.h"
#include "tests/faults/BlogOnFaultyDisk.h"
#include "tests/faults/Failures.h"
#include "tests/support/CapturedOutput.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

const QStringList savedTitles{u"First"_s, u"Second"_s};

/// About 140 KB: more than a small buffer holds.
QByteArray feed()
{
    QByteArray items;
    for (int i = 0; i < 2000; ++i)
        items += "<item><title>Imported</title><description>Of a feed</description></item>\n";
    return items;
}

class ReadingFaults : public testing::Test
{
protected:
    void SetUp() override
    {
        m_blog.store->setPosts({postTitled(savedTitles[0]), postTitled(savedTitles[1])});
        m_blog.store->setBlogTitle(u"Saved"_s);
        m_blog.store->savePosts();
        m_blog.store->saveSettings();
        m_before = m_blog.contents();
    }

    BlogOnFaultyDisk m_blog;
    Contents m_before;
};

} // namespace

TEST_F(ReadingFaults, atAStart_leaveWholeFilesOrDefaults_andTheFilesAlone)
{
    std::vector<DiskCall> calls;
    {
        const FaultyDisk disk(m_blog.folder());
        BlogViewModel::create();
        calls = disk.calls();
    }
    EXPECT_GT(std::count(calls.begin(), calls.end(), DiskCall::Read), 3);
    CapturedOutput output(stdout);
    CapturedOutput errors(stderr);
    const qsizetype descriptors = openDescriptors();
    for (const DiskFault &fault : everyFailure(calls)) {
        SCOPED_TRACE(testing::Message() << fault << ", " << calls[fault.position]);
        std::shared_ptr<BlogViewModel> store;
        {
            const FaultyDisk disk(m_blog.folder(), fault);
            store = BlogViewModel::create();
        }
        const QStringList titles = titlesOf(store->posts());
        EXPECT_TRUE(titles.isEmpty() || titles == savedTitles);
        EXPECT_TRUE(store->blogTitle() == u"Saved"_s || store->blogTitle() == u"My Tavlo"_s);
        EXPECT_EQ(m_blog.contents(), m_before);
    }
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(output.text() + errors.text(), "");
    EXPECT_EQ(Memory(*BlogViewModel::create()), Memory(*m_blog.store));
}

TEST_F(ReadingFaults, atAStart_thatOnlyHinder_areOvercome)
{
    std::vector<DiskCall> calls;
    {
        const FaultyDisk disk(m_blog.folder());
        BlogViewModel::create();
        calls = disk.calls();
    }
    for (const DiskFault &fault : everyHindrance(calls)) {
        SCOPED_TRACE(testing::Message() << fault << ", " << calls[fault.position]);
        const FaultyDisk disk(m_blog.folder(), fault);
        EXPECT_EQ(Memory(*BlogViewModel::create()), Memory(*m_blog.store));
    }
}

namespace {

class ImportFaults : public ReadingFaults
{
protected:
    void SetUp() override
    {
        ReadingFaults::SetUp();
        m_blog.home.write(u"feed.xml"_s, feed());
        m_before = m_blog.contents();
    }

    /// The calls of an import, without the save that follows it.
    std::vector<DiskCall> calls()
    {
        const FaultyDisk disk(m_blog.folder());
        import();
        return disk.calls();
    }

    void import() { m_blog.store->importRSSFeed(m_blog.home.path(u"feed.xml"_s)); }
};

} // namespace

TEST_F(ImportFaults, leaveAllPostsOfTheFeed_orTheOldOnesAndALine)
{
    const auto calls = this->calls();
    EXPECT_GE(std::count(calls.begin(), calls.end(), DiskCall::Read), 1);
    QCoreApplication::processEvents();
    const auto imported = titlesOf(m_blog.store->posts());
    EXPECT_EQ(imported.size(), 2000);
    for (const DiskFault &fault : everyFailure(calls)) {
        SCOPED_TRACE(testing::Message() << fault << ", " << calls[fault.position]);
        m_blog.store->setPosts({postTitled(savedTitles[0]), postTitled(savedTitles[1])});
        m_blog.store->savePosts();
        const Contents before = m_blog.contents();
        CapturedOutput output(stdout);
        {
            const FaultyDisk disk(m_blog.folder(), fault);
            import();
        }
        QCoreApplication::processEvents();
        const QStringList titles = titlesOf(m_blog.store->posts());
        if (output.text().isEmpty()) {
            EXPECT_EQ(titles, imported);
        } else {
            EXPECT_EQ(output.text(), "Failed to read RSS file\n");
            EXPECT_EQ(titles, savedTitles);
            EXPECT_EQ(m_blog.contents(), before);
        }
    }
}

TEST_F(ImportFaults, thatOnlyHinder_areOvercome)
{
    const auto calls = this->calls();
    for (const DiskFault &fault : everyHindrance(calls)) {
        SCOPED_TRACE(testing::Message() << fault << ", " << calls[fault.position]);
        m_blog.store->setPosts({});
        {
            const FaultyDisk disk(m_blog.folder(), fault);
            import();
        }
        QCoreApplication::processEvents();
        EXPECT_EQ(m_blog.store->posts().size(), 2000);
    }
}
