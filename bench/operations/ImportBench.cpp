// Reading a feed's items into records, and the floor beneath it: decoding the same UTF-8 once.
#include "bench/SampleBlog.h"
#include "bench/operations/Operation.h"
#include "rss/RSSFeedImporter.h"
#include "rss/RSSFeedWriter.h"

namespace {

QByteArray sampleFeed(const benchmark::State &state)
{
    return feedOfPosts(sampleChannel(), sampleBlog(state.range(0)), {"en_US", "Europe/Berlin"});
}

void import(benchmark::State &state)
{
    const QByteArray feed = sampleFeed(state);
    measure(state, [&] { return postsOfFeed(feed, &Date::now); });
}

void importFloor(benchmark::State &state)
{
    const QByteArray feed = sampleFeed(state);
    measure(state, [&] { return QString::fromUtf8(feed); });
}

} // namespace

BENCHMARK(import)->Apply(atAllSizes);
BENCHMARK(importFloor)->Apply(atAllSizes);
