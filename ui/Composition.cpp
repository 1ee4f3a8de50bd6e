#include "ui/Composition.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>

namespace {

QString composedText(const QObject *field)
{
    return field ? field->property("preeditText").toString() : QString();
}

// Puts a text in the place of what is composed.
void replaceComposition(QObject *field, const QString &text)
{
    QInputMethodEvent event;
    event.setCommitString(text);
    QCoreApplication::sendEvent(field, &event);
}

} // namespace

void Composition::commit() const
{
    QGuiApplication::inputMethod()->commit();
    // Not every input method does so when it is asked to.
    QObject *field = QGuiApplication::focusObject();
    if (composedText(field).isEmpty())
        return;
    commitIn(field);
    QGuiApplication::inputMethod()->reset();
}

void Composition::commitIn(QObject *field) const
{
    const QString text = composedText(field);
    if (!text.isEmpty())
        replaceComposition(field, text);
}

bool Composition::endByKey(int key) const
{
    QObject *field = QGuiApplication::focusObject();
    if (composedText(field).isEmpty())
        return false;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        commit();
    } else if (key == Qt::Key_Escape) {
        replaceComposition(field, {});
        QGuiApplication::inputMethod()->reset();
    } else {
        return false;
    }
    return true;
}
