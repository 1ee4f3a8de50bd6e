// The reader and the writer against each other, and against another strict reader of JSON.
#include "model/RecordsJson.h"
#include "tests/model/JsonSamples.h"
#include "tests/references/RecordsByRapidJson.h"
#include "tests/support/Generators.h"
#include "tests/support/Noncharacters.h"
#include "tests/support/Posts.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

bool readersAgree(const QByteArray &json)
{
    const auto ours = decodePosts(json);
    const auto others = postsByRapidJson(json);
    return ours.has_value() == others.has_value() && (!ours || identical(*ours, *others));
}

bool readersAgreeOnSettings(const QByteArray &json)
{
    const auto ours = decodeSettings(json);
    const auto others = settingsByRapidJson(json);
    return ours.has_value() == others.has_value()
        && (!ours
            || (ours->title == others->title && ours->link == others->link
                && ours->description == others->description));
}

/// Calls `check` with everything that differs from a document by one byte: changed, or more.
void forEveryOtherByte(const QByteArray &document, const std::function<void(QByteArray)> &check)
{
    for (qsizetype position = 0; position < document.size(); ++position) {
        for (int byte = 0; byte < 256; ++byte) {
            QByteArray changed = document;
            changed[position] = char(byte);
            check(changed);
            check(QByteArray(document).insert(position, char(byte)));
        }
    }
}

/// Any JSON value, in a text with white space here and there.
rc::Gen<std::string> anyJson(int depth)
{
    using namespace rc;
    static const std::vector<std::string> scalars{"null",
                                                  "true",
                                                  "false",
                                                  "0",
                                                  "-0",
                                                  "-1.5e-7",
                                                  "1e-400",
                                                  "12345678901234567890123",
                                                  R"("")",
                                                  R"("a")",
                                                  R"("\"\\\/\b\f\n\r\t")",
                                                  R"("\u0000\ud83d\ude00")",
                                                  "\"\xEF\xBB\xBF\""};
    if (depth == 0)
        return gen::elementOf(scalars);
    const auto blank = gen::elementOf(std::vector<std::string>{"", "", "", " ", "\n\t", "\r "});
    const auto list = [blank, depth](const char *opening, const char *closing, bool named) {
        const auto element = gen::apply(
            [named](const std::string &before, const std::string &key, const std::string &value,
                    const std::string &after) {
                return before + (named ? '"' + key + "\":" : "") + value + after;
            },
            blank, gen::elementOf(std::vector<std::string>{"", "id", "title", "date", "k"}),
            anyJson(depth - 1), blank);
        return gen::map(gen::resize(4, gen::container<std::vector<std::string>>(element)),
                        [=](const std::vector<std::string> &elements) {
                            std::string text = opening;
                            for (const std::string &one : elements)
                                text += (text.size() > 1 ? "," : "") + one;
                            return text + closing;
                        });
    };
    return gen::weightedOneOf<std::string>(
        {{2, gen::elementOf(scalars)}, {1, list("[", "]", false)}, {1, list("{", "}", true)}});
}

rc::Gen<JsonFields> anyFields(const std::vector<QByteArray> &keys, int atMost)
{
    using namespace rc;
    const auto value = gen::map(
        anyJson(3), [](const std::string &json) { return QByteArray::fromStdString(json); });
    const auto field = gen::pair(gen::elementOf(keys), value);
    return gen::mapcat(gen::inRange(0, atMost + 1), [field](int count) {
        return gen::container<JsonFields>(std::size_t(count), field);
    });
}

