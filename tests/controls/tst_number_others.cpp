#include "TestCase.h"
#include "UserInput.h"

#include "ZelAspect.h"
#include "ZelCoordinateText.h"
#include "ZelDialAngle.h"
#include "ZelThumbWheelGeometry.h"

#include <ZelWidgets/QtThumbWheel>
#include <ZelWidgets/ZelCoordinateEdit>
#include <ZelWidgets/ZelDialWidget>
#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelMetricWidget>
#include <ZelWidgets/ZelParameterGroup>
#include <ZelWidgets/ZelScaleWidget>
#include <ZelWidgets/ZelSizeEdit>
#include <ZelWidgets/ZelToolButton>

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

namespace Wheel = ZelThumbWheelGeometry;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

/// Types a text into the field, in place of what is there, and ends the entry.
void enter(QWidget *field, const QString &text)
{
    QMetaObject::invokeMethod(field, "selectAll");
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

QAbstractSpinBox *fieldOf(QWidget *row)
{
    return row->findChild<QAbstractSpinBox *>();
}

/// The rows of an editor in the order in which they were made.
QList<ZelDoubleSliderEdit *> rowsOf(QWidget *editor)
{
    return editor->findChildren<ZelDoubleSliderEdit *>();
}

ZelDoubleSliderEdit *rowOf(QWidget *editor, const QString &name)
{
    for (ZelDoubleSliderEdit *row : rowsOf(editor)) {
        if (fieldOf(row)->accessibleName() == name)
            return row;
    }
    return nullptr;
}

} // namespace

class TestNumberOthers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void coordinateTexts_data();
    void coordinateTexts();
    void writtenCoordinatesAreReadBack();
    void coordinateFieldTakesWhatIsTyped();
    void dialAnglesSurviveTheWayThroughTheDial();
    void dialAndFieldKeepInStep();
    void dialRefusesNoAngle();
    void cogsStandCloserAtTheEnds();
    void wheelArithmeticStaysInTheRange();
    void wheelTurnsByDragAndKeys();
    void mouseWheelNeedsControl();
    void wheelLooksTurned();
    void lockedAspectMovesTheOtherSide();
    void aspectIsSetAndReset();
    void sidesShareOneRange();
    void sizeRowStandsForBoth();
    void scaleLinksItsFactors();
    void scaleKeepsLimitsAndRatio();
    void groupFlipsItsDetails();
    void metricWidgetTakesTheFontsHeight();
    void assistiveTechnologySeesAngles();
};

void TestNumberOthers::coordinateTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPosition");
    QTest::addColumn<float>("latitude");
    QTest::addColumn<float>("longitude");

    const auto good = [](const QString &text, float latitude, float longitude) {
        QTest::newRow(qPrintable(text)) << text << true << latitude << longitude;
    };
    const auto bad = [](const QString &text) {
        QTest::newRow(qPrintable(text.left(40))) << text << false << 0.0F << 0.0F;
    };
    good(QStringLiteral("48.1372 N 11.5755 E"), 48.1372F, 11.5755F);
    good(QStringLiteral("48.1372s11.5755w"), -48.1372F, -11.5755F);
    good(QStringLiteral("  48,5 n ,\t7\u00B0 e\n"), 48.5F, 7);
    good(QStringLiteral("90N180W"), 90, -180);
    good(QStringLiteral("90.00000000 S 179.99999999 E"), -90, 180);
    good(QStringLiteral("1e-05 N 2.5e-07 E"), 1e-5F, 2.5e-7F);
    good(QStringLiteral("\u0664\u0665\u066B\u0665 N \u0661\u0660 E"), 45.5F, 10);
    good(QStringLiteral("\uFF11\uFF10 N 099 W"), 10, -99);
    bad(QString());
    bad(QStringLiteral("90.00000001 N 0 E"));
    bad(QStringLiteral("0 N 180.1 E"));
    bad(QStringLiteral("0 N 181 E"));
    bad(QStringLiteral("1.123456789 N 0 E"));
    bad(QStringLiteral("1 E 1 N"));
    bad(QStringLiteral("-1 N 1 E"));
    bad(QStringLiteral("1 N 1"));
    bad(QStringLiteral("1 N 1 E x"));
    bad(QStringLiteral("1. N 1 E"));
    bad(QStringLiteral("1") + QString(10'000, u' ') + QStringLiteral("N 1") +
        QString(10'000, u' '));
    bad(QString(10'000, u'9'));
}

void TestNumberOthers::coordinateTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isPosition);
    QFETCH(float, latitude);
    QFETCH(float, longitude);

    QWidget parent;
    const ZelCoordinateValidator validator(&parent);
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor),
             isPosition ? QValidator::Acceptable : QValidator::Invalid);
    float readLatitude = 0;
    float readLongitude = 0;
    QCOMPARE(validator.extractCoordinates(text, readLatitude, readLongitude), isPosition);
    QCOMPARE(readLatitude, latitude);
    QCOMPARE(readLongitude, longitude);
}

