#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

#include <QObject>
#include <QString>

#include <memory>
#include <set>

/// The one store of a window: the posts in order and the channel settings, kept in two JSON files
/// in the user's documents directory.
///
/// It belongs to the main thread. No operation reports a failure: what is in memory stands, and a
/// file that cannot be read or written is passed over in silence.
class BlogViewModel : public QObject, public std::enable_shared_from_this<BlogViewModel>
{
    Q_OBJECT
    Q_PROPERTY(BlogPosts posts READ posts WRITE setPosts NOTIFY postsChanged)
    Q_PROPERTY(bool useDescriptionAsArticle READ useDescriptionAsArticle WRITE
                   setUseDescriptionAsArticle NOTIFY useDescriptionAsArticleChanged)
    Q_PROPERTY(QString blogTitle READ blogTitle WRITE setBlogTitle NOTIFY blogTitleChanged)
    Q_PROPERTY(QString blogLink READ blogLink WRITE setBlogLink NOTIFY blogLinkChanged)
    Q_PROPERTY(QString blogDescription READ blogDescription WRITE setBlogDescription NOTIFY
                   blogDescriptionChanged)

public:
    /// A new store with its defaults, then loaded from disk. Shared, because an import that is
    /// under way keeps the store alive until it has been saved.
    static std::shared_ptr<BlogViewModel> create();

    /// The posts in their order: the newest added first, loaded and imported ones as in their file.
    const BlogPosts &posts() const { return m_posts; }
    void setPosts(const BlogPosts &posts);

    /// An option that no file holds: false at every start.
    bool useDescriptionAsArticle() const { return m_useDescriptionAsArticle; }
    void setUseDescriptionAsArticle(bool useDescriptionAsArticle);

    // The channel settings. Assigning one saves nothing: saveSettings() does.
    const QString &blogTitle() const { return m_blogTitle; }
    void setBlogTitle(const QString &blogTitle);
    const QString &blogLink() const { return m_blogLink; }
    void setBlogLink(const QString &blogLink);
    const QString &blogDescription() const { return m_blogDescription; }
    void setBlogDescription(const QString &blogDescription);

    /// Puts the post first, then saves the posts.
    void addPost(const BlogPost &post);

    /// Replaces the first post that has this one's id, then saves the posts. Without such a post
    /// nothing happens.
    void updatePost(const BlogPost &post);

    /// Removes the posts at these positions, then saves the posts. A position outside the list
    /// ends the process.
    void deletePost(const std::set<qsizetype> &at);

    /// Reads the items of the RSS file at a path, and a turn of the event loop later puts them in
    /// place of all posts and saves them. A file that cannot be read, or is not UTF-8, changes
    /// nothing and prints a line on standard output.
    Q_INVOKABLE void importRSSFeed(const QString &from);

    /// Rewrites posts.json in place with all posts. Not atomic.
    void savePosts() const;

    /// Replaces the posts by those of posts.json, if all of it can be read and decoded.
    void loadPosts();

    /// Rewrites rss_settings.json in place with the channel settings. Not atomic.
    Q_INVOKABLE void saveSettings() const;

    /// Replaces the channel settings by those of rss_settings.json, if all of it can be read and
    /// decoded.
    void loadSettings();

    /// The blog as an RSS 2.0 document in UTF-8, its dates in the user's locale and time zone.
    QByteArray generateRSSFeed() const;

    /// Writes the feed to the file at a path taken as typed, atomically.
    Q_INVOKABLE void exportRSS(const QString &to) const;

signals:
    /// Sent before any property changes, also when its new value equals the old one. A receiver
    /// may read the store, and must not change it.
    void objectWillChange();

    // Sent after the property has changed.
    void postsChanged();
    void useDescriptionAsArticleChanged();
    void blogTitleChanged();
    void blogLinkChanged();
    void blogDescriptionChanged();

private:
    BlogViewModel();

    /// Makes one change of a property, and tells of it before and after.
    template <typename Change>
    void change(void (BlogViewModel::*changed)(), Change make);

    RSSSettings settings() const;
    static QString getDocumentsDirectory();

    BlogPosts m_posts;
    bool m_useDescriptionAsArticle = false;
    QString m_blogTitle;
    QString m_blogLink;
    QString m_blogDescription;
};
