#include "tests/references/RecordsByRapidJson.h"

#include "tests/references/TextByIcu.h"

#include <QRegularExpression>

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A parsed value: for a number its text, for a string its UTF-8, for an object the names of its
/// elements.
struct JsonValue
{
    enum Type { Other, Number, String, Array, Object };

    Type type = Other;
    std::string text;
    std::vector<std::string> names;
    std::vector<JsonValue> elements;
};

/// The texts of numbers that stand as zeros in what RapidJSON is given, by how many numbers stand
/// ahead of them in the document.
using ReplacedNumbers = std::map<std::size_t, std::string>;

QByteArrayView viewOf(const std::string &text)
{
    return {text.data(), qsizetype(text.size())};
}

/// Builds values from what RapidJSON finds. False from a handler is an error of the document.
class ValueBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, ValueBuilder>
{
public:
    explicit ValueBuilder(const ReplacedNumbers &replaced)
        : m_replaced(replaced)
    {
    }

    JsonValue root;
    std::size_t numbers = 0; ///< how many have been found

    // The names are RapidJSON's.
    // NOLINTBEGIN(readability-identifier-naming)
    bool Default() { return add({}); }

    bool RawNumber(const char *text, rapidjson::SizeType length, bool)
    {
        const auto replaced = m_replaced.find(numbers++);
        if (replaced != m_replaced.end())
            return add({JsonValue::Number, replaced->second, {}, {}});
        return add({JsonValue::Number, {text, length}, {}, {}});
    }

    bool String(const char *text, rapidjson::SizeType length, bool)
    {
        return isText({text, length}) && add({JsonValue::String, {text, length}, {}, {}});
    }

    bool Key(const char *text, rapidjson::SizeType length, bool)
    {
        m_key.assign(text, length);
        return isText(m_key);
    }

    bool StartObject() { return open(JsonValue::Object); }
    bool StartArray() { return open(JsonValue::Array); }
    bool EndObject(rapidjson::SizeType) { return close(); }
    bool EndArray(rapidjson::SizeType) { return close(); }
    // NOLINTEND(readability-identifier-naming)

private:
    /// RapidJSON lets an escape for the second half of a surrogate pair stand alone.
    static bool isText(const std::string &text) { return textByIcu(viewOf(text)).has_value(); }

    bool add(JsonValue value)
    {
        place(std::move(value));
        return true;
    }

    bool open(JsonValue::Type type)
    {
        constexpr std::size_t deepestNesting = 512;
        m_path.push_back(&place({type, {}, {}, {}}));
        return m_path.size() <= deepestNesting;
    }

    bool close()
    {
        m_path.pop_back();
        return true;
    }

    /// Puts a value where the document has come to. A container that is open does not move until
    /// it is closed: only the innermost one grows.
    JsonValue &place(JsonValue value)
    {
        if (m_path.empty())
            return root = std::move(value);
        JsonValue &container = *m_path.back();
        if (container.type == JsonValue::Object)
            container.names.push_back(m_key);
        return container.elements.emplace_back(std::move(value));
    }

    const ReplacedNumbers &m_replaced;
    std::vector<JsonValue *> m_path;
    std::string m_key;
};

/// The number of RFC 8259 section 6 that begins at a place; empty where none does, or where more
/// follows that could belong to one.
QByteArray numberAt(const QByteArray &json, qsizetype place)
{
    static const QRegularExpression number(
        u"^-?(?:0|[1-9][0-9]*+)(?:\\.[0-9]++)?(?:[eE][+-]?[0-9]++)?(?![-+.0-9eE])"_s);
    const auto match = number.match(QString::fromLatin1(json.sliced(place)));
    return match.captured().toLatin1();
}

