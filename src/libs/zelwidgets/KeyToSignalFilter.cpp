#include "KeyToSignalFilter.h"

#include <QKeyEvent>

KeyToSignalFilter::KeyToSignalFilter(QObject *parent)
    : QObject(parent)
{
    if (parent)
        parent->installEventFilter(this);
}

bool KeyToSignalFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        switch (static_cast<const QKeyEvent *>(event)->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Q_EMIT enterPressed();
            return true;
        case Qt::Key_Escape:
            Q_EMIT escapePressed();
            return true;
        default:
            break;
        }
    }
    return QObject::eventFilter(watched, event);
}
