#include "ui/PostListModel.h"

#include "model/LongDate.h"

#include <algorithm>

void PostListModel::setViewModel(BlogViewModel *viewModel)
{
    if (viewModel == m_viewModel)
        return;
    if (m_viewModel)
        m_viewModel->disconnect(this);
    m_viewModel = viewModel;
    if (viewModel)
        connect(viewModel, &BlogViewModel::postsChanged, this, &PostListModel::follow);
    reset();
    emit viewModelChanged();
}

bool PostListModel::isNew(int row) const
{
    return std::any_of(m_newRows.cbegin(), m_newRows.cend(), [row](const ListStep &rows) {
        return row >= rows.first && row < rows.first + rows.count;
    });
}

int PostListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rowCount);
}

QVariant PostListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rowCount)
        return {};
    const BlogPost &post = postAt(index.row());
    switch (role) {
    case Post:
        return QVariant::fromValue(post);
    case Title:
        return post.title;
    case Description:
        return post.description;
    case Permalink:
        return post.permalink;
    case DateText:
        return longDate(post.date, DateRegion::current());
    default:
        return {};
    }
}

QHash<int, QByteArray> PostListModel::roleNames() const
{
    return {{Post, "post"},
            {Title, "title"},
            {Description, "description"},
            {Permalink, "permalink"},
            {DateText, "dateText"}};
}

/// Brings the rows up to date. A change that a listener makes meanwhile comes after this one.
void PostListModel::follow()
{
    if (m_following)
        return;
    m_following = true;
    while (m_viewModel && !m_posts.isSharedWith(m_viewModel->posts()))
        applySteps();
    m_following = false;
}

void PostListModel::applySteps()
{
    emit aboutToChange();
    m_before = m_posts;
    m_posts = m_viewModel->posts();
    m_newRows.clear();
    m_boundary = m_before.size();
    qsizetype stayed = m_before.size();
    const QList<ListStep> steps = listDifference(m_before, m_posts);
    for (const ListStep &step : steps) {
        const int first = static_cast<int>(step.first);
        const int last = static_cast<int>(step.first + step.count) - 1;
        // Between two steps both lists have the same rows: the boundary may pass over them.
        switch (step.kind) {
        case ListStep::Kind::Remove:
            m_boundary = last + 1;
            beginRemoveRows({}, first, last);
            m_boundary = first;
            m_rowCount -= step.count;
            stayed -= step.count;
            endRemoveRows();
            break;
        case ListStep::Kind::Insert:
            m_boundary = first;
            beginInsertRows({}, first, last);
            m_rowCount += step.count;
            m_newRows.append({.kind = step.kind,
                              .first = m_posts.size() - (m_rowCount - first),
                              .count = step.count});
            endInsertRows();
            break;
        case ListStep::Kind::Update:
            m_boundary = first;
            emit dataChanged(index(first), index(last));
            break;
        }
    }
    m_boundary = 0;
    const bool wasEmpty = m_before.isEmpty();
    m_before.clear();
    if (wasEmpty != isEmpty())
        emit emptyChanged();
    const bool oneInserted = steps.size() == 1 && m_newRows.size() == 1 && steps.first().count == 1;
    emit changed(oneInserted ? static_cast<int>(steps.first().first) : -1, stayed == 0);
}

void PostListModel::reset()
{
    const bool wasEmpty = isEmpty();
    beginResetModel();
    m_posts = m_viewModel ? m_viewModel->posts() : BlogPosts();
    m_rowCount = m_posts.size();
    m_newRows.clear();
    endResetModel();
    if (wasEmpty != isEmpty())
        emit emptyChanged();
}

const BlogPost &PostListModel::postAt(qsizetype row) const
{
    return row < m_boundary ? m_before[row] : m_posts[m_posts.size() - (m_rowCount - row)];
}
