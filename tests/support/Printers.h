#pragma once

#include "model/BlogPost.h"
#include "model/RSSSettings.h"

#include <QByteArray>
#include <QString>

#include <ostream>

// How values read in the message of a failed check. The names are GoogleTest's and RapidCheck's.
// NOLINTBEGIN(readability-identifier-naming)

/// Quoted, and every character that could be mistaken for another as its code.
inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"';
    for (const QChar character : text) {
        if (character >= u' ' && character < QChar(0x7f))
            *out << char(character.unicode());
        else
            *out << "\\u"
                 << QByteArray::number(character.unicode(), 16).rightJustified(4, '0').data();
    }
    *out << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toStdString() << '"';
}

/// Enough digits to know the bits by.
inline void PrintTo(const Date &date, std::ostream *out)
{
    *out << QByteArray::number(date.secondsSinceReferenceDate(), 'g', 17).data();
}

inline void PrintTo(const BlogPost &post, std::ostream *out)
{
    *out << post.id.toByteArray().data() << " title ";
    PrintTo(post.title, out);
    *out << " content ";
    PrintTo(post.content, out);
    *out << " date ";
    PrintTo(post.date, out);
    *out << " description ";
    PrintTo(post.description, out);
    *out << " permalink ";
    PrintTo(post.permalink, out);
}

inline void PrintTo(const BlogPosts &posts, std::ostream *out)
{
    *out << posts.size() << " posts";
    for (const BlogPost &post : posts) {
        *out << "\n  ";
        PrintTo(post, out);
    }
}

inline void PrintTo(const RSSSettings &settings, std::ostream *out)
{
    *out << "title ";
    PrintTo(settings.title, out);
    *out << " link ";
    PrintTo(settings.link, out);
    *out << " description ";
    PrintTo(settings.description, out);
}

inline void showValue(const QString &text, std::ostream &out)
{
    PrintTo(text, &out);
}

inline void showValue(const QByteArray &bytes, std::ostream &out)
{
    PrintTo(bytes, &out);
}

inline void showValue(const Date &date, std::ostream &out)
{
    PrintTo(date, &out);
}

inline void showValue(const BlogPost &post, std::ostream &out)
{
    PrintTo(post, &out);
}

inline void showValue(const BlogPosts &posts, std::ostream &out)
{
    PrintTo(posts, &out);
}

inline void showValue(const RSSSettings &settings, std::ostream &out)
{
    PrintTo(settings, &out);
}

// NOLINTEND(readability-identifier-naming)
