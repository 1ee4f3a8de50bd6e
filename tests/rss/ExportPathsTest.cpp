// The path of an export is taken as typed: nothing in it is an address, a home or a pattern.
#include "tests/rss/ExportFolder.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

/// A path relative to the current folder, and the folder that must be there for it.
struct TypedPath
{
    const char *typed;
    const char *folder = ".";

    friend std::ostream &operator<<(std::ostream &out, const TypedPath &path)
    {
        return out << path.typed;
    }
};

} // namespace

class ExportPaths : public ExportFolder, public testing::WithParamInterface<TypedPath>
{
};

TEST_P(ExportPaths, areNamesOfFilesAsTyped)
{
    const auto &[typed, folder] = GetParam();
    ASSERT_TRUE(QDir().mkpath(path(folder)));
    const QByteArray feed = store->generateRSSFeed();

    store->exportRSS(textFromUtf8(typed));
    // Asked of the system itself, which knows names as bytes only.
    EXPECT_EQ(bytesOfRelative(typed), feed);
    const QStringList after = names();
    EXPECT_EQ(after.size(), 1) << after.join(u", "_s).toStdString();

    unlink(typed);
    store->exportRSS(path(typed));
    EXPECT_EQ(bytesOfRelative(typed), feed) << "by its absolute path";
    EXPECT_EQ(names(), after);
}

INSTANTIATE_TEST_SUITE_P(Relative, ExportPaths,
                         testing::Values(TypedPath{"feed.xml"}, TypedPath{"./feed.xml"},
                                         TypedPath{"feed"}, TypedPath{"a/b/feed.xml", "a/b"},
                                         TypedPath{"a//feed.xml", "a"},
                                         TypedPath{"a/../a/feed.xml", "a"}, TypedPath{".hidden"},
                                         TypedPath{"-"}, TypedPath{"--help"}, TypedPath{"..."}));

INSTANTIATE_TEST_SUITE_P(
    LikeAddresses, ExportPaths,
    testing::Values(TypedPath{"50%20#1?.xml"}, TypedPath{"%2e%2e%2ffeed.xml"}, TypedPath{"100%"},
                    TypedPath{"a+b&c=d;e.xml"}, TypedPath{"#"}, TypedPath{"?"},
                    TypedPath{"file:feed.xml"}, TypedPath{"file:///tmp/feed.xml", "file:/tmp"},
                    TypedPath{"https://example.com/feed.xml", "https:/example.com"},
                    TypedPath{"user@host:feed.xml"}));

INSTANTIATE_TEST_SUITE_P(LikeNamesOfOtherSystems, ExportPaths,
                         testing::Values(TypedPath{"a:b"}, TypedPath{"c:/feed.xml", "c:"},
                                         TypedPath{":feed.xml"}, TypedPath{":/feed.xml", ":"},
                                         TypedPath{"qrc:/feed.xml", "qrc:"},
                                         TypedPath{"C:\\feed.xml"}, TypedPath{"\\\\host\\feed.xml"},
                                         TypedPath{"nul"}));

INSTANTIATE_TEST_SUITE_P(LikeShellWords, ExportPaths,
                         testing::Values(TypedPath{"~/feed.xml", "~"}, TypedPath{"~root"},
                                         TypedPath{"$HOME"}, TypedPath{"*.xml"},
                                         TypedPath{"[a]{b,c}"}, TypedPath{"'quoted'"},
                                         TypedPath{"\"quoted\""}, TypedPath{"`a` | b > c"}));

INSTANTIATE_TEST_SUITE_P(OddCharacters, ExportPaths,
                         testing::Values(TypedPath{"  leading"}, TypedPath{"trailing  "},
                                         TypedPath{" "}, TypedPath{" /feed.xml", " "},
                                         TypedPath{"two\nlines\t.xml"}, TypedPath{"\x01\x7f"},
                                         TypedPath{"\u00e9 composed"}, TypedPath{"e\u0301 not"},
                                         TypedPath{"\u65e5\u672c\u8a9e.xml"},
                                         TypedPath{"\U0001F600"}, TypedPath{"\ufeffmark"},
                                         TypedPath{"XXXXXX.xml"}, TypedPath{"feed.XXXXXX"}));

class ExportPath : public ExportFolder
{
};

TEST_F(ExportPath, composedAndDecomposedNames_areTwoFiles)
{
    store->exportRSS(u"\u00e9"_s);
    store->exportRSS(u"e\u0301"_s);
    EXPECT_EQ(names().size(), 2);
}

TEST_F(ExportPath, addressOfAFolderThatIsNotThere_makesNothing)
{
    // Were they taken for what they look like, these would be written.
    const QString elsewhere = home.path(u"feed.xml"_s);
    store->exportRSS(u"file://"_s + elsewhere);
    store->exportRSS(u"~/feed.xml"_s);
    store->exportRSS(u"$HOME/feed.xml"_s);
    store->exportRSS(u" "_s + elsewhere);
    EXPECT_FALSE(QFile::exists(elsewhere));
    EXPECT_EQ(names(), QStringList());
}

TEST_F(ExportPath, severalLeadingSlashes_areOne)
{
    const QByteArray feed = store->generateRSSFeed();
    for (const QString &slashes : {u"/"_s, u"//"_s, u"///"_s}) {
        const QString file = home.path(u"slashes.xml"_s);
        store->exportRSS(slashes + file);
        EXPECT_EQ(home.read(u"slashes.xml"_s), feed) << slashes.toStdString();
        QFile::remove(file);
    }
}

TEST_F(ExportPath, emptyPath_makesNothing)
{
    store->exportRSS(QString());
    store->exportRSS(u""_s);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(ExportPath, pathWithANul_makesNothing)
{
    // The system would take such a path to end before it.
    store->exportRSS(path("feed.xml") + QChar::Null + u"tail"_s);
    store->exportRSS(u"feed.xml"_s + QChar::Null);
    store->exportRSS(QString(QChar::Null) + u"feed.xml"_s);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(ExportPath, nameLongerThanTheSystems_makesNothing)
{
    store->exportRSS(QString(300, u'a'));
    store->exportRSS(QString(5000, u'/') + u"feed.xml"_s);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(ExportPath, relativePathInAFolderThatIsGone_makesNothing)
{
    QDir().mkpath(path("gone"));
    ASSERT_EQ(chdir(encoded("gone")), 0);
    ASSERT_EQ(rmdir(encoded("gone")), 0);
    store->exportRSS(u"export of a test to a folder that is gone"_s);
    EXPECT_EQ(names(), QStringList());
    EXPECT_FALSE(QFile::remove(u"/export of a test to a folder that is gone"_s));
}
