#include "StoreHand.h"

#include "model/NotificationCenter.h"

#include <QDir>
#include <QFile>
#include <QJSEngine>

namespace {

BlogPosts postsOf(const QStringList &titles)
{
    BlogPosts posts;
    for (const QString &title : titles)
        posts.append({.title = title,
                      .content = QStringLiteral(" "),
                      .date = Date(800'000'000),
                      .description = {},
                      .permalink = {}});
    return posts;
}

QString savedPosts()
{
    return QDir::home().filePath(QStringLiteral("posts.json"));
}

} // namespace

StoreHand::StoreHand(QObject *parent)
    : QObject(parent)
{
    connect(NotificationCenter::defaultCenter(), &NotificationCenter::posted, this,
            [this](const QString &name, const QVariant &object) {
                if (name == editPost)
                    m_edits.append(object);
            });
}

BlogViewModel *StoreHand::store(const QStringList &titles)
{
    m_stores.push_back(BlogViewModel::create());
    BlogViewModel *store = m_stores.back().get();
    QJSEngine::setObjectOwnership(store, QJSEngine::CppOwnership);
    store->setPosts(postsOf(titles));
    return store;
}

BlogPost StoreHand::post(const QString &title, const QString &description, const QString &permalink,
                         double date) const
{
    return {.title = title,
            .content = QStringLiteral(" "),
            .date = Date(date),
            .description = description,
            .permalink = permalink};
}

BlogPost StoreHand::retitled(const BlogPost &post, const QString &title) const
{
    BlogPost changed = post;
    changed.title = title;
    return changed;
}

BlogPost StoreHand::described(const BlogPost &post, const QString &description) const
{
    BlogPost changed = post;
    changed.description = description;
    return changed;
}

BlogPost StoreHand::postAt(BlogViewModel *store, int row) const
{
    return store->posts().at(row);
}

QStringList StoreHand::titles(BlogViewModel *store) const
{
    QStringList titles;
    for (const BlogPost &post : store->posts())
        titles.append(post.title);
    return titles;
}

void StoreHand::add(BlogViewModel *store, const BlogPost &post) const
{
    store->addPost(post);
}

void StoreHand::update(BlogViewModel *store, const BlogPost &post) const
{
    store->updatePost(post);
}

void StoreHand::remove(BlogViewModel *store, int row) const
{
    store->deletePost({row});
}

void StoreHand::insert(BlogViewModel *store, int row, const BlogPost &post) const
{
    BlogPosts posts = store->posts();
    posts.insert(row, post);
    store->setPosts(posts);
}

void StoreHand::replace(BlogViewModel *store, const QStringList &titles) const
{
    store->setPosts(postsOf(titles));
}

void StoreHand::keep(BlogViewModel *store, const QList<int> &rows) const
{
    BlogPosts posts;
    for (const int row : rows)
        posts.append(store->posts().at(row));
    store->setPosts(posts);
}

bool StoreHand::saved() const
{
    return QFile::exists(savedPosts());
}

void StoreHand::forgetSaved() const
{
    QFile::remove(savedPosts());
}
