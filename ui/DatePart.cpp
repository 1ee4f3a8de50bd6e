#include "ui/DatePart.h"

#include "ui/PostDate.h"

#include <algorithm>

namespace {

constexpr int halfDay = 12;
constexpr int fullDay = 24;
constexpr int lengthOfYear = 4;

QString emptyText()
{
    return QStringLiteral("\u2014");
}

} // namespace

DatePart::DatePart(PostDate *owner, FieldInPattern field)
    : QObject(owner)
    , m_owner(owner)
    , m_field(std::move(field))
{
    connect(owner, &PostDate::partsChanged, this, &DatePart::changed);
    connect(owner, &PostDate::currentPartChanged, this, &DatePart::tabStopChanged);
}

int DatePart::value() const
{
    if (m_field.field == DateField::DayPeriod)
        return m_owner->isAfternoon() ? 1 : 0;
    const auto number = m_owner->m_draft.of(m_field.field);
    if (!number)
        return -1;
    return m_field.field == DateField::Hour ? numberOfHour(*number) : *number;
}

void DatePart::setValue(int value)
{
    endTyping();
    value = std::clamp(value, minimum(), maximum());
    if (m_field.field == DateField::DayPeriod)
        m_owner->setAfternoon(value == 1);
    else
        m_owner->stepTo(m_field.field,
                        m_field.field == DateField::Hour ? hourOfNumber(value) : value);
}

int DatePart::minimum() const
{
    switch (m_field.field) {
    case DateField::Hour: {
        const HourCycle cycle = m_owner->m_words.hourCycle();
        return cycle == HourCycle::From1To24 || cycle == HourCycle::From12To11 ? 1 : 0;
    }
    case DateField::Minute:
    case DateField::DayPeriod:
        return 0;
    default:
        return 1;
    }
}

int DatePart::maximum() const
{
    switch (m_field.field) {
    case DateField::Year:
        return CalendarDay::lastYear;
    case DateField::Month:
        return 12;
    case DateField::Day:
        return m_owner->lastDay();
    case DateField::Hour:
        return minimum() + (isTwelveHours() ? halfDay : fullDay) - 1;
    case DateField::Minute:
        return 59;
    case DateField::DayPeriod:
        return 1;
    }
    return 0;
}

QString DatePart::text() const
{
    const DateWords &words = m_owner->m_words;
    if (isTyping())
        return words.withOwnDigits(m_typed);
    if (m_field.field == DateField::DayPeriod)
        return word();
    const int number = value();
    return number < 0 ? emptyText() : words.number(number, m_field.digits);
}

QString DatePart::word() const
{
    switch (m_field.field) {
    case DateField::Month:
        return m_owner->m_words.monthName(value());
    case DateField::DayPeriod:
        return m_owner->m_words.dayPeriod(m_owner->isAfternoon());
    default:
        return {};
    }
}

QStringList DatePart::samples() const
{
    const DateWords &words = m_owner->m_words;
    switch (m_field.field) {
    case DateField::DayPeriod:
        return {words.dayPeriod(false), words.dayPeriod(true)};
    default:
        return numberSamples();
    }
}

QStringList DatePart::numberSamples() const
{
    const int length = m_field.field == DateField::Year ? lengthOfYear : 2;
    QStringList numbers{emptyText()};
    for (char digit = '0'; digit <= '9'; ++digit)
        numbers += m_owner->m_words.withOwnDigits(QString(length, QLatin1Char(digit)));
    return numbers;
}

