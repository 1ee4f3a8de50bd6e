#pragma once

#include "model/BlogViewModel.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"
#include "tests/support/TemporaryHome.h"

#include <QDirIterator>

#include <gtest/gtest.h>

#include <map>
#include <string>

// Where the faults happen, and what is looked at before and after them.

/// The bytes of each file below a folder, by its relative path; of a symbolic link, what it says.
using Contents = std::map<QString, QByteArray>;

/// A store in a home that has a table of user directories, and a folder to export to.
struct BlogOnFaultyDisk
{
    BlogOnFaultyDisk()
    {
        home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/Documents\"\n");
        QDir().mkpath(home.path(QStringLiteral("Documents")));
        QDir().mkpath(home.path(QStringLiteral("Desktop")));
        store = BlogViewModel::create();
    }

    /// What a FaultyDisk watches: the folder by itself always works.
    std::string folder() const { return QFile::encodeName(home.path()).toStdString() + '/'; }

    Contents contents() const
    {
        Contents found;
        QDirIterator files(home.path(), QDir::Files | QDir::Hidden | QDir::System,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QFileInfo file(files.next());
            const QString name = QDir(home.path()).relativeFilePath(file.filePath());
            found[name] = file.isSymLink() ? "link to " + file.symLinkTarget().toUtf8()
                                           : home.read(name).value_or("unreadable");
        }
        return found;
    }

    const QString posts = QStringLiteral("Documents/posts.json");
    const QString settings = QStringLiteral("Documents/rss_settings.json");
    const QString target = QStringLiteral("Desktop/feed.xml");

    TemporaryHome home;
    std::shared_ptr<BlogViewModel> store;
};

/// What a store holds.
struct Memory
{
    explicit Memory(const BlogViewModel &store)
        : titles(titlesOf(store.posts()))
        , settings({store.blogTitle(), store.blogLink(), store.blogDescription()})
    {
    }

    friend bool operator==(const Memory &, const Memory &) = default;

    QStringList titles;
    QStringList settings;
};

/// All files but one are as they were, and there are no further ones.
inline void expectNothingElseChanged(const QString &written, Contents before, Contents after)
{
    before.erase(written);
    after.erase(written);
    EXPECT_EQ(before, after);
}

inline qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System).size();
}
