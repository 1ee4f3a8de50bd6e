#include "model/Files.h"

#include "tests/support/FileSizeLimit.h"
#include "tests/support/MemoryLimit.h"
#include "tests/support/Printers.h"
#include "tests/support/SpecialFiles.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// A folder that is also the working directory.
class Files : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(QDir::setCurrent(m_home.path())); }
    void TearDown() override { QDir::setCurrent(m_before); }

    TemporaryHome m_home;

private:
    QString m_before = QDir::currentPath();
};

ino_t inodeOf(const QString &path)
{
    struct stat status = {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_ino;
}

QByteArray allBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += char(byte);
    return bytes;
}

} // namespace

TEST_F(Files, whatIsWritten_isReadBack)
{
    for (const QByteArray &bytes : {QByteArray(), allBytes(), QByteArray(3'000'000, 'x')}) {
        EXPECT_TRUE(rewriteFile(m_home.path(u"rewritten"_s), bytes));
        EXPECT_TRUE(replaceFile(m_home.path(u"replaced"_s), bytes));
        EXPECT_TRUE(readFile(m_home.path(u"rewritten"_s)) == bytes);
        EXPECT_TRUE(readFile(m_home.path(u"replaced"_s)) == bytes);
        EXPECT_TRUE(m_home.read(u"rewritten"_s) == bytes);
        EXPECT_TRUE(m_home.read(u"replaced"_s) == bytes);
    }
}

TEST_F(Files, rewriting_keepsTheFile_andReplacing_putsANewOneInItsPlace)
{
    const QString path = m_home.path(u"file"_s);
    m_home.write(u"file"_s, "a long text");
    ASSERT_EQ(link(QFile::encodeName(path).constData(),
                   QFile::encodeName(m_home.path(u"second"_s)).constData()),
              0);
    const ino_t before = inodeOf(path);
    EXPECT_TRUE(rewriteFile(path, "short"));
    EXPECT_EQ(inodeOf(path), before);
    EXPECT_EQ(m_home.read(u"second"_s), "short");

    EXPECT_TRUE(replaceFile(path, "new"));
    EXPECT_NE(inodeOf(path), before);
    EXPECT_EQ(m_home.read(u"file"_s), "new");
    EXPECT_EQ(m_home.read(u"second"_s), "short");
    EXPECT_EQ(m_home.names(), QStringList({u"file"_s, u"second"_s}));
}

TEST_F(Files, aPath_isTakenAsItIs)
{
    for (const QString &name :
         {u"50%20#1?.xml"_s, u" leading"_s, u"trailing "_s, u"~"_s, u"-"_s, u":"_s, u"a:b"_s,
          u"caf\u00e9 \u65e5\u672c"_s, u"\\"_s, u"*"_s, u"line\nbreak"_s, u"\ufeffmark"_s}) {
        EXPECT_TRUE(rewriteFile(name, "relative"));
        EXPECT_EQ(readFile(m_home.path(name)), "relative");
        EXPECT_TRUE(replaceFile(m_home.path(name), "absolute"));
        EXPECT_EQ(readFile(name), "absolute");
        EXPECT_EQ(m_home.names(), QStringList({name}));
        QFile::remove(m_home.path(name));
    }
}

TEST_F(Files, aPathThatLooksLikeAResource_isAFile)
{
    EXPECT_FALSE(rewriteFile(u":/x"_s, "bytes"));
    EXPECT_FALSE(replaceFile(u":/x"_s, "bytes"));
    ASSERT_TRUE(QDir().mkpath(m_home.path() + u"/:"_s));
    EXPECT_TRUE(rewriteFile(u":/x"_s, "rewritten"));
    EXPECT_EQ(m_home.read(u":/x"_s), "rewritten");
    EXPECT_TRUE(replaceFile(u":/x"_s, "replaced"));
    EXPECT_EQ(m_home.read(u":/x"_s), "replaced");
    EXPECT_EQ(readFile(u":/x"_s), "replaced");
}

TEST_F(Files, aPathThatNamesNoFile_isRefused)
{
    for (const QString &path : {QString(), u""_s, u"missing/file"_s, u"a\0b"_s, u"folder/"_s,
                                u"/"_s, u"."_s, u".."_s, u"file/below"_s, QString(300, u'x')}) {
        m_home.write(u"file"_s, "a file");
        ASSERT_TRUE(QDir().mkpath(m_home.path(u"folder"_s)));
        EXPECT_EQ(readFile(path), std::nullopt);
        EXPECT_FALSE(rewriteFile(path, "bytes"));
        EXPECT_FALSE(replaceFile(path, "bytes"));
        EXPECT_EQ(m_home.names(), QStringList({u"file"_s, u"folder"_s}));
        EXPECT_EQ(m_home.read(u"file"_s), "a file");
    }
}

TEST_F(Files, aFileThatTellsNoSize_isReadToItsEnd)
{
    const auto bytes = readFile(u"/proc/self/cmdline"_s);
    ASSERT_TRUE(bytes);
    EXPECT_TRUE(bytes->contains("test_files"));
}

