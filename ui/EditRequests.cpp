#include "ui/EditRequests.h"

#include "model/NotificationCenter.h"

EditRequests::EditRequests(QObject *parent)
    : QObject(parent)
{
    connect(NotificationCenter::defaultCenter(), &NotificationCenter::posted, this,
            [this](const QString &name, const QVariant &object) {
                if (name == editPost && object.metaType() == QMetaType::fromType<BlogPost>())
                    emit received(object.value<BlogPost>());
            });
}
