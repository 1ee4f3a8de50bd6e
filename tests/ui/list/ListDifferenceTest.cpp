#include "ui/ListDifference.h"

#include "Lists.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <limits>
#include <map>
#include <vector>

namespace {

using Kind = ListStep::Kind;
using Steps = QList<ListStep>;

/// A row on screen: what it shows, and since when it has been there.
struct Row
{
    BlogPost post;
    qsizetype oldPlace = -1; ///< in the old list, or -1 for a new row
};

bool sameBits(const BlogPost &left, const BlogPost &right)
{
    return left.id == right.id && left.title == right.title && left.content == right.content
        && left.description == right.description && left.permalink == right.permalink
        && left.date == right.date;
}

/// The rows after the steps. A row takes a post over only where a step puts it in or updates it.
std::vector<Row> rowsAfter(const BlogPosts &before, const BlogPosts &after, const Steps &steps)
{
    std::vector<Row> rows;
    for (qsizetype place = 0; place < before.size(); ++place)
        rows.push_back({.post = before[place], .oldPlace = place});
    for (const ListStep &step : steps) {
        const auto first = rows.begin() + step.first;
        switch (step.kind) {
        case Kind::Remove:
            rows.erase(first, first + step.count);
            break;
        case Kind::Insert:
            rows.insert(first, static_cast<size_t>(step.count), Row{});
            break;
        case Kind::Update:
            break;
        }
        if (step.kind == Kind::Remove)
            continue;
        // The back of the list is the back of the new one.
        const auto size = static_cast<qsizetype>(rows.size());
        for (qsizetype row = step.first; row < step.first + step.count; ++row)
            rows[static_cast<size_t>(row)].post = after[after.size() - (size - row)];
    }
    return rows;
}

void expectToLeadTo(const BlogPosts &before, const BlogPosts &after, const Steps &steps)
{
    const std::vector<Row> rows = rowsAfter(before, after, steps);
    ASSERT_EQ(static_cast<qsizetype>(rows.size()), after.size());
    qsizetype lastPlace = -1;
    for (qsizetype row = 0; row < after.size(); ++row) {
        const Row &shown = rows[static_cast<size_t>(row)];
        EXPECT_TRUE(sameBits(shown.post, after[row])) << "row " << row;
        if (shown.oldPlace < 0)
            continue;
        EXPECT_EQ(before[shown.oldPlace].id, after[row].id) << "row " << row;
        EXPECT_GT(shown.oldPlace, lastPlace) << "row " << row;
        lastPlace = shown.oldPlace;
    }
}

void expectSteps(const BlogPosts &before, const BlogPosts &after, const Steps &expected)
{
    const Steps steps = listDifference(before, after);
    EXPECT_EQ(steps, expected);
    expectToLeadTo(before, after, steps);
}

TEST(ListDifference, equalLists_needNoStep)
{
    expectSteps({}, {}, {});
    expectSteps(numberedPosts({1, 2, 3}), numberedPosts({1, 2, 3}), {});
}

TEST(ListDifference, aNewPost_isOneInsertion)
{
    expectSteps({}, numberedPosts({1}), {{Kind::Insert, 0, 1}});
    expectSteps(numberedPosts({1, 2}), numberedPosts({9, 1, 2}), {{Kind::Insert, 0, 1}});
    expectSteps(numberedPosts({1, 2}), numberedPosts({1, 9, 2}), {{Kind::Insert, 1, 1}});
    expectSteps(numberedPosts({1, 2}), numberedPosts({1, 2, 9}), {{Kind::Insert, 2, 1}});
}

TEST(ListDifference, aDeletedPost_isOneRemoval)
{
    expectSteps(numberedPosts({1}), {}, {{Kind::Remove, 0, 1}});
    expectSteps(numberedPosts({1, 2, 3}), numberedPosts({2, 3}), {{Kind::Remove, 0, 1}});
    expectSteps(numberedPosts({1, 2, 3}), numberedPosts({1, 3}), {{Kind::Remove, 1, 1}});
    expectSteps(numberedPosts({1, 2, 3}), numberedPosts({1, 2}), {{Kind::Remove, 2, 1}});
}

TEST(ListDifference, aChangedField_isOneUpdate)
{
    const BlogPosts before = numberedPosts({1, 2, 3});
    const auto changed = [&before](auto change) {
        BlogPosts after = before;
        change(after[1]);
        return after;
    };
    const Steps update{{Kind::Update, 1, 1}};
    expectSteps(before, changed([](BlogPost &post) { post.title = QStringLiteral("x"); }), update);
    expectSteps(before, changed([](BlogPost &post) { post.content = QStringLiteral("x"); }),
                update);
    expectSteps(before, changed([](BlogPost &post) { post.date = Date(1); }), update);
    expectSteps(before, changed([](BlogPost &post) { post.description = QStringLiteral("x"); }),
                update);
    expectSteps(before, changed([](BlogPost &post) { post.permalink = QStringLiteral("x"); }),
                update);
}

TEST(ListDifference, textsThatAreOnlyCanonicallyEqual_areAnUpdate)
{
    const BlogPosts before{numbered(1, QStringLiteral("\u00e9"))};
    const BlogPosts after{numbered(1, QStringLiteral("e\u0301"))};
    ASSERT_EQ(before, after);
    EXPECT_EQ(listDifference(before, after), (Steps{{Kind::Update, 0, 1}}));
}

TEST(ListDifference, datesAreComparedByTheirBits)
{
    BlogPosts before = numberedPosts({1});
    before[0].date = Date(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(listDifference(before, BlogPosts{before[0]}), Steps{});

    before[0].date = Date(0.0);
    BlogPosts after = before;
    after[0].date = Date(-0.0);
    EXPECT_EQ(listDifference(before, after), (Steps{{Kind::Update, 0, 1}}));
}

TEST(ListDifference, anImport_isOneRemovalAndOneInsertion)
{
    expectSteps(numberedPosts({1, 2, 3}), numberedPosts({7, 8}),
                {{Kind::Remove, 0, 3}, {Kind::Insert, 0, 2}});
}

TEST(ListDifference, aMovedPost_isRemovedAndInserted)
{
    expectSteps(numberedPosts({1, 2, 3, 4}), numberedPosts({4, 1, 2, 3}),
                {{Kind::Remove, 3, 1}, {Kind::Insert, 0, 1}});
    expectSteps(numberedPosts({1, 2, 3, 4}), numberedPosts({2, 3, 4, 1}),
                {{Kind::Insert, 4, 1}, {Kind::Remove, 0, 1}});
}

TEST(ListDifference, neighboursThatChanged_areOneUpdate)
{
    const BlogPosts before = numberedPosts({1, 2, 3, 4});
    BlogPosts after = before;
    after[1].title = QStringLiteral("x");
    after[2].title = QStringLiteral("y");
    expectSteps(before, after, {{Kind::Update, 1, 2}});
}

TEST(ListDifference, aNewPostUnderAnIdThatIsThere_isAnInsertionBeforeIt)
{
    const BlogPosts one{numbered(1, QStringLiteral("old")), numbered(2)};
    BlogPosts both = one;
    both.prepend(numbered(1, QStringLiteral("new")));
    expectSteps(one, both, {{Kind::Insert, 0, 1}});
    expectSteps(both, one, {{Kind::Remove, 0, 1}});
}

TEST(ListDifference, ofPostsThatShareAnId_theFirstIsUpdatedByItself)
{
    const BlogPosts before{numbered(1, QStringLiteral("a")), numbered(1, QStringLiteral("b"))};
    BlogPosts after = before;
    after[0].title = QStringLiteral("c");
    expectSteps(before, after, {{Kind::Update, 0, 1}});
}

TEST(ListDifference, moreChangesThanStepsAreGiven_areOneRemovalAndOneInsertion)
{
    const BlogPosts before = manyPosts(2 * mostListSteps + 10);
    BlogPosts after = before;
    for (qsizetype row = 1; row < after.size() - 1; row += 2)
        after[row].title = QStringLiteral("changed");
    const Steps steps = listDifference(before, after);
    EXPECT_EQ(steps.size(), 2);
    EXPECT_EQ(steps[0].kind, Kind::Remove);
    EXPECT_EQ(steps[1].kind, Kind::Insert);
    expectToLeadTo(before, after, steps);
}

/// Posts with few ids and few texts, so that they meet in every way.
rc::Gen<BlogPosts> fewPosts()
{
    const auto post = rc::gen::apply(
        [](uint number, int text) { return numbered(number, QString::number(text)); },
        rc::gen::inRange<uint>(0, 8), rc::gen::inRange(0, 3));
    return rc::gen::map(
        rc::gen::container<std::vector<BlogPost>>(post),
        [](const std::vector<BlogPost> &posts) { return BlogPosts(posts.begin(), posts.end()); });
}

std::map<QUuid, qsizetype> occurrences(const BlogPosts &posts)
{
    std::map<QUuid, qsizetype> counts;
    for (const BlogPost &post : posts)
        ++counts[post.id];
    return counts;
}

RC_GTEST_PROP(ListDifferenceProperty, theStepsLeadFromAnyListToAnyOther, ())
{
    const BlogPosts before = *fewPosts();
    const BlogPosts after = *fewPosts();
    expectToLeadTo(before, after, listDifference(before, after));
    RC_ASSERT(!testing::Test::HasFailure());
}

RC_GTEST_PROP(ListDifferenceProperty, withoutMoves_everyRowWhosePostStaysKeepsItsPlace, ())
{
    BlogPosts before = *fewPosts();
    BlogPosts after;
    // Each id once, and what stays in its order.
    std::map<QUuid, qsizetype> seen;
    before.removeIf([&seen](const BlogPost &post) { return ++seen[post.id] > 1; });
    uint newNumber = 100;
    for (const BlogPost &post : before) {
        if (*rc::gen::inRange(0, 3) == 0)
            after.append(numbered(newNumber++));
        if (*rc::gen::inRange(0, 3) != 0)
            after.append(post);
    }
    qsizetype stayed = 0;
    for (const Row &row : rowsAfter(before, after, listDifference(before, after)))
        stayed += row.oldPlace >= 0 ? 1 : 0;
    qsizetype common = 0;
    for (const auto &[id, count] : occurrences(after))
        common += occurrences(before).contains(id) ? 1 : 0;
    RC_ASSERT(stayed == common);
}

RC_GTEST_PROP(ListDifferenceProperty, noUpdateNamesARowThatIsTheSame, ())
{
    const BlogPosts before = *fewPosts();
    BlogPosts after = before;
    qsizetype changed = 0;
    for (BlogPost &post : after) {
        if (*rc::gen::inRange(0, 3) == 0) {
            post.title += u'x';
            ++changed;
        }
    }
    qsizetype updated = 0;
    for (const ListStep &step : listDifference(before, after)) {
        RC_ASSERT(step.kind == Kind::Update);
        updated += step.count;
    }
    RC_ASSERT(updated == changed);
}

/// The processor time that this thread has had, in nanoseconds: others do not count.
double threadNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e9 + double(now.tv_nsec);
}

/// The quickest of some runs, in nanoseconds.
template <typename Function>
double nanoseconds(Function function)
{
    double best = std::numeric_limits<double>::infinity();
    for (int run = 0; run < 7; ++run) {
        const double start = threadNanoseconds();
        function();
        best = std::min(best, threadNanoseconds() - start);
    }
    return best;
}

/// How much longer sixteen times the posts take: 16 where the time is linear, 256 where it is
/// quadratic. Caches and a busy machine add to it.
template <typename Change>
double growth(Change change)
{
    const auto time = [&change](qsizetype count) {
        const BlogPosts before = manyPosts(count);
        const BlogPosts after = change(before);
        return nanoseconds([&] { EXPECT_GE(listDifference(before, after).size(), 1); });
    };
    return time(80'000) / time(5'000);
}

TEST(ListDifferenceTime, isLinear)
{
    const double most = 80;
    EXPECT_LT(growth([](BlogPosts posts) {
                  posts.prepend(numbered(1'000'000));
                  return posts;
              }),
              most);
    EXPECT_LT(growth([](const BlogPosts &posts) { return manyPosts(posts.size(), 1'000'000); }),
              most);
    EXPECT_LT(growth([](BlogPosts posts) {
                  std::reverse(posts.begin(), posts.end());
                  return posts;
              }),
              most);
    EXPECT_LT(growth([](BlogPosts posts) {
                  posts.move(0, posts.size() - 1);
                  return posts;
              }),
              most);
}

TEST(ListDifferenceTime, isLinearForPostsThatAllShareOneId)
{
    const auto time = [](qsizetype count) {
        BlogPosts before;
        BlogPosts after;
        for (qsizetype row = 0; row < count; ++row) {
            before.append(numbered(1, QString::number(row)));
            after.append(numbered(row % 2 == 0 ? 1 : 2, QString::number(-row)));
        }
        return nanoseconds([&] { EXPECT_GE(listDifference(before, after).size(), 1); });
    };
    EXPECT_LT(time(80'000) / time(5'000), 80);
}

TEST(ListDifferenceTime, ofOneInsertionAmong100000Posts_isAFewPassesOverTheIds)
{
    const BlogPosts before = manyPosts(100'000);
    BlogPosts after = before;
    after.prepend(numbered(1'000'000));
    const double ids = nanoseconds([&] {
        bool equal = true;
        for (qsizetype row = 0; row < before.size(); ++row)
            equal = before[row].id == after[row + 1].id && equal;
        EXPECT_TRUE(equal);
    });
    const double difference =
        nanoseconds([&] { EXPECT_EQ(listDifference(before, after).size(), 1); });
    std::printf("%.2f passes over the ids\n", difference / ids);
    EXPECT_LT(difference, 6 * ids); // 3 is what a quiet machine shows
}

} // namespace
