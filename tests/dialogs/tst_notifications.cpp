#include "TestCase.h"

#include <ZelWidgets/ZelNotificationAction>
#include <ZelWidgets/ZelNotificationList>

#include <QPixmap>

using Action = ZelNotificationAction;

class NotificationsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anActionTellsWhatChangedOnce();
    void flagsAreTakenBitByBit();
    void theListIsSortedAndStable();
    void onlyTheActionsOfTheListAreHeardOf();
    void actionsThatDiedAreHarmlessUntilTheyArePruned();
    void aTriggerTurnsTogglesOver();
    void anActionMayEndInItsOwnTrigger();

private:
    static Action *create(const QString &toolTip, int priority, QObject *parent);
    static QStringList toolTips(const ZelNotificationList &list);
};

Action *NotificationsTest::create(const QString &toolTip, int priority, QObject *parent)
{
    auto *action = new Action(QIcon(), toolTip, parent);
    action->setPriority(priority);
    return action;
}

QStringList NotificationsTest::toolTips(const ZelNotificationList &list)
{
    QStringList texts;
    for (int i = 0; i < list.size(); ++i)
        texts.append(list.at(i) ? list.at(i)->toolTip() : QStringLiteral("-"));
    return texts;
}

void NotificationsTest::anActionTellsWhatChangedOnce()
{
    QPixmap pixmap(4, 4);
    pixmap.fill(Qt::red);
    const QIcon icon(pixmap);
    Action action(icon, QStringLiteral("tip"), nullptr);
    QCOMPARE(action.icon().cacheKey(), icon.cacheKey());
    QCOMPARE(action.priority(), 0);
    QVERIFY(!action.isVisible() && !action.toggleState() && action.hasFlag(Action::NoFlag));

    QSignalSpy changed(&action, &Action::changed);
    QSignalSpy priorityChanged(&action, &Action::priorityChanged);
    const QIcon copy = icon;
    const QList<std::function<void()>> setters{
        [&] { action.setIcon(QIcon(pixmap.scaled(2, 2))); },
        [&] { action.setToolTip(QStringLiteral("other")); },
        [&] { action.setVisible(true); },
        [&] { action.setToggleState(true); },
        [&] { action.setFlag(Action::Toggle, true); },
        [&] { action.setPriority(-3); },
    };
    action.setIcon(copy);
    QCOMPARE(changed.size(), 0);
    for (int i = 0; i < setters.size(); ++i) {
        setters[i]();
        QCOMPARE(changed.size() + priorityChanged.size(), i + 1);
        if (i > 0)
            setters[i]();
        QCOMPARE(changed.size() + priorityChanged.size(), i + 1);
    }
    QCOMPARE(priorityChanged.size(), 1);
    QCOMPARE(action.priority(), -3);
}

void NotificationsTest::flagsAreTakenBitByBit()
{
    Action action(QIcon(), QString(), nullptr);
    QSignalSpy changed(&action, &Action::changed);
    action.setFlag(Action::Flag(6), true);
    QVERIFY(action.hasFlag(Action::Toggle) && action.hasFlag(Action::Flag(4)));
    QVERIFY(!action.hasFlag(Action::Flag(3)) && !action.hasFlag(Action::NoFlag));
    action.setFlag(Action::Toggle, false);
    QVERIFY(!action.hasFlag(Action::Flag(6)) && action.hasFlag(Action::Flag(4)));
    // Not all of its bits are set, so there is nothing to switch off.
    action.setFlag(Action::Flag(6), false);
    QVERIFY(action.hasFlag(Action::Flag(4)));
    QCOMPARE(changed.size(), 2);
}

