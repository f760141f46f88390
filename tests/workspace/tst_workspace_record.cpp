#include "TestCase.h"

#include "workspace/WorkSpaceExchange.h"
#include "workspace/WorkSpaceReader.h"
#include "workspace/WorkSpaceRecord.h"
#include "workspace/WorkSpaceWriter.h"

#include <QFile>

namespace {

QByteArray seed(const QString &path)
{
    QFile file(QStringLiteral(ZEL_SOURCE_DIR "/fuzz/") + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray blob(const QString &name)
{
    return seed(QStringLiteral("workspaceblob/seeds/") + name);
}

/// Where the part ends that all versions have.
constexpr qsizetype endOfFirstFields = 416;

} // namespace

class TestWorkspaceRecord : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheStoredForm();
    void writesTheStoredForm();
    void writesWhatAStreamWrites();
    void readsOtherVersions_data();
    void readsOtherVersions();
    void survivesEveryCut();
    void survivesEveryFlippedBit();
    void refusesWhatCannotBeThere_data();
    void refusesWhatCannotBeThere();
    void keepsOutRectanglesOffAnyDesktop();
    void tellsUnequalLists();
    void exchangesWorkSpaces();
    void refusesDamagedExchange_data();
    void refusesDamagedExchange();
};

void TestWorkspaceRecord::readsTheStoredForm()
{
    const WorkSpaceRecord record = WorkSpaceRecord::read(blob(QStringLiteral("version4")));
    WorkSpaceRecord expected;
    expected.tornOutNames = {QStringLiteral("Materials"), QStringLiteral("Hidden")};
    expected.tornOutRects = {QRect(100, 120, 300, 400), WorkSpaceRecord::hiddenRect()};
    expected.libraryTabOrder = {QStringLiteral("Materials"), QStringLiteral("Colours")};
    expected.projectTabOrder = {QStringLiteral("Scene"), QStringLiteral("Camera"),
                                QStringLiteral("Image")};
    expected.libraryTabIndex = 1;
    expected.projectTabIndex = 2;
    expected.mainWindowState = QByteArray("\0\0\0\xff\0", 5);
    expected.screenGeometry = QRect(0, 0, 1920, 1080);
    expected.screenAvailable = QRect(0, 24, 1920, 1056);
    expected.devicePixelRatio = 1.5;
    expected.hiddenRibbonIds = {QStringLiteral("Studios"), QStringLiteral("GPU")};
    expected.tabWidgetNames = {QStringLiteral("ScenePageSubTab"), QStringLiteral("Inner")};
    expected.tabWidgetIndices = {0, 3};
    expected.sceneSubTabText = QStringLiteral("Lights");
    expected.mainWindowGeometry = QRect(10, 20, 1200, 900);
    expected.maximized = true;
    expected.toolBarIconSize = QSize(24, 24);
    expected.toolButtonStyle = 3;
    expected.enableDocking = false;
    expected.visibleRibbonIds = {QStringLiteral("Render"), QStringLiteral("Script")};
    expected.tornOutScreens = {0, -1};
    expected.dockNames = {QStringLiteral("ZelTimeline")};
    expected.dockRects = {QRect(5, 6, 200, 100)};
    expected.dockScreens = {1};
    expected.screens = {QRect(0, 0, 1920, 1080), QRect(1920, 0, 1280, 1024)};
    expected.toolBarMode = 2;
    QVERIFY(record == expected);
}

void TestWorkspaceRecord::writesWhatAStreamWrites()
{
    const QStringList texts{QString(), QStringLiteral(""), QStringLiteral("plain"),
                            QString::fromUtf8("\xc3\xa4\xe2\x82\xac\xf0\x9f\x98\x80"),
                            QString(9000, u'x')};
    const QList<QByteArray> blobs{QByteArray(), QByteArray(""), QByteArray("\0\xff", 2),
                                  QByteArray(20000, 'y')};
    const QList<qint16> shorts{-32768, -1, 0, 258};
    const QList<qint32> numbers{-2147483647 - 1, -1, 0, 66051};
    const QList<QRect> rects{QRect(), QRect(-3, 4, 500, 6), QRect(QPoint(1, 1), QPoint(1, 1))};
    WorkSpaceWriter writer;
    QByteArray wanted;
    QDataStream stream(&wanted, QIODevice::WriteOnly);
    stream.setVersion(workSpaceStreamVersion);
    const auto write = [&](const auto &value) {
        writer.write(value);
        stream << value;
    };
    write(texts);
    write(blobs);
    write(shorts);
    write(numbers);
    write(rects);
    write(true);
    write(-0.125);
    write(QSize(-1, 70000));
    write(QStringList());
    QCOMPARE(writer.take(), wanted);
}

void TestWorkspaceRecord::writesTheStoredForm()
{
    const QByteArray bytes = blob(QStringLiteral("version4"));
    QCOMPARE(WorkSpaceRecord::read(bytes).write(), bytes);
}

void TestWorkspaceRecord::readsOtherVersions_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<bool>("hasDocks");
    QTest::addColumn<int>("toolBarMode");
    QTest::newRow("0") << 0 << false << 0;
    QTest::newRow("2") << 2 << false << 0;
    QTest::newRow("3") << 3 << true << 0;
    QTest::newRow("5") << 5 << true << 2;
}

