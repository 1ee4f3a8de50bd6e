#include "fuzz/StoreModel.h"

#include "fuzz/PlainDocuments.h"
#include "tests/references/RecordsByRapidJson.h"
#include "tests/support/Posts.h"

using namespace Qt::StringLiterals;

namespace {

const QString postsName = u"posts.json"_s;
const QString settingsName = u"rss_settings.json"_s;

StoreState newState()
{
    return {.posts = {},
            .useDescriptionAsArticle = false,
            .settings = {u"My Tavlo"_s, u"https://example.com"_s,
                         u"Lorem ipsum dolor sit amet consectetur adipiscing elit. Consectetur "
                         "adipiscing elit quisque faucibus ex sapien vitae. Ex sapien vitae "
                         "pellentesque sem placerat in id. Placerat in id cursus mi pretium tellus "
                         "duis. Pretium tellus duis convallis tempus leo eu aenean."_s}};
}

} // namespace

bool identical(const StoreState &left, const StoreState &right)
{
    return identical(left.posts, right.posts)
        && left.useDescriptionAsArticle == right.useDescriptionAsArticle
        && left.settings.title == right.settings.title && left.settings.link == right.settings.link
        && left.settings.description == right.settings.description;
}

StoreModel::StoreModel()
{
    restart();
}

void StoreModel::restart()
{
    state = newState();
    loadPosts();
    loadSettings();
    log.clear();
}

template <typename Change>
void StoreModel::change(StoreSignal::Kind kind, Change change)
{
    log.push_back({StoreSignal::WillChange, state});
    change();
    log.push_back({kind, state});
}

void StoreModel::setPosts(const BlogPosts &posts)
{
    change(StoreSignal::Posts, [&] { state.posts = posts; });
}

void StoreModel::setUseDescriptionAsArticle(bool value)
{
    change(StoreSignal::Option, [&] { state.useDescriptionAsArticle = value; });
}

void StoreModel::setTitle(const QString &text)
{
    change(StoreSignal::Title, [&] { state.settings.title = text; });
}

void StoreModel::setLink(const QString &text)
{
    change(StoreSignal::Link, [&] { state.settings.link = text; });
}

void StoreModel::setDescription(const QString &text)
{
    change(StoreSignal::Description, [&] { state.settings.description = text; });
}

void StoreModel::addPost(const BlogPost &post)
{
    setPosts(BlogPosts{post} + state.posts);
    savePosts();
}

void StoreModel::updatePost(const BlogPost &post)
{
    BlogPosts posts = state.posts;
    for (BlogPost &old : posts) {
        if (old.id != post.id)
            continue;
        old = post;
        setPosts(posts);
        savePosts();
        return;
    }
}

void StoreModel::deletePost(const std::set<qsizetype> &at)
{
    BlogPosts kept;
    for (qsizetype position = 0; position < state.posts.size(); ++position) {
        if (!at.contains(position))
            kept.append(state.posts[position]);
    }
    setPosts(kept);
    savePosts();
}

void StoreModel::loadPosts()
{
    const auto json = read(documents + postsName);
    const auto posts = json ? postsByRapidJson(*json) : std::nullopt;
    if (posts)
        setPosts(*posts);
}

void StoreModel::loadSettings()
{
    const auto json = read(documents + settingsName);
    const auto settings = json ? settingsByRapidJson(*json) : std::nullopt;
    if (!settings)
        return;
    setTitle(settings->title);
    setLink(settings->link);
    setDescription(settings->description);
}

void StoreModel::savePosts()
{
    if (const auto json = plainPosts(state.posts))
        write(documents + postsName, *json);
}

void StoreModel::saveSettings()
{
    write(documents + settingsName, plainSettings(state.settings));
}

void StoreModel::exportTo(const QString &name)
{
    write(name, plainFeed(state.settings, state.posts));
}

std::optional<QByteArray> StoreModel::read(const QString &name) const
{
    const auto found = files.find(name);
    return found == files.end() ? std::nullopt : found->second;
}

void StoreModel::write(const QString &name, const QByteArray &bytes)
{
    const auto found = files.find(name);
    const bool isFolder = found != files.end() && !found->second;
    if (!isFolder && !name.startsWith(u"missing/"))
        files[name] = bytes;
}
