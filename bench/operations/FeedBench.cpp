// Writing the feed, and the floor beneath it: joining the document's pieces, made beforehand.
#include "bench/SampleBlog.h"
#include "bench/operations/Operation.h"
#include "rss/FeedDateFormatter.h"
#include "rss/RSSFeedWriter.h"

#include <QByteArrayList>

namespace {

const DateRegion region{"en_US", "Europe/Berlin"};

/// Every piece of the feed in its order: what the document has between two user's texts, and those
/// texts in UTF-8, escaped and formatted.
QByteArrayList piecesOfFeed(const BlogPosts &posts)
{
    FeedDateFormatter dates(region);
    const RSSSettings channel = sampleChannel();
    QByteArrayList pieces{"<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<rss version=\"2.0\">\n"
                          "  <channel>\n    <title>",
                          channel.title.toUtf8(),
                          "</title>\n    <link>",
                          channel.link.toUtf8(),
                          "</link>\n    <description>",
                          channel.description.toUtf8(),
                          "</description>\n    "};
    for (const BlogPost &post : posts) {
        QByteArray description = post.description.toUtf8();
        description.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;");
        pieces +=
            {"<item>\n  <title>",           post.title.toUtf8(),
             "</title>\n  <link>",          post.permalink.toUtf8(),
             "</link>\n  <pubDate>",        QByteArray::fromStdString(dates.format(post.date)),
             "</pubDate>\n  <description>", description,
             "</description>\n</item>\n"};
    }
    if (!posts.isEmpty())
        pieces.last().chop(1);
    pieces += "\n  </channel>\n</rss>";
    return pieces;
}

void feed(benchmark::State &state)
{
    const BlogPosts posts = sampleBlog(state.range(0));
    const RSSSettings channel = sampleChannel();
    measure(state, [&] { return feedOfPosts(channel, posts, region); });
}

void feedFloor(benchmark::State &state)
{
    const BlogPosts posts = sampleBlog(state.range(0));
    const QByteArrayList pieces = piecesOfFeed(posts);
    if (pieces.join() != feedOfPosts(sampleChannel(), posts, region)) {
        state.SkipWithError("the pieces do not make the feed");
        return;
    }
    measure(state, [&] { return pieces.join(); });
}

} // namespace

BENCHMARK(feed)->Apply(atAllSizes);
BENCHMARK(feedFloor)->Apply(atAllSizes);
