#include "model/RecordsJson.h"
#include "tests/model/JsonSamples.h"
#include "tests/support/Posts.h"
#include "tests/support/Printers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Limits = std::numeric_limits<double>;

/// The post of a document of one.
std::optional<BlogPost> readPost(const JsonFields &fields)
{
    const auto posts = decodePosts(postsDocument(fields));
    return posts && posts->size() == 1 ? std::optional(posts->first()) : std::nullopt;
}

/// The text that a JSON string stands for; nothing when it is none, or when the settings and the
/// posts do not agree on it.
std::optional<QString> readText(const QByteArray &json)
{
    const auto post = readPost(with(goodPostFields(), "title", json));
    const auto settings = decodeSettings(jsonObject(with(goodSettingsFields(), "link", json)));
    EXPECT_EQ(post.has_value(), settings.has_value()) << json.data();
    if (!post || !settings)
        return std::nullopt;
    EXPECT_EQ(post->title, settings->link);
    return post->title;
}

std::optional<double> readDate(const QByteArray &json)
{
    const auto post = readPost(with(goodPostFields(), "date", json));
    return post ? std::optional(post->date.secondsSinceReferenceDate()) : std::nullopt;
}

/// Whether an ignored key, in a post and in the settings, may hold this.
bool isPassedOver(const QByteArray &json)
{
    const bool inPosts = readPost(ledBy(goodPostFields(), "author", json)).has_value();
    const bool inSettings =
        decodeSettings(jsonObject(followedBy(goodSettingsFields(), "author", json))).has_value();
    EXPECT_EQ(inPosts, inSettings) << json.left(100).data();
    return inPosts && inSettings;
}

QByteArray goodPosts()
{
    return postsDocument(goodPostFields());
}

QByteArray goodSettings()
{
    return jsonObject(goodSettingsFields());
}

} // namespace

TEST(RecordsJsonReader, reads_aPost)
{
    const auto post = readPost(goodPostFields());
    ASSERT_TRUE(post);
    EXPECT_EQ(post->id, QUuid::fromString(u"6f9619ff-8b86-4011-b42d-00c04fc964ff"_s));
    EXPECT_EQ(post->title, u"A title"_s);
    EXPECT_EQ(post->content, u"Some content"_s);
    EXPECT_EQ(post->date, Date(788918400));
    EXPECT_EQ(post->description, u"A description"_s);
    EXPECT_EQ(post->permalink, u"https://example.com/1"_s);
}

TEST(RecordsJsonReader, reads_settings)
{
    const auto settings = decodeSettings(goodSettings());
    ASSERT_TRUE(settings);
    EXPECT_EQ(settings->title, u"A blog"_s);
    EXPECT_EQ(settings->link, u"https://example.com"_s);
    EXPECT_EQ(settings->description, u"About it"_s);
}

TEST(RecordsJsonReader, reads_postsInTheirOrder)
{
    QByteArray json = "[";
    for (const char *title : {"\"B\"", "\"A\"", "\"C\""}) {
        json += json.size() > 1 ? "," : "";
        json += jsonObject(with(goodPostFields(), "title", title));
    }
    json += "]";
    const auto posts = decodePosts(json);
    ASSERT_TRUE(posts);
    EXPECT_EQ(titlesOf(*posts), QStringList({u"B"_s, u"A"_s, u"C"_s}));
}

TEST(RecordsJsonReader, topLevel_ofPosts_isAnArray)
{
    ASSERT_TRUE(decodePosts("[]"));
    EXPECT_TRUE(decodePosts("[]")->isEmpty());
    EXPECT_TRUE(decodePosts(" [ \n\t\r] \n"));
    for (const QByteArray json :
         {"", " ", "{}", "null", "true", "false", "0", "1.5", R"("[]")", R"("")", "x", "[", "]"})
        EXPECT_FALSE(decodePosts(json)) << json.data();
    EXPECT_FALSE(decodePosts(jsonObject(goodPostFields())));
    EXPECT_FALSE(decodePosts(QByteArray()));
}

TEST(RecordsJsonReader, topLevel_ofSettings_isAnObject)
{
    for (const QByteArray json :
         {"", " ", "[]", "null", "true", "false", "0", "1.5", R"("{}")", "x", "{", "}"})
        EXPECT_FALSE(decodeSettings(json)) << json.data();
    EXPECT_FALSE(decodeSettings('[' + goodSettings() + ']'));
    EXPECT_FALSE(decodeSettings("{}"));
}

