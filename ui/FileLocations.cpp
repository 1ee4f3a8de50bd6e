#include "ui/FileLocations.h"

#include "model/UserDirectories.h"

QString FileLocations::onDesktop(const QString &name) const
{
    return desktopDirectory() + u'/' + name;
}
