#pragma once

#include "ui/DateWords.h"
#include "ui/LocalTime.h"

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// Six weeks of days, in which one month lies whole, with one day that the keyboard is at.
class MonthDays : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A PostDate has the days to pick from.")
    /// The month's name and the year.
    Q_PROPERTY(QString title READ title NOTIFY moved)
    /// The short names of the seven weekdays, from the one with which the locale begins the week.
    Q_PROPERTY(QStringList weekdays READ weekdays CONSTANT)
    /// The row of the day that the keyboard is at.
    Q_PROPERTY(int currentRow READ currentRow NOTIFY moved)

public:
    enum Role {
        DayTextRole = Qt::UserRole, ///< the day's number; empty where the calendar ends
        FullDateRole,               ///< with the weekday, the month and the year
        InMonthRole,
        TodayRole,
        SelectedRole,
        CurrentRole,
    };

    /// words must live as long as this model.
    explicit MonthDays(const DateWords *words, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    QString title() const { return m_words->monthAndYear(m_current); }
    QStringList weekdays() const { return m_words->weekdays(); }
    int currentRow() const { return static_cast<int>(m_current.number() - m_firstNumber); }
    const CalendarDay &current() const { return m_current; }

    /// Shows the month of the selected day, or of today where none is selected.
    void show(const std::optional<CalendarDay> &selected, const CalendarDay &today);

    Q_INVOKABLE void moveToRow(int row);
    Q_INVOKABLE void moveByDays(int days);
    /// Keeps the day of the month where the new month has it, else takes the last day before it.
    Q_INVOKABLE void moveByMonths(int months);
    Q_INVOKABLE void moveToWeekStart();
    Q_INVOKABLE void moveToWeekEnd();

signals:
    void moved();

private:
    void setCurrent(const CalendarDay &day);
    void refresh();

    const DateWords *m_words;
    CalendarDay m_current;
    CalendarDay m_today;
    std::optional<CalendarDay> m_selected;
    qint64 m_firstNumber = 0; ///< the number of the day in the first row
    int m_chosenDay = 1;      ///< the day of the month that moves by months come back to
};
