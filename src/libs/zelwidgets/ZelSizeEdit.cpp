#include "ZelSizeEdit.h"

#include "ZelAspect.h"

#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QDebug>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr double sliderMaximum = 10;
constexpr float largestSize = 1e9F;

} // namespace

ZelSizeEdit::ZelSizeEdit(QWidget *parent)
    : QWidget(parent)
    , lockButton_(new ZelToolButton(ZelToolButton::Flat, this))
    , resetButton_(new ZelToolButton(ZelToolButton::Flat, this))
    , toolBar_(makeToolBar())
{
    widthEdit_ = addRow(tr("Width"), &width_);
    heightEdit_ = addRow(tr("Height"), &height_);
    sizeEdit_ = addRow(tr("Size"), &size_);
    sizeEdit_->hide();
    auto *rows = new QVBoxLayout;
    rows->addWidget(widthEdit_);
    rows->addWidget(heightEdit_);
    rows->addWidget(sizeEdit_);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(rows, 1);
    layout->addWidget(toolBar_);
    for (ZelDoubleSliderEdit *row : {widthEdit_, heightEdit_})
        connect(row, &ZelDoubleSliderEdit::beforeAdjustRange, this, &ZelSizeEdit::syncSliderRange);
}

ZelSizeEdit::~ZelSizeEdit()
{
    // The rows are bound to numbers in here.
    delete widthEdit_;
    delete heightEdit_;
    delete sizeEdit_;
}

ZelDoubleSliderEdit *ZelSizeEdit::addRow(const QString &text, float *number)
{
    auto *row = new ZelDoubleSliderEdit(text, 0, sliderMaximum, number, 0, largestSize, nullptr,
                                        nullptr, false);
    row->setParent(this);
    row->setDecimalsIsAbsolute(false);
    row->setAutoScaleRange(true, true);
    connect(row, &ZelDoubleSliderEdit::valueUpdated, this, [this, row] { sliderEditChanged(row); });
    return row;
}

QToolBar *ZelSizeEdit::makeToolBar()
{
    lockButton_->setCheckable(true);
    lockButton_->setIcon(ZelStyleIcon(QStringLiteral(":ui/icons/link")));
    lockButton_->setToolTip(tr("Lock Aspect"));
    resetButton_->setIcon(ZelStyleIcon(QStringLiteral(":ui/icons/refresh")));
    resetButton_->setToolTip(tr("Reset aspect ratio"));
    resetButton_->setEnabled(false);
    auto *bar = new QToolBar(this);
    bar->setOrientation(Qt::Vertical);
    bar->setContentsMargins(0, 0, 0, 0);
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    bar->addWidget(lockButton_);
    bar->addWidget(resetButton_);
    connect(lockButton_, &QToolButton::toggled, this, &ZelSizeEdit::setAspectLocked);
    connect(resetButton_, &QToolButton::clicked, this, &ZelSizeEdit::resetAspect);
    return bar;
}

void ZelSizeEdit::setSize(float width, float height)
{
    width_ = width;
    height_ = height;
    size_ = width;
    if (width != 0)
        computeAspect();
    for (ZelDoubleSliderEdit *row : {widthEdit_, heightEdit_, sizeEdit_})
        row->updateValue();
}

void ZelSizeEdit::setAspect(double aspect)
{
    if (!std::isfinite(aspect)) {
        qWarning() << "An aspect has to be finite:" << aspect << objectName();
        return;
    }
    if (ZelAspect::isClose(aspect, aspect_))
        return;
    aspect_ = aspect;
    height_ = ZelAspect::heightFor(width_, aspect_);
    if (!showSizeOnly_)
        heightEdit_->updateValue();
    updateResetButton();
    Q_EMIT sizeChanged(width_, height_);
}

void ZelSizeEdit::setDefaultAspect(double aspect)
{
    defaultAspect_ = aspect;
    updateResetButton();
}

void ZelSizeEdit::resetAspect()
{
    computeAspect();
    setAspect(defaultAspect_);
    setAspectLocked(true);
}

void ZelSizeEdit::setAspectLocked(bool locked)
{
    if (locked == aspectLocked_)
        return;
    aspectLocked_ = locked;
    {
        const QSignalBlocker blocker(lockButton_);
        lockButton_->setChecked(locked);
    }
    computeAspect();
    Q_EMIT aspectLockChanged(locked);
}

void ZelSizeEdit::setShowSizeOnly(bool sizeOnly)
{
    if (sizeOnly == showSizeOnly_)
        return;
    showSizeOnly_ = sizeOnly;
    size_ = width_;
    for (ZelDoubleSliderEdit *row : {widthEdit_, heightEdit_, sizeEdit_})
        row->updateValue();
    widthEdit_->setVisible(!sizeOnly);
    heightEdit_->setVisible(!sizeOnly);
    toolBar_->setVisible(!sizeOnly);
    sizeEdit_->setVisible(sizeOnly);
    if (sizeOnly)
        setAspectLocked(true);
}

void ZelSizeEdit::setSizeOnlyText(const QString &text)
{
    sizeEdit_->setText(text);
}

void ZelSizeEdit::setSizeText(const QString &width, const QString &height)
{
    widthEdit_->setText(width);
    heightEdit_->setText(height);
}

void ZelSizeEdit::setQuantity(Quantity quantity)
{
    for (ZelDoubleSliderEdit *row : {widthEdit_, heightEdit_, sizeEdit_})
        row->setQuantity(quantity);
}

void ZelSizeEdit::setUnit(const ZelUnitManager *manager)
{
    for (ZelDoubleSliderEdit *row : {widthEdit_, heightEdit_, sizeEdit_})
        row->setUnit(manager);
}

void ZelSizeEdit::sliderEditChanged(const ZelDoubleSliderEdit *row)
{
    if (aspectLocked_)
        followAspect(row);
    else
        computeAspect();
    Q_EMIT sizeChanged(width_, height_);
}

void ZelSizeEdit::followAspect(const ZelDoubleSliderEdit *row)
{
    if (row == widthEdit_)
        heightEdit_->updateValue(ZelAspect::heightFor(width_, aspect_));
    else if (row == heightEdit_)
        widthEdit_->updateValue(ZelAspect::widthFor(height_, aspect_));
    else {
        width_ = size_;
        height_ = ZelAspect::heightFor(size_, aspect_);
    }
}

void ZelSizeEdit::computeAspect()
{
    aspect_ = ZelAspect::ofSize(width_, height_);
    updateResetButton();
}

void ZelSizeEdit::updateResetButton()
{
    resetButton_->setEnabled(!ZelAspect::isClose(aspect_, defaultAspect_));
}

void ZelSizeEdit::syncSliderRange()
{
    double minimum = 0;
    double widthMaximum = widthEdit_->sliderMaximum();
    double heightMaximum = heightEdit_->sliderMaximum();
    const bool widthChanges = widthEdit_->computeAdjustedRange(width_, minimum, widthMaximum);
    const bool heightChanges = heightEdit_->computeAdjustedRange(height_, minimum, heightMaximum);
    if (!widthChanges && !heightChanges)
        return;
    const double maximum = std::max(widthMaximum, heightMaximum);
    widthEdit_->setRange(0, maximum);
    heightEdit_->setRange(0, maximum);
    // The row that asked goes on to adjust itself and may leave the common scale.
    QMetaObject::invokeMethod(
        this, [this] { widthEdit_->syncRange(*heightEdit_); }, Qt::QueuedConnection);
}
