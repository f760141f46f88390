#include "RegistryTestCase.h"

#include <ZelCore/ZelSettings>

#include <QRandomGenerator>

using Shortcut = ZelMouseShortcut;
using ViewCtrl::DollyMouseMode;
using ViewCtrl::ViewMode;

namespace {

constexpr auto unknown = Qt::Key_unknown;
const Qt::KeyboardModifiers none = Qt::NoModifier;

/// The id of the action; empty for none.
QString idOf(const ZelMouseAction *action)
{
    return action ? action->id() : QString();
}

Shortcut shortcut(Shortcut::MouseEventAction event, Qt::KeyboardModifiers modifiers,
                  Qt::MouseButtons buttons = {}, Qt::Key key = unknown)
{
    return {event, QKeyCombination(modifiers, key), buttons};
}

const ZelMouseActionSettings &table()
{
    return *ZelMouseActionSettings::instance();
}

ZelMouseAction *actionOf(const char *id)
{
    return const_cast<ZelMouseAction *>(table().findById(QLatin1String(id)));
}

QString gestureOf(const char *id)
{
    return table().findById(QLatin1String(id))->internalShortcutTxt();
}

} // namespace

class MouseShortcutsTest : public RegistryTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textsHaveOneForm_data();
    void textsHaveOneForm();
    void everyGestureComesBackFromItsText();
    void oddTextsAreReadAsFarAsTheyGo_data();
    void oddTextsAreReadAsFarAsTheyGo();
    void randomTextsAreReadOrRefused();
    void aPlainClickMatchesItsButtonOnly();
    void heldButtonsAreCompared();
    void theTableIsRegistered_data();
    void theTableIsRegistered();
    void aMouseEventFindsItsAction_data();
    void aMouseEventFindsItsAction();
    void anActionThatIsOffIsNeverFound();
    void aToolTakesThePlainLeftDragOver();
    void aNewActionTakesTheGestureInForce();
    void scopesOverlapInABit();
    void viewModesRewriteFourGestures_data();
    void viewModesRewriteFourGestures();
    void theUsersOwnGesturesComeBack();
    void theViewModeIsStored();
};

void MouseShortcutsTest::textsHaveOneForm_data()
{
    QTest::addColumn<Shortcut>("gesture");
    QTest::addColumn<QString>("exported");
    QTest::addColumn<QString>("shownText");

    const auto row = [](const char *name, const Shortcut &gesture, const char *exported,
                        const char *shownText) {
        QTest::newRow(name) << gesture << QString::fromLatin1(exported)
                            << QString::fromLatin1(shownText);
    };
    const auto ctrlShift = Qt::ControlModifier | Qt::ShiftModifier;
    const auto all = ctrlShift | Qt::AltModifier;
    row("none", {}, "!#", "");
    row("left click", shortcut(Shortcut::LeftClick, none), "!#MLC#/", "LMB");
    row("centre click", shortcut(Shortcut::CentreClick, none), "!#MCC#/", "MMB");
    row("tumble", shortcut(Shortcut::Drag, none, Qt::LeftButton), "!#MD#LMB#!#", "LMB Drag");
    row("pan", shortcut(Shortcut::Drag, ctrlShift, Qt::LeftButton), "!#MD#CTRL#SHIFT#/LMB#!#",
        "Ctrl+Shift+LMB Drag");
    row("wheel", shortcut(Shortcut::Wheel, none), "!#MW#/", "Wheel");
    row("target", shortcut(Shortcut::RightClick, Qt::ControlModifier | Qt::AltModifier),
        "!#MRC#ALT#CTRL#/!#", "Alt+Ctrl+RMB");
    row("all", shortcut(Shortcut::Drag, all, Qt::LeftButton | Qt::RightButton | Qt::MiddleButton),
        "!#MD#ALT#CTRL#SHIFT#/LMB#RMB#CMB#!#", "Alt+Ctrl+Shift+LMB+RMB+MMB Drag");
    row("double click", shortcut(Shortcut::DoubleClick, Qt::AltModifier), "!#MDC#ALT#/!#",
        "Alt+Dbl Click");
    row("double click, long", shortcut(Shortcut::DoubleClick, Qt::ShiftModifier), "!#MDC#SHIFT#/!#",
        "Shift+Dbl Clk");
    row("held digit", shortcut(Shortcut::LeftClick, Qt::ControlModifier, {}, Qt::Key_1),
        "!#MLC#CTRL#/#KEY_1# !#", "Ctrl+1+LMB");
    row("digit and button", shortcut(Shortcut::Drag, none, Qt::RightButton, Qt::Key_2),
        "!#MD#RMB##KEY_2# !#", "2+RMB Drag");
    row("digit alone", shortcut(Shortcut::LeftClick, none, {}, Qt::Key_2), "!#MLC#/", "2+LMB");
    row("another modifier", shortcut(Shortcut::Wheel, Qt::MetaModifier), "!#MW#/!#", "Wheel");
    row("drag without button", shortcut(Shortcut::Drag, Qt::AltModifier), "!#MD#ALT#/!#", "Alt");
}

