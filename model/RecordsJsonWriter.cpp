#include "model/RecordsJson.h"
#include "model/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>
#include <utility>

namespace {

/// RFC 8259 section 7, and the slash.
constexpr Escapes jsonEscapes = [] {
    Escapes escapes;
    constexpr std::string_view controls =
        "\\u0000\\u0001\\u0002\\u0003\\u0004\\u0005\\u0006\\u0007"
        "\\u0008\\u0009\\u000a\\u000b\\u000c\\u000d\\u000e\\u000f"
        "\\u0010\\u0011\\u0012\\u0013\\u0014\\u0015\\u0016\\u0017"
        "\\u0018\\u0019\\u001a\\u001b\\u001c\\u001d\\u001e\\u001f";
    for (std::size_t control = 0; control < 0x20; ++control)
        escapes.replace(char(control), controls.substr(6 * control, 6));
    escapes.replace('\b', "\\b");
    escapes.replace('\f', "\\f");
    escapes.replace('\n', "\\n");
    escapes.replace('\r', "\\r");
    escapes.replace('\t', "\\t");
    escapes.replace('"', "\\\"");
    escapes.replace('\\', "\\\\");
    escapes.replace('/', "\\/");
    return escapes;
}();

void appendString(Utf8Document &json, QStringView text)
{
    json.append("\"");
    json.appendEscaped(text, jsonEscapes);
    json.append("\"");
}

void appendUuid(Utf8Document &json, const QUuid &id)
{
    const QByteArray text = id.toByteArray(QUuid::WithoutBraces).toUpper();
    json.append("\"");
    json.append({text.constData(), std::size_t(text.size())});
    json.append("\"");
}

/// The shortest digits that read back to `number`; an exponent only where plain digits would
/// need many zeros.
void appendNumber(Utf8Document &json, double number)
{
    const double magnitude = std::abs(number);
    const bool plain = number == 0 || (magnitude >= 1e-4 && magnitude < 1e16);
    std::array<char, 32> digits{};
    const std::to_chars_result written =
        std::to_chars(digits.data(), digits.data() + digits.size(), number,
                      plain ? std::chars_format::fixed : std::chars_format::scientific);
    json.append({digits.data(), written.ptr});
}

void appendPost(Utf8Document &json, const BlogPost &post)
{
    json.append(R"({"id":)");
    appendUuid(json, post.id);
    json.append(R"(,"title":)");
    appendString(json, post.title);
    json.append(R"(,"content":)");
    appendString(json, post.content);
    json.append(R"(,"date":)");
    appendNumber(json, post.date.secondsSinceReferenceDate());
    json.append(R"(,"description":)");
    appendString(json, post.description);
    json.append(R"(,"permalink":)");
    appendString(json, post.permalink);
    json.append("}");
}

bool isEncodable(const BlogPost &post)
{
    return std::isfinite(post.date.secondsSinceReferenceDate());
}

} // namespace

std::optional<QByteArray> encodePosts(const BlogPosts &posts)
{
    if (!std::all_of(posts.begin(), posts.end(), isEncodable))
        return std::nullopt;

    Utf8Document json;
    json.append("[");
    std::string_view separator;
    for (const BlogPost &post : posts) {
        json.append(std::exchange(separator, ","));
        appendPost(json, post);
    }
    json.append("]");
    return json.take();
}

QByteArray encodeSettings(const RSSSettings &settings)
{
    Utf8Document json;
    json.append(R"({"title":)");
    appendString(json, settings.title);
    json.append(R"(,"link":)");
    appendString(json, settings.link);
    json.append(R"(,"description":)");
    appendString(json, settings.description);
    json.append("}");
    return json.take();
}
