#pragma once

#include <QPointer>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QTabWidget;
class Viewport;
class ViewScene;
class ZelColorWidget;
class ZelDoubleSliderEdit;

/// The tab of the project window with the numbers of the scene: the selected object, the camera and
/// the light.
class ScenePage : public QWidget
{
    Q_OBJECT

public:
    ScenePage(ViewScene *scene, Viewport *viewport, QWidget *parent = nullptr);

    /// Shows the selected object and opens the dialog of its colour.
    void editColor();

private:
    QWidget *createObjectTab();
    QWidget *createCameraTab();
    QWidget *createLightTab();
    ZelDoubleSliderEdit *createRow(const QString &text, float minimum, float maximum,
                                   float *number);
    void showObject();
    void showCamera();
    void showLight();
    void takeCamera();

    QPointer<ViewScene> scene_;
    QPointer<Viewport> viewport_;
    QTabWidget *tabs_;
    QLabel *objectName_ = nullptr;
    QCheckBox *visible_ = nullptr;
    ZelColorWidget *color_ = nullptr;
    ZelDoubleSliderEdit *glossRow_ = nullptr;
    QComboBox *studio_ = nullptr;
    QList<ZelDoubleSliderEdit *> cameraRows_;
    QList<ZelDoubleSliderEdit *> lightRows_;
    float gloss_ = 0;
    float yaw_ = 0;
    float pitch_ = 0;
    float fieldOfView_ = 0;
    float lightYaw_ = 0;
    float lightPitch_ = 0;
};
