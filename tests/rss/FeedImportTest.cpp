// What the search for literal tags finds in a feed.
#include "rss/RSSFeedImporter.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

namespace {

std::optional<BlogPosts> imported(std::string_view feed)
{
    return postsOfFeed(QByteArrayView(feed.data(), qsizetype(feed.size())), &Date::now);
}

/// The posts of a feed that can be read.
BlogPosts postsOf(std::string_view feed)
{
    const auto posts = imported(feed);
    EXPECT_TRUE(posts) << feed;
    return posts.value_or(BlogPosts());
}

QStringList titlesOf(std::string_view feed)
{
    QStringList titles;
    for (const BlogPost &post : postsOf(feed))
        titles.append(post.title);
    return titles;
}

/// The title of the one item of a feed.
QString titleOf(const std::string &item)
{
    const BlogPosts posts = postsOf("<item>" + item + "</item>");
    EXPECT_EQ(posts.size(), 1);
    return posts.value(0).title;
}

} // namespace

TEST(FeedImport, anItem_becomesAPost)
{
    const BlogPosts posts = postsOf("<rss><channel><title>Channel</title><item>"
                                    "<title>Hello</title><link>/hello</link>"
                                    "<pubDate>Mon, 5 Jan 2026 09:03:07 +0000</pubDate>"
                                    "<description>First</description></item></channel></rss>");
    ASSERT_EQ(posts.size(), 1);
    EXPECT_EQ(posts[0].title, u"Hello"_s);
    EXPECT_EQ(posts[0].permalink, u"/hello"_s);
    EXPECT_EQ(posts[0].description, u"First"_s);
    EXPECT_EQ(posts[0].content, u"First"_s);
}

TEST(FeedImport, theOrderOfElements_doesNotMatter)
{
    const BlogPosts posts = postsOf("<item><description>D</description><guid>G</guid>"
                                    "<link>L</link><title>T</title></item>");
    ASSERT_EQ(posts.size(), 1);
    EXPECT_EQ(posts[0].title, u"T"_s);
    EXPECT_EQ(posts[0].permalink, u"L"_s);
    EXPECT_EQ(posts[0].description, u"D"_s);
}

TEST(FeedImport, items_keepTheirOrderAndTheirTwins)
{
    EXPECT_EQ(titlesOf("<item><title>b</title></item>\n<item><title>a</title></item>junk"
                       "<item><title>b</title></item>"),
              (QStringList{u"b"_s, u"a"_s, u"b"_s}));
}

TEST(FeedImport, aMissingElement_isAnEmptyText)
{
    const BlogPosts posts = postsOf("<item></item><item><title>T</title></item>"
                                    "<item><link>L</link></item>"
                                    "<item><description>D</description></item>");
    ASSERT_EQ(posts.size(), 4);
    EXPECT_EQ(posts[0].title + posts[0].permalink + posts[0].description, QString());
    EXPECT_EQ(posts[1].title + posts[1].permalink + posts[1].description, u"T"_s);
    EXPECT_EQ(posts[2].title + posts[2].permalink + posts[2].description, u"L"_s);
    EXPECT_EQ(posts[3].title + posts[3].permalink + posts[3].description, u"D"_s);
    EXPECT_EQ(posts[3].content, u"D"_s);
}

TEST(FeedImport, aFileWithoutItems_hasNoPosts)
{
    for (const auto feed : {""sv, " "sv, "\n"sv, "\xEF\xBB\xBF"sv, "plain text"sv, "\0"sv,
                            "<rss><channel><title>T</title></channel></rss>"sv, "</item><item>"sv,
                            "<item"sv, "<item>"sv, "<item></item"sv, "item></item>"sv})
        EXPECT_EQ(postsOf(feed).size(), 0) << feed;
}

TEST(FeedImport, channelElements_areNotAnItems)
{
    const BlogPosts posts = postsOf("<title>before</title><item><link>L</link></item>"
                                    "<title>after</title><description>after</description>");
    ASSERT_EQ(posts.size(), 1);
    EXPECT_EQ(posts[0].title, QString());
    EXPECT_EQ(posts[0].description, QString());
}

TEST(FeedImport, blanksAndLineBreaks_areKept)
{
    EXPECT_EQ(titlesOf("<item><title>\n  Hello\n</title></item>"), QStringList{u"\n  Hello\n"_s});
    EXPECT_EQ(titleOf("<title>\r\n\t \v\f</title>"), u"\r\n\t \v\f"_s);
    EXPECT_EQ(titleOf("<title>\xC2\x85\xE2\x80\xA8\xE2\x80\xA9</title>"), u"\u0085\u2028\u2029"_s);
}

