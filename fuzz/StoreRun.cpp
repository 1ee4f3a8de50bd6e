#include "fuzz/StoreRun.h"

#include "fuzz/Check.h"
#include "tests/references/FeedPatterns.h"
#include "tests/references/RecordsByRapidJson.h"
#include "tests/references/TextByIcu.h"
#include "tests/support/Posts.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <sys/mman.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <set>

using namespace Qt::StringLiterals;

namespace {

const QString tableOfDirectories = u".config/user-dirs.dirs"_s;

StoreState stateOf(const BlogViewModel &store)
{
    return {.posts = store.posts(),
            .useDescriptionAsArticle = store.useDescriptionAsArticle(),
            .settings = {store.blogTitle(), store.blogLink(), store.blogDescription()}};
}

bool sameSignals(const std::vector<StoreSignal> &left, const std::vector<StoreSignal> &right)
{
    const auto same = [](const StoreSignal &one, const StoreSignal &other) {
        return one.kind == other.kind && identical(one.state, other.state);
    };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), same);
}

/// Everything in a folder but its hidden files, which are none of the store's.
void listFiles(const TemporaryHome &home, const QString &folder, HomeFiles &files)
{
    for (const QFileInfo &entry : QDir(home.path(folder))
                                      .entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System
                                                     | QDir::NoDotAndDotDot)) {
        const QString name = folder + entry.fileName();
        if (name == u".config"_s || name == u"second"_s)
            continue;
        files[name] = entry.isDir() ? std::nullopt : home.read(name);
    }
}

HomeFiles filesOf(const TemporaryHome &home)
{
    HomeFiles files;
    listFiles(home, QString(), files);
    listFiles(home, u"second/"_s, files);
    return files;
}

void removeFile(const TemporaryHome &home, const QString &name)
{
    QFile::remove(home.path(name));
    QDir().rmdir(home.path(name));
}

void emptyHome(const TemporaryHome &home)
{
    for (const auto &[name, bytes] : filesOf(home))
        removeFile(home, name);
    QFile::remove(home.path(tableOfDirectories));
    QDir().mkpath(home.path(u"second"_s));
}

const std::array<const char *, 24> feedPieces{
    "<item>",
    "</item>",
    "<title>",
    "</title>",
    "<link>",
    "</link>",
    "<description>",
    "</description>",
    "<pubDate>",
    "</pubDate>",
    "<item ",
    "a",
    "\xC3\xA9",
    "\xEF\xBB\xBF",
    "\xF0\x9F\x98\x80",
    "\xFF",
    "\n",
    "&amp;",
    "<",
    ">",
    "<item><title>A</title></item>",
    "<item><link>/a</link><description>b</description></item>",
    "<![CDATA[",
    "\xE2\x80\xA8"};

const std::array<const char *, 24> jsonPieces{
    "[",
    "]",
    "{",
    "}",
    ",",
    ":",
    R"("id":"6F9619FF-8B86-4011-B42D-00C04FC964FF")",
    R"("title":"A")",
    R"("content":"\u00e9\/")",
    R"("date":-0.5)",
    R"("date":1e999)",
    R"("description":"")",
    R"("permalink":"\/")",
    R"("link":"L")",
    R"("title":null)",
    R"("more":[{"a":[1]}])",
    R"("\ud83d")",
    " ",
    "\n",
    "\xEF\xBB\xBF",
    "\xFF",
    R"([{"id":"6F9619FF-8B86-4011-B42D-00C04FC964FF","title":"","content":"","date":0,"description":"","permalink":""}])",
    R"({"title":"T","link":"","description":"\n"})",
    "[]"};

template <typename Pieces>
QByteArray joined(const Pieces &pieces, const QByteArray &choices)
{
    QByteArray document;
    for (const char choice : choices)
        document += pieces[std::uint8_t(choice) % pieces.size()];
    return document;
}

} // namespace

