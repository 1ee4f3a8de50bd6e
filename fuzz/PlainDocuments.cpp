#include "fuzz/PlainDocuments.h"

#include "fuzz/Check.h"
#include "tests/references/TextByIcu.h"

#include <unicode/smpdtfmt.h>

#include <algorithm>
#include <array>
#include <cfenv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace {

QByteArray jsonString(const QString &text)
{
    QByteArray json;
    for (const char byte : utf8ByIcu(text)) {
        switch (byte) {
        case '"':
        case '\\':
        case '/':
            json += '\\';
            json += byte;
            break;
        case '\b':
            json += "\\b";
            break;
        case '\f':
            json += "\\f";
            break;
        case '\n':
            json += "\\n";
            break;
        case '\r':
            json += "\\r";
            break;
        case '\t':
            json += "\\t";
            break;
        default:
            if (static_cast<unsigned char>(byte) < 0x20)
                json += "\\u00" + QByteArray(1, byte).toHex();
            else
                json += byte;
        }
    }
    return '"' + json + '"';
}

/// The number with so many digits and an exponent, rounded one way or another.
std::string scientific(double number, int digits, int rounding)
{
    std::array<char, 40> text{};
    std::fesetround(rounding);
    std::snprintf(text.data(), text.size(), "%.*e", digits - 1, number);
    std::fesetround(FE_TONEAREST);
    return text.data();
}

/// The fewest digits that read back to the same bits, with an exponent. At a power of two the
/// nearest number of so many digits may be another double's, and one beside it this one's.
std::string shortest(double number)
{
    for (int digits = 1;; ++digits) {
        for (const int rounding : {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD}) {
            const std::string text = scientific(number, digits, rounding);
            if (std::strtod(text.c_str(), nullptr) == number)
                return text;
        }
    }
}

/// Plain digits from 0.0001 up to 16 of them, else the exponent.
QByteArray jsonNumber(double number)
{
    const std::string text = shortest(number);
    const std::size_t e = text.find('e');
    const int exponent = std::atoi(text.c_str() + e + 1);
    if (number != 0 && (exponent < -4 || exponent > 15))
        return QByteArray::fromStdString(text);

    const bool negative = text.front() == '-';
    QByteArray digits = QByteArray::fromStdString(text.substr(negative, e - negative));
    digits.replace(".", "");
    QByteArray json;
    if (exponent < 0) {
        json = "0." + QByteArray(-exponent - 1, '0') + digits;
    } else {
        json = digits.leftJustified(exponent + 1, '0');
        if (json.size() > exponent + 1)
            json.insert(exponent + 1, '.');
    }
    return negative ? '-' + json : json;
}

/// The second in which a date lies, in Unix time: in the calendar's range, which ICU does not keep
/// to by itself. NaN is the first second of 2001.
double secondOf(Date date)
{
    constexpr double secondsFrom1970To2001 = 978307200;
    const double seconds = date.secondsSinceReferenceDate();
    if (std::isnan(seconds))
        return secondsFrom1970To2001;
    return std::clamp(std::floor(seconds) + secondsFrom1970To2001, -184303902528000.0,
                      183882168921600.0);
}

QByteArray feedDate(Date date)
{
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<icu::SimpleDateFormat> format = [&status] {
        auto made = std::make_unique<icu::SimpleDateFormat>(
            icu::UnicodeString("E, d MMM yyyy HH:mm:ss Z"), icu::Locale("en_US_POSIX"), status);
        made->setTimeZone(*icu::TimeZone::getGMT());
        return made;
    }();
    check(U_SUCCESS(status), "ICU formats dates");
    icu::UnicodeString text;
    std::string utf8;
    format->format(secondOf(date) * 1000, text).toUTF8String(utf8);
    return QByteArray::fromStdString(utf8);
}

QString escaped(QString text)
{
    return text.replace(u'&', u"&amp;"_s).replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}

QByteArray feedItem(const BlogPost &post)
{
    return "<item>\n  <title>" + utf8ByIcu(post.title) + "</title>\n  <link>"
        + utf8ByIcu(post.permalink) + "</link>\n  <pubDate>" + feedDate(post.date)
        + "</pubDate>\n  <description>" + utf8ByIcu(escaped(post.description))
        + "</description>\n</item>";
}

} // namespace

std::optional<QByteArray> plainPosts(const BlogPosts &posts)
{
    QByteArrayList objects;
    for (const BlogPost &post : posts) {
        const double seconds = post.date.secondsSinceReferenceDate();
        if (!std::isfinite(seconds))
            return std::nullopt;
        const QByteArray id = post.id.toRfc4122().toHex().toUpper();
        objects += R"({"id":")" + id.mid(0, 8) + '-' + id.mid(8, 4) + '-' + id.mid(12, 4) + '-'
            + id.mid(16, 4) + '-' + id.mid(20) + R"(","title":)" + jsonString(post.title)
            + R"(,"content":)" + jsonString(post.content) + R"(,"date":)" + jsonNumber(seconds)
            + R"(,"description":)" + jsonString(post.description) + R"(,"permalink":)"
            + jsonString(post.permalink) + '}';
    }
    return '[' + objects.join(',') + ']';
}

QByteArray plainSettings(const RSSSettings &settings)
{
    return R"({"title":)" + jsonString(settings.title) + R"(,"link":)" + jsonString(settings.link)
        + R"(,"description":)" + jsonString(settings.description) + '}';
}

QByteArray plainFeed(const RSSSettings &channel, const BlogPosts &posts)
{
    QByteArrayList items;
    for (const BlogPost &post : posts)
        items += feedItem(post);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<rss version=\"2.0\">\n  <channel>\n"
           "    <title>"
        + utf8ByIcu(channel.title) + "</title>\n    <link>" + utf8ByIcu(channel.link)
        + "</link>\n    <description>" + utf8ByIcu(channel.description) + "</description>\n    "
        + items.join('\n') + "\n  </channel>\n</rss>";
}
