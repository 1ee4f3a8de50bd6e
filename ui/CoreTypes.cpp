#include "ui/CoreTypes.h"

#include <QQmlEngine>

NotificationCenter *NotificationCenterType::create(QQmlEngine *, QJSEngine *)
{
    NotificationCenter *center = NotificationCenter::defaultCenter();
    QQmlEngine::setObjectOwnership(center, QQmlEngine::CppOwnership);
    return center;
}
