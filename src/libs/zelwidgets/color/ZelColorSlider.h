#pragma once

#include <ZelWidgets/ZelColorChannel>
#include <ZelWidgets/ZelSlider>
#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QPixmap>

/// A horizontal slider for one channel of a colour, on a strip that shows what the channel does to
/// the colour.
///
/// A click goes where it is. Arrow keys go by about one hundredth of the range, with Shift by a
/// tenth, as Page Up and Page Down do. It runs from left to right in every language.
class ZELWIDGETS_EXPORT ZelColorSlider : public ZelSlider
{
    Q_OBJECT
    /// Of the ring of the handle; white until the style sheet sets it.
    Q_PROPERTY(QColor cursorColor READ cursorColor WRITE setCursorColor)

public:
    using RGBMode = ZelColorChannel::Mode;

    explicit ZelColorSlider(RGBMode mode, QWidget *parent = nullptr);
    ~ZelColorSlider() override;

    RGBMode mode() const { return mode_; }
    QColor cursorColor() const { return cursorColor_; }
    void setCursorColor(const QColor &color);

    /// The strip will show this colour. showGamma tells that its numbers are display values, which
    /// the display's gamma must not change again.
    void updatePixmap(const ZelColor &color, bool showGamma);
    /// One pixel high; as wide as there are samples.
    const QPixmap &strip();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void invalidateStrip();
    const QPixmap &scaledStrip();
    void goTo(int x);

    RGBMode mode_;
    ZelColor color_;
    bool showGamma_ = false;
    QPixmap strip_;
    QPixmap scaledStrip_;
    bool isStripDirty_ = true;
    bool dragging_ = false;
    QColor cursorColor_ = Qt::white;
};
