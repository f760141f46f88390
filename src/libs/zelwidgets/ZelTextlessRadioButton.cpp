#include "ZelTextlessRadioButton.h"

#include "ZelAccessible.h"

#include <QStyle>

ZelTextlessRadioButton::ZelTextlessRadioButton(QWidget *parent)
    : ZelTextlessRadioButton(QString(), parent)
{}

ZelTextlessRadioButton::ZelTextlessRadioButton(const QString &text, QWidget *parent)
    : QRadioButton(text, parent)
{
    ZelAccessible::installFactory();
}

QSize ZelTextlessRadioButton::sizeHint() const
{
    QSize hint = QRadioButton::sizeHint();
    if (text().isEmpty())
        hint.setWidth(style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
                      style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this));
    return hint;
}
