#include "TestCase.h"

#include "ZelSettingsFormat.h"

#include <ZelCore/ZelSettings>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(can't be read)");
}

QSettings::SettingsMap soundContentOf(const QString &path)
{
    QSettings::SettingsMap map;
    const QString problem = ZelSettingsFormat::parse(contentOf(path), map);
    if (!problem.isEmpty())
        map.insert(QStringLiteral("problem"), problem);
    return map;
}

/// Runs the helper that writes settings into one file.
class Writer
{
public:
    explicit Writer(const QString &file)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("ZEL_SETTINGS"), file);
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    }

    ~Writer()
    {
        process.kill();
        process.waitForFinished();
    }

    void start(const QStringList &arguments)
    {
        process.start(QCoreApplication::applicationDirPath() + QLatin1String("/settings_writer"),
                      arguments);
    }

    bool ends() { return process.waitForFinished(60000) && process.exitCode() == 0; }

    QProcess process;
};

} // namespace

/// The file behind the settings: when it is written, what damage does, how it is shared.
class TestSettingsFile : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valuesReachTheFileWhenControlReturnsToTheEventLoop();
    void anotherPathIsAnotherStore();
    void theDefaultPathComesFromTheEnvironment();
    void aBlankFileIsNoDamage();
    void aDamagedFileIsToldCopiedAndLeftBehind_data();
    void aDamagedFileIsToldCopiedAndLeftBehind();
    void copiesOfDamagedFilesAreNeverOverwritten();
    void aDamagedFileThatCannotBeCopiedStaysAsItIs();
    void largeFilesAreReadAndTooLargeOnesRefused();
    void withoutAPlaceToWriteTheValuesLiveOnInMemory_data();
    void withoutAPlaceToWriteTheValuesLiveOnInMemory();
    void aWriterThatIsKilledLeavesAWholeFile();
    void theEmptyLockOfAKilledWriterIsSetAside();
    void processesThatWriteAtOnceLeaveEachOthersKeys();
    void whatAnotherProcessWroteAtItsEndIsSeenAfterASave();
};

void TestSettingsFile::valuesReachTheFileWhenControlReturnsToTheEventLoop()
{
    ZelSettings().setValue(text("a"), 1);
    QVERIFY(!QFile::exists(settingsFile()));
    QTRY_VERIFY(QFile::exists(settingsFile()));
    QCOMPARE(soundContentOf(settingsFile()).value(text("a")), QVariant(1));
}

void TestSettingsFile::anotherPathIsAnotherStore()
{
    const QString other = folder() + QStringLiteral("/new/folder/other.json");
    ZelSettings settings(text("g"));
    settings.setValue(text("a"), 1);
    ZelSettings::setStorePath(other);
    QCOMPARE(ZelSettings::storePath(), other);
    QCOMPARE(soundContentOf(settingsFile()).value(text("g.a")), QVariant(1));
    QVERIFY(!settings.hasKey(text("a")));
    settings.setValue(text("a"), 2);
    ZelSettings::setStorePath(settingsFile());
    QCOMPARE(settings.value(text("a")), QVariant(1));
    QCOMPARE(soundContentOf(other).value(text("g.a")), QVariant(2));
}

void TestSettingsFile::theDefaultPathComesFromTheEnvironment()
{
    const QString wanted = folder() + QStringLiteral("/from-environment.json");
    qputenv("ZEL_SETTINGS", wanted.toUtf8());
    ZelSettings::setStorePath(QString());
    QCOMPARE(ZelSettings::storePath(), wanted);
    qunsetenv("ZEL_SETTINGS");
    ZelSettings::setStorePath(QString());
    const QString configuration =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    QVERIFY(ZelSettings::storePath().startsWith(configuration + QLatin1Char('/')));
    QVERIFY(ZelSettings::storePath().endsWith(text("zeltest/settings.json")));
}

void TestSettingsFile::aBlankFileIsNoDamage()
{
    for (const char *content : {"", " \n\t"}) {
        ZelSettings::setStorePath(
            writeFile(QStringLiteral("blank%1.json").arg(qstrlen(content)), content));
        QVERIFY(ZelSettings().keys().isEmpty());
        ZelSettings().setValue(text("a"), 1);
        QVERIFY(ZelSettings::save());
        QCOMPARE(soundContentOf(ZelSettings::storePath()).value(text("a")), QVariant(1));
    }
}

