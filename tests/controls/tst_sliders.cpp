#include "TestCase.h"
#include "UserInput.h"

#include "ZelAccessibleValue.h"
#include "ZelSliderMath.h"

#include <ZelWidgets/ZelDoubleSlider>
#include <ZelWidgets/ZelIntegerSlider>
#include <ZelWidgets/ZelSlider>

#include <QAccessible>
#include <QDoubleSpinBox>
#include <QProxyStyle>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyleOptionSlider>
#include <QVBoxLayout>

#include <cmath>
#include <limits>
#include <random>

using ZelSliderMath::GrooveLine;
using ZelSliderMath::GrooveLines;

namespace {

constexpr QSize sliderSize(220, 16);
constexpr float largest = std::numeric_limits<float>::max();

/// Paints no control, so that only the groove is seen.
class NoStyle : public QProxyStyle
{
public:
    void drawComplexControl(ComplexControl, const QStyleOptionComplex *, QPainter *,
                            const QWidget *) const override
    {}
};

QRect handleOf(QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->value();
    option.sliderValue = slider->value();
    option.upsideDown = slider->isRightToLeft();
    option.direction = Qt::LeftToRight;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                           slider);
}

void setColors(QWidget *slider)
{
    slider->setProperty("grooveColorBackground", QColor(Qt::blue));
    slider->setProperty("grooveColorFill", QColor(Qt::red));
    slider->setProperty("grooveColorBackgroundDisabled", QColor(Qt::darkBlue));
    slider->setProperty("grooveColorFillDisabled", QColor(Qt::darkRed));
}

/// The dominating colour at a place of the painted groove: "fill", "back", their disabled forms,
/// or "none".
QString paintedAt(QWidget *slider, int x)
{
    QImage image(slider->size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    slider->render(&image, {}, {}, QWidget::DrawChildren);
    const QColor color = image.pixelColor(x, slider->height() / 2);
    if (color.alpha() < 128)
        return QStringLiteral("none");
    const bool isDark = std::max(color.red(), color.blue()) < 200;
    return (color.red() > color.blue() ? QStringLiteral("fill") : QStringLiteral("back")) +
           (isDark ? QStringLiteral(" off") : QString());
}

} // namespace

class TestSliders : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void positionIsTruncatedAndPinned_data();
    void positionIsTruncatedAndPinned();
    void positionsSurviveTheWayThroughTheNumber();
    void numbersOfEveryPositionLieInTheRange_data();
    void numbersOfEveryPositionLieInTheRange();
    void grooveLinesLeaveTheHandleFree_data();
    void grooveLinesLeaveTheHandleFree();
    void showingNeverWrites();
    void clickOnTheGrooveGoesThereOnce();
    void integerClickStaysInTheRange();
    void wheelTurnsOnlyWithControl();
    void wheelAtTheEndIsReportedLater();
    void grooveIsPaintedBesideTheHandle();
    void rightToLeftMirrors();
    void assistiveTechnologySeesTheNumber();
};

void TestSliders::positionIsTruncatedAndPinned_data()
{
    QTest::addColumn<float>("value");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("position");

    constexpr float infinity = std::numeric_limits<float>::infinity();
    QTest::newRow("middle") << 0.0F << -1.0 << 1.0 << 500;
    QTest::newRow("truncated") << 0.9999F << 0.0 << 1.0 << 999;
    QTest::newRow("above") << 5.0F << 0.0 << 1.0 << 1000;
    QTest::newRow("far above") << 1e30F << 0.0 << 1.0 << 1000;
    QTest::newRow("far below") << -1e30F << 0.0 << 1.0 << 0;
    QTest::newRow("infinite") << infinity << 0.0 << 1.0 << 1000;
    QTest::newRow("no number") << std::nanf("") << 0.0 << 1.0 << 0;
    QTest::newRow("equal ends") << 3.0F << 3.0 << 3.0 << 0;
    QTest::newRow("above equal ends") << 4.0F << 3.0 << 3.0 << 1000;
    QTest::newRow("crossed ends") << 0.5F << 1.0 << 0.0 << 0;
    QTest::newRow("denormal span") << 1e-44F << 0.0 << 2e-44 << 0;
    QTest::newRow("endless span") << 0.0F << -1e308 << 1e308 << 0;
    QTest::newRow("minus zero") << -0.0F << 0.0 << 1.0 << 0;
}

void TestSliders::positionIsTruncatedAndPinned()
{
    QFETCH(float, value);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QTEST(ZelSliderMath::position(value, minimum, maximum), "position");
}

