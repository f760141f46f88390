#include "ColorInputs.h"
#include "UserInput.h"

#include "color/ZelColorHandle.h"

#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSliderEdit>
#include <ZelWidgets/ZelHueSlider>

#include <QAccessible>
#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <cmath>
#include <functional>
#include <memory>

namespace {

void enter(QDoubleSpinBox *field, const QString &text)
{
    field->setFocus();
    field->selectAll();
    UserInput::type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/// The last colour that a colorChanged() told.
ZelColor lastOf(const QSignalSpy &spy)
{
    return spy.isEmpty() ? ZelColor() : spy.last().at(0).value<ZelColor>();
}

} // namespace

class TestColorInputs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void mouseGoesWhereItIs();
    void hueSliderIsUpright();
    void keysGoByParts();
    void fieldAndSliderGoInStep();
    void fieldsOfADialogKeepReturn();
    void inputsSpeakTheirSpace_data();
    void inputsSpeakTheirSpace();
    void whatComesBackMovesNothing();
    void hueSurvivesGreys();
    void hiddenInputsWait();
    void displayValuesComeOutLinear();
    void kelvinOfBlackIsNone();
    void dyingFieldsTellNothing();
};

void TestColorInputs::init()
{
    TestCase::init();
    policy()->setEnableGammaCorrection(false);
}

void TestColorInputs::mouseGoesWhereItIs()
{
    ZelColorSlider slider(Mode::LabA);
    slider.resize(200, 16);
    slider.show();
    QSignalSpy spy(&slider, &QSlider::valueChanged);
    UserInput::press(&slider, {150, 8}, {}, Qt::RightButton);
    UserInput::move(&slider, {150, 8});
    QVERIFY(spy.isEmpty());
    UserInput::press(&slider, {150, 8});
    QCOMPARE(slider.value(), 65);
    UserInput::move(&slider, {5, 8});
    QCOMPARE(slider.value(), -122);
    UserInput::move(&slider, {-50, 80});
    QCOMPARE(slider.value(), -128);
    UserInput::move(&slider, {500, 8});
    QCOMPARE(slider.value(), 128);
    UserInput::release(&slider, {500, 8});
    UserInput::move(&slider, {100, 8});
    QCOMPARE(slider.value(), 128);
    QCOMPARE(spy.size(), 4);
}

void TestColorInputs::hueSliderIsUpright()
{
    ZelHueSlider slider;
    QCOMPARE(slider.sizeHint(), QSize(20, 200));
    QCOMPARE(slider.minimumWidth(), int(16 / slider.devicePixelRatioF()));
    slider.resize(slider.width(), 180);
    slider.show();
    UserInput::press(&slider, {4, 45});
    QCOMPARE(slider.value(), 270);
    UserInput::move(&slider, {4, 179});
    QCOMPARE(slider.value(), 2);
    UserInput::move(&slider, {4, 400});
    UserInput::move(&slider, {-40, 90});
    QCOMPARE(slider.value(), 2);
    UserInput::move(&slider, {4, 0});
    QCOMPARE(slider.value(), 359);
    UserInput::release(&slider, {4, 0});

    slider.setValue(120);
    const int y = ZelColorHandle::offset(359 - 120, 359, 180, 11) + 5;
    const QImage image = slider.grab().toImage();
    QCOMPARE(image.pixelColor(image.width() / 2, y), QColor(0, 255, 0));
    QVERIFY(areNear(image.pixel(8, 30), QColor::fromHsv(298, 255, 255).rgb(), 12));

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&slider);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Hue"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("120 \u00b0"));
}

