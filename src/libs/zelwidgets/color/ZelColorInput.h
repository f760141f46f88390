#pragma once

#include <ZelWidgets/ZelColorSlider>
#include <ZelWidgets/zelwidgets_export.h>

#include <QList>
#include <QWidget>

class ZelColorSliderEdit;

/// Edits a colour channel by channel; a subclass for each colour space.
///
/// With showGamma the sliders show display values, and the colour that comes out is linear. While
/// it is hidden it only remembers what to show.
class ZELWIDGETS_EXPORT ZelColorInput : public QWidget
{
    Q_OBJECT

public:
    ~ZelColorInput() override;

    /// As it was set or came from the sliders; linear.
    const ZelColor &color() const { return color_; }

public Q_SLOTS:
    /// Shows the colour, without a signal. Nothing if it is the present one as RGB, so that what
    /// the sliders gave and comes back doesn't move them.
    void setColor(ZelColor color);
    /// Brings the sliders up to date, if they aren't.
    void updateDisplay();
    /// Whether the sliders are to show display values from now on.
    void updateGammaDisplay(bool showGamma);

Q_SIGNALS:
    /// The user changed a channel.
    void colorChanged(ZelColor color);

protected:
    /// One row for each channel. The template is a colour of the space that the input works in.
    ZelColorInput(const ZelColor &color, bool showGamma,
                  const QList<ZelColorSlider::RGBMode> &channels, const ZelColor &templateColor,
                  QWidget *parent);

    void showEvent(QShowEvent *event) override;

protected Q_SLOTS:
    void valueChanged();

private:
    ZelColor initialColor_;
    ZelColor color_;
    QList<ZelColorSliderEdit *> sliders_;
    bool dirty_ = true;
    bool showGamma_;
    ZelColor template_;
};

/// Red, green, blue.
class ZELWIDGETS_EXPORT ZelRGBColorInput : public ZelColorInput
{
    Q_OBJECT

public:
    ZelRGBColorInput(const ZelColor &color, bool showGamma, QWidget *parent = nullptr);
};

/// Cyan, magenta, yellow, black.
class ZELWIDGETS_EXPORT ZelCMYKColorInput : public ZelColorInput
{
    Q_OBJECT

public:
    ZelCMYKColorInput(const ZelColor &color, bool showGamma, QWidget *parent = nullptr);
};

/// Hue, saturation, value.
class ZELWIDGETS_EXPORT ZelHSVColorInput : public ZelColorInput
{
    Q_OBJECT

public:
    ZelHSVColorInput(const ZelColor &color, bool showGamma, QWidget *parent = nullptr);
};

/// The brightness of a grey; shows the red channel of other colours.
class ZELWIDGETS_EXPORT ZelGrayColorInput : public ZelColorInput
{
    Q_OBJECT

public:
    ZelGrayColorInput(const ZelColor &color, bool showGamma, QWidget *parent = nullptr);
};

/// L*, a*, b*.
class ZELWIDGETS_EXPORT ZelCIELABColorInput : public ZelColorInput
{
    Q_OBJECT

public:
    ZelCIELABColorInput(const ZelColor &color, bool showGamma, QWidget *parent = nullptr);
};

/// The temperature of a black body in kelvin.
class ZELWIDGETS_EXPORT ZelTemperatureColorInput : public ZelColorInput
{
    Q_OBJECT

public:
    ZelTemperatureColorInput(const ZelColor &color, bool showGamma, QWidget *parent = nullptr);
};
