#include "ui/MonthDays.h"

#include <algorithm>

namespace {

constexpr int daysPerWeek = 7;
constexpr int weeks = 6;
constexpr int monthsPerYear = 12;

} // namespace

MonthDays::MonthDays(const DateWords *words, QObject *parent)
    : QAbstractListModel(parent)
    , m_words(words)
{
}

int MonthDays::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : weeks * daysPerWeek;
}

QVariant MonthDays::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const qint64 number = m_firstNumber + index.row();
    const CalendarDay day = CalendarDay::ofNumber(number);
    const bool exists = day.number() == number;
    switch (role) {
    case DayTextRole:
        return exists ? m_words->number(day.day) : QString();
    case FullDateRole:
        return exists ? m_words->fullDate(day) : QString();
    case InMonthRole:
        return exists && day.month == m_current.month;
    case TodayRole:
        return exists && day == m_today;
    case SelectedRole:
        return exists && day == m_selected;
    case CurrentRole:
        return exists && day == m_current;
    default:
        return {};
    }
}

QHash<int, QByteArray> MonthDays::roleNames() const
{
    return {
        {DayTextRole, "dayText"}, {FullDateRole, "fullDate"}, {InMonthRole, "inMonth"},
        {TodayRole, "today"},     {SelectedRole, "selected"}, {CurrentRole, "current"},
    };
}

void MonthDays::show(const std::optional<CalendarDay> &selected, const CalendarDay &today)
{
    m_selected = selected;
    m_today = today;
    m_current = selected.value_or(today);
    m_chosenDay = m_current.day;
    refresh();
}

void MonthDays::moveToRow(int row)
{
    setCurrent(CalendarDay::ofNumber(m_firstNumber + row));
}

void MonthDays::moveByDays(int days)
{
    setCurrent(CalendarDay::ofNumber(m_current.number() + days));
}

void MonthDays::moveByMonths(int months)
{
    constexpr int first = CalendarDay::firstYear * monthsPerYear;
    constexpr int last = CalendarDay::lastYear * monthsPerYear + monthsPerYear - 1;
    const int month =
        std::clamp(m_current.year * monthsPerYear + m_current.month - 1 + months, first, last);
    m_current = CalendarDay{.year = month / monthsPerYear,
                            .month = month % monthsPerYear + 1,
                            .day = m_chosenDay}
                    .nearestInMonth();
    refresh();
}

void MonthDays::moveToWeekStart()
{
    moveByDays(-m_words->dayOfWeek(m_current));
}

void MonthDays::moveToWeekEnd()
{
    moveByDays(daysPerWeek - 1 - m_words->dayOfWeek(m_current));
}

void MonthDays::setCurrent(const CalendarDay &day)
{
    m_current = day;
    m_chosenDay = day.day;
    refresh();
}

void MonthDays::refresh()
{
    const CalendarDay first{.year = m_current.year, .month = m_current.month, .day = 1};
    m_firstNumber = first.number() - m_words->dayOfWeek(first);
    emit dataChanged(index(0), index(rowCount() - 1));
    emit moved();
}
