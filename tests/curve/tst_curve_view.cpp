// The curve editor: the visible area, wheel, keys, drags with their snapping and automatic
// scrolling, the context menu and what assistive technology sees.

#include "TestCase.h"
#include "UserInput.h"
#include "curve/ZelCurveViewAccess.h"
#include "curve/ZelCurveViewMarkers.h"
#include "curve/ZelCurveViewMath.h"

#include <ZelCore/ZelBezierCurveModel>
#include <ZelWidgets/ZelAxisDecorator>
#include <ZelWidgets/ZelCurveScene>
#include <ZelWidgets/ZelCurveView2>
#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QCursor>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QWheelEvent>

#include <cmath>
#include <random>

namespace {

using Math = ZelCurveViewMath::AutoScroll;

constexpr QSize size(402, 302); // with a frame of a pixel

QString assertion(const char *expression, const char *function, int line,
                  const char *file = "ZelCurveGraphicsView")
{
    return QStringLiteral("soft assertion: \"%1\" failed in function: %2\n in file: "
                          "src/libs/zelwidgets/curve/%3\n line: %4\n")
        .arg(QLatin1String(expression), QLatin1String(function), QLatin1String(file))
        .arg(line);
}

bool isNear(QPointF left, QPointF right, double tolerance = 1e-6)
{
    return std::hypot(left.x() - right.x(), left.y() - right.y()) <= tolerance;
}

/// A shown editor with a curve whose second vertex has smooth tangents.
struct Desk
{
    explicit Desk(bool isNavigable = true)
        : graphics(editor.findChild<ZelCurveGraphicsView *>())
    {
        model.setVertices({{QPointF(0, 0)},
                           {QPointF(4, 2), QPointF(3, 1), QPointF(6, 4), true},
                           {QPointF(10, 5)}});
        ZelCurveView2Style style;
        style.navigable = isNavigable;
        style.sceneLeftLimit = -1000;
        editor.setStyle(&style);
        editor.addCurve(&model);
        editor.resize(size);
        editor.setVisibleArea(QRectF(-1, -1, 20, 15));
        editor.show();
    }

    QPointF point(int index, ZelVertexData key = ZelVertexData::Position) const
    {
        return model.vertexData(index, key).toPointF();
    }
    QPoint pixel(int index, ZelVertexData key = ZelVertexData::Position) const
    {
        return graphics->mapFromScene(point(index, key));
    }
    QPointF exactPixel(QPointF point) const { return graphics->viewportTransform().map(point); }
    void press(int index, ZelVertexData key = ZelVertexData::Position) const
    {
        UserInput::press(graphics->viewport(), pixel(index, key));
    }
    void moveBy(QPoint start, QPoint distance, Qt::KeyboardModifiers modifiers = {}) const
    {
        UserInput::move(graphics->viewport(), start + distance, modifiers);
    }
    void release() const { UserInput::release(graphics->viewport(), QPoint(5, 5)); }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(graphics, Qt::Key(key), modifiers);
    }
    ZelCurvePointHandle selected() const
    {
        return ZelCurveViewMarkers::selected(graphics->scene());
    }
    bool wheel(QPoint angle, QPointF position, Qt::KeyboardModifiers modifiers = {}) const
    {
        QWheelEvent event(position, graphics->viewport()->mapToGlobal(position), QPoint(), angle,
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(graphics->viewport(), &event);
        return event.isAccepted();
    }

    ZelBezierCurveModel model;
    ZelCurveView2 editor;
    ZelCurveGraphicsView *graphics;
};

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
        const Math scroll{QRectF(0, 0, 200, 10), QRect(10, 20, 100, 50), 0.5};
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
        editor.resize(size);
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
            editor.resize(size + QSize(i % 7, i % 5));
        editor.resize(size);
        QVERIFY(isNear(editor.visibleArea().topLeft(), QPointF(1, 1), 0.011));

        ZelCurveView2 empty;
        empty.setVisibleArea(QRectF());
        QCOMPARE(messages().messages(QtDebugMsg).last(),
                 assertion("sceneSection.isValid()", "setVisibleArea", 83, "ZelCurveView2"));
        empty.resize(size);
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