void MouseShortcutsTest::textsHaveOneForm()
{
    QFETCH(Shortcut, gesture);
    QFETCH(QString, exported);
    QFETCH(QString, shownText);
    QCOMPARE(gesture.exportToString(), exported);
    QCOMPARE(gesture.publicShortcutText(), shownText);
    QVERIFY(Shortcut::isMouseShortcut(exported));
    QVERIFY(Shortcut::likelyConflict(exported, gesture.exportToString()));
}

void MouseShortcutsTest::everyGestureComesBackFromItsText()
{
    const Qt::Key keys[] = {unknown,       Qt::Key_1,      Qt::Key_2,
                            Qt::Key_Space, Qt::Key_Exclam, Qt::Key_Slash};
    for (int event = Shortcut::LeftClick; event < Shortcut::None; ++event) {
        for (int held = 0; held < 8 * 8; ++held) {
            Qt::KeyboardModifiers modifiers;
            modifiers.setFlag(Qt::AltModifier, held & 1);
            modifiers.setFlag(Qt::ControlModifier, held & 2);
            modifiers.setFlag(Qt::ShiftModifier, held & 4);
            const auto buttons = Qt::MouseButtons::fromInt(held >> 3);
            for (const Qt::Key key : keys) {
                const auto gesture = shortcut(static_cast<Shortcut::MouseEventAction>(event),
                                              modifiers, buttons, key);
                const bool keepsKey = modifiers || buttons;
                const auto expected =
                    keepsKey ? gesture : shortcut(gesture.getEvent(), none, buttons);
                const QString text = gesture.exportToString();
                QVERIFY2(Shortcut::buildFromExportedString(text) == expected, qPrintable(text));
            }
        }
    }
    QVERIFY(messages().messages(QtDebugMsg).isEmpty());
}