TEST(RecordsJsonReader, elementsOfPosts_areObjects)
{
    for (const QByteArray element : {"null", "0", "true", R"("post")", "[]", "[[]]", "{}"}) {
        EXPECT_FALSE(decodePosts('[' + element + ']')) << element.data();
        EXPECT_FALSE(decodePosts('[' + jsonObject(goodPostFields()) + ',' + element + ']'))
            << element.data();
    }
}

TEST(RecordsJsonReader, everyKey_mustBeThere)
{
    for (const auto &[key, value] : goodPostFields()) {
        const QByteArray incomplete = jsonObject(without(goodPostFields(), key));
        EXPECT_FALSE(decodePosts('[' + incomplete + ']')) << key.data();
        EXPECT_FALSE(decodePosts('[' + jsonObject(goodPostFields()) + ',' + incomplete + ']'));
        EXPECT_FALSE(decodePosts('[' + incomplete + ',' + jsonObject(goodPostFields()) + ']'));
    }
    for (const auto &[key, value] : goodSettingsFields())
        EXPECT_FALSE(decodeSettings(jsonObject(without(goodSettingsFields(), key)))) << key.data();
}

TEST(RecordsJsonReader, keys_comeInAnyOrder)
{
    JsonFields fields = goodPostFields();
    std::sort(fields.begin(), fields.end());
    const auto expected = readPost(goodPostFields());
    do {
        const auto post = readPost(fields);
        ASSERT_TRUE(post);
        ASSERT_TRUE(identical(*post, *expected));
    } while (std::next_permutation(fields.begin(), fields.end()));
}

TEST(RecordsJsonReader, keys_areThoseThatTheirEscapesStandFor)
{
    EXPECT_TRUE(
        readPost(followedBy(without(goodPostFields(), "title"), R"(\u0074itle)", R"("x")")));
    EXPECT_FALSE(readPost(followedBy(without(goodPostFields(), "title"), R"(\\title)", R"("x")")));
    // Close, but others.
    for (const char *key : {"Title", "title ", R"(title\u0000)", "titl", ""})
        EXPECT_FALSE(readPost(followedBy(without(goodPostFields(), "title"), key, R"("x")")))
            << key;
}

TEST(RecordsJsonReader, valuesOfAnotherType_areErrors)
{
    for (const auto &[key, good] : goodPostFields()) {
        for (const QByteArray value : {"null", "true", "false", "[]", "{}", "[1]", R"({"a":1})"})
            EXPECT_FALSE(readPost(with(goodPostFields(), key, value))) << key.data();
        const QByteArray other = key == "date" ? R"("788918400")" : "788918400";
        EXPECT_FALSE(readPost(with(goodPostFields(), key, other))) << key.data();
    }
    for (const auto &[key, good] : goodSettingsFields()) {
        for (const QByteArray value : {"null", "true", "0", "[]", "{}", R"(["a"])"})
            EXPECT_FALSE(decodeSettings(jsonObject(with(goodSettingsFields(), key, value))));
    }
}

TEST(RecordsJsonReader, whiteSpace_isThatOfJson)
{
    const QByteArray spaced = " \t\r\n[ { \"id\" : \"6F9619FF-8B86-4011-B42D-00C04FC964FF\"\n,"
                              "\"title\":\t\"\" , \"content\" :\"\",\r\n\"date\" : -1.5e0 ,"
                              "\"description\": \"\" ,\"permalink\":\"\"\t} ] \r\n";
    EXPECT_TRUE(decodePosts(spaced));
    for (const char *other : {"\v", "\f", "\xC2\xA0", "\xE2\x80\xA8", "\xEF\xBB\xBF"}) {
        const QByteArray blank(other);
        EXPECT_FALSE(decodePosts('[' + blank + jsonObject(goodPostFields()) + ']'));
        EXPECT_FALSE(decodePosts(goodPosts() + blank));
        EXPECT_FALSE(decodePosts("[]" + blank));
        EXPECT_FALSE(readPost(with(goodPostFields(), "date", "1" + blank)));
        EXPECT_FALSE(readPost(with(goodPostFields(), "date", blank + "1")));
        EXPECT_FALSE(isPassedOver("true" + blank));
        EXPECT_FALSE(isPassedOver("null" + blank));
        EXPECT_FALSE(isPassedOver(R"("a")" + blank));
    }
}

