#pragma once

#include <ZelWidgets/ZelToolButton>

#include <memory>

class ZelSwitchControlPrivate;

/// A switch: a check box that is drawn as one of two pictures. Space and Enter switch it. Nothing
/// but the picture is painted, and a frame for the focus.
///
///     auto *shadows = new ZelSwitchControl(ZelSwitchControl::OnOff, panel);
///     shadows->setToolTip(tr("Shadows"));
///     connect(shadows, &ZelSwitchControl::toggled, scene, &Scene::setShadows);
class ZELWIDGETS_EXPORT ZelSwitchControl : public ZelToolButton
{
    Q_OBJECT

public:
    /// The pictures; any other value gives none, for setCustomButtons().
    enum SwithButtonMode : int {
        Plain = 0, ///< "switch_1" and "switch_2", a knob in a track
        OnOff = 1  ///< "switch_on" and "switch_off", with marks of on and off
    };
    Q_ENUM(SwithButtonMode)

    explicit ZelSwitchControl(SwithButtonMode mode = Plain, QWidget *parent = nullptr);
    ~ZelSwitchControl() override;

    /// Switches; toggled() is emitted for a change unless silent is true.
    void setChecked(bool checked, bool silent = false);
    void setCustomButtons(const QIcon &checked, const QIcon &unchecked);
    /// Factor on the size hint, 1 at first. A factor that isn't a positive number is refused with a
    /// warning.
    void setScale(float scale);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showIcon(bool checked);

    std::unique_ptr<ZelSwitchControlPrivate> d_;
};
