#include "tests/ui/date/DateHand.h"

#include "tests/ui/date/Dates.h"

#include <QAccessible>
#include <QClipboard>
#include <QFont>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMetaEnum>

PostDate *DateHand::postDate(const QString &locale, const QString &zone, double seconds) const
{
    auto *date = new PostDate({.locale = locale.toStdString(), .timeZone = zone.toStdString()});
    date->setDate(Date(seconds));
    return date;
}

double DateHand::secondsOf(const PostDate *date) const
{
    return date->date().secondsSinceReferenceDate();
}

double DateHand::utc(int year, int month, int day, int hour, int minute, double second) const
{
    return utcDate(year, month, day, hour, minute, second).secondsSinceReferenceDate();
}

QString DateHand::shown(const PostDate *date) const
{
    return ::shown(*date);
}

void DateHand::type(QWindow *window, const QString &text) const
{
    for (const QChar character : text) {
        for (const QEvent::Type kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(kind, Qt::Key_unknown, Qt::NoModifier, QString(character));
            QGuiApplication::sendEvent(window, &event);
        }
    }
}

QString DateHand::clipboard() const
{
    return QGuiApplication::clipboard()->text();
}

void DateHand::setClipboard(const QString &text) const
{
    QGuiApplication::clipboard()->setText(text);
}

void DateHand::setTextSize(int pixels) const
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    QGuiApplication::setFont(font);
}

QVariantMap DateHand::accessible(QObject *item) const
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(item);
    if (!interface)
        return {};
    QVariantMap answer{
        {QStringLiteral("role"),
         QString::fromLatin1(
             QMetaEnum::fromType<QAccessible::Role>().valueToKey(interface->role()))},
        {QStringLiteral("name"), interface->text(QAccessible::Name)},
        {QStringLiteral("description"), interface->text(QAccessible::Description)},
        {QStringLiteral("focusable"), bool(interface->state().focusable)},
        {QStringLiteral("focused"), bool(interface->state().focused)},
        {QStringLiteral("selected"), bool(interface->state().selected)},
    };
    if (QAccessibleValueInterface *value = interface->valueInterface()) {
        answer[QStringLiteral("value")] = value->currentValue();
        answer[QStringLiteral("minimum")] = value->minimumValue();
        answer[QStringLiteral("maximum")] = value->maximumValue();
    }
    return answer;
}

bool DateHand::act(QObject *item, const QString &action) const
{
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(item);
    QAccessibleActionInterface *actions = interface ? interface->actionInterface() : nullptr;
    if (!actions || !actions->actionNames().contains(action))
        return false;
    actions->doAction(action);
    return true;
}

void DateHand::setValue(QObject *item, int value) const
{
    QAccessible::queryAccessibleInterface(item)->valueInterface()->setCurrentValue(value);
}
