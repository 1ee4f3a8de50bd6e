#pragma once

#include "model/BlogViewModel.h"
#include "ui/ListDifference.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// The store's posts as the rows of a list. Each change of the store becomes the fewest row
/// changes, so that a row keeps its identity for as long as its post is there.
class PostListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(BlogViewModel *viewModel READ viewModel WRITE setViewModel NOTIFY viewModelChanged)
    Q_PROPERTY(bool empty READ isEmpty NOTIFY emptyChanged)

public:
    enum Role {
        Post = Qt::UserRole, ///< the whole record, a BlogPost
        Title,
        Description,
        Permalink,
        DateText, ///< its calendar date in the user's locale
    };

    using QAbstractListModel::QAbstractListModel;

    BlogViewModel *viewModel() const { return m_viewModel; }

    /// Shows another store's posts. Nothing of this is a row change.
    void setViewModel(BlogViewModel *viewModel);

    /// Whether the last finished change left no rows.
    bool isEmpty() const { return m_posts.isEmpty(); }

    /// Whether the last change put this row in.
    Q_INVOKABLE bool isNew(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

signals:
    void viewModelChanged();
    void emptyChanged();

    /// Sent before the rows change, unless they are replaced by another store's.
    void aboutToChange();

    /// Sent after aboutToChange(), when all rows are in place. A change that did nothing but put
    /// in one row tells which; any other gives -1. `replaced` tells that no row has stayed.
    void changed(int insertedRow, bool replaced);

private:
    void follow();
    void applySteps();
    void reset();

    const BlogPost &postAt(qsizetype row) const;

    QPointer<BlogViewModel> m_viewModel;
    BlogPosts m_posts;         ///< the rows shown, or to be shown when the steps are done
    QList<ListStep> m_newRows; ///< the last change's insertions, counted in m_posts
    BlogPosts m_before;        ///< the rows shown before
    qsizetype m_boundary = 0;  ///< rows above it are still those of m_before
    qsizetype m_rowCount = 0;
    bool m_following = false;
};