void TestColorInputs::keysGoByParts()
{
    QWidget mirrored;
    mirrored.setLayoutDirection(Qt::RightToLeft);
    ZelColorSlider slider(Mode::Saturation, &mirrored);
    ZelHueSlider hue;
    QTest::keyClick(&slider, Qt::Key_Right);
    QCOMPARE(slider.value(), 1);
    QTest::keyClick(&slider, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(slider.value(), 11);
    QTest::keyClick(&slider, Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(slider.value(), 1);
    QTest::keyClick(&slider, Qt::Key_End);
    QCOMPARE(slider.value(), 100);
    QTest::keyClick(&hue, Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(hue.value(), 36);
    QVERIFY(!UserInput::wheel(&hue, 1));
    QCOMPARE(hue.value(), 36);
    QVERIFY(UserInput::wheel(&hue, 1, Qt::ControlModifier));
    QVERIFY(hue.value() > 36);
}

void TestColorInputs::fieldAndSliderGoInStep()
{
    ZelColorSliderEdit edit(ZelColor(Space::Lab, 50.25f, 10.5f, -20.75f), Mode::LabB,
                            QStringLiteral("b"), false);
    edit.show();
    QSignalSpy spy(&edit, &ZelColorSliderEdit::valueChanged);
    QCOMPARE(edit.value(), -20.75f);
    QCOMPARE(sliderOf(&edit)->value(), -21);
    enter(fieldOf(&edit), QStringLiteral("12.5"));
    QCOMPARE(edit.value(), 12.5f);
    QCOMPARE(sliderOf(&edit)->value(), 13);
    enter(fieldOf(&edit), QStringLiteral("12.75"));
    sliderOf(&edit)->setValue(-3);
    QCOMPARE(edit.value(), -3.0f);
    edit.setValue(-44.5f);
    QCOMPARE(edit.value(), -45.0f);
    edit.setColor(ZelColor(Space::Lab, 50, 0, 7.25f), false);
    QCOMPARE(edit.value(), 7.25f);
    QCOMPARE(spy, (QList<QVariantList>{{13}, {13}, {-3}, {-45}}));

    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(sliderOf(&edit));
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("b"));
    QCOMPARE(accessible->text(QAccessible::Value), fieldOf(&edit)->text());
}

void TestColorInputs::fieldsOfADialogKeepReturn()
{
    QDialog dialog;
    QVBoxLayout layout(&dialog);
    auto *input = new ZelRGBColorInput(orange(), false);
    auto *button = new QPushButton(QStringLiteral("OK"));
    layout.addWidget(input);
    layout.addWidget(button);
    button->setDefault(true);
    dialog.show();
    QSignalSpy clicked(button, &QPushButton::clicked);
    QSignalSpy changed(input, &ZelColorInput::colorChanged);
    enter(fieldOf(row(input, 0)), QStringLiteral("51"));
    QVERIFY(clicked.isEmpty());
    QCOMPARE(changed.size(), 1);
    QVERIFY(areNear(lastOf(changed), ZelColor(Space::RGB, 0.2f, 0.4f, 0.2f), 1e-6f));
}

void TestColorInputs::inputsSpeakTheirSpace_data()
{
    QTest::addColumn<std::function<ZelColorInput *()>>("make");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("position");
    QTest::addColumn<ZelColor>("expected");

    const auto add = [](const char *name, std::function<ZelColorInput *()> make, int index,
                        int position, const ZelColor &expected) {
        QTest::newRow(name) << make << index << position << expected;
    };
    add(
        "RGB", [] { return new ZelRGBColorInput(orange(), false); }, 2, 255,
        ZelColor(Space::RGB, 0.8f, 0.4f, 1));
    add(
        "CMYK", [] { return new ZelCMYKColorInput(orange(), false); }, 3, 0,
        ZelColor(Space::CMYK, 0, 0.5f, 0.75f, 0));
    add(
        "HSV", [] { return new ZelHSVColorInput(orange(), false); }, 0, 200,
        ZelColor(Space::HSV, 200, 0.75f, 0.8f));
    add(
        "grey", [] { return new ZelGrayColorInput(orange(), false); }, 0, 30,
        ZelColor(Space::RGB, 0.3f, 0.3f, 0.3f));
    add(
        "L*ab", [] { return new ZelCIELABColorInput(orange(), false); }, 1, -5,
        ZelColor(Space::Lab, 54.64f, -5, 46.12f));
    add(
        "kelvin", [] { return new ZelTemperatureColorInput(orange(), false); }, 0, 6500,
        ZelColorChannel::setChannelValue(Mode::Temperature, ZelColor(), 6500));
}

void TestColorInputs::inputsSpeakTheirSpace()
{
    QFETCH(std::function<ZelColorInput *()>, make);
    QFETCH(int, index);
    QFETCH(int, position);
    QFETCH(ZelColor, expected);
    const std::unique_ptr<ZelColorInput> input(make());
    input->show();
    QSignalSpy spy(input.get(), &ZelColorInput::colorChanged);
    sliderOf(row(input.get(), index))->setValue(position);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(lastOf(spy).space(), expected.space());
    for (std::size_t i = 0; i < 4; ++i)
        QVERIFY(std::abs(lastOf(spy).components()[i] - expected.components()[i]) < 0.01f);
    QVERIFY(lastOf(spy) == input->color());
}

void TestColorInputs::whatComesBackMovesNothing()
{
    ZelCMYKColorInput input(orange(), false);
    input.show();
    connect(&input, &ZelColorInput::colorChanged, &input, [&](const ZelColor &color) {
        const auto [red, green, blue] = color.toRGB();
        input.setColor(ZelColor(Space::RGB, red, green, blue));
    });
    // Black with ink in it: read back from RGB, the inks would be 0.
    sliderOf(row(&input, 3))->setValue(100);
    QCOMPARE(row(&input, 2)->value(), 75.0f);
    QCOMPARE(input.color().space(), Space::CMYK);
    QSignalSpy spy(&input, &ZelColorInput::colorChanged);
    input.setColor(ZelColor(Space::RGB, 1, 1, 0));
    QCOMPARE(row(&input, 2)->value(), 100.0f);
    QCOMPARE(row(&input, 3)->value(), 0.0f);
    QVERIFY(spy.isEmpty());
}

void TestColorInputs::hueSurvivesGreys()
{
    ZelHSVColorInput input(orange(), true);
    input.show();
    connect(&input, &ZelColorInput::colorChanged, &input, &ZelColorInput::setColor);
    const float hue = row(&input, 0)->value();
    for (const int channel : {1, 2}) {
        sliderOf(row(&input, channel))->setValue(0);
        sliderOf(row(&input, channel))->setValue(60);
        QCOMPARE(row(&input, 0)->value(), hue);
    }
}

void TestColorInputs::hiddenInputsWait()
{
    QStackedWidget stack;
    auto *seen = new ZelRGBColorInput(orange(), false);
    auto *hidden = new ZelRGBColorInput(orange(), false);
    stack.addWidget(seen);
    stack.addWidget(hidden);
    stack.show();
    for (ZelColorInput *input : {seen, hidden})
        input->setColor(ZelColor(Space::RGB, 0, 1, 0));
    QCOMPARE(row(seen, 0)->value(), 0.0f);
    QCOMPARE(row(hidden, 0)->value(), 204.0f);
    stack.setCurrentWidget(hidden);
    QCOMPARE(row(hidden, 0)->value(), 0.0f);
    QCOMPARE(row(hidden, 1)->value(), 255.0f);
}

void TestColorInputs::displayValuesComeOutLinear()
{
    ZelRGBColorInput input(orange(), true);
    input.show();
    const ZelColor shown = policy()->gammaCorrect(orange());
    QCOMPARE(row(&input, 1)->value(), std::round(shown.toRGB()[1] * 255));
    QSignalSpy spy(&input, &ZelColorInput::colorChanged);
    sliderOf(row(&input, 0))->setValue(128);
    const auto [red, green, blue] = lastOf(spy).toRGB();
    QVERIFY(std::abs(red - std::pow(128 / 255.0f, 2.2f)) < 1e-5f);
    QVERIFY(std::abs(green - 0.4f) < 0.005f);

    spy.clear();
    input.updateGammaDisplay(false);
    QCOMPARE(row(&input, 0)->value(), std::round(red * 255));
    QVERIFY(spy.isEmpty());
}

void TestColorInputs::kelvinOfBlackIsNone()
{
    ZelTemperatureColorInput input(ZelColor(Space::RGB, 0, 0, 0), false);
    input.show();
    QCOMPARE(row(&input, 0)->value(), 0.0f);
    QCOMPARE(sliderOf(row(&input, 0))->value(), 2500);
    QSignalSpy spy(&input, &ZelColorInput::colorChanged);
    enter(fieldOf(row(&input, 0)), QStringLiteral("20000"));
    QCOMPARE(sliderOf(row(&input, 0))->value(), 9500);
    QCOMPARE(row(&input, 0)->value(), 20000.0f);
    const float kelvin = ZelColorChannel::channelValue(Mode::Temperature, lastOf(spy));
    QVERIFY(std::abs(kelvin - 20000) < 200);
}

void TestColorInputs::dyingFieldsTellNothing()
{
    auto *input = new ZelRGBColorInput(orange(), false);
    input->show();
    input->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(input));
    QDoubleSpinBox *field = fieldOf(row(input, 1));
    field->setFocus();
    field->selectAll();
    UserInput::type(field, QStringLiteral("7"));
    QCOMPARE(field->cleanText(), QStringLiteral("7"));
    QSignalSpy spy(input, &ZelColorInput::colorChanged);
    QVERIFY(spy.isEmpty());
    delete input;
    QVERIFY(spy.isEmpty());
}

ZEL_TEST_MAIN(TestColorInputs)
#include "tst_color_inputs.moc"
