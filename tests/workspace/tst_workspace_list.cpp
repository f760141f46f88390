#include "TestCase.h"

#include "workspace/WorkSpaceList.h"

namespace {

const QString mine = QStringLiteral("wsid1");
const QString first = QStringLiteral("defWorkSpace1");
const QString second = QStringLiteral("defWorkSpace2");

QList<DefaultWorkSpaceInfo> factory()
{
    return {{first, QStringLiteral("Default"), "one"}, {second, QStringLiteral("Studio"), "two"}};
}

ZelSettings store()
{
    return ZelSettings(QStringLiteral("WorkSpaces"));
}

void setStored(const char *key, const QVariant &value)
{
    store().setValue(QString::fromLatin1(key), value);
}

} // namespace

class TestWorkspaceList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void addsFactoryWorkSpacesOnce();
    void changesWorkSpaces();
    void replacesWorkSpaces();
    void readsDamagedLists();
    void choosesTheStart_data();
    void choosesTheStart();
};

void TestWorkspaceList::addsFactoryWorkSpacesOnce()
{
    WorkSpaceList list;
    list.add({first, QStringLiteral("Changed"), "changed"});
    list.addNewFactoryWorkSpaces(factory());
    QCOMPARE(list.ids(), (QStringList{first, second}));
    QCOMPARE(list.names(), (QStringList{QStringLiteral("Changed"), QStringLiteral("Studio")}));
    QCOMPARE(list.data(first), QByteArray("changed"));
    QCOMPARE(list.data(second), QByteArray("two"));
    QCOMPARE(store().value(QStringLiteral("DefaultWorkspacesCount")).toInt(), 10);
    list.replace({});
    list.addNewFactoryWorkSpaces(factory());
    QVERIFY(list.ids().isEmpty());
    QCOMPARE(list.setUpOnce(factory()), first);
    QCOMPARE(list.ids().size(), 2);
    list.replace({});
    QCOMPARE(WorkSpaceList().setUpOnce(factory()), QString());
    QVERIFY(WorkSpaceList().ids().isEmpty());
}

void TestWorkspaceList::changesWorkSpaces()
{
    WorkSpaceList list;
    list.add({mine, QStringLiteral("Mine"), "data"});
    list.add({mine, QStringLiteral("Again"), "other"});
    list.add({QStringLiteral("ids"), QStringLiteral("Reserved"), "other"});
    list.setData(QStringLiteral("unknown"), "x");
    list.setData(mine, "new");
    const WorkSpaceList stored;
    QCOMPARE(stored.ids(), QStringList{mine});
    QCOMPARE(stored.nameOf(mine), QStringLiteral("Mine"));
    QCOMPARE(stored.data(mine), QByteArray("new"));
    QVERIFY(stored.nameOf(second).isEmpty() && stored.data(second).isEmpty());
    QVERIFY(!store().hasKey(QStringLiteral("unknown")));
}

void TestWorkspaceList::replacesWorkSpaces()
{
    WorkSpaceList list;
    list.setUpOnce(factory());
    list.add({mine, QStringLiteral("Mine"), "data"});
    const QString imported = QStringLiteral("wsid2");
    list.replace({{mine, QStringLiteral("Renamed"), {}},
                  {imported, QStringLiteral("Imported"), "file"},
                  {first, QStringLiteral("Default"), {}}});
    const WorkSpaceList stored;
    QCOMPARE(stored.ids(), (QStringList{mine, imported, first}));
    QCOMPARE(stored.nameOf(mine), QStringLiteral("Renamed"));
    QCOMPARE(stored.data(mine), QByteArray("data"));
    QCOMPARE(stored.data(imported), QByteArray("file"));
    QVERIFY(!store().hasKey(second));
}

void TestWorkspaceList::readsDamagedLists()
{
    setStored("ids", QStringList{mine, QString(), mine, QStringLiteral("names"), first});
    setStored("names", QStringList{QStringLiteral("Mine")});
    setStored("wsid1", QSize(1, 2));
    const WorkSpaceList list;
    QCOMPARE(list.ids(), (QStringList{mine, first}));
    QCOMPARE(list.names(), (QStringList{QStringLiteral("Mine"), first}));
    QVERIFY(list.data(mine).isEmpty());
    setStored("ids", QSize(1, 2));
    setStored("names", 12);
    QVERIFY(WorkSpaceList().ids().isEmpty());
}

void TestWorkspaceList::choosesTheStart_data()
{
    QTest::addColumn<QString>("lastUsed");
    QTest::addColumn<bool>("isFirstTime");
    QTest::addColumn<QString>("expected");
    QTest::newRow("new user") << QString() << true << first;
    QTest::newRow("none used") << QString() << false << QString();
    QTest::newRow("used") << second << true << second;
    QTest::newRow("gone") << mine << true << QString();
}

void TestWorkspaceList::choosesTheStart()
{
    QFETCH(QString, lastUsed);
    QFETCH(bool, isFirstTime);
    setStored("LastUsedWorkspace", lastUsed);
    ZelSettings(QStringLiteral("misc")).setValue(QStringLiteral("first_time"), isFirstTime);
    WorkSpaceList list;
    list.setUpOnce(factory());
    QTEST(list.startId(factory()), "expected");
}

ZEL_TEST_MAIN(TestWorkspaceList)
#include "tst_workspace_list.moc"
