// Loading the posts, and the floor beneath it: reading the file and decoding its UTF-8 once.
#include "bench/SampleBlog.h"
#include "bench/operations/Operation.h"
#include "model/BlogViewModel.h"
#include "model/Files.h"
#include "model/RecordsJson.h"
#include "tests/support/TemporaryHome.h"

namespace {

void load(benchmark::State &state)
{
    const TemporaryHome home;
    home.write(QStringLiteral("posts.json"), *encodePosts(sampleBlog(state.range(0))));
    const auto store = BlogViewModel::create();
    if (store->posts().size() != state.range(0)) {
        state.SkipWithError("the posts were not loaded");
        return;
    }
    for ([[maybe_unused]] auto iteration : state) {
        store->setPosts({}); // a start loads into an empty store
        const double start = threadSeconds();
        store->loadPosts();
        state.SetIterationTime(threadSeconds() - start);
    }
}

void loadFloor(benchmark::State &state)
{
    const TemporaryHome home;
    home.write(QStringLiteral("posts.json"), *encodePosts(sampleBlog(state.range(0))));
    const QString path = home.path(QStringLiteral("posts.json"));
    measure(state, [&] { return QString::fromUtf8(*readFile(path)); });
}

} // namespace

BENCHMARK(load)->Apply(atAllSizes);
BENCHMARK(loadFloor)->Apply(atAllSizes);
