#include "ZelGradientView.h"

#include "ZelDoubleSliderEdit.h"
#include "ZelToolButton.h"
#include "color/ZelColorWidget.h"
#include "theme/ZelCombinedIcon.h"
#include "theme/ZelStyleIcon.h"

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientDisplay>

#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace {

constexpr double brightest = 5.0;
constexpr float mostSlope = 4.0f;
constexpr QSize colorSize(64, 24);
constexpr int leastStops = 2;

ZelCombinedIcon stopIcon(const char *base, std::initializer_list<const char *> states)
{
    QList<ZelStyleIcon> icons;
    for (const char *state : states)
        icons << ZelStyleIcon(
            QStringLiteral(":/res/%1_%2.svg").arg(QLatin1String(base), QLatin1String(state)));
    return ZelCombinedIcon::createFromBaseIconsAndNames(icons);
}

ZelToolButton *stopButton(const QString &tip, const QIcon &icon, QWidget *parent)
{
    auto *button = new ZelToolButton(ZelToolButton::Flat, parent);
    button->setToolTip(tip);
    button->setIcon(icon);
    return button;
}

} // namespace

ZelGradientView::ZelGradientView(QWidget *extra)
    : extra_(extra)
{
    makeControls();
    makeLayout();
    makeConnections();
}

ZelGradientView::~ZelGradientView() = default;

void ZelGradientView::makeControls()
{
    display_ = new ZelGradientDisplay;
    opacityEdit_ = new ZelDoubleSliderEdit(tr("Stop Opacity"), 0.0, 1.0, &alpha_, 0.0f, 1.0f,
                                           nullptr, nullptr, false);
    brightnessEdit_ =
        new ZelDoubleSliderEdit(tr("Stop Brightness"), 0.0, brightest, &gain_, 0.0f,
                                std::numeric_limits<float>::max(), nullptr, nullptr, false);
    colorWidget_ = new ZelColorWidget(zelsg::Color(1.0f, 1.0f, 1.0f), colorSize, true);
    colorWidget_->setAccessibleName(tr("Stop Color"));
    deleteButton_ =
        stopButton(tr("Delete Stop"), ZelStyleIcon(QStringLiteral(":ui/icons/delete")), this);
    addStopButton_ =
        stopButton(tr("Add Stop"), stopIcon("color_stop", {"hover", "inactive"}), this);
    addOpacityStopButton_ =
        stopButton(tr("Add Opacity Stop"),
                   stopIcon("opacity_stop", {"active", "disabled", "hover", "inactive"}), this);
    smoothButton_ = stopButton(tr("Smooth Stop"), QIcon(), this);
    smoothButton_->hide();
}

void ZelGradientView::makeLayout()
{
    auto *row = new QHBoxLayout;
    for (ZelToolButton *button :
         {addStopButton_, addOpacityStopButton_, smoothButton_, deleteButton_})
        row->addWidget(button);
    row->addStretch();
    row->addWidget(colorWidget_, 0, Qt::AlignRight);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(display_);
    layout->addLayout(row);
    layout->addWidget(brightnessEdit_);
    layout->addWidget(opacityEdit_);
    if (extra_)
        layout->addWidget(extra_);
}

void ZelGradientView::makeConnections()
{
    connect(opacityEdit_, &ZelDoubleSliderEdit::valueUpdated, this, &ZelGradientView::alphaChanged);
    connect(brightnessEdit_, &ZelDoubleSliderEdit::valueUpdated, this,
            &ZelGradientView::gainChanged);
    connect(colorWidget_, &ZelColorWidget::colorUpdated, this, &ZelGradientView::colorChanged);
    connect(addStopButton_, &QAbstractButton::clicked, this, &ZelGradientView::addColorStop);
    connect(addOpacityStopButton_, &QAbstractButton::clicked, this, &ZelGradientView::addAlphaStop);
    connect(deleteButton_, &QAbstractButton::clicked, this, &ZelGradientView::deleteStop);
    connect(smoothButton_, &QAbstractButton::clicked, this, &ZelGradientView::smoothStop);
    connect(display_, &ZelGradientDisplay::stopDoubleClicked, this,
            &ZelGradientView::editStopColor);
    connect(display_, &ZelGradientDisplay::gradientChanged, this,
            &ZelGradientView::gradientChanged);
}

ZelGradient *ZelGradientView::gradient() const
{
    return gradient_;
}

