#include "TestCase.h"
#include "UserInput.h"
#include "color/ZelColorDialogPlacement.h"
#include "color/ZelColorHex.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelSettings>
#include <ZelWidgets/ColorSwatchModel>
#include <ZelWidgets/HexValueLineEdit>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSlider>
#include <ZelWidgets/ZelColorSliderEdit>
#include <ZelWidgets/ZelColorSwatchListView>
#include <ZelWidgets/ZelColorTriangle>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelEyeDropper>
#include <ZelWidgets/ZelHueSlider>
#include <ZelWidgets/ZelIntegerSlider>
#include <ZelWidgets/ZelIntegerSliderEdit>
#include <ZelWidgets/ZelListWithAddition>
#include <ZelWidgets/ZelMultiColorListModel>
#include <ZelWidgets/ZelMultiColorTreeView>
#include <ZelWidgets/ZelRGBSpectrum>
#include <ZelWidgets/ZelRGBSpectrumDisplay>
#include <ZelWidgets/ZelToolButton>

#include <QAction>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QStackedWidget>

#include <cmath>
#include <limits>

namespace {

using Space = ZelColor::Space;

const ZelColor teal(Space::RGB, 0.1F, 0.5F, 0.4F);

/// A dialog with its parts and what it told its owner.
struct Tool
{
    explicit Tool(const zelsg::Color &color = teal, const QString &name = QStringLiteral("Teal"))
        : dialog(std::make_unique<ZelColorDialog>(nullptr, color, name, nullptr))
        , changed(dialog.get(), &ZelColorDialog::colorChanged)
        , finished(dialog.get(), &QDialog::finished)
    {}

    template <typename Part>
    Part *part() const
    {
        return dialog->findChild<Part *>();
    }
    void show()
    {
        dialog->show();
        dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    }
    QLineEdit *nameEdit() const
    {
        for (QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->text() == QStringLiteral("Name"))
                return qobject_cast<QLineEdit *>(label->buddy());
        }
        return nullptr;
    }
    QAbstractButton *button(const QString &toolTip) const
    {
        for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
            if (button->toolTip() == toolTip)
                return button;
        }
        return nullptr;
    }
    QAction *action(const QString &text) const
    {
        for (QAction *action : dialog->findChildren<QAction *>()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    /// The stack that holds a widget.
    QStackedWidget *stackOf(QWidget *page) const
    {
        return qobject_cast<QStackedWidget *>(page->parentWidget());
    }
    void press(QDialogButtonBox::StandardButton which) const
    {
        part<QDialogButtonBox>()->button(which)->click();
    }
    void typeHex(const QString &text) const
    {
        auto *edit = part<HexValueLineEdit>();
        edit->setFocus();
        edit->clear();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    ZelColor active() const { return dialog->getColor().getActive(); }
    QString hex() const { return part<HexValueLineEdit>()->text(); }

    std::unique_ptr<ZelColorDialog> dialog;
    QSignalSpy changed;
    QSignalSpy finished;
};

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

QString onDisplay(const ZelColor &color)
{
    return toQColor(ZelGammaPolicy::get()->gammaCorrect(color)).name();
}

bool isSame(const ZelColor &one, const ZelColor &other)
{
    return one.space() == other.space() && one.components() == other.components();
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
    void windowIsPlaced_data();
    void windowIsPlaced();
    void hexIsTyped();
    void hexFieldIsLeftAlone();
    void colorTextIsPasted_data();
    void colorTextIsPasted();
    void changeReachesAllOthers();
    void ownersSetWithoutSignals();
    void hueIsKeptInOneWidget();
    void lookingChangesNothing();
    void cancelGivesTheFirstColorBack();
    void nameBelongsToTheColor();
    void emptyNameIsRefused();
    void gammaSwitches();
    void choicesAreRemembered();
    void damagedSettingsAreSurvived();
    void sizeIsRemembered();
    void subColors();
    void swatchesAreTaken();
    void viewerGivesTheOldColor();
    void transparencyIsAlpha();
    void colorIsPicked_data();
    void colorIsPicked();
    void brokenNumbersAreSurvived();
    void buttonsHaveTheirRank();
};

void ColorDialogTest::initTestCase()
{
    QFile theme(QStringLiteral(":/res/icon_themes/light_theme.json"));
    QVERIFY(theme.open(QIODevice::ReadOnly));
    IconColorTheme::instance()->buildMap(QString::fromUtf8(theme.readAll()));
}

void ColorDialogTest::cleanup()
{
    ZelGammaPolicy::get()->setGammaCorrectValues(true);
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    TestCase::cleanup();
}

void ColorDialogTest::hexIsReadAndWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("written");
    QTest::newRow("six") << "c08040"
                         << "C08040";
    QTest::newRow("three") << "F00"
                           << "FF0000";
    QTest::newRow("one") << "F"
                         << "F00000";
    QTest::newRow("marks") << "##a#bc"
                           << "AABBCC";
    QTest::newRow("four") << "1234"
                          << "123400";
    QTest::newRow("none") << ""
                          << "000000";
    QTest::newRow("other letters") << "zz8-ff"
                                   << "0000FF";
}

void ColorDialogTest::hexIsReadAndWritten()
{
    QFETCH(QString, text);
    QTEST(ZelColorHex::write(ZelColorHex::read(text)), "written");
    constexpr float infinity = std::numeric_limits<float>::infinity();
    QCOMPARE(ZelColorHex::write({Space::RGB, 1.5F, -1, infinity}), QStringLiteral("FF0000"));
}

void ColorDialogTest::windowIsPlaced_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QRect>("area");
    QTest::addColumn<QPoint>("place");
    const QRect area(0, 20, 1000, 780);
    QTest::newRow("fits") << QRect(100, 100, 300, 400) << area << QPoint(100, 100);
    QTest::newRow("right") << QRect(750, 100, 300, 400) << area << QPoint(690, 100);
    QTest::newRow("below") << QRect(100, 500, 300, 400) << area << QPoint(100, 360);
    QTest::newRow("above") << QRect(100, 5, 300, 400) << area << QPoint(100, 30);
    QTest::newRow("too high") << QRect(100, 100, 300, 900) << area << QPoint(100, 30);
    QTest::newRow("screen above") << QRect(9, -795, 300, 400) << area.translated(0, -800)
                                  << QPoint(9, -750);
    QTest::newRow("no screen") << QRect(-9, -9, 300, 400) << QRect() << QPoint(-9, -9);
}

