#include "ZelSwitchControl.h"

#include <ZelWidgets/HandleSvgInStyle>

#include <QDebug>
#include <QKeyEvent>
#include <QSignalBlocker>

#include <cmath>

namespace {

QIcon picture(const char *name)
{
    const QString path = QStringLiteral(":ui/widgetIcons/") + QLatin1String(name);
    return QIcon(HandleSvgInStyle::iconEngineForFile(path));
}

} // namespace

class ZelSwitchControlPrivate
{
public:
    explicit ZelSwitchControlPrivate(ZelSwitchControl::SwithButtonMode mode)
    {
        if (mode == ZelSwitchControl::Plain) {
            checkedIcon = picture("switch_1.zelsvg");
            uncheckedIcon = picture("switch_2.zelsvg");
        } else if (mode == ZelSwitchControl::OnOff) {
            checkedIcon = picture("switch_on.zelsvg");
            uncheckedIcon = picture("switch_off.zelsvg");
        }
    }

    QIcon checkedIcon;
    QIcon uncheckedIcon;
    float scale = 1.0F;
};

ZelSwitchControl::ZelSwitchControl(SwithButtonMode mode, QWidget *parent)
    : ZelToolButton(Flat, parent)
    , d_(std::make_unique<ZelSwitchControlPrivate>(mode))
{
    // Like a check box, by a click too.
    setFocusPolicy(Qt::StrongFocus);
    setCheckable(true);
    setImageSquared(false);
    setIconOnlyMode(true);
    setExpandIfIconOnly(true);
    connect(this, &QAbstractButton::toggled, this, &ZelSwitchControl::showIcon);
    showIcon(isChecked());
}

ZelSwitchControl::~ZelSwitchControl() = default;

void ZelSwitchControl::setChecked(bool checked, bool silent)
{
    if (!silent) {
        ZelToolButton::setChecked(checked);
        return;
    }
    const QSignalBlocker blocker(this);
    ZelToolButton::setChecked(checked);
    showIcon(checked);
}

void ZelSwitchControl::setCustomButtons(const QIcon &checked, const QIcon &unchecked)
{
    d_->checkedIcon = checked;
    d_->uncheckedIcon = unchecked;
    showIcon(isChecked());
    updateGeometry();
}

void ZelSwitchControl::setScale(float scale)
{
    if (!std::isfinite(scale) || scale <= 0.0F) {
        qWarning() << "The scale of a switch has to be a positive number, not" << scale
                   << objectName();
        return;
    }
    if (d_->scale == scale)
        return;
    d_->scale = scale;
    updateGeometry();
}

QSize ZelSwitchControl::sizeHint() const
{
    QSize hint = ZelToolButton::sizeHint();
    if (d_->checkedIcon.availableSizes().isEmpty()) {
        const QSize full = d_->checkedIcon.actualSize(QSize(1000, 1000), QIcon::Normal, QIcon::Off);
        if (!full.isEmpty())
            hint.setWidth(hint.width() * full.width() / full.height());
    }
    const QSizeF scaled = QSizeF(hint) * d_->scale;
    return scaled.boundedTo(QSizeF(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX)).toSize();
}

void ZelSwitchControl::keyPressEvent(QKeyEvent *event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || event->isAutoRepeat()) {
        ZelToolButton::keyPressEvent(event);
        return;
    }
    click();
}

void ZelSwitchControl::showIcon(bool checked)
{
    setIcon(checked ? d_->checkedIcon : d_->uncheckedIcon);
}