TakenOutput::TakenOutput()
    : m_descriptor(memfd_create("output", 0))
{
    check(m_descriptor >= 0 && dup2(m_descriptor, STDOUT_FILENO) >= 0, "the output can be taken");
}

QByteArray TakenOutput::text()
{
    std::fflush(stdout);
    QByteArray all(lseek(m_descriptor, 0, SEEK_CUR), '\0');
    check(pread(m_descriptor, all.data(), std::size_t(all.size()), 0) == all.size(),
          "the output can be read");
    check(ftruncate(m_descriptor, 0) == 0 && lseek(m_descriptor, 0, SEEK_SET) == 0,
          "the output can be forgotten");
    return all;
}

StoreRun::StoreRun(const TemporaryHome &home, TakenOutput &output, Choices &choices)
    : m_home(home)
    , m_output(output)
    , m_choices(choices)
{
    emptyHome(m_home);
    restart();
    compare();
}

StoreRun::~StoreRun()
{
    QObject::disconnect(m_store.get(), nullptr, nullptr, nullptr);
}

void StoreRun::step()
{
    switch (m_choices.below(12)) {
    case 0:
        restart();
        break;
    case 1:
        setProperty();
        break;
    case 2:
        saveOrLoad();
        break;
    case 3:
        exportFeed();
        break;
    case 4:
    case 5:
        importFeed();
        break;
    case 6:
        spin();
        break;
    case 7:
        putFile();
        break;
    case 8:
        moveDocuments();
        break;
    default:
        changePosts();
        break;
    }
    compare();
}

void StoreRun::finish()
{
    spin();
    compare();
}

/// The store that was here lives on in its imports; nobody listens to it any more.
void StoreRun::restart()
{
    if (m_store)
        QObject::disconnect(m_store.get(), nullptr, nullptr, nullptr);
    m_store = BlogViewModel::create();
    ++m_storeNumber;
    m_log.clear();

    const BlogViewModel *store = m_store.get();
    const auto record = [this, store](auto signal, StoreSignal::Kind kind) {
        QObject::connect(store, signal, [this, store, kind] {
            m_log.push_back({kind, stateOf(*store)});
        });
    };
    record(&BlogViewModel::objectWillChange, StoreSignal::WillChange);
    record(&BlogViewModel::postsChanged, StoreSignal::Posts);
    record(&BlogViewModel::useDescriptionAsArticleChanged, StoreSignal::Option);
    record(&BlogViewModel::blogTitleChanged, StoreSignal::Title);
    record(&BlogViewModel::blogLinkChanged, StoreSignal::Link);
    record(&BlogViewModel::blogDescriptionChanged, StoreSignal::Description);
    m_model.restart();
}

void StoreRun::changePosts()
{
    switch (m_choices.below(4)) {
    case 0: {
        const BlogPost post = anyPost(QUuid::createUuid());
        m_store->addPost(post);
        m_model.addPost(post);
        break;
    }
    case 1: {
        const BlogPost post = anyPost(anyId());
        m_store->addPost(post);
        m_model.addPost(post);
        break;
    }
    case 2: {
        const BlogPost post = anyPost(anyId());
        m_store->updatePost(post);
        m_model.updatePost(post);
        break;
    }
    default: {
        const auto positions = anyPositions();
        m_store->deletePost(positions);
        m_model.deletePost(positions);
        break;
    }
    }
}

void StoreRun::setProperty()
{
    switch (m_choices.below(5)) {
    case 0: {
        BlogPosts posts = m_model.state.posts;
        posts.append(anyPost(anyId()));
        m_store->setPosts(posts);
        m_model.setPosts(posts);
        break;
    }
    case 1: {
        const bool value = m_choices.below(2) == 1;
        m_store->setUseDescriptionAsArticle(value);
        m_model.setUseDescriptionAsArticle(value);
        break;
    }
    case 2: {
        const QString text = m_choices.text();
        m_store->setBlogTitle(text);
        m_model.setTitle(text);
        break;
    }
    case 3: {
        const QString text = m_choices.text();
        m_store->setBlogLink(text);
        m_model.setLink(text);
        break;
    }
    default: {
        const QString text = m_choices.text();
        m_store->setBlogDescription(text);
        m_model.setDescription(text);
        break;
    }
    }
}

