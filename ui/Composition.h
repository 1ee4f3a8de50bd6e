#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The text that an input method is composing, and has not yet given to the field.
class Composition : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Gives the text to the field that has the focus.
    Q_INVOKABLE void commit() const;
};