TEST(FeedImport, anItemOverManyLines_isFound)
{
    EXPECT_EQ(titlesOf("<item>\r\n\r\n<title>\r\nA\r\n</title>\n\n\r</item>\n"),
              QStringList{u"\r\nA\r\n"_s});
}

TEST(FeedImport, ofTwoElements_theFirstWins)
{
    EXPECT_EQ(titleOf("<title>A</title><title>B</title>"), u"A"_s);
    EXPECT_EQ(titleOf("<image><title>nested</title></image><title>own</title>"), u"nested"_s);
    EXPECT_EQ(titleOf("<title></title><title>B</title>"), QString());
}

TEST(FeedImport, anElement_endsAtTheFirstEndTag)
{
    EXPECT_EQ(titleOf("<title>a<title>b</title>c</title>"), u"a<title>b"_s);
    EXPECT_EQ(titleOf("</title><title>a</title>"), u"a"_s);
    EXPECT_EQ(titleOf("<title>a<description>b</title>c</description>"), u"a<description>b"_s);
    EXPECT_EQ(titleOf("<title>never ended"), QString());
    EXPECT_EQ(titleOf("<title><title><title>"), QString());
}

TEST(FeedImport, anItem_endsAtTheFirstEndTag)
{
    EXPECT_EQ(titlesOf("<item><title>outer</title><item><title>inner</title></item>"
                       "<title>outside</title></item>"),
              QStringList{u"outer"_s});
    EXPECT_EQ(titlesOf("<item><item></item><title>A</title></item>"), QStringList{QString()});
}

TEST(FeedImport, anElement_doesNotReachBeyondItsItem)
{
    EXPECT_EQ(titlesOf("<item><title>A</item></title><item><title>B</title></item>"),
              (QStringList{QString(), u"B"_s}));
}

TEST(FeedImport, anItemThatNeverEnds_isNoneAndNothingFollowsIt)
{
    EXPECT_EQ(titlesOf("<item><title>A</title></item><item><title>B</title>"), QStringList{u"A"_s});
    EXPECT_EQ(titlesOf("<item><title>A</title><item><title>B</title>"), QStringList());
}

TEST(FeedImport, theNextItem_isSearchedBehindTheEndTag)
{
    EXPECT_EQ(titlesOf("<item></item></item><item><title>B</title></item>"),
              (QStringList{QString(), u"B"_s}));
    EXPECT_EQ(titlesOf("<item></item><item></item>").size(), 2);
}

TEST(FeedImport, otherSpellings_areNotItems)
{
    for (const auto item :
         {R"(<item id="1">A</item>)"sv, "<ITEM>A</ITEM>"sv, "<Item>A</Item>"sv, "<item >A</item>"sv,
          "< item>A</item>"sv, "<item\n>A</item>"sv, "<item>A</ITEM>"sv, "<item>A</item >"sv,
          "<item/>"sv, "<rss:item>A</rss:item>"sv, "<items>A</items>"sv, "&lt;item&gt;A</item>"sv,
          "<item\0>A</item>"sv})
        EXPECT_EQ(postsOf(item).size(), 0) << item;
}

TEST(FeedImport, otherSpellings_areNotElements)
{
    for (const char *title : {"<Title>A</Title>", "<TITLE>A</TITLE>", "<title >A</title>",
                              R"(<title type="html">A</title>)", "<media:title>A</media:title>",
                              "<title/>", "<title>A</Title>", "<title>A< /title>",
                              "<title>A</title >", "<titles>A</titles>", R"(<link href="A"/>)"})
        EXPECT_EQ(titleOf(title), QString()) << title;
    EXPECT_EQ(titleOf(R"(<title lang="en">A</title><title>B</title>)"), u"B"_s);
    EXPECT_EQ(titleOf("<title/><title>B</title>"), u"B"_s);
    EXPECT_EQ(titleOf("<<title>>A<</title>"), u">A<"_s);
}

TEST(FeedImport, tags_areFoundWhereverTheyStand)
{
    // In comments, in character data, behind other text: nothing is parsed.
    EXPECT_EQ(titlesOf("<!-- <item><title>A</title></item> -->"), QStringList{u"A"_s});
    EXPECT_EQ(titlesOf("<![CDATA[<item><title>A</title></item>]]>"), QStringList{u"A"_s});
    EXPECT_EQ(titleOf("<!-- <title>old</title> --><title>new</title>"), u"old"_s);
    EXPECT_EQ(titleOf("<description><![CDATA[<title>in</title>]]></description><title>T</title>"),
              u"in"_s);
}

