#include <ZelCore/ZelColor>
#include <ZelSceneGraph/Color>

#include <QDataStream>
#include <QtTest>

#include <functional>
#include <limits>
#include <vector>

using zelsg::Color;
using zelsg::NameOp;
using Space = ZelColor::Space;

namespace {

ZelColor named(const char *name, float red)
{
    ZelColor color(Space::RGB, red, 0.5f, 0.5f);
    color.setName(name);
    return color;
}

/// Three sub-colours of several spaces and weights, the second active.
Color sampleList()
{
    Color color(named("first", 0.25f));
    color.setColorName("wall");
    color.setMultiColor(true);
    color.setName("first", 0);
    ZelColor cmyk(Space::CMYK, 0.1f, 0.2f, 0.3f, 0.4f);
    cmyk.setName("zweite Ä");
    color.appendColor(cmyk, 2.5f);
    color.appendColor(ZelColor(Space::Lab, 50.0f, -20.0f, 30.0f), 0.0f);
    color.setActiveIndex(1);
    return color;
}

QByteArray written(const Color &color, const std::function<void(QDataStream &)> &setUp = {})
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    if (setUp)
        setUp(stream);
    stream << color;
    return bytes;
}

QStringList names(const Color &color)
{
    QStringList list;
    for (int i = 0; i < color.nColors(); ++i)
        list.append(QString::fromStdString(color.getName(i)));
    return list;
}

} // namespace

class SceneColorTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copiesAreTheSameColorUntilTheyDetach();
    void aMovedColorIsStillAColor();
    void oneColorHasOneName();
    void aListAndBackKeepsNameAndColor();
    void nameOpsDecideOnTheName();
    void listsAreEdited();
    void deletingKeepsTheActiveColor_data();
    void deletingKeepsTheActiveColor();
    void outOfRangeIsWhiteAndWritesNothing();
    void equalityIsThatOfContent();
    void streamsComeBackWhole();
    void theStreamsSettingsDoNotMatter();
    void everyCutIsAnError();
    void everyBentByteIsSurvived();
    void nonsenseIsRefused_data();
    void nonsenseIsRefused();
    void variantsHoldAndStreamColors();
};

void SceneColorTest::copiesAreTheSameColorUntilTheyDetach()
{
    Color color(1.0f, 0.0f, 0.0f);
    const Color copy = color;
    Color own = color.detachedClone();
    color.setColor(named("b", 0.0f), NameOp::Take);
    QCOMPARE(copy.getColorName(), "b");
    QVERIFY(copy == color && copy.isSharedWith(color));
    QVERIFY(own == Color(1.0f, 0.0f, 0.0f));
    color.detach();
    QVERIFY(color == copy);
    color.appendColor(ZelColor());
    QCOMPARE(copy.nColors(), 1);
}

void SceneColorTest::aMovedColorIsStillAColor()
{
    Color color(1.0f, 0.0f, 0.0f);
    const Color target = std::move(color);
    QVERIFY(target == Color(1.0f, 0.0f, 0.0f));
    QVERIFY(color == Color());
    QCOMPARE(color.detachedClone().nColors(), 1);
    color.setColor(named("again", 0.0f), NameOp::Take);
    QCOMPARE(color.getName(0), "again");
    QCOMPARE(target.getName(0), "");
}

void SceneColorTest::oneColorHasOneName()
{
    Color color(named("given", 0.5f));
    QVERIFY(!color.isMultiColor());
    QCOMPARE(color.getColorName(), "given");
    color.setColorName("whole");
    QCOMPARE(color.getName(0), "whole");
    QCOMPARE(color.getActive().name(), "whole");
    color.setName("part", 0);
    QCOMPARE(color.getColorName(), "part");
}

void SceneColorTest::aListAndBackKeepsNameAndColor()
{
    Color color(named("wall", 0.25f));
    const Color before = color.detachedClone();
    color.setMultiColor(true);
    QVERIFY(color.isMultiColor() && color != before);
    QCOMPARE(color.nColors(), 1);
    color.setName("plaster", 0);
    QCOMPARE(color.getColorName(), "wall");
    color.setMultiColor(true);
    QCOMPARE(color.getColorName(), "wall");
    color.setMultiColor(false);
    QVERIFY(color == before);
    QCOMPARE(color.getColorName(), "wall");

    Color list = sampleList();
    const ZelColor active = list.getActive();
    list.setColorName("");
    list.clearMultiColors();
    QVERIFY(!list.isMultiColor() && list.getActive() == active);
    QCOMPARE(list.nColors(), 1);
    QCOMPARE(list.activeIndex(), 0);
    QCOMPARE(list.getColorName(), active.name());
}