void TestSliders::positionsSurviveTheWayThroughTheNumber()
{
    std::mt19937 random(4);
    std::uniform_real_distribution<double> exponent(-4, 30);
    std::uniform_real_distribution<double> mantissa(-10, 10);
    for (int round = 0; round < 2000; ++round) {
        const double minimum = mantissa(random) * std::pow(10, exponent(random));
        const double span = (1 + std::abs(mantissa(random))) * std::abs(minimum);
        const double maximum = minimum + span;
        const int position = static_cast<int>(random() % (ZelSliderMath::steps + 1));
        const float value = ZelSliderMath::value(position, minimum, maximum);
        const int shown = ZelSliderMath::position(value, minimum, maximum);
        QVERIFY2(std::abs(shown - position) <= 1, "one step at most, by truncation");
        const float again = ZelSliderMath::value(shown, minimum, maximum);
        QVERIFY(std::abs(static_cast<double>(again) - static_cast<double>(value)) <=
                span / ZelSliderMath::steps * 1.01);
    }
}

void TestSliders::numbersOfEveryPositionLieInTheRange_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");

    QTest::newRow("tenths") << 0.1 << 0.7;
    QTest::newRow("thirds") << -1.0 / 3 << 2.0 / 3;
    QTest::newRow("above the floats") << 0.0 << 1e308;
    QTest::newRow("endless") << -1e308 << 1e308;
    QTest::newRow("large and narrow") << 16777217.0 << 16777219.0;
    QTest::newRow("denormal") << 0.0 << 1e-43;
}

void TestSliders::numbersOfEveryPositionLieInTheRange()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    for (int position = 0; position <= ZelSliderMath::steps; ++position) {
        const float value = ZelSliderMath::value(position, minimum, maximum);
        QVERIFY(std::isfinite(value));
        QVERIFY(static_cast<double>(value) >= minimum);
        QVERIFY(static_cast<double>(value) <= maximum);
    }
}

void TestSliders::grooveLinesLeaveTheHandleFree_data()
{
    QTest::addColumn<bool>("fromCentre");
    QTest::addColumn<float>("part");
    QTest::addColumn<GrooveLines>("lines");

    using Line = GrooveLine;
    QTest::newRow("start") << false << 0.0F << GrooveLines{{18, 198, Line::Present}};
    QTest::newRow("middle") << false << 0.5F
                            << GrooveLines{{110, 198, Line::Present}, {2, 90, Line::Fill}};
    QTest::newRow("end") << false << 1.0F << GrooveLines{{2, 182, Line::Fill}};
    QTest::newRow("centre, zero") << true << 0.5F
                                  << GrooveLines{{2, 90, Line::Background},
                                                 {110, 198, Line::Present}};
    QTest::newRow("centre, right")
        << true << 0.75F
        << GrooveLines{
               {156, 198, Line::Background}, {2, 100, Line::Present}, {100, 136, Line::Fill}};
    QTest::newRow("centre, left") << true << 0.25F
                                  << GrooveLines{{2, 44, Line::Background},
                                                 {100, 198, Line::Present},
                                                 {64, 100, Line::Fill}};
    QTest::newRow("centre, end") << true << 1.0F
                                 << GrooveLines{{2, 100, Line::Present}, {100, 182, Line::Fill}};
}

void TestSliders::grooveLinesLeaveTheHandleFree()
{
    QFETCH(bool, fromCentre);
    QFETCH(float, part);
    QFETCH(GrooveLines, lines);
    constexpr int width = 200;
    constexpr int handle = 16;
    const GrooveLines drawn = fromCentre ? ZelSliderMath::grooveFromCentre(part, width, handle)
                                         : ZelSliderMath::groove(part, width, handle);
    QCOMPARE(drawn, lines);
}

void TestSliders::showingNeverWrites()
{
    float value = std::nanf("");
    messages().expect(QtDebugMsg,
                      QStringLiteral("Slider initial value was not finite - setting to zero"));
    ZelDoubleSlider slider(nullptr, 0, 1, &value);
    QCOMPARE(value, 0.0F);
    QSignalSpy updated(&slider, &ZelDoubleSlider::valueUpdated);
    QSignalSpy moved(&slider, &QSlider::valueChanged);

    value = 5;
    slider.updateValue();
    QCOMPARE(slider.value(), 1000);
    QCOMPARE(moved.count(), 1);
    slider.setRange(0, 10);
    QCOMPARE(slider.value(), 500);
    QCOMPARE(value, 5.0F);
    slider.setFloatValue(20);
    QCOMPARE(value, 10.0F);
    slider.resetValue();
    QVERIFY2(std::isnan(value), "what the number was before it was made finite");
    QCOMPARE(slider.value(), 1000);
    QCOMPARE(updated.count(), 0);

    int number = 3;
    ZelIntegerSlider whole(nullptr, 0, 10, &number);
    QSignalSpy wholeUpdated(&whole, &ZelIntegerSlider::valueUpdated);
    number = 12;
    whole.updateValue();
    QCOMPARE(whole.value(), 10);
    QCOMPARE(number, 12);
    QCOMPARE(wholeUpdated.count(), 0);
    whole.singleStepIncrease();
    QCOMPARE(number, 12);
    whole.singleStepDecrease();
    QCOMPARE(number, 9);
    QCOMPARE(wholeUpdated.count(), 1);
}

