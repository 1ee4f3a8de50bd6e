#pragma once

#include "model/BlogViewModel.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

/// The two commands of a post's card. Anything that is not a BlogPost is ignored.
class PostActions : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Asks for this post to be edited, with the values that it holds here.
    Q_INVOKABLE void edit(const QVariant &post) const;

    /// Deletes the first post that has this one's id, if there is one.
    Q_INVOKABLE void remove(BlogViewModel *viewModel, const QVariant &post) const;
};
