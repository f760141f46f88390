#include "TestCase.h"

#include "UserInput.h"
#include "viewport/RenderJob.h"
#include "viewport/ViewScene.h"
#include "viewport/Viewport.h"

#include <ZelWidgets/ViewCtrl>
#include <ZelWidgets/ZelShortcutHandler>

#include <QMenu>

#include <memory>

namespace {

constexpr QSize pictureSize(160, 120);

QPointF onScreen(const OrbitCamera &camera, const QVector3D &point, const QSize &size)
{
    const QVector3D p = camera.view().map(point);
    const float scale = float(size.height()) / 2 / camera.halfHeight() / -p.z();
    return {size.width() / 2.0 + p.x() * scale, size.height() / 2.0 - p.y() * scale};
}

bool isNear(const QVector3D &a, const QVector3D &b, float distance)
{
    return (a - b).length() < distance;
}

int indexOf(const ViewScene &scene, const char *name)
{
    for (int i = 0; i < scene.objectCount(); ++i) {
        if (scene.object(i).name == QLatin1String(name))
            return i;
    }
    return -1;
}

} // namespace

/// The software view: camera, pictures and what mouse and keys do with them.
class ViewportTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theCameraKeepsWhatItPromises();
    void thePictureShowsWhatIsNearest();
    void aPictureInBandsIsTheWholePicture();
    void aPictureFromAnywhereIsDrawn_data();
    void aPictureFromAnywhereIsDrawn();
    void shadowsAndLightFollowTheStudio();
    void aDragShowsDraftsAndEndsInTheFinestPicture();
    void theMouseDoesWhatTheTableSays();
    void aMarqueeSelectsWhatItTouches();
    void theKeyboardDoesItToo();

private:
    std::unique_ptr<ViewScene> scene_;
    std::unique_ptr<Viewport> view_;
};

void ViewportTest::init()
{
    TestCase::init();
    ZelShortcutHandler::prepareInstance();
    ViewCtrl::Settings::instance()->setViewMode(ViewCtrl::ViewMode::Mode0);
    scene_ = std::make_unique<ViewScene>();
    view_ = std::make_unique<Viewport>(scene_.get());
    view_->resize(320, 240);
    view_->show();
    view_->takePicture();
}

void ViewportTest::cleanup()
{
    view_.reset();
    scene_.reset();
    ZelShortcutHandler::destroy();
    TestCase::cleanup();
}

void ViewportTest::theCameraKeepsWhatItPromises()
{
    OrbitCamera camera;
    const QVector3D target = camera.target();
    QVERIFY(isNear(camera.view().inverted().map(QVector3D()), camera.eye(), 1e-4F));
    const QPointF middle = onScreen(camera, target, pictureSize);
    QVERIFY((middle - QPointF(80, 60)).manhattanLength() < 1e-3);

    camera.pan({12, -7}, pictureSize.height());
    const QPointF moved = onScreen(camera, target, pictureSize) - middle;
    QVERIFY((moved - QPointF(12, -7)).manhattanLength() < 0.05);

    const float size = camera.halfHeight() * camera.distance();
    camera.changePerspective(3);
    QVERIFY(qAbs(camera.halfHeight() * camera.distance() - size) < 1e-4F);
    camera.orbit({0, 1e6});
    QCOMPARE(camera.pitch(), 89.0F);
    camera.dolly(1e4F);
    QVERIFY(camera.distance() > 0.1F);
    camera.changeFocalLength(-1e4F);
    QVERIFY(camera.fieldOfView() < 180.0F);

    camera.fit({1, 2, 3}, 2);
    for (const QVector3D &side : {QVector3D(2, 0, 0), QVector3D(0, 2, 0), QVector3D(0, 0, 2)})
        QVERIFY(QRectF(QPointF(), QSizeF(pictureSize))
                    .contains(onScreen(camera, QVector3D(1, 2, 3) + side, pictureSize)));
}