/// A posts document that is good but for what its fields, some of them strangers, repeated or
/// missing, hold.
rc::Gen<QByteArray> anyPostsDocument()
{
    using namespace rc;
    static const std::vector<QByteArray> strangers{"author", "Title", "", "\\u0000",
                                                   "\\ud83d\\ude00"};
    static const std::vector<QByteArray> ours{"id",          "title",     "content",    "date",
                                              "description", "permalink", "titl\\u0065"};
    const auto post = gen::apply(
        [](const JsonFields &repeated, JsonFields fields, int missing, const JsonFields &last) {
            const JsonFields good = goodPostFields();
            fields.insert(fields.begin(), repeated.begin(), repeated.end());
            for (int index = 0; index < int(good.size()); ++index) {
                if (index != missing)
                    fields.push_back(good[std::size_t(index)]);
            }
            fields.insert(fields.end(), last.begin(), last.end());
            return jsonObject(fields);
        },
        anyFields(ours, 2), anyFields(strangers, 2), gen::inRange(0, 60),
        gen::weightedOneOf<JsonFields>({{4, anyFields(strangers, 1)}, {1, anyFields(ours, 1)}}));
    const auto posts = gen::mapcat(gen::inRange(0, 3), [post](int count) {
        return gen::container<std::vector<QByteArray>>(std::size_t(count), post);
    });
    return gen::map(posts, [](const std::vector<QByteArray> &objects) {
        QByteArray json = "[";
        for (const QByteArray &object : objects)
            json += (json.size() > 1 ? "," : "") + object;
        return json + ']';
    });
}

/// One small damage to a document.
struct Damage
{
    int kind;
    double place;
    QByteArray piece;
};

