#include "TestCase.h"

#include "ZelPlacementGeometry.h"
#include "ZelWindowPlacement.h"

#include <QtWidgets>

namespace {

QRect availableOn(int screen)
{
    return QGuiApplication::screens().at(screen)->availableGeometry();
}

// Where a window stands that was put in the middle; the title bar isn't reckoned with.
QPoint middlePlace(const QWidget &window, const QRect &area)
{
    return area.topLeft() +
           QPoint((area.width() - window.width()) / 2, (area.height() - window.height()) / 2);
}

} // namespace

// Two screens: 1920 by 1080 at the left, 1280 by 1024 right of it.
class PlacementTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void sizeOfAWindowToBeCentred();
    void centresHiddenWindowsByTheirHint();
    void centresOnTheGivenScreenAndCapsTheSize();
    void findsTheScreenOfAWidget();
    void leavesNiceWindowsAlone();
    void bringsLostWindowsBack();
    void centresOnTheParent();
};

void PlacementTest::initTestCase()
{
    QCOMPARE(QGuiApplication::screens().size(), 2);
}

void PlacementTest::sizeOfAWindowToBeCentred()
{
    struct Row
    {
        const char *name;
        QSize size, hint, minimum;
        QString state; // v visible, h has a handle, r was resized
        QSize expected;
    };
    const QSize none;
    const QSize zero(0, 0);
    const QSize standard(640, 480);
    const QString h = QStringLiteral("h");
    const QString r = QStringLiteral("r");
    const Row rows[] = {
        {"visible keeps its size", {300, 200}, {500, 400}, zero, QStringLiteral("vhr"), {300, 200}},
        {"hidden takes the hint", standard, {320, 240}, {330, 10}, h, {330, 240}},
        {"never resized takes the hint", standard, {320, 240}, zero, {}, {320, 240}},
        {"chosen size grows to the hint", {400, 100}, {320, 240}, zero, r, {400, 240}},
        {"empty hint with a handle", {30, 60}, none, zero, h, {100, 60}},
        {"empty hint without a handle", {30, 20}, none, zero, {}, {100, 50}},
        {"a chosen size that is of no use", {10, 5}, none, zero, r, {100, 50}},
        {"narrow hint", {10, 10}, {19, 30}, zero, h, {100, 50}},
        {"least hint", {10, 10}, {20, 10}, zero, h, {20, 10}}};
    for (const Row &row : rows) {
        const QSize size = ZelPlacementGeometry::sizeToCentre(
            {row.size, row.hint, row.minimum, row.state.contains(u'v'), row.state.contains(u'h'),
             row.state.contains(u'r')});
        QVERIFY2(size == row.expected, row.name);
    }
}

void PlacementTest::centresHiddenWindowsByTheirHint()
{
    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    auto *content = new QWidget(&window);
    content->setMinimumSize(321, 123);
    layout->addWidget(content);
    centerWidgetOnScreen(&window, nullptr);
    QCOMPARE(window.size(), window.sizeHint());
    QCOMPARE(window.pos(), middlePlace(window, availableOn(0)));
    QWidget empty;
    centerWidgetOnScreen(&empty, nullptr);
    QVERIFY(empty.width() >= 100 && empty.height() >= 50);
    centerWidgetOnScreen(nullptr, nullptr);
}

void PlacementTest::centresOnTheGivenScreenAndCapsTheSize()
{
    QWidget window;
    window.resize(3000, 200);
    window.show();
    centerWidgetOnScreen(&window, QGuiApplication::screens().at(1));
    QCOMPARE(window.width(), availableOn(1).width());
    QCOMPARE(window.height(), 200);
    QCOMPARE(window.pos(), middlePlace(window, availableOn(1)));
    window.setMinimumSize(3000, 3000);
    centerWidgetOnScreen(&window, QGuiApplication::screens().at(1));
    QCOMPARE(window.pos(), availableOn(1).topLeft());
}

void PlacementTest::findsTheScreenOfAWidget()
{
    QWidget window;
    auto *child = new QWidget(&window);
    window.setGeometry(QRect(availableOn(1).center(), QSize(100, 100)));
    window.show();
    QCOMPARE(widgetScreen(child), QGuiApplication::screens().at(1));
    QCOMPARE(widgetScreen(nullptr), QGuiApplication::primaryScreen());
}

void PlacementTest::leavesNiceWindowsAlone()
{
    QWidget window;
    const QRect halfOut(-150, 100, 300, 200);
    window.setGeometry(halfOut);
    window.show();
    ensureNiceWidgetPosition(&window);
    QCOMPARE(window.geometry(), halfOut);

    QWidget lost;
    lost.setGeometry(-5000, -5000, 300, 200);
    lost.setWindowState(Qt::WindowFullScreen);
    const QRect fullScreen = lost.geometry();
    ensureNiceWidgetPosition(&lost);
    QCOMPARE(lost.geometry(), fullScreen);
    auto *child = new QWidget(&window);
    child->setGeometry(-5000, 0, 100, 100);
    ensureNiceWidgetPosition(child);
    QCOMPARE(child->pos(), QPoint(-5000, 0));
    ensureNiceWidgetPosition(nullptr);
}

void PlacementTest::bringsLostWindowsBack()
{
    const QString warning =
        QStringLiteral("ensureNiceWidgetPosition will center on screen due overlap outside area");
    QWidget window;
    window.setWindowTitle(QStringLiteral("Lost"));
    window.setGeometry(-151, 100, 300, 200);
    window.show();
    messages().expect(QtWarningMsg,
                      QRegularExpression(warning + QStringLiteral("[^$]*\n[^$]*Lost")));
    ensureNiceWidgetPosition(&window);
    QCOMPARE(window.pos(), middlePlace(window, availableOn(0)));

    // Above the top edge the title bar can't be reached.
    window.setGeometry(200, availableOn(0).top() - 50, 300, 200);
    messages().expect(QtWarningMsg, warning);
    ensureNiceWidgetPosition(&window);
    QCOMPARE(window.pos(), middlePlace(window, availableOn(0)));

    QWidget large;
    large.setGeometry(-600, 100, 3000, 1500);
    large.show();
    messages().expect(QtWarningMsg, warning);
    ensureNiceWidgetPosition(&large);
    QCOMPARE(large.width(), availableOn(0).width());
    QVERIFY(large.height() < availableOn(0).height());
}

void PlacementTest::centresOnTheParent()
{
    QWidget parent;
    parent.setGeometry(1200, 500, 400, 300);
    parent.show();
    QDialog dialog(&parent);
    dialog.setGeometry(-290, 100, 300, 200);
    dialog.show();
    messages().expect(QtWarningMsg, QStringLiteral("ensureNiceWidgetPosition"));
    ensureNiceWidgetPosition(&dialog);
    QCOMPARE(dialog.pos(), middlePlace(dialog, parent.geometry()));

    parent.setGeometry(QRect(availableOn(1).topLeft() + QPoint(50, 50), QSize(300, 300)));
    dialog.setGeometry(-290, 100, 300, 200);
    QCOMPARE(dialog.screen(), QGuiApplication::screens().at(0));
    messages().expect(QtWarningMsg, QStringLiteral("ensureNiceWidgetPosition"));
    ensureNiceWidgetPosition(&dialog);
    QCOMPARE(dialog.pos(), middlePlace(dialog, availableOn(0)));
}

ZEL_TEST_MAIN(PlacementTest)

#include "tst_placement.moc"