void SceneColorTest::nameOpsDecideOnTheName()
{
    Color color(named("old", 0.0f));
    color.setColor(named("new", 0.1f), NameOp(0));
    QCOMPARE(color.getColorName(), "old");
    QVERIFY(color.getActive() == named("", 0.1f));
    color.setColor(named("new", 0.2f), NameOp(1));
    QCOMPARE(color.getColorName(), "new");
    color.setColor(named("", 0.3f), NameOp(1));
    QCOMPARE(color.getColorName(), "new");

    Color list = sampleList();
    list.setColor(named("taken", 0.0f), NameOp::Take);
    QCOMPARE(names(list), QStringList({QStringLiteral("first"), QStringLiteral("taken"), {}}));
    list.setColor(named("third", 0.0f), 2, NameOp::Take);
    QCOMPARE(list.getName(2), "third");
    QCOMPARE(list.getColorName(), "wall");
    QCOMPARE(list.getWeight(1), 2.5f);
}

void SceneColorTest::listsAreEdited()
{
    Color color = sampleList();
    QCOMPARE(color.nColors(), 3);
    QCOMPARE(color.getActive().space(), Space::CMYK);
    color.appendColor(color);
    QCOMPARE(color.nColors(), 6);
    QCOMPARE(color.getWeight(4), 2.5f);
    QCOMPARE(color.getName(4), color.getName(1));
    QCOMPARE(color.activeIndex(), 1);
    for (const float weight :
         {-1.0f, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()}) {
        color.setWeight(weight, 0);
        QCOMPARE(color.getWeight(0), 0.0f);
    }

    color.setActiveIndex(5);
    std::vector<ZelColor> colors = {named("a", 0.1f), named("b", 0.2f)};
    color.setColors(orv::Span<ZelColor>(colors));
    QCOMPARE(names(color), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(color.activeIndex(), 1);
    QCOMPARE(color.getWeight(0), 1.0f);
    color.setColors({});
    QCOMPARE(color.nColors(), 2);

    Color one(named("one", 0.0f));
    one.appendColor(named("two", 0.0f));
    QVERIFY(one.isMultiColor());
    QCOMPARE(one.getColorName(), "one");
    QCOMPARE(one.nColors(), 2);
}

void SceneColorTest::deletingKeepsTheActiveColor_data()
{
    QTest::addColumn<int>("active");
    QTest::addColumn<int>("deleted");
    QTest::addColumn<QString>("name");
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString c = QStringLiteral("c");
    QTest::newRow("in front") << 1 << 0 << b;
    QTest::newRow("behind") << 1 << 2 << b;
    QTest::newRow("itself") << 1 << 1 << c;
    QTest::newRow("itself, at the end") << 2 << 2 << b;
    QTest::newRow("itself, at the start") << 0 << 0 << b;
    QTest::newRow("none") << 0 << 3 << a;
    QTest::newRow("below none") << 0 << -1 << a;
}

void SceneColorTest::deletingKeepsTheActiveColor()
{
    QFETCH(int, active);
    QFETCH(int, deleted);
    QFETCH(QString, name);
    const std::vector<ZelColor> colors = {named("a", 0), named("b", 0), named("c", 0)};
    Color color;
    color.setColors(colors);
    color.setActiveIndex(active);
    color.deleteColor(deleted);
    QCOMPARE(QString::fromStdString(color.getActive().name()), name);
    for (int i = 0; i < 5; ++i)
        color.deleteColor(0);
    QCOMPARE(color.nColors(), 1);
    QCOMPARE(color.activeIndex(), 0);
    QVERIFY(color.isMultiColor());
}

void SceneColorTest::outOfRangeIsWhiteAndWritesNothing()
{
    Color color = sampleList();
    const QByteArray before = written(color);
    for (const int index : {-1, 3, std::numeric_limits<int>::max()}) {
        QVERIFY(color.getColor(index) == ZelColor());
        QCOMPARE(color.getName(index), "");
        QCOMPARE(color.getWeight(index), 0.0f);
        color.setColor(named("x", 0.0f), index, NameOp::Take);
        color.setName("x", index);
        color.setWeight(3.0f, index);
        color.setActiveIndex(index);
    }
    QCOMPARE(written(color), before);
}

void SceneColorTest::equalityIsThatOfContent()
{
    const Color color = sampleList();
    const auto changed = [&color](const std::function<void(Color &)> &change) {
        Color other = color.detachedClone();
        change(other);
        return other;
    };
    QVERIFY(color == sampleList());
    QVERIFY(color == changed([](Color &c) { c.setColorName("other"); }));
    QVERIFY(color != changed([](Color &c) { c.setName("other", 2); }));
    QVERIFY(color != changed([](Color &c) { c.setActiveIndex(0); }));
    QVERIFY(color != changed([](Color &c) { c.setWeight(1.0f, 2); }));
    QVERIFY(color != changed([](Color &c) { c.deleteColor(2); }));
    QVERIFY(color != changed([](Color &c) { c.setColor(ZelColor(), NameOp::Keep); }));
    QVERIFY(Color(named("a", 0.0f)) == Color(named("b", 0.0f)));
}

void SceneColorTest::streamsComeBackWhole()
{
    for (const Color &color : {sampleList(), Color(named("one", 0.3f)), Color()}) {
        const QByteArray bytes = written(color);
        Color read(0.0f, 0.0f, 0.0f);
        const Color shared = read;
        QDataStream stream(bytes);
        stream >> read;
        QCOMPARE(stream.status(), QDataStream::Ok);
        QVERIFY(stream.atEnd());
        QVERIFY(read == color);
        QCOMPARE(read.getColorName(), color.getColorName());
        QCOMPARE(read.getActive().components(), color.getActive().components());
        QCOMPARE(written(read), bytes);
        QVERIFY(shared == Color(0.0f, 0.0f, 0.0f));
    }
}

void SceneColorTest::theStreamsSettingsDoNotMatter()
{
    const Color color = sampleList();
    const QByteArray bytes = written(color, [](QDataStream &stream) {
        stream.setVersion(QDataStream::Qt_4_0);
        stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    });
    QCOMPARE(bytes, written(color));
}

void SceneColorTest::everyCutIsAnError()
{
    const QByteArray bytes = written(sampleList());
    for (int length = 0; length < bytes.size(); ++length) {
        const QByteArray cut = bytes.left(length);
        QDataStream stream(cut);
        Color color(0.0f, 0.0f, 1.0f);
        stream >> color;
        QVERIFY2(stream.status() != QDataStream::Ok, qPrintable(QString::number(length)));
        QVERIFY(color == Color(0.0f, 0.0f, 1.0f));
    }
}

void SceneColorTest::everyBentByteIsSurvived()
{
    const QByteArray bytes = written(sampleList());
    int refused = 0;
    for (int at = 0; at < bytes.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray bent = bytes;
            bent[at] = char(bent[at] ^ (1 << bit));
            QDataStream stream(bent);
            Color color(0.0f, 0.0f, 1.0f);
            stream >> color;
            if (stream.status() != QDataStream::Ok) {
                ++refused;
                QVERIFY(color == Color(0.0f, 0.0f, 1.0f));
                continue;
            }
            // Something was read; it is sound, and it comes back.
            QVERIFY(color.activeIndex() >= 0 && color.activeIndex() < color.nColors());
            const QByteArray again = written(color);
            QDataStream second(again);
            second >> color;
            QCOMPARE(second.status(), QDataStream::Ok);
            QCOMPARE(written(color), again);
        }
    }
    // Mark and version at the least.
    QVERIFY(refused >= 6 * 8);
}