void ColorDialogTest::windowIsPlaced()
{
    using namespace ZelColorDialogPlacement;
    QFETCH(QRect, window);
    QFETCH(QRect, area);
    QTEST(keptOn(area, window), "place");
    const QSize hint(301, 400);
    const QSize desk(1600, 1000);
    QCOMPARE(windowSize({}, {96, 96}, hint, desk), QSize(376, 500));
    QCOMPARE(windowSize({}, {96, 96}, hint, {1600, 500}), QSize(376, 430));
    QCOMPARE(windowSize({}, {96, 96}, hint, {1600, 400}), QSize(376, 500));
    QCOMPARE(windowSize({qQNaN(), 5}, {96, 96}, hint, desk), QSize(376, 500));
    QCOMPARE(windowSize({4, 5}, {100, 120}, hint, desk), QSize(400, 600));
    QCOMPARE(windowSize({1, 1}, {96, 96}, hint, desk), hint);
    QCOMPARE(windowSize({1e300, 5}, {96, 96}, hint, desk), QSize(1600, 480));
    QVERIFY(windowSize({1e300, 1e300}, {96, 96}, hint, {}).width() < 40000);
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

void ColorDialogTest::colorTextIsPasted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::newRow("short") << " #369 "
                           << "#336699";
    QTest::newRow("long") << "#Ff8000"
                          << "#ff8000";
    QTest::newRow("rgb()") << "rgb(51, 102, 153)"
                           << "#336699";
    QTest::newRow("percent") << "100%, 0%, 20%"
                             << "#ff0033";
    QTest::newRow("name") << "tomato"
                          << "#ff6347";
}

void ColorDialogTest::colorTextIsPasted()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
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

