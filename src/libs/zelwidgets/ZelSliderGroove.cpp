#include "ZelSliderGroove.h"

#include "ZelAccessibleValue.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSlider>

namespace {

constexpr qreal lineWidth = 2;

bool runsFromRight(const QSlider *slider)
{
    return slider->invertedAppearance() != slider->isRightToLeft();
}

} // namespace

void ZelSliderGroove::paint(QSlider *slider, const Colors &colors,
                            const ZelSliderMath::GrooveLines &lines, int y)
{
    using Line = ZelSliderMath::GrooveLine;
    const bool isEnabled = slider->isEnabled();
    QPainter painter(slider);
    painter.setRenderHint(QPainter::Antialiasing);
    if (runsFromRight(slider)) {
        painter.translate(slider->width(), 0);
        painter.scale(-1, 1);
    }
    QPen pen = painter.pen();
    pen.setWidthF(lineWidth);
    pen.setCapStyle(Qt::RoundCap);
    pen.setColor(colors.background);
    for (const Line &line : lines) {
        if (line.pen == Line::Background)
            pen.setColor(isEnabled ? colors.background : colors.backgroundDisabled);
        else if (line.pen == Line::Fill)
            pen.setColor(isEnabled ? colors.fill : colors.fillDisabled);
        painter.setPen(pen);
        painter.drawLine(line.from, y, line.to, y);
    }
}

float ZelSliderGroove::partAt(const QSlider *slider, const QMouseEvent *event)
{
    const auto width = static_cast<float>(slider->width());
    const float part = static_cast<float>(event->position().x()) / width;
    return runsFromRight(slider) ? 1 - part : part;
}

void ZelSliderGroove::announce(QSlider *slider, double value)
{
    ZelAccessibleValue::announce(slider, value);
}

bool ZelSliderGroove::isLeftButton(const QMouseEvent *event)
{
    return event->button() == Qt::LeftButton;
}