TEST_F(Files, aFileLargerThanMemory_isNotRead)
{
    constexpr qint64 terabyte = qint64(1) << 40;
    constexpr rlim_t memory = rlim_t(16) << 30;
    QFile file(m_home.path(u"large"_s)); // of no block on the disk
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(terabyte));
    const MemoryLimit limit(memory);
    EXPECT_EQ(readFile(file.fileName()), std::nullopt);
}

TEST_F(Files, aMissingFile_isNotRead)
{
    EXPECT_EQ(readFile(m_home.path(u"missing"_s)), std::nullopt);
    ASSERT_TRUE(QFile::link(u"missing"_s, m_home.path(u"dangling"_s)));
    EXPECT_EQ(readFile(m_home.path(u"dangling"_s)), std::nullopt);
}

TEST_F(Files, whatIsNoRegularFile_isLeftAlone_andBlocksNothing)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"folder"_s)));
    makePipe(m_home.path(u"pipe"_s));
    const ListeningSocket socket(m_home.path(u"socket"_s));
    for (const QString &name : {u"folder"_s, u"pipe"_s, u"socket"_s}) {
        ASSERT_TRUE(QFile::link(name, m_home.path(u"link"_s)));
        const ino_t before = inodeOf(m_home.path(name));
        for (const QString &path : {m_home.path(name), m_home.path(u"link"_s)}) {
            EXPECT_EQ(readFile(path), std::nullopt) << name.toStdString();
            EXPECT_FALSE(rewriteFile(path, "bytes")) << name.toStdString();
            EXPECT_FALSE(replaceFile(path, "bytes")) << name.toStdString();
        }
        EXPECT_EQ(inodeOf(m_home.path(name)), before);
        QFile::remove(m_home.path(u"link"_s));
    }
    EXPECT_EQ(m_home.names(), QStringList({u"folder"_s, u"pipe"_s, u"socket"_s}));
}

TEST_F(Files, symbolicLinks_areFollowedAndKept)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"folder"_s)));
    ASSERT_TRUE(QFile::link(u"folder/real"_s, m_home.path(u"link"_s)));
    const QString path = m_home.path(u"link"_s);
    // To nothing yet, then to a file.
    EXPECT_TRUE(rewriteFile(path, "created"));
    EXPECT_EQ(m_home.read(u"folder/real"_s), "created");
    EXPECT_TRUE(replaceFile(path, "replaced"));
    EXPECT_EQ(m_home.read(u"folder/real"_s), "replaced");
    EXPECT_TRUE(rewriteFile(path, "rewritten"));
    EXPECT_EQ(readFile(path), "rewritten");
    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(m_home.names(), QStringList({u"folder"_s, u"link"_s}));
}

TEST_F(Files, replacing_aSymbolicLinkToNothing_createsWhatItNames)
{
    ASSERT_TRUE(QDir().mkpath(m_home.path(u"folder"_s)));
    ASSERT_TRUE(QFile::link(u"folder/real"_s, m_home.path(u"link"_s)));
    EXPECT_TRUE(replaceFile(m_home.path(u"link"_s), "created"));
    EXPECT_EQ(m_home.read(u"folder/real"_s), "created");
    EXPECT_TRUE(QFileInfo(m_home.path(u"link"_s)).isSymLink());
}

TEST_F(Files, asManyLinksAreFollowed_asTheSystemFollows)
{
    constexpr int most = 40;
    ASSERT_TRUE(QFile::link(u"real"_s, m_home.path(u"1"_s)));
    for (int link = 1; link <= most; ++link)
        ASSERT_TRUE(QFile::link(QString::number(link), m_home.path(QString::number(link + 1))));
    for (const auto write : {&rewriteFile, &replaceFile}) {
        EXPECT_TRUE(write(m_home.path(QString::number(most)), "followed"));
        EXPECT_EQ(m_home.read(u"real"_s), "followed");
        EXPECT_FALSE(write(m_home.path(QString::number(most + 1)), "refused"));
        EXPECT_EQ(m_home.read(u"real"_s), "followed");
    }
}

TEST_F(Files, aWriteThatFailsMidway_leavesAPartOrTheOldFile)
{
    constexpr qsizetype room = 4096;
    const QByteArray tooMuch(10 * room, 'x');
    m_home.write(u"rewritten"_s, "old");
    m_home.write(u"replaced"_s, "old");
    {
        const FileSizeLimit full(room);
        EXPECT_FALSE(rewriteFile(m_home.path(u"rewritten"_s), tooMuch));
        EXPECT_FALSE(replaceFile(m_home.path(u"replaced"_s), tooMuch));
        EXPECT_FALSE(replaceFile(m_home.path(u"new"_s), tooMuch));
    }
    EXPECT_TRUE(tooMuch.startsWith(*m_home.read(u"rewritten"_s)));
    EXPECT_EQ(m_home.read(u"replaced"_s), "old");
    EXPECT_EQ(m_home.names(), QStringList({u"replaced"_s, u"rewritten"_s}));
}
