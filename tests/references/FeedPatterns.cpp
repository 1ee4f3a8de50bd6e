#include "tests/references/FeedPatterns.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QRegularExpression elementPattern(const QString &tag)
{
    return QRegularExpression(u"<%1>(.*?)</%1>"_s.arg(tag),
                              QRegularExpression::DotMatchesEverythingOption);
}

QRegularExpressionMatch matchOf(const QRegularExpression &pattern, const QString &text,
                                qsizetype from = 0)
{
    QRegularExpressionMatch match = pattern.match(text, from);
    // Also where the engine came to a limit of its own.
    if (!match.isValid())
        throw EngineGaveUp();
    return match;
}

QString firstElement(const QRegularExpression &pattern, const QString &item)
{
    return matchOf(pattern, item).captured(1);
}

} // namespace

std::vector<FoundItem> itemsByPatterns(const QString &feed)
{
    static const QRegularExpression item = elementPattern(u"item"_s);
    static const QRegularExpression title = elementPattern(u"title"_s);
    static const QRegularExpression link = elementPattern(u"link"_s);
    static const QRegularExpression description = elementPattern(u"description"_s);

    std::vector<FoundItem> items;
    for (auto match = matchOf(item, feed); match.hasMatch();
         match = matchOf(item, feed, match.capturedEnd())) {
        const QString text = match.captured(1);
        items.push_back(
            {firstElement(title, text), firstElement(link, text), firstElement(description, text)});
    }
    return items;
}

std::vector<FoundItem> itemsOf(const BlogPosts &posts)
{
    std::vector<FoundItem> items;
    for (const BlogPost &post : posts)
        items.push_back({post.title, post.permalink, post.description});
    return items;
}

QString escaped(QString description)
{
    return description.replace(u'&', u"&amp;"_s).replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}
