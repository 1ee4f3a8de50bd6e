#pragma once

#include "model/Date.h"
#include "model/DateRegion.h"
#include "ui/DatePart.h"
#include "ui/DateWords.h"
#include "ui/LocalTime.h"
#include "ui/MonthDays.h"

#include <QList>
#include <QObject>
#include <QtQml/qqmllist.h>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// A date that the user edits part by part: year, month, day, hour and minute of the local time.
///
/// The date always holds the last valid value. What is shown may be half-typed or impossible for a
/// while (31 February); the date then keeps the value from before the typing, and settle() brings
/// what is shown back to it.
///
/// Every value is reckoned from the date that was set, and from nothing in between: seconds and
/// fraction are kept, and a date whose parts are changed back has its very bits again.
class PostDate : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// Setting it begins anew: the parts show this date, and edits are reckoned from it. A new
    /// object holds the present moment.
    Q_PROPERTY(Date date READ date WRITE setDate NOTIFY dateChanged)
    /// The parts of the day and of the time, each as they stand on screen from left to right.
    Q_PROPERTY(QQmlListProperty<DatePart> dayParts READ dayParts CONSTANT)
    Q_PROPERTY(QQmlListProperty<DatePart> timeParts READ timeParts CONSTANT)
    /// The first part that is read, and the last one.
    Q_PROPERTY(DatePart *firstDayPart READ firstDayPart CONSTANT)
    Q_PROPERTY(DatePart *lastPart READ lastPart CONSTANT)
    /// The part that has the keyboard, or null, and that of the time which has it or had it last.
    Q_PROPERTY(DatePart *currentPart READ currentPart NOTIFY currentPartChanged)
    Q_PROPERTY(DatePart *currentTimePart READ currentTimePart NOTIFY currentPartChanged)
    /// Whether the parts show something else than the date that is held.
    Q_PROPERTY(bool unsettled READ isUnsettled NOTIFY partsChanged)
    /// Whether the date that is held is another one than was set.
    Q_PROPERTY(bool changed READ isChanged NOTIFY partsChanged)
    /// The day of the date that is held, in words; empty where it has none.
    Q_PROPERTY(QString dayInWords READ dayInWords NOTIFY partsChanged)
    /// The days to pick from.
    Q_PROPERTY(MonthDays *month READ month CONSTANT)

public:
    /// In the user's own region.
    explicit PostDate(QObject *parent = nullptr);
    explicit PostDate(const DateRegion &region, QObject *parent = nullptr);

    Date date() const { return m_date; }
    void setDate(Date date);

    QQmlListProperty<DatePart> dayParts() { return {this, &m_dayParts}; }
    QQmlListProperty<DatePart> timeParts() { return {this, &m_timeParts}; }
    DatePart *firstDayPart() const { return m_firstDayPart; }
    DatePart *lastPart() const { return m_lastPart; }
    DatePart *currentPart() const { return m_currentPart; }
    DatePart *currentTimePart() const { return m_currentTimePart; }
    bool isUnsettled() const { return m_draft != heldNumbers(); }
    bool isChanged() const { return m_date.bits() != m_start.bits(); }
    QString dayInWords() const;
    MonthDays *month() const { return m_month; }

    /// The part that stands some places to the right of another one. The time stands at the right
    /// of the day, or at its left where the form is mirrored. Null where there is none.
    Q_INVOKABLE DatePart *partBeside(DatePart *part, int places, bool mirrored) const;
    /// Brings the grid of days to the date's day, or to today where it has none.
    Q_INVOKABLE void showMonth();
    /// Takes the day that the grid is at, and keeps the time of day.
    Q_INVOKABLE void takeDay();
    /// Ends all typing: the parts show the date that is held.
    Q_INVOKABLE void settle();

    /// The date that is held as a text that takeText() takes; empty where it has no day.
    QString text() const;
    /// Takes day and time from a text like "2026-01-05 14:30", or the day alone and keeps the time.
    /// Any other text changes nothing.
    void takeText(const QString &text);
    /// The same from and to the clipboard, which keeps what it has where there is no text.
    Q_INVOKABLE void copy() const;
    Q_INVOKABLE void paste();
    /// Goes back to the date that was set.
    Q_INVOKABLE void undo() { setDate(m_start); }

signals:
    void dateChanged();
    void partsChanged();
    void currentPartChanged();

private:
    friend class DatePart;

    /// The numbers that stand in the parts; nothing where a part is empty or half-typed.
    struct Numbers
    {
        std::optional<int> year;
        std::optional<int> month;
        std::optional<int> day;
        std::optional<int> hour; ///< 0 to 23
        std::optional<int> minute;

        std::optional<int> &of(DateField field);
        bool has(DateField field) const;
        /// The minute that they make together, if the calendar has it.
        std::optional<LocalMinute> minuteOfDay() const;
        void setTimeOf(const Numbers &other);

        friend bool operator==(const Numbers &, const Numbers &) = default;
    };

    static Numbers numbersAt(const std::optional<LocalMinute> &minute);
    Numbers heldNumbers() const { return numbersAt(m_clock.minuteAt(m_date)); }
    Numbers presentNumbers() const { return numbersAt(m_clock.minuteAt(Date::now())); }

    QList<DatePart *> makeParts(const QList<FieldInPattern> &fields);
    void linkParts();

    void setCurrentPart(DatePart *part);

    bool isAfternoon() const;
    void setAfternoon(bool afternoon);
    /// The last day of the month that is shown.
    int lastDay() const;

    /// Remembers the date to which an impossible number leads back.
    void beginTyping() { m_beforeTyping = m_date; }
    /// Takes a number as it is typed. Together with the others it may make no date.
    void take(DateField field, std::optional<int> number);
    /// Takes a number that was stepped to. A day that the month does not have is moved into it.
    void stepTo(DateField field, int number);
    /// Puts the held date's number where the one shown can be no part of any date.
    void restore(DateField field);
    void choose(DateField field, std::optional<int> number);
    /// Holds what the numbers make together, if it is a date.
    bool hold();
    void setHeld(Date date);

    DateWords m_words;
    LocalClock m_clock;
    MonthDays *m_month;
    QList<DatePart *> m_dayParts;
    QList<DatePart *> m_timeParts;
    DatePart *m_firstDayPart = nullptr;
    DatePart *m_firstTimePart = nullptr;
    DatePart *m_lastPart = nullptr;
    DatePart *m_currentPart = nullptr;
    DatePart *m_currentTimePart = nullptr;

    Date m_start;        ///< as it was set
    Date m_date;         ///< the last valid one
    Date m_beforeTyping; ///< held again when what is typed turns out to be impossible
    Numbers m_draft;     ///< what is shown
    /// The day and the time as they were last chosen. A short month or a skipped hour may show
    /// others; the next month or day is reckoned from these.
    Numbers m_chosen;
    bool m_afternoon = false; ///< the half of the day while there is no hour
};