void StoreRun::saveOrLoad()
{
    switch (m_choices.below(4)) {
    case 0:
        m_store->savePosts();
        m_model.savePosts();
        break;
    case 1:
        m_store->saveSettings();
        m_model.saveSettings();
        break;
    case 2:
        m_store->loadPosts();
        m_model.loadPosts();
        break;
    default:
        m_store->loadSettings();
        m_model.loadSettings();
        break;
    }
}

void StoreRun::exportFeed()
{
    static const std::array<QString, 5> names{u"feed.xml"_s, u"second/feed.xml"_s, u"posts.json"_s,
                                              u"missing/feed.xml"_s, QString()};
    const QString &name = names[std::size_t(m_choices.below(qsizetype(names.size())))];
    if (name.isEmpty()) {
        m_store->exportRSS(QString());
        return;
    }
    m_store->exportRSS(path(name));
    m_model.exportTo(name);
}

void StoreRun::importFeed()
{
    static const std::array<QString, 4> names{u"imported.rss"_s, u"feed.xml"_s, u"posts.json"_s,
                                              u"second"_s};
    const QString &name = names[std::size_t(m_choices.below(qsizetype(names.size())))];
    if (name == u"imported.rss"_s) {
        const QByteArray feed = anyDocument();
        m_home.write(name, feed);
        m_model.files[name] = feed;
    }

    const Date earliest = Date::now();
    m_store->importRSSFeed(path(name));
    const Date latest = Date::now();

    const auto bytes = m_model.read(name);
    const auto text = bytes ? textByIcu(*bytes) : std::nullopt;
    if (!text) {
        m_expectedOutput += "Failed to read RSS file\n";
        return;
    }
    BlogPosts posts;
    for (const FoundItem &item : itemsByPatterns(*text)) {
        posts.append({.id = {},
                      .title = item.title,
                      .content = item.description,
                      .date = {},
                      .description = item.description,
                      .permalink = item.permalink});
    }
    m_imports.push_back({posts, m_storeNumber, earliest, latest});
}

/// A turn of the event loop. Which ids and dates an import has made is seen in what this store
/// says, or, if it was another store's, in the file.
void StoreRun::spin()
{
    QCoreApplication::processEvents();

    const auto imports = std::exchange(m_imports, {});
    std::size_t signal = 0;
    for (const Import &import : imports) {
        if (import.store == m_storeNumber) {
            check(signal + 1 < m_log.size(), "an import changes the posts");
            m_model.setPosts(completed(import, m_log[signal + 1].state.posts));
            m_model.savePosts();
            signal += 2;
            continue;
        }
        // Overwritten by the next.
        if (&import != &imports.back())
            continue;
        const QString name = m_model.documents + u"posts.json"_s;
        const auto saved = postsByRapidJson(m_home.read(name).value_or(QByteArray()));
        StoreModel other = m_model;
        other.state.posts = completed(import, saved.value_or(BlogPosts()));
        other.savePosts();
        m_model.files = other.files;
    }
}

void StoreRun::putFile()
{
    const QString name = anyDataFile();
    removeFile(m_home, name);
    m_model.files.erase(name);
    switch (m_choices.below(6)) {
    case 0:
        break;
    case 1:
        QDir().mkpath(path(name));
        m_model.files[name] = std::nullopt;
        break;
    default: {
        const QByteArray bytes = anyDocument();
        m_home.write(name, bytes);
        m_model.files[name] = bytes;
        break;
    }
    }
}