void ColorDialogTest::nameBelongsToTheColor()
{
    Tool tool;
    QCOMPARE(tool.nameEdit()->text(), QStringLiteral("Teal"));
    tool.nameEdit()->setText(QStringLiteral("  Deep   sea "));
    QCOMPARE(tool.changed.size(), 1);
    QCOMPARE(tool.dialog->getColor().getColorName(), std::string("Deep sea"));
    const QSignalSpy saved(tool.dialog.get(), &ZelColorDialog::saveColorToLibrary);
    auto *button = tool.button(QStringLiteral("Save color to library"));
    QVERIFY(button->isHidden());
    tool.dialog->showSaveToLibraryButton();
    QVERIFY(!button->isHidden());
    button->click();
    QCOMPARE(saved[0][0].value<zelsg::Color>().getColorName(), std::string("Deep sea"));
    tool.dialog->hideNameEdit();
    QVERIFY(tool.nameEdit()->isHidden());
}

void ColorDialogTest::emptyNameIsRefused()
{
    Tool tool(teal, QString());
    tool.dialog->checkEmptyNameAtOk(true);
    tool.show();
    const QSignalSpy saved(tool.dialog.get(), &ZelColorDialog::saveColorToLibrary);
    QStringList titles;
    const auto answer = [&](QDialog *box) {
        titles.append(box->windowTitle());
        box->accept();
    };
    {
        UserInput::DialogAnswer box(answer);
        tool.button(QStringLiteral("Save color to library"))->click();
        QVERIFY(box.finished());
    }
    {
        UserInput::DialogAnswer box(answer);
        tool.press(QDialogButtonBox::Ok);
        QVERIFY(box.finished());
    }
    QCOMPARE(titles, QStringList({QStringLiteral("Add Color"), QStringLiteral("Color Name")}));
    QVERIFY(saved.isEmpty() && tool.finished.isEmpty());
    QCOMPARE(tool.dialog->focusWidget(), tool.nameEdit());
    {
        UserInput::DialogAnswer box([&](QDialog *) { tool.dialog.reset(); });
        tool.dialog->accept();
        QVERIFY(box.finished());
    }
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

void ColorDialogTest::choicesAreRemembered()
{
    const ZelSettings settings(QStringLiteral("ColorDialog"));
    {
        Tool tool;
        tool.dialog->showKelvinAsDefaultColorInput(true);
        QCOMPARE(tool.part<ZelComboBox>()->currentIndex(), 5);
        QVERIFY(!settings.hasKey(QStringLiteral("slider")));
        tool.show();
        QTest::keyClick(tool.part<ZelComboBox>(), Qt::Key_Up);
        tool.action(QStringLiteral("Use Triadic Color Wheel"))->trigger();
    }
    Tool tool;
    tool.dialog->setColorInputIndex(99);
    auto *lab = tool.part<ZelCIELABColorInput>();
    QCOMPARE(tool.stackOf(lab)->currentWidget(), lab);
    QCOMPARE(tool.part<ZelComboBox>()->currentText(), QStringLiteral("CIE-L*ab"));
    auto *wheel = tool.part<ZelColorTriangle>();
    QCOMPARE(tool.stackOf(wheel)->currentWidget(), wheel);
    QVERIFY(tool.action(QStringLiteral("Use Triadic Color Wheel"))->isChecked());
    QVERIFY(!tool.action(QStringLiteral("Use Hue Color Field"))->isChecked());
}

void ColorDialogTest::damagedSettingsAreSurvived()
{
    ZelSettings settings(QStringLiteral("ColorDialog"));
    const QVariantList broken{-1, 7, QStringLiteral("x"), QSizeF(1, 1), QVariantList{1}};
    for (const QVariant &value : broken) {
        for (const char *key : {"spectrum", "slider", "inchSize"})
            settings.setValue(QLatin1String(key), value);
        Tool tool;
        tool.show();
        QCOMPARE(tool.part<ZelComboBox>()->currentIndex(), 0);
        QVERIFY(tool.part<ZelRGBSpectrumDisplay>()->isVisible());
        QVERIFY(tool.dialog->width() >= tool.dialog->sizeHint().width());
    }
}

void ColorDialogTest::sizeIsRemembered()
{
    QSize size;
    {
        Tool tool;
        tool.show();
        const QSize hint = tool.dialog->sizeHint();
        QCOMPARE(tool.dialog->size(),
                 QSize(qRound(hint.width() * 1.25), qRound(hint.height() * 1.25)));
        size = hint + QSize(17, 3);
        tool.dialog->resize(size);
        tool.dialog->hide();
        const QScreen *screen = tool.dialog->screen();
        const QSizeF inches =
            ZelSettings(QStringLiteral("ColorDialog")).value(QStringLiteral("inchSize")).toSizeF();
        QCOMPARE(inches.width() * screen->physicalDotsPerInchX(), qreal(size.width()));
        // From now on the place is the user's.
        tool.dialog->move(111, 122);
        tool.dialog->show();
        QCOMPARE(tool.dialog->pos(), QPoint(111, 122));
    }
    const QPoint place(60, 40);
    ZelColorDialog there(place, zelsg::Color(), QString(), nullptr);
    there.show();
    QCOMPARE(there.size(), size);
    QCOMPARE(there.pos().x(), place.x());
    QWidget owner;
    owner.setGeometry(50, 30, 200, 20);
    owner.show();
    ZelColorDialog below(&owner, zelsg::Color(), QString(), nullptr);
    below.show();
    QCOMPARE(below.pos().x(), owner.mapToGlobal(QPoint()).x());
}

void ColorDialogTest::subColors()
{
    Tool tool;
    tool.dialog->showMakeMultiColorButton();
    tool.show();
    auto *tree = tool.part<ZelMultiColorTreeView>();
    QVERIFY(!tree->isVisible());
    tool.button(QStringLiteral("Make multi-color"))->click();
    QVERIFY(tree->isVisible() && tool.dialog->getColor().isMultiColor());
    QVERIFY(tool.button(QStringLiteral("Unmake multi-color"))->isChecked());
    QVERIFY(tool.changed.last()[0].value<zelsg::Color>().isMultiColor());
    tool.button(QStringLiteral("Add a sub-color"))->click();
    QCOMPARE(tree->model()->rowCount(), 2);
    QCOMPARE(tool.dialog->getColor().activeIndex(), 1);
    tool.typeHex(QStringLiteral("FF0000"));
    QVERIFY(isSame(tree->color().getColor(1), tool.active()));

    // Another row makes its colour the shown one, and the owner hears of it.
    tool.changed.clear();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {},
                      tree->visualRect(tree->model()->index(0, 1)).center());
    QCOMPARE(tool.changed.size(), 1);
    QCOMPARE(tool.changed[0][0].value<zelsg::Color>().activeIndex(), 0);
    QVERIFY(isSame(tool.part<ZelColorViewer>()->color(), teal));
    QCOMPARE(u'#' + tool.hex().toLower(), onDisplay(teal));
    tree->deleteCurrent();
    QCOMPARE(tool.changed.size(), 2);
    QCOMPARE(tool.hex(), QStringLiteral("FF0000"));
    tool.changed.clear();
    tree->model()->setData(tree->model()->index(0, ZelMultiColorListModel::NameColumn),
                           QStringLiteral("Coat"));
    QCOMPARE(tool.changed.size(), 1);
    QCOMPARE(tool.changed[0][0].value<zelsg::Color>().getName(0), std::string("Coat"));

    tool.button(QStringLiteral("Unmake multi-color"))->click();
    QVERIFY(!tree->isVisible() && !tool.dialog->getColor().isMultiColor());
    tool.dialog->reject();
    QVERIFY(isSame(tool.changed.last()[0].value<zelsg::Color>().getActive(), teal));
}

