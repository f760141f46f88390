#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelKeepAwake>
#include <ZelWidgets/KeyToSignalFilter>
#include <ZelWidgets/PreventSleep>
#include <ZelWidgets/SameSizeController>
#include <ZelWidgets/ZelAdaptiveTimer>
#include <ZelWidgets/ZelCopyPasteEventFilter>
#include <ZelWidgets/ZelCursorState>
#include <ZelWidgets/ZelDeleteEventFilter>
#include <ZelWidgets/ZelDirectedResizeWidget>

#include <QAction>
#include <QBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableView>
#include <QWindow>

namespace {

class HintWidget : public QWidget
{
public:
    explicit HintWidget(QSize hint, QSize minimumHint = QSize(0, 0))
        : hint(hint)
        , minimumHint(minimumHint)
    {}
    QSize sizeHint() const override { return hint; }
    QSize minimumSizeHint() const override { return minimumHint; }

    QSize hint;
    QSize minimumHint;
};

/// A window with a line edit in it and an action that wants the key.
struct KeyWindow
{
    explicit KeyWindow(const QKeySequence &keys)
    {
        (new QHBoxLayout(&window))->addWidget(&edit);
        action.setShortcut(keys);
        window.addAction(&action);
        window.show();
        edit.setFocus();
    }

    QWidget window;
    QLineEdit edit;
    QAction action;
};

void fire(QTimer *timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

} // namespace

/// The small services that widgets share.
class TestHelpers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sameSizeIsTheLargestOfTheLivingChildren();
    void theTimerDoublesAfterItsListenersRan();
    void aTimerMayDieInItsListener();
    void aNewIntervalCountsFromTheLastTimeout();
    void theCursorFollowsTheModifier();
    void copyCutAndPasteGoToTheFilterNotToGlobalShortcuts();
    void deleteAloneGoesToTheFilterNotToGlobalShortcuts();
    void escapeAndEnterBecomeSignals();
    void filtersInstallThemselvesOnViews();
    void preventSleepRepeatsTheRequestUntilItIsStopped();
};

void TestHelpers::sameSizeIsTheLargestOfTheLivingChildren()
{
    SameSizeController controller;
    QCOMPARE(controller.szHint(QSize(3, 4)), QSize(3, 4));
    HintWidget tall(QSize(5, 50), QSize(1, 20));
    auto wide = std::make_unique<HintWidget>(QSize(60, 6), QSize(30, 2));
    controller.addUnaffectedChild(&tall);
    QList<SameSizeController::SzHintMode> asked;
    controller.addChildInf(
        [&](SameSizeController::SzHintMode mode) {
            asked.append(mode);
            return mode == SameSizeController::SizeHint ? wide->hint : wide->minimumHint;
        },
        wide.get());
    controller.addUnaffectedChild(nullptr);

    const QList<Qt::Orientations> directions{
        {}, Qt::Vertical, Qt::Horizontal, Qt::Vertical | Qt::Horizontal};
    for (const Qt::Orientations direction : directions) {
        controller.setSameSizeDirection(direction);
        QCOMPARE(controller.szHint(QSize(10, 10)), QSize(60, 50));
        QCOMPARE(controller.minSzHint(QSize(10, 10)), QSize(30, 20));
    }
    QCOMPARE(controller.szHint(QSize(100, 100)), QSize(100, 100));
    asked.clear();
    wide.reset();
    QCOMPARE(controller.szHint(QSize(10, 10)), QSize(10, 50));
    QVERIFY(asked.isEmpty());
}

void TestHelpers::theTimerDoublesAfterItsListenersRan()
{
    ZelAdaptiveTimer timer(100);
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    QList<int> intervals;
    connect(&timer, &QTimer::timeout, this, [&] { intervals.append(timer.interval()); });
    timer.start(0);
    for (int i = 0; i < 3; ++i)
        fire(&timer);
    timer.setInterval(60);
    for (int i = 0; i < 3; ++i)
        fire(&timer);
    QCOMPARE(intervals, (QList<int>{0, 1, 2, 60, 120, 120}));
    QVERIFY(timer.isActive());

    ZelAdaptiveTimer atTheLongest(60);
    atTheLongest.start(60);
    fire(&atTheLongest);
    QCOMPARE(atTheLongest.interval(), 60);
}