void ViewportTest::thePictureShowsWhatIsNearest()
{
    const int ball = indexOf(*scene_, "Ball");
    const int column = indexOf(*scene_, "Column");
    QVERIFY(ball >= 0 && column >= 0);
    // From the front the ball stands before the column.
    OrbitCamera camera;
    camera.setTarget({-1.45F, 0.8F, 0});
    camera.setAngles(0, 0);
    const auto pixel = onScreen(camera, scene_->object(ball).mesh.center(), pictureSize).toPoint();
    RenderJob front(*scene_, camera, {pictureSize});
    front.renderAll();
    QCOMPARE(front.objectAt(pixel), ball);
    const auto point = front.pointAt(pixel);
    QVERIFY(point && isNear(*point, scene_->object(ball).mesh.center(), 0.9F));
    QVERIFY(!isNear(*point, scene_->object(ball).mesh.center(), 0.7F));
    QCOMPARE(front.objectAt({-1, 0}), -1);
    QVERIFY(!front.pointAt({pictureSize.width(), 0}));

    scene_->setVisible(ball, false);
    RenderJob hidden(*scene_, camera, {pictureSize});
    hidden.renderAll();
    QCOMPARE(hidden.objectAt(pixel), column);
}

void ViewportTest::aPictureInBandsIsTheWholePicture()
{
    for (const int samples : {1, 2}) {
        RenderJob whole(*scene_, OrbitCamera(), {pictureSize, samples});
        whole.renderAll();
        RenderJob bands(*scene_, OrbitCamera(), {pictureSize, samples});
        QVERIFY(!bands.isDone());
        int steps = 0;
        while (bands.renderNextBand())
            ++steps;
        QVERIFY(steps > 4);
        QVERIFY(bands.isDone());
        QCOMPARE(bands.image(), whole.image());
        QCOMPARE(bands.image().size(), pictureSize);
    }
}

void ViewportTest::aPictureFromAnywhereIsDrawn_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QVector3D>("target");
    QTest::addColumn<float>("pitch");
    QTest::newRow("one pixel") << QSize(1, 1) << QVector3D(0, 0.8F, 0) << 20.0F;
    QTest::newRow("flat") << QSize(300, 1) << QVector3D(0, 0.8F, 0) << 20.0F;
    QTest::newRow("odd") << QSize(33, 17) << QVector3D(0, 0.8F, 0) << 20.0F;
    QTest::newRow("nothing") << QSize(0, 0) << QVector3D(0, 0.8F, 0) << 20.0F;
    QTest::newRow("inside the ball") << pictureSize << QVector3D(-1.3F, 0.8F, 0.9F) << 0.0F;
    QTest::newRow("in the floor") << pictureSize << QVector3D(0, 0, 0) << 0.0F;
    QTest::newRow("from below") << pictureSize << QVector3D(0, 0.8F, 0) << -89.0F;
    QTest::newRow("far away") << pictureSize << QVector3D(1e6F, 0, 0) << 20.0F;
}

void ViewportTest::aPictureFromAnywhereIsDrawn()
{
    QFETCH(const QSize, size);
    QFETCH(const QVector3D, target);
    QFETCH(const float, pitch);
    OrbitCamera camera;
    camera.setTarget(target);
    camera.setAngles(0, pitch);
    camera.dolly(100);
    RenderJob job(*scene_, camera, {size, 2});
    job.renderAll();
    QCOMPARE(job.image().size(), size.expandedTo(QSize(1, 1)));
    const QRgb pixel = job.image().pixel(0, 0);
    QVERIFY(pixel != qRgb(0, 0, 0));
}

