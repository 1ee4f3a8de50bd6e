#include "ui/PostDraft.h"

#include "model/Utf8.h"

void PostDraft::setTitle(const QString &title)
{
    m_title = title;
    emit titleChanged();
    emit completeChanged();
}

void PostDraft::seed(const QVariant &post)
{
    if (post.metaType() != QMetaType::fromType<BlogPost>())
        return;
    const auto edited = post.value<BlogPost>();
    m_editedId = edited.id;
    m_title = edited.title;
    m_content = edited.content;
    m_description = edited.description;
    m_permalink = edited.permalink;
    m_date = edited.date;
    emit seeded();
    emit titleChanged();
    emit descriptionChanged();
    emit permalinkChanged();
    emit dateChanged();
    emit completeChanged();
}

void PostDraft::saveTo(BlogViewModel *store) const
{
    const BlogPost post{
        .id = m_editedId.value_or(randomUuid()),
        .title = wellFormed(m_title),
        .content = m_content,
        .date = m_date,
        .description = wellFormed(m_description),
        .permalink = wellFormed(m_permalink),
    };
    if (m_editedId)
        store->updatePost(post);
    else
        store->addPost(post);
}
