#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The text that an input method is composing in a field, and has not yet given to it.
class Composition : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Gives the text to the field that has the focus.
    Q_INVOKABLE void commit() const;

    /// Gives a text that is left composed to a field that has lost the focus.
    Q_INVOKABLE void commitIn(QObject *field) const;

    /// Ends the composition by a key that the input method has not taken for itself: Return and
    /// Enter keep the text, Escape drops it. False, without an effect, for any other key and where
    /// nothing is composed.
    Q_INVOKABLE bool endByKey(int key) const;
};