void ColorDialogTest::swatchesAreTaken()
{
    Tool tool;
    tool.show();
    auto *list = tool.part<ZelColorSwatchListView>();
    tool.button(QStringLiteral("Add picked color to swatch list"))->click();
    QVERIFY(list->swatchModel()->colors().back() == teal);
    const auto place = [list](int row) {
        return list->visualRect(list->model()->index(row, 0)).center();
    };
    list->scrollToTop();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(2));
    QCOMPARE(tool.dialog->getColorName(), QStringLiteral("Blue sky"));
    QVERIFY(tool.active() == fromQColor(QColor(0x62, 0x7a, 0x9d)));
    QVERIFY(tool.dialog->isVisible());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place(3));
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place(3));
    QCOMPARE(tool.finished.last()[0].toInt(), int(QDialog::Accepted));
    QCOMPARE(tool.dialog->getColorName(), QStringLiteral("Foliage"));
}

void ColorDialogTest::viewerGivesTheOldColor()
{
    Tool tool;
    tool.show();
    tool.typeHex(QStringLiteral("00FF00"));
    auto *viewer = tool.part<ZelColorViewer>();
    Q_EMIT viewer->colorSelected(viewer->oldColor());
    QVERIFY(isSame(tool.active(), teal));
    QVERIFY(isSame(viewer->color(), teal));
    QVERIFY(tool.dialog->isVisible());
    Q_EMIT viewer->doubleClick(ZelColor(Space::RGB, 0, 0, 1));
    QCOMPARE(tool.finished.last()[0].toInt(), int(QDialog::Accepted));
    QCOMPARE(tool.dialog->getQColor().name(), QStringLiteral("#0000ff"));
    tool.dialog->hideOldNewSelector();
    QVERIFY(viewer->isHidden());
}

