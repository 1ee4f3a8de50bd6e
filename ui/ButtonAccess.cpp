#include "ui/ButtonAccess.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

/// What an item says of itself by the Accessible attached type; null if it says nothing.
QObject *accessibleOf(const QObject *item)
{
    for (QObject *child : item->children()) {
        if (child->inherits("QQuickAccessibleAttached"))
            return child;
    }
    return nullptr;
}

/// A button, or a menu's command, as assistive tools have it.
class ButtonAccess : public QAccessibleObject, public QAccessibleActionInterface
{
public:
    ButtonAccess(QQuickItem *button, QObject *accessible)
        : QAccessibleObject(button)
        , m_accessible(accessible)
        , m_enabledChanges(QObject::connect(button, &QQuickItem::enabledChanged, accessible,
                                            [button] { tellDisabledChanged(button); }))
    {
    }

    /// A button may have another interface after this one.
    ~ButtonAccess() override { QObject::disconnect(m_enabledChanges); }
    Q_DISABLE_COPY_MOVE(ButtonAccess)

    QAccessibleInterface *parent() const override
    {
        for (QQuickItem *item = button()->parentItem(); item; item = item->parentItem()) {
            if (QAccessibleInterface *found = QAccessible::queryAccessibleInterface(item))
                return found;
        }
        return QAccessible::queryAccessibleInterface(button()->window());
    }

    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QWindow *window() const override { return button()->window(); }

    QRect rect() const override
    {
        if (!button()->window())
            return {};
        const QRectF scene = button()->mapRectToScene(button()->boundingRect());
        return scene.toRect().translated(button()->window()->mapToGlobal(QPoint()));
    }

    QAccessible::Role role() const override
    {
        return m_accessible->property("role").value<QAccessible::Role>();
    }

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Name)
            return m_accessible->property("name").toString();
        if (kind == QAccessible::Description)
            return m_accessible->property("description").toString();
        return {};
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.disabled = !button()->isEnabled();
        state.invisible = !button()->isVisible() || button()->window() == nullptr;
        state.focusable = button()->activeFocusOnTab();
        state.focused = button()->hasActiveFocus();
        state.pressed = button()->property("down").toBool();
        return state;
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface *>(this);
        return nullptr;
    }

    QStringList actionNames() const override
    {
        if (!button()->isEnabled())
            return {};
        return {pressAction(), setFocusAction()};
    }

    QStringList keyBindingsForAction(const QString &) const override { return {}; }

    void doAction(const QString &action) override
    {
        if (action == pressAction())
            QMetaObject::invokeMethod(m_accessible, "pressAction");
        else if (action == setFocusAction() && button()->isEnabled())
            button()->forceActiveFocus(Qt::OtherFocusReason);
    }

private:
    static void tellDisabledChanged(QQuickItem *button)
    {
        QAccessible::State changed;
        changed.disabled = true;
        QAccessibleStateChangeEvent event(button, changed);
        QAccessible::updateAccessibility(&event);
    }

    QQuickItem *button() const { return static_cast<QQuickItem *>(object()); }

    /// Owned by the button, and gone with it; so is this interface.
    QObject *m_accessible;
    QMetaObject::Connection m_enabledChanges;
};

QAccessibleInterface *makeButtonAccess(const QString &, QObject *object)
{
    if (object == nullptr || !object->inherits("QQuickAbstractButton"))
        return nullptr;
    QObject *accessible = accessibleOf(object);
    if (!accessible || accessible->property("ignored").toBool())
        return nullptr;
    return new ButtonAccess(static_cast<QQuickItem *>(object), accessible);
}

} // namespace

void installButtonAccess()
{
    QAccessible::installFactory(makeButtonAccess);
}