void TestSettingsFile::aDamagedFileIsToldCopiedAndLeftBehind_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("truncated") << QByteArray("{ \"a\": [1, 2");
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("array") << QByteArray("[{\"a\": 1}]");
    QTest::newRow("two objects") << QByteArray("{\"a\": 1} {\"b\": 2}");
    QTest::newRow("nested too deep for us")
        << QByteArray("{\"a\":") + QByteArray(500, '[') + QByteArray(500, ']') + '}';
    QTest::newRow("nested too deep for anyone")
        << QByteArray("{\"a\":") + QByteArray(1000000, '[') + QByteArray(1000000, ']') + '}';
    QTest::newRow("10 MB of noise") << QByteArray(10000000, 'x');
}

void TestSettingsFile::aDamagedFileIsToldCopiedAndLeftBehind()
{
    QFETCH(QByteArray, content);
    const QString path = writeFile(text("damaged.json"), content);
    const QString copy = path + QLatin1String(".damaged");
    messages().expect(QtWarningMsg,
                      QStringLiteral("The settings file \"%1\" is damaged").arg(path));
    ZelSettings::setStorePath(path);
    QVERIFY(ZelSettings().keys().isEmpty());
    QVERIFY(contentOf(path) == content);
    QVERIFY(contentOf(copy) == content);

    ZelSettings().setValue(text("a"), 1);
    QVERIFY(ZelSettings::save());
    QCOMPARE(soundContentOf(path), (QSettings::SettingsMap{{text("a"), 1}}));
    QVERIFY(contentOf(copy) == content);
}

void TestSettingsFile::copiesOfDamagedFilesAreNeverOverwritten()
{
    const QList<QByteArray> contents{"first", "second", "second", "the third"};
    for (const QByteArray &content : contents) {
        QFile file(writeFile(text("damage"), content));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QSettings::SettingsMap map;
        QVERIFY(!ZelSettingsFormat::read(file, map));
        QVERIFY(map.isEmpty());
        QCOMPARE(ZelSettingsFormat::takeProblems().size(), 1);
    }
    const QString copy = folder() + QLatin1String("/damage.damaged");
    QCOMPARE(contentOf(copy), QByteArray("first"));
    QCOMPARE(contentOf(copy + QLatin1String("-2")), QByteArray("second"));
    QCOMPARE(contentOf(copy + QLatin1String("-3")), QByteArray("the third"));
    QVERIFY(!QFile::exists(copy + QLatin1String("-4")));
}

void TestSettingsFile::aDamagedFileThatCannotBeCopiedStaysAsItIs()
{
    const QString path = writeFile(text("stuck.json"), "damage");
    QVERIFY(QDir().mkpath(path + QLatin1String(".damaged")));
    for (int i = 2; i <= 100; ++i)
        QVERIFY(QDir().mkpath(path + QStringLiteral(".damaged-%1").arg(i)));
    messages().expect(QtWarningMsg, text("could not be copied"));
    messages().expect(QtWarningMsg, text("can't be read or written"));
    ZelSettings::setStorePath(path);
    ZelSettings().setValue(text("a"), 1);
    QVERIFY(!ZelSettings::save());
    QCOMPARE(contentOf(path), QByteArray("damage"));
    QCOMPARE(ZelSettings().value(text("a")), QVariant(1));
    QVERIFY(QFile::remove(path));
    QVERIFY(ZelSettings::save());
}

void TestSettingsFile::largeFilesAreReadAndTooLargeOnesRefused()
{
    const QByteArray text10MB(10000000, 'x');
    ZelSettings::setStorePath(writeFile(text("large.json"), "{\"a\": \"" + text10MB + "\"}"));
    QCOMPARE(ZelSettings().value(text("a")).toString().size(), text10MB.size());

    const QString path = folder() + QStringLiteral("/sparse.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(ZelSettingsFormat::maximumFileSize + 1));
    file.close();
    messages().expect(QtWarningMsg, QRegularExpression(text("sparse.json\" is damaged.*larger")));
    ZelSettings::setStorePath(path);
    QVERIFY(ZelSettings().keys().isEmpty());
}

void TestSettingsFile::withoutAPlaceToWriteTheValuesLiveOnInMemory_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("the folder is a file") << text("file/settings.json");
    QTest::newRow("the file is a folder") << text("folder");
    QTest::newRow("the folder is read-only") << text("read-only/settings.json");
    QTest::newRow("the file can't be read") << text("unreadable.json");
}