void MouseShortcutsTest::oddTextsAreReadAsFarAsTheyGo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("canonical");
    QTest::addColumn<QString>("debug");

    const QString skipped = QStringLiteral("ZelMouseShortcut - unknown mouse modifier ");
    QTest::newRow("empty") << QString() << "!#" << QString();
    QTest::newRow("short") << "!#MW"
                           << "!#" << QString();
    QTest::newRow("no mark") << "MD#LMB#"
                             << "!#" << QString();
    QTest::newRow("marks only") << "!#!#!#"
                                << "!#" << QString();
    QTest::newRow("lower case") << "!#md#ctrl#/lmb#!#"
                                << "!#MD#CTRL#/LMB#!#" << QString();
    QTest::newRow("lower case key") << "!#mlc#ctrl#/#key_1# !#"
                                    << "!#MLC#CTRL#/!#" << QString();
    QTest::newRow("no such event") << "!#MX#LMB#!#"
                                   << "!#"
                                   << "Action type -1?";
    QTest::newRow("unknown part") << "!#MD#XMB#LMB#!#"
                                  << "!#MD#LMB#!#" << skipped;
    QTest::newRow("twice") << "!#MD#LMB#LMB#!#"
                           << "!#MD#LMB#!#" << QString();
    QTest::newRow("open key") << "!#MD#LMB##KEY_2"
                              << "!#MD#LMB##KEY_2# !#" << QString();
    QTest::newRow("key with modifier") << "!#MD#LMB##KEY_Ctrl+2# !#"
                                       << "!#MD#LMB##KEY_2# !#" << QString();
    QTest::newRow("thousands of marks") << QStringLiteral("!#").repeated(50000) + u'X' << "!#"
                                        << "Action type -1?";
}

void MouseShortcutsTest::oddTextsAreReadAsFarAsTheyGo()
{
    QFETCH(QString, text);
    QFETCH(QString, canonical);
    QFETCH(QString, debug);
    QCOMPARE(Shortcut::buildFromExportedString(text).exportToString(), canonical);
    const QStringList said = messages().messages(QtDebugMsg);
    QCOMPARE(said.size(), debug.isEmpty() ? 0 : 1);
    QVERIFY(debug.isEmpty() || said.first().startsWith(debug));
}

void MouseShortcutsTest::randomTextsAreReadOrRefused()
{
    QRandomGenerator random(7);
    const QStringList pieces =
        QStringLiteral("!#|MD#|mw#|CTRL#|LMB#|/|#KEY_|1# |Ctrl+|#|!|\u00c4| |RMB#").split(u'|');
    for (int run = 0; run < 2000; ++run) {
        QString text;
        for (quint32 i = random.bounded(12U); i > 0; --i)
            text += pieces[random.bounded(static_cast<int>(pieces.size()))];
        const Shortcut gesture = Shortcut::buildFromExportedString(text);
        // What was read once is read again without loss.
        const QString exported = gesture.exportToString();
        QCOMPARE(Shortcut::buildFromExportedString(exported).exportToString(), exported);
    }
}

void MouseShortcutsTest::aPlainClickMatchesItsButtonOnly()
{
    const auto click = shortcut(Shortcut::CentreClick, Qt::AltModifier);
    // Which modifiers the gesture wants is not compared.
    QVERIFY(click.clickMatch(Qt::MiddleButton, Qt::Key_A | Qt::ShiftModifier));
    QVERIFY(!click.clickMatch(Qt::LeftButton, Qt::Key_A));
    QVERIFY(!click.clickMatch(Qt::MiddleButton, Qt::Key_A | Qt::MetaModifier));
    QVERIFY(
        !shortcut(Shortcut::LeftClick, none, Qt::RightButton).clickMatch(Qt::LeftButton, unknown));
    QVERIFY(!shortcut(Shortcut::DoubleClick, none).clickMatch(Qt::LeftButton, unknown));
}

void MouseShortcutsTest::heldButtonsAreCompared()
{
    const auto drag = shortcut(Shortcut::Drag, none, Qt::LeftButton | Qt::RightButton);
    const Qt::MouseButtons both = Qt::LeftButton | Qt::RightButton;
    QVERIFY(drag.modiferMatch(Qt::Key_A, both | Qt::BackButton));
    QVERIFY(!drag.modiferMatch(Qt::Key_A, Qt::LeftButton));
    QVERIFY(!drag.modiferMatch(Qt::Key_A | Qt::KeypadModifier, both));
}

