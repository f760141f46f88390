// The curve editor: the visible area, decorators, the context menu, what assistive technology
// sees, and steps of any kind.

#include "CurveDesk.h"
#include "curve/ZelCurveViewAccess.h"
#include "curve/ZelCurveViewMath.h"

#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelCurveScene>
#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>

#include <array>
#include <functional>
#include <random>

namespace {

QString assertion(const char *expression, const char *function, int line,
                  const char *file = "ZelCurveGraphicsView")
{
    return QStringLiteral("soft assertion: \"%1\" failed in function: %2\n in file: "
                          "src/libs/zelwidgets/curve/%3\n line: %4\n")
        .arg(QLatin1String(expression), QLatin1String(function), QLatin1String(file))
        .arg(line);
}

/// Records what it is asked for.
class Recorder : public ZelCurveViewDecorator2
{
public:
    void updateItems(QRectF visibleArea, QTransform) override { area = visibleArea; }
    void setScene(QGraphicsScene *newScene) override { scene = newScene; }
    void paint(QPainter &, const QRectF &rect, const QTransform &) override
    {
        painted = rect;
        ++paintings;
    }

    QRectF area;
    QRectF painted;
    int paintings = 0;
    QGraphicsScene *scene = nullptr;
};

class Action : public ZelCurveView2::ContextAction
{
public:
    Action(bool isEnabled, QList<ZelCurveView2::Context> *triggers)
        : isEnabled_(isEnabled)
        , triggers_(triggers)
    {}

    bool isEnabled(const ZelCurveView2::Context &) const override { return isEnabled_; }
    void trigger(const ZelCurveView2::Context &context) override { triggers_->append(context); }
    QString text() const override { return QStringLiteral("Entry"); }

private:
    bool isEnabled_;
    QList<ZelCurveView2::Context> *triggers_;
};

} // namespace

class CurveViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aPartIsRepaintedAsTheWhole()
    {
        Desk desk;
        desk.editor.addDecoratorToBackground(new ZelAxisDecorator);
        QVERIFY(QTest::qWaitForWindowExposed(&desk.editor));
        QCoreApplication::processEvents();
        const auto shown = [&desk] {
            const QRect place(desk.graphics->mapToGlobal(QPoint(0, 0)), desk.graphics->size());
            return desk.editor.screen()->grabWindow(0).toImage().copy(place);
        };
        desk.press(1);
        desk.moveBy(desk.pixel(1), QPoint(9, -14));
        desk.release();
        QCoreApplication::processEvents();
        const QImage piecewise = shown();
        QVERIFY(piecewise.convertToFormat(QImage::Format_Indexed8).colorCount() > 2);
        desk.graphics->viewport()->repaint();
        QCOMPARE(piecewise, shown());
    }

    void arithmetic()
    {
        using namespace ZelCurveViewMath;
        const QTransform flipped(20, 0, 0, -10, 7, 9);
        const QPointF turnedVector = turned(flipped, QPointF(1, 2), QPointF(0, -6));
        QVERIFY(isNear(turnedVector, QPointF(3, 6) * 2 / std::sqrt(8.0)));
        QCOMPARE(fittingFactors(flipped, QSizeF(10, 5), QSizeF(100, 100)), QSizeF(0.5, 2));
        for (const double bad : {0.0, qInf(), qQNaN(), 1e-320})
            QVERIFY(!fittingFactors(flipped, QSizeF(bad, 5), QSizeF(100, 100)));
        QCOMPARE(zoomedCenter(QPointF(5, 5), QPointF(1, 5), 2, 4), QPointF(3, 5));
        QVERIFY(isReachable(flipped, QRectF(0, 0, 1e7, 1)));
        QVERIFY(!isReachable(flipped, QRectF(1e8, 0, 1, 1)));
        QVERIFY(!isReachable(flipped, QRectF(0, 0, qQNaN(), 1)));
        const QRectF area(0, 0, 4, 2);
        QCOMPARE(movedToContain(area, QPointF(5, -3)), QRectF(1, -3, 4, 2));
        QCOMPARE(movedToContain(area, QPointF(4, 1)), area);
        QCOMPARE(expandedToContain(area, QPointF(5, 1)).right(), 5.0);
        QCOMPARE(expandedToContain(area, QPointF(1, 1)), area);
        QCOMPARE(withAir(QRectF(2, 2, 10, 0)), QRectF(1.5, 1.95, 11, 1.1));
        QCOMPARE(wheelFactor(120), float(std::exp(0.06)));
    }

    void autoScrollGrowsWithDistanceAndTime()
    {
        const ZelCurveViewMath::AutoScroll scroll{QRectF(0, 0, 200, 10), QRect(10, 20, 100, 50),
                                                  0.5};
        const QRectF area(100, 4, 200, 10);
        const QPointF inside(1.1, 2.2);
        const QPointF rounded(double(1.1F), double(2.2F));
        QCOMPARE(scroll.adjusted(inside, QPoint(10, 69), area, 250), rounded);
        QCOMPARE(scroll.adjusted(inside, QPoint(7, 30), area, 250), QPointF(94, rounded.y()));
        QCOMPARE(scroll.adjusted(inside, QPoint(7, 30), area, 125), QPointF(97, rounded.y()));
        QCOMPARE(scroll.adjusted(inside, QPoint(112, 30), area, 9999), QPointF(306, rounded.y()));
        // The top of the scene is below.
        QCOMPARE(scroll.adjusted(inside, QPoint(50, 73), area, 250), QPointF(rounded.x(), 2));
        QCOMPARE(scroll.adjusted(inside, QPoint(50, 18), area, 50), QPointF(rounded.x(), 14.2));
    }

    void areaIsKeptUntilShownAndFittedOnce()
    {
        ZelBezierCurveModel model;
        model.setVertices({{QPointF(0, 0)}, {QPointF(10, 5)}});
        ZelCurveView2 editor;
        ZelCurveView2Style style = editor.getStyle();
        style.sceneLeftLimit = -1000;
        editor.setStyle(&style);
        editor.addCurve(&model);
        QSignalSpy changes(&editor, &ZelCurveView2::visibleAreaChanged);
        editor.resize(editorSize);
        editor.show();
        QCOMPARE(changes.size(), 1);
        QVERIFY(isNear(editor.visibleArea().topLeft(), QPointF(-0.5, -0.25), 0.05));
        QVERIFY(isNear(editor.visibleArea().bottomRight(), QPointF(10.5, 5.25), 0.05));
        editor.hide();
        editor.setVisibleArea(QRectF(1, 1, 4, 3));
        QCOMPARE(changes.size(), 2);
        QCOMPARE(editor.visibleArea(), QRectF(1, 1, 4, 3));
        editor.show();
        const QRectF achieved = editor.visibleArea();
        QVERIFY(isNear(achieved.topLeft(), QPointF(1, 1), 0.011));
        editor.setVisibleArea(achieved);
        QCOMPARE(changes.size(), 2);
        for (int i = 0; i < 40; ++i)
            editor.resize(editorSize + QSize(i % 7, i % 5));
        editor.resize(editorSize);
        QVERIFY(isNear(editor.visibleArea().topLeft(), QPointF(1, 1), 0.011));

        ZelCurveView2 empty;
        empty.setVisibleArea(QRectF());
        QCOMPARE(messages().messages(QtDebugMsg).last(),
                 assertion("sceneSection.isValid()", "setVisibleArea", 83, "ZelCurveView2"));
        empty.resize(editorSize);
        empty.show();
        QVERIFY(isNear(empty.visibleArea().topLeft(), QPointF(-0.05, -0.05), 0.01));
        QVERIFY(isNear(empty.visibleArea().bottomRight(), QPointF(1.05, 1.05), 0.01));
    }

    void marginsAreLeftFree()
    {
        Desk desk;
        ZelCurveView2Style style = desk.editor.getStyle();
        style.viewportMargins = QMargins(50, 0, 0, 100);
        desk.editor.setStyle(&style);
        desk.editor.setVisibleArea(QRectF(0, 0, 10, 5));
        QVERIFY(isNear(desk.exactPixel(QPointF(0, 0)), QPointF(50, 200), 1));
        QVERIFY(isNear(desk.exactPixel(QPointF(10, 5)), QPointF(400, 0), 1));
    }

    void contextMenuTellsTheMarker()
    {
        Desk desk;
        QList<ZelCurveView2::Context> triggers;
        desk.editor.addContextMenuAction(nullptr);
        desk.editor.addContextMenuAction(std::make_unique<Action>(true, &triggers));
        desk.editor.addContextMenuAction(std::make_unique<Action>(false, &triggers));
        QStringList shown;
        const auto openAt = [&](QPoint point, QContextMenuEvent::Reason reason) {
            QTimer closer;
            closer.callOnTimeout([&] {
                auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
                if (!menu)
                    return;
                for (const QAction *action : menu->actions())
                    shown << action->text() + QString::number(action->isEnabled());
                shown << menu->title();
                menu->actions().first()->trigger();
                menu->close();
            });
            closer.start(0);
            QWidget *target = desk.graphics->viewport();
            if (reason == QContextMenuEvent::Keyboard)
                target = desk.graphics;
            QContextMenuEvent event(reason, point, target->mapToGlobal(point));
            QCoreApplication::sendEvent(target, &event);
        };
        openAt(desk.pixel(1, ZelVertexData::InTangent), QContextMenuEvent::Mouse);
        QCOMPARE(shown, QStringList({QStringLiteral("Entry1"), QStringLiteral("Entry0"),
                                     QStringLiteral("Context Menu")}));
        QCOMPARE(triggers.last().handle,
                 ZelCurvePointHandle(desk.model.vertexHandle(1), ZelVertexData::InTangent));
        openAt(QPoint(390, 290), QContextMenuEvent::Mouse);
        QCOMPARE(triggers.last().handle, ZelCurvePointHandle());
        QVERIFY(isNear(triggers.last().scenePosition, desk.graphics->mapToScene(390, 290)));
        desk.graphics->setFocus();
        desk.key(Qt::Key_Tab);
        openAt(QPoint(1, 1), QContextMenuEvent::Keyboard);
        QCOMPARE(triggers.last().handle.vertex(), desk.model.vertexHandle(0));
        QCOMPARE(triggers.size(), 3);
    }

    void decoratorsFollowTheView()
    {
        Desk desk;
        auto *back = new Recorder;
        auto *front = new Recorder;
        QCOMPARE(desk.editor.addDecoratorToBackground(back), back);
        desk.editor.addDecoratorToForeground(front);
        desk.editor.addDecoratorToForeground(back);
        QCOMPARE(desk.editor.addDecoratorToForeground(nullptr), nullptr);
        QCOMPARE(back->scene, desk.graphics->scene());
        ZelCurveView2Style style = desk.editor.getStyle();
        style.viewportMargins = QMargins(50, 50, 0, 0);
        desk.editor.setStyle(&style);
        const QRectF whole =
            desk.graphics->mapToScene(desk.graphics->viewport()->rect()).boundingRect();
        QCOMPARE(back->area, whole);
        QTRY_COMPARE(front->painted, whole);
        // A part of the viewport is painted too as if it were the whole.
        front->painted = {};
        desk.graphics->viewport()->repaint(10, 10, 20, 20);
        QCOMPARE(front->painted, whole);
        const int paintings = back->paintings;
        Q_EMIT back->updated();
        QTRY_VERIFY(back->paintings > paintings);
        const QPointer<Recorder> dead(back);
        delete front;
        desk.editor.setVisibleArea(QRectF(0, 0, 3, 3));
        desk.editor.clearDecorators();
        QVERIFY(!dead);
    }

    void deathsInTheMiddle()
    {
        auto desk = std::make_unique<Desk>();
        auto model = std::make_unique<ZelBezierCurveModel>();
        model->setVertices({{QPointF(5, 10)}});
        desk->editor.addCurve(model.get());
        desk->editor.setCurveColor(model.get(), Qt::red);
        const QPoint grip = desk->graphics->mapFromScene(QPointF(5, 10));
        UserInput::press(desk->graphics->viewport(), grip);
        desk->moveBy(grip, QPoint(5, 5));
        model.reset();
        QVERIFY(desk->editor.getStyle().curveColors.isEmpty());
        desk->moveBy(grip, QPoint(9, 9));
        UserInput::move(desk->graphics->viewport(), QPoint(-50, 50));
        QCoreApplication::processEvents();
        desk->key(Qt::Key_Escape);
        desk->release();

        auto *editor = new ZelCurveView2;
        editor->addCurve(&desk->model);
        editor->resize(editorSize);
        editor->show();
        auto *graphics = editor->findChild<ZelCurveGraphicsView *>();
        connect(editor, &ZelCurveView2::dragEnded, editor, [editor] { editor->deleteLater(); });
        connect(&desk->model, &ZelCurveModel::changed, graphics,
                [graphics] { QTest::keyClick(graphics, Qt::Key_Escape); });
        const QPoint vertex = graphics->mapFromScene(desk->point(1));
        UserInput::drag(graphics->viewport(), vertex, vertex + QPoint(20, 20));
        QVERIFY(isNear(desk->point(1), QPointF(4, 2)));
        const QPointer<ZelCurveView2> alive(editor);
        QTRY_VERIFY(!alive);
        auto scene = std::make_unique<ZelCurveScene>(nullptr);
        ZelCurveGraphicsView orphan(scene.get(), nullptr);
        orphan.resize(editorSize);
        orphan.setVisibleArea(QRectF(0, 0, 1, 1));
        orphan.show();
        orphan.addDecoratorToBackground(new Recorder);
        scene.reset();
        UserInput::drag(orphan.viewport(), QPoint(10, 10), QPoint(30, 30));
        orphan.grab();
    }

    void softAssertions()
    {
        ZelCurveScene scene(nullptr);
        ZelCurveGraphicsView view(&scene, nullptr);
        const auto last = [this] {
            return messages().messages(QtDebugMsg).last();
        };
        view.onStyleUpdated();
        QCOMPARE(last(), assertion("style_ != nullptr", "onStyleUpdated", 100));
        ZelCurveViewAccess::scaleTo(view, QSizeF(-1, 1));
        QCOMPARE(last(), assertion("size.isValid()", "scaleTo", 121));
        ZelCurveViewAccess::updateViewport(view);
        QCOMPARE(last(), assertion("isValid()", "updateViewport", 178));
        UserInput::wheel(view.viewport(), 1);
        QCOMPARE(last(), assertion("isValid()", "wheelEvent", 405));
        ZelCurveViewAccess::zoom(view, 1, 0, QPointF());
        QCOMPARE(last(), assertion("xScale > 0.f && yScale > 0.f", "zoom", 431));
        UserInput::press(view.viewport(), QPoint(5, 5));
        QCOMPARE(last(), assertion("isValid()", "mousePressEvent", 551));
        UserInput::move(view.viewport(), QPoint(6, 6));
        QCOMPARE(last(), assertion("isValid()", "mouseMoveEvent", 565));
        QTest::keyClick(&view, Qt::Key_A);
        QCOMPARE(last(), assertion("isValid()", "keyPressEvent", 587));
        const qsizetype count = messages().messages(QtDebugMsg).size();
        ZelCurveViewAccess::zoom(view, 1, 1, QPointF());
        QCOMPARE(messages().messages(QtDebugMsg).size(), count);
    }

    void markersAreAccessible()
    {
        Desk desk;
        QAccessible::setActive(true);
        QAccessibleInterface *curves = QAccessible::queryAccessibleInterface(desk.graphics);
        QCOMPARE(curves->childCount(), 5);
        QCOMPARE(curves->child(1)->text(QAccessible::Name), QStringLiteral("Vertex 2 of 3"));
        QCOMPARE(curves->child(1)->text(QAccessible::Value), QStringLiteral("4, 2"));
        QCOMPARE(curves->child(3)->text(QAccessible::Name),
                 QStringLiteral("Outgoing tangent of vertex 2"));
        const QPoint center = curves->child(1)->rect().center();
        QVERIFY(isNear(desk.graphics->viewport()->mapFromGlobal(center), desk.pixel(1), 1.5));
        curves->child(1)->valueInterface()->setCurrentValue(5.0);
        QVERIFY(isNear(desk.point(1), QPointF(5, 2)));
        desk.graphics->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.editor));
        curves->child(3)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
        QCOMPARE(desk.selected().key(), ZelVertexData::OutTangent);
        QCOMPARE(curves->focusChild(), curves->child(3));
        desk.model.setVertices({{QPointF(0, 0)}});
        QCOMPARE(curves->childCount(), 1);
        QAccessible::setActive(false);
    }

    void randomWalk()
    {
        Desk desk;
        std::mt19937 random(7);
        const auto number = [&random](int below) {
            return int(random() % unsigned(below));
        };
        const auto anyPixel = [&] {
            return QPoint(number(500) - 50, number(400) - 50);
        };
        QWidget *viewport = desk.graphics->viewport();
        const std::array<std::function<void()>, 12> steps{
            [&] { UserInput::press(viewport, anyPixel()); },
            [&] { desk.press(number(qMax(1, desk.model.vertexCount()))); },
            [&] { UserInput::move(viewport, anyPixel(), Qt::KeyboardModifiers(number(2) << 25)); },
            [&] { UserInput::release(viewport, anyPixel()); },
            [&] { desk.model.addVertex(float(number(200)) / 10); },
            [&] { desk.model.vertexHandle(number(30)).remove(); },
            [&] { desk.key(Qt::Key_Left + number(4)); },
            [&] { desk.key(number(2) ? Qt::Key_Delete : Qt::Key_Escape); },
            [&] { desk.wheel(QPoint(0, number(2000) - 1000), anyPixel()); },
            [&] { desk.key(Qt::Key_Tab); },
            [&] { desk.editor.setVisibleArea(QRectF(number(9), -3, 1 + number(30), 20)); },
            [&] {
                if (number(50) == 0)
                    desk.model.setVertices({{QPointF(1, 1)}, {QPointF(9, 2)}});
            }};
        for (int i = 0; i < 10000; ++i) {
            steps[std::size_t(number(int(steps.size())))]();
            if (i % 100 != 0)
                continue;
            QCoreApplication::processEvents();
            int vertices = 0;
            ZelCurveViewMarkers markers;
            for (const ZelCurvePointHandle &point : markers.list(desk.graphics->scene()))
                vertices += point.key() == ZelVertexData::Position;
            QCOMPARE(vertices, desk.model.vertexCount());
        }
        QVERIFY(desk.editor.visibleArea().isValid());
        QVERIFY(messages().messages(QtDebugMsg).isEmpty());
    }
};

ZEL_TEST_MAIN(CurveViewTest)
#include "tst_curve_view.moc"
