#include "RegistryTestCase.h"

#include <ZelWidgets/HotKeysDisableEnable>
#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelActionState>
#include <ZelWidgets/ZelShortcut>

#include <QAction>
#include <QPointer>
#include <QShortcut>
#include <QSignalSpy>
#include <QThread>
#include <QToolBar>

#include <memory>

namespace {

const QString id = QStringLiteral("gen.x");

} // namespace

class ActionsTest : public RegistryTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anActionForwardsBothWays();
    void aDisabledActionIsNotTriggered();
    void anActionOutlivesWhatItWraps();
    void anActionGoesWithDeleteLater();
    void queuedCallsReachTheAction();
    void theScopeIsTheNearestWidget();
    void aShortcutTakesIdTextAndKey();
    void aShortcutOfAPlainActionStaysPlain();
    void allActionsOfAStateStayInStep();
    void aStateThatIsNotCheckableStays();
    void aStateChangesFromAThread();
    void hotKeysGoOffAndOn();
    void exceptionsStayOn();
    void statesAreSwitchedAsAWhole();
    void toolBarsSwitchTheirOwn();
    void hotKeysThatDieAreSkipped();
    void withoutAMainWidgetNothingIsFound();

private:
    std::unique_ptr<QWidget> window_;
};

void ActionsTest::init()
{
    RegistryTestCase::init();
    window_ = std::make_unique<QWidget>();
}

void ActionsTest::cleanup()
{
    window_.reset();
    RegistryTestCase::cleanup();
}

void ActionsTest::anActionForwardsBothWays()
{
    ZelAction action(id, QStringLiteral("Text"), Qt::CTRL | Qt::Key_U, nullptr);
    QAction *qAction = action.qAction();
    QCOMPARE(qAction->property("iD").toString(), id);
    QCOMPARE(qAction->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_U));
    qAction->setCheckable(true);
    const QSignalSpy triggered(&action, qOverload<>(&ZelAction::triggered));
    const QSignalSpy triggeredWith(&action, qOverload<bool>(&ZelAction::triggered));
    const QSignalSpy toggled(&action, &ZelAction::toggled);
    const QSignalSpy hovered(&action, &ZelAction::hovered);
    const QSignalSpy changed(&action, &ZelAction::changed);

    action.trigger();
    QCOMPARE(triggered.count(), 1);
    QCOMPARE(triggeredWith, QList<QVariantList>{{true}});
    action.setChecked(false);
    action.toggle();
    QCOMPARE(toggled, (QList<QVariantList>{{true}, {false}, {true}}));
    QCOMPARE(triggered.count(), 1);
    action.hover();
    QCOMPARE(hovered.count(), 1);
    const qsizetype before = changed.count();
    action.setVisible(false);
    QVERIFY(!qAction->isVisible());
    QVERIFY(changed.count() > before);
}

void ActionsTest::aDisabledActionIsNotTriggered()
{
    ZelAction action(id, QStringLiteral("Text"), {}, nullptr);
    const QSignalSpy triggered(&action, qOverload<>(&ZelAction::triggered));
    action.setDisabled(true);
    action.trigger();
    QCOMPARE(triggered.count(), 0);
    action.setEnabled(true);
    action.trigger();
    QCOMPARE(triggered.count(), 1);
}

void ActionsTest::anActionOutlivesWhatItWraps()
{
    auto qAction = std::make_unique<QAction>(QStringLiteral("Text"));
    ZelAction action(id, qAction.get(), nullptr);
    action.setScope(window_.get());
    QCOMPARE(action.scope(), window_.get());
    qAction.reset();
    QVERIFY(!action.qAction());
    QVERIFY(!action.scope());
    action.trigger();
    action.toggle();
    action.hover();
    action.setChecked(true);
    action.setEnabled(false);
    action.setVisible(false);
    QVERIFY(!registry().findShortcut(id));
    QEvent event(QEvent::User);
    QVERIFY(!action.event(&event));
}

void ActionsTest::anActionGoesWithDeleteLater()
{
    const QPointer<ZelAction> action = new ZelAction(id, QStringLiteral("Text"), {}, nullptr);
    const QPointer<QAction> qAction = action->qAction();
    action->deleteLater();
    QTRY_VERIFY(!action);
    QVERIFY(!qAction);
}

void ActionsTest::queuedCallsReachTheAction()
{
    ZelAction action(id, QStringLiteral("Text"), {}, nullptr);
    QMetaObject::invokeMethod(&action, "setEnabled", Qt::QueuedConnection, Q_ARG(bool, false));
    QTRY_VERIFY(!action.qAction()->isEnabled());
}