void ViewportTest::shadowsAndLightFollowTheStudio()
{
    OrbitCamera above;
    above.setTarget({0, 0, 0});
    above.setAngles(0, 89);
    const int ball = indexOf(*scene_, "Ball");
    scene_->showOnly(ball);
    const auto brightness = [&](const QVector3D &place) {
        RenderJob job(*scene_, above, {pictureSize});
        job.renderAll();
        return qGray(job.image().pixel(onScreen(above, place, pictureSize).toPoint()));
    };
    const QVector3D light = scene_->studioInForce().lightDirection();
    const QVector3D middle = scene_->object(ball).mesh.center();
    const auto shadowOf = [](const QVector3D &point, const QVector3D &direction) {
        return point - direction * (point.y() / direction.y());
    };
    scene_->setLightHeight(30);
    const QVector3D shadow = shadowOf(middle, scene_->studioInForce().lightDirection());
    const int dark = brightness(shadow);
    scene_->turnLight(180);
    const int lit = brightness(shadow);
    QVERIFY2(dark + 20 < lit, qPrintable(QStringLiteral("%1 %2").arg(dark).arg(lit)));
    QVERIFY(!isNear(light, scene_->studioInForce().lightDirection(), 0.1F));
    const QImage studio = view_->takePicture();
    scene_->setStudiosOn(false);
    QVERIFY(view_->takePicture() != studio);
}

void ViewportTest::aDragShowsDraftsAndEndsInTheFinestPicture()
{
    QList<ViewportRenderer::Quality> shown;
    connect(view_->renderer(), &ViewportRenderer::updated, this,
            [&](const ViewportRenderer::Report &report) { shown.append(report.quality); });
    const QPoint place(100, 100);
    UserInput::press(view_.get(), place);
    UserInput::move(view_.get(), place + QPoint(40, 0));
    QTRY_VERIFY(view_->renderer()->isSettled() && !shown.isEmpty());
    QCOMPARE(shown, QList{ViewportRenderer::Quality::Draft});
    QVERIFY(view_->renderer()->picture()->image().width() < 320);
    UserInput::release(view_.get(), place + QPoint(40, 0));
    QTRY_COMPARE(shown.last(), ViewportRenderer::Quality::Smooth);
    QTRY_VERIFY(view_->renderer()->isSettled());
    QCOMPARE(view_->renderer()->picture()->camera(), view_->camera());
    QCOMPARE(view_->renderer()->picture()->image().width(), 320);
}

void ViewportTest::theMouseDoesWhatTheTableSays()
{
    const int ball = indexOf(*scene_, "Ball");
    const OrbitCamera before = view_->camera();
    const QPoint place =
        onScreen(before, scene_->object(ball).mesh.center(), view_->size()).toPoint();
    QTest::mouseClick(view_.get(), Qt::LeftButton, {}, place);
    QCOMPARE(scene_->selected(), ball);
    QVERIFY(view_->accessibleDescription().contains(QLatin1String("Ball")));

    UserInput::drag(view_.get(), place, place + QPoint(30, 0));
    QVERIFY(view_->camera().yaw() != before.yaw());
    QCOMPARE(view_->camera().target(), before.target());
    UserInput::drag(view_.get(), place, place + QPoint(30, 0), {}, Qt::MiddleButton);
    QVERIFY(view_->camera().target() != before.target());
    view_->resetCamera();
    UserInput::wheel(view_.get(), 1);
    QVERIFY(view_->camera().distance() < before.distance());
    UserInput::wheel(view_.get(), 1, Qt::AltModifier);
    QVERIFY(view_->camera().fieldOfView() < before.fieldOfView());
    view_->resetCamera();
    view_->takePicture();

    // The light turns, the camera stays.
    const float yaw = scene_->studioInForce().lightYaw;
    UserInput::drag(view_.get(), place, place + QPoint(30, 0), Qt::ControlModifier);
    QVERIFY(scene_->studioInForce().lightYaw != yaw);
    QCOMPARE(view_->camera(), before);

    UserInput::press(view_.get(), place);
    UserInput::move(view_.get(), place + QPoint(30, 0));
    QVERIFY(view_->camera() != before);
    QTest::keyClick(view_.get(), Qt::Key_Escape);
    UserInput::move(view_.get(), place + QPoint(60, 0));
    UserInput::release(view_.get(), place + QPoint(60, 0));
    QCOMPARE(view_->camera(), before);

    QTest::mouseClick(view_.get(), Qt::RightButton, Qt::ControlModifier | Qt::AltModifier, place);
    QVERIFY(isNear(view_->camera().target(), scene_->object(ball).mesh.center(), 0.95F));
    view_->resetCamera();
    view_->takePicture();
    QTest::mouseClick(view_.get(), Qt::LeftButton, Qt::ControlModifier | Qt::AltModifier, place);
    QVERIFY(!scene_->object(ball).isVisible);
}

