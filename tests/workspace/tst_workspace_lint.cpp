#include "TestCase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace {

constexpr int timeoutMs = 60'000;

struct Result
{
    int exitCode = -1;
    QJsonArray reports;
};

Result lint(const QStringList &files)
{
    QProcess process;
    process.start(QStringLiteral(ZEL_WORKSPACE_LINT), files);
    if (!process.waitForFinished(timeoutMs))
        return {};
    return {process.exitCode(), QJsonDocument::fromJson(process.readAllStandardOutput()).array()};
}

QByteArray seed(const QString &path)
{
    QFile file(QStringLiteral(ZEL_SOURCE_DIR "/fuzz/") + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString problemOf(const QJsonValue &report)
{
    return report[QLatin1String("problems")][0].toString();
}

} // namespace

class TestWorkspaceLint : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatIsInside();
    void tellsProblems_data();
    void tellsProblems();
};

void TestWorkspaceLint::tellsWhatIsInside()
{
    const QByteArray blob = seed(QStringLiteral("workspaceblob/seeds/version4"));
    const QByteArray entry = R"({"defWorkSpace1": {"name": "One", "data": ")" + blob.toBase64();
    const Result result = lint({writeFile(QStringLiteral("stored.blob"), blob),
                                writeFile(QStringLiteral("zelmora9.1.json"), entry + "\"}}")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.reports.size(), 2);
    const QJsonValue stored = result.reports[0];
    QCOMPARE(stored[QLatin1String("kind")].toString(), QStringLiteral("workspace"));
    QCOMPARE(stored[QLatin1String("version")].toInt(), 4);
    QCOMPARE(stored[QLatin1String("dockNames")].toArray(),
             QJsonArray{QStringLiteral("ZelTimeline")});
    QCOMPARE(stored[QLatin1String("dockRects")][0].toArray(), (QJsonArray{5, 6, 200, 100}));
    const QJsonValue bundle = result.reports[1];
    QCOMPARE(bundle[QLatin1String("major")].toInt(), 9);
    const QJsonValue first = bundle[QLatin1String("workspaces")][0];
    QCOMPARE(first[QLatin1String("name")].toString(), QStringLiteral("One"));
    QCOMPARE(first[QLatin1String("toolBarMode")].toInt(), 2);
}

void TestWorkspaceLint::tellsProblems_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("contents");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const char *contents, const char *problem) {
        QTest::newRow(problem) << QString::fromLatin1(name) << seed(QString::fromLatin1(contents))
                               << QString::fromLatin1(problem);
    };
    row("a.blob", "workspaceblob/seeds/cut_early", "The data are cut off or damaged");
    row("b.blob", "workspaceblob/seeds/version5", "The version is not known");
    row("c.blob", "workspaceblob/seeds/unequal_lists",
        "The lists of torn-out tabs differ in length");
    row("d.zelsw", "workspaceexchange/seeds/cut",
        "The file is cut off, damaged or not of this kind");
    row("e.json", "workspacebundle/seeds/two", "The name is not that of a bundle");
    row("zelmora1.0.json", "workspacebundle/seeds/no_name", "Missing name");
}

void TestWorkspaceLint::tellsProblems()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, contents);
    const QString missing = folder() + QStringLiteral("/missing");
    const Result result = lint({writeFile(name, contents), missing});
    QCOMPARE(result.exitCode, 1);
    QTEST(problemOf(result.reports[0]), "problem");
    QCOMPARE(problemOf(result.reports[1]), QStringLiteral("The file can't be read"));
}

ZEL_TEST_MAIN(TestWorkspaceLint)
#include "tst_workspace_lint.moc"
