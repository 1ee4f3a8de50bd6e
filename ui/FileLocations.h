#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Where the user's files are.
class FileLocations : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// The path of the file `name` on the user's desktop, looked up anew.
    Q_INVOKABLE QString onDesktop(const QString &name) const;
};
