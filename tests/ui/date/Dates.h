#pragma once

#include "model/Date.h"
#include "ui/PostDate.h"

#include <QDateTime>
#include <QTime>

#include <bit>
#include <cstdint>
#include <ostream>

// What the tests of dates share.

inline Date utcDate(int year, int month, int day, int hour = 0, int minute = 0, double second = 0)
{
    const QDateTime time(QDate(year, month, day), QTime(hour, minute), Qt::UTC);
    return Date(double(time.toSecsSinceEpoch() - Date::referenceDateInUnixTime) + second);
}

inline std::uint64_t bitsOf(Date date)
{
    return std::bit_cast<std::uint64_t>(date.secondsSinceReferenceDate());
}

inline LocalMinute minuteOf(int year, int month, int day, int hour, int minute)
{
    return {.day = {.year = year, .month = month, .day = day}, .hour = hour, .minute = minute};
}

inline void PrintTo(const CalendarDay &day, std::ostream *out)
{
    *out << day.year << '-' << day.month << '-' << day.day;
}

inline void PrintTo(const LocalMinute &minute, std::ostream *out)
{
    PrintTo(minute.day, out);
    *out << ' ' << minute.hour << ':' << minute.minute;
}

inline DatePart *partOf(const PostDate &date, DatePart::Kind kind)
{
    for (DatePart *part = date.firstDayPart(); part; part = part->next()) {
        if (part->kind() == kind)
            return part;
    }
    return nullptr;
}

/// Types into a part as into one that was just entered, and leaves it.
inline void typeInto(const PostDate &date, DatePart::Kind kind, const QString &text)
{
    DatePart *part = partOf(date, kind);
    for (const QChar character : text)
        part->type(character);
    part->leave();
}

/// What all parts show, as they are read: "5.1.2026 9:30".
inline QString shown(const PostDate &date)
{
    QStringList texts;
    for (const DatePart *part = date.firstDayPart(); part; part = part->next())
        texts += part->text();
    return texts.join(QLatin1Char(' '));
}
