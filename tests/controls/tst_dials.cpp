#include "NumberRows.h"
#include "UserInput.h"

#include "ZelDialAngle.h"
#include "ZelThumbWheelGeometry.h"

#include <ZelWidgets/QtThumbWheel>
#include <ZelWidgets/ZelDialWidget>

#include <QAccessible>
#include <QDial>
#include <QDoubleSpinBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <cmath>
#include <limits>
#include <random>

namespace {

namespace Wheel = ZelThumbWheelGeometry;
constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

} // namespace

class TestDials : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dialAnglesSurviveTheWayThroughTheDial();
    void dialAndFieldKeepInStep();
    void dialRefusesNoAngle();
    void cogsStandCloserAtTheEnds();
    void wheelArithmeticStaysInTheRange();
    void wheelTurnsByDragAndKeys();
    void mouseWheelNeedsControl();
    void wheelLooksTurned();
    void assistiveTechnologySeesAngles();
};

void TestDials::dialAnglesSurviveTheWayThroughTheDial()
{
    for (const bool isBackward : {false, true}) {
        for (const bool isContinuing : {false, true}) {
            const ZelDialAngle::Rule rule{isBackward, isContinuing};
            for (int place = 0; place <= 360; ++place) {
                const double angle =
                    ZelDialAngle::angle(place, isBackward ? 360 - place : place, rule);
                QCOMPARE(ZelDialAngle::position(angle, rule), place);
                QCOMPARE(angle, isBackward ? 360.0 - place : place);
            }
        }
    }
    const ZelDialAngle::Rule turns{false, true};
    QCOMPARE(ZelDialAngle::angle(5, 355, turns), 365.0);
    QCOMPARE(ZelDialAngle::angle(355, 725, turns), 715.0);
    QCOMPARE(ZelDialAngle::angle(350, 5, turns), 0.0);
    QCOMPARE(ZelDialAngle::angle(5, 365, {true, true}), 355.0);
    QCOMPARE(ZelDialAngle::position(4500.5, turns), 181);
    QCOMPARE(ZelDialAngle::position(4500.5, {true, false}), 180);
    for (const double angle : {1e17, 1e300, std::numeric_limits<double>::max()}) {
        const int place = ZelDialAngle::position(angle, turns);
        QVERIFY(place >= 0 && place <= 360);
        QVERIFY(std::isfinite(ZelDialAngle::angle(place, angle, turns)));
    }
    QCOMPARE(ZelDialAngle::positive(-90), 270.0);
    QCOMPARE(ZelDialAngle::positive(-720), 0.0);
}

void TestDials::dialAndFieldKeepInStep()
{
    ZelDialWidget widget({60, 60});
    auto *dial = widget.findChild<QDial *>();
    auto *field = widget.findChild<QDoubleSpinBox *>();
    QSignalSpy changed(&widget, &ZelDialWidget::valueChanged);
    widget.setValue(12.7544);
    QCOMPARE(dial->value(), 13);
    QCOMPARE(field->value(), 12.75);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(widget.getValue(), 12.7544);
    QCOMPARE(changed.count(), 1);

    enter(field, QStringLiteral("4500.5"));
    QCOMPARE(widget.getValue(), 4500.5);
    QCOMPARE(dial->value(), 181);
    QCOMPARE(changed.count(), 2);
    QTest::keyClick(dial, Qt::Key_Right);
    QCOMPARE(widget.getValue(), 186.0);
    QCOMPARE(changed.count(), 3);

    widget.setBackward(true);
    QCOMPARE(widget.getValue(), 186.0);
    QCOMPARE(dial->value(), 174);
    widget.setBackward(false);
    widget.setContinuing(true);
    widget.setValue(4500.5);
    QTest::keyClick(dial, Qt::Key_PageUp);
    QCOMPARE(widget.getValue(), 4320.0 + 181 + 45);
    QTest::keyClick(field, Qt::Key_Up);
    QCOMPARE(widget.getValue(), 4320.0 + 181 + 46);
    QCOMPARE(changed.count(), 6);
}

void TestDials::dialRefusesNoAngle()
{
    ZelDialWidget widget({60, 60}, true);
    widget.setValue(30);
    for (const double value : {std::nan(""), -std::numeric_limits<double>::infinity()}) {
        messages().expect(QtWarningMsg, QStringLiteral("finite"));
        widget.setValue(value);
    }
    QCOMPARE(widget.getValue(), 30.0);
    widget.setValue(-30);
    QCOMPARE(widget.getValue(), 330.0);
}

