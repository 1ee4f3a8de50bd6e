// What the store does when the disk fails while it saves or exports: each call that it makes fails
// in turn. What the calls are is seen in a run in which all of them work.
#include "model/Files.h"
#include "model/RecordsJson.h"
#include "tests/faults/BlogOnFaultyDisk.h"
#include "tests/faults/Failures.h"
#include "tests/support/CapturedOutput.h"

#include <QCoreApplication>

#include <sys/stat.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <set>

using namespace Qt::StringLiterals;

namespace {

enum class Kind { SavePosts, SaveSettings, Export };

using Step = std::function<void(BlogOnFaultyDisk &)>;

/// Something that writes one file. Its steps find, and leave, the same posts at every run.
struct Operation
{
    const char *name;
    Kind kind;
    QString file; ///< the one that it writes
    Step prepare;
    Step run;
};

void PrintTo(const Operation &operation, std::ostream *out) // NOLINT(readability-identifier-naming)
{
    *out << operation.name;
}

// Posts are made once, for their ids.

const BlogPosts &fewPosts()
{
    static const BlogPosts posts{postTitled(u"First"_s), postTitled(u"Second"_s)};
    return posts;
}

/// Half a megabyte of them: more than buffers hold.
const BlogPosts &manyPosts()
{
    static const BlogPosts posts(100, postTitled(QString(1000, u'x')));
    return posts;
}

const BlogPost &newPost()
{
    static const BlogPost post = postTitled(u"New"_s);
    return post;
}

// What may be there before.

void nothing(BlogOnFaultyDisk & /*blog*/) {}

Step saved(const BlogPosts &posts)
{
    return [posts](BlogOnFaultyDisk &blog) {
        blog.store->setPosts(posts);
        blog.store->savePosts();
        blog.store->saveSettings();
    };
}

Step exported(const BlogPosts &posts)
{
    return [posts](BlogOnFaultyDisk &blog) {
        blog.store->setPosts(posts);
        blog.home.write(blog.target, "an older feed");
    };
}

const QString elsewhere = u"elsewhere/real.xml"_s;

void linkTarget(BlogOnFaultyDisk &blog)
{
    blog.store->setPosts(fewPosts());
    QDir().mkpath(blog.home.path(u"elsewhere"_s));
    QFile::link(u"../"_s + elsewhere, blog.home.path(blog.target));
}

void linkTargetToAFile(BlogOnFaultyDisk &blog)
{
    linkTarget(blog);
    blog.home.write(elsewhere, "an older feed");
}

void prepareImport(BlogOnFaultyDisk &blog)
{
    saved(fewPosts())(blog);
    blog.home.write(u"feed.xml"_s, "<item><title>Imported</title></item>");
    blog.store->importRSSFeed(blog.home.path(u"feed.xml"_s));
}

// What is done.

void add(BlogOnFaultyDisk &blog)
{
    blog.store->addPost(newPost());
}

void change(BlogOnFaultyDisk &blog)
{
    BlogPost post = fewPosts().constLast();
    post.title = u"Changed"_s;
    blog.store->updatePost(post);
}

void remove(BlogOnFaultyDisk &blog)
{
    blog.store->deletePost({0});
}

void finishImport(BlogOnFaultyDisk & /*blog*/)
{
    QCoreApplication::processEvents();
}

void saveSettings(BlogOnFaultyDisk &blog)
{
    blog.store->setBlogTitle(u"Renamed"_s);
    blog.store->saveSettings();
}

void exportFeed(BlogOnFaultyDisk &blog)
{
    blog.store->exportRSS(blog.home.path(blog.target));
}

std::vector<Operation> operations()
{
    const BlogOnFaultyDisk blog;
    return {
        {"addingAPost_toNoFile", Kind::SavePosts, blog.posts, nothing, add},
        {"addingAPost_toAFile", Kind::SavePosts, blog.posts, saved(fewPosts()), add},
        {"addingAPost_toALargeFile", Kind::SavePosts, blog.posts, saved(manyPosts()), add},
        {"changingAPost", Kind::SavePosts, blog.posts, saved(fewPosts()), change},
        {"deletingAPost", Kind::SavePosts, blog.posts, saved(fewPosts()), remove},
        {"importing", Kind::SavePosts, blog.posts, prepareImport, finishImport},
        {"savingSettings_toNoFile", Kind::SaveSettings, blog.settings, nothing, saveSettings},
        {"savingSettings_toAFile", Kind::SaveSettings, blog.settings, saved({}), saveSettings},
        {"exporting_toNoFile", Kind::Export, blog.target, saved(fewPosts()), exportFeed},
        {"exporting_toAFile", Kind::Export, blog.target, exported(fewPosts()), exportFeed},
        {"exportingALot_toAFile", Kind::Export, blog.target, exported(manyPosts()), exportFeed},
        {"exporting_throughALink", Kind::Export, elsewhere, linkTargetToAFile, exportFeed},
        {"exporting_throughALinkToNothing", Kind::Export, elsewhere, linkTarget, exportFeed},
    };
}

ino_t inodeOf(const QString &path)
{
    struct stat status = {};
    stat(QFile::encodeName(path).constData(), &status);
    return status.st_ino;
}

/// What an operation does while the disk works.
struct Undisturbed
{
    explicit Undisturbed(const Operation &operation)
    {
        BlogOnFaultyDisk blog;
        operation.prepare(blog);
        {
            const FaultyDisk disk(blog.folder());
            operation.run(blog);
            calls = disk.calls();
        }
        memory.emplace(*blog.store);
        written = blog.home.read(operation.file);
    }

