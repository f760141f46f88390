#include "Viewport.h"

#include "ViewScene.h"
#include "ViewportGestures.h"

#include <ZelWidgets/ViewCtrl>
#include <ZelWidgets/ZelMenu>
#include <ZelWidgets/ZelMouseActionSettings>

#include <QAccessibleWidget>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

using Pace = ViewportRenderer::Pace;

constexpr double degreesPerPixel = 0.4;
constexpr double stepsPerPixel = 0.05;
constexpr double pixelsPerNotch = 20;
constexpr double pixelsPerKey = 15;
constexpr int focusWidth = 2;
constexpr float marqueeOpacity = 0.2F;

/// Which way of a drag goes nearer, by the mode that comes with the camera's preset.
double dollySteps(const QPointF &way)
{
    switch (ViewCtrl::Settings::instance()->dollyZoomInMode()) {
    case ViewCtrl::DollyMouseMode::Mode0:
        return way.x() * stepsPerPixel;
    case ViewCtrl::DollyMouseMode::Mode1:
        return way.y() * stepsPerPixel;
    case ViewCtrl::DollyMouseMode::Mode2:
        return -way.y() * stepsPerPixel;
    case ViewCtrl::DollyMouseMode::Mode3:
        break;
    }
    return (way.x() - way.y()) * stepsPerPixel;
}

QAccessibleInterface *makeAccessible(const QString &name, QObject *object)
{
    const bool isOwn = name == QLatin1String(Viewport::staticMetaObject.className());
    return isOwn ? new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Canvas)
                 : nullptr;
}

} // namespace

Viewport::Viewport(ViewScene *scene, QWidget *parent)
    : QWidget(parent)
    , scene_(scene)
    , gestures_(new ViewportGestures(this))
    , renderer_(new ViewportRenderer(scene, this))
{
    setObjectName(QStringLiteral("Viewport"));
    setAccessibleName(tr("Viewport"));
    QAccessible::installFactory(makeAccessible);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connectGestures();
    connect(renderer_, &ViewportRenderer::updated, this, [this] {
        shown_ = QPixmap::fromImage(renderer_->picture()->image());
        update();
    });
    connect(scene_, &ViewScene::changed, this,
            [this] { requestPicture(gestures_->isDragging() ? Pace::Drag : Pace::Step); });
    connect(scene_, &ViewScene::selectionChanged, this, &Viewport::tellSelection);
    tellSelection();
}

void Viewport::connectGestures()
{
    connect(gestures_, &ViewportGestures::dragBegan, this, [this] { cameraBefore_ = camera_; });
    connect(gestures_, &ViewportGestures::dragged, this,
            [this](const QString &action, const QPointF &way) { follow(action, way, Pace::Drag); });
    connect(gestures_, &ViewportGestures::dragEnded, this, [this] {
        selectInMarquee();
        requestPicture(Pace::Rest);
    });
    connect(gestures_, &ViewportGestures::clicked, this, &Viewport::click);
    connect(gestures_, &ViewportGestures::wheelTurned, this,
            [this](const QString &action, double notches) {
                follow(action, QPointF(0, -notches * pixelsPerNotch), Pace::Step);
            });
}

QSize Viewport::sizeHint() const
{
    return {640, 480};
}

QSize Viewport::minimumSizeHint() const
{
    return {160, 120};
}

void Viewport::setCamera(const OrbitCamera &camera, Pace pace)
{
    if (camera == camera_)
        return;
    camera_ = camera;
    requestPicture(pace);
    Q_EMIT cameraChanged();
}

void Viewport::setUsesDevicePixels(bool on)
{
    usesDevicePixels_ = on;
    requestPicture(Pace::Rest);
}

void Viewport::requestPicture(Pace pace)
{
    const double ratio = usesDevicePixels_ ? devicePixelRatioF() : 1.0;
    renderer_->setSelectionColor(palette().color(QPalette::Highlight));
    renderer_->request(camera_, (QSizeF(size()) * ratio).toSize(), pace);
}

QImage Viewport::takePicture()
{
    if (!renderer_->picture())
        requestPicture(Pace::Rest);
    renderer_->finish();
    return renderer_->picture() ? renderer_->picture()->image() : QImage();
}

void Viewport::refresh()
{
    requestPicture(Pace::Rest);
}

void Viewport::resetCamera()
{
    setCamera(OrbitCamera());
}

void Viewport::fitAll()
{
    Mesh all;
    for (const ViewObject &object : scene_->objects()) {
        if (object.isVisible)
            all.positions.insert(all.positions.end(), object.mesh.positions.begin(),
                                 object.mesh.positions.end());
    }
    if (all.positions.empty())
        return;
    OrbitCamera camera = camera_;
    camera.fit(all.center(), all.radius());
    setCamera(camera);
}