rc::Gen<Damage> anyDamage()
{
    using namespace rc;
    const auto byte = gen::map(gen::resize(kNominalSize, gen::arbitrary<std::uint8_t>()),
                               [](std::uint8_t value) { return QByteArray(1, char(value)); });
    const auto token = gen::elementOf(std::vector<QByteArray>{"[",
                                                              "]",
                                                              "{",
                                                              "}",
                                                              ",",
                                                              ":",
                                                              "\"",
                                                              "\\",
                                                              "/",
                                                              "0",
                                                              "-",
                                                              ".",
                                                              "e",
                                                              "1e999",
                                                              "null",
                                                              "true",
                                                              " ",
                                                              "\n",
                                                              "\f",
                                                              QByteArray(1, '\0'),
                                                              "\\u0000",
                                                              "\\ud83d",
                                                              "\\ude00",
                                                              "\xEF\xBB\xBF",
                                                              "\xC3",
                                                              "\xA9",
                                                              "\xED\xA0\x80",
                                                              "\xF4\x90\x80\x80",
                                                              "[]",
                                                              "{}",
                                                              "\"id\":",
                                                              ",\"date\":1"});
    return gen::apply(
        [](int kind, int place, const QByteArray &piece) {
            return Damage{kind, place / 10'000.0, piece};
        },
        gen::inRange(0, 4), gen::inRange(0, 10'000), gen::oneOf(byte, token));
}

QByteArray damaged(QByteArray json, const Damage &damage)
{
    const auto position = qsizetype(damage.place * double(json.size() + 1));
    switch (damage.kind) {
    case 0:
        return json.insert(position, damage.piece);
    case 1:
        return json.replace(position, damage.piece.size(), damage.piece);
    case 2:
        return json.remove(position, damage.piece.size());
    default:
        return json.left(position);
    }
}

void showValue(const Damage &damage, std::ostream &out)
{
    out << damage.kind << " at " << damage.place << ' ' << damage.piece.toHex().data();
}

} // namespace

RC_GTEST_PROP(RecordsJson, posts_areReadAsTheyWereWritten_toTheBit, (const BlogPosts &posts))
{
    const auto json = encodePosts(posts);
    RC_ASSERT(json.has_value());
    const auto read = decodePosts(*json);
    RC_ASSERT(read.has_value());
    RC_ASSERT(identical(*read, posts));
    RC_ASSERT(encodePosts(*read) == json);
}

RC_GTEST_PROP(RecordsJson, settings_areReadAsTheyWereWritten, (const RSSSettings &settings))
{
    const auto read = decodeSettings(encodeSettings(settings));
    RC_ASSERT(read.has_value());
    RC_ASSERT(read->title == settings.title);
    RC_ASSERT(read->link == settings.link);
    RC_ASSERT(read->description == settings.description);
}

RC_GTEST_PROP(RecordsJson, dates_areReadAsTheyWereWritten_toTheBit, ())
{
    BlogPosts posts;
    for (const Date date : *rc::gen::container<std::vector<Date>>(500, rc::gen::arbitrary<Date>()))
        posts.append(postTitled(QString(), date));
    const auto read = decodePosts(encodePosts(posts).value());
    RC_ASSERT(read.has_value());
    RC_ASSERT(identical(*read, posts));
}

RC_GTEST_PROP(RecordsJson, whatIsWritten_isReadByAnotherReader, (const BlogPosts &posts))
{
    const auto others = postsByRapidJson(encodePosts(posts).value());
    RC_ASSERT(others.has_value());
    RC_ASSERT(identical(*others, posts));
}

RC_GTEST_PROP(RecordsJson, whatIsWritten_isCompactAsciiOrItself, (const BlogPosts &posts))
{
    const QByteArray json = encodePosts(posts).value();
    RC_ASSERT(QUtf8StringView(json).isValidUtf8());
    bool afterBackslash = false;
    for (const char byte : json) {
        RC_ASSERT(std::uint8_t(byte) >= 0x20U);
        RC_ASSERT(byte != '/' || afterBackslash);
        afterBackslash = byte == '\\' && !afterBackslash;
    }
}

RC_GTEST_PROP(RecordsJson, anyDocument_isReadAsAnotherReaderDoes, ())
{
    const auto documents =
        *rc::gen::resize(100, rc::gen::container<std::vector<QByteArray>>(20, anyPostsDocument()));
    for (const QByteArray &json : documents) {
        if (!readersAgree(json))
            RC_FAIL(json.toStdString());
    }
}

RC_GTEST_PROP(RecordsJson, aDamagedDocument_isReadAsAnotherReaderDoes, (const BlogPosts &posts))
{
    const QByteArray good = encodePosts(posts.mid(0, 2)).value();
    const QByteArray odd = *anyPostsDocument();
    const auto damages = *rc::gen::container<std::vector<Damage>>(100, anyDamage());
    for (const QByteArray &document : {good, odd}) {
        QByteArray worse = document;
        for (const Damage &damage : damages) {
            const QByteArray json = damaged(document, damage);
            if (!readersAgree(json))
                RC_FAIL(json.toStdString());
            // Two at once now and then.
            worse = damaged(json, damages.front());
            if (!readersAgree(worse))
                RC_FAIL(worse.toStdString());
        }
    }
}

TEST(RecordsJson, everySingleByteChange_isReadAsAnotherReaderDoes)
{
    const QByteArray good = postsDocument(
        followedBy(goodPostFields(), "more", R"([{"a":[-1.5e3,null]},true,"\u00e9"])"));
    ASSERT_TRUE(decodePosts(good));
    forEveryOtherByte(good, [](const QByteArray &changed) {
        EXPECT_TRUE(readersAgree(changed)) << changed.data();
    });

    const QByteArray settings =
        jsonObject(followedBy(goodSettingsFields(), "more", R"([null,{"a":1}])"));
    ASSERT_TRUE(decodeSettings(settings));
    forEveryOtherByte(settings, [](const QByteArray &changed) {
        EXPECT_TRUE(readersAgreeOnSettings(changed)) << changed.data();
    });
}

TEST(RecordsJson, noncharacters_areCharactersLikeOthers)
{
    const QString text = allNoncharacters();
    const RSSSettings settings{text, text, text};
    const QByteArray json = encodeSettings(settings);
    EXPECT_TRUE(json.contains(text.toUtf8()));
    EXPECT_EQ(decodeSettings(json)->description, text);
    EXPECT_TRUE(readersAgreeOnSettings(json));

    QByteArray escaped;
    for (const QChar unit : text)
        escaped += "\\u" + QByteArray::number(unit.unicode(), 16);
    const auto fields = with(goodSettingsFields(), "title", '"' + escaped + '"');
    EXPECT_EQ(decodeSettings(jsonObject(fields))->title, text);

    const BlogPosts posts{postTitled(text)};
    EXPECT_TRUE(identical(decodePosts(encodePosts(posts).value()).value(), posts));
}
