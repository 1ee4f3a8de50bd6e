#include "tests/ui/controls/Assistive.h"

#include <QAccessible>
#include <QClipboard>
#include <QCoreApplication>
#include <QFont>
#include <QGuiApplication>
#include <QQmlEngine>

namespace {

QAccessibleInterface *interfaceOf(QQuickItem *item)
{
    QAccessibleInterface *found = QAccessible::queryAccessibleInterface(item);
    if (!found)
        qFatal("An item that assistive tools do not see");
    return found;
}

void registerAssistive()
{
    qmlRegisterSingletonType<Assistive>("TavloTest", 1, 0, "Assistive",
                                        [](QQmlEngine *, QJSEngine *) { return new Assistive; });
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(registerAssistive)

QString Assistive::name(QQuickItem *item) const
{
    return interfaceOf(item)->text(QAccessible::Name);
}

QString Assistive::description(QQuickItem *item) const
{
    return interfaceOf(item)->text(QAccessible::Description);
}

int Assistive::role(QQuickItem *item) const
{
    return interfaceOf(item)->role();
}

QStringList Assistive::states(QQuickItem *item) const
{
    const QAccessible::State state = interfaceOf(item)->state();
    QStringList found;
    if (state.disabled)
        found << QStringLiteral("disabled");
    if (state.focusable)
        found << QStringLiteral("focusable");
    if (state.focused)
        found << QStringLiteral("focused");
    if (state.editable)
        found << QStringLiteral("editable");
    if (state.multiLine)
        found << QStringLiteral("multiLine");
    return found;
}

void Assistive::press(QQuickItem *item) const
{
    QAccessibleActionInterface *actions = interfaceOf(item)->actionInterface();
    if (!actions)
        qFatal("An item without actions");
    actions->doAction(QAccessibleActionInterface::pressAction());
}

void Assistive::setFontSize(int pixels) const
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(pixels);
    QGuiApplication::setFont(font);
}

QString Assistive::clipboard() const
{
    return QGuiApplication::clipboard()->text();
}

void Assistive::setClipboard(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}
