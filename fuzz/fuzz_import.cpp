// The import: of any bytes, what a regular-expression engine finds in the text that ICU makes of
// them.
#include "fuzz/Check.h"
#include "rss/RSSFeedImporter.h"
#include "tests/references/FeedPatterns.h"
#include "tests/references/TextByIcu.h"

#include <set>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView feed(data, qsizetype(size));
    double clock = 0;
    const auto posts = postsOfFeed(feed, [&clock] { return Date(++clock); });
    const auto text = textByIcu(feed);
    check(posts.has_value() == text.has_value(), "both take the bytes for UTF-8, or none");
    if (!posts)
        return 0;
    // An engine that gives up throws, which ends the process: the limit on the length is to keep it
    // from that.
    check(itemsOf(*posts) == itemsByPatterns(*text), "the patterns find the same items");

    std::set<QUuid> ids;
    double date = 0;
    for (const BlogPost &post : *posts) {
        check(post.content == post.description, "the content is the description");
        check(post.date == Date(++date), "each post reads the clock once");
        check(post.id.version() == QUuid::Random && ids.insert(post.id).second,
              "each post has a random id of its own");
    }
    return 0;
}
