#include "TestCase.h"

#include <ZelCore/ZelAxisSnapping>
#include <ZelCore/ZelScopedCursor>
#include <ZelCore/ZelSoftAssert>
#include <ZelCore/ZelTimedCursor>
#include <ZelCore/contains>

#include <QHash>

#include <limits>
#include <unordered_map>

class CurveHelpersTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void snappingLocksTheFirstAxisFarEnough();
    void cursorsComeBackInEveryOrder();
    void aTimedCursorEndsWithItsCondition();
    void softAssertionsTellAndGoOn();
    void containersHoldKeysOrValues();
};

void CurveHelpersTest::snappingLocksTheFirstAxisFarEnough()
{
    ZelAxisSnapping across(QPoint(10, 20), 5);
    QCOMPARE(across.adjustPosition(QPoint(13, 18)), QPoint(13, 18));
    QCOMPARE(across.adjustPosition(QPoint(14, 18)), QPoint(14, 20));
    QCOMPARE(across.adjustPosition(QPoint(11, 90)), QPoint(11, 20));
    across.resetOrigin(QPoint(0, 70));
    QCOMPARE(across.adjustPosition(QPoint(1, 2)), QPoint(1, 70));

    ZelAxisSnapping up(QPoint(0, 0), 5);
    QCOMPARE(up.adjustPosition(QPoint(-3, -4)), QPoint(0, -4));
    ZelAxisSnapping even(QPoint(0, 0), 0);
    QCOMPARE(even.adjustPosition(QPoint(0, 0)), QPoint(0, 0));
    QCOMPARE(even.adjustPosition(QPoint(2, -2)), QPoint(2, 0));
    constexpr int far = std::numeric_limits<int>::max();
    ZelAxisSnapping corner(QPoint(-far, -far), 5);
    QCOMPARE(corner.adjustPosition(QPoint(far, far - 1)), QPoint(far, -far));
}

void CurveHelpersTest::cursorsComeBackInEveryOrder()
{
    const auto shape = [] {
        const QCursor *cursor = QGuiApplication::overrideCursor();
        return cursor ? int(cursor->shape()) : -1;
    };
    ZelTimedCursor timed(Qt::SizeHorCursor, {});
    timed.setCursor();
    timed.setCursor();
    {
        const ZelScopedCursor scoped(Qt::WaitCursor);
        QCOMPARE(shape(), int(Qt::WaitCursor));
    }
    QCOMPARE(shape(), int(Qt::SizeHorCursor));
    timed.stop();
    timed.stop();
    QCOMPARE(shape(), -1);
    {
        ZelTimedCursor dying(Qt::SizeHorCursor, {});
        dying.setCursor();
    }
    QCOMPARE(shape(), -1);
}

void CurveHelpersTest::aTimedCursorEndsWithItsCondition()
{
    bool over = false;
    int asked = 0;
    ZelTimedCursor timed(Qt::SizeHorCursor, [&] {
        ++asked;
        return over;
    });
    timed.setCursor();
    QTRY_VERIFY(asked >= 2);
    QVERIFY(QGuiApplication::overrideCursor());
    over = true;
    QTRY_VERIFY(!QGuiApplication::overrideCursor());
    over = false;
    timed.setCursor();
    QVERIFY(QGuiApplication::overrideCursor());
}

void CurveHelpersTest::softAssertionsTellAndGoOn()
{
    const double size = -1.0;
    QVERIFY(ZEL_SOFT_ASSERT(size < 0.0, "size < 0.0", "setSize", "src/Marker", 3));
    QVERIFY(messages().messages(QtDebugMsg).isEmpty());
    QVERIFY(!ZEL_SOFT_ASSERT(size > 0.0, "size > 0.0", "setSize", "src/Marker", 4));
    QCOMPARE(messages().messages(QtDebugMsg),
             QStringList{QStringLiteral("soft assertion: \"size > 0.0\" failed in function: setSize"
                                        "\n in file: src/Marker\n line: 4\n")});
}

void CurveHelpersTest::containersHoldKeysOrValues()
{
    const std::unordered_map<int, int> map{{1, 5}};
    const QHash<int, int> hash{{1, 5}};
    const std::vector<int> values{5, 6};
    QVERIFY(orv::contains(map, 1) && !orv::contains(map, 5));
    QVERIFY(orv::contains(hash, 1) && !orv::contains(hash, 5));
    QVERIFY(orv::contains(values, 6) && !orv::contains(values, 1));
}

ZEL_TEST_MAIN(CurveHelpersTest)
#include "tst_curve_helpers.moc"
