#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <optional>
#include <set>
#include <vector>

/// What can be seen of a store.
struct StoreState
{
    BlogPosts posts;
    bool useDescriptionAsArticle = false;
    RSSSettings settings;
};

bool identical(const StoreState &left, const StoreState &right);

/// A signal, and the store as it stood when it was sent.
struct StoreSignal
{
    enum Kind { WillChange, Posts, Option, Title, Link, Description };

    Kind kind;
    StoreState state;
};

/// The files of the home directory and of the folder "second" in it, by their names there: nothing
/// for a folder that stands in a file's place.
using HomeFiles = std::map<QString, std::optional<QByteArray>>;

/// The store once more, naively: it does to a list, a map of files and a log what the store does to
/// itself, to the disk and to who listens.
class StoreModel
{
public:
    StoreModel();

    StoreState state;
    HomeFiles files;
    std::vector<StoreSignal> log; ///< since it was last cleared
    QString documents;            ///< "" or a folder with a slash behind it; "missing/" is missing

    /// A store that has just been made: nobody listens yet.
    void restart();

    void setPosts(const BlogPosts &posts);
    void setUseDescriptionAsArticle(bool value);
    void setTitle(const QString &text);
    void setLink(const QString &text);
    void setDescription(const QString &text);

    void addPost(const BlogPost &post);
    void updatePost(const BlogPost &post);
    void deletePost(const std::set<qsizetype> &at);

    void loadPosts();
    void loadSettings();
    void savePosts();
    void saveSettings();
    void exportTo(const QString &name);

    /// The bytes of a file; nothing where there is none.
    std::optional<QByteArray> read(const QString &name) const;

    /// Makes or replaces a file, where that can be done.
    void write(const QString &name, const QByteArray &bytes);

private:
    template <typename Change>
    void change(StoreSignal::Kind kind, Change change);
};
