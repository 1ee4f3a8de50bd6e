#pragma once

#include "model/BlogPost.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// Subscribes to the wish to edit a post, from whichever card it comes. A notification that
/// carries anything but a post is ignored.
class EditRequests : public QObject
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit EditRequests(QObject *parent = nullptr);

signals:
    void received(const BlogPost &post);
};
