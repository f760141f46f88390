#include "TestCase.h"

#include "ZelSettingsValue.h"

#include <ZelCore/ZelSettings>
#include <ZelCore/ZelStoreSettingsIO>

#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRect>
#include <QSize>
#include <QThread>

#include <cmath>
#include <limits>

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

QString typeName(const QVariant &value)
{
    return QString::fromLatin1(value.typeName());
}

} // namespace

/// What callers see of the settings: values, keys, groups, comments.
class TestSettings : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valuesComeBackAsWhatTheyWere_data();
    void valuesComeBackAsWhatTheyWere();
    void numbersThatJsonCannotWriteComeBack();
    void otherTypesAreStoredAsTheNearestKnownOne();
    void whatCannotBeStoredIsToldAndLeavesThePresentValue();
    void anyTextIsAKey();
    void groupAndDotAreOneScheme();
    void aRemovedKeyTakesAlongWhatContinuesItWithADot();
    void commentsAreKeptBesideTheirValues();
    void aReferenceReadsAndStores();
    void handWrittenFilesAreRead();
    void theFileIsReadableByHumans();
    void threadsShareTheStore();

private:
    void reopen();
    int copies_ = 0;
};

// Under another name, as Qt keeps in memory what it read under one.
void TestSettings::reopen()
{
    QVERIFY(ZelSettings::save());
    const QString copy = folder() + QStringLiteral("/reopened%1.json").arg(++copies_);
    QVERIFY(QFile::copy(ZelSettings::storePath(), copy));
    ZelSettings::setStorePath(copy);
}

void TestSettings::valuesComeBackAsWhatTheyWere_data()
{
    QTest::addColumn<QVariant>("value");
    const QVariantList list{true,
                            1,
                            1.0,
                            1u,
                            text("a"),
                            QByteArray("b"),
                            QSize(1, 2),
                            QStringList{text("x")},
                            QVariantList{text("x")},
                            QVariant()};

    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("int") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("uint") << QVariant(std::numeric_limits<uint>::max());
    QTest::newRow("int64") << QVariant(std::numeric_limits<qlonglong>::min());
    QTest::newRow("uint64") << QVariant(std::numeric_limits<qulonglong>::max());
    QTest::newRow("whole double") << QVariant(1.0);
    QTest::newRow("double") << QVariant(0.1);
    QTest::newRow("largest double") << QVariant(std::numeric_limits<double>::max());
    QTest::newRow("smallest double") << QVariant(std::numeric_limits<double>::denorm_min());
    QTest::newRow("infinity") << QVariant(-std::numeric_limits<double>::infinity());
    QTest::newRow("text") << QVariant(text("Größe\t\"1/2\"\n\x01 \xF0\x9F\x8E\xA8"));
    QTest::newRow("text like a mark") << QVariant(text("{\"type\":\"QSize\",\"value\":[1,2]}"));
    QTest::newRow("text like bytes") << QVariant(text("@ByteArray(a)"));
    QTest::newRow("texts") << QVariant(QStringList{text("a"), QString(), text("true")});
    QTest::newRow("no texts") << QVariant(QStringList());
    QTest::newRow("list") << QVariant(list);
    QTest::newRow("empty list") << QVariant(QVariantList());
    QTest::newRow("list of texts") << QVariant(QVariantList{text("a"), text("b")});
    QTest::newRow("nested lists") << QVariant(QVariantList{QVariant(list), QVariantList{list}});
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff\n", 3));
    QTest::newRow("no bytes") << QVariant(QByteArray(""));
    QTest::newRow("size") << QVariant(QSize(-1, 3000));
    QTest::newRow("size in doubles") << QVariant(QSizeF(1.0, 0.1));
    QTest::newRow("rectangle") << QVariant(QRect(-5, 7, 640, 480));
    QTest::newRow("null rectangle") << QVariant(QRect());
    QTest::newRow("widest rectangle") << QVariant(QRect(
        QPoint(std::numeric_limits<int>::min(), 0), QPoint(std::numeric_limits<int>::max(), 0)));
    QTest::newRow("map like a mark") << QVariant(
        QVariantMap{{text("type"), text("QSize")}, {text("value"), QVariantList{1, 2}}});
}

void TestSettings::valuesComeBackAsWhatTheyWere()
{
    QFETCH(QVariant, value);
    ZelSettings(text("g")).setValue(text("key"), value);
    QCOMPARE(ZelSettings(text("g")).value(text("key")), value);
    reopen();
    const QVariant read = ZelSettings(text("g")).value(text("key"));
    QCOMPARE(typeName(read), typeName(value));
    QCOMPARE(read, value);
    if (value.typeId() != QMetaType::QVariantList)
        return;
    const QVariantList elements = value.toList();
    for (int i = 0; i < elements.size(); ++i)
        QCOMPARE(typeName(read.toList().at(i)), typeName(elements.at(i)));
}

