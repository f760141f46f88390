#include "ColorDialogTool.h"
#include "Rows.h"
#include "color/ZelColorHex.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelSettings>
#include <ZelWidgets/HexValueLineEdit>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSlider>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelHueSlider>
#include <ZelWidgets/ZelMultiColorTreeView>
#include <ZelWidgets/ZelRGBSpectrum>
#include <ZelWidgets/ZelRGBSpectrumDisplay>

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QMenu>
#include <QSignalSpy>

#include <cmath>
#include <limits>

namespace {

ZelColor named(ZelColor color, const char *name)
{
    color.setName(name);
    return color;
}

zelsg::Color several()
{
    zelsg::Color color(named(teal, "first"));
    color.appendColor(named({Space::RGB, 0.9F, 0.2F, 0.1F}, "second"));
    return color;
}

} // namespace

class ColorDialogTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void hexIsReadAndWritten_data();
    void hexIsReadAndWritten();
    void hexIsTyped();
    void hexFieldIsLeftAlone();
    void colorTextIsPasted_data();
    void colorTextIsPasted();
    void changeReachesAllOthers();
    void ownersSetWithoutSignals();
    void hueIsKeptInOneWidget();
    void lookingChangesNothing();
    void cancelGivesTheFirstColorBack();
    void gammaSwitches();
    void brokenNumbersAreSurvived();
};

void ColorDialogTest::initTestCase()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/light_theme.json"));
}

void ColorDialogTest::cleanup()
{
    ZelGammaPolicy::get()->setGammaCorrectValues(true);
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    TestCase::cleanup();
}

using HexRow = std::pair<Text, Text>;

void ColorDialogTest::hexIsReadAndWritten_data()
{
    addRows<HexRow>({
        {"six", {"c08040", "C08040"}},
        {"three", {"F00", "FF0000"}},
        {"one", {"F", "F00000"}},
        {"marks", {"##a#bc", "AABBCC"}},
        {"four", {"1234", "123400"}},
        {"none", {"", "000000"}},
        {"other letters", {"zz8-ff", "0000FF"}},
    });
}

void ColorDialogTest::hexIsReadAndWritten()
{
    const auto [text, written] = currentRow<HexRow>();
    QCOMPARE(ZelColorHex::write(ZelColorHex::read(text)), written);
    constexpr float infinity = std::numeric_limits<float>::infinity();
    QCOMPARE(ZelColorHex::write({Space::RGB, 1.5F, -1, infinity}), QStringLiteral("FF0000"));
}

void ColorDialogTest::hexIsTyped()
{
    Tool tool;
    tool.show();
    tool.typeHex(QStringLiteral("F00"));
    QVERIFY(tool.dialog->isVisible());
    QCOMPARE(tool.hex(), QStringLiteral("FF0000"));
    QVERIFY(tool.active() == ZelColor(Space::RGB, 1, 0, 0));
    tool.typeHex(QStringLiteral("808080"));
    QVERIFY(std::abs(tool.active().toRGB()[0] - std::pow(128 / 255.0F, 2.2F)) < 1e-5F);
    QCOMPARE(tool.changed.size(), 2);
    // Digits for the present colour are written out.
    tool.typeHex(QStringLiteral("#888"));
    tool.typeHex(QStringLiteral("888"));
    QCOMPARE(tool.hex(), QStringLiteral("888888"));
    QCOMPARE(tool.changed.size(), 3);
}

void ColorDialogTest::hexFieldIsLeftAlone()
{
    const ZelColor fine(Space::RGB, 0.123456F, 0.5F, 0.4F);
    Tool tool{fine};
    tool.show();
    auto *edit = tool.part<HexValueLineEdit>();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    tool.nameEdit()->setFocus();
    QVERIFY(isSame(tool.active(), fine));
    // A dialog that goes with a half-typed number tells nobody.
    edit->setFocus();
    edit->clear();
    QTest::keyClicks(edit, QStringLiteral("12"));
    tool.dialog.reset();
    QVERIFY(tool.changed.isEmpty());
}

using PasteRow = std::tuple<Text, Text>;

void ColorDialogTest::colorTextIsPasted_data()
{
    addRows<PasteRow>({
        {"short", {" #369 ", "#336699"}},
        {"long", {"#Ff8000", "#ff8000"}},
        {"rgb()", {"rgb(51, 102, 153)", "#336699"}},
        {"percent", {"100%, 0%, 20%", "#ff0033"}},
        {"name", {"tomato", "#ff6347"}},
    });
}

void ColorDialogTest::colorTextIsPasted()
{
    const auto [text, shown] = currentRow<PasteRow>();
    for (const bool isByMenu : {false, true}) {
        Tool tool;
        tool.show();
        auto *edit = tool.part<HexValueLineEdit>();
        edit->setFocus();
        edit->setCursorPosition(4);
        QGuiApplication::clipboard()->setText(text);
        if (isByMenu) {
            const std::unique_ptr<QMenu> menu(edit->createStandardContextMenu());
            const QString paste = QKeySequence(QKeySequence::Paste).toString();
            for (QAction *action : menu->actions()) {
                if (action->text().endsWith(paste))
                    action->trigger();
            }
        } else {
            QTest::keySequence(edit, QKeySequence::Paste);
        }
        QCOMPARE(onDisplay(tool.active()), shown);
        QCOMPARE(u'#' + tool.hex().toLower(), shown);
        QCOMPARE(tool.changed.size(), 1);
    }
}

