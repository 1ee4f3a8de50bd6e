// The layout of a feed, byte for byte, and what is escaped in it.
#include "rss/RSSFeedWriter.h"
#include "tests/rss/FeedSamples.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const RSSSettings channel{u"T"_s, u"L"_s, u"D"_s};

QByteArray feedOf(const BlogPosts &posts)
{
    return feedOfPosts(channel, posts, neutralRegion);
}

BlogPost describedPost(const QString &description)
{
    BlogPost post = postTitled(u"Post"_s);
    post.description = description;
    return post;
}

} // namespace

TEST(FeedWriter, aBlogOfTwoPosts_isLaidOutToTheByte)
{
    const BlogPosts posts{
        {.title = u"Hello"_s,
         .content = u"never written"_s,
         .date = instant("2026-01-05T09:03:07Z"),
         .description = u"First <b>post</b> & more"_s,
         .permalink = u"/notes/hello"_s},
        {.title = u"Second"_s,
         .content = {},
         .date = instant("2026-02-14T18:30:00Z"),
         .description = {},
         .permalink = {}},
    };
    const RSSSettings fieldNotes{u"Field Notes"_s, u"/notes"_s,
                                 u"Short posts about small things"_s};
    EXPECT_EQ(feedOfPosts(fieldNotes, posts, neutralRegion),
              R"(<?xml version="1.0" encoding="UTF-8" ?>
<rss version="2.0">
  <channel>
    <title>Field Notes</title>
    <link>/notes</link>
    <description>Short posts about small things</description>
    <item>
  <title>Hello</title>
  <link>/notes/hello</link>
  <pubDate>Mon, 5 Jan 2026 09:03:07 +0000</pubDate>
  <description>First &lt;b&gt;post&lt;/b&gt; &amp; more</description>
</item>
<item>
  <title>Second</title>
  <link></link>
  <pubDate>Sat, 14 Feb 2026 18:30:00 +0000</pubDate>
  <description></description>
</item>
  </channel>
</rss>)");
}