TEST(FeedImport, nothingIsDecoded)
{
    EXPECT_EQ(titleOf("<title>a &amp; b &lt;c&gt; &#233; &#xe9; &nbsp;</title>"),
              u"a &amp; b &lt;c&gt; &#233; &#xe9; &nbsp;"_s);
    EXPECT_EQ(titleOf("<title><![CDATA[ a <b>c</b> ]]></title>"), u"<![CDATA[ a <b>c</b> ]]>"_s);
    EXPECT_EQ(titleOf("<title>a<!-- b --><br/>c</title>"), u"a<!-- b --><br/>c"_s);
}

TEST(FeedImport, everyCharacter_isKept)
{
    EXPECT_EQ(titleOf("<title>\xEF\xBB\xBFmark\xEF\xBB\xBF</title>"), u"\ufeffmark\ufeff"_s);
    EXPECT_EQ(titleOf("<title>\xEF\xBB\xBF</title>"), u"\ufeff"_s);
    EXPECT_EQ(titleOf("<title>\xEF\xBB\xBF\xEF\xBB\xBF</title>"), u"\ufeff\ufeff"_s);
    EXPECT_EQ(titleOf("<title>\xEF\xBF\xBE\xEF\xBF\xBF\xEF\xB7\x90</title>"),
              u"\ufffe\uffff\ufdd0"_s);
    EXPECT_EQ(titleOf("<title>e\xCC\x81 \xC3\xA9</title>"), u"e\u0301 \u00e9"_s);
    EXPECT_EQ(titleOf("<title>\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF</title>"),
              u"\U0001F600\U0010FFFF"_s);
    EXPECT_EQ(titleOf("<title>\x01\x7F\xC2\x80</title>"), u"\u0001\u007f\u0080"_s);
}

TEST(FeedImport, nulCharacters_areCharactersLikeOthers)
{
    const auto feed = "\0<item>\0<title>a\0b\0</title>\0<link>\0</link></item>\0"
                      "<item><title>after</title></item>"sv;
    const BlogPosts posts = postsOf(feed);
    ASSERT_EQ(posts.size(), 2);
    EXPECT_EQ(posts[0].title, u"a"_s + QChar::Null + u"b"_s + QChar::Null);
    EXPECT_EQ(posts[0].permalink, QString(QChar::Null));
    EXPECT_EQ(posts[1].title, u"after"_s);
}

TEST(FeedImport, aByteOrderMarkAheadOfTheFile_changesNothing)
{
    EXPECT_EQ(titlesOf("\xEF\xBB\xBF<item><title>A</title></item>"), QStringList{u"A"_s});
}

TEST(FeedImport, idsAreNewAndRandom)
{
    std::string feed;
    for (int i = 0; i < 1000; ++i)
        feed += "<item><guid>00000000-0000-4000-8000-000000000000</guid></item>";
    std::set<QUuid> ids;
    for (int twice = 0; twice < 2; ++twice) {
        for (const BlogPost &post : postsOf(feed)) {
            EXPECT_EQ(post.id.version(), QUuid::Random);
            EXPECT_EQ(post.id.variant(), QUuid::DCE);
            ids.insert(post.id);
        }
    }
    EXPECT_EQ(ids.size(), 2000U);
}

TEST(FeedImport, eachDate_isItsOwnReadingOfTheClock)
{
    int readings = 0;
    const auto clock = [&readings] { return Date(100.5 + readings++); };
    const auto posts = postsOfFeed("<item></item><item><pubDate>Mon, 5 Jan 2026 09:03:07 +0000"
                                   "</pubDate></item><item></item>",
                                   clock);
    ASSERT_EQ(posts.value().size(), 3);
    EXPECT_EQ(readings, 3);
    EXPECT_EQ(posts->at(0).date, Date(100.5));
    EXPECT_EQ(posts->at(1).date, Date(101.5));
    EXPECT_EQ(posts->at(2).date, Date(102.5));
}

TEST(FeedImport, datesNeverDecrease_evenWithAClockThatStepsBack)
{
    std::vector<double> clock{5, 4, 4.5, 6, -1, 6, 7};
    auto next = clock.cbegin();
    std::string feed;
    for (std::size_t i = 0; i < clock.size(); ++i)
        feed += "<item></item>";
    const auto posts = postsOfFeed(feed, [&next] { return Date(*next++); });
    std::vector<double> dates;
    for (const BlogPost &post : posts.value())
        dates.push_back(post.date.secondsSinceReferenceDate());
    EXPECT_EQ(dates, (std::vector<double>{5, 5, 5, 6, 6, 6, 7}));
}

TEST(FeedImport, aClockBeforeTheReferenceDate_isTakenAsItIs)
{
    const auto posts = postsOfFeed("<item></item>", [] { return Date(-3e9); });
    EXPECT_EQ(posts.value().at(0).date, Date(-3e9));
}

