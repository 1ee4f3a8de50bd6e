#pragma once

#include <QObject>
#include <QQuickItem>
#include <QStringList>

/// What tests in QML cannot see or do by themselves: a control as assistive tools have it, the
/// clipboard to the last character, and the application's font. QML knows it as the singleton
/// Assistive of the module TavloTest.
class Assistive : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString clipboard READ clipboard WRITE setClipboard)

public:
    using QObject::QObject;

    Q_INVOKABLE QString name(QQuickItem *item) const;
    Q_INVOKABLE QString description(QQuickItem *item) const;
    /// The role's number, as in the Accessible attached type.
    Q_INVOKABLE int role(QQuickItem *item) const;
    /// Of "disabled", "focusable", "focused", "editable", "multiLine": those that hold.
    Q_INVOKABLE QStringList states(QQuickItem *item) const;
    /// Presses a control as a screen reader does.
    Q_INVOKABLE void press(QQuickItem *item) const;

    Q_INVOKABLE void setFontSize(int pixels) const;

    QString clipboard() const;
    void setClipboard(const QString &text);
};
