#include "ButtonPictures.h"
#include "GalleryApplication.h"
#include "StyleFile.h"

#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelCheckBox>
#include <ZelWidgets/ZelIconCheckBox>
#include <ZelWidgets/ZelSwitchControl>

#include <QAccessible>
#include <QAction>
#include <QSignalSpy>

class CheckBoxesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aSwitchIsACheckBox();
    void aSwitchChangesSilently();
    void aBoundCheckBoxWritesAndReads();
    void aCheckBoxFollowsItsAction();
    void anIconCheckBoxNamesItsPictures();
    void theFocusFrameFollowsTheTheme();
};

void CheckBoxesTest::initTestCase()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
}

void CheckBoxesTest::aSwitchIsACheckBox()
{
    ZelSwitchControl control(ZelSwitchControl::OnOff);
    control.setToolTip(QStringLiteral("<b>Shadows</b>"));
    control.show();
    QSignalSpy toggled(&control, &ZelSwitchControl::toggled);
    QTest::keyClick(&control, Qt::Key_Space);
    QVERIFY(control.isChecked());
    QTest::keyClick(&control, Qt::Key_Return);
    QTest::keyClick(&control, Qt::Key_Enter);
    QVERIFY(control.isChecked());
    QAccessibleInterface *access = accessible(&control);
    QCOMPARE(access->role(), QAccessible::CheckBox);
    QCOMPARE(access->text(QAccessible::Name), QStringLiteral("Shadows"));
    QVERIFY(access->state().checked && access->state().checkable);
    access->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!control.isChecked());
    QCOMPARE(toggled.count(), 4);

    // The pictures are 42 to 24 units.
    const QSize hint = control.sizeHint();
    QCOMPARE(hint.width(), hint.height() * 42 / 24);
    control.setScale(2.0F);
    QCOMPARE(control.sizeHint(), hint * 2);
    messages().expect(QtWarningMsg, QStringLiteral("scale of a switch"));
    control.setScale(-1.0F);
    QCOMPARE(control.sizeHint(), hint * 2);
}

void CheckBoxesTest::aSwitchChangesSilently()
{
    ZelSwitchControl control(ZelSwitchControl::SwithButtonMode(7));
    QVERIFY(control.icon().isNull());
    control.setCustomButtons(QIcon(filled(QSize(8, 8), Qt::green)),
                             QIcon(filled(QSize(8, 8), Qt::red)));
    control.resize(20, 20);
    QSignalSpy toggled(&control, &ZelSwitchControl::toggled);
    QCOMPARE(boundsOf(&control, Qt::red), control.rect());
    control.setChecked(true, true);
    QCOMPARE(boundsOf(&control, Qt::green), control.rect());
    QCOMPARE(toggled.count(), 0);
    control.setChecked(false, false);
    QCOMPARE(boundsOf(&control, Qt::red), control.rect());
    QCOMPARE(toggled.count(), 1);
}

void CheckBoxesTest::aBoundCheckBoxWritesAndReads()
{
    bool value = true;
    ZelCheckBox box(QStringLiteral("Bound"), &value);
    QSignalSpy updated(&box, &ZelCheckBox::valueUpdated);
    QVERIFY(box.isChecked());
    box.click();
    QVERIFY(!value);
    QCOMPARE(updated.count(), 1);
    box.setCheckState(Qt::PartiallyChecked);
    QVERIFY(!value);
    updated.clear();
    value = true;
    box.updateValue();
    QVERIFY(box.isChecked() && value);
    value = false;
    box.resetValue();
    QVERIFY(box.isChecked() && value);
    QCOMPARE(updated.count(), 0);
}

void CheckBoxesTest::aCheckBoxFollowsItsAction()
{
    QAction action(QStringLiteral("Grid"));
    action.setCheckable(true);
    action.setChecked(true);
    ZelCheckBox box(&action);
    QCOMPARE(box.text(), QStringLiteral("Grid"));
    QVERIFY(box.isChecked());
    box.click();
    QVERIFY(!action.isChecked() && !box.isChecked());
    action.setChecked(true);
    QVERIFY(box.isChecked());
    box.updateValue();
    box.resetValue();
    QVERIFY(box.isChecked());
}

void CheckBoxesTest::anIconCheckBoxNamesItsPictures()
{
    ZelIconCheckBox box(QStringLiteral("Locked"), nullptr);
    box.setSvgButtonIcon(QStringLiteral(":/lock"));
    QCOMPARE(box.svgButtonIcon(), QStringLiteral(":/lock"));
    QVERIFY(box.styleSheet().startsWith(QLatin1String("QCheckBox::indicator { width: ")));
    QVERIFY(box.styleSheet().endsWith(
        QLatin1String(" QCheckBox::indicator:unchecked { image: url(:/lock_inactive.svg); } "
                      " QCheckBox::indicator:checked { image: url(:/lock_active.svg); }")));
}

void CheckBoxesTest::theFocusFrameFollowsTheTheme()
{
    GalleryApplication application(QStringLiteral("Dark"));
    ZelSwitchControl control;
    control.show();
    for (const QString &theme :
         {QStringLiteral("Light"), QStringLiteral("Dark"), QStringLiteral("Light")}) {
        application.setTheme(theme);
        control.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&control));
        control.setFocus(Qt::TabFocusReason);
        const QColor expected =
            StyleFile::color(StyleFile::paletteInForce().value(QStringLiteral("@focus@")));
        QCOMPARE(control.grab().toImage().pixelColor(control.width() / 2, 0), expected);
    }
}

ZEL_TEST_MAIN(CheckBoxesTest)
#include "tst_check_boxes.moc"