TEST(FeedImport, datesAreOfTheImport)
{
    const double before = Date::now().secondsSinceReferenceDate();
    const BlogPosts posts = postsOf("<item></item><item></item>");
    const double after = Date::now().secondsSinceReferenceDate();
    ASSERT_EQ(posts.size(), 2);
    EXPECT_LE(before, posts[0].date.secondsSinceReferenceDate());
    EXPECT_LE(posts[0].date.secondsSinceReferenceDate(), posts[1].date.secondsSinceReferenceDate());
    EXPECT_LE(posts[1].date.secondsSinceReferenceDate(), after);
}

class FeedImportOfBadUtf8 : public testing::TestWithParam<std::string_view>
{
};

TEST_P(FeedImportOfBadUtf8, isRefusedWhereverItStands)
{
    const std::string bad(GetParam());
    EXPECT_FALSE(imported(bad));
    EXPECT_FALSE(imported("<item><title>" + bad + "</title></item>"));
    // Outside every item, where no text is taken; and as the file's very last bytes.
    EXPECT_FALSE(imported(bad + "<item></item>"));
    EXPECT_FALSE(imported("<item></item>" + bad));
}

TEST_P(FeedImportOfBadUtf8, isRefusedWhereverADecodersBlocksBeginAndEnd)
{
    const std::string bad(GetParam());
    for (std::size_t ahead = 0; ahead < 150; ++ahead) {
        EXPECT_FALSE(imported(std::string(ahead, 'a') + bad)) << ahead;
        EXPECT_FALSE(imported(std::string(ahead, 'a') + bad + std::string(150, 'a'))) << ahead;
    }
}

INSTANTIATE_TEST_SUITE_P(Lone, FeedImportOfBadUtf8,
                         testing::Values("\xE9"sv, "\x80"sv, "\xBF"sv, "\xFE"sv, "\xFF"sv,
                                         "\xC3\xA9\xA9"sv, "\xC3\xC3\xA9"sv));
INSTANTIATE_TEST_SUITE_P(EndingInsideACharacter, FeedImportOfBadUtf8,
                         testing::Values("\xC3"sv, "\xE2"sv, "\xE2\x82"sv, "\xF0"sv, "\xF0\x9F"sv,
                                         "\xF0\x9F\x98"sv, "\xEF\xBB"sv));
INSTANTIATE_TEST_SUITE_P(Overlong, FeedImportOfBadUtf8,
                         testing::Values("\xC0\x80"sv, "\xC0\xBC"sv, "\xC1\xBF"sv, "\xE0\x80\xBC"sv,
                                         "\xE0\x9F\xBF"sv, "\xF0\x80\x80\xBC"sv,
                                         "\xF0\x8F\xBF\xBF"sv));
INSTANTIATE_TEST_SUITE_P(Surrogates, FeedImportOfBadUtf8,
                         testing::Values("\xED\xA0\x80"sv, "\xED\xAF\xBF"sv, "\xED\xB0\x80"sv,
                                         "\xED\xBF\xBF"sv, "\xED\xA0\xBD\xED\xB8\x80"sv));
INSTANTIATE_TEST_SUITE_P(BeyondUnicode, FeedImportOfBadUtf8,
                         testing::Values("\xF4\x90\x80\x80"sv, "\xF5\x80\x80\x80"sv,
                                         "\xF7\xBF\xBF\xBF"sv, "\xF8\x88\x80\x80\x80"sv,
                                         "\xFC\x84\x80\x80\x80\x80"sv));
INSTANTIATE_TEST_SUITE_P(OtherEncodings, FeedImportOfBadUtf8,
                         testing::Values("\xFF\xFE<\0i\0t\0e\0m\0>\0"sv, "caf\xE9 au lait"sv,
                                         "\x93quoted\x94"sv));

TEST(FeedImport, goodUtf8_isTakenWhereverItStands)
{
    for (const auto good :
         {"\xC2\x80"sv, "\xDF\xBF"sv, "\xE0\xA0\x80"sv, "\xED\x9F\xBF"sv, "\xEE\x80\x80"sv,
          "\xEF\xBF\xBF"sv, "\xF0\x90\x80\x80"sv, "\xF4\x8F\xBF\xBF"sv}) {
        for (std::size_t ahead = 0; ahead < 150; ++ahead) {
            const std::string feed =
                std::string(ahead, 'a') + "<item><title>" + std::string(good) + "</title></item>";
            const BlogPosts posts = postsOf(feed);
            ASSERT_EQ(posts.size(), 1);
            EXPECT_EQ(posts[0].title.toUtf8(), QByteArray(good.data(), qsizetype(good.size())));
        }
    }
}