TEST(RecordsJsonReader, aByteOrderMark_isPassedOverOnce)
{
    const QByteArray mark = "\xEF\xBB\xBF";
    EXPECT_TRUE(decodePosts(mark + goodPosts()));
    EXPECT_TRUE(decodeSettings(mark + goodSettings()));
    EXPECT_TRUE(decodePosts(mark + " []"));
    EXPECT_FALSE(decodePosts(mark + mark + goodPosts()));
    EXPECT_FALSE(decodeSettings(mark + mark + goodSettings()));
    EXPECT_FALSE(decodePosts(" " + mark + goodPosts()));
    EXPECT_FALSE(decodePosts(mark));
    EXPECT_FALSE(decodePosts("\xEF\xBB" + goodPosts()));
    EXPECT_FALSE(decodePosts("\xFF\xFE[\0]\0"));
}

TEST(RecordsJsonReader, anythingBehindTheDocument_isAnError)
{
    for (const char *behind : {",", "]", "}", "[", "[]", "{}", "0", "null", "x", "\"\"", "//",
                               "/**/", "\"", ":", "[],"}) {
        EXPECT_FALSE(decodePosts(goodPosts() + behind)) << behind;
        EXPECT_FALSE(decodePosts(goodPosts() + "\n" + behind)) << behind;
        EXPECT_FALSE(decodePosts(QByteArray("[]") + behind)) << behind;
        EXPECT_FALSE(decodeSettings(goodSettings() + behind)) << behind;
        EXPECT_FALSE(decodeSettings(goodSettings() + " " + behind)) << behind;
    }
    EXPECT_FALSE(decodePosts(goodPosts() + '\0'));
    EXPECT_FALSE(decodeSettings(goodSettings() + '\0'));
}

TEST(RecordsJsonReader, brokenStructure_isAnError)
{
    // In each, P is a good post and Q is one without its closing brace.
    for (const char *pattern : {"[P,]",
                                "[,P]",
                                "[P,,P]",
                                "[P P]",
                                "[P:P]",
                                "[P",
                                "P]",
                                "[Q",
                                "[Q]",
                                "[Q]}",
                                "[P}",
                                "{P}",
                                "(P)",
                                "[Q,}]",
                                "[Q,,}]",
                                R"([Q,"k"}])",
                                R"([Q,"k":}])",
                                "[Q,k:1}]",
                                "[Q,'k':1}]",
                                "[Q,1:1}]",
                                "[Q,null:1}]",
                                "[Q,[]:1}]",
                                R"([Q,"k" 1}])",
                                R"([Q,"k"::1}])",
                                R"([Q,"k",1}])",
                                R"([Q,"k"=1}])",
                                R"([Q "k":1}])",
                                R"([Q;"k":1}])",
                                R"([Q,"k":1:2}])",
                                "[P]]",
                                "[P}]",
                                "[[P]",
                                "[{]",
                                "[}",
                                "[:]",
                                "[,]",
                                R"([{"id"}])",
                                "/**/[P]",
                                "[/**/P]",
                                "[P//\n]"}) {
        const QByteArray post = jsonObject(goodPostFields());
        const QByteArray json =
            QByteArray(pattern).replace('P', post).replace('Q', post.chopped(1));
        EXPECT_FALSE(decodePosts(json)) << pattern;
    }
    // S is the settings' object without its braces.
    for (const char *pattern : {"{S", "S}", "S", "{S,}", "{,S}", "{S]", "[S]", "{{S}}", "{S S}",
                                "{S}}", "{{S}", "{S;}", "{S,1}", R"({S,"k"})", R"({S,"k":})"}) {
        const QByteArray fields = goodSettings().mid(1).chopped(1);
        EXPECT_FALSE(decodeSettings(QByteArray(pattern).replace('S', fields))) << pattern;
    }
}

TEST(RecordsJsonReader, everyTruncation_isAnError)
{
    const QByteArray posts = '['
        + jsonObject(followedBy(goodPostFields(), "more", R"([{"a":[1,null]},true,"\u00e9"])"))
        + ',' + jsonObject(with(goodPostFields(), "title", "\"\xF0\x9F\x98\x80\\ud83d\\ude00\""))
        + ']';
    ASSERT_TRUE(decodePosts(posts));
    for (qsizetype size = 0; size < posts.size(); ++size)
        EXPECT_FALSE(decodePosts(posts.left(size))) << posts.left(size).data();

    const QByteArray settings = goodSettings();
    for (qsizetype size = 0; size < settings.size(); ++size)
        EXPECT_FALSE(decodeSettings(settings.left(size))) << settings.left(size).data();
}

