#pragma once

#include "ui/LocalTime.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>

/// The pieces of a date and a time of day that are edited one by one.
enum class DateField { Year, Month, Day, Hour, Minute, DayPeriod };

/// How a locale counts the hours.
enum class HourCycle {
    From0To23,
    From1To24,
    From12To11, ///< 12, then 1 to 11, with morning and afternoon
    From0To11,  ///< with morning and afternoon
};

/// One field of a locale's short date or time pattern.
struct FieldInPattern
{
    DateField field = DateField::Year;
    int digits = 1;       ///< it is written with this many digits at least
    int readingOrder = 0; ///< its place among the pattern's fields, as they are read
    QString left;         ///< text at its left, only before the leftmost field
    QString right;        ///< text between it and the next field to the right
};

/// How a locale writes dates in the Gregorian calendar: order, words and digits.
class DateWords
{
public:
    /// locale: name as Unicode's ICU knows it.
    explicit DateWords(const std::string &locale);
    ~DateWords();
    Q_DISABLE_COPY_MOVE(DateWords)

    /// The fields of the short date, as they stand on screen from left to right.
    QList<FieldInPattern> dateFields() const;
    /// The fields of the short time of day, as they stand on screen from left to right.
    QList<FieldInPattern> timeFields() const;

    HourCycle hourCycle() const;

    /// A number from 0 up in the locale's digits, with zeros in front up to `digits`.
    QString number(int number, int digits = 1) const;
    /// A text with its decimal digits turned into the locale's own.
    QString withOwnDigits(const QString &text) const;
    /// "AM" or "PM".
    QString dayPeriod(bool afternoon) const;
    /// "January"; month: 1 to 12.
    QString monthName(int month) const;
    /// "January 2026".
    QString monthAndYear(const CalendarDay &day) const;
    /// "Monday, January 5, 2026".
    QString fullDate(const CalendarDay &day) const;
    /// The short names of the seven days of a week, from the one with which it begins.
    QStringList weekdays() const;
    /// The number of days from the beginning of the week to a day.
    int dayOfWeek(const CalendarDay &day) const;

private:
    class Locale;

    std::unique_ptr<Locale> m_locale;
};