void TestSettings::numbersThatJsonCannotWriteComeBack()
{
    ZelSettings settings(text("g"));
    settings.setValue(text("nan"), std::nan(""));
    settings.setValue(text("minus zero"), -0.0);
    settings.setValue(text("size"), QSizeF(std::numeric_limits<double>::infinity(), -0.0));
    reopen();
    QVERIFY(std::isnan(settings.value(text("nan")).toDouble()));
    QVERIFY(std::signbit(settings.value(text("minus zero")).toDouble()));
    const QSizeF size = settings.value(text("size")).toSizeF();
    QVERIFY(std::isinf(size.width()) && std::signbit(size.height()));
}

void TestSettings::otherTypesAreStoredAsTheNearestKnownOne()
{
    ZelSettings settings;
    settings.setValue(text("float"), 0.5f);
    settings.setValue(text("short"), QVariant::fromValue(short(-3)));
    settings.setValue(text("enumeration"), QVariant::fromValue(Qt::Vertical));
    settings.setValue(text("colour"), QColor(1, 2, 3));
    settings.setValue(text("ints"), QVariant::fromValue(QList<int>{1, 2}));
    QCOMPARE(typeName(settings.value(text("float"))), text("double"));
    reopen();
    QCOMPARE(settings.value(text("float")), QVariant(0.5));
    QCOMPARE(settings.value(text("short")), QVariant(-3));
    QCOMPARE(settings.value(text("enumeration")), QVariant(int(Qt::Vertical)));
    QCOMPARE(settings.value(text("colour")).value<QColor>(), QColor(1, 2, 3));
    QCOMPARE(settings.value(text("ints")), QVariant(QVariantList{1, 2}));
}

void TestSettings::whatCannotBeStoredIsToldAndLeavesThePresentValue()
{
    ZelSettings settings(text("g"));
    settings.setValue(text("key"), 1);
    messages().expect(QtWarningMsg, QRegularExpression(text("QObject\\*.*\"g.key\"")));
    settings.setValue(text("key"), QVariant::fromValue<QObject *>(this));

    QVariant nested = 1;
    for (int i = 0; i < ZelSettingsValue::maximumDepth; ++i)
        nested = QVariantList{nested};
    settings.setValue(text("deepest"), nested);
    messages().expect(QtWarningMsg, text("\"g.key\""));
    settings.setValue(text("key"), QVariantList{nested});
    reopen();
    QCOMPARE(settings.value(text("key")), QVariant(1));
    QCOMPARE(settings.value(text("deepest")), nested);
}

void TestSettings::anyTextIsAKey()
{
    const QStringList keys{
        QString(),     text("/"),       text("//a//b/"), text("a/b"),     text("a\\b"),
        text("%2F"),   text("%252F"),   text("x%C"),     text("%E"),      text("General"),
        text("Ωμέγα"), text("a.b c\n"), text("type"),    text("comment"), text("\xF0\x9F\x8E\xA8"),
        text("key"),   text("KEY")};
    ZelSettings settings(text("g"));
    ZelSettings capital(text("G"));
    ZelSettings unnamed;
    for (int i = 0; i < keys.size(); ++i) {
        settings.setValue(keys.at(i), i, text("comment"));
        capital.setValue(keys.at(i), i + 100);
        unnamed.setValue(keys.at(i), -i);
    }
    reopen();
    QStringList sorted = keys;
    sorted.sort();
    QCOMPARE(settings.keys(), sorted);
    for (int i = 0; i < keys.size(); ++i) {
        QCOMPARE(settings.value(keys.at(i)), QVariant(i));
        QCOMPARE(capital.value(keys.at(i)), QVariant(i + 100));
        QCOMPARE(unnamed.value(keys.at(i)), QVariant(-i));
    }
}

void TestSettings::groupAndDotAreOneScheme()
{
    ZelSettings ui(text("ui"));
    ui.setValue(text("FontSize"), 11);
    ZelSettings().setValue(text("ui.colortheme"), text("Light"));
    ZelSettings(text("uix")).setValue(text("a"), 1);
    QCOMPARE(ui.group(), text("ui"));
    QCOMPARE(ZelSettings().value(text("ui.FontSize")), QVariant(11));
    QCOMPARE(ui.keys(), (QStringList{text("FontSize"), text("colortheme")}));
    QCOMPARE(ZelSettings().keys().size(), 3);
    QVERIFY(ui.hasKey(text("colortheme")) && !ui.hasKey(text("a")));
    QCOMPARE(ui.value(text("a"), 5), QVariant(5));

    ZelStoreSettingsIO store;
    ZelSettingsIO &io = store;
    QCOMPARE(io.value(text("ui.FontSize")), QVariant(11));
    io.setValue(text("ui.FontSize"), 12);
    QCOMPARE(ui.value(text("FontSize")), QVariant(12));
    QCOMPARE(io.value(text("ui.none"), 3), QVariant(3));
}

void TestSettings::aRemovedKeyTakesAlongWhatContinuesItWithADot()
{
    ZelSettings settings(text("g"));
    const QStringList keys{text("a"), text("a.b"), text("a.b.c"), text("a/b"), text("ab")};
    for (const QString &key : keys)
        settings.setValue(key, 1, text("comment"));
    settings.removeKey(text("a"));
    QCOMPARE(settings.keys(), (QStringList{text("a/b"), text("ab")}));
    settings.removeKey(text("a/b"));
    settings.removeKey(text("none such"));
    reopen();
    QCOMPARE(settings.keys(), QStringList{text("ab")});

    settings.setValue(text("a"), 2);
    reopen();
    QFile file(ZelSettings::storePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll().count("\"comment\":"), 1);
}

