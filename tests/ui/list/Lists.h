#pragma once

#include "model/BlogPost.h"

#include <QString>
#include <QUuid>

/// A post known by a number, with a text of its own.
inline BlogPost numbered(uint number, const QString &title = {})
{
    return {.id = QUuid(number, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0),
            .title = title,
            .content = {},
            .date = {},
            .description = {},
            .permalink = {}};
}

/// Posts with these numbers, in this order.
inline BlogPosts numberedPosts(std::initializer_list<uint> numbers)
{
    BlogPosts posts;
    for (const uint number : numbers)
        posts.append(numbered(number));
    return posts;
}

/// `count` posts with an id each.
inline BlogPosts manyPosts(qsizetype count, uint firstNumber = 0)
{
    BlogPosts posts;
    posts.reserve(count);
    for (qsizetype row = 0; row < count; ++row)
        posts.append(numbered(firstNumber + static_cast<uint>(row), QStringLiteral("A title")));
    return posts;
}
