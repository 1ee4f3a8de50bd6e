#pragma once

#include "model/Date.h"
#include "model/RandomUuid.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUuid>

/// One post of the blog. A value: copying it makes a post of its own, known by the same id.
struct BlogPost
{
    Q_GADGET
    Q_PROPERTY(QUuid id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString content MEMBER content)
    Q_PROPERTY(Date date MEMBER date)
    Q_PROPERTY(QString description MEMBER description)
    Q_PROPERTY(QString permalink MEMBER permalink)

public:
    QUuid id = randomUuid(); ///< identity
    QString title;
    QString content;     ///< body text; the forms do not show it and the feed does not carry it
    Date date;           ///< date of publication
    QString description; ///< short summary
    QString permalink;   ///< the post's own web address, as typed

    /// Equal field by field: texts by canonical equivalence (UAX #15: é as one or as two code
    /// points), dates by exact instant.
    friend bool operator==(const BlogPost &left, const BlogPost &right);
};

using BlogPosts = QList<BlogPost>;
