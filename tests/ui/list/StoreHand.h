#pragma once

#include "model/BlogViewModel.h"

#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

/// Makes stores for the tests of the list, and changes them as the program's forms do.
class StoreHand : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit StoreHand(QObject *parent = nullptr);

    /// A store with one post for each title, and no other.
    Q_INVOKABLE BlogViewModel *store(const QStringList &titles);

    Q_INVOKABLE BlogPost post(const QString &title, const QString &description = {},
                              const QString &permalink = {}, double date = 800'000'000) const;
    /// The same post under another title.
    Q_INVOKABLE BlogPost retitled(const BlogPost &post, const QString &title) const;
    Q_INVOKABLE BlogPost described(const BlogPost &post, const QString &description) const;

    Q_INVOKABLE BlogPost postAt(BlogViewModel *store, int row) const;
    Q_INVOKABLE QStringList titles(BlogViewModel *store) const;

    Q_INVOKABLE void add(BlogViewModel *store, const BlogPost &post) const;
    Q_INVOKABLE void update(BlogViewModel *store, const BlogPost &post) const;
    Q_INVOKABLE void remove(BlogViewModel *store, int row) const;
    Q_INVOKABLE void insert(BlogViewModel *store, int row, const BlogPost &post) const;
    /// Puts new posts in place of all, as an import does.
    Q_INVOKABLE void replace(BlogViewModel *store, const QStringList &titles) const;
    /// Puts the posts of these rows in their place, in this order.
    Q_INVOKABLE void keep(BlogViewModel *store, const QList<int> &rows) const;

    /// Whether the posts were saved since forgetSaved().
    Q_INVOKABLE bool saved() const;
    Q_INVOKABLE void forgetSaved() const;

    /// The posts that were asked to be edited since forgetEdits(), each a BlogPost.
    Q_INVOKABLE QVariantList edits() const { return m_edits; }
    Q_INVOKABLE void forgetEdits() { m_edits.clear(); }

private:
    QVariantList m_edits;
    std::vector<std::shared_ptr<BlogViewModel>> m_stores;
};
