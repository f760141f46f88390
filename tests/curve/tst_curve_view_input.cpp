// The curve editor under the user's hands: wheel, keys, drags with their snapping and automatic
// scrolling.

#include "CurveDesk.h"
#include "curve/ZelCurveViewMath.h"

#include <ZelWidgets/ZelCurveScene>

#include <QCursor>
#include <QSignalSpy>

class CurveViewInputTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
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
        desk.editor.resize(editorSize);
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
};

ZEL_TEST_MAIN(CurveViewInputTest)
#include "tst_curve_view_input.moc"
