#include "model/Files.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>

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
/// or not; nothing for links that lead round in a circle.
std::optional<QString> endOfLinks(const QString &path)
{
    constexpr int mostLinks = 40; // as the system has it
    std::filesystem::path file(QFile::encodeName(path).toStdString());
    for (int links = 0; links < mostLinks; ++links) {
        std::error_code isNoLink;
        const auto next = std::filesystem::read_symlink(file, isNoLink);
        if (isNoLink)
            return QFile::decodeName(file.c_str());
        // Joined and not tidied: ".." behind a linked folder climbs from where that folder is.
        file = file.parent_path() / next;
    }
    return std::nullopt;
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
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return bytes;
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
    // Unbuffered: the commit of a buffered file passes over a write that fails as it is closed.
    // Without a commit the auxiliary file is removed.
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)
        && file.write(bytes) == bytes.size() && file.commit();
}
