#include "ui/PostDate.h"

#include "ui/DateText.h"

#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

namespace {

constexpr int noon = 12;

bool isTimeOfDay(DateField field)
{
    return field == DateField::Hour || field == DateField::Minute;
}

} // namespace

PostDate::PostDate(QObject *parent)
    : PostDate(DateRegion::current(), parent)
{
}

PostDate::PostDate(const DateRegion &region, QObject *parent)
    : QObject(parent)
    , m_words(region.locale)
    , m_clock(region.timeZone)
    , m_month(new MonthDays(&m_words, this))
    , m_dayParts(makeParts(m_words.dateFields()))
    , m_timeParts(makeParts(m_words.timeFields()))
{
    linkParts();
    setDate(Date::now());
}

void PostDate::setDate(Date date)
{
    m_start = date;
    setHeld(date);
    settle();
}

QString PostDate::dayInWords() const
{
    const auto minute = m_clock.minuteAt(m_date);
    return minute ? m_words.fullDate(minute->day) : QString();
}

DatePart *PostDate::partBeside(DatePart *part, int places, bool mirrored) const
{
    const auto parts = mirrored ? m_timeParts + m_dayParts : m_dayParts + m_timeParts;
    return parts.value(parts.indexOf(part) + places);
}

void PostDate::showMonth()
{
    const auto held = m_clock.minuteAt(m_date);
    const auto present = m_clock.minuteAt(Date::now()).value_or(LocalMinute());
    m_month->show(held ? std::optional(held->day) : std::nullopt, present.day);
}

void PostDate::takeDay()
{
    const CalendarDay &day = m_month->current();
    settle();
    if (!m_draft.hour)
        m_chosen.setTimeOf(presentNumbers());
    m_draft.year = day.year;
    m_draft.month = day.month;
    m_chosen.day = day.day;
    stepTo(DateField::Day, day.day);
    settle();
}

void PostDate::settle()
{
    for (DatePart *part : m_dayParts + m_timeParts)
        part->endTyping();
    m_draft = heldNumbers();
    m_chosen = m_draft;
    emit partsChanged();
}

QString PostDate::text() const
{
    const auto minute = m_clock.minuteAt(m_date);
    return minute ? toText(*minute) : QString();
}

void PostDate::takeText(const QString &text)
{
    const auto held = m_clock.minuteAt(m_date);
    const auto present = m_clock.minuteAt(Date::now()).value_or(LocalMinute());
    const auto minute = minuteFromText(text, held.value_or(present));
    if (!minute)
        return;
    m_draft = numbersAt(minute);
    hold();
    settle();
}

