// The import takes time in proportion to the file, whatever is in it.
#include "rss/RSSFeedImporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <limits>
#include <ostream>
#include <string>

/// AddressSanitizer would look over the whole rest of a file at each search in it. The name is
/// its own.
// NOLINTNEXTLINE(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" const char *__asan_default_options()
{
    return "intercept_memmem=0";
}

namespace {

constexpr std::size_t million = 1'000'000;

/// An import may take this many times longer a byte than a good feed's does. A search that begins
/// anew at each tag takes thousands of times longer already for a file of a million bytes.
constexpr double mostTimesAGoodFeed = 4;

std::string repeated(const std::string &piece, std::size_t bytes)
{
    std::string text;
    text.reserve(bytes + piece.size());
    while (text.size() < bytes)
        text += piece;
    return text;
}

std::string goodFeed(std::size_t bytes)
{
    const std::string words = repeated("Some words &lt;b&gt;of&lt;/b&gt; a description. ", 600);
    return "<rss><channel>"
        + repeated("<item>\n<title>A title like others</title>\n"
                   "<link>https://example.com/2026/a-title-like-others</link>\n"
                   "<pubDate>Mon, 5 Jan 2026 09:03:07 +0000</pubDate>\n<description>"
                       + words + "</description>\n</item>\n",
                   bytes)
        + "</channel></rss>";
}

/// What this thread has had of a processor so far, in seconds: others' work does not count.
double processorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

double timePerByte(const std::string &feed)
{
    const double start = processorTime();
    const auto posts = postsOfFeed(feed, [] { return Date(); });
    const double taken = processorTime() - start;
    EXPECT_TRUE(posts.has_value());
    return taken / double(feed.size());
}

/// How many times longer a byte takes than one of a good feed. The two take turns, and the best
/// run of each counts: whatever else the machine does only ever adds.
double timesAGoodFeed(const std::string &feed, int runs)
{
    const std::string good = goodFeed(feed.size());
    double bestOfGood = std::numeric_limits<double>::infinity();
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < runs; ++run) {
        bestOfGood = std::min(bestOfGood, timePerByte(good));
        best = std::min(best, timePerByte(feed));
    }
    return best / bestOfGood;
}

/// A file that a search could stumble over: a beginning, what is repeated, and an end.
struct Trap
{
    const char *name;
    const char *begin;
    const char *piece;
    const char *end;
    qsizetype posts;

    std::string feed(std::size_t bytes) const { return begin + repeated(piece, bytes) + end; }

    friend std::ostream &operator<<(std::ostream &out, const Trap &trap)
    {
        return out << trap.name;
    }
};

} // namespace

class ImportTime : public testing::TestWithParam<Trap>
{
};

TEST_P(ImportTime, isLinear)
{
    const Trap &trap = GetParam();
    // A small file first: one that is not linear fails here, and not after a day.
    ASSERT_LT(timesAGoodFeed(trap.feed(million), 5), mostTimesAGoodFeed);
    EXPECT_LT(timesAGoodFeed(trap.feed(50 * million), 2), mostTimesAGoodFeed);
}

TEST_P(ImportTime, isForTheRightPosts)
{
    const auto posts = postsOfFeed(GetParam().feed(1000), [] { return Date(); });
    EXPECT_EQ(posts.value().size(), GetParam().posts);
}

TEST(ImportTimeOfAGoodFeed, isForManyPosts)
{
    const auto posts = postsOfFeed(goodFeed(million), [] { return Date(); });
    EXPECT_GT(posts.value().size(), 1000);
    EXPECT_FALSE(posts->constLast().description.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Files, ImportTime,
    testing::Values(Trap{"items without end", "", "<item>", "", 0},
                    Trap{"items and elements without end", "",
                         "<item><title><link><description><pubDate>", "", 0},
                    Trap{"one item of titles without end", "<item>", "<title>", "</item>", 1},
                    Trap{"one item of all elements without end", "<item>",
                         "<title><description><link>", "</item>", 1},
                    Trap{"one item of end tags", "<item>", "</title></description></link>",
                         "</item>", 1},
                    Trap{"ends of items", "", "</item>", "<item>", 0},
                    Trap{"items in one item", "", "<item><title>", "</title></item>", 1},
                    Trap{"tags that never close", "<item>", "</item </title ", "", 0},
                    Trap{"beginnings of tags", "<item><title>", "<", "", 0},
                    Trap{"beginnings of tags in an item", "<item><title>", "<", "</item>", 1},
                    Trap{"almost tags in an item", "<item>", "<titl", "</item>", 1},
                    Trap{"characters of four bytes", "<item>", "\xF0\x9F\x98\x80", "", 0}));
