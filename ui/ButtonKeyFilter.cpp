#include "ui/ButtonKeyFilter.h"

#include <QKeyEvent>

void ButtonKeyFilter::setButton(QQuickItem *button)
{
    if (button == m_button)
        return;
    if (m_button)
        m_button->removeEventFilter(this);
    m_button = button;
    if (m_button)
        m_button->installEventFilter(this);
    emit buttonChanged();
}

bool ButtonKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Shortcut:
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (m_passReturn && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            // An ignored event goes on to the items around the button.
            event->ignore();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