void TestHelpers::aTimerMayDieInItsListener()
{
    QPointer<ZelAdaptiveTimer> timer = new ZelAdaptiveTimer(100);
    connect(timer, &QTimer::timeout, this, [&] { delete timer; });
    timer->start(0);
    QTRY_VERIFY(!timer);
}

void TestHelpers::aNewIntervalCountsFromTheLastTimeout()
{
    ZelAdaptiveTimer timer(1000000);
    timer.setTimerType(Qt::PreciseTimer);
    timer.start(100000);
    QTRY_VERIFY(timer.remainingTime() <= 99980);
    QVERIFY(!timer.setNewInterval(50000));
    QVERIFY2(timer.interval() <= 49980 && timer.interval() > 40000,
             qPrintable(QString::number(timer.interval())));

    timer.start(100000);
    QTRY_VERIFY(timer.remainingTime() <= 99980);
    QVERIFY(timer.setNewInterval(20));
    QCOMPARE(timer.interval(), 20);
}

void TestHelpers::theCursorFollowsTheModifier()
{
    using Modifiers = Qt::KeyboardModifiers;
    const std::tuple<Qt::KeyboardModifier, Modifiers, Modifiers> rows[] = {
        {Qt::ControlModifier, Qt::ControlModifier | Qt::ShiftModifier, Qt::ShiftModifier},
        {Qt::NoModifier, Qt::NoModifier, Qt::ControlModifier}};
    QWindow window;
    window.show();
    for (const auto &[modifier, showing, hiding] : rows) {
        auto state = std::make_unique<ZelCursorState>(Qt::PointingHandCursor, modifier, 1000000);
        auto *timer = state->findChild<QTimer *>();
        const auto isShownWith = [&](Modifiers modifiers) {
            QTest::keyPress(&window, Qt::Key_A, modifiers);
            fire(timer);
            return QGuiApplication::overrideCursor() != nullptr;
        };
        QVERIFY(!isShownWith(hiding));
        QVERIFY(isShownWith(showing) && isShownWith(showing));
        QVERIFY(state->isActive());
        QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::PointingHandCursor);
        QVERIFY(!isShownWith(hiding));
        QVERIFY(isShownWith(showing));
        state.reset();
        QVERIFY(!QGuiApplication::overrideCursor());
        QTest::keyRelease(&window, Qt::Key_A);
    }
}

void TestHelpers::copyCutAndPasteGoToTheFilterNotToGlobalShortcuts()
{
    KeyWindow keys(QKeySequence::Paste);
    QVERIFY(QTest::qWaitForWindowActive(&keys.window));
    ZelCopyPasteEventFilter filter(&keys.edit);
    QStringList pressed;
    connect(&filter, &ZelCopyPasteEventFilter::copyPressed, this,
            [&] { pressed << QStringLiteral("copy"); });
    connect(&filter, &ZelCopyPasteEventFilter::cutPressed, this,
            [&] { pressed << QStringLiteral("cut"); });
    connect(&filter, &ZelCopyPasteEventFilter::pastePressed, this,
            [&] { pressed << QStringLiteral("paste"); });
    QSignalSpy triggered(&keys.action, &QAction::triggered);

    QTest::keySequence(&keys.edit, QKeySequence::Copy);
    QTest::keySequence(&keys.edit, QKeySequence::Cut);
    QTest::keySequence(&keys.edit, QKeySequence::Paste);
    QTest::keyClick(&keys.edit, Qt::Key_V);
    QCOMPARE(pressed,
             (QStringList{QStringLiteral("copy"), QStringLiteral("cut"), QStringLiteral("paste")}));
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(keys.edit.text(), QStringLiteral("v"));
}

