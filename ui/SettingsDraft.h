#pragma once

#include "model/BlogViewModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The settings sheet's working copy of the channel settings. Nothing reaches a store before
/// saveTo().
class SettingsDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title MEMBER m_title NOTIFY seeded)
    Q_PROPERTY(QString link MEMBER m_link NOTIFY seeded)
    Q_PROPERTY(QString description MEMBER m_description NOTIFY seeded)

public:
    using QObject::QObject;

    /// Takes over the store's three settings.
    Q_INVOKABLE void seed(const BlogViewModel *store);

    /// Writes the three settings into the store, one after the other, and has it save them.
    Q_INVOKABLE void saveTo(BlogViewModel *store) const;

signals:
    void seeded();

private:
    QString m_title;
    QString m_link;
    QString m_description;
};
