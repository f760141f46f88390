#pragma once

#include "GalleryPage.h"

#include <ZelWidgets/VideoInformation>

#include <memory>

class QLabel;
class QPushButton;
class QSpinBox;
class QTemporaryDir;
class ZelLabel;
class ZelLineEdit;
class ZelPixmapLabel;

/// The frames of a video as picture files: of a chosen one, or of a clip that the page makes.
class VideoFramesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit VideoFramesPage(QWidget *parent = nullptr);
    ~VideoFramesPage() override;

private:
    void addSource();
    void addExtraction();
    void browse();
    void extract();
    /// Path of the chosen video, or of a test clip; empty if none could be made.
    QString video();
    QString makeClip();
    void show(const VideoInformation &frames);
    void showLeftOvers(const QString &video);

    ZelLineEdit *path_ = nullptr;
    QSpinBox *seconds_ = nullptr;
    QPushButton *extract_ = nullptr;
    ZelLabel *result_ = nullptr;
    ZelPixmapLabel *first_ = nullptr;
    std::unique_ptr<QTemporaryDir> folder_;
};