TEST(RecordsJsonReader, escapes_standForTheirCharacters)
{
    EXPECT_EQ(readText(R"("\"\\\/\b\f\n\r\t")"), u"\"\\/\b\f\n\r\t"_s);
    EXPECT_EQ(readText(R"("https://example.com")"), u"https://example.com"_s);
    EXPECT_EQ(readText(R"("\u0041\u00e9\u00E9\u2028\uffff")"), u"A\u00e9\u00e9\u2028\uffff"_s);
    EXPECT_EQ(readText(R"("\ud83d\ude00\uDBFF\uDFFF\ud800\udc00")"),
              u"\U0001f600\U0010ffff\U00010000"_s);
    EXPECT_EQ(readText(R"("a\u0000b\u0000")"), u"a\0b\0"_s);
    EXPECT_EQ(readText(R"("\ufeffa\ufeff")"), u"\ufeffa\ufeff"_s);
    for (const char *bad : {R"("\a")", R"("\v")", R"("\0")", R"("\x41")", R"("\')", R"("\u")",
                            R"("\u12")", R"("\u123")", R"("\u123g")", R"("\U00e9")", R"("\")",
                            R"("\u 123")", R"("\u+123")", R"("\u-123")", R"("\
")"})
        EXPECT_EQ(readText(bad), std::nullopt) << bad;
}

TEST(RecordsJsonReader, loneSurrogateEscapes_areErrors)
{
    for (const char *bad :
         {R"("\ud83d")", R"("\ude00")", R"("a\ud83db")", R"("\ud83d\ud83d")", R"("\ude00\ud83d")",
          R"("\ud83d\n")", R"("\ud83d\u0041")", R"("\ud83dude00")", R"("\ud83d\ude0")",
          R"("\ud83d\ue000")", R"("\udbff")", R"("\udfff")", R"("\ud83d\ude00\ude00")"}) {
        EXPECT_EQ(readText(bad), std::nullopt) << bad;
        EXPECT_FALSE(isPassedOver(bad)) << bad;
        EXPECT_FALSE(isPassedOver(QByteArray("[") + bad + ']')) << bad;
        EXPECT_FALSE(isPassedOver(QByteArray("{") + bad + ":1}")) << bad;
        const QByteArray key = QByteArray(bad).mid(1).chopped(1);
        EXPECT_FALSE(readPost(followedBy(goodPostFields(), key, "1"))) << bad;
    }
}

TEST(RecordsJsonReader, rawControlCharacters_inAString_areErrors)
{
    for (char control = 0; control < 0x20; ++control) {
        const QByteArray text = QByteArray("\"a") + control + "b\"";
        EXPECT_EQ(readText(text), std::nullopt) << int(control);
        EXPECT_FALSE(isPassedOver(text)) << int(control);
        EXPECT_FALSE(isPassedOver('{' + text + ":1}")) << int(control);
    }
    EXPECT_EQ(readText("\"a\x7f\""), u"a\u007f"_s);
}

TEST(RecordsJsonReader, texts_keepEveryCharacter)
{
    EXPECT_EQ(readText("\"\xEF\xBB\xBF"
                       "a\""),
              u"\ufeffa"_s);
    EXPECT_EQ(readText("\"\xEF\xBB\xBF\xEF\xBB\xBF\""), u"\ufeff\ufeff"_s);
    EXPECT_EQ(readText("\"\xC2\xA0\xC2\x85\xE2\x80\xA8\xE2\x80\xA9\xEF\xB7\x90\xEF\xBF\xBF\""),
              u"\u00a0\u0085\u2028\u2029\ufdd0\uffff"_s);
    EXPECT_EQ(readText("\"e\xCC\x81\""), u"e\u0301"_s);
    EXPECT_EQ(readText("\"\xF4\x8F\xBF\xBF\""), u"\U0010ffff"_s);
    EXPECT_EQ(readText(R"("")"), QString());
    const QByteArray letters(1'000'000, 'x');
    EXPECT_EQ(readText('"' + letters + '"'), QString::fromLatin1(letters));
}

TEST(RecordsJsonReader, bytesThatAreNotUtf8_areErrors)
{
    for (const char *bad :
         {"\x80", "\xBF", "\xC2", "\xC3(", "\xE2\x82", "\xE2\x82(", "\xF0\x9F\x98", "\xFE", "\xFF",
          // Longer than needed.
          "\xC0\x80", "\xC0\xAF", "\xC1\xBF", "\xE0\x80\x80", "\xE0\x9F\xBF", "\xF0\x80\x80\x80",
          "\xF0\x8F\xBF\xBF", "\xF8\x88\x80\x80\x80",
          // Surrogates, alone and in a pair.
          "\xED\xA0\x80", "\xED\xBF\xBF", "\xED\xA0\xBD\xED\xB8\x80",
          // Beyond the last plane.
          "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"}) {
        const QByteArray text = QByteArray("\"a") + bad + "b\"";
        EXPECT_EQ(readText(text), std::nullopt) << text.toHex().data();
        EXPECT_FALSE(isPassedOver(text)) << text.toHex().data();
        EXPECT_FALSE(isPassedOver('{' + text + ":1}")) << text.toHex().data();
        EXPECT_FALSE(decodePosts(goodPosts() + bad)) << text.toHex().data();
        EXPECT_FALSE(decodePosts("[]" + QByteArray(bad))) << text.toHex().data();
    }
}

TEST(RecordsJsonReader, dates_areNumbersOfEveryForm)
{
    EXPECT_EQ(readDate("0"), 0);
    EXPECT_EQ(readDate("-978307200"), -978307200);
    EXPECT_EQ(readDate("788918400.25"), 788918400.25);
    EXPECT_EQ(readDate("1e3"), 1000);
    EXPECT_EQ(readDate("1E+3"), 1000);
    EXPECT_EQ(readDate("25e-2"), 0.25);
    EXPECT_EQ(readDate("0.1"), 0.1);
    EXPECT_EQ(readDate("0e0"), 0);
    EXPECT_EQ(readDate("1e0000000000000000000000001"), 10);
    EXPECT_EQ(readDate("18446744073709551616"), 18446744073709551616.0);
    EXPECT_EQ(readDate("1" + QByteArray(100, '0')), 1e100);
    EXPECT_EQ(readDate("0." + QByteArray(400, '0') + "1e400"), 0.1);
    EXPECT_EQ(readDate("0.1000000000000000055511151231257827021181583404541015625"), 0.1);
    // The middle between two doubles, and just above it by the 767th digit.
    EXPECT_EQ(readDate("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(readDate("9007199254740993." + QByteArray(750, '0') + "1"), 9007199254740994.0);
}

TEST(RecordsJsonReader, dates_keepTheSignOfZero)
{
    for (const char *zero : {"-0", "-0.0", "-0e5", "-1e-400"}) {
        const auto seconds = readDate(zero);
        ASSERT_TRUE(seconds) << zero;
        EXPECT_EQ(*seconds, 0) << zero;
        EXPECT_TRUE(std::signbit(*seconds)) << zero;
    }
    EXPECT_FALSE(std::signbit(*readDate("0")));
}

TEST(RecordsJsonReader, dates_beyondADouble_areErrors_andThoseBelowAreZero)
{
    EXPECT_EQ(readDate("1.7976931348623157e308"), Limits::max());
    EXPECT_EQ(readDate("1.7976931348623158e308"), Limits::max());
    EXPECT_EQ(readDate("4.9406564584124654e-324"), Limits::denorm_min());
    EXPECT_EQ(readDate("-5e-324"), -Limits::denorm_min());
    EXPECT_EQ(readDate("2.2250738585072011e-308"), 2.2250738585072011e-308);
    for (const char *small : {"1e-400", "2e-324", "1e-99999999999999999999", "0.0e999"})
        EXPECT_EQ(readDate(small), 0) << small;
    for (const char *large :
         {"1e999", "-1e999", "1.7976931348623159e308", "2e308", "1e99999999999999999999"})
        EXPECT_EQ(readDate(large), std::nullopt) << large;
    EXPECT_EQ(readDate("1" + QByteArray(400, '0')), std::nullopt);
}

TEST(RecordsJsonReader, numbersOfNoForm_areErrors)
{
    for (const char *bad :
         {"",      "-",        "+1",  "01",  "00",    "-01",      "1.",        ".5",    "-.5",
          "1.e5",  "1e",       "1e+", "1e-", "1E5.5", "0x10",     "1_000",     "1.5.5", "--1",
          "1-",    "1+1",      "1 1", "NaN", "nan",   "Infinity", "-Infinity", "inf",   "1f",
          "1e5e5", "\xD9\xA1", "1a",  "1\"", "1true", "1[",       "1{}"}) {
        EXPECT_EQ(readDate(bad), std::nullopt) << bad;
        EXPECT_FALSE(isPassedOver(bad)) << bad;
        EXPECT_FALSE(isPassedOver(QByteArray("[") + bad + ",1]")) << bad;
    }
    EXPECT_EQ(readDate(QByteArray("1\0", 2)), std::nullopt);
    EXPECT_FALSE(isPassedOver(QByteArray("1\0", 2)));
}

TEST(RecordsJsonReader, ignoredKeys_mayHoldAnythingThatIsValid)
{
    for (const QByteArray &value : {QByteArray("null"),
                                    QByteArray("true"),
                                    QByteArray("false"),
                                    QByteArray("[]"),
                                    QByteArray("{}"),
                                    QByteArray(R"("")"),
                                    QByteArray(R"("text\n\u00e9")"),
                                    QByteArray("1e999"),
                                    QByteArray("-1e-999"),
                                    QByteArray("-0"),
                                    QByteArray("1E400"),
                                    QByteArray("18446744073709551616"),
                                    QByteArray(100, '7'),
                                    QByteArray("-") + QByteArray(100, '7'),
                                    QByteArray("0.") + QByteArray(1000, '3'),
                                    QByteArray("12345678901234567890 "),
                                    QByteArray(R"([1,"two",null,[3,{"four":[5]}],{"a":{"b":{}}}])"),
                                    QByteArray(R"({"id":1,"id":2,"":3,"title":[null]})"),
                                    QByteArray("[\n1\t,\r2 ]"),
                                    QByteArray("[ [ ] , { } ]")}) {
        EXPECT_TRUE(isPassedOver(value)) << value.data();
        EXPECT_TRUE(isPassedOver("[" + value + ", " + value + " ]")) << value.data();
    }
}

TEST(RecordsJsonReader, ignoredKeys_holdingAnythingInvalid_areErrors)
{
    for (const QByteArray value : {"",
                                   "nul",
                                   "nulll",
                                   "null0",
                                   "tru",
                                   "truee",
                                   "True",
                                   "TRUE",
                                   "fals",
                                   "falsey",
                                   "n",
                                   "t",
                                   "f",
                                   "undefined",
                                   "x",
                                   "'a'",
                                   "[",
                                   "]",
                                   "{",
                                   "}",
                                   "[1",
                                   "1]",
                                   "[1,]",
                                   "[,1]",
                                   "[1,,2]",
                                   "[1 2]",
                                   "[1:2]",
                                   R"({"a"})",
                                   R"({"a":})",
                                   R"({"a":1,})",
                                   R"({"a":1 "b":2})",
                                   R"({"a",1})",
                                   "{a:1}",
                                   R"({1:1})",
                                   R"({null:1})",
                                   R"("a)",
                                   R"(a")",
                                   R"("a""b")",
                                   R"("a"b)",
                                   R"("a"1)",
                                   R"(1"a")",
                                   R"([1}])",
                                   R"({"a":[}])",
                                   R"([true false])",
                                   "[nulL]",
                                   "truefalse",
                                   "[]]",
                                   "[][]",
                                   "{}{}",
                                   "[]1",
                                   R"({}"a")",
                                   "/1/",
                                   "//\n1",
                                   "#",
                                   "\\",
                                   R"(\"a\")",
                                   "true/**/",
                                   "[tru]"}) {
        EXPECT_FALSE(isPassedOver(value)) << value.data();
        EXPECT_FALSE(isPassedOver("[" + value + ",]")) << value.data();
        EXPECT_FALSE(isPassedOver(R"({"k":[0,)" + value + "]}")) << value.data();
    }
}

TEST(RecordsJsonReader, aRepeatedKey_countsByItsLastValue)
{
    EXPECT_EQ(readPost(followedBy(goodPostFields(), "title", R"("Last")"))->title, u"Last"_s);
    EXPECT_EQ(readPost(ledBy(goodPostFields(), "title", R"("First")"))->title, u"A title"_s);
    EXPECT_EQ(readPost(followedBy(goodPostFields(), R"(t\u0069tle)", R"("Last")"))->title,
              u"Last"_s);
    EXPECT_EQ(readPost(followedBy(goodPostFields(), "date", "5"))->date, Date(5));
    EXPECT_EQ(
        readPost(followedBy(goodPostFields(), "id", R"("00000000-0000-0000-0000-000000000000")"))
            ->id,
        QUuid());
    EXPECT_EQ(
        decodeSettings(jsonObject(followedBy(goodSettingsFields(), "link", R"("Last")")))->link,
        u"Last"_s);
}

TEST(RecordsJsonReader, aRepeatedKey_whoseLastValueAloneIsGood_isGood)
{
    for (const auto &[key, good] : goodPostFields()) {
        for (const char *other : {"null", "true", R"(["a",{}])", R"({"a":[1]})"}) {
            EXPECT_TRUE(readPost(ledBy(goodPostFields(), key, other))) << key.data() << other;
            EXPECT_FALSE(readPost(followedBy(goodPostFields(), key, other))) << key.data() << other;
        }
        // The earlier one must be JSON all the same.
        for (const char *invalid : {"nul", R"(["a",])", "01", R"("\ud83d")"})
            EXPECT_FALSE(readPost(ledBy(goodPostFields(), key, invalid))) << key.data() << invalid;
    }
    EXPECT_TRUE(readPost(ledBy(goodPostFields(), "title", "5")));
    EXPECT_TRUE(readPost(ledBy(goodPostFields(), "date", R"("5")")));
    EXPECT_TRUE(readPost(ledBy(goodPostFields(), "date", "1e999")));
    EXPECT_TRUE(readPost(ledBy(goodPostFields(), "id", R"("no id")")));
    for (const auto &[key, good] : goodSettingsFields()) {
        EXPECT_TRUE(decodeSettings(jsonObject(ledBy(goodSettingsFields(), key, "[{}]"))));
        EXPECT_FALSE(decodeSettings(jsonObject(followedBy(goodSettingsFields(), key, "[{}]"))));
    }
}

TEST(RecordsJsonReader, nesting_to512IsRead_andDeeperIsAnError)
{
    // Within an ignored key and within an earlier value of a repeated one, the document's own
    // array and object counted.
    for (const char *key : {"author", "title", "date", "id"}) {
        const auto posts = [key](int depth) {
            return decodePosts(postsDocument(ledBy(goodPostFields(), key, nested(depth - 2))))
                .has_value();
        };
        EXPECT_TRUE(posts(511)) << key;
        EXPECT_TRUE(posts(512)) << key;
        EXPECT_FALSE(posts(513)) << key;
        EXPECT_FALSE(posts(100'000)) << key;
    }
    for (const char *key : {"author", "title"}) {
        const auto settings = [key](int depth) {
            return decodeSettings(jsonObject(ledBy(goodSettingsFields(), key, nested(depth - 1))))
                .has_value();
        };
        EXPECT_TRUE(settings(511)) << key;
        EXPECT_TRUE(settings(512)) << key;
        EXPECT_FALSE(settings(513)) << key;
        EXPECT_FALSE(settings(100'000)) << key;
    }
}

TEST(RecordsJsonReader, nesting_withoutAnEnd_isAnError)
{
    for (const char *opening : {"[", R"({"k":)", R"([{"k":)"}) {
        for (const int depth : {3, 512, 513, 100'000, 1'000'000}) {
            const QByteArray open = QByteArray(opening).repeated(depth);
            EXPECT_FALSE(decodePosts(open));
            EXPECT_FALSE(decodeSettings(open));
            EXPECT_FALSE(isPassedOver(open));
        }
    }
}

TEST(RecordsJsonReader, wideDocuments_areRead)
{
    // Depth is counted, not size: siblings do not add up.
    EXPECT_TRUE(isPassedOver("[" + QByteArray("[[]],").repeated(2000) + "0]"));
    QByteArray keys = R"({"k0":0)";
    for (int key = 1; key < 5000; ++key)
        keys += R"(,"k)" + QByteArray::number(key) + R"(":{"":[]})";
    EXPECT_TRUE(isPassedOver(keys + "}"));
}

TEST(RecordsJsonReader, ids_are36CharactersIn8_4_4_4_12)
{
    const auto readId = [](const QByteArray &text) -> std::optional<QUuid> {
        const auto post = readPost(with(goodPostFields(), "id", '"' + text + '"'));
        return post ? std::optional(post->id) : std::nullopt;
    };
    const QUuid id = QUuid::fromString(u"6f9619ff-8b86-4011-b42d-00c04fc964ff"_s);
    EXPECT_EQ(readId("6F9619FF-8B86-4011-B42D-00C04FC964FF"), id);
    EXPECT_EQ(readId("6f9619ff-8b86-4011-b42d-00c04fc964ff"), id);
    EXPECT_EQ(readId("6f9619FF-8B86-4011-b42d-00C04fc964fF"), id);
    EXPECT_EQ(readId(R"(6F9619FF\u002D8B86-4011-B42D-00C04FC964F\u0046)"), id);
    EXPECT_EQ(readId("00000000-0000-0000-0000-000000000000"), QUuid());
    EXPECT_EQ(readId("FFFFFFFF-FFFF-FFFF-FFFF-FFFFFFFFFFFF"),
              QUuid::fromRfc4122(QByteArray(16, '\xff')));
    for (const char *bad :
         {"", "6F9619FF", "{6F9619FF-8B86-4011-B42D-00C04FC964FF}",
          "6F9619FF-8B86-4011-B42D-00C04FC964FF ", " 6F9619FF-8B86-4011-B42D-00C04FC964FF",
          " 6F9619FF-8B86-4011-B42D-00C04FC964F", "6F9619FF-8B86-4011-B42D-00C04FC964F",
          "6F9619FF-8B86-4011-B42D-00C04FC964FF0", "6F9619FF-8B86-4011-B42D-00C04FC964FG",
          "6F9619FF8B864011B42D00C04FC964FF", "6F9619FF-8B864-011-B42D-00C04FC964FF",
          "6F9619FF-8B86-4011-B42D_00C04FC964FF", "-6F9619F-8B86-4011-B42D-00C04FC964FF",
          "6F9619FF-8B86-4011-B42D-00C04FC964F\\u0000",
          "6F9619FF-8B86-4011-B42D-00C04FC964FF\\u0000",
          "6F9619FF-8B86-4011-B42D-00C04FC964F\xC3\xA9",
          // Full-width digits are digits of another kind.
          "6F9619FF-8B86-4011-B42D-00C04FC964\xEF\xBC\x91\xEF\xBC\x91",
          "+F9619FF-8B86-4011-B42D-00C04FC964FF", "0x9619FF-8B86-4011-B42D-00C04FC964FF",
          "urn:uuid:6F9619FF-8B86-4011-B42D-00C04FC964FF"})
        EXPECT_EQ(readId(bad), std::nullopt) << bad;
}

TEST(RecordsJsonReader, anIdInLowerCase_isWrittenInUpperCase)
{
    const auto posts = decodePosts(
        postsDocument(with(goodPostFields(), "id", R"("6f9619ff-8b86-4011-b42d-00c04fc964ff")")));
    ASSERT_TRUE(posts);
    EXPECT_EQ(encodePosts(*posts), goodPosts());
}

TEST(RecordsJsonReader, anExtraKey_isLostOnTheNextWrite)
{
    const auto posts =
        decodePosts(postsDocument(ledBy(goodPostFields(), "author", R"({"name":"A"})")));
    ASSERT_TRUE(posts);
    EXPECT_EQ(encodePosts(*posts), goodPosts());
}

TEST(RecordsJsonReader, leavesTheCallersBytesAlone)
{
    const QByteArray json = goodPosts();
    const QByteArray before(json.constData(), json.size());
    EXPECT_TRUE(decodePosts(json));
    EXPECT_EQ(json, before);
}

TEST(RecordsJsonReader, reads_bytesWithNothingAllocatedBehindThem)
{
    const QByteArray json = goodPosts();
    std::vector<char> exact(json.begin(), json.end());
    EXPECT_TRUE(decodePosts(QByteArray::fromRawData(exact.data(), qsizetype(exact.size()))));
    // With room before them instead.
    QByteArray shifted = "garbage" + json;
    shifted.remove(0, 7);
    EXPECT_TRUE(decodePosts(std::move(shifted)));
}
