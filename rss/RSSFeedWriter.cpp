#include "rss/RSSFeedWriter.h"

#include "model/Utf8.h"
#include "rss/FeedDateFormatter.h"

#include <string_view>
#include <utility>

namespace {

constexpr Escapes descriptionEscapes = [] {
    Escapes escapes;
    escapes.replace('&', "&amp;");
    escapes.replace('<', "&lt;");
    escapes.replace('>', "&gt;");
    return escapes;
}();

void appendItem(Utf8Document &feed, const BlogPost &post, FeedDateFormatter &dates)
{
    feed.append("<item>\n  <title>");
    feed.appendText(post.title);
    feed.append("</title>\n  <link>");
    feed.appendText(post.permalink);
    feed.append("</link>\n  <pubDate>");
    feed.append(dates.format(post.date));
    feed.append("</pubDate>\n  <description>");
    feed.appendEscaped(post.description, descriptionEscapes);
    feed.append("</description>\n</item>");
}

} // namespace

QByteArray feedOfPosts(const RSSSettings &channel, const BlogPosts &posts, const DateRegion &region)
{
    FeedDateFormatter dates(region);
    Utf8Document feed;
    feed.append("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<rss version=\"2.0\">\n"
                "  <channel>\n    <title>");
    feed.appendText(channel.title);
    feed.append("</title>\n    <link>");
    feed.appendText(channel.link);
    feed.append("</link>\n    <description>");
    feed.appendText(channel.description);
    feed.append("</description>\n    ");
    std::string_view separator;
    for (const BlogPost &post : posts) {
        feed.append(std::exchange(separator, "\n"));
        appendItem(feed, post, dates);
    }
    feed.append("\n  </channel>\n</rss>");
    return feed.take();
}