void ActionsTest::theScopeIsTheNearestWidget()
{
    auto *inner = new QWidget(window_.get());
    auto *between = new QObject(inner);
    auto *scope = new QWidget(window_.get());
    ZelAction action(id, QStringLiteral("Text"), {}, between);
    QCOMPARE(action.scope(), inner);
    action.setScope(scope);
    QCOMPARE(action.scope(), scope);
    delete scope;
    QCOMPARE(action.scope(), inner);

    ZelShortcut shortcut(QStringLiteral("gen.y"), {}, {}, inner);
    QCOMPARE(shortcut.scope(), inner);
    shortcut.setScope(window_.get());
    QCOMPARE(shortcut.scope(), window_.get());
}

void ActionsTest::aShortcutTakesIdTextAndKey()
{
    auto *qAction = new QAction(QStringLiteral("Text"), window_.get());
    qAction->setShortcut(Qt::Key_F2);
    const ZelShortcut fromId(id, qAction, window_.get());
    QCOMPARE(fromId.text(), QStringLiteral("Text"));
    QCOMPARE(fromId.key(), QKeySequence(Qt::Key_F2));
    auto *action = fromId.findChild<ZelAction *>();
    QVERIFY(action);
    QCOMPARE(action->id(), id);
    QCOMPARE(action->qAction(), qAction);

    const ZelShortcut fromAction(action, window_.get());
    const ZelShortcut fromQAction(qAction, window_.get());
    for (const ZelShortcut *shortcut : {&fromAction, &fromQAction}) {
        QCOMPARE(shortcut->id(), id);
        QCOMPARE(shortcut->text(), QStringLiteral("Text"));
        QCOMPARE(shortcut->key(), QKeySequence(Qt::Key_F2));
    }
    delete qAction;
    const ZelShortcut late(action, window_.get());
    QCOMPARE(late.id(), id);
    QCOMPARE(late.text(), QString());
    QCOMPARE(late.key(), QKeySequence(Qt::Key_F2));
}

void ActionsTest::aShortcutOfAPlainActionStaysPlain()
{
    auto *qAction = new QAction(QStringLiteral("Plain"), window_.get());
    qAction->setShortcut(Qt::Key_F2);
    const ZelShortcut shortcut(qAction, window_.get());
    QCOMPARE(shortcut.key(), QKeySequence(Qt::Key_F2));
    QVERIFY(!registry().findShortcut(QString()));
    const QStringList said = messages().messages(QtDebugMsg);
    QCOMPARE(said.size(), 1);
    QVERIFY(said.first().contains(QLatin1String("Does not know action ")));
    QVERIFY(said.first().contains(QLatin1String("Plain")));
    QVERIFY(said.first().contains(QLatin1String(" with keySeq ")));
    QVERIFY(said.first().contains(QLatin1String("F2")));
}

void ActionsTest::allActionsOfAStateStayInStep()
{
    ZelActionState state(true, nullptr);
    QAction *menu = state.createAction();
    state.setEnabled(false);
    state.setChecked(true);
    QAction *button = state.createAction();
    QVERIFY(!menu->isEnabled() && !button->isEnabled());
    QVERIFY(menu->isChecked() && button->isChecked());
    QCOMPARE(button->data().value<QPointer<ZelActionState>>().data(), &state);
    QCOMPARE(button->data().metaType().name(), "QPointer<ZelActionState>");

    state.setEnabled(true);
    const QSignalSpy checked(&state, &ZelActionState::checkStateChanged);
    const QSignalSpy triggered(&state, &ZelActionState::triggered);
    const QSignalSpy enabled(&state, &ZelActionState::enabledStateChanged);
    button->trigger();
    QVERIFY(!state.checked() && !menu->isChecked());
    QCOMPARE(checked, QList<QVariantList>{{false}});
    QCOMPARE(triggered, QList<QVariantList>{{false}});
    state.setEnabled(true);
    QCOMPARE(enabled.count(), 0);
}

void ActionsTest::aStateThatIsNotCheckableStays()
{
    ZelActionState state(false, nullptr);
    const QSignalSpy checked(&state, &ZelActionState::checkStateChanged);
    QAction *action = state.createAction();
    state.setChecked(true);
    action->setCheckable(true);
    action->setChecked(true);
    QVERIFY(!state.checked());
    QCOMPARE(checked.count(), 0);
}

