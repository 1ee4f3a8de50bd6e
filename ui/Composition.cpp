#include "ui/Composition.h"

#include <QGuiApplication>
#include <QInputMethod>

void Composition::commit() const
{
    QGuiApplication::inputMethod()->commit();
}