void TestDials::cogsStandCloserAtTheEnds()
{
    for (const double length : {1.0, 80.0, 5000.0}) {
        for (const int count : {1, 2, 15, 360}) {
            for (const double angle : {0.0, 0.1, -0.1, 3.0, 1e9}) {
                const auto cogs = Wheel::cogs(length, count, angle);
                QCOMPARE(static_cast<int>(cogs.size()), count);
                for (std::size_t i = 0; i < cogs.size(); ++i) {
                    QVERIFY(cogs[i].place >= 0 && cogs[i].place <= length);
                    QVERIFY(cogs[i].facing >= 0 && cogs[i].facing <= 1);
                    QVERIFY(i == 0 || cogs[i].place > cogs[i - 1].place);
                }
            }
        }
    }
    const auto cogs = Wheel::cogs(100, 15, 0.1);
    QVERIFY(cogs[8].place - cogs[7].place > 2 * (cogs[1].place - cogs[0].place));
    // The surface follows the mouse: a pixel in the middle of the wheel is a pixel.
    const double turned = Wheel::angle(0.25, 0.25, 100);
    const auto before = Wheel::cogs(100, 2, 0);
    const auto after = Wheel::cogs(100, 2, turned);
    QVERIFY(std::abs(after[1].place - before[1].place - 1) < 0.01);
    QCOMPARE(static_cast<int>(Wheel::cogs(100, highest, 0).size()), Wheel::maximumCogCount);
    for (const double ratio : {0.0, 1e-320})
        QCOMPARE(Wheel::angle(5, ratio, 100), 0.0);
    QCOMPARE(Wheel::angle(5, 1, 0), 0.0);
}

void TestDials::wheelArithmeticStaysInTheRange()
{
    std::mt19937 random(11);
    const QList<Wheel::Range> ranges{{0, 99, false},          {0, 99, true},
                                     {-5, -5, true},          {lowest, highest, false},
                                     {lowest, highest, true}, {9, 3, false}};
    for (const Wheel::Range &range : ranges) {
        const int maximum = std::max(range.minimum, range.maximum);
        std::uniform_int_distribution<int> start(range.minimum, maximum);
        std::uniform_real_distribution<double> way(-1e10, 1e10);
        for (int i = 0; i < 500; ++i) {
            const int number = start(random);
            const double end = Wheel::turned(number, way(random), range);
            const int value = Wheel::nearest(end, range);
            QVERIFY(value >= range.minimum && value <= maximum);
            QCOMPARE(Wheel::nearest(Wheel::turned(number, 0, range), range), number);
            if (range.wrapsAround) {
                const double span = static_cast<double>(maximum) - range.minimum + 1;
                QCOMPARE(Wheel::nearest(Wheel::turned(number, span, range), range), number);
            }
        }
    }
    const Wheel::Range round{0, 99, true};
    QCOMPARE(Wheel::turned(99, 1, round), 0.0);
    QCOMPARE(Wheel::turned(0, -1, round), 99.0);
    QCOMPARE(Wheel::turned(7, std::nan(""), round), 7.0);
    QCOMPARE(Wheel::turned(7, std::numeric_limits<double>::infinity(), round), 7.0);
    int sum = 0;
    QCOMPARE(Wheel::takeNotches(sum, 100), 0);
    QCOMPARE(Wheel::takeNotches(sum, 100), 1);
    QCOMPARE(Wheel::takeNotches(sum, -120), -1);
}

void TestDials::wheelTurnsByDragAndKeys()
{
    QtThumbWheel wheel(0, 100, 10, 50, Qt::Horizontal);
    wheel.resize(100, 20);
    wheel.setTransmissionRatio(0.5);
    QSignalSpy changed(&wheel, &QtThumbWheel::valueChanged);
    QSignalSpy released(&wheel, &QtThumbWheel::wheelReleased);
    UserInput::drag(&wheel, {50, 10}, {70, 10});
    QCOMPARE(wheel.value(), 60);
    QCOMPARE(released.count(), 1);
    UserInput::drag(&wheel, {50, 10}, {1050, 10});
    QCOMPARE(wheel.value(), 100);
    wheel.setLimitedDrag(true);
    UserInput::drag(&wheel, {50, 10}, {-950, 10});
    QCOMPARE(wheel.value(), 75);
    UserInput::press(&wheel, {50, 10});
    UserInput::move(&wheel, {20, 10});
    QCOMPARE(wheel.value(), 60);
    QTest::keyClick(&wheel, Qt::Key_Escape);
    QCOMPARE(wheel.value(), 75);
    QVERIFY(!wheel.isWheelDown());
    UserInput::move(&wheel, {0, 10});
    UserInput::release(&wheel, {0, 10});
    QCOMPARE(wheel.value(), 75);

    // Slow moves add up, also when the owner answers each change.
    connect(&wheel, &QtThumbWheel::valueChanged, &wheel, &QtThumbWheel::setValue);
    UserInput::drag(&wheel, {50, 10}, {60, 10}, {}, Qt::LeftButton, 10);
    QCOMPARE(wheel.value(), 80);

    wheel.setLayoutDirection(Qt::RightToLeft);
    UserInput::drag(&wheel, {50, 10}, {60, 10});
    QCOMPARE(wheel.value(), 75);
    QTest::keyClick(&wheel, Qt::Key_Left);
    QTest::keyClick(&wheel, Qt::Key_PageUp);
    QCOMPARE(wheel.value(), 86);
    changed.clear();
    QTest::keyClick(&wheel, Qt::Key_End);
    QTest::keyClick(&wheel, Qt::Key_Up);
    QCOMPARE(changed.count(), 1);
    wheel.setWrapsAround(true);
    QTest::keyClick(&wheel, Qt::Key_Up);
    QCOMPARE(wheel.value(), 0);
    wheel.setOrientation(Qt::Vertical);
    wheel.resize(20, 100);
    UserInput::drag(&wheel, {10, 50}, {10, 30});
    QCOMPARE(wheel.value(), 10);
    messages().expect(QtWarningMsg, QStringLiteral("finite"));
    wheel.setTransmissionRatio(std::nan(""));
    QCOMPARE(wheel.transmissionRatio(), 0.5);
    wheel.setRange(lowest, highest);
    wheel.setPageStep(highest);
    QTest::keyClick(&wheel, Qt::Key_PageDown);
    QCOMPARE(wheel.value(), 10 - highest);
}