    std::vector<DiskCall> calls;
    std::optional<Memory> memory;
    std::optional<QByteArray> written;
};

/// The operation with one fault, and what must hold whatever the fault is.
class Disturbed
{
public:
    Disturbed(const Operation &operation, const Undisturbed &undisturbed, const DiskFault &fault)
        : m_operation(operation)
    {
        operation.prepare(m_blog);
        m_before = m_blog.contents();
        m_inodeBefore = inodeOf(path());
        run(undisturbed, fault);
        EXPECT_EQ(Memory(*m_blog.store), *undisturbed.memory);
        m_after = m_blog.contents();
        expectNothingElseChanged(operation.file, m_before, m_after);
    }

    /// The bytes of the operation's file; nothing when it is not there.
    std::optional<QByteArray> written() const { return m_blog.home.read(m_operation.file); }

    bool hasChangedNothing() const { return m_after == m_before; }

    /// Whether the file, still the same one, holds what it held or a beginning of what was saved.
    bool hasSavedInPlace() const
    {
        if (hasChangedNothing())
            return true;
        const bool isTheSame = m_inodeBefore == 0 || m_inodeBefore == inodeOf(path());
        return isTheSame && bytesToSave().startsWith(written().value());
    }

    /// Once the disk works again.
    void expectTheNextToSucceed()
    {
        BlogViewModel &store = *m_blog.store;
        switch (m_operation.kind) {
        case Kind::SavePosts:
            store.savePosts();
            EXPECT_TRUE(identical(decodePosts(readFile(path()).value()).value(), store.posts()));
            EXPECT_TRUE(identical(BlogViewModel::create()->posts(), store.posts()));
            break;
        case Kind::SaveSettings:
            store.saveSettings();
            EXPECT_EQ(decodeSettings(readFile(path()).value())->title, store.blogTitle());
            EXPECT_EQ(BlogViewModel::create()->blogTitle(), store.blogTitle());
            break;
        case Kind::Export:
            exportFeed(m_blog);
            EXPECT_EQ(readFile(path()), store.generateRSSFeed());
            break;
        }
        expectNothingElseChanged(m_operation.file, m_before, m_blog.contents());
    }

private:
    QString path() const { return m_blog.home.path(m_operation.file); }

    QByteArray bytesToSave() const
    {
        const BlogViewModel &store = *m_blog.store;
        if (m_operation.kind == Kind::SavePosts)
            return encodePosts(store.posts()).value();
        return encodeSettings({store.blogTitle(), store.blogLink(), store.blogDescription()});
    }