void ColorDialogTest::transparencyIsAlpha()
{
    Tool tool;
    auto *row = tool.part<ZelIntegerSliderEdit>();
    QVERIFY(row->isHidden());
    QCOMPARE(tool.dialog->getQColor(), toQColor(teal));
    tool.dialog->setTransparency(0.6F);
    QVERIFY(!row->isHidden());
    QVERIFY(std::abs(tool.dialog->getQColor().alphaF() - 0.6F) < 1e-4F);
    QVERIFY(tool.changed.isEmpty());
    tool.show();
    QTest::keyClick(row->sliderWdg(), Qt::Key_End);
    QCOMPARE(tool.dialog->getQColor().alpha(), 0);
    QVERIFY(!tool.changed.isEmpty());
    tool.dialog->setTransparency(7);
    QCOMPARE(tool.dialog->getQColor().alpha(), 255);
    messages().expect(QtWarningMsg, QStringLiteral("transparency"));
    tool.dialog->setTransparency(std::numeric_limits<float>::quiet_NaN());
    QCOMPARE(tool.dialog->getQColor().alpha(), 255);
}

void ColorDialogTest::colorIsPicked_data()
{
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("taken") << true;
    QTest::newRow("cancelled") << false;
}

void ColorDialogTest::colorIsPicked()
{
    QFETCH(bool, isTaken);
    Tool tool;
    tool.show();
    const ZelColor picked(Space::RGB, 0.25F, 0.5F, 0.75F);
    UserInput::DialogAnswer answer([&](QDialog *box) {
        Q_EMIT qobject_cast<ZelEyeDropper *>(box)->colorSelected(picked);
        QVERIFY(isSame(tool.active(), picked));
        QVERIFY(tool.changed.isEmpty());
        box->done(isTaken ? QDialog::Accepted : QDialog::Rejected);
    });
    tool.button(QStringLiteral("Pick a color"))->click();
    QVERIFY(answer.finished());
    QVERIFY(isSame(tool.active(), isTaken ? picked : teal));
    QCOMPARE(tool.changed.size(), isTaken ? 1 : 0);
    QTRY_VERIFY(!tool.part<ZelEyeDropper>());
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

void ColorDialogTest::buttonsHaveTheirRank()
{
    qApp->setStyleSheet(QStringLiteral("QPushButton[rank=\"Primary\"] { min-width: 300px; }"
                                       "QPushButton[rank=\"Tertiary\"] { min-width: 200px; }"));
    {
        Tool tool;
        tool.show();
        auto *box = tool.part<QDialogButtonBox>();
        QVERIFY(box->button(QDialogButtonBox::Ok)->width() >= 300);
        const int cancelWidth = box->button(QDialogButtonBox::Cancel)->width();
        QVERIFY(cancelWidth >= 200 && cancelWidth < 300);
    }
    qApp->setStyleSheet(QString());
}

ZEL_TEST_MAIN(ColorDialogTest)

#include "tst_color_dialog.moc"
