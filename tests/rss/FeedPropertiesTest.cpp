// What holds for the writer and the import whatever the texts.
#include "rss/RSSFeedImporter.h"
#include "rss/RSSFeedWriter.h"
#include "tests/references/FeedPatterns.h"
#include "tests/references/TextByIcu.h"
#include "tests/rss/FeedSamples.h"
#include "tests/support/Generators.h"
#include "tests/support/Noncharacters.h"
#include "tests/support/Posts.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList tags{u"<item>"_s,        u"</item>"_s,        u"<title>"_s, u"</title>"_s,
                       u"<description>"_s, u"</description>"_s, u"<link>"_s,  u"</link>"_s};

rc::Gen<QString> anyTag()
{
    return rc::gen::elementOf(std::vector<QString>(tags.begin(), tags.end()));
}

/// What looks like a tag and is none, parts of tags, and what feeds have around them.
rc::Gen<QString> anyFragment()
{
    static const std::vector<QString> fragments{u"<"_s,
                                                u">"_s,
                                                u"/"_s,
                                                u"</"_s,
                                                u"<item"_s,
                                                u"</item"_s,
                                                u"<it"_s,
                                                u"em>"_s,
                                                u"item>"_s,
                                                u"<ITEM>"_s,
                                                u"<title"_s,
                                                u"</title"_s,
                                                u"<title/>"_s,
                                                u"<Title>"_s,
                                                u"<title >"_s,
                                                u"<link/>"_s,
                                                u"<link href=\"a\">"_s,
                                                u"</ link>"_s,
                                                u"<media:title>"_s,
                                                u"<pubDate>"_s,
                                                u"</pubDate>"_s,
                                                u"<!--"_s,
                                                u"-->"_s,
                                                u"<![CDATA["_s,
                                                u"]]>"_s,
                                                u"<<title>"_s,
                                                u"</item></item>"_s,
                                                u"\n"_s,
                                                u"\u2028"_s};
    return rc::gen::elementOf(fragments);
}

rc::Gen<QString> joined(const rc::Gen<QString> &piece)
{
    return rc::gen::map(rc::gen::container<std::vector<QString>>(piece),
                        [](const std::vector<QString> &pieces) {
                            return QStringList(pieces.begin(), pieces.end()).join(QString());
                        });
}

/// Tags, fragments and noise in any order.
rc::Gen<QString> disorderedFeed()
{
    return joined(rc::gen::weightedOneOf<QString>(
        {{5, anyTag()}, {3, anyFragment()}, {2, generators::textPiece()}}));
}

/// Items of elements, with tags, fragments and noise between and within them.
rc::Gen<QString> almostOrderedFeed()
{
    const auto noise = rc::gen::resize(4, disorderedFeed());
    const auto element = rc::gen::map(
        rc::gen::pair(rc::gen::elementOf(std::vector<QString>{u"title"_s, u"description"_s,
                                                              u"link"_s, u"pubDate"_s, u"guid"_s}),
                      noise),
        [](const std::pair<QString, QString> &parts) {
            return u"<%1>"_s.arg(parts.first) + parts.second + u"</%1>"_s.arg(parts.first);
        });
    const auto elements =
        rc::gen::resize(8, joined(rc::gen::weightedOneOf<QString>({{4, element}, {1, noise}})));
    const auto item = rc::gen::map(
        elements, [](const QString &content) { return u"<item>"_s + content + u"</item>\n"_s; });
    return rc::gen::resize(14, joined(rc::gen::weightedOneOf<QString>({{4, item}, {1, noise}})));
}

QString withoutTags(QString text)
{
    for (qsizetype before = -1; before != text.size();) {
        before = text.size();
        for (const QString &tag : tags)
            text.remove(tag);
    }
    return text;
}

BlogPosts withoutTags(BlogPosts posts)
{
    for (BlogPost &post : posts) {
        post.title = withoutTags(post.title);
        post.permalink = withoutTags(post.permalink);
    }
    return posts;
}

BlogPosts imported(const QByteArray &feed)
{
    const auto posts = postsOfFeed(feed, &Date::now);
    RC_ASSERT(posts.has_value());
    return *posts;
}

void expectWhatThePatternsFind(const QString &feed)
{
    const auto items = itemsByPatterns(feed);
    const BlogPosts posts = imported(feed.toUtf8());
    RC_ASSERT(itemsOf(posts) == items);
    for (const BlogPost &post : posts)
        RC_ASSERT(post.content == post.description);
}

/// The import and the patterns find the same, or neither takes the bytes for UTF-8.
bool isImportedAsThePatternsFind(const QByteArray &feed)
{
    const auto posts = postsOfFeed(feed, &Date::now);
    const auto text = textByIcu(feed);
    return posts.has_value() == text.has_value()
        && (!posts || itemsOf(*posts) == itemsByPatterns(*text));
}

} // namespace

TEST(FeedPatterns, haveSomethingToFindInMostGeneratedFeeds)
{
    const int count = 200;
    int withTitledItems = 0;
    rc::Random random(1);
    for (int i = 0; i < count; ++i) {
        const QString feed = almostOrderedFeed()(random.split(), rc::kNominalSize).value();
        for (const FoundItem &item : itemsByPatterns(feed)) {
            if (item.title.isEmpty())
                continue;
            ++withTitledItems;
            break;
        }
    }
    EXPECT_GT(withTitledItems, count / 2);
}