void SceneColorTest::nonsenseIsRefused_data()
{
    QTest::addColumn<QByteArray>("header");
    const auto add = [](const char *name, quint8 multi, qint32 active, quint32 count) {
        QByteArray header;
        QDataStream stream(&header, QIODevice::WriteOnly);
        stream << quint32(0x5A734763) << quint16(1) << multi << active << count;
        QTest::newRow(name) << header;
    };
    add("no colour", 1, 0, 0);
    add("active below", 1, -1, 2);
    add("active above", 1, 2, 2);
    add("two of one", 0, 0, 2);
    add("neither one nor list", 2, 0, 2);
    add("four thousand million", 1, 0, 0xffffffff);
    add("two thousand million", 1, 0, 0x7fffffff);
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("#ff0000 is what another program means by red");
}

void SceneColorTest::nonsenseIsRefused()
{
    QFETCH(QByteArray, header);
    // Behind the header stand a name and two good colours.
    const QByteArray list = written(sampleList());
    const QByteArray bytes = header + list.mid(4 + 2 + 1 + 4 + 4);
    QDataStream stream(bytes);
    Color color(0.0f, 0.0f, 1.0f);
    stream >> color;
    QVERIFY(stream.status() != QDataStream::Ok);
    QVERIFY(color == Color(0.0f, 0.0f, 1.0f));

    ZelColor infinite(Space::XYZ, 1.0f, std::numeric_limits<float>::infinity(), 1.0f);
    const QByteArray unreadable = written(Color(infinite));
    QDataStream second(unreadable);
    second >> color;
    QCOMPARE(second.status(), QDataStream::ReadCorruptData);
}

void SceneColorTest::variantsHoldAndStreamColors()
{
    const QVariant variant = QVariant::fromValue(sampleList());
    QByteArray bytes;
    QDataStream output(&bytes, QIODevice::WriteOnly);
    output << variant;
    QVariant read;
    QDataStream input(bytes);
    input >> read;
    QVERIFY(read.value<Color>() == sampleList());
    QCOMPARE(read, variant);
}

QTEST_GUILESS_MAIN(SceneColorTest)
#include "tst_scene_color.moc"
