#include "ZelDeleteEventFilter.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace {

bool isDelete(const QEvent *event)
{
    const auto *key = static_cast<const QKeyEvent *>(event);
    // The number pad has a Delete key, too.
    return key->key() == Qt::Key_Delete &&
           (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

ZelDeleteEventFilter::ZelDeleteEventFilter(QObject *parent)
    : QObject(parent)
{
    if (parent)
        parent->installEventFilter(this);
}

ZelDeleteEventFilter::ZelDeleteEventFilter(QAbstractItemView *view)
    : ZelDeleteEventFilter(static_cast<QObject *>(view))
{}

bool ZelDeleteEventFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isDelete(event)) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && isDelete(event)) {
        Q_EMIT deletePressed();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
