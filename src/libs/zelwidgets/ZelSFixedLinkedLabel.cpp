#include "ZelSFixedLinkedLabel.h"

ZelSFixedLinkedLabel::ZelSFixedLinkedLabel(const QString &text, const QSize &size, QWidget *parent)
    : ZelLinkLabel(parent)
    , size_(size.expandedTo(QSize(0, 0)))
{
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setText(text);
    setFixedSize(size_);
}