void TestWorkspaceRecord::readsOtherVersions()
{
    QFETCH(int, version);
    QFETCH(bool, hasDocks);
    const auto record = WorkSpaceRecord::read(blob(QStringLiteral("version%1").arg(version)));
    QVERIFY(record.isValid);
    QCOMPARE(record.version, version);
    QCOMPARE(record.visibleRibbonIds.size(), 2);
    QCOMPARE(!record.dockNames.isEmpty(), hasDocks);
    QCOMPARE(record.hasMatchingTabScreens(), hasDocks);
    QTEST(record.toolBarMode, "toolBarMode");
}

void TestWorkspaceRecord::survivesEveryCut()
{
    const QByteArray bytes = blob(QStringLiteral("version4"));
    const WorkSpaceRecord whole = WorkSpaceRecord::read(bytes);
    QVERIFY(!whole.enableDocking);
    for (qsizetype size = 0; size < bytes.size(); ++size) {
        const WorkSpaceRecord record = WorkSpaceRecord::read(bytes.left(size));
        QVERIFY(!record.isValid);
        QCOMPARE(record.enableDocking, size < endOfFirstFields);
        QVERIFY(record.tornOutNames.isEmpty() || record.tornOutNames == whole.tornOutNames);
        QVERIFY(record.screens.isEmpty() || record.screens == whole.screens);
    }
}

void TestWorkspaceRecord::survivesEveryFlippedBit()
{
    const QByteArray bytes = blob(QStringLiteral("version4"));
    int changed = 0;
    for (qsizetype bit = 0; bit < bytes.size() * 8; ++bit) {
        QByteArray bent = bytes;
        bent[bit / 8] = char(bent[bit / 8] ^ (1 << (bit % 8)));
        const WorkSpaceRecord record = WorkSpaceRecord::read(bent);
        const QByteArray again = record.write();
        QVERIFY(WorkSpaceRecord::read(again).isValid);
        QCOMPARE(WorkSpaceRecord::read(again).write(), again);
        changed += again != bytes;
    }
    QVERIFY(changed > bytes.size() * 7);
}

void TestWorkspaceRecord::refusesWhatCannotBeThere_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"huge_count", "many_rects", "huge_text", "odd_text", "cut_early"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestWorkspaceRecord::refusesWhatCannotBeThere()
{
    QFETCH(QString, name);
    const WorkSpaceRecord record = WorkSpaceRecord::read(blob(name));
    QVERIFY(!record.isValid);
    QVERIFY(record.enableDocking);
    QVERIFY(record.dockNames.isEmpty());
    QVERIFY(record.mainWindowState.size() < 100);
}

void TestWorkspaceRecord::keepsOutRectanglesOffAnyDesktop()
{
    const WorkSpaceRecord record = WorkSpaceRecord::read(blob(QStringLiteral("far_rects")));
    QVERIFY(record.isValid);
    QCOMPARE(record.tornOutRects, QList<QRect>({QRect(), QRect()}));
}

void TestWorkspaceRecord::tellsUnequalLists()
{
    WorkSpaceRecord record = WorkSpaceRecord::read(blob(QStringLiteral("version4")));
    QVERIFY(record.hasMatchingTabs() && record.hasMatchingTabScreens());
    QVERIFY(record.hasMatchingDocks() && record.hasMatchingTabWidgets());
    record.reservedNames = QStringList{QStringLiteral("a")};
    record.dockScreens.append(0);
    record.tabWidgetIndices.removeLast();
    QVERIFY(!record.hasMatchingTabs() && record.hasMatchingTabScreens());
    QVERIFY(!record.hasMatchingDocks() && !record.hasMatchingTabWidgets());
    QVERIFY(!WorkSpaceRecord::read(blob(QStringLiteral("unequal_lists"))).hasMatchingTabs());
}

void TestWorkspaceRecord::exchangesWorkSpaces()
{
    const QByteArray text = seed(QStringLiteral("workspaceexchange/seeds/two"));
    const auto workSpaces = WorkSpaceExchange::read(text);
    QVERIFY(workSpaces);
    const QList<DefaultWorkSpaceInfo> expected{
        {QStringLiteral("Expwsid1"), QStringLiteral("Mine"), blob(QStringLiteral("version4"))},
        {QStringLiteral("ExpdefWorkSpace7"), QString(), QByteArray()}};
    QVERIFY(*workSpaces == expected);
    QCOMPARE(WorkSpaceExchange::write(*workSpaces).size(), text.size());
    QVERIFY(WorkSpaceExchange::read(WorkSpaceExchange::write(expected)) == expected);
    const auto wrapped = seed(QStringLiteral("workspaceexchange/seeds/wrapped"));
    QVERIFY(WorkSpaceExchange::read(wrapped) == expected);
}

void TestWorkspaceRecord::refusesDamagedExchange_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *name : {"unequal", "cut", "no_base64", "empty", "huge_count", "huge_blob"})
        QTest::newRow(name) << seed(QStringLiteral("workspaceexchange/seeds/") +
                                    QString::fromLatin1(name));
    const QList<DefaultWorkSpaceInfo> many(WorkSpaceExchange::maximumCount + 1);
    QTest::newRow("too many") << WorkSpaceExchange::write(many);
}

void TestWorkspaceRecord::refusesDamagedExchange()
{
    QFETCH(QByteArray, text);
    QVERIFY(!WorkSpaceExchange::read(text));
}

ZEL_TEST_MAIN(TestWorkspaceRecord)
#include "tst_workspace_record.moc"
