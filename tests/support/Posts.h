#pragma once

#include "model/BlogPost.h"

#include <QStringList>

#include <algorithm>
#include <bit>
#include <cstdint>

// Small makers of posts, and the comparison that a post's own equality is too kind for.

/// A post with a fresh id, every other text derived from its title.
inline BlogPost postTitled(const QString &title, Date date = Date(788918400))
{
    return {.title = title,
            .content = QStringLiteral("Content of ") + title,
            .date = date,
            .description = QStringLiteral("Description of ") + title,
            .permalink = QStringLiteral("https://example.com/") + title};
}

inline QStringList titlesOf(const BlogPosts &posts)
{
    QStringList titles;
    for (const BlogPost &post : posts)
        titles.append(post.title);
    return titles;
}

/// Equal to the bit: another Unicode form is another text, -0.0 is not 0.0, NaN equals itself.
inline bool identical(const BlogPost &left, const BlogPost &right)
{
    const auto bits = [](const BlogPost &post) {
        return std::bit_cast<std::uint64_t>(post.date.secondsSinceReferenceDate());
    };
    return left.id == right.id && left.title == right.title && left.content == right.content
        && bits(left) == bits(right) && left.description == right.description
        && left.permalink == right.permalink;
}

inline bool identical(const BlogPosts &left, const BlogPosts &right)
{
    const auto same = [](const BlogPost &one, const BlogPost &other) {
        return identical(one, other);
    };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), same);
}
