#include "rss/RSSFeedImporter.h"

#include "model/Utf8.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

/// A piece of the file, and where the search goes on after it.
struct Element
{
    std::string_view text;
    std::size_t end;
};

/// The first `tag` at or after `from`. By memmem, which is quick on any text: the search of
/// std::string_view is twenty times slower on one of nothing but "<".
std::size_t findTag(std::string_view text, std::string_view tag, std::size_t from)
{
    if (text.size() - from < tag.size())
        return std::string_view::npos;
    const void *found = memmem(text.data() + from, text.size() - from, tag.data(), tag.size());
    if (!found)
        return std::string_view::npos;
    return std::size_t(static_cast<const char *>(found) - text.data());
}

/// What stands between the first `startTag` at or after `from` and the first `endTag` behind it.
std::optional<Element> findElement(std::string_view text, std::string_view startTag,
                                   std::string_view endTag, std::size_t from = 0)
{
    const std::size_t start = findTag(text, startTag, from);
    if (start == std::string_view::npos)
        return std::nullopt;
    const std::size_t begin = start + startTag.size();
    // Without an end tag behind this start tag there is none behind a later one either.
    const std::size_t end = findTag(text, endTag, begin);
    if (end == std::string_view::npos)
        return std::nullopt;
    return Element{text.substr(begin, end - begin), end + endTag.size()};
}

QString extract(std::string_view item, std::string_view startTag, std::string_view endTag)
{
    const auto element = findElement(item, startTag, endTag);
    return element ? textFromUtf8(element->text) : QString();
}

BlogPost postOfItem(std::string_view item, Date date)
{
    const QString description = extract(item, "<description>", "</description>");
    return {
        .title = extract(item, "<title>", "</title>"),
        .content = description,
        .date = date,
        .description = description,
        .permalink = extract(item, "<link>", "</link>"),
    };
}

Date laterOf(Date left, Date right)
{
    return Date(std::max(left.secondsSinceReferenceDate(), right.secondsSinceReferenceDate()));
}

} // namespace

std::optional<BlogPosts> postsOfFeed(QByteArrayView feed, const std::function<Date()> &now)
{
    if (!isUtf8(feed))
        return std::nullopt;
    const std::string_view text(feed.data(), std::size_t(feed.size()));

    BlogPosts posts;
    auto item = findElement(text, "<item>", "</item>");
    while (item) {
        const Date date = posts.isEmpty() ? now() : laterOf(now(), posts.constLast().date);
        posts.append(postOfItem(item->text, date));
        item = findElement(text, "<item>", "</item>", item->end);
    }
    return posts;
}