void MouseShortcutsTest::theTableIsRegistered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("gesture");

    const auto row = [](const char *id, const char *text, int category, const char *gesture) {
        QTest::newRow(id) << QString::fromLatin1(text) << category << QString::fromLatin1(gesture);
    };
    row("cam#ctrl.aTumble", "Tumble", 2, "!#MD#LMB#!#");
    row("cam#ctrl.aTumbleAlt", "Tumble (Alternative)", 2, "!#MD#ALT#/LMB#!#");
    row("cam#ctrl.bPan", "Pan", 2, "!#MD#CMB#!#");
    row("cam#ctrl.bPan2", "Pan (Alternative)", 2, "!#MD#CTRL#SHIFT#/LMB#!#");
    row("cam#ctrl.cvDolly", "Dolly", 1, "!#MW#/");
    row("cam#ctrl.cxDolly2", "Dolly (Alternative)", 1, "!#MD#ALT#/RMB#!#");
    row("cam#ctrl.czFocalLength", "Focal Length", 1, "!#MW#ALT#/!#");
    row("cam#ctrl.dPerspective", "Perspective", 2, "!#MD#ALT#SHIFT#/RMB#!#");
    row("cam#ctrl.ePickPivot", "Select Target", 0, "!#MRC#ALT#CTRL#/!#");
    row("cam#ctrl.eCenterAndFit", "Center And Fit", 0, "!#MRC#ALT#CTRL#SHIFT#/!#");
    row("cam#ctrl.gTwist", "Twist", 1, "!#MW#ALT#CTRL#/!#");
    row("mat.aEditMaterial", "Edit Material", 0, "!#MDC#/");
    row("mat.bSelect", "Select Material", 0, "!#MLC#SHIFT#/!#");
    row("mat.cApplySelected", "Apply Selected", 0, "!#MRC#SHIFT#/!#");
    row("mat.dApplyCopy", "Apply Copy", 0, "!#MRC#CTRL#SHIFT#/!#");
    row("env.xRotate", "Rotate Environment", 2, "!#MD#CTRL#/LMB#!#");
    row("if#mouse.xShowOnly", "Show Only", 0, "!#MLC#ALT#/!#");
    row("if#mouse.zHidePart", "Hide Part", 0, "!#MLC#ALT#CTRL#/!#");
    row("if#mouse.aSelect", "Select Object", 0, "!#MLC#/");
    row("if#mouse.aSelectGroup", "Select Group", 0, "!#MLC#/");
    row("if#mouse.aSelectModel", "Select Model", 0, "!#MLC#/");
    row("if#mouse.bSelectAdd", "Add Select Object", 0, "!#MLC#CTRL#/!#");
    row("if#mouse.context", "Context Menu", 0, "!#MRC#/");
    row("if#mouse.marquesel", "Marquee Selection", 2, "!#MD#SHIFT#/LMB#!#");
}

void MouseShortcutsTest::theTableIsRegistered()
{
    QFETCH(QString, text);
    QFETCH(int, category);
    QFETCH(QString, gesture);
    const QString id = QString::fromLatin1(QTest::currentDataTag());
    const ShownShortcut expected{text, gesture, gesture, category};
    QCOMPARE(entries().value(id), expected);
    const auto *action = table().findById(id);
    QVERIFY(action);
    QCOMPARE(registry().findShortcut(id), action);
    QCOMPARE(action->enabled(), id != QLatin1String("cam#ctrl.aTumbleAlt"));
}

