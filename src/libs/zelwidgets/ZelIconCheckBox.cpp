#include "ZelIconCheckBox.h"

#include <QStyle>

ZelIconCheckBox::ZelIconCheckBox()
    : ZelIconCheckBox(static_cast<QWidget *>(nullptr))
{}

ZelIconCheckBox::ZelIconCheckBox(QWidget *parent)
    : ZelCheckBox(parent)
{}

ZelIconCheckBox::ZelIconCheckBox(const QString &text, QWidget *parent)
    : ZelCheckBox(parent)
{
    setText(text);
}

void ZelIconCheckBox::setSvgButtonIcon(const QString &baseName)
{
    baseName_ = baseName;
    const QString size = QStringLiteral("QCheckBox::indicator { width: %1px; height : %2px }");
    const QString pictures =
        QStringLiteral(" QCheckBox::indicator:checked:disabled { image: url(%1_disabled.svg); }"
                       " QCheckBox::indicator:unchecked:hover { image: url(%1_hover.svg); }"
                       " QCheckBox::indicator:checked:hover { image: url(%1_hover.svg); }"
                       " QCheckBox::indicator:unchecked { image: url(%1_inactive.svg); } "
                       " QCheckBox::indicator:checked { image: url(%1_active.svg); }");
    setStyleSheet(size.arg(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this))
                      .arg(style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this)) +
                  pictures.arg(baseName));
}
