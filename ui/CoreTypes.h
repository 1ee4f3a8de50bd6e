#pragma once

#include "model/BlogPost.h"
#include "model/BlogViewModel.h"
#include "model/NotificationCenter.h"

#include <QtQml/qqml.h>

class QJSEngine;
class QQmlEngine;

// The core's types under their names in QML. The core itself knows nothing of QML.

struct BlogPostValue
{
    Q_GADGET
    QML_FOREIGN(BlogPost)
    QML_VALUE_TYPE(blogPost)
};

class BlogViewModelType
{
    Q_GADGET
    QML_FOREIGN(BlogViewModel)
    QML_NAMED_ELEMENT(BlogViewModel)
    QML_UNCREATABLE("A store is shared: an OwnedStore makes one.")
};

class NotificationCenterType
{
    Q_GADGET
    QML_FOREIGN(NotificationCenter)
    QML_NAMED_ELEMENT(NotificationCenter)
    QML_SINGLETON

public:
    /// The default centre, which the QML engine must not delete.
    static NotificationCenter *create(QQmlEngine *, QJSEngine *);
};
