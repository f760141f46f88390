#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QDialog>
#include <QImage>

class QPixmap;
class ZelImageCropWidget;

/// Lets the user cut a picture to a fixed aspect ratio, any number of times.
///
///     ZelImageCropDialog dialog(picture, QSize(16, 9));
///     if (dialog.exec() == QDialog::Accepted)
///         use(dialog.getImage());
class ZELWIDGETS_EXPORT ZelImageCropDialog : public QDialog
{
    Q_OBJECT

public:
    /// The crop size gives the aspect ratio. Pictures that are larger than the screen scroll.
    ZelImageCropDialog(const QPixmap &picture, const QSize &cropSize);

    /// The part of the picture that is inside the rectangle.
    QImage getImage() const;

private:
    void createLayout();

    ZelImageCropWidget *widget_;
};
