#include "ColorPlanesPage.h"

#include <ZelWidgets/ZelColor>
#include <ZelWidgets/ZelColorTriangle>
#include <ZelWidgets/ZelRGBSpectrumDisplay>
#include <ZelWidgets/toQColor>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr int fieldSide = 240;
constexpr int smallSide = 110;
constexpr int columnSpacing = 8;
constexpr QSize swatchSize(64, 64);

ZelColor hsv(float hue, float saturation, float value)
{
    return {ZelColor::Space::HSV, hue, saturation, value};
}

/// A field with its caption above it.
QVBoxLayout *captioned(QWidget *field, const QString &text, QSize size)
{
    field->setAccessibleName(text);
    field->setFixedSize(size);
    auto *label = new QLabel(text);
    label->setBuddy(field);
    label->setEnabled(field->isEnabled());
    auto *column = new QVBoxLayout;
    column->setSpacing(columnSpacing);
    column->addWidget(label);
    column->addWidget(field);
    column->addStretch();
    return column;
}

} // namespace

ColorPlanesPage::ColorPlanesPage(QWidget *parent)
    : GalleryPage(parent)
    , swatch_(new QLabel(this))
    , numbers_(new QLabel(this))
{
    addLinked();
    addStates();
    addStretch();
    take(hsv(205, 0.7F, 0.8F), nullptr);
}

void ColorPlanesPage::addLinked()
{
    QVBoxLayout *section = addSection(
        tr("One colour, two fields"),
        tr("Drag in the plane, along the hues, round the ring or in the triangle. In the plane the "
           "arrow keys go by one per cent, with Shift by ten; at the triangle Left and Right turn "
           "the hue, Up darkens, Down brightens, with Shift they change the saturation."));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    auto *plane = new ZelRGBSpectrumDisplay(ZelColor(), this);
    auto *triangle = new ZelColorTriangle(ZelColor(), this);
    linked_ = {plane, triangle};
    row->addLayout(captioned(plane, tr("Plane and hue"), {fieldSide + 24, fieldSide}));
    row->addLayout(captioned(triangle, tr("Ring and triangle"), {fieldSide, fieldSide}));
    for (ZelSpectrumDisplay *display : linked_) {
        connect(display, &ZelSpectrumDisplay::colorChanged, this,
                [this, display](const ZelColor &color) { take(color, display); });
    }
    auto *shown = new QVBoxLayout;
    shown->setSpacing(columnSpacing);
    swatch_->setFixedSize(swatchSize);
    shown->addWidget(swatch_);
    shown->addWidget(numbers_);
    shown->addStretch();
    row->addLayout(shown);
    row->addStretch();
}

void ColorPlanesPage::addStates()
{
    QVBoxLayout *section = addSection(tr("Other sizes and states"));
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    section->addLayout(row);
    const QSize small(smallSide, smallSide);
    row->addLayout(captioned(new ZelColorTriangle(hsv(30, 0.6F, 1), this), tr("Small"), small));
    auto *triangle = new ZelColorTriangle(hsv(150, 0.5F, 0.6F), this);
    triangle->setEnabled(false);
    row->addLayout(captioned(triangle, tr("Triangle, disabled"), small));
    auto *plane = new ZelRGBSpectrumDisplay(hsv(150, 0.5F, 0.6F), this);
    plane->setEnabled(false);
    row->addLayout(captioned(plane, tr("Plane, disabled"), {smallSide + 24, smallSide}));
    row->addStretch();
}

void ColorPlanesPage::take(const ZelColor &color, const ZelSpectrumDisplay *from)
{
    for (ZelSpectrumDisplay *display : std::as_const(linked_)) {
        if (display != from)
            display->setColor(color);
    }
    QPixmap pixmap(swatchSize);
    pixmap.fill(toQColor(color));
    swatch_->setPixmap(pixmap);
    const auto [hue, saturation, value] = color.toHSV();
    const QLocale locale;
    const QString text = tr("Hue %1 °\nSaturation %2 %\nValue %3 %")
                             .arg(locale.toString(double(hue), 'f', 1),
                                  locale.toString(double(saturation) * 100, 'f', 1),
                                  locale.toString(double(value) * 100, 'f', 1));
    numbers_->setText(text);
    if (from)
        log(from->accessibleName() + QStringLiteral(": colorChanged(") + text.simplified() + u')');
}