void TestSliders::clickOnTheGrooveGoesThereOnce()
{
    float value = 0;
    ZelDoubleSlider slider(nullptr, 0, 200, &value);
    slider.setPageStep(300);
    slider.resize(200, 16);
    slider.show();
    QSignalSpy updated(&slider, &ZelDoubleSlider::valueUpdated);

    UserInput::press(&slider, {150, 8});
    QCOMPARE(value, 150.0F);
    QCOMPARE(slider.value(), 750);
    QCOMPARE(updated.count(), 1);
    QVERIFY(!slider.isSliderDown());
    QCOMPARE(slider.pageStep(), 300);
    UserInput::release(&slider, {150, 8});

    UserInput::press(&slider, handleOf(&slider).center());
    QVERIFY(slider.isSliderDown());
    UserInput::release(&slider, handleOf(&slider).center());
    UserInput::press(&slider, {20, 8}, {}, Qt::RightButton);
    UserInput::release(&slider, {20, 8}, {}, Qt::RightButton);
    QCOMPARE(value, 150.0F);
    QCOMPARE(updated.count(), 1);
}

void TestSliders::integerClickStaysInTheRange()
{
    int value = 5;
    ZelIntegerSlider slider(nullptr, 5, 15, &value);
    slider.resize(sliderSize);
    slider.show();
    QSignalSpy updated(&slider, &ZelIntegerSlider::valueUpdated);
    UserInput::press(&slider, {sliderSize.width() / 2 + 2, 8});
    QCOMPARE(value, 10);
    QCOMPARE(updated.count(), 2);

    constexpr int lowest = std::numeric_limits<int>::min();
    constexpr int highest = std::numeric_limits<int>::max();
    QCOMPARE(ZelSliderMath::positionAt(0, lowest, highest), lowest);
    QCOMPARE(ZelSliderMath::positionAt(1, lowest, highest), highest);
    QCOMPARE(ZelSliderMath::positionAt(2, lowest, highest), highest);
    QCOMPARE(ZelSliderMath::positionAt(std::nanf(""), 0, 9), 0);
    QCOMPARE(ZelSliderMath::valueAt(-1, 0, 9), 0.0F);
    QCOMPARE(ZelSliderMath::valueAt(1, 0, 1e308), largest);
}

