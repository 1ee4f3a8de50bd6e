#include "model/UserDirectories.h"

#include "tests/support/Printers.h"
#include "tests/support/SpecialFiles.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

struct Table
{
    const char *text;
    const char *documents; ///< relative to the home directory, or absolute

    // NOLINTNEXTLINE(readability-identifier-naming): the name is GoogleTest's.
    friend void PrintTo(const Table &table, std::ostream *out) { *out << table.text; }
};

class UserDirectoriesTable : public testing::TestWithParam<Table>
{
};

class UserDirectories : public testing::Test
{
protected:
    TemporaryHome m_home;
};

} // namespace

TEST_P(UserDirectoriesTable, namesTheDocumentsDirectory)
{
    const TemporaryHome home;
    home.writeUserDirectories(GetParam().text);
    const QString expected = QString::fromUtf8(GetParam().documents);
    EXPECT_EQ(documentsDirectory(),
              expected.isEmpty() ? home.path() : QDir(home.path()).absoluteFilePath(expected));
}

INSTANTIATE_TEST_SUITE_P(
    Entries, UserDirectoriesTable,
    testing::Values(
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n", "Documents"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Documents\"", "Documents"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\r\n", "Documents"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Dokumente/Mein Blog\"\n", "Dokumente/Mein Blog"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/\u30c9\u30ad\u30e5\u30e1\u30f3\u30c8\"\n",
              "\u30c9\u30ad\u30e5\u30e1\u30f3\u30c8"},
        Table{"XDG_DOCUMENTS_DIR=\"/srv/docs\"\n", "/srv/docs"},
        Table{"XDG_DOCUMENTS_DIR=\"/\"\n", "/"},
        // How a desktop says that there is none: the home directory.
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", ""}, Table{"XDG_DOCUMENTS_DIR=\"$HOME\"\n", ""},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Documents/\"\n", "Documents"},
        // White space, comments and other entries.
        Table{"  XDG_DOCUMENTS_DIR = \"$HOME/Documents\"  \n", "Documents"},
        Table{"# XDG_DOCUMENTS_DIR=\"$HOME/No\"\nXDG_DOCUMENTS_DIR=\"$HOME/Yes\"\n", "Yes"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Yes\"\n#XDG_DOCUMENTS_DIR=\"$HOME/No\"\n", "Yes"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/Yes\" # a remark\n", "Yes"},
        Table{"XDG_DESKTOP_DIR=\"$HOME/D\"\nXDG_DOCUMENTS_DIR=\"$HOME/Yes\"\nXDG_MUSIC_DIR=\"$HOME/"
              "M\"",
              "Yes"},
        Table{"XDG_DOCUMENTS_DIRECTORY=\"$HOME/No\"\nMY_XDG_DOCUMENTS_DIR=\"$HOME/No\"\n", ""},
        // The last one counts, of those that are well-formed.
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/One\"\nXDG_DOCUMENTS_DIR=\"$HOME/Two\"\n", "Two"},
        Table{"XDG_DOCUMENTS_DIR=\"$HOME/One\"\nXDG_DOCUMENTS_DIR=\"relative\"\n", "One"},
        // Escapes.
        Table{R"(XDG_DOCUMENTS_DIR="$HOME/a \"b\" \$c \\d \`e")", R"(a "b" $c \d `e)"},
        // Without its closing quote an entry goes as far as its line.
        Table{"XDG_DOCUMENTS_DIR=\"/srv/docs", "/srv/docs"},
        Table{"XDG_DOCUMENTS_DIR=\"/srv/docs\nXDG_MUSIC_DIR=\"/srv/music\"\n", "/srv/docs"},
        Table{R"(XDG_DOCUMENTS_DIR="/srv/docs\)", R"(/srv/docs\)"},
        // Ignored: relative, unquoted, another variable, nothing.
        Table{"XDG_DOCUMENTS_DIR=\"Documents\"\n", ""}, Table{"XDG_DOCUMENTS_DIR=\"\"\n", ""},
        Table{"XDG_DOCUMENTS_DIR=$HOME/Documents\n", ""}, Table{"XDG_DOCUMENTS_DIR=/srv\n", ""},
        Table{"XDG_DOCUMENTS_DIR=\"~/Documents\"\n", ""},
        Table{"XDG_DOCUMENTS_DIR=\"$HOMEWORK/Documents\"\n", ""},
        Table{"XDG_DOCUMENTS_DIR=\"$OTHER/Documents\"\n", ""}, Table{"XDG_DOCUMENTS_DIR\n", ""},
        Table{"XDG_DOCUMENTS_DIR=\n", ""}, Table{"", ""}, Table{"\n\n", ""}));

TEST_F(UserDirectories, withoutATable_areTheHomeDirectory)
{
    EXPECT_EQ(documentsDirectory(), m_home.path());
    EXPECT_EQ(desktopDirectory(), m_home.path());
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"Documents"_s)));
    EXPECT_EQ(documentsDirectory(), m_home.path());
}

TEST_F(UserDirectories, desktop_isItsEntry_elseAFolderOfThatName_elseTheHomeDirectory)
{
    // A file of that name is no folder.
    m_home.write(u"Desktop"_s, "");
    EXPECT_EQ(desktopDirectory(), m_home.path());
    QFile::remove(m_home.path(u"Desktop"_s));
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"Desktop"_s)));
    EXPECT_EQ(desktopDirectory(), m_home.path(u"Desktop"_s));

    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n");
    EXPECT_EQ(desktopDirectory(), m_home.path(u"Desktop"_s));
    // An entry counts whether its folder is there or not.
    m_home.writeUserDirectories("XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
    EXPECT_EQ(desktopDirectory(), m_home.path(u"Schreibtisch"_s));
    EXPECT_EQ(documentsDirectory(), m_home.path());
}

TEST_F(UserDirectories, documents_areTheirEntry_whoseFolderIsMissing)
{
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Missing\"\n");
    EXPECT_EQ(documentsDirectory(), m_home.path(u"Missing"_s));
    EXPECT_FALSE(QFileInfo::exists(m_home.path(u"Missing"_s)));
}

TEST_F(UserDirectories, theTable_isLookedUpWhereTheConfigurationIs)
{
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Usual\"\n");
    m_home.write(u"other/user-dirs.dirs"_s, "XDG_DOCUMENTS_DIR=\"$HOME/Other\"\n");
    const EnvironmentVariable configuration("XDG_CONFIG_HOME",
                                            QFile::encodeName(m_home.path(u"other"_s)));
    EXPECT_EQ(documentsDirectory(), m_home.path(u"Other"_s));

    // Unset, blank or relative, it is the usual place.
    configuration.set({});
    EXPECT_EQ(documentsDirectory(), m_home.path(u"Usual"_s));
    configuration.set("");
    EXPECT_EQ(documentsDirectory(), m_home.path(u"Usual"_s));
    configuration.set("other");
    EXPECT_EQ(documentsDirectory(), m_home.path(u"Usual"_s));

    configuration.set(QFile::encodeName(m_home.path(u"missing"_s)));
    EXPECT_EQ(documentsDirectory(), m_home.path());
}

TEST_F(UserDirectories, theHomeDirectory_isLookedUpAtEachCall)
{
    m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n");
    const EnvironmentVariable home("HOME", "/nowhere/at all");
    EXPECT_EQ(documentsDirectory(), u"/nowhere/at all/Documents"_s);
    EXPECT_EQ(desktopDirectory(), u"/nowhere/at all"_s);
}

TEST_F(UserDirectories, aTableThatIsNoFile_isNone_andBlocksNothing)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(u".config/user-dirs.dirs"_s)));
    EXPECT_EQ(documentsDirectory(), m_home.path());
    QDir().rmdir(m_home.path(u".config/user-dirs.dirs"_s));
    makePipe(m_home.path(u".config/user-dirs.dirs"_s));
    EXPECT_EQ(documentsDirectory(), m_home.path());
}

TEST_F(UserDirectories, aTableBehindALinkThatLeadsNowhere_isNone)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(u".config"_s)));
    const QString table = m_home.path(u".config/user-dirs.dirs"_s);
    for (const QString &target : {u"missing"_s, u"missing/too"_s, u"user-dirs.dirs"_s}) {
        ASSERT_TRUE(QFile::link(target, table));
        EXPECT_EQ(documentsDirectory(), m_home.path()) << target.toStdString();
        QFile::remove(table);
    }
}

TEST_F(UserDirectories, aConfigurationThatIsAFile_hasNoTable)
{
    m_home.write(u".config"_s, "a file");
    EXPECT_EQ(documentsDirectory(), m_home.path());
}