void NotificationsTest::theListIsSortedAndStable()
{
    QObject owner;
    ZelNotificationList list;
    QSignalSpy changed(&list, &ZelNotificationList::changed);
    list.addAction(create(QStringLiteral("c"), 5, &owner));
    list.addAction(create(QStringLiteral("a"), -1, &owner));
    Action *dying = create(QStringLiteral("x"), 5, &owner);
    list.addAction(dying);
    list.addAction(create(QStringLiteral("d"), 5, &owner));
    Action *moving = create(QStringLiteral("b"), 9, &owner);
    list.addAction(moving);
    QCOMPARE(changed.size(), 5);
    QCOMPARE(toolTips(list).join(u' '), QStringLiteral("a c x d b"));

    delete dying;
    moving->setPriority(0);
    QCOMPARE(changed.size(), 6);
    QCOMPARE(toolTips(list).join(u' '), QStringLiteral("a b - c d"));
    moving->setPriority(0);
    QCOMPARE(changed.size(), 6);
    QVERIFY(!Action::priorityLessThan(nullptr, moving));
    QVERIFY(!Action::priorityLessThan(moving, nullptr));
}

void NotificationsTest::onlyTheActionsOfTheListAreHeardOf()
{
    QObject owner;
    ZelNotificationList list;
    QSignalSpy changed(&list, &ZelNotificationList::changed);
    list.addAction(nullptr);
    QCOMPARE(changed.size(), 0);
    list.removeAction(nullptr);
    QCOMPARE(changed.size(), 1);

    Action *action = create(QStringLiteral("a"), 0, &owner);
    list.addAction(action);
    list.addAction(action);
    QCOMPARE(list.size(), 1);
    QCOMPARE(changed.size(), 2);
    action->setToolTip(QStringLiteral("b"));
    QCOMPARE(changed.size(), 3);

    list.removeAction(action);
    QCOMPARE(changed.size(), 4);
    action->setVisible(true);
    action->setPriority(3);
    QCOMPARE(changed.size(), 4);
    list.removeAction(action);
    QCOMPARE(changed.size(), 5);
    QCOMPARE(list.size(), 0);
}

void NotificationsTest::actionsThatDiedAreHarmlessUntilTheyArePruned()
{
    QObject owner;
    ZelNotificationList list;
    Action *first = create(QStringLiteral("a"), 0, &owner);
    list.addAction(first);
    list.addAction(create(QStringLiteral("b"), 1, &owner));
    delete first;
    QSignalSpy changed(&list, &ZelNotificationList::changed);
    list.trigger(0);
    list.removeAction(nullptr);
    QCOMPARE(list.size(), 2);
    QVERIFY(!list.at(0) && !list.at(-1) && !list.at(2));
    list.pruneActions();
    QCOMPARE(toolTips(list), QStringList(QStringLiteral("b")));
    QCOMPARE(changed.size(), 1);
}

void NotificationsTest::aTriggerTurnsTogglesOver()
{
    QObject owner;
    ZelNotificationList list;
    Action *action = create(QStringLiteral("a"), 0, &owner);
    list.addAction(action);
    QSignalSpy changed(&list, &ZelNotificationList::changed);
    QSignalSpy triggered(action, &Action::triggered);
    list.trigger(0);
    QVERIFY(!action->toggleState());
    action->setFlag(Action::Toggle, true);
    bool stateAtTrigger = false;
    connect(action, &Action::triggered, this, [&] { stateAtTrigger = action->toggleState(); });
    list.trigger(0);
    QVERIFY(stateAtTrigger);
    list.trigger(0);
    QVERIFY(!action->toggleState());
    QCOMPARE(triggered.size(), 3);
    QCOMPARE(changed.size(), 3);
    list.trigger(-1);
    list.trigger(1);
    QCOMPARE(triggered.size(), 3);
}

void NotificationsTest::anActionMayEndInItsOwnTrigger()
{
    ZelNotificationList list;
    QPointer<Action> action = create(QStringLiteral("a"), 0, nullptr);
    action->setFlag(Action::Toggle, true);
    list.addAction(action);
    connect(&list, &ZelNotificationList::changed, action, [&] { delete action; });
    list.trigger(0);
    QVERIFY(!action);
    QVERIFY(!list.at(0));
}

ZEL_TEST_MAIN(NotificationsTest)
#include "tst_notifications.moc"