void Viewport::fitSelected()
{
    if (scene_->selected() < 0)
        return fitAll();
    Mesh all;
    for (const int object : scene_->selection()) {
        const Mesh &mesh = scene_->object(object).mesh;
        all.positions.insert(all.positions.end(), mesh.positions.begin(), mesh.positions.end());
    }
    OrbitCamera camera = camera_;
    camera.fit(all.center(), all.radius());
    setCamera(camera);
}

/// What a way in pixels does to the camera or to the light.
void Viewport::follow(const QString &action, const QPointF &way, Pace pace)
{
    OrbitCamera camera = camera_;
    if (action == QLatin1String("if#mouse.marquesel"))
        return growMarquee(way);
    if (action == QLatin1String("cam#ctrl.aTumble") ||
        action == QLatin1String("cam#ctrl.aTumbleAlt"))
        camera.orbit(way * degreesPerPixel);
    else if (action == QLatin1String("cam#ctrl.bPan") || action == QLatin1String("cam#ctrl.bPan2"))
        camera.pan(way, height());
    else if (action == QLatin1String("cam#ctrl.cvDolly") ||
             action == QLatin1String("cam#ctrl.cxDolly2"))
        // The wheel goes nearer when it is turned away, in every mode.
        camera.dolly(float(pace == Pace::Drag ? dollySteps(way) : -way.y() * stepsPerPixel));
    else if (action == QLatin1String("cam#ctrl.czFocalLength"))
        camera.changeFocalLength(float(-way.y() * stepsPerPixel));
    else if (action == QLatin1String("cam#ctrl.dPerspective"))
        camera.changePerspective(float(-way.y() * stepsPerPixel));
    else if (action == QLatin1String("cam#ctrl.gTwist"))
        camera.twist(float((way.x() - way.y()) * degreesPerPixel));
    else if (action == QLatin1String("env.xRotate"))
        scene_->turnLight(float(way.x() * degreesPerPixel));
    setCamera(camera, pace);
}

QPoint Viewport::pixelAt(const QPoint &place) const
{
    const RenderJob *picture = renderer_->picture();
    if (!picture || width() == 0 || height() == 0)
        return {-1, -1};
    const QSize size = picture->image().size();
    return {place.x() * size.width() / width(), place.y() * size.height() / height()};
}

int Viewport::objectAt(const QPoint &place) const
{
    const RenderJob *picture = renderer_->picture();
    return picture ? picture->objectAt(pixelAt(place)) : -1;
}

void Viewport::click(const QString &action, const QPoint &place)
{
    const int object = objectAt(place);
    if (action == QLatin1String("if#mouse.bSelectAdd"))
        selectAt(place, true);
    else if (action.startsWith(QLatin1String("if#mouse.aSelect")))
        selectAt(place, false);
    else if (action == QLatin1String("if#mouse.xShowOnly"))
        scene_->showOnly(object);
    else if (action == QLatin1String("if#mouse.zHidePart"))
        scene_->setVisible(object, false);
    else if (action == QLatin1String("cam#ctrl.ePickPivot"))
        pickTarget(place);
    else if (action == QLatin1String("cam#ctrl.eCenterAndFit")) {
        scene_->select(object);
        fitSelected();
    } else if (action == QLatin1String("if#mouse.context"))
        openMenu(mapToGlobal(place));
    else if (!applyMaterialAt(action, place))
        Q_EMIT said(tr("Viewport: no use for %1 here").arg(action));
}

QRect Viewport::marquee() const
{
    const QPoint corner = gestures_->pressedPlace();
    const QPoint way = marqueeWay_.value_or(QPointF()).toPoint();
    return QRect(corner, corner + way).normalized() & rect();
}

void Viewport::growMarquee(const QPointF &way)
{
    marqueeWay_ = marqueeWay_.value_or(QPointF()) + way;
    update();
}

void Viewport::dropMarquee()
{
    marqueeWay_.reset();
    update();
}

void Viewport::selectInMarquee()
{
    if (!marqueeWay_)
        return;
    const QRect area = marquee();
    dropMarquee();
    const RenderJob *picture = renderer_->picture();
    const QRect pixels(pixelAt(area.topLeft()), pixelAt(area.bottomRight()));
    const QList<int> objects = picture ? picture->objectsIn(pixels) : QList<int>();
    scene_->select(objects);
    Q_EMIT said(tr("Viewport: %1").arg(accessibleDescription()));
}

void Viewport::selectAt(const QPoint &place, bool toggles)
{
    const int object = objectAt(place);
    scene_->select(toggles && object == scene_->selected() ? -1 : object);
}

void Viewport::pickTarget(const QPoint &place)
{
    const RenderJob *picture = renderer_->picture();
    const auto point = picture ? picture->pointAt(pixelAt(place)) : std::nullopt;
    if (!point)
        return;
    OrbitCamera camera = camera_;
    camera.setTarget(*point);
    setCamera(camera);
}

