#include "ZelViewModeChoice.h"

#include "ZelComboBox.h"

#include <QHBoxLayout>
#include <QLabel>

#include <utility>

namespace {

constexpr int modeCount = 14;

ViewCtrl::Settings &settings()
{
    return *ViewCtrl::Settings::instance();
}

} // namespace

ZelViewModeChoice::ZelViewModeChoice(QWidget *parent)
    : QWidget(parent)
    , box_(new ZelComboBox(this))
{
    box_->setObjectName(QStringLiteral("ShortcutViewMode"));
    box_->setAccessibleName(tr("Camera preset"));
    auto *label = new QLabel(tr("Camera &preset"), this);
    label->setBuddy(box_);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(box_);
    layout->addStretch(1);
    for (int mode = 0; mode < modeCount; ++mode)
        box_->addItem(mode == 0 ? tr("Own gestures") : tr("Preset %1").arg(mode));
    connect(box_, &QComboBox::activated, this, &ZelViewModeChoice::choose);
    remember();
}

void ZelViewModeChoice::setNames(const QStringList &names)
{
    for (int mode = 0; mode < qMin(modeCount, static_cast<int>(names.size())); ++mode)
        box_->setItemText(mode, names[mode]);
}

bool ZelViewModeChoice::isChanged() const
{
    return settings().viewMode() != mode_ || settings().dollyZoomInMode() != dolly_;
}

void ZelViewModeChoice::refresh()
{
    const int mode = static_cast<int>(settings().viewMode());
    box_->setCurrentIndex(mode < modeCount ? mode : -1);
}

void ZelViewModeChoice::remember()
{
    mode_ = settings().viewMode();
    dolly_ = settings().dollyZoomInMode();
    isTouched_ = false;
    refresh();
}

void ZelViewModeChoice::store()
{
    if (settings().viewMode() != mode_)
        settings().storeViewCamSettings();
    remember();
}

void ZelViewModeChoice::restore()
{
    if (isChanged() || std::exchange(isTouched_, false)) {
        settings().setViewMode(mode_);
        // The mode brings one of its own along.
        settings().setDollyZoomInMode(dolly_);
    }
    refresh();
}

void ZelViewModeChoice::choose(int row)
{
    const auto mode = static_cast<ViewCtrl::ViewMode>(row);
    if (mode == settings().viewMode())
        return;
    settings().setViewMode(mode);
    if (mode == mode_)
        settings().setDollyZoomInMode(dolly_);
    Q_EMIT chosen();
}
