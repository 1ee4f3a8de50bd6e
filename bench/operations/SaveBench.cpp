// Saving the posts, and the floor beneath it: copying the same bytes and writing them to a file.
#include "bench/SampleBlog.h"
#include "bench/operations/Operation.h"
#include "model/BlogViewModel.h"
#include "model/Files.h"
#include "model/RecordsJson.h"
#include "tests/support/TemporaryHome.h"

namespace {

void save(benchmark::State &state)
{
    const TemporaryHome home;
    const auto store = BlogViewModel::create();
    store->setPosts(sampleBlog(state.range(0)));
    measure(state, [&] {
        store->savePosts();
        return true;
    });
    if (home.read(QStringLiteral("posts.json")) != encodePosts(store->posts()))
        state.SkipWithError("the posts were not saved");
}

void saveFloor(benchmark::State &state)
{
    const TemporaryHome home;
    const QByteArray json = *encodePosts(sampleBlog(state.range(0)));
    const QString path = home.path(QStringLiteral("posts.json"));
    measure(state, [&] {
        const QByteArray copy(json.constData(), json.size());
        return rewriteFile(path, copy);
    });
}

} // namespace

BENCHMARK(save)->Apply(atAllSizes);
BENCHMARK(saveFloor)->Apply(atAllSizes);
