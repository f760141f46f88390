#include "ZelCopyPasteEventFilter.h"

#include <QAbstractItemView>
#include <QKeyEvent>

ZelCopyPasteEventFilter::ZelCopyPasteEventFilter(QObject *parent)
    : QObject(parent)
{
    if (parent)
        parent->installEventFilter(this);
}

ZelCopyPasteEventFilter::ZelCopyPasteEventFilter(QAbstractItemView *view)
    : ZelCopyPasteEventFilter(static_cast<QObject *>(view))
{}

bool ZelCopyPasteEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::Cut) ||
            key->matches(QKeySequence::Paste)) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress && handleKey(static_cast<const QKeyEvent *>(event)))
        return true;
    return QObject::eventFilter(watched, event);
}

bool ZelCopyPasteEventFilter::handleKey(const QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy))
        Q_EMIT copyPressed();
    else if (event->matches(QKeySequence::Cut))
        Q_EMIT cutPressed();
    else if (event->matches(QKeySequence::Paste))
        Q_EMIT pastePressed();
    else
        return false;
    return true;
}