TEST(FeedPatterns, anEngineThatGivesUp_isNoticed)
{
    const QString text = QString(60, u'a') + u'b';
    const QRegularExpression exponential(u"^(a+)+$"_s);
    EXPECT_FALSE(exponential.match(text).isValid());
}

TEST(FeedPatterns, findWhatIsInAFeed)
{
    EXPECT_EQ(itemsByPatterns(u"<item><title>\nA</title><link>L</link><title>B</title></item>"
                              "<item><item></item></item><item><description>D\n</description>"
                              "</item><item>"_s),
              (std::vector<FoundItem>{{u"\nA"_s, u"L"_s, QString()},
                                      {QString(), QString(), QString()},
                                      {QString(), QString(), u"D\n"_s}}));
}

RC_GTEST_PROP(FeedProperties, anImportOfAnyDisorder_isWhatThePatternsFind, ())
{
    const auto feeds = *rc::gen::container<std::vector<QString>>(100, disorderedFeed());
    for (const QString &feed : feeds)
        expectWhatThePatternsFind(feed);
}

RC_GTEST_PROP(FeedProperties, anImportOfAlmostAFeed_isWhatThePatternsFind, ())
{
    const auto feeds = *rc::gen::container<std::vector<QString>>(100, almostOrderedFeed());
    for (const QString &feed : feeds)
        expectWhatThePatternsFind(feed);
}

RC_GTEST_PROP(FeedProperties, anImportOfAnExport_isWhatThePatternsFind,
              (const RSSSettings &channel, const BlogPosts &posts))
{
    expectWhatThePatternsFind(QString::fromUtf8(feedOfPosts(channel, posts, neutralRegion)));
}

RC_GTEST_PROP(FeedProperties, anExportOfTextsWithoutTags_comesBackWithItsDescriptionsEscaped,
              (const RSSSettings &settings, const BlogPosts &anyPosts))
{
    const BlogPosts posts = withoutTags(anyPosts);
    const RSSSettings channel{withoutTags(settings.title), withoutTags(settings.link),
                              withoutTags(settings.description)};
    const BlogPosts back = imported(feedOfPosts(channel, posts, neutralRegion));
    RC_ASSERT(back.size() == posts.size());
    for (qsizetype i = 0; i < posts.size(); ++i) {
        RC_ASSERT(back[i].title == posts[i].title);
        RC_ASSERT(back[i].permalink == posts[i].permalink);
        RC_ASSERT(back[i].description == escaped(posts[i].description));
        RC_ASSERT(back[i].content == escaped(posts[i].description));
        RC_ASSERT(back[i].id.version() == QUuid::Random);
    }
}

RC_GTEST_PROP(FeedProperties, aFeed_isItsPiecesJoined,
              (const RSSSettings &channel, const BlogPosts &posts))
{
    QStringList items;
    for (const BlogPost &post : posts) {
        const QByteArray date = between(feedOfPosts({},
                                                    {{.id = post.id,
                                                      .title = {},
                                                      .content = {},
                                                      .date = post.date,
                                                      .description = {},
                                                      .permalink = {}}},
                                                    neutralRegion),
                                        "<pubDate>", "</pubDate>");
        items += u"<item>\n  <title>"_s + post.title + u"</title>\n  <link>"_s + post.permalink
            + u"</link>\n  <pubDate>"_s + QString::fromUtf8(date) + u"</pubDate>\n  <description>"_s
            + escaped(post.description) + u"</description>\n</item>"_s;
    }
    const QString feed = u"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<rss version=\"2.0\">\n"
                         "  <channel>\n    <title>"_s
        + channel.title + u"</title>\n    <link>"_s + channel.link + u"</link>\n    <description>"_s
        + channel.description + u"</description>\n    "_s + items.join(u'\n')
        + u"\n  </channel>\n</rss>"_s;
    RC_ASSERT(feedOfPosts(channel, posts, neutralRegion) == feed.toUtf8());
}

TEST(FeedImportOfADamagedFeed, everyTruncationAndEverySingleByteChange_isWhatThePatternsFind)
{
    const QByteArray good = "\xEF\xBB\xBF<rss><item><title>\xC3\xA9 A</title><link>L</link>"
                            "<description>\xF0\x9F\x98\x80</description></item>"
                            "<item><title>B</title></item></rss>";
    ASSERT_EQ(imported(good).size(), 2);
    for (qsizetype size = 0; size <= good.size(); ++size) {
        EXPECT_TRUE(isImportedAsThePatternsFind(good.left(size))) << size;
        for (int byte = 0; size < good.size() && byte < 256; ++byte) {
            QByteArray changed = good;
            changed[size] = char(byte);
            EXPECT_TRUE(isImportedAsThePatternsFind(changed)) << changed.data();
        }
    }
}

TEST(FeedImportOfNoncharacters, keepsThemAll)
{
    const QString text = allNoncharacters();
    const BlogPosts posts{postTitled(text)};
    const BlogPosts back = imported(feedOfPosts({text, text, text}, posts, neutralRegion));
    ASSERT_EQ(back.size(), 1);
    EXPECT_EQ(back[0].title, text);
    EXPECT_EQ(back[0].description, posts[0].description);
}
