#include "ui/SettingsDraft.h"

#include "model/Utf8.h"

void SettingsDraft::seed(const BlogViewModel *store)
{
    m_title = store->blogTitle();
    m_link = store->blogLink();
    m_description = store->blogDescription();
    emit seeded();
}

void SettingsDraft::saveTo(BlogViewModel *store) const
{
    store->setBlogTitle(wellFormed(m_title));
    store->setBlogLink(wellFormed(m_link));
    store->setBlogDescription(wellFormed(m_description));
    store->saveSettings();
}
