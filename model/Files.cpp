#include "model/Files.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <new>
#include <system_error>

namespace {

/// The path as Qt takes it for nothing but a path: a relative one that begins with ":/" would be a
/// resource. Nothing for a path that names no file.
std::optional<QString> plainPath(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar::Null))
        return std::nullopt;
    return path.startsWith(u'/') ? path : QStringLiteral("./") + path;
}

bool isRegularFileOrAbsent(const QString &path)
{
    const QFileInfo target(path);
    return !target.exists() || target.isFile();
}

/// The file that a path names once the symbolic links at its end are followed, whether it exists
/// or not; nothing for links that lead round in a circle, or that cannot be read.
std::optional<QString> endOfLinks(const QString &path)
{
    constexpr int mostLinks = 40; // as the system has it
    std::filesystem::path file(QFile::encodeName(path).toStdString());
    for (int links = 0; links <= mostLinks; ++links) {
        std::error_code error;
        const auto next = std::filesystem::read_symlink(file, error);
        if (error == std::errc::invalid_argument || error == std::errc::no_such_file_or_directory)
            return QFile::decodeName(file.c_str()); // no link, or nothing yet
        if (error)
            return std::nullopt;
        // Joined and not tidied: ".." behind a linked folder climbs from where that folder is.
        file = file.parent_path() / next;
    }
    return std::nullopt;
}

/// All bytes of an open file; nothing when the disk fails before the end. (QFile::readAll() takes
/// a failure in the midst of a file for its end.)
std::optional<QByteArray> readToEnd(QFile &file)
{
    // One more than there should be: the read that finds the end needs room too.
    QByteArray bytes(file.size() + 1, Qt::Uninitialized);
    qsizetype size = 0;
    while (const qint64 count = file.read(bytes.data() + size, bytes.size() - size)) {
        if (count < 0)
            return std::nullopt;
        size += count;
        if (size == bytes.size())
            bytes.resize(2 * size); // it has grown meanwhile
    }
    bytes.truncate(size);
    return bytes;
}

/// Waits until the bytes of an open file are on the disk. False when they may not get there; a
/// file system that has no such thing as a disk is taken at its word.
bool syncToDisk(int descriptor)
{
    int result = 0;
    do {
        result = fdatasync(descriptor);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOTSUP || errno == ENOSYS;
}

} // namespace

std::optional<QByteArray> readFile(const QString &path)
{
    const auto source = plainPath(path);
    if (!source || !QFileInfo(*source).isFile())
        return std::nullopt;
    QFile file(*source);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    try {
        return readToEnd(file);
    } catch (const std::bad_alloc &) {
        return std::nullopt;
    }
}

bool rewriteFile(const QString &path, const QByteArray &bytes)
{
    const auto target = plainPath(path);
    if (!target || !isRegularFileOrAbsent(*target))
        return false;
    QFile file(*target);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)
        && file.write(bytes) == bytes.size();
}

bool replaceFile(const QString &path, const QByteArray &bytes)
{
    const auto name = plainPath(path);
    const auto target = name ? endOfLinks(*name) : std::nullopt;
    if (!target || target->endsWith(u'/') || !isRegularFileOrAbsent(*target))
        return false;
    QSaveFile file(*target);
    // Unbuffered: the commit of a buffered file passes over a write that fails as it is closed. It
    // passes over a failing sync too. Without a commit the auxiliary file is removed.
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && file.write(bytes) == bytes.size() && syncToDisk(file.handle()) && file.commit();
}