void TestNumberOthers::writtenCoordinatesAreReadBack()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> part(-1, 1);
    const QRegularExpression expression = ZelCoordinateText::expression();
    for (const char *name : {"C", "de_DE", "sv_SE", "ar_EG", "fa_IR", "hi_IN"}) {
        const QLocale locale{QLatin1String(name)};
        for (int i = 0; i < 300; ++i) {
            const float shrink = std::pow(10.0F, static_cast<float>(-(i % 8)));
            const ZelCoordinateText::Position position{90 * part(random) * shrink,
                                                       180 * part(random) * shrink};
            const QString text = ZelCoordinateText::write(position, locale);
            const auto read = ZelCoordinateText::read(
                expression.match(ZelCoordinateText::normalized(text, locale)));
            QVERIFY2(read, qPrintable(text));
            QVERIFY(std::abs(read->latitude - position.latitude) <=
                    1e-5F * std::abs(position.latitude));
            QVERIFY(std::abs(read->longitude - position.longitude) <=
                    1e-5F * std::abs(position.longitude));
            QCOMPARE(ZelCoordinateText::write(*read, locale), text);
        }
    }
    QVERIFY(!ZelCoordinateText::isOnGlobe({std::nanf(""), 0}));
    QVERIFY(!ZelCoordinateText::isOnGlobe({0, -infinity}));
}

void TestNumberOthers::coordinateFieldTakesWhatIsTyped()
{
    ZelCoordinateEdit edit(nullptr);
    QSignalSpy updated(&edit, &ZelCoordinateEdit::valueUpdated);
    const auto position = [&edit] {
        float latitude = 0;
        float longitude = 0;
        edit.coordinates(latitude, longitude);
        return QPointF(static_cast<qreal>(latitude), static_cast<qreal>(longitude));
    };
    edit.setCoordinates(12.3456789F, -98.7654321F);
    QCOMPARE(edit.text(), QStringLiteral("12.3457 N 98.7654 W"));
    const QPointF stored = position();
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(position(), stored);
    messages().expect(QtWarningMsg, QStringLiteral("globe"));
    edit.setCoordinates(91, 0);
    QCOMPARE(position(), stored);
    QCOMPARE(updated.count(), 0);

    enter(&edit, QStringLiteral("91 N 0 E"));
    QCOMPARE(edit.styleSheet(), QStringLiteral("QLineEdit {background: #f99;}"));
    QCOMPARE(position(), stored);
    QTest::keyClick(&edit, Qt::Key_Escape);
    QCOMPARE(edit.text(), QStringLiteral("12.3457 N 98.7654 W"));
    QCOMPARE(edit.styleSheet(), QString());

    enter(&edit, QStringLiteral("1.5s2w"));
    QCOMPARE(edit.text(), QStringLiteral("1.5 S 2 W"));
    QCOMPARE(position(), QPointF(-1.5, -2));
    QCOMPARE(updated.count(), 1);
    enter(&edit, QStringLiteral("1.5 S 2 W"));
    QCOMPARE(updated.count(), 1);
}

void TestNumberOthers::dialAnglesSurviveTheWayThroughTheDial()
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

void TestNumberOthers::dialAndFieldKeepInStep()
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

void TestNumberOthers::dialRefusesNoAngle()
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

void TestNumberOthers::cogsStandCloserAtTheEnds()
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

void TestNumberOthers::wheelArithmeticStaysInTheRange()
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

void TestNumberOthers::wheelTurnsByDragAndKeys()
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

void TestNumberOthers::mouseWheelNeedsControl()
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

void TestNumberOthers::wheelLooksTurned()
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

void TestNumberOthers::lockedAspectMovesTheOtherSide()
{
    ZelSizeEdit edit(nullptr);
    edit.setSize(4, 3);
    QSignalSpy changed(&edit, &ZelSizeEdit::sizeChanged);
    auto *width = rowOf(&edit, QStringLiteral("Width"));
    auto *height = rowOf(&edit, QStringLiteral("Height"));
    QVERIFY(width && height);
    enter(fieldOf(width), QStringLiteral("6"));
    QCOMPARE(edit.height(), 3.0F);
    edit.setAspectLocked(true);
    enter(fieldOf(width), QStringLiteral("8"));
    QCOMPARE(edit.height(), 4.0F);
    QCOMPARE(fieldOf(height)->text(), QStringLiteral("4"));
    enter(fieldOf(height), QStringLiteral("2"));
    QCOMPARE(edit.width(), 4.0F);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(changed.last(), QVariantList({4.0F, 2.0F}));

    std::mt19937 random(3);
    std::uniform_real_distribution<float> side(0.001F, 1000);
    for (int i = 0; i < 1000; ++i) {
        const float base = side(random);
        const double aspect = ZelAspect::ofSize(base, side(random));
        const float there = ZelAspect::heightFor(base, aspect);
        QVERIFY(std::abs(ZelAspect::widthFor(there, aspect) - base) <= 2e-7F * base);
    }
    QVERIFY(std::isinf(ZelAspect::ofSize(0, 1)));
    QVERIFY(!ZelAspect::isClose(0, 1e-300));
    QVERIFY(ZelAspect::isClose(1, 1 + 1e-13));
    QVERIFY(!ZelAspect::isClose(std::nan(""), 1));
}