void TestSettingsFile::withoutAPlaceToWriteTheValuesLiveOnInMemory()
{
    QFETCH(QString, name);
    const QString path = folder() + QLatin1Char('/') + name;
    writeFile(text("file"), "kept");
    QVERIFY(QDir(folder()).mkpath(text("folder")) && QDir(folder()).mkpath(text("read-only")));
    QFile::setPermissions(folder() + text("/read-only"), QFile::ReadOwner | QFile::ExeOwner);
    QFile::setPermissions(writeFile(text("unreadable.json"), "{}"), QFile::Permissions());
#ifdef Q_OS_UNIX
    if (geteuid() == 0 && (name.startsWith(text("read")) || name.startsWith(text("un"))))
        QSKIP("The superuser may write everywhere.");
#endif

    messages().expect(QtWarningMsg, QStringLiteral("\"%1\" can't be read or written").arg(path));
    ZelSettings::setStorePath(path);
    ZelSettings settings;
    QCOMPARE(settings.value(text("a"), 5), QVariant(5));
    settings.setValue(text("a"), 1);
    QVERIFY(!ZelSettings::save());
    settings.setValue(text("b"), 2);
    QVERIFY(!ZelSettings::save());
    QCoreApplication::processEvents();
    QCOMPARE(settings.keys(), (QStringList{text("a"), text("b")}));
    QCOMPARE(settings.value(text("a")), QVariant(1));
    QCOMPARE(contentOf(folder() + text("/file")), QByteArray("kept"));
    QFile::setPermissions(folder() + text("/read-only"),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void TestSettingsFile::aWriterThatIsKilledLeavesAWholeFile()
{
    ZelSettings().setValue(text("precious"), text("kept"));
    QVERIFY(ZelSettings::save());
    int lastSaved = 0;
    for (int round = 1; round <= 25; ++round) {
        Writer writer(settingsFile());
        writer.start({text("forever")});
        for (int lines = 0; lines < 2 + round % 4; ++lines) {
            QVERIFY(writer.process.canReadLine() || writer.process.waitForReadyRead());
            lastSaved = writer.process.readLine().toInt();
        }
        writer.process.kill();
        QVERIFY(writer.process.waitForFinished());

        const QSettings::SettingsMap content = soundContentOf(settingsFile());
        QCOMPARE(content.keys(), (QStringList{text("load.before"), text("load.payload"),
                                              text("load.zAfter"), text("precious")}));
        QVERIFY(content.value(text("load.before")).toInt() >= lastSaved);
        QCOMPARE(content.value(text("load.before")), content.value(text("load.zAfter")));
        QCOMPARE(content.value(text("load.payload")).toByteArray(),
                 QByteArray(200000, char(content.value(text("load.before")).toInt())));
    }
    const QStringList damaged = QDir(folder()).entryList({text("*.damaged*")});
    QVERIFY(damaged.isEmpty());
}

void TestSettingsFile::theEmptyLockOfAKilledWriterIsSetAside()
{
    const QString lock = writeFile(text("settings.json.lock"), {});
    ZelSettings().setValue(text("a"), 1);
    QElapsedTimer clock;
    clock.start();
    QVERIFY(ZelSettings::save());
    QVERIFY2(clock.elapsed() < 10000, "the lock would be good for half a minute");
    QCOMPARE(soundContentOf(settingsFile()).value(text("a")), QVariant(1));
    QVERIFY(!QFile::exists(lock));
}

void TestSettingsFile::processesThatWriteAtOnceLeaveEachOthersKeys()
{
    constexpr int processes = 4;
    constexpr int keys = 40;
    std::vector<std::unique_ptr<Writer>> writers;
    for (int i = 0; i < processes; ++i) {
        writers.push_back(std::make_unique<Writer>(settingsFile()));
        writers.back()->start({text("keys"), QStringLiteral("p%1").arg(i), QString::number(keys)});
    }
    for (const auto &writer : writers)
        QVERIFY(writer->ends());
    const QSettings::SettingsMap content = soundContentOf(settingsFile());
    QCOMPARE(content.size(), processes * keys);
    QCOMPARE(content.value(text("p3.key39")), QVariant(39));
}

void TestSettingsFile::whatAnotherProcessWroteAtItsEndIsSeenAfterASave()
{
    ZelSettings().setValue(text("own"), 1);
    QVERIFY(ZelSettings::save());
    Writer writer(settingsFile());
    writer.start({text("end")});
    QVERIFY(writer.ends());
    ZelSettings().setValue(text("own"), 2);
    QVERIFY(ZelSettings::save());
    QCOMPARE(ZelSettings(text("ended")).value(text("value")), QVariant(7));
    QCOMPARE(soundContentOf(settingsFile()).size(), 2);
}

ZEL_TEST_MAIN(TestSettingsFile)
#include "tst_settings_file.moc"
