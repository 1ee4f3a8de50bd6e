#pragma once

#include "tests/support/EnvironmentVariable.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <optional>
#include <stdexcept>

/// A home directory of a test's own, the user's as long as this object lives. It is empty: without
/// a table of well-known folders, the documents directory is the home directory itself.
class TemporaryHome
{
public:
    TemporaryHome()
    {
        if (!m_directory.isValid())
            throw std::runtime_error("no temporary directory can be made");
    }

    QString path() const { return m_directory.path(); }

    /// The path of a name in the home directory.
    QString path(const QString &name) const { return path() + u'/' + name; }

    /// All bytes of a file in the home directory; nothing when there is no such file.
    std::optional<QByteArray> read(const QString &name) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        return file.readAll();
    }

    /// Makes a file in the home directory, and the folders that lead to it.
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        QDir().mkpath(QFileInfo(file).path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("a test's file cannot be written");
    }

    /// Makes the table of well-known folders.
    void writeUserDirectories(const QByteArray &table) const
    {
        write(QStringLiteral(".config/user-dirs.dirs"), table);
    }

    /// Everything in the home directory, hidden names too, in alphabetical order.
    QStringList names() const
    {
        return QDir(path()).entryList(
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

private:
    QTemporaryDir m_directory;
    EnvironmentVariable m_home{"HOME", QFile::encodeName(m_directory.path())};
    EnvironmentVariable m_configuration{"XDG_CONFIG_HOME",
                                        QFile::encodeName(m_directory.path()) + "/.config"};
};