void PostDate::copy() const
{
    if (const QString text = this->text(); !text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void PostDate::paste()
{
    takeText(QGuiApplication::clipboard()->text());
}

std::optional<int> &PostDate::Numbers::of(DateField field)
{
    switch (field) {
    case DateField::Year:
        return year;
    case DateField::Month:
        return month;
    case DateField::Day:
        return day;
    case DateField::Minute:
        return minute;
    case DateField::Hour:
    case DateField::DayPeriod:
        break;
    }
    return hour;
}

bool PostDate::Numbers::has(DateField field) const
{
    const auto isWithin = [](const std::optional<int> &number, int least, int greatest) {
        return number && *number >= least && *number <= greatest;
    };
    switch (field) {
    case DateField::Year:
        return isWithin(year, CalendarDay::firstYear, CalendarDay::lastYear);
    case DateField::Month:
        return isWithin(month, 1, 12);
    case DateField::Day:
        return isWithin(day, 1, 31);
    case DateField::Minute:
        return isWithin(minute, 0, 59);
    case DateField::Hour:
    case DateField::DayPeriod:
        break;
    }
    return isWithin(hour, 0, 23);
}

std::optional<LocalMinute> PostDate::Numbers::minuteOfDay() const
{
    if (!year || !month || !day || !has(DateField::Hour) || !has(DateField::Minute))
        return {};
    const CalendarDay calendarDay{.year = *year, .month = *month, .day = *day};
    if (!calendarDay.exists())
        return {};
    return LocalMinute{.day = calendarDay, .hour = *hour, .minute = *minute};
}

void PostDate::Numbers::setTimeOf(const Numbers &other)
{
    hour = other.hour;
    minute = other.minute;
}

PostDate::Numbers PostDate::numbersAt(const std::optional<LocalMinute> &minute)
{
    if (!minute)
        return {};
    return {.year = minute->day.year,
            .month = minute->day.month,
            .day = minute->day.day,
            .hour = minute->hour,
            .minute = minute->minute};
}

QList<DatePart *> PostDate::makeParts(const QList<FieldInPattern> &fields)
{
    QList<DatePart *> parts;
    for (const FieldInPattern &field : fields)
        parts += new DatePart(this, field);
    return parts;
}

void PostDate::linkParts()
{
    const auto isReadBefore = [](const DatePart *left, const DatePart *right) {
        return left->m_field.readingOrder < right->m_field.readingOrder;
    };
    QList<DatePart *> day = m_dayParts;
    QList<DatePart *> time = m_timeParts;
    std::sort(day.begin(), day.end(), isReadBefore);
    std::sort(time.begin(), time.end(), isReadBefore);
    DatePart *previous = nullptr;
    for (DatePart *part : day + time) {
        part->m_previous = previous;
        if (previous)
            previous->m_next = part;
        previous = part;
    }
    m_firstDayPart = day.first();
    m_firstTimePart = time.first();
    m_lastPart = previous;
    m_currentTimePart = m_firstTimePart;
}

void PostDate::setCurrentPart(DatePart *part)
{
    if (part == m_currentPart)
        return;
    m_currentPart = part;
    if (m_timeParts.contains(part))
        m_currentTimePart = part;
    emit currentPartChanged();
}

bool PostDate::isAfternoon() const
{
    return m_draft.hour ? *m_draft.hour >= noon : m_afternoon;
}

void PostDate::setAfternoon(bool afternoon)
{
    m_afternoon = afternoon;
    if (m_draft.hour)
        stepTo(DateField::Hour, *m_draft.hour % noon + (afternoon ? noon : 0));
    else
        emit partsChanged();
}

int PostDate::lastDay() const
{
    constexpr int longest = 31;
    if (!m_draft.has(DateField::Year) || !m_draft.has(DateField::Month))
        return longest;
    return CalendarDay{.year = *m_draft.year, .month = *m_draft.month, .day = longest}
        .nearestInMonth()
        .day;
}

void PostDate::take(DateField field, std::optional<int> number)
{
    m_afternoon = isAfternoon();
    choose(field, number);
    if (!hold())
        setHeld(m_beforeTyping);
    emit partsChanged();
}

void PostDate::stepTo(DateField field, int number)
{
    choose(field, number);
    if (!isTimeOfDay(field) && m_chosen.day) {
        m_draft.day = m_chosen.day;
        if (m_draft.has(DateField::Year) && m_draft.has(DateField::Month)) {
            m_draft.day =
                CalendarDay{.year = *m_draft.year, .month = *m_draft.month, .day = *m_chosen.day}
                    .nearestInMonth()
                    .day;
        }
    }
    hold();
    emit partsChanged();
}

void PostDate::restore(DateField field)
{
    if (!m_draft.has(field))
        m_draft.of(field) = heldNumbers().of(field);
    emit partsChanged();
}

void PostDate::choose(DateField field, std::optional<int> number)
{
    m_draft.of(field) = number;
    if (m_draft.has(field))
        m_chosen.of(field) = number;
    if (isTimeOfDay(field))
        m_chosen.setTimeOf(m_draft);
    else if (m_chosen.hour && m_chosen.minute)
        m_draft.setTimeOf(m_chosen);
}

bool PostDate::hold()
{
    const auto minute = m_draft.minuteOfDay();
    if (!minute)
        return false;
    setHeld(m_clock.dateAt(*minute, m_start));
    m_draft = heldNumbers();
    return true;
}

void PostDate::setHeld(Date date)
{
    const bool isSame = date.bits() == m_date.bits();
    m_date = date;
    if (!isSame)
        emit dateChanged();
}