void ColorDialogTest::changeReachesAllOthers()
{
    Tool tool;
    tool.show();
    auto *plane = tool.part<ZelRGBSpectrumDisplay>();
    const QSignalSpy planeChanged(plane, qOverload<ZelColor>(&ZelSpectrumDisplay::colorChanged));
    QTest::keyClick(tool.part<ZelRGBSpectrum>(), Qt::Key_Left, Qt::ShiftModifier);
    QCOMPARE(planeChanged.size(), 1);
    QCOMPARE(tool.changed.size(), 1);
    QCOMPARE(tool.changed[0][1].toBool(), false);
    const ZelColor picked = planeChanged[0][0].value<ZelColor>();
    QVERIFY(isSame(tool.changed[0][0].value<zelsg::Color>().getActive(), picked));
    QVERIFY(isSame(tool.part<ZelColorViewer>()->color(), picked));
    QVERIFY(isSame(tool.part<ZelColorViewer>()->oldColor(), teal));
    QCOMPARE(u'#' + tool.hex().toLower(), onDisplay(picked));
    for (const ZelColorInput *input : tool.dialog->findChildren<ZelColorInput *>())
        QVERIFY2(isSame(input->color(), picked), input->metaObject()->className());
    // A colour that the owner was given stays as it is.
    const auto given = tool.changed[0][0].value<zelsg::Color>();
    auto *slider = tool.part<ZelRGBColorInput>()->findChild<ZelColorSlider *>();
    slider->setValue(slider->maximum());
    QCOMPARE(tool.changed.size(), 2);
    QVERIFY(isSame(given.getActive(), picked));
    QCOMPARE(slider->value(), slider->maximum());
    QCOMPARE(given.getColorName(), std::string("Teal"));
    QCOMPARE(tool.nameEdit()->text(), QStringLiteral("Teal"));
    QCOMPARE(planeChanged.size(), 1);
    // The same to the eye, though another hue for numbers: shown, but no news.
    tool.dialog->setColorNoSignal(ZelColor(Space::RGB, 0.5F, 0.5F, 0.5F));
    const ZelColor grey(Space::HSV, 120, 0, 0.5F);
    Q_EMIT plane->colorChanged(grey);
    QVERIFY(isSame(tool.active(), grey));
    QCOMPARE(tool.changed.size(), 2);
    // What a field tells isn't told to it.
    QCOMPARE(plane->findChild<ZelHueSlider *>()->value(), 0);
}

void ColorDialogTest::ownersSetWithoutSignals()
{
    Tool tool;
    const ZelColor red = named({Space::RGB, 1, 0, 0}, "Red");
    tool.dialog->setActiveColorNoSignal(red);
    QVERIFY(isSame(tool.active(), red));
    QCOMPARE(tool.dialog->getColorName(), QStringLiteral("Teal"));
    QCOMPARE(tool.hex(), QStringLiteral("FF0000"));
    zelsg::Color color = several();
    tool.dialog->setColorNoSignal(color);
    QVERIFY(tool.dialog->getColor() == color);
    QVERIFY(!tool.part<ZelMultiColorTreeView>()->isHidden());
    QCOMPARE(tool.part<ZelMultiColorTreeView>()->model()->rowCount(), 2);
    // A copy, which the owner's later edits don't reach.
    color.deleteColor(1);
    QCOMPARE(tool.dialog->getColor().nColors(), 2);
    tool.dialog->setInitialColor(red);
    QVERIFY(isSame(tool.part<ZelColorViewer>()->oldColor(), red));
    QVERIFY(tool.changed.isEmpty());
}

void ColorDialogTest::hueIsKeptInOneWidget()
{
    Tool tool{ZelColor(Space::HSV, 200, 0.5F, 0.5F)};
    tool.dialog->setColorInputIndex(2);
    tool.show();
    const auto hue = [&] {
        return qRound(tool.active().toHSV()[0]);
    };
    auto *plane = tool.part<ZelRGBSpectrum>();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Down, Qt::Key_Up}) {
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(plane, key, Qt::ShiftModifier);
    }
    QCOMPARE(hue(), 200);
    // The input works in display values, where the hue is another one.
    const int before = hue();
    const auto sliders = tool.part<ZelHSVColorInput>()->findChildren<ZelColorSlider *>();
    for (ZelColorSlider *slider : {sliders[1], sliders[2]}) {
        const int at = slider->value();
        for (const int value : {slider->minimum(), at})
            slider->setValue(value);
    }
    QVERIFY(std::abs(hue() - before) <= 1);
}