void TestDials::mouseWheelNeedsControl()
{
    QScrollArea area;
    auto *panel = new QWidget;
    auto *layout = new QVBoxLayout(panel);
    auto *wheel = new QtThumbWheel(0, 1000, 100, 500, Qt::Horizontal, panel);
    auto *dial = new ZelDialWidget({60, 60}, false, panel);
    layout->addWidget(wheel);
    layout->addWidget(dial);
    layout->addSpacing(3000);
    area.setWidget(panel);
    area.resize(300, 200);
    area.show();
    auto *field = dial->findChild<QDoubleSpinBox *>();
    QWidget *const editors[] = {wheel, dial->findChild<QDial *>(), field};
    int scrolled = 0;
    for (QWidget *editor : editors) {
        UserInput::wheel(editor, -1);
        QVERIFY(area.verticalScrollBar()->value() > scrolled);
        scrolled = area.verticalScrollBar()->value();
    }
    QCOMPARE(wheel->value(), 500);
    QCOMPARE(dial->getValue(), 0.0);

    UserInput::wheel(wheel, 1, Qt::ControlModifier);
    QCOMPARE(wheel->value(), 501);
    UserInput::wheel(wheel, -2, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(wheel->value(), 301);
    UserInput::wheel(wheel, 0.5, Qt::ControlModifier);
    UserInput::wheel(wheel, 0.5, Qt::ControlModifier);
    QCOMPARE(wheel->value(), 302);
    UserInput::wheel(field, 3, Qt::ControlModifier);
    QCOMPARE(dial->getValue(), 3.0);
    UserInput::wheel(editors[1], 1, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(dial->getValue(), 48.0);
    QCOMPARE(area.verticalScrollBar()->value(), scrolled);
}

void TestDials::wheelLooksTurned()
{
    QtThumbWheel wheel(0, 1000, 10, 0, Qt::Horizontal);
    wheel.resize(101, 20);
    wheel.setCogCount(5);
    const QImage before = wheel.grab().toImage();
    wheel.setValue(1);
    const QImage after = wheel.grab().toImage();
    QVERIFY(before != after);
    wheel.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(wheel.grab().toImage() != after);
}

void TestDials::assistiveTechnologySeesAngles()
{
    ZelDialWidget widget({60, 60});
    widget.setValue(12.75);
    auto *dial = widget.findChild<QDial *>();
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(dial);
    QVERIFY(face && face->valueInterface());
    QCOMPARE(face->role(), QAccessible::Dial);
    QCOMPARE(face->text(QAccessible::Value), QStringLiteral("12.75\u00B0"));
    QCOMPARE(face->valueInterface()->currentValue().toDouble(), 12.75);
    face->valueInterface()->setCurrentValue(30.5);
    QCOMPARE(widget.getValue(), 30.5);

    QtThumbWheel wheel(-5, 5, 1, 0, Qt::Horizontal);
    QAccessibleInterface *wheelFace = QAccessible::queryAccessibleInterface(&wheel);
    QVERIFY(wheelFace && wheelFace->valueInterface());
    wheelFace->valueInterface()->setCurrentValue(100);
    QCOMPARE(wheelFace->text(QAccessible::Value), QStringLiteral("5"));
}

ZEL_TEST_MAIN(TestDials)
#include "tst_dials.moc"
