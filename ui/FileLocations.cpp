#include "ui/FileLocations.h"

#include "model/UserDirectories.h"

QString FileLocations::onDesktop(const QString &name) const
{
    return desktopDirectory() + u'/' + name;
}

QUrl FileLocations::ofPath(const QString &path) const
{
    return QUrl::fromLocalFile(path);
}
