// Writes a blog of so many posts to standard output, as posts.json has it.
//
//   tavlo_sample_posts POSTS
#include "bench/SampleBlog.h"
#include "model/RecordsJson.h"

#include <cstdio>

int main(int argc, char **argv)
{
    const qsizetype count = argc == 2 ? QByteArray(argv[1]).toLongLong() : -1;
    if (count < 0) {
        std::fputs("usage: tavlo_sample_posts POSTS\n", stderr);
        return 2;
    }
    const QByteArray json = *encodePosts(sampleBlog(count));
    const std::size_t written = std::fwrite(json.constData(), 1, std::size_t(json.size()), stdout);
    return written == std::size_t(json.size()) && std::fflush(stdout) == 0 ? 0 : 1;
}
