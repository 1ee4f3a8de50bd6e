#pragma once

#include "model/BlogPost.h"
#include "tests/support/Printers.h"

#include <QString>

#include <ostream>
#include <stdexcept>
#include <vector>

// What the import looks for, found by a regular-expression engine: the reference that the literal
// search is compared with.

/// The texts of one item.
struct FoundItem
{
    QString title;
    QString permalink;
    QString description;

    friend bool operator==(const FoundItem &, const FoundItem &) = default;

    friend std::ostream &operator<<(std::ostream &out, const FoundItem &item)
    {
        for (const QString &text : {item.title, item.permalink, item.description}) {
            PrintTo(text, &out);
            out << ' ';
        }
        return out;
    }
};

/// The engine did not come to an end, so nothing is known of what there is to find.
class EngineGaveUp : public std::runtime_error
{
public:
    EngineGaveUp()
        : std::runtime_error("the regular-expression engine gave up")
    {
    }
};

/// What "<item>(.*?)</item>" and, in each of its matches, "<title>(.*?)</title>" and so on find,
/// the dot matching line breaks too.
std::vector<FoundItem> itemsByPatterns(const QString &feed);

/// The same texts of posts.
std::vector<FoundItem> itemsOf(const BlogPosts &posts);

/// A description as a feed has it.
QString escaped(QString description);
