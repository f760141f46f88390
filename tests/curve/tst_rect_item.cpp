// A rectangle that is dragged within its scene and snaps to its corners and edges.

#include "TestCase.h"
#include "UserInput.h"
#include "curve/ZelRectSnapping.h"

#include <ZelWidgets/ZelGraphicsRectItem>

#include <QGraphicsScene>
#include <QGraphicsView>

namespace {

constexpr QSizeF sceneSize(400, 300);
const QRectF rect(0, 0, 100, 50);
constexpr int all = 127;

} // namespace

class RectItemTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void positionsSnap_data();
    void positionsSnap();
    void itemsAreConfined_data();
    void itemsAreConfined();
    void dragsSnapAndStayInside();
    void arrowKeysGoFromPlaceToPlace();
    void showingConfines();
};

void RectItemTest::positionsSnap_data()
{
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<int>("allowed");
    QTest::addColumn<int>("bottom");
    QTest::addColumn<int>("top");
    // The bottom edge is near from y = 218 on, exclusive, the top edge below 32.
    QTest::newRow("free") << QPointF(150, 100) << all << 0 << 0;
    QTest::newRow("bottom centre") << QPointF(150, 218.5) << all << 32 << 0;
    QTest::newRow("just not at the bottom") << QPointF(150, 218) << all << 0 << 0;
    QTest::newRow("top centre") << QPointF(150, 31.5) << all << 0 << 4;
    QTest::newRow("just not at the top") << QPointF(150, 32) << all << 0 << 0;
    QTest::newRow("the centre ends") << QPointF(182, 240) << all << 0 << 0;
    QTest::newRow("the centre begins") << QPointF(119, 240) << all << 32 << 0;
    QTest::newRow("fractions are cut off") << QPointF(118.5, 240) << all << 0 << 0;
    QTest::newRow("left") << QPointF(31, 240) << all << 16 << 0;
    QTest::newRow("right") << QPointF(269, 0) << all << 0 << 8;
    QTest::newRow("between") << QPointF(100, 240) << all << 0 << 0;
    QTest::newRow("no centre") << QPointF(150, 240) << (all & ~32) << 0 << 0;
    QTest::newRow("no left") << QPointF(0, 0) << (all & ~2) << 0 << 0;
    QTest::newRow("only top right, at the left") << QPointF(0, 0) << 8 << 0 << 0;
    QTest::newRow("nothing allowed") << QPointF(150, 0) << 1 << 0 << 0;
}

void RectItemTest::positionsSnap()
{
    QFETCH(QPointF, pos);
    QFETCH(int, allowed);
    QTEST(ZelRectSnapping::snapToBottom(rect, pos, sceneSize, 32, allowed), "bottom");
    QTEST(ZelRectSnapping::snapToTop(rect, pos, sceneSize, 32, allowed), "top");
}

void RectItemTest::itemsAreConfined_data()
{
    QTest::addColumn<int>("snap");
    QTest::addColumn<QPointF>("pos");
    QTest::addColumn<QPointF>("expected");
    // The bounds are those of a rectangle of 100 x 50 with a pen of 1 about it.
    QTest::newRow("inside") << 1 << QPointF(7, 8) << QPointF(7, 8);
    QTest::newRow("beyond top left") << 1 << QPointF(-7, 1) << QPointF(2, 2);
    QTest::newRow("beyond bottom right") << 1 << QPointF(300, 248) << QPointF(297, 247);
    QTest::newRow("top left") << 2 << QPointF(9, 9) << QPointF(2, 2);
    QTest::newRow("top centre") << 4 << QPointF(9, 9) << QPointF(150, 2);
    QTest::newRow("top right") << 8 << QPointF(9, 9) << QPointF(297, 2);
    QTest::newRow("bottom left") << 16 << QPointF(9, 9) << QPointF(2, 247);
    QTest::newRow("bottom centre") << 32 << QPointF(9, 9) << QPointF(150, 247);
    QTest::newRow("bottom right") << 64 << QPointF(9, 9) << QPointF(297, 247);
}

void RectItemTest::itemsAreConfined()
{
    QFETCH(int, snap);
    QFETCH(QPointF, pos);
    const QRectF bounds = rect.adjusted(-0.5, -0.5, 0.5, 0.5);
    QTEST(ZelRectSnapping::confined(snap, bounds, pos, sceneSize, 2), "expected");
}

void RectItemTest::dragsSnapAndStayInside()
{
    QGraphicsScene scene(QRectF(QPointF(), sceneSize));
    QGraphicsView view(&scene);
    view.resize(420, 320);
    view.show();
    auto *item = new ZelGraphicsRectItem(rect);
    item->setPos(50, 100);
    scene.addItem(item);
    QCOMPARE(item->getSnap(), 32);
    const auto drag = [&](QPointF by) {
        const QPoint from = view.mapFromScene(item->sceneBoundingRect().center());
        UserInput::drag(view.viewport(), from, from + by.toPoint());
    };
    drag({30, -20});
    QCOMPARE(item->getSnap(), 1);
    QCOMPARE(item->pos(), QPointF(80, 80));
    drag({65, 145});
    QCOMPARE(item->getSnap(), 32);
    QCOMPARE(item->pos(), QPointF(150, 247));
    drag({0, -100});
    QCOMPARE(item->getSnap(), 1);
    drag({1000, 0});
    QCOMPARE(item->pos(), QPointF(297, 147));
    item->setAllowedSnapping(1);
    drag({-145, 300});
    QCOMPARE(item->getSnap(), 1);
    QCOMPARE(item->pos(), QPointF(152, 247));
    item->setAllowedSnapping(all);
    item->setBorder(20);
    item->setSnappingDistance(60);
    drag({0, -170});
    QCOMPARE(item->getSnap(), 4);
    QCOMPARE(item->pos(), QPointF(150, 20));
}

void RectItemTest::arrowKeysGoFromPlaceToPlace()
{
    QGraphicsScene scene(QRectF(QPointF(), sceneSize));
    auto *item = new ZelGraphicsRectItem(rect);
    scene.addItem(item);
    item->setPos(130, 100);
    item->setAllowedSnapping(all & ~4);
    QGraphicsView view(&scene);
    view.show();
    view.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&view));
    view.setFocus();
    item->setFocus();
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(&view, key);
        return item->getSnap();
    };
    QCOMPARE(press(Qt::Key_Down), 32);
    QCOMPARE(press(Qt::Key_Down), 32);
    QCOMPARE(press(Qt::Key_Right), 64);
    QCOMPARE(press(Qt::Key_Up), 8);
    QCOMPARE(press(Qt::Key_Left), 2);
    QCOMPARE(item->pos(), QPointF(2, 2));
    QCOMPARE(press(Qt::Key_Space), 2);
}

void RectItemTest::showingConfines()
{
    ZelGraphicsRectItem loose(rect);
    loose.hide();
    loose.show();
    loose.confineToScene();
    QCOMPARE(loose.pos(), QPointF());
    QCOMPARE(loose.pen().color(), QColor(Qt::lightGray));

    QGraphicsScene scene(QRectF(QPointF(), sceneSize));
    auto *item = new ZelGraphicsRectItem(rect);
    item->hide();
    scene.addItem(item);
    item->show();
    QCOMPARE(item->pos(), QPointF(150, 247));
}

ZEL_TEST_MAIN(RectItemTest)
#include "tst_rect_item.moc"