void StoreRun::moveDocuments()
{
    static const std::array<QString, 3> folders{QString(), u"second/"_s, u"missing/"_s};
    m_model.documents = folders[std::size_t(m_choices.below(qsizetype(folders.size())))];
    QFile::remove(path(tableOfDirectories));
    if (!m_model.documents.isEmpty())
        m_home.writeUserDirectories("XDG_DOCUMENTS_DIR=\"$HOME/" + m_model.documents.toUtf8()
                                    + "\"\n");
}

BlogPost StoreRun::anyPost(const QUuid &id)
{
    BlogPost post{.id = id,
                  .title = m_choices.text(),
                  .content = {},
                  .date = Date(m_choices.number()),
                  .description = {},
                  .permalink = {}};
    post.content = m_choices.text();
    post.description = m_choices.text();
    post.permalink = m_choices.text();
    return post;
}

/// That of a post in the list, or of none.
QUuid StoreRun::anyId()
{
    const BlogPosts &posts = m_model.state.posts;
    const qsizetype position = m_choices.below(posts.size() + 1);
    return position < posts.size() ? posts[position].id : QUuid();
}

std::set<qsizetype> StoreRun::anyPositions()
{
    std::set<qsizetype> positions;
    if (m_model.state.posts.isEmpty())
        return positions;
    for (qsizetype count = m_choices.below(5); count > 0; --count)
        positions.insert(m_choices.below(m_model.state.posts.size()));
    return positions;
}

/// Any bytes, pieces of feeds or of JSON, or one of the files that there are with a small damage.
QByteArray StoreRun::anyDocument()
{
    switch (m_choices.below(4)) {
    case 0:
        return m_choices.bytes();
    case 1:
        return joined(feedPieces, m_choices.bytes());
    case 2:
        return joined(jsonPieces, m_choices.bytes());
    default: {
        static const std::array<QString, 3> names{u"posts.json"_s, u"rss_settings.json"_s,
                                                  u"feed.xml"_s};
        QByteArray bytes =
            m_model.read(names[std::size_t(m_choices.below(3))]).value_or(QByteArray());
        if (bytes.isEmpty())
            return bytes;
        const qsizetype place = qsizetype(m_choices.word() % std::uint64_t(bytes.size()));
        if (m_choices.below(2) == 0)
            bytes.truncate(place);
        else
            bytes[place] = char(m_choices.byte());
        return bytes;
    }
    }
}

QString StoreRun::anyDataFile()
{
    const QString folder = m_choices.below(4) == 0 ? u"second/"_s : QString();
    return folder + (m_choices.below(3) == 0 ? u"rss_settings.json"_s : u"posts.json"_s);
}

/// An import's posts with the ids and dates that it made, which have to be new and of its time.
BlogPosts StoreRun::completed(const Import &import, const BlogPosts &seen) const
{
    BlogPosts posts = import.posts;
    std::set<QUuid> ids;
    double before = import.earliest.secondsSinceReferenceDate();
    for (qsizetype i = 0; i < qMin(posts.size(), seen.size()); ++i) {
        const double date = seen[i].date.secondsSinceReferenceDate();
        check(seen[i].id.version() == QUuid::Random && ids.insert(seen[i].id).second,
              "each imported post has a random id of its own");
        check(before <= date && date <= import.latest.secondsSinceReferenceDate(),
              "imported posts have the time of the import, in order");
        before = date;
        posts[i].id = seen[i].id;
        posts[i].date = seen[i].date;
    }
    return posts;
}

void StoreRun::compare()
{
    check(identical(stateOf(*m_store), m_model.state), "the store holds what its model does");
    check(sameSignals(m_log, m_model.log), "the store has said what its model has");
    check(filesOf(m_home) == m_model.files, "the files are those of the model");
    check(m_output.text() == std::exchange(m_expectedOutput, {}), "the output is the model's");
    m_log.clear();
    m_model.log.clear();
}
