#include "ZelClickableLineEdit.h"

#include "ZelAccessible.h"

#include <QApplication>
#include <QKeyEvent>

ZelClickableLineEdit::ZelClickableLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    ZelAccessible::installFactory();
    setReadOnly(true);
    setStyleSheet(QStringLiteral("text-decoration: underline"));
    installEventFilter(this);
}

ZelClickableLineEdit::~ZelClickableLineEdit()
{
    showHand(false);
}

bool ZelClickableLineEdit::eventFilter(QObject *watched, QEvent *event)
{
    const bool isEnter = event->type() == QEvent::Enter;
    if (watched != this || (!isEnter && event->type() != QEvent::Leave))
        return QLineEdit::eventFilter(watched, event);
    showHand(isEnter && isEnabled());
    return true;
}

void ZelClickableLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    Q_EMIT clicked();
}

void ZelClickableLineEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isPress = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
    if (!isPress || event->modifiers() & ~Qt::KeypadModifier) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        Q_EMIT clicked();
}

// No Leave comes for a field that goes away under the mouse.
void ZelClickableLineEdit::hideEvent(QHideEvent *event)
{
    showHand(false);
    QLineEdit::hideEvent(event);
}

void ZelClickableLineEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        showHand(false);
    QLineEdit::changeEvent(event);
}

void ZelClickableLineEdit::showHand(bool show)
{
    if (show == hasHand_)
        return;
    hasHand_ = show;
    if (show)
        QApplication::setOverrideCursor(Qt::PointingHandCursor);
    else
        QApplication::restoreOverrideCursor();
}
