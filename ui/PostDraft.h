#pragma once

#include "model/BlogPost.h"
#include "model/BlogViewModel.h"

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The post editor's working copy of a post. Nothing reaches a store before saveTo().
///
/// A draft begins as a new post of the present moment; seed() makes it an edit of a post that
/// exists.
class PostDraft : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool editing READ isEditing NOTIFY seeded)
    Q_PROPERTY(bool complete READ isComplete NOTIFY completeChanged)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    Q_PROPERTY(QString content MEMBER m_content NOTIFY seeded)
    Q_PROPERTY(QString description MEMBER m_description NOTIFY descriptionChanged)
    Q_PROPERTY(QString permalink MEMBER m_permalink NOTIFY permalinkChanged)
    Q_PROPERTY(Date date MEMBER m_date NOTIFY dateChanged)

public:
    using QObject::QObject;

    /// Whether the draft is of a post that exists.
    bool isEditing() const { return m_editedId.has_value(); }

    /// Whether the draft may be saved: neither title nor content is empty. No form shows the
    /// content; a single space lets a new post pass.
    bool isComplete() const { return !m_title.isEmpty() && !m_content.isEmpty(); }

    QString title() const { return m_title; }
    void setTitle(const QString &title);

    /// Takes over all fields of a BlogPost; anything else leaves the draft a new post.
    Q_INVOKABLE void seed(const QVariant &post);

    /// Adds the draft to the store as a new post, or updates the post that it was seeded with.
    Q_INVOKABLE void saveTo(BlogViewModel *store) const;

signals:
    void seeded();
    void completeChanged();
    void titleChanged();
    void descriptionChanged();
    void permalinkChanged();
    void dateChanged();

private:
    std::optional<QUuid> m_editedId;
    QString m_title;
    QString m_content = QStringLiteral(" ");
    QString m_description;
    QString m_permalink;
    Date m_date = Date::now();
};
