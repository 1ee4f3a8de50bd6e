#include "model/UserDirectories.h"

#include "model/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

#include <cerrno>
#include <optional>

namespace {

QString userDirectoriesTable()
{
    QString configuration = QFile::decodeName(qgetenv("XDG_CONFIG_HOME"));
    // The Base Directory Specification has relative paths ignored.
    if (!configuration.startsWith(u'/'))
        configuration = QDir::homePath() + QStringLiteral("/.config");
    return configuration + QStringLiteral("/user-dirs.dirs");
}

/// The value of a line such as XDG_DESKTOP_DIR="$HOME/Desktop", read as a shell would: nothing
/// unless it is quoted and either absolute or relative to the home directory.
std::optional<QByteArray> directoryOfLine(QByteArray line, const QByteArray &key)
{
    line = line.trimmed();
    if (!line.startsWith(key))
        return std::nullopt;
    line = line.mid(key.size()).trimmed();
    if (!line.startsWith('='))
        return std::nullopt;
    line = line.mid(1).trimmed();
    if (!line.startsWith('"'))
        return std::nullopt;
    line.remove(0, 1);

    QByteArray directory;
    if (line.startsWith("$HOME")) {
        directory = QFile::encodeName(QDir::homePath());
        line.remove(0, 5);
        if (!line.startsWith('/') && !line.startsWith('"'))
            return std::nullopt;
    } else if (!line.startsWith('/')) {
        return std::nullopt;
    }
    for (qsizetype i = 0; i < line.size() && line[i] != '"'; ++i) {
        if (line[i] == '\\' && i + 1 < line.size())
            ++i;
        directory.append(line[i]);
    }
    while (directory.size() > 1 && directory.endsWith('/'))
        directory.chop(1);
    return directory;
}

/// Whether there is a file at a path, or may be one: that cannot always be told.
bool mayBeFile(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) == 0)
        return S_ISREG(status.st_mode);
    return errno != ENOENT && errno != ENOTDIR && errno != ELOOP;
}

/// The table's bytes, none without a table; nothing when there is one that cannot be read.
std::optional<QByteArray> userDirectories()
{
    const QString table = userDirectoriesTable();
    return mayBeFile(table) ? readFile(table) : QByteArray();
}

/// The table's entry for `key`; as in a shell, the last of several counts.
std::optional<QString> userDirectory(const QByteArray &table, const QByteArray &key)
{
    std::optional<QString> directory;
    for (const QByteArray &line : table.split('\n')) {
        if (const auto entry = directoryOfLine(line, key))
            directory = QFile::decodeName(*entry);
    }
    return directory;
}

} // namespace

QString documentsDirectory()
{
    const auto table = userDirectories();
    return table ? userDirectory(*table, "XDG_DOCUMENTS_DIR").value_or(QDir::homePath())
                 : QString();
}

QString desktopDirectory()
{
    const auto table = userDirectories().value_or(QByteArray());
    if (const auto directory = userDirectory(table, "XDG_DESKTOP_DIR"))
        return *directory;
    const QString usual = QDir::homePath() + QStringLiteral("/Desktop");
    return QFileInfo(usual).isDir() ? usual : QDir::homePath();
}
