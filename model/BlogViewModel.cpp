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
#include <utility>

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

template <typename Change>
void BlogViewModel::change(void (BlogViewModel::*changed)(), Change make)
{
    emit objectWillChange();
    make();
    emit(this->*changed)();
}

void BlogViewModel::setPosts(const BlogPosts &posts)
{
    change(&BlogViewModel::postsChanged, [&] { m_posts = posts; });
}

void BlogViewModel::setUseDescriptionAsArticle(bool useDescriptionAsArticle)
{
    change(&BlogViewModel::useDescriptionAsArticleChanged,
           [&] { m_useDescriptionAsArticle = useDescriptionAsArticle; });
}

void BlogViewModel::setBlogTitle(const QString &blogTitle)
{
    change(&BlogViewModel::blogTitleChanged, [&] { m_blogTitle = blogTitle; });
}

void BlogViewModel::setBlogLink(const QString &blogLink)
{
    change(&BlogViewModel::blogLinkChanged, [&] { m_blogLink = blogLink; });
}

void BlogViewModel::setBlogDescription(const QString &blogDescription)
{
    change(&BlogViewModel::blogDescriptionChanged, [&] { m_blogDescription = blogDescription; });
}

void BlogViewModel::addPost(const BlogPost &post)
{
    change(&BlogViewModel::postsChanged, [&] { m_posts.prepend(post); });
    savePosts();
}

void BlogViewModel::updatePost(const BlogPost &post)
{
    const auto old = std::find_if(m_posts.cbegin(), m_posts.cend(),
                                  [&post](const BlogPost &other) { return other.id == post.id; });
    if (old == m_posts.cend())
        return;
    const qsizetype position = old - m_posts.cbegin();
    change(&BlogViewModel::postsChanged, [&] { m_posts[position] = post; });
    savePosts();
}

void BlogViewModel::deletePost(const std::set<qsizetype> &at)
{
    for (const qsizetype position : at) {
        if (position < 0 || position >= m_posts.size())
            endForPositionOutsideList(position, m_posts.size());
    }
    change(&BlogViewModel::postsChanged, [&] {
        std::for_each(at.crbegin(), at.crend(),
                      [this](qsizetype position) { m_posts.removeAt(position); });
    });
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
    rewriteFile(settingsFile(getDocumentsDirectory()), encodeSettings(settings()));
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
    return feedOfPosts(settings(), m_posts, DateRegion::current());
}

void BlogViewModel::exportRSS(const QString &to) const
{
    replaceFile(to, generateRSSFeed());
}

RSSSettings BlogViewModel::settings() const
{
    return {.title = m_blogTitle, .link = m_blogLink, .description = m_blogDescription};
}

QString BlogViewModel::getDocumentsDirectory()
{
    return documentsDirectory();
}
