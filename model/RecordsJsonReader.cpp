#include "model/RecordsJson.h"
#include "model/Utf8.h"

#include <simdjson.h>

#include <algorithm>
#include <cctype>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string_view>
#include <utility>

// The parser validates what it is asked for and no more, so every value is visited, those under
// keys that the records do not have too. It reports errors by throwing; they end at the two
// functions that the program calls.

namespace {

using simdjson::ondemand::json_type;
using simdjson::ondemand::object;
using simdjson::ondemand::value;

/// How deeply arrays and objects may be nested, the document's own included.
constexpr int deepestNesting = 512;

/// The depth of a value that is a post's field, and of one that is the settings'.
constexpr int postFieldDepth = 3;
constexpr int settingsFieldDepth = 2;

[[noreturn]] void failDecoding(simdjson::error_code error)
{
    throw simdjson::simdjson_error(error);
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// The text of a number, checked by RFC 8259 section 6 but not read: it may fit no number type.
std::string_view numberText(value json)
{
    std::string_view text = json.raw_json_token();
    text = text.substr(0, text.find_last_not_of(" \t\r\n") + 1);

    auto next = text.begin();
    const auto skipOne = [&](std::string_view characters) {
        const bool found = next != text.end() && characters.find(*next) != std::string_view::npos;
        next += found;
        return found;
    };
    const auto skipDigits = [&] {
        const auto first = next;
        next = std::find_if_not(next, text.end(), isDigit);
        return next != first;
    };
    skipOne("-");
    bool valid = skipOne("0") || skipDigits();
    if (skipOne("."))
        valid = skipDigits() && valid;
    if (skipOne("eE")) {
        skipOne("+-");
        valid = skipDigits() && valid;
    }
    if (!valid || next != text.end())
        failDecoding(simdjson::NUMBER_ERROR);
    return text;
}

/// The double nearest to a checked number: a zero if it is too small for one, an infinity if it is
/// too large. The parser's own reading is wrong by magnitudes for more than 19 digits, and the
/// standard library's, without a locale of its own, looks for the user's decimal point.
double nearestDouble(std::string_view number)
{
    static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
    // In a document some other character always ends a number.
    return strtod_l(number.data(), nullptr, plain);
}

void checkDepth(int depth)
{
    if (depth > deepestNesting)
        failDecoding(simdjson::DEPTH_ERROR);
}

/// Reads past a value, checking all of it.
void skip(value json, int depth)
{
    switch (json.type()) {
    case json_type::array:
        checkDepth(depth);
        for (auto element : json.get_array())
            skip(element.value(), depth + 1);
        return;
    case json_type::object:
        checkDepth(depth);
        for (auto field : json.get_object()) {
            field.unescaped_key().value();
            skip(field.value(), depth + 1);
        }
        return;
    case json_type::string:
        json.get_string().value();
        return;
    case json_type::number:
        numberText(json);
        return;
    case json_type::boolean:
        json.get_bool().value();
        return;
    case json_type::null:
        if (!json.is_null())
            failDecoding(simdjson::N_ATOM_ERROR);
        return;
    }
}

// Each reader below gives nothing for a value of another type. That alone is no error yet: the
// key may be repeated, and then its last value counts.

std::optional<QString> readText(value json, int depth)
{
    if (json.type() == json_type::string)
        return textFromUtf8(std::string_view(json.get_string()));
    skip(json, depth);
    return std::nullopt;
}

/// A UUID in the textual form of RFC 4122 and nothing else: QUuid takes braces and trailing text.
std::optional<QUuid> readUuid(value json)
{
    const auto text = readText(json, postFieldDepth);
    constexpr qsizetype length = 36;
    if (!text || text->size() != length)
        return std::nullopt;
    for (qsizetype i = 0; i < length; ++i) {
        const char16_t unit = text->at(i).unicode();
        const bool hyphenHere = i == 8 || i == 13 || i == 18 || i == 23;
        if (hyphenHere ? unit != u'-' : unit > 0x7f || !std::isxdigit(unit))
            return std::nullopt;
    }
    return QUuid::fromString(*text);
}

std::optional<Date> readDate(value json)
{
    if (json.type() != json_type::number) {
        skip(json, postFieldDepth);
        return std::nullopt;
    }
    const double seconds = nearestDouble(numberText(json));
    if (!std::isfinite(seconds))
        return std::nullopt;
    return Date(seconds);
}

BlogPost readPost(object json)
{
    std::optional<QUuid> id;
    std::optional<QString> title;
    std::optional<QString> content;
    std::optional<Date> date;
    std::optional<QString> description;
    std::optional<QString> permalink;
    for (auto field : json) {
        const std::string_view key = field.unescaped_key();
        if (key == "id")
            id = readUuid(field.value());
        else if (key == "title")
            title = readText(field.value(), postFieldDepth);
        else if (key == "content")
            content = readText(field.value(), postFieldDepth);
        else if (key == "date")
            date = readDate(field.value());
        else if (key == "description")
            description = readText(field.value(), postFieldDepth);
        else if (key == "permalink")
            permalink = readText(field.value(), postFieldDepth);
        else
            skip(field.value(), postFieldDepth);
    }
    if (!id || !title || !content || !date || !description || !permalink)
        failDecoding(simdjson::NO_SUCH_FIELD);
    return {.id = *id,
            .title = *std::move(title),
            .content = *std::move(content),
            .date = *date,
            .description = *std::move(description),
            .permalink = *std::move(permalink)};
}

RSSSettings readSettings(object json)
{
    std::optional<QString> title;
    std::optional<QString> link;
    std::optional<QString> description;
    for (auto field : json) {
        const std::string_view key = field.unescaped_key();
        if (key == "title")
            title = readText(field.value(), settingsFieldDepth);
        else if (key == "link")
            link = readText(field.value(), settingsFieldDepth);
        else if (key == "description")
            description = readText(field.value(), settingsFieldDepth);
        else
            skip(field.value(), settingsFieldDepth);
    }
    if (!title || !link || !description)
        failDecoding(simdjson::NO_SUCH_FIELD);
    return {*std::move(title), *std::move(link), *std::move(description)};
}

/// Parses the bytes and hands the document to `read`; nothing if either finds an error, or if
/// anything follows the document.
template <typename Read>
auto decode(QByteArray json, Read read)
    -> std::optional<decltype(read(std::declval<simdjson::ondemand::document &>()))>
{
    // The parser reads a little beyond the end: zeros, in no more memory than they take.
    const auto size = std::size_t(json.size());
    json.reserve(json.size() + qsizetype(simdjson::SIMDJSON_PADDING));
    json.append(qsizetype(simdjson::SIMDJSON_PADDING), '\0');
    std::size_t start = 0;
    if (json.startsWith(byteOrderMark))
        start = std::size_t(byteOrderMark.size());
    try {
        simdjson::ondemand::parser parser;
        simdjson::ondemand::document document = parser.iterate(
            json.constData() + start, size - start, std::size_t(json.size()) - start);
        auto records = read(document);
        if (document.current_location().error() != simdjson::OUT_OF_BOUNDS)
            return std::nullopt;
        return records;
    } catch (const simdjson::simdjson_error &) {
        return std::nullopt;
    }
}

} // namespace

std::optional<BlogPosts> decodePosts(QByteArray json)
{
    return decode(std::move(json), [](simdjson::ondemand::document &document) {
        BlogPosts posts;
        for (auto element : document.get_array())
            posts.append(readPost(element.get_object()));
        return posts;
    });
}

std::optional<RSSSettings> decodeSettings(QByteArray json)
{
    return decode(std::move(json), [](simdjson::ondemand::document &document) {
        return readSettings(document.get_object());
    });
}