/// Colours are picked up from one object and put on others; the double click edits one.
bool Viewport::applyMaterialAt(const QString &action, const QPoint &place)
{
    const int object = objectAt(place);
    if (!action.startsWith(QLatin1String("mat.")))
        return false;
    if (object < 0)
        return true;
    if (action == QLatin1String("mat.aEditMaterial")) {
        scene_->select(object);
        Q_EMIT editWanted(object);
    } else if (action == QLatin1String("mat.bSelect")) {
        heldColor_ = scene_->object(object).color;
        Q_EMIT said(tr("Viewport: holds the colour of %1").arg(scene_->object(object).name));
    } else if (heldColor_.isValid()) {
        scene_->setColor(object, heldColor_);
    }
    return true;
}

void Viewport::openMenu(const QPoint &globalPlace)
{
    auto *menu = new ZelMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const int object = scene_->selected();
    menu->addAction(tr("Show &all"), scene_, &ViewScene::showAll);
    QAction *only = menu->addAction(tr("Show &only the selected object"), this,
                                    [this, object] { scene_->showOnly(object); });
    QAction *hide = menu->addAction(tr("&Hide the selected object"), this,
                                    [this, object] { scene_->setVisible(object, false); });
    QAction *edit = menu->addAction(tr("&Edit its colour"), this,
                                    [this, object] { Q_EMIT editWanted(object); });
    for (QAction *action : {only, hide, edit})
        action->setEnabled(object >= 0);
    menu->addSeparator();
    menu->addAction(tr("&Fit"), this, &Viewport::fitSelected);
    menu->addAction(tr("&Reset the camera"), this, &Viewport::resetCamera);
    menu->popup(globalPlace);
}

void Viewport::tellSelection()
{
    QStringList names;
    for (const int object : scene_->selection())
        names.append(scene_->object(object).name);
    const QString form = names.size() > 1 ? tr("%1 are selected") : tr("%1 is selected");
    setAccessibleDescription(names.isEmpty() ? tr("Nothing is selected")
                                             : form.arg(names.join(QStringLiteral(", "))));
}

void Viewport::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        requestPicture(Pace::Rest);
}

void Viewport::contextMenuEvent(QContextMenuEvent *event)
{
    // The mouse goes by the table of gestures.
    if (event->reason() == QContextMenuEvent::Keyboard)
        openMenu(mapToGlobal(rect().center()));
    event->accept();
}

void Viewport::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void Viewport::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void Viewport::keyPressEvent(QKeyEvent *event)
{
    QPointF way;
    switch (event->key()) {
    case Qt::Key_Left:
        way = {-pixelsPerKey, 0};
        break;
    case Qt::Key_Right:
        way = {pixelsPerKey, 0};
        break;
    case Qt::Key_Up:
        way = {0, -pixelsPerKey};
        break;
    case Qt::Key_Down:
        way = {0, pixelsPerKey};
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return follow(QStringLiteral("cam#ctrl.cvDolly"), {0, -pixelsPerNotch}, Pace::Step);
    case Qt::Key_Minus:
        return follow(QStringLiteral("cam#ctrl.cvDolly"), {0, pixelsPerNotch}, Pace::Step);
    case Qt::Key_Home:
        return fitAll();
    case Qt::Key_Escape:
        if (gestures_->isDragging()) {
            gestures_->cancel();
            dropMarquee();
            return setCamera(cameraBefore_, Pace::Rest);
        }
        return QWidget::keyPressEvent(event);
    default:
        return QWidget::keyPressEvent(event);
    }
    if (event->modifiers() & Qt::ControlModifier)
        follow(QStringLiteral("env.xRotate"), way, Pace::Step);
    else if (event->modifiers() & Qt::ShiftModifier)
        follow(QStringLiteral("cam#ctrl.bPan"), way, Pace::Step);
    else
        follow(QStringLiteral("cam#ctrl.aTumble"), way, Pace::Step);
}

void Viewport::mouseDoubleClickEvent(QMouseEvent *event)
{
    gestures_->doubleClick(event);
}

void Viewport::mouseMoveEvent(QMouseEvent *event)
{
    gestures_->move(event);
}

void Viewport::mousePressEvent(QMouseEvent *event)
{
    gestures_->press(event);
}

void Viewport::mouseReleaseEvent(QMouseEvent *event)
{
    gestures_->release(event);
}

void Viewport::wheelEvent(QWheelEvent *event)
{
    gestures_->wheel(event);
    event->accept();
}

void Viewport::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    requestPicture(Pace::Step);
}

void Viewport::paintMarquee(QPainter *painter) const
{
    QColor fill = palette().color(QPalette::Highlight);
    painter->setPen(fill);
    fill.setAlphaF(marqueeOpacity);
    painter->setBrush(fill);
    painter->drawRect(marquee().adjusted(0, 0, -1, -1));
    painter->setBrush(Qt::NoBrush);
}

void Viewport::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (shown_.isNull())
        painter.fillRect(rect(), palette().window());
    else
        painter.drawPixmap(rect(), shown_);
    if (marqueeWay_)
        paintMarquee(&painter);
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::Highlight), focusWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
