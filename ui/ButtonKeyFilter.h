#pragma once

#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Keeps some keys from a button.
///
/// An "&" in a button's text is a character like any other here, so no Alt key presses the button.
/// Some desktops let Return and keypad Enter press a focused button; in a sheet they belong to its
/// default action, wherever the focus is, and are passed on.
class ButtonKeyFilter : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQuickItem *button READ button WRITE setButton NOTIFY buttonChanged)
    Q_PROPERTY(bool passReturn MEMBER m_passReturn NOTIFY passReturnChanged)

public:
    using QObject::QObject;

    QQuickItem *button() const { return m_button; }
    void setButton(QQuickItem *button);

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void buttonChanged();
    void passReturnChanged();

private:
    QPointer<QQuickItem> m_button;
    bool m_passReturn = false;
};