void MouseShortcutsTest::aMouseEventFindsItsAction_data()
{
    QTest::addColumn<int>("event");
    QTest::addColumn<Qt::MouseButtons>("buttons");
    QTest::addColumn<QKeyCombination>("keys");
    QTest::addColumn<QString>("id");

    const auto row = [](const char *name, Shortcut::MouseEventAction event,
                        Qt::MouseButtons buttons, QKeyCombination keys, const char *id) {
        QTest::newRow(name) << int(event) << buttons << keys << QString::fromLatin1(id);
    };
    const Qt::MouseButtons no;
    row("click", Shortcut::LeftClick, no, unknown, "if#mouse.aSelect");
    row("click with 1", Shortcut::LeftClick, no, Qt::Key_1, "if#mouse.aSelectGroup");
    row("click with 2", Shortcut::LeftClick, no, Qt::Key_2, "if#mouse.aSelectModel");
    row("click with 3", Shortcut::LeftClick, no, Qt::Key_3, "if#mouse.aSelect");
    row("control and 1", Shortcut::LeftClick, no, Qt::CTRL | Qt::Key_1, "");
    row("control and A", Shortcut::LeftClick, no, Qt::CTRL | Qt::Key_A, "if#mouse.bSelectAdd");
    row("drag", Shortcut::Drag, Qt::MiddleButton, unknown, "cam#ctrl.bPan");
    row("two buttons", Shortcut::Drag, Qt::LeftButton | Qt::RightButton, unknown, "");
    row("wheel", Shortcut::Wheel, no, Qt::ALT | unknown, "cam#ctrl.czFocalLength");
    row("off", Shortcut::Drag, Qt::LeftButton, Qt::ALT | unknown, "");
}

void MouseShortcutsTest::aMouseEventFindsItsAction()
{
    QFETCH(int, event);
    QFETCH(Qt::MouseButtons, buttons);
    QFETCH(QKeyCombination, keys);
    QFETCH(QString, id);
    const auto kind = static_cast<Shortcut::MouseEventAction>(event);
    QCOMPARE(idOf(table().findAction(kind, buttons, keys)), id);
    if (kind == Shortcut::LeftClick)
        QCOMPARE(idOf(table().findClickEvent(Qt::LeftButton, keys)), id);
    QVERIFY(!table().findClickEvent(Qt::LeftButton | Qt::RightButton, keys));
    QVERIFY(!table().findClickEvent(Qt::BackButton, keys));
}

void MouseShortcutsTest::anActionThatIsOffIsNeverFound()
{
    const auto *context = table().findById(QStringLiteral("if#mouse.context"));
    QCOMPARE(table().findClickEvent(Qt::RightButton, unknown), context);
    context->setEnabled(false);
    QVERIFY(!table().findClickEvent(Qt::RightButton, unknown));
    context->setEnabled(true);
}

void MouseShortcutsTest::aToolTakesThePlainLeftDragOver()
{
    auto *settings = ZelMouseActionSettings::nonConstInstance();
    const auto drag = [settings](QKeyCombination keys) {
        return idOf(settings->findAction(Shortcut::Drag, Qt::LeftButton, keys));
    };
    const auto *tool = settings->findById(QStringLiteral("cam#ctrl.aTumbleAlt"));
    settings->setDefaultLeftMouseAction(tool);
    QCOMPARE(drag(Qt::Key_1), QStringLiteral("cam#ctrl.aTumbleAlt"));
    QCOMPARE(drag(Qt::SHIFT | unknown), QStringLiteral("if#mouse.marquesel"));
    QCOMPARE(idOf(settings->getSettingsNonDefaultLeftMouseAction()),
             QStringLiteral("cam#ctrl.aTumble"));
    QCOMPARE(settings->getDefaultLeftMouseAction(), tool);

    settings->autoSetDefaultMouseAction();
    QCOMPARE(drag(unknown), QStringLiteral("cam#ctrl.aTumble"));
    // Nobody has the plain drag: tumbling takes it.
    actionOf("cam#ctrl.aTumble")->setShortcutFromText(QStringLiteral("!#MW#ALT#/!#"));
    actionOf("env.xRotate")->setShortcutFromText(QStringLiteral("!#MD#CMB#!#"));
    QVERIFY(!settings->getSettingsNonDefaultLeftMouseAction());
    settings->autoSetDefaultMouseAction();
    QCOMPARE(drag(unknown), QStringLiteral("cam#ctrl.aTumble"));
    actionOf("env.xRotate")->setShortcutFromText(QStringLiteral("!#MD#LMB#!#"));
    settings->autoSetDefaultMouseAction();
    QCOMPARE(drag(unknown), QStringLiteral("env.xRotate"));

    auto *dying = new ZelMouseAction(QStringLiteral("cam.tool"), QStringLiteral("Tool"),
                                     ZelMouseAction::DragOnly, {}, nullptr);
    settings->setDefaultLeftMouseAction(dying);
    delete dying;
    QCOMPARE(drag(unknown), QStringLiteral("env.xRotate"));
}

