#include "ZelTextlessCheckBox.h"

#include "ZelAccessible.h"

#include <QStyle>

ZelTextlessCheckBox::ZelTextlessCheckBox(QWidget *parent)
    : ZelTextlessCheckBox(QString(), parent)
{}

ZelTextlessCheckBox::ZelTextlessCheckBox(const QString &text, QWidget *parent)
    : QCheckBox(text, parent)
{
    ZelAccessible::installFactory();
}

QSize ZelTextlessCheckBox::sizeHint() const
{
    QSize hint = QCheckBox::sizeHint();
    if (text().isEmpty())
        hint.setWidth(style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
                      style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this));
    return hint;
}
