#pragma once

#include "ui/PostDate.h"

#include <QObject>
#include <QVariantMap>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

/// Makes dates for the tests of the date field, and does what only assistive tools do.
class DateHand : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QString clipboard READ clipboard WRITE setClipboard)

public:
    using QObject::QObject;

    /// A date in a locale and a time zone, in seconds since the reference date.
    Q_INVOKABLE PostDate *postDate(const QString &locale, const QString &zone,
                                   double seconds) const;
    Q_INVOKABLE double secondsOf(const PostDate *date) const;
    Q_INVOKABLE double utc(int year, int month, int day, int hour, int minute, double second) const;
    /// What the parts show, as they are read, with blanks between them.
    Q_INVOKABLE QString shown(const PostDate *date) const;

    /// Types characters that are on no key of an English keyboard.
    Q_INVOKABLE void type(QWindow *window, const QString &text) const;

    QString clipboard() const;
    void setClipboard(const QString &text) const;

    /// Gives the program another text size.
    Q_INVOKABLE void setTextSize(int pixels) const;

    /// Role, name, description and states of an item, as assistive tools see it.
    Q_INVOKABLE QVariantMap accessible(QObject *item) const;
    Q_INVOKABLE bool act(QObject *item, const QString &action) const;
    Q_INVOKABLE void setValue(QObject *item, int value) const;
};
