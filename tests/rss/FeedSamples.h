#pragma once

#include "model/Date.h"
#include "model/DateRegion.h"

#include <QByteArray>
#include <QDateTime>

// Small makers of what the feed's tests are about, and a way to look into a feed.

/// English names, no offset.
inline const DateRegion neutralRegion{"en_US_POSIX", "UTC"};

/// The date of an instant such as "2026-01-05T09:03:07Z".
inline Date instant(const char *iso8601)
{
    const auto time = QDateTime::fromString(QString::fromLatin1(iso8601), Qt::ISODateWithMs);
    Q_ASSERT(time.isValid());
    const double seconds = double(time.toMSecsSinceEpoch()) / 1000;
    return Date(seconds - double(Date::referenceDateInUnixTime));
}

/// The one text between two pieces of a document.
inline QByteArray between(const QByteArray &document, const char *before, const char *after)
{
    const qsizetype begin = document.indexOf(before) + qsizetype(qstrlen(before));
    return document.mid(begin, document.indexOf(after, begin) - begin);
}
