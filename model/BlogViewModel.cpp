#include "model/BlogViewModel.h"

#include "model/DateRegion.h"
#include "model/Files.h"
#include "model/RecordsJson.h"
#include "model/UserDirectories.h"
#include "rss/RSSFeedImporter.h"
#include "rss/RSSFeedWriter.h"

#include <QCoreApplication>
#include <QEventLoopLocker>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

/// No path where the directory is not known.
QString fileIn(const QString &directory, const QString &name)
{
    return directory.isEmpty() ? QString() : directory + u'/' + name;
}

QString postsFile(const QString &directory)
{
    return fileIn(directory, QStringLiteral("posts.json"));
}

QString settingsFile(const QString &directory)
{
    return fileIn(directory, QStringLiteral("rss_settings.json"));
}

[[noreturn]] void endForPositionOutsideList(qsizetype position, qsizetype count)
{
    std::fprintf(stderr, "deletePost: position %lld is outside the list of %lld posts\n",
                 static_cast<long long>(position), static_cast<long long>(count));
    std::abort();
}

} // namespace

std::shared_ptr<BlogViewModel> BlogViewModel::create()
{
    return std::shared_ptr<BlogViewModel>(new BlogViewModel);
}

BlogViewModel::BlogViewModel()
    : m_blogTitle(QStringLiteral("My Tavlo"))
    , m_blogLink(QStringLiteral("https://example.com"))
    , m_blogDescription(QStringLiteral(
          "Lorem ipsum dolor sit amet consectetur adipiscing elit. Consectetur adipiscing elit "
          "quisque faucibus ex sapien vitae. Ex sapien vitae pellentesque sem placerat in id. "
          "Placerat in id cursus mi pretium tellus duis. Pretium tellus duis convallis tempus leo "
          "eu aenean."))
{
    loadPosts();
    loadSettings();
}

void BlogViewModel::setPosts(const BlogPosts &posts)
{
    emit objectWillChange();
    m_posts = posts;
    emit postsChanged();
}

void BlogViewModel::setUseDescriptionAsArticle(bool useDescriptionAsArticle)
{
    emit objectWillChange();
    m_useDescriptionAsArticle = useDescriptionAsArticle;
    emit useDescriptionAsArticleChanged();
}

void BlogViewModel::setBlogTitle(const QString &blogTitle)
{
    emit objectWillChange();
    m_blogTitle = blogTitle;
    emit blogTitleChanged();
}

void BlogViewModel::setBlogLink(const QString &blogLink)
{
    emit objectWillChange();
    m_blogLink = blogLink;
    emit blogLinkChanged();
}

void BlogViewModel::setBlogDescription(const QString &blogDescription)
{
    emit objectWillChange();
    m_blogDescription = blogDescription;
    emit blogDescriptionChanged();
}

void BlogViewModel::addPost(const BlogPost &post)
{
    emit objectWillChange();
    m_posts.prepend(post);
    emit postsChanged();
    savePosts();
}

void BlogViewModel::updatePost(const BlogPost &post)
{
    const auto old = std::find_if(m_posts.cbegin(), m_posts.cend(),
                                  [&post](const BlogPost &other) { return other.id == post.id; });
    if (old == m_posts.cend())
        return;
    const qsizetype position = old - m_posts.cbegin();
    emit objectWillChange();
    m_posts[position] = post;
    emit postsChanged();
    savePosts();
}

void BlogViewModel::deletePost(const std::set<qsizetype> &at)
{
    for (const qsizetype position : at) {
        if (position < 0 || position >= m_posts.size())
            endForPositionOutsideList(position, m_posts.size());
    }
    emit objectWillChange();
    std::for_each(at.crbegin(), at.crend(),
                  [this](qsizetype position) { m_posts.removeAt(position); });
    emit postsChanged();
    savePosts();
}

void BlogViewModel::importRSSFeed(const QString &from)
{
    const auto file = readFile(from);
    const auto posts = file ? postsOfFeed(*file, &Date::now) : std::nullopt;
    if (!posts) {
        std::puts("Failed to read RSS file");
        std::fflush(stdout);
        return;
    }
    // The window may close, and with it the program end, before the next turn of the loop: until
    // the posts are saved, the change keeps both the store and the loop.
    const auto replacePosts = [store = shared_from_this(), imported = *posts,
                               loop = std::make_shared<QEventLoopLocker>()] {
        store->setPosts(imported);
        store->savePosts();
    };
    QMetaObject::invokeMethod(QCoreApplication::instance(), replacePosts, Qt::QueuedConnection);
}

void BlogViewModel::savePosts() const
{
    if (const auto json = encodePosts(m_posts))
        rewriteFile(postsFile(getDocumentsDirectory()), *json);
}

void BlogViewModel::loadPosts()
{
    auto file = readFile(postsFile(getDocumentsDirectory()));
    if (!file)
        return;
    if (const auto posts = decodePosts(*std::move(file)))
        setPosts(*posts);
}

void BlogViewModel::saveSettings() const
{
    const RSSSettings settings{m_blogTitle, m_blogLink, m_blogDescription};
    rewriteFile(settingsFile(getDocumentsDirectory()), encodeSettings(settings));
}

void BlogViewModel::loadSettings()
{
    auto file = readFile(settingsFile(getDocumentsDirectory()));
    if (!file)
        return;
    if (const auto settings = decodeSettings(*std::move(file))) {
        setBlogTitle(settings->title);
        setBlogLink(settings->link);
        setBlogDescription(settings->description);
    }
}

QByteArray BlogViewModel::generateRSSFeed() const
{
    const RSSSettings channel{m_blogTitle, m_blogLink, m_blogDescription};
    return feedOfPosts(channel, m_posts, DateRegion::current());
}

void BlogViewModel::exportRSS(const QString &to) const
{
    replaceFile(to, generateRSSFeed());
}

QString BlogViewModel::getDocumentsDirectory()
{
    return documentsDirectory();
}
