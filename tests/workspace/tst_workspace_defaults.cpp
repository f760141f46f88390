#include "TestCase.h"

#include "workspace/WorkSpaceDefaults.h"
#include "workspace/WorkSpaceDefaultsPrivate.h"

#include <ZelCore/ZelSettings>
#include <ZelCore/ZelSettingsIO>

namespace {

using File = std::pair<QString, QByteArray>;

class Files : public WorkSpaceDefaultsFileIterator
{
public:
    explicit Files(QList<File> files)
        : files_(std::move(files))
    {}
    bool hasNext() override { return !files_.isEmpty(); }
    FileItem next() override
    {
        const File file = files_.takeFirst();
        return {file.first, [file] {
                    return file.second;
                }};
    }

private:
    QList<File> files_;
};

QByteArray entry(const QByteArray &id, const QByteArray &data)
{
    return '"' + id + R"(": {"name": "Name of )" + id + R"(", "data": ")" + data.toBase64() + "\"}";
}

QByteArray bundle(const QByteArray &entries)
{
    return '{' + entries + '}';
}

std::unique_ptr<WorkSpaceDefaultsPrivate> bundlesFrom(const QList<File> &files)
{
    return std::make_unique<WorkSpaceDefaultsPrivate>(std::make_unique<Files>(files));
}

} // namespace

class TestWorkspaceDefaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void offersTheNewestBundle();
    void namesOfFiles_data();
    void namesOfFiles();
    void refusesBadFiles_data();
    void refusesBadFiles();
    void goesOnBehindBadFiles();
    void isSilentWithoutResources();
    void migratesUnchangedWorkSpaces();
};

void TestWorkspaceDefaults::offersTheNewestBundle()
{
    WorkSpaceDefaults defaults(
        bundlesFrom({{QStringLiteral("zelmora10.0.json"), bundle(entry("a", "ten"))},
                     {QStringLiteral("zelmora9.1.json"), bundle(entry("a", "nine"))},
                     {QStringLiteral("zelmora9.12.json"), bundle(entry("b", "nine twelve"))}}));
    const QString a = QStringLiteral("a");
    const auto current = defaults.getCurrentDefaults();
    QCOMPARE(current.keys(), QStringList{a});
    QVERIFY(current.value(a) == (DefaultWorkSpaceInfo{a, QStringLiteral("Name of a"), "ten"}));
    QVERIFY(defaults.isWorkSpaceDataEqualToOneOfPreviousDefaults(a, "ten"));
    QVERIFY(defaults.isWorkSpaceDataEqualToOneOfPreviousDefaults(a, "nine"));
    QVERIFY(!defaults.isWorkSpaceDataEqualToOneOfPreviousDefaults(a, "nine twelve"));
    QVERIFY(!defaults.isWorkSpaceDataEqualToOneOfPreviousDefaults(a, "ninE"));
}

void TestWorkspaceDefaults::namesOfFiles_data()
{
    QTest::addColumn<int>("major");
    QTest::newRow("zelmora9.1.json") << 9;
    QTest::newRow("ZELMORA12.0.JSON") << 12;
    QTest::newRow("zelmora9.json") << -1;
    QTest::newRow("zelmora9x1.json") << -1;
    QTest::newRow("my_zelmora9.1.json") << -1;
    QTest::newRow("zelmora9.1.json.bak") << -1;
    QTest::newRow("zelmora99999999999.1.json") << -1;
}

void TestWorkspaceDefaults::namesOfFiles()
{
    QFETCH(int, major);
    WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError error;
    const auto loaded =
        WorkSpaceDefaultsPrivate::loadBundleFromFile({QString::fromLatin1(QTest::currentDataTag()),
                                                      [] {
                                                          return bundle(entry("a", "x"));
                                                      }},
                                                     error);
    QCOMPARE(loaded.major, major);
    QCOMPARE(error.code, major < 0 ? 2 : 0);
    QCOMPARE(loaded.entries.isEmpty(), major < 0);
}