void ColorDialogTest::lookingChangesNothing()
{
    const ZelColor fine(Space::Lab, 51.2345F, 12.345F, -23.456F);
    for (const bool isCorrected : {true, false}) {
        ZelGammaPolicy::get()->setGammaCorrectValues(isCorrected);
        Tool tool{fine};
        tool.show();
        auto *combo = tool.part<ZelComboBox>();
        for (int space = 0; space < combo->count(); ++space) {
            combo->setCurrentIndex(space);
            Q_EMIT combo->activated(space);
            tool.action(space % 2 == 0 ? QStringLiteral("Use Triadic Color Wheel")
                                       : QStringLiteral("Use Hue Color Field"))
                ->trigger();
            for (int i = 0; i < 20; ++i)
                QTest::keyClick(tool.dialog->focusWidget(), Qt::Key_Tab);
        }
        tool.press(QDialogButtonBox::Ok);
        QVERIFY(isSame(tool.active(), fine));
        QVERIFY(tool.changed.isEmpty());
    }
}

void ColorDialogTest::cancelGivesTheFirstColorBack()
{
    Tool tool;
    tool.show();
    tool.nameEdit()->setText(QStringLiteral("Another"));
    tool.changed.clear();
    tool.dialog->reject();
    QVERIFY(tool.changed.isEmpty());
    QCOMPARE(tool.finished.last()[0].toInt(), int(QDialog::Rejected));

    tool.show();
    tool.typeHex(QStringLiteral("123456"));
    tool.dialog->close();
    QCOMPARE(tool.changed.size(), 2);
    QCOMPARE(tool.changed[1][1].toBool(), true);
    const auto restored = tool.changed[1][0].value<zelsg::Color>();
    QVERIFY(isSame(restored.getActive(), teal));
    QCOMPARE(restored.getColorName(), std::string("Teal"));

    // What was accepted is what a later cancel gives back.
    tool.show();
    tool.press(QDialogButtonBox::Ok);
    QCOMPARE(tool.finished.last()[0].toInt(), int(QDialog::Accepted));
    const ZelColor accepted = tool.active();
    tool.show();
    tool.typeHex(QStringLiteral("abcdef"));
    tool.press(QDialogButtonBox::Cancel);
    QVERIFY(isSame(tool.changed.last()[0].value<zelsg::Color>().getActive(), accepted));
}

void ColorDialogTest::gammaSwitches()
{
    Tool tool;
    tool.show();
    const QSignalSpy display(tool.dialog.get(), &ZelColorDialog::gammaDisplayChanged);
    auto *slider = tool.part<ZelRGBColorInput>()->findChild<ZelColorSlider *>();
    const int corrected = slider->value();
    const QString hex = tool.hex();
    QAction *input = tool.action(QStringLiteral("Use gamma corrected values for input"));
    QAction *shown =
        tool.action(QStringLiteral("Apply Image Gamma to colors in Swatches and Color Pickers"));
    QVERIFY(input->isChecked() && shown->isChecked());
    input->trigger();
    QCOMPARE(display.size(), 1);
    QCOMPARE(slider->value(), 26);
    QVERIFY(corrected > 80);
    QCOMPARE(tool.hex(), hex);
    QVERIFY(isSame(tool.active(), teal));
    QVERIFY(!ZelGammaPolicy::get()->areValuesGammaCorrected());
    shown->trigger();
    QVERIFY(!ZelGammaPolicy::get()->isGammaCorrectionEnabled());
    const ZelSettings settings(QStringLiteral("colors"));
    QCOMPARE(settings.value(QStringLiteral("enable_gamma_correction_input")), QVariant(false));
    QCOMPARE(settings.value(QStringLiteral("enable_gamma_correction")), QVariant(false));
    // Marks follow the policy; a new dialog starts with linear digits, but reads display values.
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    QVERIFY(shown->isChecked());
    Tool second;
    QCOMPARE(second.hex(), QStringLiteral("1A8066"));
    second.part<HexValueLineEdit>()->setText(QStringLiteral("FF8000"));
    Q_EMIT second.part<HexValueLineEdit>()->editingFinished();
    QCOMPARE(onDisplay(second.active()), QStringLiteral("#ff8000"));
    QCOMPARE(second.hex(), QStringLiteral("FF3800"));
    QVERIFY(tool.changed.isEmpty());
}

void ColorDialogTest::brokenNumbersAreSurvived()
{
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    Tool tool;
    tool.show();
    for (const Space space : {Space::XYZ, Space::RGB, Space::HSV, Space::CMYK, Space::Lab}) {
        for (const float number : {nan, infinity, -infinity, 1e30F, -1e30F}) {
            for (int index = 0; index < 6; ++index) {
                tool.dialog->setColorInputIndex(index);
                tool.dialog->setActiveColorNoSignal({space, number, number, 0.5F, number});
                tool.dialog->setColorNoSignal(ZelColor(space, 0.5F, number, number));
                tool.dialog->grab();
            }
        }
    }
    tool.dialog->setActiveColorNoSignal(teal);
    QCOMPARE(u'#' + tool.hex().toLower(), onDisplay(teal));
}

ZEL_TEST_MAIN(ColorDialogTest)
#include "tst_color_dialog.moc"