void TestNumberOthers::aspectIsSetAndReset()
{
    ZelSizeEdit edit(nullptr);
    const auto buttons = edit.findChildren<ZelToolButton *>();
    QToolButton *lock = nullptr;
    QToolButton *reset = nullptr;
    for (ZelToolButton *button : buttons)
        (button->toolTip() == QStringLiteral("Lock Aspect") ? lock : reset) = button;
    QVERIFY(lock && reset && lock->isCheckable());
    QVERIFY(!reset->isEnabled());
    QSignalSpy changed(&edit, &ZelSizeEdit::sizeChanged);
    QSignalSpy locked(&edit, &ZelSizeEdit::aspectLockChanged);
    edit.setSize(4, 2);
    QCOMPARE(changed.count(), 0);
    QVERIFY(reset->isEnabled());
    lock->click();
    QVERIFY(edit.isAspectLocked());
    lock->click();
    reset->click();
    QCOMPARE(edit.height(), 4.0F);
    QVERIFY(edit.isAspectLocked() && lock->isChecked() && !reset->isEnabled());
    QCOMPARE(locked.count(), 3);
    QCOMPARE(changed.count(), 1);
    edit.setAspect(1);
    QCOMPARE(changed.count(), 1);
    edit.setAspect(0.5);
    QCOMPARE(changed.last(), QVariantList({4.0F, 2.0F}));
    edit.setDefaultAspect(0.5);
    QVERIFY(!reset->isEnabled());
    messages().expect(QtWarningMsg, QStringLiteral("finite"));
    edit.setAspect(std::nan(""));
    edit.setSize(0, 0);
    edit.setSize(3, 6);
    QCOMPARE(edit.height(), 6.0F);
}

void TestNumberOthers::sidesShareOneRange()
{
    ZelSizeEdit edit(nullptr);
    auto *width = rowOf(&edit, QStringLiteral("Width"));
    auto *height = rowOf(&edit, QStringLiteral("Height"));
    for (const char *text : {"50", "3", "4000", "0.01", "0"}) {
        enter(fieldOf(width), QLatin1String(text));
        enter(fieldOf(height), QStringLiteral("7"));
        QTRY_COMPARE(width->sliderMaximum(), height->sliderMaximum());
        QVERIFY(width->sliderMaximum() >= static_cast<double>(edit.width()));
        QVERIFY(width->sliderMaximum() >= 7);
        QCOMPARE(width->sliderMinimum(), 0.0);
    }
}

void TestNumberOthers::sizeRowStandsForBoth()
{
    ZelSizeEdit edit(nullptr);
    edit.setSize(4, 3);
    edit.setShowSizeOnly(true);
    edit.setSizeOnlyText(QStringLiteral("Edge"));
    QSignalSpy changed(&edit, &ZelSizeEdit::sizeChanged);
    for (ZelDoubleSliderEdit *row : rowsOf(&edit))
        QCOMPARE(row->isHidden(), row != rowOf(&edit, QStringLiteral("Edge")));
    enter(fieldOf(rowOf(&edit, QStringLiteral("Edge"))), QStringLiteral("8"));
    QCOMPARE(changed, QList<QVariantList>({{8.0F, 6.0F}}));
    edit.setShowSizeOnly(false);
    QCOMPARE(fieldOf(rowOf(&edit, QStringLiteral("Width")))->text(), QStringLiteral("8"));
    QCOMPARE(fieldOf(rowOf(&edit, QStringLiteral("Height")))->text(), QStringLiteral("6"));
}