void TestWorkspaceDefaults::refusesBadFiles_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("message");
    const auto row = [](const char *contents, const char *message) {
        QTest::newRow(message) << QByteArray(contents) << QString::fromLatin1(message);
    };
    row("", "Error loading file contents");
    row("{\"a\" 1}", "File does not contain a valid json: missing name separator");
    row("[]", "File does not contain a json object at the root");
    row(R"({"a": {"name": "a", "data": ""}, "b": null})",
        "One of the top level elements does not have a value of type object. Key b has value "
        "Null");
    row(R"({"a": {"data": ""}})", "Missing name");
    row(R"({"a": {"name": [], "data": 1}})",
        "Invalid type for name: expected string but found type: Array");
    row(R"({"a": {"name": "a"}})", "Missing data field");
    row(R"({"a": {"name": "a", "data": 1.5}})",
        "Invalid type for data: expected string but found type: Double");
}

void TestWorkspaceDefaults::refusesBadFiles()
{
    QFETCH(QByteArray, contents);
    WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError error;
    const auto loaded =
        WorkSpaceDefaultsPrivate::loadBundleFromFile({QStringLiteral("zelmora9.1.json"),
                                                      [contents] {
                                                          return contents;
                                                      }},
                                                     error);
    QCOMPARE(error.code, 1);
    QTEST(error.message, "message");
    QVERIFY(loaded.major == -1 && loaded.entries.isEmpty());
}

void TestWorkspaceDefaults::goesOnBehindBadFiles()
{
    const QList<File> files{{QStringLiteral("readme.txt"), "x"},
                            {QStringLiteral("zelmora11.0.json"), "[]"},
                            {QStringLiteral("zelmora9.1.json"), bundle(entry("a", "x"))}};
    const auto bundles = bundlesFrom(files);
    QStringList errors;
    bundles->setErrorHandler([&errors](const QString &text) { errors.append(text); });
    QCOMPARE(bundles->getCurrentDefaults().size(), 1);
    bundles->getCurrentDefaults();
    QCOMPARE(errors,
             (QStringList{QStringLiteral("The resource directory for workspaces defaults contains "
                                         "a file that does not match the naming pattern: "
                                         "readme.txt Naming pattern: "
                                         "zelmora(\\d+)\\.(\\d+)\\.json"),
                          QStringLiteral("Failed to load file: zelmora11.0.json Error: File does "
                                         "not contain a json object at the root")}));
    messages().expect(QtWarningMsg, QStringLiteral("Failed to load file: zelmora11.0.json"));
    bundlesFrom({files[1]})->getCurrentDefaults();
}

void TestWorkspaceDefaults::isSilentWithoutResources()
{
    QVERIFY(WorkSpaceDefaults().getCurrentDefaults().isEmpty());
}

void TestWorkspaceDefaults::migratesUnchangedWorkSpaces()
{
    const QList<File> files{
        {QStringLiteral("zelmora9.1.json"),
         bundle(entry("same", "old") + ',' + entry("mine", "old") + ',' + entry("gone", "old"))},
        {QStringLiteral("zelmora10.0.json"),
         bundle(entry("same", "new") + ',' + entry("mine", "new"))}};
    ZelSettings stored(QStringLiteral("WorkSpaces"));
    const QStringList ids{QStringLiteral("same"), QStringLiteral("mine"), QStringLiteral("gone")};
    stored.setValue(QStringLiteral("ids"), ids);
    stored.setValue(ids[0], QByteArray("old"));
    stored.setValue(ids[1], QByteArray("olD"));
    stored.setValue(ids[2], QByteArray("old"));
    const auto blobs = [&] {
        QByteArrayList found;
        for (const QString &id : ids)
            found.append(stored.value(id).toByteArray());
        return found;
    };
    WorkSpaceDefaults defaults(bundlesFrom(files));
    ZelStoreSettingsIO settings;
    defaults.updateSettingsIfNotAlreadyDone(nullptr);
    defaults.updateSettingsIfNotAlreadyDone(&settings);
    QCOMPARE(blobs(), (QByteArrayList{"new", "olD", "old"}));
    QVERIFY(stored.value(QStringLiteral("hasUpdatedWorkspacesAfterZEL91")).toBool());
    stored.setValue(ids[0], QByteArray("old"));
    defaults.updateSettingsIfNotAlreadyDone(&settings);
    QCOMPARE(blobs()[0], QByteArray("old"));
}

ZEL_TEST_MAIN(TestWorkspaceDefaults)
#include "tst_workspace_defaults.moc"
