#include "ZelImageCropDialog.h"

#include "ZelImageCropWidget.h"
#include "theme/ZelPushButton.h"

#include <QDialogButtonBox>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

/// Wants to be as large as the picture; a dialog grows to two thirds of the screen by itself.
class PictureArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

    QSize sizeHint() const override
    {
        // A sheet may give it a frame again.
        ensurePolished();
        const int frame = 2 * frameWidth();
        return widget()->sizeHint() + QSize(frame, frame);
    }
};

} // namespace

ZelImageCropDialog::ZelImageCropDialog(const QPixmap &picture, const QSize &cropSize)
    : widget_(new ZelImageCropWidget(picture, cropSize))
{
    createLayout();
}

QImage ZelImageCropDialog::getImage() const
{
    return widget_->getImage();
}

void ZelImageCropDialog::createLayout()
{
    setWindowTitle(tr("Crop the picture"));
    auto *area = new PictureArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(widget_);

    auto *crop = new ZelPushButton(tr("Crop"), this);
    connect(crop, &QPushButton::clicked, widget_, &ZelImageCropWidget::cropImage);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel | QDialogButtonBox::Ok, this);
    buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
    buttons->button(QDialogButtonBox::Ok)->setText(tr("Apply"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(area, 1);
    layout->addWidget(crop, 0, Qt::AlignLeft);
    layout->addWidget(buttons);
}