void TestSliders::wheelTurnsOnlyWithControl()
{
    float value = 0.5F;
    int number = 50;
    QScrollArea area;
    auto *panel = new QWidget;
    auto *layout = new QVBoxLayout(panel);
    auto *slider = new ZelDoubleSlider(panel, 0, 1, &value);
    auto *whole = new ZelIntegerSlider(panel, 0, 100, &number);
    auto *plain = new ZelSlider(Qt::Horizontal, panel);
    for (QWidget *widget : {static_cast<QWidget *>(slider), static_cast<QWidget *>(whole),
                            static_cast<QWidget *>(plain)})
        layout->addWidget(widget);
    layout->addSpacing(2000);
    area.setWidget(panel);
    area.resize(300, 200);
    area.show();

    UserInput::wheel(slider, -1);
    const int scrolled = area.verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    UserInput::wheel(whole, -1);
    QVERIFY(area.verticalScrollBar()->value() > scrolled);
    UserInput::wheel(whole, -1, Qt::ControlModifier | Qt::ShiftModifier);
    UserInput::wheel(plain, 1);
    QCOMPARE(value, 0.5F);
    QCOMPARE(number, 50);
    QCOMPARE(plain->value(), 0);

    UserInput::wheel(slider, 7, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(slider->value(), 502);
    UserInput::wheel(slider, -1, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(slider->value(), 500);
    UserInput::wheel(slider, 1, Qt::ControlModifier);
    QCOMPARE(slider->value(), 500 + 5 * QApplication::wheelScrollLines());
    UserInput::wheel(whole, 1, Qt::ControlModifier);
    QVERIFY(number > 50);
    QVERIFY(UserInput::wheel(plain, 1, Qt::ControlModifier));
    QCOMPARE(plain->value(), QApplication::wheelScrollLines());
}

void TestSliders::wheelAtTheEndIsReportedLater()
{
    float value = 0.999F;
    ZelDoubleSlider slider(nullptr, 0, 1, &value);
    QSignalSpy atEnd(&slider, &ZelDoubleSlider::scrolledToMinOrMax);
    UserInput::wheel(&slider, 1, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(atEnd.count(), 1);
    UserInput::wheel(&slider, -1, Qt::ControlModifier);
    QCOMPARE(atEnd.count(), 1);

    int number = 9;
    ZelIntegerSlider whole(nullptr, 0, 10, &number);
    QSignalSpy atMaximum(&whole, &ZelIntegerSlider::scrolledToMax);
    UserInput::wheel(&whole, 1, Qt::ControlModifier);
    UserInput::wheel(&whole, 1, Qt::ControlModifier);
    QCOMPARE(atMaximum.count(), 0);
    QTRY_COMPARE(atMaximum.count(), 1);
    UserInput::wheel(&whole, 1, Qt::ControlModifier);
    whole.setValue(3);
    QVERIFY(QMetaObject::invokeMethod(&whole, "slotDelayedSliderScrollToMax"));
    QCOMPARE(atMaximum.count(), 1);
}

void TestSliders::grooveIsPaintedBesideTheHandle()
{
    NoStyle style;
    float value = 0.5F;
    ZelDoubleSlider slider(nullptr, 0, 1, &value);
    slider.setStyle(&style);
    slider.resize(200, 16);
    setColors(&slider);
    QCOMPARE(paintedAt(&slider, 40), QStringLiteral("fill"));
    QCOMPARE(paintedAt(&slider, 100), QStringLiteral("none"));
    QCOMPARE(paintedAt(&slider, 160), QStringLiteral("back"));
    slider.setEnabled(false);
    QCOMPARE(paintedAt(&slider, 40), QStringLiteral("fill off"));
    QCOMPARE(paintedAt(&slider, 160), QStringLiteral("back"));

    value = -0.5F;
    slider.setRange(-1, 1);
    QCOMPARE(paintedAt(&slider, 20), QStringLiteral("back off"));
    QCOMPARE(paintedAt(&slider, 80), QStringLiteral("fill off"));
    QCOMPARE(paintedAt(&slider, 160), QStringLiteral("back off"));

    int number = 3;
    ZelIntegerSlider whole(nullptr, 3, 3, &number);
    whole.setStyle(&style);
    whole.resize(200, 16);
    setColors(&whole);
    QCOMPARE(paintedAt(&whole, 160), QStringLiteral("back"));
}

void TestSliders::rightToLeftMirrors()
{
    NoStyle style;
    float value = 0.25F;
    ZelDoubleSlider slider(nullptr, 0, 1, &value);
    slider.setLayoutDirection(Qt::RightToLeft);
    slider.resize(200, 16);
    setColors(&slider);
    slider.show();
    UserInput::press(&slider, {20, 8});
    QCOMPARE(value, 0.9F);
    UserInput::release(&slider, {20, 8});
    value = 0.25F;
    slider.updateValue();
    slider.setStyle(&style);
    QCOMPARE(paintedAt(&slider, 190), QStringLiteral("fill"));
    QCOMPARE(paintedAt(&slider, 40), QStringLiteral("back"));
}

void TestSliders::assistiveTechnologySeesTheNumber()
{
    float value = 0.5F;
    ZelDoubleSlider slider(nullptr, 0, 4, &value);
    slider.setToolTip(QStringLiteral("Strength"));
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&slider);
    QVERIFY(face && face->valueInterface());
    QCOMPARE(face->role(), QAccessible::Slider);
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Strength"));
    QCOMPARE(face->valueInterface()->currentValue().toDouble(), 0.5);
    QCOMPARE(face->valueInterface()->maximumValue().toDouble(), 4.0);
    QSignalSpy updated(&slider, &ZelDoubleSlider::valueUpdated);
    face->valueInterface()->setCurrentValue(1.0);
    QCOMPARE(value, 1.0F);
    QCOMPARE(updated.count(), 1);
    {
        QDoubleSpinBox field;
        field.setSuffix(QStringLiteral(" cm"));
        field.setValue(100);
        ZelAccessibleValue::describeBy(&slider, &field);
        QCOMPARE(face->text(QAccessible::Value), field.text());
    }
    QCOMPARE(face->text(QAccessible::Value), QLocale().toString(1.0));

    int number = 7;
    ZelIntegerSlider whole(nullptr, 0, 9, &number);
    QAccessibleInterface *wholeFace = QAccessible::queryAccessibleInterface(&whole);
    QVERIFY(wholeFace && wholeFace->valueInterface());
    wholeFace->valueInterface()->setCurrentValue(8);
    QCOMPARE(number, 8);
}

ZEL_TEST_MAIN(TestSliders)
#include "tst_sliders.moc"
