#pragma once

#include "ui/DateWords.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <optional>

class PostDate;

/// One part of a date that is edited: its year, month, day, hour, minute or half of the day.
class DatePart : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A PostDate has the parts of its date.")
    Q_MOC_INCLUDE("ui/PostDate.h")
    Q_PROPERTY(Kind kind READ kind CONSTANT)
    /// The number shown, -1 where there is none: an hour as the locale counts it, half a day as 0
    /// and 1. A number that is set is brought within the range.
    Q_PROPERTY(int value READ value WRITE setValue NOTIFY changed)
    Q_PROPERTY(int minimum READ minimum CONSTANT)
    Q_PROPERTY(int maximum READ maximum NOTIFY changed)
    /// What is shown: in the locale's digits, as typed while typing.
    Q_PROPERTY(QString text READ text NOTIFY changed)
    /// The value in a word, where it has one: the month's name, the half of the day.
    Q_PROPERTY(QString word READ word NOTIFY changed)
    /// The texts that the part is to have room for.
    Q_PROPERTY(QStringList samples READ samples CONSTANT)
    /// The text at its left (of the leftmost part only) and at its right.
    Q_PROPERTY(QString left READ left CONSTANT)
    Q_PROPERTY(QString right READ right CONSTANT)
    /// The part that is read after this one, the time's after the day's. Null at the end.
    Q_PROPERTY(DatePart *next READ next CONSTANT)
    Q_PROPERTY(DatePart *previous READ previous CONSTANT)
    /// Whether the Tab key stops here: at the part that has the keyboard, else at the first one of
    /// the day and of the time.
    Q_PROPERTY(bool tabStop READ isTabStop NOTIFY tabStopChanged)
    /// The date that this is a part of.
    Q_PROPERTY(PostDate *owner READ owner CONSTANT)

public:
    enum Kind { Year, Month, Day, Hour, Minute, DayPeriod };
    Q_ENUM(Kind)

    DatePart(PostDate *owner, FieldInPattern field);

    Kind kind() const { return static_cast<Kind>(m_field.field); }
    int value() const;
    void setValue(int value);
    int minimum() const;
    int maximum() const;
    QString text() const;
    QString word() const;
    QStringList samples() const;
    QString left() const { return m_field.left; }
    QString right() const { return m_field.right; }
    DatePart *next() const { return m_next; }
    DatePart *previous() const { return m_previous; }
    bool isTabStop() const;
    PostDate *owner() const { return m_owner; }

    /// Takes a character that was typed. True where typing is to go on in the next part: this one
    /// has all the digits that it can take, or a separator was typed after them.
    Q_INVOKABLE bool type(const QString &character);
    /// Whether digits were typed since the part was entered.
    Q_INVOKABLE bool isTyping() const { return !m_typed.isEmpty(); }
    /// Takes back the last digit typed, or empties the part.
    Q_INVOKABLE void erase();
    /// Goes up or down, at the end of the range over to its other end; years stop there. An empty
    /// part takes the present first.
    Q_INVOKABLE void step(int by);
    /// To be called when the keyboard comes to this part.
    Q_INVOKABLE void enter();
    /// To be called when the keyboard leaves: the typing in this part ends, and a number that the
    /// part cannot have goes back to the date's.
    Q_INVOKABLE void leave();
    /// Asks whoever shows this part to give it the keyboard.
    Q_INVOKABLE void askFocus() { emit focusAsked(); }

signals:
    void changed();
    void tabStopChanged();
    void focusAsked();

private:
    friend class PostDate;

    bool isTwelveHours() const;
    /// An hour from 0 to 23 as the locale counts it, and back.
    int numberOfHour(int hour) const;
    int hourOfNumber(int number) const;
    /// No number, and one of each digit, as some fonts have digits of several widths.
    QStringList numberSamples() const;
    /// What the digits typed so far stand for; nothing where they are too few.
    std::optional<int> numberTyped() const;
    bool typeDayPeriod(QChar character);
    void endTyping();

    PostDate *m_owner;
    FieldInPattern m_field;
    DatePart *m_next = nullptr;
    DatePart *m_previous = nullptr;
    QString m_typed;         ///< the digits typed since the part was entered, in ASCII
    bool m_complete = false; ///< whether the next digit begins a new number
};
