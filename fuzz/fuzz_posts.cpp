// posts.json: any bytes are read as another strict reader reads them, and what they hold is
// written and read again to the same bits.
#include "fuzz/Check.h"
#include "fuzz/PlainDocuments.h"
#include "model/RecordsJson.h"
#include "tests/references/RecordsByRapidJson.h"
#include "tests/support/Posts.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArray json(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto posts = decodePosts(json);
    const auto others = postsByRapidJson(json);
    check(posts.has_value() == others.has_value(), "both readers take the document, or none");
    if (!posts)
        return 0;
    check(identical(*posts, *others), "both readers find the same posts");

    const auto written = encodePosts(*posts);
    check(written && written == plainPosts(*posts),
          "the posts are written as the plain writer does");
    const auto again = decodePosts(*written);
    check(again && identical(*again, *posts), "what is written is read to the same bits");
    return 0;
}
