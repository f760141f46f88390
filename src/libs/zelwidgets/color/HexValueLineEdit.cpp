#include "color/HexValueLineEdit.h"

#include "color/ZelColorText.h"

#include <ZelWidgets/ZelFontMetrics>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>

HexValueLineEdit::HexValueLineEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setInputMask(QStringLiteral(">hhhhhh"));
}

QSize HexValueLineEdit::sizeHint() const
{
    const ZelFontMetrics metrics(this);
    return {metrics.horizontalAdvance(QStringLiteral("FFFFFFFFF")), metrics.height()};
}

void HexValueLineEdit::paste()
{
    if (!takeColor(QGuiApplication::clipboard()->text()))
        QLineEdit::paste();
}

void HexValueLineEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste)) {
        paste();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        event->accept();
}

void HexValueLineEdit::mouseReleaseEvent(QMouseEvent *event)
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection() &&
        takeColor(clipboard->text(QClipboard::Selection)))
        event->accept();
    else
        QLineEdit::mouseReleaseEvent(event);
}

void HexValueLineEdit::dropEvent(QDropEvent *event)
{
    if (takeColor(event->mimeData()->text()))
        event->acceptProposedAction();
    else
        QLineEdit::dropEvent(event);
}

bool HexValueLineEdit::takeColor(const QString &text)
{
    if (isReadOnly())
        return false;
    const std::optional<ZelColor> color = ZelColorText::read(text);
    if (color)
        Q_EMIT colorPasted(*color);
    return color.has_value();
}