/// The document's value; nothing for a document in error.
std::optional<JsonValue> parse(QByteArray json)
{
    using namespace rapidjson;
    constexpr unsigned flags =
        kParseValidateEncodingFlag | kParseNumbersAsStringsFlag | kParseIterativeFlag;
    if (json.startsWith("\xEF\xBB\xBF"))
        json.remove(0, 3);

    // RapidJSON refuses a number that no double can hold, also where it is told to keep numbers as
    // texts. It is given a zero in its place, and reads anew.
    ReplacedNumbers replaced;
    for (;;) {
        MemoryStream bytes(json.constData(), std::size_t(json.size()));
        Reader reader;
        ValueBuilder builder(replaced);
        const ParseResult result = reader.Parse<flags>(bytes, builder);
        if (result.Code() == kParseErrorNumberTooBig) {
            const auto place = qsizetype(result.Offset());
            const QByteArray number = numberAt(json, place);
            if (number.isEmpty())
                return std::nullopt;
            json.replace(place, number.size(), "0");
            replaced[builder.numbers] = number.toStdString();
            continue;
        }
        // A NUL behind the document looks to RapidJSON like its end.
        if (result.IsError() || bytes.Tell() != std::size_t(json.size()))
            return std::nullopt;
        return builder.root;
    }
}

/// The last value of a key; nothing where it is missing or of another type.
const JsonValue *member(const JsonValue &object, const char *key, JsonValue::Type type)
{
    const JsonValue *found = nullptr;
    for (std::size_t index = 0; index < object.names.size(); ++index) {
        if (object.names[index] == key)
            found = &object.elements[index];
    }
    return found && found->type == type ? found : nullptr;
}

/// The nearest double; nothing where the number is too large for one.
std::optional<double> number(const std::string &text)
{
    double parsed = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), parsed).ec == std::errc())
        return parsed;
    parsed = std::strtod(text.c_str(), nullptr);
    return std::isfinite(parsed) ? std::optional(parsed) : std::nullopt;
}

QString textOf(const JsonValue *value)
{
    return textByIcu(viewOf(value->text)).value();
}

std::optional<BlogPost> postOf(const JsonValue &json)
{
    const auto *id = member(json, "id", JsonValue::String);
    const auto *title = member(json, "title", JsonValue::String);
    const auto *content = member(json, "content", JsonValue::String);
    const auto *date = member(json, "date", JsonValue::Number);
    const auto *description = member(json, "description", JsonValue::String);
    const auto *permalink = member(json, "permalink", JsonValue::String);
    if (!id || !title || !content || !date || !description || !permalink)
        return std::nullopt;
    // Written out again, the id must be the same but for the case of its letters.
    const QByteArray idText = QByteArray::fromStdString(id->text);
    const QUuid uuid = QUuid::fromString(QString::fromLatin1(idText));
    const auto seconds = number(date->text);
    if (uuid.toByteArray(QUuid::WithoutBraces) != idText.toLower() || !seconds)
        return std::nullopt;
    return BlogPost{.id = uuid,
                    .title = textOf(title),
                    .content = textOf(content),
                    .date = Date(*seconds),
                    .description = textOf(description),
                    .permalink = textOf(permalink)};
}

} // namespace

std::optional<BlogPosts> postsByRapidJson(const QByteArray &json)
{
    const auto document = parse(json);
    if (!document || document->type != JsonValue::Array)
        return std::nullopt;
    BlogPosts posts;
    for (const JsonValue &element : document->elements) {
        const auto post = postOf(element);
        if (!post)
            return std::nullopt;
        posts.append(*post);
    }
    return posts;
}

std::optional<RSSSettings> settingsByRapidJson(const QByteArray &json)
{
    const auto document = parse(json);
    if (!document || document->type != JsonValue::Object)
        return std::nullopt;
    const auto *title = member(*document, "title", JsonValue::String);
    const auto *link = member(*document, "link", JsonValue::String);
    const auto *description = member(*document, "description", JsonValue::String);
    if (!title || !link || !description)
        return std::nullopt;
    return RSSSettings{textOf(title), textOf(link), textOf(description)};
}
