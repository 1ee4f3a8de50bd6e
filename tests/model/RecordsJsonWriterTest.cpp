#include "model/RecordsJson.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Limits = std::numeric_limits<double>;

const QUuid someId = QUuid::fromString(u"6f9619ff-8b86-4011-b42d-00c04fc964ff"_s);

/// What stands for a text in a document.
QByteArray written(const QString &text)
{
    const QByteArray json = encodeSettings({text, {}, {}});
    const QByteArray before = R"({"title":)";
    const QByteArray after = R"(,"link":"","description":""})";
    EXPECT_TRUE(json.startsWith(before) && json.endsWith(after)) << json.data();
    return json.mid(before.size(), json.size() - before.size() - after.size());
}

/// What stands for a date in a document.
QByteArray written(double seconds)
{
    const BlogPost post{
        .title = {}, .content = {}, .date = Date(seconds), .description = {}, .permalink = {}};
    const QByteArray json = encodePosts({post}).value_or(QByteArray());
    const QByteArray before = R"("date":)";
    const qsizetype begin = json.indexOf(before) + before.size();
    return json.mid(begin, json.indexOf(R"(,"description")", begin) - begin);
}

} // namespace

TEST(RecordsJsonWriter, aPost_isItsSixKeysInOrder_compact)
{
    const BlogPost post{.id = someId,
                        .title = u"Caf\u00e9 \u65e5\u672c"_s,
                        .content = u"a\nb"_s,
                        .date = Date(788918400),
                        .description = u"\"quoted\" \\ back"_s,
                        .permalink = u"https://example.com/1"_s};
    EXPECT_EQ(encodePosts({post}),
              R"([{"id":"6F9619FF-8B86-4011-B42D-00C04FC964FF","title":"Café 日本",)"
              R"("content":"a\nb","date":788918400,"description":"\"quoted\" \\ back",)"
              R"("permalink":"https:\/\/example.com\/1"}])");
}

TEST(RecordsJsonWriter, posts_standInListOrder)
{
    const BlogPost empty{
        .id = QUuid(), .title = {}, .content = {}, .date = {}, .description = {}, .permalink = {}};
    BlogPost other = empty;
    other.title = u"2"_s;
    EXPECT_EQ(encodePosts({empty, other}),
              R"([{"id":"00000000-0000-0000-0000-000000000000","title":"","content":"",)"
              R"("date":0,"description":"","permalink":""},)"
              R"({"id":"00000000-0000-0000-0000-000000000000","title":"2","content":"",)"
              R"("date":0,"description":"","permalink":""}])");
}

TEST(RecordsJsonWriter, noPosts_areAnEmptyArray)
{
    EXPECT_EQ(encodePosts({}), "[]");
}

TEST(RecordsJsonWriter, settings_areTheirThreeKeysInOrder_compact)
{
    EXPECT_EQ(encodeSettings({u"My Tavlo"_s, u"https://example.com"_s, u"About / \u00e4"_s}),
              R"({"title":"My Tavlo","link":"https:\/\/example.com","description":"About \/ ä"})");
}

TEST(RecordsJsonWriter, controlCharacters_areEscaped_inTheShortFormWhereThereIsOne)
{
    const QByteArray shortForms[0x20] = {{}, {},      {},      {},      {}, {},      {},
                                         {}, R"(\b)", R"(\t)", R"(\n)", {}, R"(\f)", R"(\r)"};
    for (char16_t control = 0; control < 0x20; ++control) {
        QByteArray expected = shortForms[control];
        if (expected.isEmpty())
            expected = R"(\u)" + QByteArray::number(control, 16).rightJustified(4, '0');
        EXPECT_EQ(written(u"a"_s + control + u'b'), "\"a" + expected + "b\"");
    }
}