    void wheelZooms_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QPoint>("angle");
        QTest::addColumn<bool>("zoomsX");
        QTest::addColumn<bool>("zoomsY");
        QTest::newRow("plain") << Qt::KeyboardModifiers() << QPoint(0, 120) << true << true;
        QTest::newRow("Shift") << Qt::KeyboardModifiers(Qt::ShiftModifier) << QPoint(0, 120) << true
                               << false;
        QTest::newRow("Alt") << Qt::KeyboardModifiers(Qt::AltModifier) << QPoint(0, 120) << false
                             << true;
        QTest::newRow("Alt, axis turned")
            << Qt::KeyboardModifiers(Qt::AltModifier) << QPoint(120, 0) << false << true;
    }

    void wheelZooms()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QPoint, angle);
        QFETCH(bool, zoomsX);
        QFETCH(bool, zoomsY);
        Desk desk;
        QSignalSpy changes(&desk.editor, &ZelCurveView2::visibleAreaChanged);
        const QTransform before = desk.graphics->transform();
        const QSize hint = desk.editor.sizeHint();
        const QPointF cursor = modifiers ? QPointF(200, 150) : QPointF(300, 40);
        const QPointF under = desk.graphics->viewportTransform().inverted().map(cursor);
        QVERIFY(desk.wheel(angle, QPointF(300, 40), modifiers));
        QCOMPARE(changes.size(), 1);
        QCOMPARE(desk.editor.sizeHint(), hint);
        const QTransform after = desk.graphics->transform();
        const double factor = double(ZelCurveViewMath::wheelFactor(120));
        QCOMPARE(after.m11() / before.m11(), zoomsX ? factor : 1.0);
        QCOMPARE(after.m22() / before.m22(), zoomsY ? factor : 1.0);
        QVERIFY(isNear(desk.exactPixel(under), cursor, 1));
        desk.wheel(QPoint(0, 0), cursor);
        QCOMPARE(changes.size(), 1);
    }

    void zoomNeverLosesTheCurves()
    {
        Desk desk;
        for (const int angle : {20000, -20000}) {
            for (int i = 0; i < 20; ++i)
                desk.wheel(QPoint(0, angle), QPointF(200, 150));
            QVERIFY(desk.editor.visibleArea().isValid());
        }
        desk.editor.zoomToFit();
        QVERIFY(isNear(desk.editor.visibleArea().center(), QPointF(5, 2.5), 0.1));
        for (const QRectF &area :
             {QRectF(0, 0, 1e308, 1e308), QRectF(0, 0, 1e-320, 1), QRectF(1e30, 1e30, 1, 1)})
            desk.editor.setVisibleArea(area);
        desk.editor.resize(1, 1);
        desk.editor.resize(size);
        desk.editor.zoomToFit();
        QVERIFY(isNear(desk.editor.visibleArea().center(), QPointF(5, 2.5), 0.1));
    }

    void notNavigableOnlyDragsMarkers()
    {
        Desk desk(false);
        const QRectF area = desk.editor.visibleArea();
        QSignalSpy fits(desk.graphics, &ZelCurveGraphicsView::fitRequested);
        QVERIFY(!desk.wheel(QPoint(0, 120), QPointF(100, 100)));
        QKeyEvent plus(QEvent::KeyPress, Qt::Key_Plus, Qt::ControlModifier);
        QCoreApplication::sendEvent(desk.graphics, &plus);
        QVERIFY(!plus.isAccepted());
        desk.key(Qt::Key_Home);
        QVERIFY(fits.isEmpty());
        UserInput::drag(desk.graphics->viewport(), QPoint(390, 290), QPoint(300, 200));
        QCOMPARE(desk.editor.visibleArea(), area);
        desk.press(1);
        desk.moveBy(desk.pixel(1), QPoint(20, -20));
        desk.release();
        QVERIFY(isNear(desk.point(1), QPointF(5, 3), 1e-6));
    }

    void panMovesTheArea()
    {
        Desk desk;
        QSignalSpy changes(&desk.editor, &ZelCurveView2::visibleAreaChanged);
        const QPointF topLeft = desk.editor.visibleArea().topLeft();
        UserInput::drag(desk.graphics->viewport(), QPoint(390, 290), QPoint(370, 250));
        QVERIFY(isNear(desk.editor.visibleArea().topLeft() - topLeft, QPointF(1, -2)));
        QCOMPARE(changes.size(), 4);
        QCOMPARE(desk.graphics->dragMode(), QGraphicsView::NoDrag);
    }

    void keyZoomHoldsTheSelectedVertex()
    {
        Desk desk;
        desk.press(1);
        desk.release();
        const QPointF pixel = desk.exactPixel(desk.point(1));
        const double scale = desk.graphics->transform().m11();
        desk.key(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(desk.graphics->transform().m11() / scale, double(1.1F));
        QVERIFY(isNear(desk.exactPixel(desk.point(1)), pixel, 1));
        desk.key(Qt::Key_Minus, Qt::ControlModifier);
        QVERIFY(std::abs(desk.graphics->transform().m11() / scale - 1) < 1e-6);
        QVERIFY(isNear(desk.exactPixel(desk.point(1)), pixel, 2));
        desk.key(Qt::Key_Home);
        QVERIFY(isNear(desk.editor.visibleArea().center(), QPointF(5, 2.5), 0.1));
    }

    void dragKeepsTheGrip()
    {
        Desk desk;
        QSignalSpy started(&desk.editor, &ZelCurveView2::dragStarted);
        QSignalSpy ended(&desk.editor, &ZelCurveView2::dragEnded);
        const QPoint grip = desk.pixel(1) + QPoint(2, 1);
        UserInput::press(desk.graphics->viewport(), grip);
        QCOMPARE(started.size(), 1);
        desk.moveBy(grip, QPoint(-20, 40));
        QVERIFY(isNear(desk.point(1), QPointF(3, 0)));
        // The axis goes through the cursor at which Shift is seen first.
        desk.moveBy(grip, QPoint(0, 40), Qt::ShiftModifier);
        desk.moveBy(grip, QPoint(20, 45), Qt::ShiftModifier);
        QVERIFY(isNear(desk.point(1), QPointF(5, 0)));
        desk.moveBy(grip, QPoint(1, 55), Qt::ShiftModifier);
        QVERIFY(isNear(desk.point(1), QPointF(4.05, 0)));
        desk.moveBy(grip, QPoint(20, 0));
        QVERIFY(isNear(desk.point(1), QPointF(5, 2)));
        desk.release();
        QCOMPARE(started.size() + ended.size(), 2);
        desk.moveBy(grip, QPoint(0, 0));
        QVERIFY(isNear(desk.point(1), QPointF(5, 2)));
    }

    void tangentsStayStraightOnScreen()
    {
        Desk desk;
        desk.editor.setVisibleArea(QRectF(-1, -5, 20, 60));
        desk.press(1);
        desk.release();
        const auto end = [&desk](ZelVertexData key) {
            return desk.exactPixel(desk.point(1, key)) - desk.exactPixel(desk.point(1));
        };
        const double length =
            std::hypot(end(ZelVertexData::InTangent).x(), end(ZelVertexData::InTangent).y());
        const QPoint grip = desk.pixel(1, ZelVertexData::OutTangent);
        desk.press(1, ZelVertexData::OutTangent);
        desk.moveBy(grip, QPoint(10, -40));
        const QPointF in = end(ZelVertexData::InTangent);
        const QPointF out = end(ZelVertexData::OutTangent);
        QVERIFY(std::abs(in.x() * out.y() - in.y() * out.x()) < 1e-6);
        QVERIFY(std::abs(std::hypot(in.x(), in.y()) - length) < 1e-6);
        // With Shift the end lies on an axis through the vertex.
        desk.moveBy(grip, QPoint(30, -5), Qt::ShiftModifier);
        QVERIFY(std::abs(end(ZelVertexData::OutTangent).y()) <= 0.5);
        desk.key(Qt::Key_Escape);
        QVERIFY(isNear(desk.point(1, ZelVertexData::OutTangent), QPointF(6, 4)));
        QVERIFY(isNear(desk.point(1, ZelVertexData::InTangent), QPointF(3, 1)));
    }

    void escapePutsTheMarkerBack()
    {
        Desk desk;
        QSignalSpy ended(&desk.editor, &ZelCurveView2::dragEnded);
        const QList<ZelBezierCurveModel::Vertex> before = desk.model.vertices();
        const QPoint grip = desk.pixel(1);
        desk.press(1);
        desk.moveBy(grip, QPoint(-70, 40));
        QVERIFY(desk.model.vertices() != before);
        desk.key(Qt::Key_Escape);
        QCOMPARE(ended.size(), 1);
        QVERIFY(isNear(desk.point(1), before[1].position));
        QVERIFY(isNear(desk.point(1, ZelVertexData::InTangent), *before[1].inTangent));
        QVERIFY(isNear(desk.point(1, ZelVertexData::OutTangent), *before[1].outTangent));
        desk.moveBy(grip, QPoint(-70, 40));
        desk.release();
        QVERIFY(isNear(desk.point(1), before[1].position));
        QCOMPARE(ended.size(), 1);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(desk.graphics, &escape);
        QVERIFY(!escape.isAccepted());
    }

    void viewScrollsAfterTheCursor()
    {
        Desk desk;
        desk.press(1);
        const QPoint outside(-60, 100);
        QCursor::setPos(desk.graphics->viewport()->mapToGlobal(outside));
        const double left = desk.editor.visibleArea().left();
        UserInput::move(desk.graphics->viewport(), outside);
        QTRY_VERIFY(desk.editor.visibleArea().left() < left - 0.05 || desk.point(1).x() == 0);
        UserInput::move(desk.graphics->viewport(), QPoint(200, 100));
        const QRectF area = desk.editor.visibleArea();
        QVERIFY(std::abs(desk.exactPixel(desk.point(1)).x() - 200) < 2);
        QVERIFY(desk.graphics->findChildren<QTimer *>().isEmpty() ||
                !desk.graphics->findChildren<QTimer *>().last()->isActive());
        desk.release();
        QCOMPARE(desk.editor.visibleArea(), area);
    }

    void keysWalkAndNudge()
    {
        Desk desk;
        ZelBezierCurveModel second;
        second.setVertices({{QPointF(1, 7)}, {QPointF(12, 7)}});
        desk.editor.addCurve(&second);
        QSignalSpy started(&desk.editor, &ZelCurveView2::dragStarted);
        QSignalSpy ended(&desk.editor, &ZelCurveView2::dragEnded);
        desk.graphics->setFocus();
        for (int i = 0; i < 3; ++i) {
            desk.key(Qt::Key_Tab);
            QCOMPARE(desk.selected().vertex(), desk.model.vertexHandle(i));
        }
        desk.key(Qt::Key_Tab);
        desk.key(Qt::Key_Tab);
        QCOMPARE(desk.selected().vertex(), second.vertexHandle(1));
        for (int i = 0; i < 2; ++i)
            desk.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(desk.selected().vertex(), desk.model.vertexHandle(2));
        desk.key(Qt::Key_Space);
        QCOMPARE(desk.selected().vertex(), desk.model.vertexHandle(2));
        desk.key(Qt::Key_Right);
        QVERIFY(isNear(desk.point(2), QPointF(10.05, 5)));
        desk.key(Qt::Key_Up, Qt::ShiftModifier);
        QVERIFY(isNear(desk.point(2), QPointF(10.05, 5.5)));
        QCOMPARE(started.size(), 2);
        QCOMPARE(ended.size(), 2);
        desk.key(Qt::Key_Backtab, Qt::ShiftModifier);
        for (const auto key : {ZelVertexData::InTangent, ZelVertexData::OutTangent}) {
            desk.key(Qt::Key_Space);
            QCOMPARE(desk.selected(), ZelCurvePointHandle(desk.model.vertexHandle(1), key));
        }
        desk.key(Qt::Key_Left);
        QVERIFY(isNear(desk.point(1, ZelVertexData::OutTangent), QPointF(5.95, 4)));
        desk.key(Qt::Key_Delete);
        QVERIFY(!desk.model.hasVertexData(1, ZelVertexData::OutTangent));
        // A selected vertex out of sight is brought into view.
        desk.editor.setVisibleArea(QRectF(2, -1, 20, 15));
        desk.key(Qt::Key_Backtab, Qt::ShiftModifier);
        desk.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(desk.editor.visibleArea().adjusted(-0.1, -0.1, 0.1, 0.1).contains(desk.point(0)));
    }

    void deleteEndsTheDrag()
    {
        Desk desk;
        QSignalSpy ended(&desk.editor, &ZelCurveView2::dragEnded);
        desk.press(1);
        desk.key(Qt::Key_Delete);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(desk.model.vertexCount(), 2);
        desk.moveBy(QPoint(100, 100), QPoint(5, 5));
        desk.release();
        QCOMPARE(desk.model.vertexCount(), 2);
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
        editor->resize(size);
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
        orphan.resize(size);
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