void ZelGradientView::setGradient(ZelGradient *gradient)
{
    if (gradient_)
        gradient_->disconnect(this);
    gradient_ = gradient;
    display_->setGradient(gradient);
    if (gradient) {
        selectFirstStop();
        connect(gradient, &ZelGradient::gradientChanged, this, &ZelGradientView::pull);
        connect(gradient, &ZelGradient::selectionChanged, this, &ZelGradientView::selectionChanged);
        connect(gradient, &QObject::destroyed, this, &ZelGradientView::pull);
    }
    addOpacityStopButton_->setVisible(gradient && gradient->hasAlpha());
    opacityEdit_->setVisible(gradient && gradient->hasAlpha());
    brightnessEdit_->setVisible(gradient && gradient->hasHdrColors());
    pull();
    update();
}

void ZelGradientView::selectFirstStop()
{
    if (gradient_->selected())
        return;
    if (gradient_->colorStops() > 0)
        gradient_->setSelected(gradient_->colorStop(0));
    else if (gradient_->alphaStops() > 0)
        gradient_->setSelected(gradient_->alphaStop(0));
}

ZelGradientStop ZelGradientView::selected() const
{
    return gradient_ ? gradient_->selected() : ZelGradientStop();
}

ZelGradientStop ZelGradientView::selectedColorStop() const
{
    const ZelGradientStop stop = selected();
    return stop && stop.isColor() ? stop : ZelGradientStop();
}

/// With nothing selected the brightness stays as it was enabled last.
void ZelGradientView::pull()
{
    const ZelGradientStop stop = selected();
    const bool isValid = bool(stop);
    if (!isValid)
        cancelColorDialog();
    opacityEdit_->setEnabled(isValid);
    colorWidget_->setEnabled(isValid);
    deleteButton_->setEnabled(isValid && gradient_->stops() > leastStops);
    smoothButton_->setEnabled(isValid);
    if (extra_)
        extra_->setEnabled(isValid);
    if (!isValid)
        return;
    const bool isColor = stop.isColor();
    opacityEdit_->setEnabled(!isColor);
    brightnessEdit_->setEnabled(isColor);
    colorWidget_->setEnabled(isColor);
    if (isColor) {
        colorWidget_->setActiveColor(stop.color());
        brightnessEdit_->updateValue(stop.gain());
    } else {
        opacityEdit_->updateValue(stop.alpha());
    }
}

void ZelGradientView::selectionChanged()
{
    if (selectedColorStop().isNull())
        cancelColorDialog();
    pull();
}

void ZelGradientView::cancelColorDialog()
{
    if (isCancelling_)
        return;
    const QScopedValueRollback<bool> cancelling(isCancelling_, true);
    colorWidget_->cancelColorDialog();
}

void ZelGradientView::alphaChanged()
{
    ZelGradientStop stop = selected();
    if (stop.isNull() || !stop.isAlpha())
        return;
    stop.setAlpha(alpha_);
    Q_EMIT gradientChanged();
}

void ZelGradientView::gainChanged()
{
    ZelGradientStop stop = selectedColorStop();
    if (stop.isNull())
        return;
    stop.setGain(gain_);
    Q_EMIT gradientChanged();
}

void ZelGradientView::colorChanged()
{
    ZelGradientStop stop = isCancelling_ ? editedStop_ : selectedColorStop();
    if (stop.isNull())
        return;
    editedStop_ = stop;
    stop.setColor(colorWidget_->getZelColor());
    Q_EMIT gradientChanged();
}

void ZelGradientView::addColorStop()
{
    if (!gradient_)
        return;
    gradient_->addColorStop();
    Q_EMIT gradientChanged();
}

/// Unlike a new color stop, a new opacity stop is selected.
void ZelGradientView::addAlphaStop()
{
    if (!gradient_)
        return;
    const ZelGradientStop stop = gradient_->addAlphaStop();
    if (gradient_)
        gradient_->setSelected(stop);
    Q_EMIT gradientChanged();
}

void ZelGradientView::deleteStop()
{
    const ZelGradientStop stop = selected();
    if (stop.isNull())
        return;
    gradient_->removeStop(stop);
    Q_EMIT gradientChanged();
}

void ZelGradientView::smoothStop()
{
    ZelGradientStop stop = selected();
    if (stop.isNull())
        return;
    const float slope = std::clamp((stop.slopeIn() + stop.slopeOut()) * 0.5f, 0.0f, mostSlope);
    stop.setSlopeIn(slope);
    stop.setSlopeOut(slope);
    Q_EMIT gradientChanged();
}

void ZelGradientView::editStopColor(ZelGradientStop stop)
{
    if (stop && stop.isColor() && selected())
        colorWidget_->showColorDialog();
}
