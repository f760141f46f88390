#pragma once

#include "GalleryPage.h"

#include <QSize>

class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class QVBoxLayout;
class ZelImageCropWidget;

/// Cropping a picture on the page and in the dialog, to any aspect ratio, with what comes out.
class CropPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit CropPage(QWidget *parent = nullptr);

private:
    void addRatio();
    void addInPlace();
    void addDialog();
    QLabel *createResult(const QString &name);
    QSpinBox *createPart(const QString &name, int value);

    QSize ratio() const;
    void takeRatio();
    void showWidget();
    void openDialog();
    void showResult(QLabel *label, const QImage &image);

    QComboBox *ratios_ = nullptr;
    QSpinBox *width_ = nullptr;
    QSpinBox *height_ = nullptr;
    QVBoxLayout *place_ = nullptr;
    ZelImageCropWidget *widget_ = nullptr;
    QLabel *inPlaceResult_ = nullptr;
    QCheckBox *large_ = nullptr;
    QLabel *dialogResult_ = nullptr;
};
