#include "model/Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

/// The file's absolute path: Qt takes a relative one that begins with ":/" for a resource. Nothing
/// for a path that names no file.
std::optional<QString> absolutePath(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar::Null))
        return std::nullopt;
    return path.startsWith(u'/') ? path : QDir::currentPath() + u'/' + path;
}

bool isRegularFileOrAbsent(const QString &path)
{
    const QFileInfo target(path);
    return !target.exists() || target.isFile();
}

} // namespace

std::optional<QByteArray> readFile(const QString &path)
{
    const auto source = absolutePath(path);
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
    const auto target = absolutePath(path);
    if (!target || !isRegularFileOrAbsent(*target))
        return false;
    QFile file(*target);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)
        && file.write(bytes) == bytes.size();
}

bool replaceFile(const QString &path, const QByteArray &bytes)
{
    const auto target = absolutePath(path);
    if (!target || target->endsWith(u'/') || !isRegularFileOrAbsent(*target))
        return false;
    QSaveFile file(*target);
    // A write that failed makes the commit fail, which removes the auxiliary file.
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}
