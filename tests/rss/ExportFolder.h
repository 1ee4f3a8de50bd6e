#pragma once

#include "model/BlogViewModel.h"
#include "model/Utf8.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <fstream>
#include <iterator>
#include <string>

/// A store in a home of its own, and beside its files a folder to export to, which is the current
/// one while the test runs.
class ExportFolder : public testing::Test
{
protected:
    void SetUp() override
    {
        QDir().mkpath(m_folder);
        QDir::setCurrent(m_folder);
    }

    void TearDown() override { QDir::setCurrent(m_before); }

    /// The path of a name in the folder, whatever the name.
    QString path(const char *name) const { return m_folder + u'/' + textFromUtf8(name); }

    /// The same as the system takes it.
    QByteArray encoded(const char *name) const { return QFile::encodeName(path(name)); }

    void write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    /// The bytes of a file in the folder; nothing where there is none.
    QByteArray bytesOf(const char *name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// The bytes of a file by the very name that the system gets; nothing where there is none.
    static QByteArray bytesOfRelative(const char *name)
    {
        std::ifstream file(name, std::ios::binary);
        return QByteArray::fromStdString({std::istreambuf_iterator(file), {}});
    }

    /// Everything in the folder, hidden names too.
    QStringList names() const
    {
        return QDir(m_folder).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    /// What the system knows of a file itself, of a link where it is one.
    static struct stat status(const QByteArray &file)
    {
        struct stat status = {};
        EXPECT_EQ(lstat(file, &status), 0) << file.constData();
        return status;
    }

    /// Makes a symbolic link in the folder that says `target`.
    void makeLink(const char *name, const QByteArray &target) const
    {
        ASSERT_EQ(symlink(target, encoded(name)), 0) << name;
    }

    /// What a symbolic link in the folder says.
    QByteArray linkTarget(const char *name) const
    {
        char target[PATH_MAX];
        const auto size = readlink(encoded(name), target, sizeof target);
        return size < 0 ? QByteArray("not a link") : QByteArray(target, size);
    }

    const TemporaryHome home;
    const std::shared_ptr<BlogViewModel> store = BlogViewModel::create();

private:
    const QString m_before = QDir::currentPath();
    const QString m_folder = home.path(QStringLiteral("export"));
};
