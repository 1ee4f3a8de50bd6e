#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

/// Paths and file locations. A path that QML hands to a URL would be parsed as an address, and
/// lose its "#", "?" and "%".
class FileLocations : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The path of the file `name` on the user's desktop, looked up anew.
    Q_INVOKABLE QString onDesktop(const QString &name) const;

    /// The location of the file at a path, taken exactly as it stands.
    Q_INVOKABLE QUrl ofPath(const QString &path) const;
};