void MouseShortcutsTest::aNewActionTakesTheGestureInForce()
{
    const QString id = QStringLiteral("cam.gesture");
    const Shortcut wished = shortcut(Shortcut::Wheel, Qt::ShiftModifier);
    const ZelMouseAction first(id, QStringLiteral("First"), ZelMouseAction::OneWay, wished,
                               nullptr);
    const ZelMouseAction second(id, QStringLiteral("Second one"), ZelMouseAction::OneWay,
                                shortcut(Shortcut::Wheel, none), nullptr);
    QCOMPARE(second.getShortcut(), wished);
    QCOMPARE(registry().findShortcut(id), &first);
    const ShownShortcut expected{QStringLiteral("Second one"), wished.exportToString(),
                                 wished.exportToString(), ZelMouseAction::OneWay};
    QCOMPARE(entries().value(id), expected);
}

void MouseShortcutsTest::scopesOverlapInABit()
{
    using Scope = ZelMouseAction::ScopeInformation;
    ZelMouseAction a(QStringLiteral("cam.a"), {}, ZelMouseAction::OneShot, {}, nullptr);
    ZelMouseAction b(QStringLiteral("cam.b"), {}, ZelMouseAction::OneShot, {}, nullptr);
    QVERIFY(a.hasScopeOverLap(b));
    a.setScope(QFlags<Scope>::fromInt(6));
    QVERIFY(!a.hasScopeOverLap(b));
    QVERIFY(!registry().hasScopeConflictMouse(a.id(), b.id()));
    b.setScope(QFlags<Scope>::fromInt(12));
    QVERIFY(a.hasScopeOverLap(b));
    QVERIFY(registry().hasScopeConflictMouse(a.id(), b.id()));
}

void MouseShortcutsTest::viewModesRewriteFourGestures_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("gestures");
    QTest::addColumn<int>("dolly");

    const int before = 0;
    const auto row = [](int mode, const char *gestures, int dolly) {
        QTest::addRow("%d", mode) << mode << QString::fromLatin1(gestures).split(u' ') << dolly;
    };
    row(1, "!#MD#LMB#!# !#MD#CMB#!# !#MW#/ !#MD#ALT#/RMB#!#", 3);
    row(2, "!#MD#ALT#/CMB#!# !#MD#CMB#!# !#MW#/ !#MD#ALT#/RMB#!#", 1);
    row(3, "!#MD#CMB#!# !#MD#SHIFT#/CMB#!# !#MW#/ !#MD#CTRL#/CMB#!#", 2);
    row(4, "!#MD#ALT#/LMB#!# !#MD#ALT#/CMB#!# !#MD#ALT#/RMB#!# !#", 3);
    row(5, "!#MD#RMB#!# !#MD#SHIFT#/RMB#!# !#MW#/ !#MD#CTRL#/RMB#!#", 1);
    row(6, "!#MD#CMB#!# !#MD#CTRL#/CMB#!# !#MW#/ !#MD#SHIFT#/CMB#!#", 1);
    row(7, "!#MD#ALT#SHIFT#/LMB#!# !#MD#ALT#SHIFT#/CMB#!# !#MW#/ !#MD#ALT#SHIFT#/RMB#!#", 0);
    row(8, "!#MD#CMB#!# !#MD#SHIFT#/CMB#!# !#MW#/ !#", before);
    row(9, "!#MD#SHIFT#/RMB#!# !#MD#CTRL#SHIFT#/RMB#!# !#MD#CTRL#/RMB#!# !#", 2);
    row(10, "!#MD#RMB#!# !#MD#ALT#/RMB#!# !#MW#CTRL#/!# !#", 2);
    row(11, "!#MD#SHIFT#/CMB#!# !#MD#CMB#!# !#MW#/ !#", 2);
    row(12, "!#MD#LMB#RMB#!# !#MD#SHIFT#/LMB#RMB#!# !#MW#/ !#", 2);
    row(13, "!#MD#CMB#!# !#MD#SHIFT#/CMB#!# !#MW#/ !#MD#CTRL#/CMB#!#", 2);
    row(14, "!#MD#LMB#!# !#MD#CMB#!# !#MW#/ !#MD#ALT#/RMB#!#", before);
    row(-1, "!#MD#LMB#!# !#MD#CMB#!# !#MW#/ !#MD#ALT#/RMB#!#", before);
}

