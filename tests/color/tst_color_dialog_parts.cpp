#include "ColorDialogTool.h"
#include "UserInput.h"
#include "color/ZelColorDialogPlacement.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelSettings>
#include <ZelWidgets/ColorSwatchModel>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorInput>
#include <ZelWidgets/ZelColorSwatchListView>
#include <ZelWidgets/ZelColorTriangle>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelEyeDropper>
#include <ZelWidgets/ZelIntegerSlider>
#include <ZelWidgets/ZelIntegerSliderEdit>
#include <ZelWidgets/ZelMultiColorListModel>
#include <ZelWidgets/ZelMultiColorTreeView>
#include <ZelWidgets/ZelRGBSpectrumDisplay>

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

#include <cmath>
#include <limits>

class ColorDialogPartsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void windowIsPlaced_data();
    void windowIsPlaced();
    void nameBelongsToTheColor();
    void emptyNameIsRefused();
    void choicesAreRemembered();
    void damagedSettingsAreSurvived();
    void sizeIsRemembered();
    void subColors();
    void swatchesAreTaken();
    void viewerGivesTheOldColor();
    void transparencyIsAlpha();
    void colorIsPicked_data();
    void colorIsPicked();
    void buttonsHaveTheirRank();
};

void ColorDialogPartsTest::initTestCase()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/light_theme.json"));
}

void ColorDialogPartsTest::cleanup()
{
    ZelGammaPolicy::get()->setGammaCorrectValues(true);
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    TestCase::cleanup();
}

void ColorDialogPartsTest::windowIsPlaced_data()
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

void ColorDialogPartsTest::windowIsPlaced()
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

void ColorDialogPartsTest::nameBelongsToTheColor()
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

void ColorDialogPartsTest::emptyNameIsRefused()
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

void ColorDialogPartsTest::choicesAreRemembered()
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

void ColorDialogPartsTest::damagedSettingsAreSurvived()
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

void ColorDialogPartsTest::sizeIsRemembered()
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

void ColorDialogPartsTest::subColors()
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

void ColorDialogPartsTest::swatchesAreTaken()
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

void ColorDialogPartsTest::viewerGivesTheOldColor()
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

void ColorDialogPartsTest::transparencyIsAlpha()
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

void ColorDialogPartsTest::colorIsPicked_data()
{
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("taken") << true;
    QTest::newRow("cancelled") << false;
}

void ColorDialogPartsTest::colorIsPicked()
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

void ColorDialogPartsTest::buttonsHaveTheirRank()
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

ZEL_TEST_MAIN(ColorDialogPartsTest)
#include "tst_color_dialog_parts.moc"