TEST(FeedWriter, anEmptyBlog_leavesALineOfFourBlanks)
{
    EXPECT_EQ(feedOf({}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n"
              "<rss version=\"2.0\">\n"
              "  <channel>\n"
              "    <title>T</title>\n"
              "    <link>L</link>\n"
              "    <description>D</description>\n"
              "    \n"
              "  </channel>\n"
              "</rss>");
}

TEST(FeedWriter, aSinglePost_hasNoLineFeedOfItsOwnAroundIt)
{
    const QByteArray feed = feedOf({postTitled(u"Only"_s)});
    EXPECT_TRUE(feed.contains("</description>\n    <item>\n  <title>Only</title>\n"));
    EXPECT_TRUE(feed.endsWith("</description>\n</item>\n  </channel>\n</rss>"));
}

TEST(FeedWriter, theChannelOfAnEmptyStoreOfTexts_isThreeEmptyElements)
{
    const QByteArray feed = feedOfPosts({}, {}, neutralRegion);
    EXPECT_TRUE(feed.contains("    <title></title>\n    <link></link>\n"
                              "    <description></description>\n"));
}

struct Escaping
{
    QString description;
    QByteArray written;
};

class FeedWriterEscaping : public testing::TestWithParam<Escaping>
{
};

TEST_P(FeedWriterEscaping, aDescription_isEscapedOnceAndOnlyWhereItMust)
{
    const auto &[description, written] = GetParam();
    EXPECT_TRUE(feedOf({describedPost(description)})
                    .endsWith("  <description>" + written
                              + "</description>\n</item>\n  </channel>\n</rss>"))
        << written.constData();
}

INSTANTIATE_TEST_SUITE_P(
    Descriptions, FeedWriterEscaping,
    testing::Values(
        Escaping{u"a < b & c > d"_s, "a &lt; b &amp; c &gt; d"}, Escaping{u"&lt;"_s, "&amp;lt;"},
        Escaping{u"&amp;"_s, "&amp;amp;"}, Escaping{u"&&<<>>"_s, "&amp;&amp;&lt;&lt;&gt;&gt;"},
        Escaping{u"say \"hi\", it's 'so'"_s, "say \"hi\", it's 'so'"},
        Escaping{u"<![CDATA[x]]>"_s, "&lt;![CDATA[x]]&gt;"}, Escaping{u"&"_s, "&amp;"},
        Escaping{u"  two\r\n\tlines  "_s, "  two\r\n\tlines  "},
        Escaping{u"\u00e9<\u6f22&\U0001F600>\u0661"_s,
                 "\xC3\xA9&lt;\xE6\xBC\xA2&amp;\xF0\x9F\x98\x80&gt;\xD9\xA1"},
        // Neither full-width forms nor a combined "not less than" are the characters themselves.
        Escaping{u"\uff1c\uff06\uff1e\u226e"_s, "\xEF\xBC\x9C\xEF\xBC\x86\xEF\xBC\x9E\xE2\x89\xAE"},
        Escaping{u"<\u0338"_s, "&lt;\xCC\xB8"}));

TEST(FeedWriter, aDescriptionOfManyAmpersands_isEscapedToItsEnd)
{
    const int count = 100'000;
    const QByteArray written = between(feedOf({describedPost(QString(count, u'&'))}),
                                       "</pubDate>\n  <description>", "</description>");
    EXPECT_EQ(written, QByteArray("&amp;").repeated(count));
}

TEST(FeedWriter, everyOtherText_standsAsItIs)
{
    const QString raw = u" Tom & \"Jerry\" <b>&amp;</b> ]]> </title> \r\n\t"_s;
    BlogPost post = postTitled(raw);
    post.permalink = raw;
    const QByteArray bytes = raw.toUtf8();
    const QByteArray feed = feedOfPosts({raw, raw, raw}, {post}, neutralRegion);
    EXPECT_TRUE(feed.contains("    <title>" + bytes + "</title>\n    <link>" + bytes
                              + "</link>\n    <description>" + bytes + "</description>\n"));
    EXPECT_TRUE(
        feed.contains("  <title>" + bytes + "</title>\n  <link>" + bytes + "</link>\n  <pubDate>"));
}

TEST(FeedWriter, anEmptyPermalink_isAnEmptyElement)
{
    BlogPost post = postTitled(u"Post"_s);
    post.permalink.clear();
    EXPECT_TRUE(feedOf({post}).contains("\n  <link></link>\n"));
}

TEST(FeedWriter, characters_areNeitherNormalisedNorDropped)
{
    // A byte-order mark, a composed and a decomposed letter, NUL, a noncharacter, line separators.
    const QString text = u"\ufeff\u00e9e\u0301"_s + QChar::Null + u"\uffff\u2028\u0085\ufeff"_s;
    const QByteArray bytes("\xEF\xBB\xBF\xC3\xA9"
                           "e\xCC\x81\0\xEF\xBF\xBF\xE2\x80\xA8\xC2\x85"
                           "\xEF\xBB\xBF",
                           20);
    BlogPost post = postTitled(text);
    post.permalink = post.description = text;
    const QByteArray feed = feedOfPosts({text, text, text}, {post}, neutralRegion);
    EXPECT_EQ(feed.count(bytes), 6);
}

TEST(FeedWriter, aTextThatBeginsWithAByteOrderMark_givesTheDocumentNone)
{
    EXPECT_TRUE(feedOfPosts({u"\ufeff"_s, {}, {}}, {}, neutralRegion).startsWith("<?xml "));
}

TEST(FeedWriter, aLoneSurrogate_becomesAReplacementCharacter)
{
    const QString high = u"a"_s + QChar(0xd83d) + u"<"_s;
    const QString low = QChar(0xde00) + u"b"_s + QChar(0xd83d);
    BlogPost post = postTitled(low);
    post.description = high;
    const QByteArray feed = feedOf({post});
    EXPECT_TRUE(feed.contains("<title>\xEF\xBF\xBD"
                              "b\xEF\xBF\xBD</title>"));
    EXPECT_TRUE(feed.contains("<description>a\xEF\xBF\xBD&lt;</description>"));
}

TEST(FeedWriter, posts_standInListOrderWhateverTheirDates)
{
    const Date same = instant("2026-01-05T09:03:07Z");
    const QByteArray feed = feedOf(
        {postTitled(u"second"_s, same), postTitled(u"newest"_s, instant("2030-01-01T00:00:00Z")),
         postTitled(u"first"_s, same), postTitled(u"oldest"_s, instant("1990-01-01T00:00:00Z"))});
    const qsizetype second = feed.indexOf("second");
    const qsizetype newest = feed.indexOf("newest");
    const qsizetype first = feed.indexOf("first");
    const qsizetype oldest = feed.indexOf("oldest");
    EXPECT_GT(second, 0);
    EXPECT_LT(second, newest);
    EXPECT_LT(newest, first);
    EXPECT_LT(first, oldest);
}

TEST(FeedWriter, postsThatAreAlike_areAllWritten)
{
    const BlogPost post = postTitled(u"Twin"_s);
    EXPECT_EQ(feedOf({post, post, post}).count("<title>Twin</title>"), 3);
}

TEST(FeedWriter, idAndContent_areNeverWritten)
{
    BlogPost post = postTitled(u"Post"_s);
    post.content = u"the body text"_s;
    const QByteArray feed = feedOf({post});
    EXPECT_FALSE(feed.contains("body text"));
    const QByteArray id = post.id.toByteArray(QUuid::WithoutBraces);
    EXPECT_FALSE(feed.toLower().contains(id.toLower()));
}
