#pragma once

#include <QObject>
#include <QVariant>

/// The name under which a post card asks its window to edit a post; the object is the BlogPost.
inline const QString editPost = QStringLiteral("editPost");

/// Carries notifications between parts of the program that do not know each other.
///
/// Delivery is synchronous: every receiver has run when post() returns.
class NotificationCenter : public QObject
{
    Q_OBJECT

public:
    /// The one centre that the program's parts share.
    static NotificationCenter *defaultCenter();

    /// Notifies all receivers; `object` may be of any type, or none.
    void post(const QString &name, const QVariant &object = {});

signals:
    void posted(const QString &name, const QVariant &object);
};
