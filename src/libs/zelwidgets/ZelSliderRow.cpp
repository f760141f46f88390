#include "ZelSliderRow.h"

#include "ZelAccessibleValue.h"
#include "ZelFlipLabel.h"

#include <QAbstractSpinBox>
#include <QBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QSlider>

namespace ZelSliderRow {

namespace {

constexpr int minimumSliderWidth = 100;

QString textOf(const QWidget *caption)
{
    if (const auto *label = qobject_cast<const QLabel *>(caption))
        return label->text();
    if (const auto *label = qobject_cast<const ZelFlipLabel *>(caption))
        return label->text();
    return caption ? caption->accessibleName() : QString();
}

} // namespace

void expandSideways(QWidget *row)
{
    row->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QBoxLayout *installColumn(QWidget *row)
{
    auto *column = new QVBoxLayout(row);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    return column;
}

QHBoxLayout *addLine(QBoxLayout *column)
{
    auto *line = new QHBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    column->addLayout(line);
    return line;
}

void layOut(QWidget *row, QWidget *caption, QWidget *field, QSlider *slider)
{
    QBoxLayout *column = installColumn(row);
    QHBoxLayout *line = addLine(column);
    if (caption)
        line->addWidget(caption, 0, Qt::AlignLeft);
    line->addWidget(field, 0, Qt::AlignRight);
    column->addWidget(slider, 1);
}

void prepareSlider(QSlider *slider)
{
    slider->setContentsMargins(0, 0, 0, 0);
    slider->setMinimumWidth(minimumSliderWidth);
    slider->setFocusPolicy(static_cast<Qt::FocusPolicy>(int{Qt::WheelFocus} & ~int{Qt::TabFocus}));
}

void describe(const QWidget *caption, QAbstractSpinBox *field, QSlider *slider)
{
    ZelAccessibleValue::describeBy(slider, field);
    const QString name = textOf(caption);
    field->setAccessibleName(name);
    slider->setAccessibleName(name);
}

void setCaption(QWidget *caption, const QString &text)
{
    if (auto *label = qobject_cast<QLabel *>(caption))
        label->setText(text);
}

bool isResetClick(const QWidget *caption, const QObject *watched, const QEvent *event)
{
    return watched == caption && event->type() == QEvent::MouseButtonDblClick &&
           static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton &&
           caption->focusPolicy() == Qt::NoFocus;
}

} // namespace ZelSliderRow
