#pragma once

#include "model/BlogViewModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

/// The panel in which the user picks the feed to import.
class OpenPanel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Shows a new panel, free-standing and independent of any other, and returns at once. The
    /// store imports the file that the user chooses; a cancelled panel does nothing.
    Q_INVOKABLE void importInto(BlogViewModel *store);
};
