#pragma once

#include <QObject>
#include <QStringList>

/// The language of the tests' own, in which the program of these tests runs; its dates are Korean,
/// so that they too hold no letter of an English text. QML knows it as the singleton PseudoLanguage
/// of the module TavloTest.
class PseudoLanguage : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QStringList texts READ texts CONSTANT)

public:
    using QObject::QObject;

    /// Every text of its catalogue, as it is shown; those of the open panel, which is no part of
    /// the window, aside.
    static QStringList texts();
};
