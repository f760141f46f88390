#include "ZelSignLabel.h"

ZelSignLabel::ZelSignLabel(const QString &sign, QWidget *parent)
    : ZelLabel(parent)
{
    QFont changed = font();
    changed.setFamilies({QStringLiteral("Cambria")});
    changed.setStyleHint(QFont::Serif);
    setFont(changed);
    setAlignment(Qt::AlignCenter);
    setText(sign);
}