void ViewportTest::aMarqueeSelectsWhatItTouches()
{
    const auto placeOf = [this](const char *name) {
        const QVector3D middle = scene_->object(indexOf(*scene_, name)).mesh.center();
        return onScreen(view_->camera(), middle, view_->size()).toPoint();
    };
    QStringList said;
    connect(view_.get(), &Viewport::said, this, [&said](const QString &entry) { said += entry; });
    const OrbitCamera before = view_->camera();
    const QPoint ball = placeOf("Ball");
    const QPoint small = placeOf("Small ball");
    const QRect around = QRect(ball, small).normalized().adjusted(-2, -2, 2, 2);
    UserInput::press(view_.get(), around.bottomRight(), Qt::ShiftModifier);
    UserInput::move(view_.get(), around.center(), Qt::ShiftModifier);
    const QImage plain = view_->takePicture();
    QVERIFY(view_->grab(around).toImage().pixel(1, 1) != plain.pixel(around.topLeft()));
    UserInput::move(view_.get(), around.topLeft(), Qt::ShiftModifier);
    UserInput::release(view_.get(), around.topLeft(), Qt::ShiftModifier);
    QVERIFY(scene_->selection().contains(indexOf(*scene_, "Ball")));
    QVERIFY(scene_->selection().contains(indexOf(*scene_, "Small ball")));
    QVERIFY(!scene_->selection().contains(indexOf(*scene_, "Cone")));
    QVERIFY(view_->takePicture() != plain);
    QCOMPARE(said.size(), 1);
    QVERIFY(said.first().contains(QLatin1String("Ball, Small ball")));
    QCOMPARE(view_->camera(), before);

    // Escape leaves what was selected, an empty rectangle takes it back.
    const QList<int> selected = scene_->selection();
    UserInput::press(view_.get(), QPoint(0, 0), Qt::ShiftModifier);
    UserInput::move(view_.get(), QPoint(30, 5), Qt::ShiftModifier);
    QTest::keyClick(view_.get(), Qt::Key_Escape);
    UserInput::release(view_.get(), QPoint(30, 5), Qt::ShiftModifier);
    QCOMPARE(scene_->selection(), selected);
    UserInput::drag(view_.get(), QPoint(0, 0), QPoint(30, 5), Qt::ShiftModifier);
    QCOMPARE(scene_->selection(), QList<int>());
}

void ViewportTest::theKeyboardDoesItToo()
{
    const OrbitCamera before = view_->camera();
    QTest::keyClick(view_.get(), Qt::Key_Left);
    QVERIFY(view_->camera().yaw() != before.yaw());
    QTest::keyClick(view_.get(), Qt::Key_Right);
    QCOMPARE(view_->camera().yaw(), before.yaw());
    QTest::keyClick(view_.get(), Qt::Key_Up, Qt::ShiftModifier);
    QVERIFY(view_->camera().target() != before.target());
    QTest::keyClick(view_.get(), Qt::Key_Plus);
    QVERIFY(view_->camera().distance() < before.distance());
    QTest::keyClick(view_.get(), Qt::Key_Home);
    for (const ViewObject &object : scene_->objects())
        QVERIFY(view_->rect().contains(
            onScreen(view_->camera(), object.mesh.center(), view_->size()).toPoint()));

    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(view_.get(), &event);
    auto *menu = view_->findChild<QMenu *>();
    QVERIFY(menu && menu->isVisible());
    menu->close();
}

ZEL_TEST_MAIN(ViewportTest)
#include "tst_viewport.moc"
