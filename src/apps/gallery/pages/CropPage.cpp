#include "CropPage.h"

#include "SectionRow.h"

#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelImageCropDialog>
#include <ZelWidgets/ZelImageCropWidget>
#include <ZelWidgets/ZelPushButton>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr QSize smallPicture(480, 270);
constexpr QSize mediumPicture(800, 500);
constexpr QSize largePicture(6000, 4000);
constexpr QSize resultSize(240, 160);
constexpr int ridgeCount = 4;

// A ridge of hills across a picture one unit wide and high.
QPainterPath ridge(int index)
{
    constexpr int steps = 120;
    const double base = 0.52 + 0.12 * index;
    QPainterPath path(QPointF(0, 1));
    for (int i = 0; i <= steps; ++i) {
        const double x = double(i) / steps;
        const double y = base - 0.09 * std::sin(5.1 * x + 1.7 * index) -
                         0.035 * std::sin(17 * x + 2.9 * index) -
                         0.008 * std::sin(71 * x + 0.7 * index);
        path.lineTo(x, y);
    }
    path.lineTo(1, 1);
    path.closeSubpath();
    return path;
}

QPixmap landscape(QSize size)
{
    QPixmap picture(size);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width(), size.height());
    QLinearGradient sky(0, 0, 0, 0.7);
    sky.setColorAt(0, QColor(52, 98, 168));
    sky.setColorAt(1, QColor(246, 196, 142));
    painter.fillRect(QRectF(0, 0, 1, 1), sky);
    const double aspect = double(size.width()) / size.height();
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 240, 205));
    painter.drawEllipse(QPointF(0.68, 0.34), 0.045, 0.045 * aspect);
    for (int i = 0; i < ridgeCount; ++i) {
        painter.setBrush(QColor(96 - 22 * i, 112 - 20 * i, 118 - 26 * i));
        painter.drawPath(ridge(i));
    }
    return picture;
}

} // namespace

CropPage::CropPage(QWidget *parent)
    : GalleryPage(parent)
{
    addRatio();
    addInPlace();
    addDialog();
    addStretch();
    leaveWheelToScrolling();
    takeRatio();
}

QSpinBox *CropPage::createPart(const QString &name, int value)
{
    auto *part = new QSpinBox(this);
    part->setRange(1, 100);
    part->setValue(value);
    part->setAccessibleName(name);
    connect(part, &QSpinBox::valueChanged, this, &CropPage::showWidget);
    return part;
}

void CropPage::addRatio()
{
    QHBoxLayout *row = addRow(addSection(tr("Aspect ratio")));
    ratios_ = new ZelComboBox(this);
    for (const QSize ratio : {QSize(16, 9), QSize(3, 2), QSize(1, 1), QSize(2, 3)})
        ratios_->addItem(QStringLiteral("%1 : %2").arg(ratio.width()).arg(ratio.height()), ratio);
    ratios_->addItem(tr("Own"), QSize());
    auto *label = new QLabel(tr("&Ratio"), this);
    label->setBuddy(ratios_);
    width_ = createPart(tr("Width of the ratio"), 21);
    height_ = createPart(tr("Height of the ratio"), 9);
    row->addWidget(label);
    row->addWidget(ratios_);
    row->addWidget(width_);
    row->addWidget(new QLabel(QStringLiteral(":"), this));
    row->addWidget(height_);
    row->addStretch(1);
    connect(ratios_, &QComboBox::currentIndexChanged, this, &CropPage::takeRatio);
}

QSize CropPage::ratio() const
{
    const QSize chosen = ratios_->currentData().toSize();
    return chosen.isEmpty() ? QSize(width_->value(), height_->value()) : chosen;
}

void CropPage::takeRatio()
{
    const bool isOwn = ratios_->currentData().toSize().isEmpty();
    width_->setEnabled(isOwn);
    height_->setEnabled(isOwn);
    showWidget();
}

QLabel *CropPage::createResult(const QString &name)
{
    auto *label = new QLabel(tr("No result yet"), this);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameShape(QFrame::StyledPanel);
    label->setFixedSize(resultSize + QSize(4, 4));
    label->setAccessibleName(name);
    return label;
}

void CropPage::addInPlace()
{
    QVBoxLayout *section =
        addSection(tr("On the page"),
                   tr("Drag the rectangle, its edges or corners. With the focus the arrow keys "
                      "move it, with Control they resize it, and Shift makes steps of ten."));
    QHBoxLayout *row = addRow(section);
    row->setSpacing(16);
    place_ = new QVBoxLayout;
    row->addLayout(place_);
    auto *side = new QVBoxLayout;
    inPlaceResult_ = createResult(tr("Result on the page"));
    auto *crop = new ZelPushButton(tr("&Crop"), this);
    connect(crop, &QPushButton::clicked, this, [this] {
        widget_->cropImage();
        showResult(inPlaceResult_, widget_->getImage());
    });
    auto *reset = new ZelPushButton(tr("R&eset"), this);
    connect(reset, &QPushButton::clicked, this, &CropPage::showWidget);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(crop);
    buttons->addWidget(reset);
    buttons->addStretch(1);
    side->addWidget(inPlaceResult_);
    side->addLayout(buttons);
    side->addStretch(1);
    row->addLayout(side);
    row->addStretch(1);
}

void CropPage::showWidget()
{
    delete widget_;
    widget_ = new ZelImageCropWidget(landscape(smallPicture), ratio());
    widget_->setObjectName(QStringLiteral("InPlaceCrop"));
    place_->insertWidget(0, widget_, 0, Qt::AlignLeft | Qt::AlignTop);
    setTabOrder(height_, widget_);
}

void CropPage::addDialog()
{
    QVBoxLayout *section =
        addSection(tr("In the dialog"),
                   tr("Crop cuts, as often as wanted; Apply gives the part inside the rectangle. "
                      "A picture that is larger than the screen scrolls."));
    QHBoxLayout *row = addRow(section);
    row->setSpacing(16);
    auto *controls = new QVBoxLayout;
    large_ = new QCheckBox(tr("24 &megapixels"), this);
    auto *open = new ZelPushButton(tr("&Open the dialog"), this);
    connect(open, &QPushButton::clicked, this, &CropPage::openDialog);
    controls->addWidget(large_);
    controls->addWidget(open);
    controls->addStretch(1);
    dialogResult_ = createResult(tr("Result of the dialog"));
    row->addLayout(controls);
    row->addWidget(dialogResult_);
    row->addStretch(1);
}

void CropPage::openDialog()
{
    auto *dialog = new ZelImageCropDialog(
        landscape(large_->isChecked() ? largePicture : mediumPicture), ratio());
    dialog->setParent(this, dialog->windowFlags());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this,
            [this, dialog] { showResult(dialogResult_, dialog->getImage()); });
    connect(dialog, &QDialog::rejected, this, [this] { log(tr("dialog: cancelled")); });
    dialog->open();
}

void CropPage::showResult(QLabel *label, const QImage &image)
{
    const qreal ratio = devicePixelRatio();
    QImage shown = image;
    if (image.width() > resultSize.width() * ratio || image.height() > resultSize.height() * ratio)
        shown = image.scaled(resultSize * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(ratio);
    label->setPixmap(QPixmap::fromImage(shown));
    log(tr("%1: %2 by %3 pixels")
            .arg(label->accessibleName())
            .arg(image.width())
            .arg(image.height()));
}
