#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>

#include <memory>

class ZelEyeDropperPrivate;

/// Picks the colour of a pixel anywhere on the screens, with a loupe that follows the cursor:
///
///     ZelEyeDropper dropper(this);
///     connect(&dropper, &ZelEyeDropper::colorSelected, this, &Panel::takeColor);
///     dropper.exec();
///
/// The left button picks, and so do Space and Return; the arrow keys move the cursor by a pixel,
/// with Shift by ten. Every other button, Escape and closing cancel. While it is open it holds
/// mouse and keyboard. Where programs can't see the screen the desktop is asked to let the user
/// pick, and the loupe doesn't come up.
class ZELWIDGETS_EXPORT ZelEyeDropper : public QDialog
{
    Q_OBJECT

public:
    explicit ZelEyeDropper(QWidget *parent = nullptr);
    ~ZelEyeDropper() override;

    /// Whether a colour can be picked here; if not, the reason is a sentence for the user.
    static bool isAvailable(QString *reason = nullptr);

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Emitted before the dialog is accepted.
    void colorSelected(ZelColor color);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void start();
    void stop();
    void askDesktop();
    void followCursor();
    void holdInput();
    void follow(const QPointF &place);
    void pick();
    void select(const QColor &color);

    std::unique_ptr<ZelEyeDropperPrivate> d_;
};