bool DatePart::type(const QString &character)
{
    if (character.size() != 1)
        return false;
    if (m_field.field == DateField::DayPeriod)
        return typeDayPeriod(character.front());
    const int digit = character.front().digitValue();
    if (digit < 0)
        return isTyping() && !character.front().isLetter();

    if (m_complete)
        endTyping();
    if (m_typed.isEmpty())
        m_owner->beginTyping();
    m_typed += QLatin1Char(static_cast<char>('0' + digit));

    const bool isYear = m_field.field == DateField::Year;
    const int number = m_typed.toInt();
    const int longest = isYear ? lengthOfYear : 2;
    const int largest = m_field.field == DateField::Day ? 31 : maximum();
    m_complete = m_typed.size() == longest || number * 10 > largest;
    m_owner->take(m_field.field, numberTyped());
    return m_complete && m_owner->m_draft.has(m_field.field);
}

void DatePart::erase()
{
    if (m_field.field == DateField::DayPeriod)
        return;
    if (!isTyping())
        m_owner->beginTyping();
    m_typed.chop(1);
    m_complete = false;
    m_owner->take(m_field.field, numberTyped());
}

void DatePart::step(int by)
{
    if (m_field.field == DateField::DayPeriod) {
        setValue(1 - value());
        return;
    }
    const int current = value();
    if (current < 0) {
        endTyping();
        m_owner->stepTo(m_field.field, *m_owner->presentNumbers().of(m_field.field));
        return;
    }
    const int count = maximum() - minimum() + 1;
    int next = current + by;
    if (m_field.field != DateField::Year)
        next = ((next - minimum()) % count + count) % count + minimum();
    setValue(next);
}

bool DatePart::isTabStop() const
{
    const DatePart *current = m_owner->m_currentPart;
    const bool isOfTime = m_owner->m_timeParts.contains(this);
    if (current && m_owner->m_timeParts.contains(current) == isOfTime)
        return this == current;
    return this == (isOfTime ? m_owner->m_firstTimePart : m_owner->m_firstDayPart);
}

void DatePart::enter()
{
    m_owner->setCurrentPart(this);
}

void DatePart::leave()
{
    if (m_owner->m_currentPart == this)
        m_owner->setCurrentPart(nullptr);
    if (!isTyping() && m_owner->m_draft.has(m_field.field))
        return;
    endTyping();
    m_owner->restore(m_field.field);
}

bool DatePart::isTwelveHours() const
{
    const HourCycle cycle = m_owner->m_words.hourCycle();
    return cycle == HourCycle::From12To11 || cycle == HourCycle::From0To11;
}

int DatePart::numberOfHour(int hour) const
{
    const int period = isTwelveHours() ? halfDay : fullDay;
    const int least = minimum();
    return (hour - least + period) % period + least;
}

int DatePart::hourOfNumber(int number) const
{
    if (!isTwelveHours())
        return number % fullDay;
    return number % halfDay + (m_owner->isAfternoon() ? halfDay : 0);
}

std::optional<int> DatePart::numberTyped() const
{
    constexpr int lengthOfOthers = 2;
    if (m_typed.isEmpty())
        return {};
    const int number = m_typed.toInt();
    switch (m_field.field) {
    case DateField::Year:
        return m_typed.size() == lengthOfYear ? std::optional(number) : std::nullopt;
    case DateField::Hour:
        if (number < minimum())
            return m_typed.size() == lengthOfOthers ? std::optional(0) : std::nullopt;
        // An hour of the whole day is understood on a clock of twelve hours too.
        return number > maximum() ? number : hourOfNumber(number);
    default:
        return number;
    }
}

bool DatePart::typeDayPeriod(QChar character)
{
    const QString morning = m_owner->m_words.dayPeriod(false);
    const QString afternoon = m_owner->m_words.dayPeriod(true);
    const auto isFirstOf = [character](const QString &text) {
        return !text.isEmpty() && character.toCaseFolded() == text.front().toCaseFolded();
    };
    const bool isMorning = isFirstOf(morning) || character.toLower() == u'a';
    const bool isAfternoon = isFirstOf(afternoon) || character.toLower() == u'p';
    if (isMorning == isAfternoon)
        return false;
    setValue(isAfternoon ? 1 : 0);
    return true;
}

void DatePart::endTyping()
{
    m_typed.clear();
    m_complete = false;
}
