#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

// Whole-file reads and writes. A name that is taken by anything but a regular file (a folder, a
// pipe, a device; symbolic links are followed) is neither read nor written, and blocks nothing.

/// All bytes of the file; nothing when it cannot be read, or is larger than memory.
std::optional<QByteArray> readFile(const QString &path);

/// Creates the file or replaces its bytes in place: inode, permissions and links stay. Not
/// atomic: a write that fails midway leaves a part. False on failure.
bool rewriteFile(const QString &path, const QByteArray &bytes);

/// Creates the file or takes its place by renaming a complete, synced auxiliary file from the
/// same folder: readers see the old bytes or the new ones, never a part. A symbolic link is kept
/// and the file that it names is replaced; a file that the user may not write is left alone. False
/// on failure, and nothing is left behind.
bool replaceFile(const QString &path, const QByteArray &bytes);
