#include "ColorInputsPage.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSliderEdit>
#include <ZelWidgets/ZelFrame>
#include <ZelWidgets/ZelHueSlider>

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>

namespace {

constexpr int columns = 3;
constexpr float daylightKelvin = 6500;
constexpr QSize sampleSize(96, 48);

QString described(const ZelColor &color)
{
    static const QStringList spaces{QStringLiteral("XYZ"), QStringLiteral("RGB"),
                                    QStringLiteral("HSV"), QStringLiteral("CMYK"),
                                    QStringLiteral("CIE-L*ab")};
    const bool hasFour = color.space() == ZelColor::Space::CMYK;
    QStringList numbers;
    for (std::size_t i = 0; i < (hasFour ? 4U : 3U); ++i)
        numbers.append(QString::number(static_cast<double>(color.components()[i]), 'g', 4));
    return spaces.value(static_cast<int>(color.space())) + u' ' +
           numbers.join(QStringLiteral(", "));
}

} // namespace

/// Shows a colour as the display is to show it.
class ColorSample : public ZelFrame
{
public:
    explicit ColorSample(QWidget *parent)
        : ZelFrame(parent)
    {
        setFixedSize(sampleSize);
        setAccessibleName(ColorInputsPage::tr("Colour"));
    }
    void setColor(const ZelColor &color)
    {
        color_ = color;
        update();
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        ZelFrame::paintEvent(event);
        QPainter(this).fillRect(contentsRect(), toDisplayQColor(color_));
    }

private:
    ZelColor color_;
};

ColorInputsPage::ColorInputsPage(QWidget *parent)
    : GalleryPage(parent)
    , color_(ZelColor::Space::RGB, 0.85f, 0.35f, 0.1f)
{
    addInputs();
    addChannels();
    addStretch();
    takeColor(color_);
}

void ColorInputsPage::addInputs()
{
    QVBoxLayout *section =
        addSection(tr("Inputs"), tr("All show the same colour. Arrow keys go by a hundredth, with "
                                    "Shift by a tenth; the mouse wheel needs Control."));
    addSwitches(section);
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    section->addLayout(row);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    row->addLayout(grid, 1);
    addInput(grid, new ZelRGBColorInput(color_, true, this), tr("RGB"));
    addInput(grid, new ZelHSVColorInput(color_, true, this), tr("HSV"));
    addInput(grid, new ZelCMYKColorInput(color_, true, this), tr("CMYK"));
    addInput(grid, new ZelCIELABColorInput(color_, true, this), tr("CIE-L*ab"));
    addInput(grid, new ZelGrayColorInput(color_, true, this), tr("Grayscale"));
    addInput(grid, new ZelTemperatureColorInput(color_, true, this), tr("Kelvin"));
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    auto *side = new QGridLayout;
    row->addLayout(side);
    addSample(side);
}

void ColorInputsPage::addInput(QGridLayout *grid, ZelColorInput *input, const QString &name)
{
    auto *box = new QVBoxLayout;
    auto *title = new QLabel(name, this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    input->setAccessibleName(name);
    box->addWidget(title);
    box->addWidget(input);
    box->addStretch();
    const int index = static_cast<int>(inputs_.size());
    grid->addLayout(box, index / columns, index % columns);
    inputs_.append(input);
    connect(input, &ZelColorInput::colorChanged, this, [this, name](const ZelColor &color) {
        log(name + QStringLiteral(": colorChanged(") + described(color) + u')');
        takeColor(color);
    });
}

void ColorInputsPage::addSample(QGridLayout *grid)
{
    sample_ = new ColorSample(this);
    hue_ = new ZelHueSlider(this);
    grid->addWidget(sample_, 0, 0);
    grid->addWidget(hue_, 1, 0, Qt::AlignHCenter);
    watch(hue_, &QAbstractSlider::valueChanged, QStringLiteral("valueChanged"));
    connect(hue_, &QAbstractSlider::valueChanged, this, &ColorInputsPage::takeHue);
    connect(ZelGammaPolicy::get(), &ZelGammaPolicy::gammaCorrectChanged, sample_,
            qOverload<>(&QWidget::update));
}

void ColorInputsPage::addSwitches(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    section->addLayout(row);
    auto *values = new QCheckBox(tr("Numbers are display values"), this);
    values->setChecked(true);
    auto *gamma = new QCheckBox(tr("Colours are shown with display gamma"), this);
    gamma->setChecked(ZelGammaPolicy::get()->isGammaCorrectionEnabled());
    row->addWidget(values);
    row->addWidget(gamma);
    row->addStretch();
    connect(values, &QAbstractButton::toggled, this, [this](bool isOn) {
        for (ZelColorInput *input : std::as_const(inputs_))
            input->updateGammaDisplay(isOn);
    });
    connect(gamma, &QAbstractButton::toggled, ZelGammaPolicy::get(),
            &ZelGammaPolicy::setEnableGammaCorrection);
}

void ColorInputsPage::addChannels()
{
    using Mode = ZelColorSlider::RGBMode;
    QVBoxLayout *section =
        addSection(tr("Channels"), tr("A channel on its own, and one that can't be changed."));
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    section->addLayout(row);
    const QStringList names{tr("Temperature of the light"), tr("Saturation, locked")};
    const ZelColor daylight =
        ZelColorChannel::setChannelValue(Mode::Temperature, ZelColor(), daylightKelvin);
    for (const bool isLocked : {false, true}) {
        const Mode mode = isLocked ? Mode::Saturation : Mode::Temperature;
        auto *channel = new ZelColorSliderEdit(isLocked ? color_ : daylight, mode,
                                               names[isLocked ? 1 : 0], false, this);
        channel->setAccessibleName(names[isLocked ? 1 : 0]);
        channel->setEnabled(!isLocked);
        row->addWidget(channel, 1);
        watch(channel, &ZelColorSliderEdit::valueChanged, QStringLiteral("valueChanged"));
    }
}

void ColorInputsPage::takeColor(const ZelColor &color)
{
    color_ = color;
    for (ZelColorInput *input : std::as_const(inputs_))
        input->setColor(color_);
    sample_->setColor(color_);
    const auto [hue, saturation, value] = color_.toHSV();
    // A grey has no hue of its own: the slider stays where it is.
    if (saturation > 0.0f && value > 0.0f) {
        const QSignalBlocker blocker(hue_);
        hue_->setValue(qRound(hue));
    }
}

void ColorInputsPage::takeHue(int hue)
{
    const auto [old, saturation, value] = color_.toHSV();
    takeColor(ZelColor(ZelColor::Space::HSV, static_cast<float>(hue), saturation, value));
}