    void run(const Undisturbed &undisturbed, const DiskFault &fault)
    {
        CapturedOutput output(stdout);
        CapturedOutput errors(stderr);
        const qsizetype descriptors = openDescriptors();
        {
            const FaultyDisk disk(m_blog.folder(), fault);
            m_operation.run(m_blog);
            ASSERT_GT(disk.calls().size(), fault.position);
            EXPECT_EQ(disk.calls()[fault.position], undisturbed.calls[fault.position]);
        }
        EXPECT_EQ(openDescriptors(), descriptors);
        std::fflush(stdout);
        EXPECT_EQ(output.text(), "");
        EXPECT_EQ(errors.text(), "");
    }

    const Operation &m_operation;
    BlogOnFaultyDisk m_blog;
    Contents m_before;
    Contents m_after;
    ino_t m_inodeBefore = 0;
};

class WritingFaults : public testing::TestWithParam<Operation>
{
};

} // namespace

TEST_P(WritingFaults, loseNothingButTheFileThatIsSaved_andNoExport)
{
    const Operation &operation = GetParam();
    const Undisturbed undisturbed(operation);
    const auto faults = everyFailure(undisturbed.calls);
    for (const DiskFault &fault : faults) {
        SCOPED_TRACE(testing::Message() << fault << ", " << undisturbed.calls[fault.position]);
        Disturbed disturbed(operation, undisturbed, fault);
        if (operation.kind == Kind::Export)
            EXPECT_TRUE(disturbed.hasChangedNothing()
                        || disturbed.written() == undisturbed.written);
        else
            EXPECT_TRUE(disturbed.hasSavedInPlace());
        disturbed.expectTheNextToSucceed();
    }
    std::printf("%zu calls, %zu faults\n", undisturbed.calls.size(), faults.size());
}

TEST_P(WritingFaults, thatOnlyHinder_areOvercome)
{
    const Operation &operation = GetParam();
    const Undisturbed undisturbed(operation);
    const auto hindrances = everyHindrance(undisturbed.calls);
    for (const DiskFault &fault : hindrances) {
        SCOPED_TRACE(testing::Message() << fault << ", " << undisturbed.calls[fault.position]);
        const Disturbed disturbed(operation, undisturbed, fault);
        if (operation.kind == Kind::SavePosts) // an import's dates differ from run to run
            EXPECT_EQ(titlesOf(decodePosts(disturbed.written().value()).value()),
                      undisturbed.memory->titles);
        else
            EXPECT_EQ(disturbed.written(), undisturbed.written);
    }
    std::printf("%zu hindrances\n", hindrances.size());
}

INSTANTIATE_TEST_SUITE_P(EachOperation, WritingFaults, testing::ValuesIn(operations()),
                         [](const auto &info) { return info.param.name; });

/// An export may take its target's place only once the disk has all of it.
TEST(ExportFaults, thatKeepTheBytesFromTheDisk_leaveTheTargetAlone)
{
    for (const Operation &operation : operations()) {
        if (operation.kind != Kind::Export)
            continue;
        const Undisturbed undisturbed(operation);
        for (const DiskFault &fault : everyFailure(undisturbed.calls)) {
            const DiskCall call = undisturbed.calls[fault.position];
            const bool isFirst = std::find(undisturbed.calls.begin(), undisturbed.calls.end(), call)
                == undisturbed.calls.begin() + std::ptrdiff_t(fault.position);
            if (!isFirst || (call != DiskCall::Write && call != DiskCall::Sync))
                continue;
            SCOPED_TRACE(testing::Message() << operation.name << ": " << fault << ", " << call);
            EXPECT_TRUE(Disturbed(operation, undisturbed, fault).hasChangedNothing());
        }
    }
}

/// The disk stands before the C library, or these would not be seen; and there is no other call
/// that would have to fail.
TEST(FaultyDisk, seesEachKindOfCall)
{
    std::map<Kind, std::set<DiskCall>> seen;
    for (const Operation &operation : operations()) {
        const Undisturbed undisturbed(operation);
        seen[operation.kind].insert(undisturbed.calls.begin(), undisturbed.calls.end());
    }
    using enum DiskCall;
    const std::set<DiskCall> save{Open, Read, Write, Status, Close};
    EXPECT_EQ(seen[Kind::SavePosts], save);
    EXPECT_EQ(seen[Kind::SaveSettings], save);
    EXPECT_EQ(seen[Kind::Export],
              (std::set<DiskCall>{Open, Write, Sync, Link, Rename, Permissions, Status, Close}));
}