TEST(RecordsJsonWriter, quoteBackslashAndSlash_areEscaped)
{
    EXPECT_EQ(written(u"\""_s), R"("\"")");
    EXPECT_EQ(written(u"\\"_s), R"("\\")");
    EXPECT_EQ(written(u"/"_s), R"("\/")");
    EXPECT_EQ(written(u"</a>\\/"_s), R"("<\/a>\\\/")");
}

TEST(RecordsJsonWriter, everyOtherCharacter_standsForItself)
{
    QString plain;
    for (char16_t code = 0x20; code < 0x80; ++code) {
        if (code != u'"' && code != u'\\' && code != u'/')
            plain += code;
    }
    plain += u"\u0080\u00a0\u00e9e\u0301\u2028\u2029\ufeff\ufffd\ufffe\uffff\U0001f600\U0010ffff"_s;
    EXPECT_EQ(written(plain), '"' + plain.toUtf8() + '"');
}

TEST(RecordsJsonWriter, aLoneSurrogate_becomesTheReplacementCharacter)
{
    EXPECT_EQ(written(u"a"_s + QChar(0xd83d) + u'b'),
              "\"a\xEF\xBF\xBD"
              "b\"");
    EXPECT_EQ(written(u"a"_s + QChar(0xde00)), "\"a\xEF\xBF\xBD\"");
}

TEST(RecordsJsonWriter, dates_areTheirShortestDigits)
{
    EXPECT_EQ(written(0.0), "0");
    EXPECT_EQ(written(1.0), "1");
    EXPECT_EQ(written(-1.0), "-1");
    EXPECT_EQ(written(0.1), "0.1");
    EXPECT_EQ(written(-0.5), "-0.5");
    EXPECT_EQ(written(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(written(-978307200), "-978307200");
    EXPECT_EQ(written(788918400), "788918400");
    EXPECT_EQ(written(800000000), "800000000");
    EXPECT_EQ(written(788918400.25), "788918400.25");
    EXPECT_EQ(written(-63114076800.125), "-63114076800.125");
}

TEST(RecordsJsonWriter, dates_areInPlainDigitsBelowTenToTheSixteenth)
{
    EXPECT_EQ(written(1e15), "1000000000000000");
    EXPECT_EQ(written(-1e15), "-1000000000000000");
    EXPECT_EQ(written(9007199254740993.0), "9007199254740992");
    EXPECT_EQ(written(std::nextafter(1e16, 0)), "9999999999999998");
    EXPECT_EQ(written(1e16), "1e+16");
    EXPECT_EQ(written(-1e16), "-1e+16");
    EXPECT_EQ(written(1e300), "1e+300");
}

TEST(RecordsJsonWriter, dates_keepTheSignOfZero_andTheEdgesOfTheirType)
{
    EXPECT_EQ(written(-0.0), "-0");
    EXPECT_EQ(written(Limits::denorm_min()), "5e-324");
    EXPECT_EQ(written(-Limits::denorm_min()), "-5e-324");
    EXPECT_EQ(written(Limits::max()), "1.7976931348623157e+308");
    EXPECT_EQ(written(Limits::lowest()), "-1.7976931348623157e+308");
    EXPECT_EQ(written(Limits::min()), "2.2250738585072014e-308");
    EXPECT_EQ(written(0.0001), "0.0001");
    EXPECT_EQ(written(-1.2345678901234567e-4), "-0.00012345678901234567");
}

TEST(RecordsJsonWriter, aDateThatIsNoNumber_isNotEncodable)
{
    const BlogPost good = postTitled(u"Good"_s);
    for (const double seconds : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()}) {
        const BlogPost bad = postTitled(u"Bad"_s, Date(seconds));
        EXPECT_EQ(encodePosts({bad}), std::nullopt);
        EXPECT_EQ(encodePosts({good, bad}), std::nullopt);
        EXPECT_EQ(encodePosts({bad, good}), std::nullopt);
    }
    EXPECT_NE(encodePosts({good}), std::nullopt);
}