void TestHelpers::deleteAloneGoesToTheFilterNotToGlobalShortcuts()
{
    KeyWindow keys(Qt::Key_Delete);
    QAction withControl;
    withControl.setShortcut(Qt::CTRL | Qt::Key_Delete);
    keys.window.addAction(&withControl);
    QVERIFY(QTest::qWaitForWindowActive(&keys.window));
    QSignalSpy controlTriggered(&withControl, &QAction::triggered);
    QSignalSpy triggered(&keys.action, &QAction::triggered);
    ZelDeleteEventFilter filter(&keys.window);
    keys.edit.installEventFilter(&filter);
    QSignalSpy pressed(&filter, &ZelDeleteEventFilter::deletePressed);

    QTest::keyClick(&keys.edit, Qt::Key_Delete);
    QTest::keyClick(&keys.edit, Qt::Key_Delete, Qt::KeypadModifier);
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(triggered.count(), 0);
    keys.edit.removeEventFilter(&filter);
    keys.edit.setReadOnly(true);
    QTest::keyClick(&keys.window, Qt::Key_Delete, Qt::ControlModifier);
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(controlTriggered.count(), 1);
}

void TestHelpers::escapeAndEnterBecomeSignals()
{
    QLineEdit edit;
    KeyToSignalFilter filter(&edit);
    QSignalSpy escape(&filter, &KeyToSignalFilter::escapePressed);
    QSignalSpy enter(&filter, &KeyToSignalFilter::enterPressed);
    QSignalSpy returnPressed(&edit, &QLineEdit::returnPressed);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Enter, Qt::KeypadModifier);
    QTest::keyClick(&edit, Qt::Key_Escape);
    QTest::keyClick(&edit, Qt::Key_X);
    QCOMPARE(enter.count(), 2);
    QCOMPARE(escape.count(), 1);
    QCOMPARE(returnPressed.count(), 0);
    QCOMPARE(edit.text(), QStringLiteral("x"));
}

void TestHelpers::filtersInstallThemselvesOnViews()
{
    QTableView view;
    auto *copyPaste = new ZelCopyPasteEventFilter(&view);
    auto *deletion = new ZelDeleteEventFilter(&view);
    QCOMPARE(copyPaste->parent(), &view);
    QSignalSpy copied(copyPaste, &ZelCopyPasteEventFilter::copyPressed);
    QSignalSpy deleted(deletion, &ZelDeleteEventFilter::deletePressed);
    QTest::keySequence(&view, QKeySequence::Copy);
    QTest::keyClick(&view, Qt::Key_Delete);
    QCOMPARE(copied.count(), 1);
    QCOMPARE(deleted.count(), 1);
}

void TestHelpers::preventSleepRepeatsTheRequestUntilItIsStopped()
{
    struct Recorder : ZelKeepAwake
    {
        explicit Recorder(QString &calls)
            : calls(calls)
        {}
        void keepAwake() override { calls += QLatin1Char('k'); }
        void release() override { calls += QLatin1Char('r'); }
        QString &calls;
    };
    QString calls;
    ZelKeepAwake::setInstance(std::make_unique<Recorder>(calls));
    {
        PreventSleep preventSleep;
        auto *timer = preventSleep.findChild<QTimer *>();
        preventSleep.start();
        QCOMPARE(timer->interval(), 25000);
        fire(timer);
        QVERIFY(preventSleep.isActive());
        preventSleep.stop();
        QVERIFY(!timer->isActive());
        QCOMPARE(calls, QStringLiteral("kkr"));
        QCOMPARE(messages().messages(QtDebugMsg),
                 (QStringList{QStringLiteral("Preventing OS sleep"),
                              QStringLiteral("Enabling OS sleep")}));
        preventSleep.start();
    }
    QCOMPARE(calls, QStringLiteral("kkrkr"));

    PreventSleep first;
    PreventSleep second;
    first.start();
    second.start();
    first.stop();
    QCOMPARE(calls, QStringLiteral("kkrkrkk"));
    second.stop();
    QCOMPARE(calls, QStringLiteral("kkrkrkkr"));
    ZelKeepAwake::setInstance(nullptr);
    QVERIFY(!dynamic_cast<Recorder *>(&ZelKeepAwake::instance()));
}

ZEL_TEST_MAIN(TestHelpers)
#include "tst_helpers.moc"