void ActionsTest::aStateChangesFromAThread()
{
    ZelActionState state(true, nullptr);
    const QAction *action = state.createAction();
    const QSignalSpy checked(&state, &ZelActionState::checkStateChanged);
    QThread *slotThread = nullptr;
    connect(&state, &ZelActionState::enabledStateChanged, &state,
            [&slotThread] { slotThread = QThread::currentThread(); });
    const std::unique_ptr<QThread> thread(QThread::create([&state] {
        state.setCheckedAsync(true);
        state.setEnabledAsync(false);
    }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(!state.checked());
    QTRY_VERIFY(!state.enabled());
    QCOMPARE(slotThread, QThread::currentThread());
    QVERIFY(action->isChecked() && !action->isEnabled());
    QCOMPARE(checked.count(), 1);
}

void ActionsTest::hotKeysGoOffAndOn()
{
    registry().setSystemInitialized(window_.get());
    auto *shortcut = new QShortcut(Qt::Key_F2, window_.get());
    auto *off = new QShortcut(Qt::Key_F3, window_.get());
    off->setEnabled(false);
    auto *child = new QWidget(window_.get());
    const ZelAction action(id, QStringLiteral("Text"), Qt::Key_F4, child);
    {
        HotKeysDisableEnable hotKeys;
        hotKeys.disableAllHotKeys();
        QVERIFY(!shortcut->isEnabled());
        QVERIFY(!action.qAction()->isEnabled());
        hotKeys.reEnableHotKeys();
        QVERIFY(shortcut->isEnabled());
        shortcut->setEnabled(false);
    }
    QVERIFY(shortcut->isEnabled());
    QVERIFY(action.qAction()->isEnabled());
    QVERIFY(!off->isEnabled());
}

void ActionsTest::exceptionsStayOn()
{
    registry().setSystemInitialized(window_.get());
    const auto *byKey = new QShortcut(Qt::Key_F2, window_.get());
    const ZelShortcut byId(id, {}, Qt::Key_F3, window_.get());
    const ZelAction actionById(QStringLiteral("gen.y"), {}, Qt::Key_F4, window_.get());
    const ZelAction actionByKey(QStringLiteral("gen.z"), {}, Qt::Key_F5, window_.get());
    const ZelAction other(QStringLiteral("gen.o"), {}, Qt::Key_F6, window_.get());
    // Two of one key: a handler takes their place and stays on.
    const ZelAction twin(QStringLiteral("gen.t"), {}, Qt::Key_F6, window_.get());

    HotKeysDisableEnable hotKeys;
    hotKeys.disableHotKeys({id, QStringLiteral("gen.y")},
                           {QKeySequence(Qt::Key_F2), QKeySequence(Qt::Key_F5)});
    QVERIFY(byKey->isEnabled() && byId.isEnabled());
    QVERIFY(actionById.qAction()->isEnabled() && actionByKey.qAction()->isEnabled());
    QVERIFY(!other.qAction()->isEnabled() && !twin.qAction()->isEnabled());
    int handlers = 0;
    for (const QShortcut *shortcut : window_->findChildren<QShortcut *>()) {
        if (!ZelShortcutHandler::isConflictHandler(shortcut))
            continue;
        ++handlers;
        QVERIFY(shortcut->isEnabled());
    }
    QCOMPARE(handlers, 1);
}

void ActionsTest::statesAreSwitchedAsAWhole()
{
    registry().setSystemInitialized(window_.get());
    auto *state = new ZelActionState(false, window_.get());
    const QAction *first = state->createAction();
    const QAction *second = state->createAction();
    {
        HotKeysDisableEnable hotKeys;
        hotKeys.disableAllHotKeys();
        QVERIFY(!state->enabled());
        QVERIFY(!first->isEnabled() && !second->isEnabled());
    }
    QVERIFY(state->enabled());
    QVERIFY(first->isEnabled() && second->isEnabled());
}

void ActionsTest::toolBarsSwitchTheirOwn()
{
    registry().setSystemInitialized(window_.get());
    auto *bar = new QToolBar(window_.get());
    auto *plain = new QAction(bar);
    HotKeysDisableEnable hotKeys;
    hotKeys.disableAllHotKeys();
    QVERIFY(plain->isEnabled());
    plain->setShortcut(Qt::Key_F2);
    messages().expect(QtWarningMsg,
                      QStringLiteral("Unexpected non-empty hotkey when disabling hotkeys"));
    hotKeys.disableAllHotKeys();
    QVERIFY(plain->isEnabled());
}

void ActionsTest::hotKeysThatDieAreSkipped()
{
    registry().setSystemInitialized(window_.get());
    auto *shortcut = new QShortcut(Qt::Key_F2, window_.get());
    auto *state = new ZelActionState(false, window_.get());
    state->createAction();
    const auto *survivor = new QAction(window_.get());
    HotKeysDisableEnable hotKeys;
    hotKeys.disableAllHotKeys();
    delete shortcut;
    delete state;
    hotKeys.reEnableHotKeys();
    QVERIFY(survivor->isEnabled());
}

void ActionsTest::withoutAMainWidgetNothingIsFound()
{
    registry().setSystemInitialized(window_.get());
    window_.reset();
    HotKeysDisableEnable hotKeys;
    hotKeys.disableAllHotKeys();
    window_ = std::make_unique<QWidget>();
    const auto *shortcut = new QShortcut(Qt::Key_F2, window_.get());
    hotKeys.disableAllHotKeys();
    QVERIFY(shortcut->isEnabled());
}

ZEL_TEST_MAIN(ActionsTest)
#include "tst_actions.moc"
