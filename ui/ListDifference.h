#pragma once

#include "model/BlogPost.h"

#include <QList>

/// One run of rows that a list loses, gains or shows anew.
struct ListStep
{
    enum class Kind { Remove, Insert, Update };

    Kind kind;
    qsizetype first; ///< the run's first row, counted when the step's turn comes
    qsizetype count;

    friend bool operator==(const ListStep &, const ListStep &) = default;
};

/// The steps that lead from one list of posts to another, the last rows first.
///
/// A row is known by its post's id; of rows that share one, the last of the old list is the last
/// of the new one, since new posts come first. A row that keeps its order stays and, if any bit of
/// its post is new, is updated; one that moved is removed and inserted. Lists that differ in more
/// than `mostListSteps` places get one removal and one insertion for all of them.
///
/// Before each step the list is the front of the old one and the back of the new one: no step
/// needs the list to be copied. The time is linear in the lists' lengths.
QList<ListStep> listDifference(const BlogPosts &before, const BlogPosts &after);

inline constexpr qsizetype mostListSteps = 256;
