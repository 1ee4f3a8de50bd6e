// Comparing the list that was shown with the store's new one after one change, and the floor
// beneath it: one pass over the ids of both.
#include "bench/SampleBlog.h"
#include "bench/operations/Operation.h"
#include "ui/ListDifference.h"

#include <algorithm>

namespace {

BlogPosts withOneInserted(BlogPosts posts)
{
    BlogPost another = posts.first();
    another.id = randomUuid();
    posts.insert(posts.size() / 2, another);
    return posts;
}

BlogPosts withOneChanged(BlogPosts posts)
{
    posts[posts.size() / 2].title += u'!';
    return posts;
}

BlogPosts withOneRemoved(BlogPosts posts)
{
    posts.removeAt(posts.size() / 2);
    return posts;
}

template <BlogPosts change(BlogPosts)>
void list(benchmark::State &state)
{
    const BlogPosts before = sampleBlog(state.range(0));
    const BlogPosts after = change(before);
    if (listDifference(before, after).size() != 1) {
        state.SkipWithError("one change is to be one step");
        return;
    }
    measure(state, [&] { return listDifference(before, after); });
}

void listFloor(benchmark::State &state)
{
    const BlogPosts before = sampleBlog(state.range(0));
    BlogPosts after = before;
    after.detach();
    const auto sameId = [](const BlogPost &left, const BlogPost &right) {
        return left.id == right.id;
    };
    measure(state, [&] {
        return std::equal(before.cbegin(), before.cend(), after.cbegin(), after.cend(), sameId);
    });
}

} // namespace

BENCHMARK(list<withOneInserted>)->Name("listInsertion")->Apply(atAllSizes);
BENCHMARK(list<withOneChanged>)->Name("listChange")->Apply(atAllSizes);
BENCHMARK(list<withOneRemoved>)->Name("listRemoval")->Apply(atAllSizes);
BENCHMARK(listFloor)->Apply(atAllSizes);
