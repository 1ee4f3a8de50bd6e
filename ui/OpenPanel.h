#pragma once

#include "model/BlogViewModel.h"

#include <QObject>
#include <QString>
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

private:
    /// Where the next panel starts: where the last one was left, at first the documents folder.
    QString m_folder;
};