void TestNumberOthers::scaleLinksItsFactors()
{
    ZelScaleWidget scale(QStringLiteral("Scale"));
    QSignalSpy updated(&scale, &ZelScaleWidget::scaleUpdated);
    scale.set(1, 2, 2);
    QCOMPARE(updated.count(), 0);
    auto *both = rowOf(&scale, QStringLiteral("Scale"));
    auto *x = rowOf(&scale, QStringLiteral("X"));
    auto *y = rowOf(&scale, QStringLiteral("Y"));
    QVERIFY(both && x && y);
    enter(fieldOf(both), QStringLiteral("3"));
    enter(fieldOf(x), QStringLiteral("4"));
    enter(fieldOf(y), QStringLiteral("10"));
    QCOMPARE(updated, QList<QVariantList>({{3.0F, 6.0F}, {4.0F, 8.0F}, {5.0F, 10.0F}}));
    QCOMPARE(fieldOf(both)->text(), QStringLiteral("5"));

    scale.setKeepAspectRatio(false);
    enter(fieldOf(x), QStringLiteral("2.5"));
    QCOMPARE(scale.scaleY(), 10.0F);
    enter(fieldOf(both), QStringLiteral("5"));
    QCOMPARE(scale.scaleY(), 20.0F);

    scale.show();
    auto *label = scale.findChildren<ZelFlipLabel *>().constFirst();
    label->setFocus();
    QTest::mouseClick(label, Qt::LeftButton);
    QVERIFY(scale.isOpen() && both->isHidden() && x->isVisible());
    scale.open(false);
    QVERIFY(!both->isHidden() && !x->isVisible());
}

void TestNumberOthers::scaleKeepsLimitsAndRatio()
{
    ZelScaleWidget scale(QStringLiteral("Scale"));
    QSignalSpy updated(&scale, &ZelScaleWidget::scaleUpdated);
    for (const float ratio : {0.0F, infinity, std::nanf("")}) {
        messages().expect(QtWarningMsg, QStringLiteral("ratio"));
        scale.setAspectRatio(ratio);
    }
    QCOMPARE(scale.aspectRatio(), 1.0F);
    QCOMPARE(updated.count(), 0);
    scale.setAspectRatio(3);
    QCOMPARE(updated, QList<QVariantList>({{1.0F, 3.0F}}));
    scale.setLimits(true, 0, 10, 0, 6);
    auto *x = rowOf(&scale, QStringLiteral("X"));
    QCOMPARE(x->sliderMaximum(), 10.0);
    QCOMPARE(rowOf(&scale, QStringLiteral("Y"))->sliderMaximum(), 6.0);
    enter(fieldOf(x), QStringLiteral("4"));
    QCOMPARE(scale.scaleY(), 6.0F);
    enter(fieldOf(x), QStringLiteral("1"));
    QCOMPARE(scale.scaleY(), 3.0F);
}

void TestNumberOthers::groupFlipsItsDetails()
{
    ZelParameterGroup group(QStringLiteral("Relief"));
    float number = 1;
    auto *row = new ZelDoubleSliderEdit(QStringLiteral("Depth"), 0, 9, &number, 0, 9, nullptr,
                                        nullptr, false);
    auto *always = new QWidget;
    group.setGroupWidget(always);
    group.addDetailWidget(row);
    group.show();
    QVERIFY(always->isVisible() && !row->isVisible() && !group.groupLabel()->isOpen());
    QTest::mouseClick(group.groupLabel(), Qt::LeftButton);
    QVERIFY(row->isVisible() && group.groupLabel()->isOpen());
    QSignalSpy updated(&group, &ZelParameterGroup::valueUpdated);
    enter(fieldOf(row), QStringLiteral("5"));
    QCOMPARE(updated.count(), 1);
    group.hide();
    QMetaObject::invokeMethod(&group, "widgetFlip");
    QVERIFY(!group.groupLabel()->isOpen());
    group.show();
    QVERIFY(!row->isVisible());
}

void TestNumberOthers::metricWidgetTakesTheFontsHeight()
{
    ZelMetricWidget widget(ZelFontMetrics::FontHeight);
    QCOMPARE(widget.sizeHint().height(), ZelFontMetrics(&widget).height());
    widget.setHeightType(ZelFontMetrics::EditorHeight);
    QCOMPARE(widget.sizeHint().height(), ZelFontMetrics(&widget).editorHeight());
    widget.setHeightType(static_cast<ZelFontMetrics::HeightType>(7));
    QCOMPARE(widget.sizeHint(), QSize(-1, -1));
    auto *child = new QWidget;
    child->setFixedSize(40, 90);
    widget.setChildWidget(child, true);
    QCOMPARE(widget.sizeHint(), QSize(40, -1));
    widget.setMinSize({50, 10});
    widget.setExtraSize({3, 4});
    QCOMPARE(widget.sizeHint(), QSize(53, 14));
    widget.resize(140, 90);
    widget.show();
    QCOMPARE(child->geometry(), QRect(50, 0, 40, 90));
    widget.setChildWidget(new QWidget);
    QVERIFY(child->isHidden() && child->parent() == &widget);
}

void TestNumberOthers::assistiveTechnologySeesAngles()
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

ZEL_TEST_MAIN(TestNumberOthers)
#include "tst_number_others.moc"