void MouseShortcutsTest::viewModesRewriteFourGestures()
{
    QFETCH(int, mode);
    QFETCH(QStringList, gestures);
    QFETCH(int, dolly);
    auto *view = ViewCtrl::Settings::instance();
    const auto before = entries();
    view->setDollyZoomInMode(DollyMouseMode::Mode0);
    view->setViewMode(static_cast<ViewMode>(mode));
    const auto gesturesNow = [] {
        return QStringList{gestureOf("cam#ctrl.aTumble"), gestureOf("cam#ctrl.bPan"),
                           gestureOf("cam#ctrl.cvDolly"), gestureOf("cam#ctrl.cxDolly2")};
    };
    QCOMPARE(static_cast<int>(view->viewMode()), mode);
    QCOMPARE(gesturesNow(), gestures);
    QCOMPARE(static_cast<int>(view->dollyZoomInMode()), dolly);
    QCOMPARE(entries(), before);
    registry().applyCurrentSettingsToShortcuts();
    QCOMPARE(gesturesNow(), gestures);
}

void MouseShortcutsTest::theUsersOwnGesturesComeBack()
{
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    itemOf(tree, QStringLiteral("cam#ctrl.bPan"))->setShortcut(QStringLiteral("!#MD#RMB#!#"));
    ZelShortcutGuiHelper::applyChanges(&tree);
    auto *view = ViewCtrl::Settings::instance();
    view->setViewMode(ViewMode::Mode4);
    ZelSettings(QStringLiteral("shortcutSettings"))
        .setValue(QStringLiteral("DollyLastManualMoveMode"), 1);
    view->setViewMode(ViewMode::Mode0);
    QCOMPARE(gestureOf("cam#ctrl.bPan"), QStringLiteral("!#MD#RMB#!#"));
    QCOMPARE(gestureOf("cam#ctrl.aTumble"), QStringLiteral("!#MD#LMB#!#"));
    QCOMPARE(view->dollyZoomInMode(), DollyMouseMode::Mode1);
}

void MouseShortcutsTest::theViewModeIsStored()
{
    auto *view = ViewCtrl::Settings::instance();
    view->restoreViewCamSettings();
    QCOMPARE(view->viewMode(), ViewMode::Mode0);
    view->setViewMode(ViewMode::Mode9);
    view->storeViewCamSettings();
    restart();
    QCOMPARE(view->viewMode(), ViewMode::Mode0);
    registry().restoreSettings();
    QCOMPARE(view->viewMode(), ViewMode::Mode9);
    QCOMPARE(gestureOf("cam#ctrl.cvDolly"), QStringLiteral("!#MD#CTRL#/RMB#!#"));
    QVERIFY(registry().hasDefaultShortcut(QStringLiteral("cam#ctrl.cvDolly")));
}

ZEL_TEST_MAIN(MouseShortcutsTest)
#include "tst_mouse_shortcuts.moc"
