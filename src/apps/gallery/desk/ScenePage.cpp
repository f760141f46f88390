#include "ScenePage.h"

#include "viewport/ViewScene.h"
#include "viewport/Viewport.h"

#include <ZelWidgets/ZelColorWidget>
#include <ZelWidgets/ZelDoubleSliderEdit>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize colorField(56, 24);

QVBoxLayout *columnOf(QWidget *tab)
{
    auto *column = new QVBoxLayout(tab);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(8);
    return column;
}

} // namespace

ScenePage::ScenePage(ViewScene *scene, Viewport *viewport, QWidget *parent)
    : QWidget(parent)
    , scene_(scene)
    , viewport_(viewport)
    , tabs_(new QTabWidget(this))
{
    setObjectName(QStringLiteral("ScenePage"));
    tabs_->setObjectName(QStringLiteral("ScenePageSubTab"));
    tabs_->setAccessibleName(tr("Scene"));
    tabs_->addTab(createObjectTab(), tr("Object"));
    tabs_->addTab(createCameraTab(), tr("Camera"));
    tabs_->addTab(createLightTab(), tr("Light"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addWidget(tabs_);
    connect(scene_, &ViewScene::changed, this, &ScenePage::showObject);
    connect(scene_, &ViewScene::changed, this, &ScenePage::showLight);
    connect(viewport_, &Viewport::cameraChanged, this, &ScenePage::showCamera);
    showObject();
    showCamera();
    showLight();
}

ZelDoubleSliderEdit *ScenePage::createRow(const QString &text, float minimum, float maximum,
                                          float *number)
{
    *number = minimum;
    return new ZelDoubleSliderEdit(text, double(minimum), double(maximum), number, minimum, maximum,
                                   nullptr, nullptr, false);
}

QWidget *ScenePage::createObjectTab()
{
    auto *tab = new QWidget(tabs_);
    QVBoxLayout *column = columnOf(tab);
    objectName_ = new QLabel(tab);
    objectName_->setProperty("heading", true);
    visible_ = new QCheckBox(tr("&Visible"), tab);
    color_ = new ZelColorWidget(zelsg::Color(), colorField, true, tab);
    color_->setAccessibleName(tr("Colour of the object"));
    auto *colorLabel = new QLabel(tr("&Colour"), tab);
    colorLabel->setBuddy(color_);
    auto *colorRow = new QHBoxLayout;
    colorRow->addWidget(colorLabel);
    colorRow->addStretch(1);
    colorRow->addWidget(color_);
    glossRow_ = createRow(tr("Gloss"), 0, 1, &gloss_);
    column->addWidget(objectName_);
    column->addWidget(visible_);
    column->addLayout(colorRow);
    column->addWidget(glossRow_);
    column->addStretch(1);

    connect(visible_, &QCheckBox::toggled, this,
            [this](bool on) { scene_->setVisible(scene_->selected(), on); });
    connect(color_, &ZelColorWidget::colorUpdated, this, [this] {
        // An open dialog goes with the field, when the scene may be gone.
        if (scene_)
            scene_->setColor(scene_->selected(), color_->getQColor());
    });
    connect(glossRow_, &ZelDoubleSliderEdit::valueUpdated, this,
            [this] { scene_->setGloss(scene_->selected(), gloss_); });
    return tab;
}

QWidget *ScenePage::createCameraTab()
{
    auto *tab = new QWidget(tabs_);
    QVBoxLayout *column = columnOf(tab);
    cameraRows_ = {createRow(tr("Around"), -180, 180, &yaw_),
                   createRow(tr("Height"), -89, 89, &pitch_),
                   createRow(tr("Angle of view"), 8, 110, &fieldOfView_)};
    for (ZelDoubleSliderEdit *row : std::as_const(cameraRows_)) {
        row->setSuffix(QStringLiteral("°"));
        row->setDecimals(1);
        column->addWidget(row);
        connect(row, &ZelDoubleSliderEdit::valueUpdated, this, &ScenePage::takeCamera);
    }
    auto *buttons = new QHBoxLayout;
    auto *fit = new QPushButton(tr("&Fit"), tab);
    auto *reset = new QPushButton(tr("&Reset"), tab);
    connect(fit, &QPushButton::clicked, viewport_, &Viewport::fitSelected);
    connect(reset, &QPushButton::clicked, viewport_, &Viewport::resetCamera);
    buttons->addStretch(1);
    buttons->addWidget(fit);
    buttons->addWidget(reset);
    column->addLayout(buttons);
    column->addStretch(1);
    return tab;
}

QWidget *ScenePage::createLightTab()
{
    auto *tab = new QWidget(tabs_);
    QVBoxLayout *column = columnOf(tab);
    studio_ = new QComboBox(tab);
    studio_->setAccessibleName(tr("Studio"));
    for (int i = 0; i < scene_->studioCount(); ++i)
        studio_->addItem(scene_->studio(i).name);
    column->addWidget(studio_);
    lightRows_ = {createRow(tr("Around"), -180, 180, &lightYaw_),
                  createRow(tr("Height"), 5, 90, &lightPitch_)};
    for (ZelDoubleSliderEdit *row : std::as_const(lightRows_)) {
        row->setSuffix(QStringLiteral("°"));
        row->setDecimals(1);
        column->addWidget(row);
    }
    column->addStretch(1);
    connect(studio_, &QComboBox::activated, scene_, &ViewScene::setCurrentStudio);
    connect(lightRows_[0], &ZelDoubleSliderEdit::valueUpdated, this,
            [this] { scene_->turnLight(lightYaw_ - scene_->studioInForce().lightYaw); });
    connect(lightRows_[1], &ZelDoubleSliderEdit::valueUpdated, this,
            [this] { scene_->setLightHeight(lightPitch_); });
    return tab;
}

void ScenePage::showObject()
{
    const int selected = scene_->selected();
    for (QWidget *widget : {static_cast<QWidget *>(visible_), static_cast<QWidget *>(color_),
                            static_cast<QWidget *>(glossRow_)})
        widget->setEnabled(selected >= 0);
    objectName_->setText(selected < 0 ? tr("No object is selected")
                                      : scene_->object(selected).name);
    if (selected < 0)
        return;
    const ViewObject &object = scene_->object(selected);
    const QSignalBlocker blocker(visible_);
    visible_->setChecked(object.isVisible);
    if (color_->getQColor() != object.color)
        color_->setColor(object.color, false);
    gloss_ = object.gloss;
    glossRow_->updateValue();
}

void ScenePage::showCamera()
{
    const OrbitCamera &camera = viewport_->camera();
    yaw_ = camera.yaw();
    pitch_ = camera.pitch();
    fieldOfView_ = camera.fieldOfView();
    for (ZelDoubleSliderEdit *row : std::as_const(cameraRows_))
        row->updateValue();
}

void ScenePage::showLight()
{
    studio_->setCurrentIndex(scene_->currentStudio());
    studio_->setEnabled(scene_->studiosAreOn());
    lightYaw_ = scene_->studioInForce().lightYaw;
    lightPitch_ = scene_->studioInForce().lightPitch;
    for (ZelDoubleSliderEdit *row : std::as_const(lightRows_))
        row->updateValue();
}

void ScenePage::takeCamera()
{
    OrbitCamera camera = viewport_->camera();
    camera.setAngles(yaw_, pitch_);
    camera.setFieldOfView(fieldOfView_);
    viewport_->setCamera(camera);
}

void ScenePage::editColor()
{
    tabs_->setCurrentIndex(0);
    if (scene_->selected() >= 0)
        color_->showColorDialog();
}