void TestSettings::commentsAreKeptBesideTheirValues()
{
    ZelSettings settings(text("g"));
    settings.setValue(text("plain"), 1, text("first"));
    settings.setValue(text("typed"), QSize(1, 2), text("in pixels"));
    settings.setValue(text("map"), QVariantMap{{text("comment"), text("mine")}}, text("outer"));
    settings.setValue(text("list"), QVariantList{1}, text("list"));
    settings.setValue(text("plain"), 2);
    settings.setValue(text("list"), QVariantList{2}, text("changed"));
    reopen();
    settings.setValue(text("other"), 3);
    reopen();
    QCOMPARE(settings.value(text("plain")), QVariant(2));
    QCOMPARE(settings.value(text("typed")), QVariant(QSize(1, 2)));
    QCOMPARE(settings.value(text("map")).toMap().value(text("comment")), QVariant(text("mine")));

    QFile file(ZelSettings::storePath());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const auto comment = [&object](const char *key) {
        return object.value(text(key)).toObject().value(text("comment")).toString();
    };
    QCOMPARE(comment("g.plain"), text("first"));
    QCOMPARE(comment("g.typed"), text("in pixels"));
    QCOMPARE(comment("g.map"), text("outer"));
    QCOMPARE(comment("g.list"), text("changed"));
    QCOMPARE(object.size(), 5);
}

void TestSettings::aReferenceReadsAndStores()
{
    ZelSettings settings(text("g"));
    settings[text("a")] = 4;
    QCOMPARE(QVariant(settings[text("a")]).toInt(), 4);
    settings[text("b")] = settings[text("a")];
    QCOMPARE(settings.value(text("b")), QVariant(4));
    QVERIFY(!QVariant(settings[text("c")]).isValid());
    QVERIFY(!settings.hasKey(text("c")));
}

void TestSettings::handWrittenFilesAreRead()
{
    ZelSettings::setStorePath(writeFile(text("hand.json"), R"({
        "i": 12, "d": 12.5, "big": 5000000000, "t": ["a"], "l": ["a", 1], "m": {"x": {"y": 1}},
        "n": null, "wrong": {"type": "QSize", "value": "wide"},
        "far": {"type": "QRect", "value": [2147483647, 0, 9223372036854775807, 1]},
        "half": {"comment": "c", "value": 3, "more": 4} })"));
    const ZelSettings settings;
    QCOMPARE(typeName(settings.value(text("i"))), text("int"));
    QCOMPARE(settings.value(text("d")), QVariant(12.5));
    QCOMPARE(settings.value(text("big")), QVariant(5000000000ll));
    QCOMPARE(typeName(settings.value(text("t"))), text("QStringList"));
    QCOMPARE(settings.value(text("l")), QVariant(QVariantList{text("a"), 1}));
    QCOMPARE(settings.value(text("m")).toMap().value(text("x")).toMap().value(text("y")),
             QVariant(1));
    QVERIFY(settings.hasKey(text("n")) && !settings.value(text("n"), 1).isValid());
    QVERIFY(!settings.value(text("wrong")).toSize().isValid());
    QVERIFY(settings.value(text("far")).toRect().isNull());
    QCOMPARE(settings.value(text("half")).toMap().size(), 3);
}

void TestSettings::theFileIsReadableByHumans()
{
    ZelSettings settings(text("ui"));
    settings.setValue(text("path/key"), QStringList{text("Größe")});
    settings.setValue(text("size"), QSize(3, 4), text("pixels"));
    QVERIFY(ZelSettings::save());
    QFile file(settingsFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.contains("\"ui.path/key\": ["));
    QVERIFY(content.contains("Größe"));
    QVERIFY(content.count('\n') > 8);
    const QJsonObject size = QJsonDocument::fromJson(content).object()[text("ui.size")].toObject();
    QCOMPARE(size, (QJsonObject{{text("comment"), text("pixels")},
                                {text("type"), text("QSize")},
                                {text("value"), QJsonArray{3, 4}}}));
}

void TestSettings::threadsShareTheStore()
{
    constexpr int count = 200;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back(QThread::create([t] {
            ZelSettings settings(QStringLiteral("thread%1").arg(t));
            for (int i = 0; i < count; ++i) {
                settings.setValue(QString::number(i), i);
                if (i % 50 == 0)
                    ZelSettings::save();
            }
        }));
        threads.back()->start();
    }
    for (const auto &thread : threads)
        QTRY_VERIFY(thread->isFinished());
    reopen();
    for (int t = 0; t < 4; ++t)
        QCOMPARE(ZelSettings(QStringLiteral("thread%1").arg(t)).keys().size(), count);
}

ZEL_TEST_MAIN(TestSettings)
#include "tst_settings.moc"
