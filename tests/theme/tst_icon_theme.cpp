#include "TestCase.h"

#include "theme/IconColorThemeImpl.h"
#include "theme/ThemedSvg.h"

#include <ZelWidgets/IconColorTheme>

#include <QRandomGenerator>

namespace {

QString color(const IconColorThemeImpl &theme, const char *key, int mode, int state)
{
    return theme.colorFor(ColorKey(QString::fromLatin1(key)), mode, state);
}

IconColorThemeImpl themeOf(const QByteArray &json)
{
    IconColorThemeImpl theme;
    theme.parseAndBuildMap(QString::fromUtf8(json));
    return theme;
}

// Colours that tell their role, among them ones that must not be taken for other things.
IconColorThemeImpl plainTheme()
{
    return themeOf(R"([{"a": "#aa0000", "a_hover": "#aa0001", "b": "#bb0000", "b_disabled": "red",
                        "swap1": "#222222", "swap2": "#111111", "none": ""}])");
}

IconColorThemeImpl peculiarTheme()
{
    return themeOf(
        R"json([{"a": "#aa0000", "a_disabled": "red", "b": "#1", "b_hover": "rgba(1,2,3,0.25)",
             "long": "#0123456789abcdef", "none": "", "odd": "x-->y", "self": "#12",
             "tag": "!&replace_!0", "e_selected": "#1#1", "at": "@z", "huge": ")json" +
        QByteArray(600000, 'h') + R"("}])");
}

} // namespace

class IconThemeTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void suffixesTellModeAndState();
    void colorsFallBackInOrder();
    void keysWithSuffixHoldForAllModes();
    void emptyColorsAndUnknownKeysAreReported();
    void markersReplaceColors_data();
    void markersReplaceColors();
    void themeFilesReplaceTheTables();
    void badThemeFilesGiveNoColors();
    void preparedDocumentsEqualPlainOnes();
    void randomPreparedDocumentsEqualPlainOnes();

private:
    QStringList takeMessages();
    bool preparedEqualsPlain(const IconColorThemeImpl &theme, const QString &svg, int mode = 0,
                             int state = 1);
};

void IconThemeTest::suffixesTellModeAndState()
{
    struct Row
    {
        const char *key;
        const char *base;
        QIcon::Mode mode;
        QIcon::State state;
    };
    const Row rows[] = {
        {"icon", "icon", QIcon::Normal, QIcon::Off},
        {"Icon_Active", "icon", QIcon::Normal, QIcon::On},
        {"icon_inactive", "icon", QIcon::Normal, QIcon::Off},
        {"icon_active_hover", "icon", QIcon::Active, QIcon::On},
        {"icon_active_inactive", "icon", QIcon::Normal, QIcon::On},
        {"icon_hover_normal", "icon", QIcon::Normal, QIcon::Off},
        {"icon_selected_disabled", "icon", QIcon::Selected, QIcon::Off},
        {"a_disabled_b", "a_b", QIcon::Disabled, QIcon::Off},
        // What is left of a removal can make a suffix that is removed later, never an earlier one.
        {"a_in_hoveractive", "a_inactive", QIcon::Active, QIcon::Off},
        {"a_hov_activeer", "a", QIcon::Normal, QIcon::On}};
    for (const Row &row : rows) {
        const QString key = QString::fromLatin1(row.key);
        const ColorEntry entry = ColorEntry::fromKey(key, QStringLiteral("c"));
        QVERIFY2(ColorKey::baseName(key) == QLatin1String(row.base) && entry.mode == row.mode &&
                     entry.state == row.state,
                 row.key);
    }
}

void IconThemeTest::colorsFallBackInOrder()
{
    // n, a, d, s: normal, active, disabled, selected with the state off; capitals with it on.
    const QMap<QChar, QString> keys{{u'n', QStringLiteral("k")},
                                    {u'a', QStringLiteral("k_hover")},
                                    {u'd', QStringLiteral("k_disabled")},
                                    {u's', QStringLiteral("k_selected")},
                                    {u'N', QStringLiteral("k_active")},
                                    {u'A', QStringLiteral("k_active_hover")},
                                    {u'D', QStringLiteral("k_active_disabled")},
                                    {u'S', QStringLiteral("k_active_selected")}};
    const std::tuple<QIcon::Mode, QIcon::State, QString> rows[] = {
        {QIcon::Normal, QIcon::Off, QStringLiteral("naNAdsDS")},
        {QIcon::Active, QIcon::On, QStringLiteral("ANanDSds")},
        {QIcon::Disabled, QIcon::Off, QStringLiteral("dnaDNAsS")},
        {QIcon::Selected, QIcon::On, QStringLiteral("SNAsnaDd")}};
    for (const auto &[mode, state, order] : rows) {
        // Take the best match away, one after the other: the next in order must come up.
        for (qsizetype first = 0; first < order.size(); ++first) {
            QStringList members;
            for (const QChar letter : QStringView(order).mid(first))
                members.append(QStringLiteral("\"%1\":\"%2\"").arg(keys.value(letter), letter));
            const auto theme = themeOf(QStringLiteral("[{%1}]").arg(members.join(u',')).toUtf8());
            QCOMPARE(color(theme, "k", mode, state), QString(order.at(first)));
        }
    }
}

void IconThemeTest::keysWithSuffixHoldForAllModes()
{
    const auto theme = themeOf(R"([{"Key": "upper", "key_hover": "hover"}, {"key": "lower"}])");
    QCOMPARE(color(theme, "key_hover", QIcon::Disabled, QIcon::On), QStringLiteral("hover"));
    // No exact entry: the base's entries serve.
    QCOMPARE(color(theme, "key_selected", QIcon::Normal, QIcon::Off), QStringLiteral("upper"));
    // The exact table tells capitals apart, the bases don't: the first of a pair decides.
    QCOMPARE(color(theme, "KEY_HOVER", QIcon::Normal, QIcon::Off), QStringLiteral("upper"));
    QCOMPARE(color(theme, "key", QIcon::Disabled, QIcon::Off), QStringLiteral("upper"));
}

void IconThemeTest::emptyColorsAndUnknownKeysAreReported()
{
    const auto theme = themeOf(R"([{"e": "", "e_hover": "h", "gone": "", "gone_hover": ""}])");
    QCOMPARE(color(theme, "e", QIcon::Normal, QIcon::Off), QStringLiteral("h"));
    messages().expect(QtWarningMsg,
                      QStringLiteral("IconThemeColorMap - Used unexpected color fallback for  "
                                     "\"gone\" ( orgKey:  \"Gone_selected\" )"));
    QCOMPARE(color(theme, "Gone_selected", QIcon::Normal, QIcon::Off), QString());
    messages().expect(QtWarningMsg, QStringLiteral("IconThemeColorMap - No theme colors found for "
                                                   "mapkey  \"nil\" ( orgKey:  \"Nil\" )"));
    QCOMPARE(color(theme, "Nil", QIcon::Normal, QIcon::Off), QString());
}

void IconThemeTest::markersReplaceColors_data()
{
    QTest::addColumn<QString>("svg");
    QTest::addColumn<QString>("result");
    QTest::addColumn<QStringList>("complaints");
    const auto row = [](const char *name, const char *svg, const char *result,
                        const QStringList &complaints = {}) {
        QTest::newRow(name) << QString::fromUtf8(svg) << QString::fromUtf8(result) << complaints;
    };
    row("tool's comment only", "<a>\r\n#1\n<!-- Made by a tool -->\r</a>",
        "<a>#1<!-- Made by a tool -->\r</a>");
    row("global", "#1 #1<!-- @* #1 : a -->#1", "#aa0000 #aa0000<!-- @* #aa0000 : a -->#aa0000");
    row("global, two parts only differ in blanks", "x<!--@*\n x :\n b-->",
        "#bb0000<!--@* #bb0000 : b-->");
    row("swapped colours", "#111111 #222222<!--@*#111111:swap1--><!--@*#222222:swap2-->",
        "#222222 #111111<!--@*#222222:swap1--><!--@*#111111:swap2-->");
    row("local, the nearest in front", "#1 #1<!--@#1:a--> #1<!-- @ #1 : b -->",
        "#1 #aa0000<!--@#1:a--> #bb0000<!-- @ #1 : b -->");
    row("two locals behind one element", "f=#1 s=#2<!--@#1:a--><!--@#2:b-->",
        "f=#aa0000 s=#bb0000<!--@#1:a--><!--@#2:b-->");
    row("local without occurrence", "<!--@#1:a-->#1", "<!--@#1:a-->#1");
    row("local at the very front of a longer colour", "<!--@#123456789:a-->",
        "<!--@#123456789:a-->");
    row("local that a global renames", "#1 #aa0000<!--@*#1:a--><!--@#1:b-->",
        "#aa0000 #aa0000<!--@*#bb0000:a--><!--@#aa0000:b-->");
    row("empty colour text", "ab<!--@*:a--><!--@:b-->", "ab<!--@*:a--><!--@:b-->");
    row("the marks share dashes", "#1<!--><!--@*#1:a-->", "#aa0000<!--><!--@*#aa0000:a-->");
    row("unknown global", "#1<!--@*#1:q-->", "<!--@*:q-->",
        {QStringLiteral("IconThemeColorMap - No theme colors found for mapkey  \"q\""),
         QStringLiteral("Icon: \"N\"")});
    row("unknown local", "#1<!--@#1:q-->", "<!--@#1:q-->",
        {QStringLiteral("IconThemeColorMap - No theme colors found for mapkey  \"q\"")});
    row("not only ASCII", "\u00e4#1\u20ac<!--@*#1:a-->\u00e4",
        "\u00e4#aa0000\u20ac<!--@*#aa0000:a-->\u00e4");
    row("no comment", "<svg>\r\n#1\n</svg>", "<svg>\r\n#1\n</svg>",
        {QStringLiteral("Unexpected no colors to replace in svg  \"N\"")});
    row("tag in the text", "!&replace_!#1#2<!--@*#1:a--><!--@#2:b-->",
        "!&replace_!#1#bb0000<!--@*#1:a--><!--@#2:b-->",
        {QStringLiteral("IconThemeColorMap - Unexpected string for replace tag found in svg.")});
    const auto bad = [&](const char *name, const char *svg, const char *complaint) {
        row(name, svg, "", {QString::fromLatin1(complaint)});
    };
    bad("open comment", "#1<!--@*#1:a", "Comments in svg mismatch");
    bad("lonely end", "#1-->", "Comments in svg mismatch");
    bad("end before begin", "--> <!--", "Mismatch in svg comments. Svg: \"N\"");
    bad("global of one part", "a\n <!--@*#1-->", "Svg icon  \"N\" failed parse at 2");
    bad("global of three parts", "<!--@*#1:a:b-->", "Svg icon  \"N\" failed parse at 0");
    bad("local of one part", " <!--@-->", "Svg icon  \"N\" failed parse at 1");
    // "e" stands twice in each tag, so that each marker doubles the text.
    bad("growth", QByteArray("e<!--@*e:a-->").repeated(64), "grows without bound");
}

void IconThemeTest::markersReplaceColors()
{
    QFETCH(QString, svg);
    QFETCH(QStringList, complaints);
    QTEST(plainTheme().mapSvgToTheme(svg, QIcon::Normal, QIcon::Off, QStringLiteral("N")),
          "result");
    const QStringList all = takeMessages();
    QCOMPARE(all.size(), complaints.size());
    for (qsizetype i = 0; i < all.size(); ++i)
        QVERIFY2(all.at(i).contains(complaints.at(i)), qPrintable(all.at(i)));
}

void IconThemeTest::themeFilesReplaceTheTables()
{
    IconColorTheme *theme = IconColorTheme::instance();
    const auto colorOf = [&](const QString &key) {
        return theme->mapSvgToTheme(QStringLiteral("#1<!--@#1:%1-->").arg(key), QIcon::Active,
                                    QIcon::Off, QString());
    };
    theme->loadThemeFile(writeFile(QStringLiteral("t.json"), R"([{"k": "one"}, 7, {"l": 5}])"));
    QVERIFY(!theme->isNull());
    QCOMPARE(colorOf(QStringLiteral("k")), QStringLiteral("one<!--@#1:k-->"));
    theme->buildMap(QStringLiteral(R"([{"m": "two"}])"));
    QCOMPARE(colorOf(QStringLiteral("k_selected")), QStringLiteral("one<!--@#1:k_selected-->"));
    QCOMPARE(colorOf(QStringLiteral("m")), QStringLiteral("two<!--@#1:m-->"));
    theme->loadThemeFile(writeFile(QStringLiteral("u.json"), R"([{"k": "three"}])"));
    QCOMPARE(colorOf(QStringLiteral("k")), QStringLiteral("three<!--@#1:k-->"));
    messages().expect(QtWarningMsg, QStringLiteral("No theme colors found for mapkey  \"m\""));
    QCOMPARE(colorOf(QStringLiteral("m")), QStringLiteral("<!--@#1:m-->"));
}

void IconThemeTest::badThemeFilesGiveNoColors()
{
    const std::pair<QByteArray, bool> rows[] = {
        {QByteArray(), false},
        {"", false},
        {R"([{"k": "one", "l")", false},
        {"[{}] // dark", false},
        {QByteArray("\x89PNG\x00\xff\xfe\x80[{", 10), false},
        {QByteArray(10 * 1024 * 1024, '['), false},
        {R"({"k": "one"})", true},
        {"[]", true}};
    IconColorTheme *theme = IconColorTheme::instance();
    for (const auto &[content, isJson] : rows) {
        theme->buildMap(QStringLiteral(R"([{"k": "former"}])"));
        QVERIFY(!theme->isNull());
        if (!isJson) {
            messages().expect(QtCriticalMsg,
                              QStringLiteral("IconColorThemeImpl::parseAndBuildMap read empty "
                                             "document - Likely parse error."));
            messages().expect(QtCriticalMsg, QStringLiteral("Data: "));
        }
        theme->loadThemeFile(content.isNull() ? folder() + QStringLiteral("/missing.json")
                                              : writeFile(QStringLiteral("t.json"), content));
        QVERIFY2(theme->isNull(), content.left(20).constData());
    }
}

QStringList IconThemeTest::takeMessages()
{
    QStringList all = messages().messages(QtWarningMsg) + messages().messages(QtCriticalMsg);
    messages().clear();
    return all;
}

bool IconThemeTest::preparedEqualsPlain(const IconColorThemeImpl &theme, const QString &svg,
                                        int mode, int state)
{
    const QString plain = theme.mapSvgToTheme(svg, mode, state, QStringLiteral("N"));
    const QStringList plainMessages = takeMessages();
    const QString prepared = theme.mapSvgToTheme(ThemedSvg(svg), mode, state, QStringLiteral("N"));
    return prepared == plain && takeMessages() == plainMessages;
}

// Documents in which colours, once they are put in, make or break comments, markers and tags.
void IconThemeTest::preparedDocumentsEqualPlainOnes()
{
    const auto theme = peculiarTheme();
    for (const char *svg :
         {"<!-#1-x<!--@*#1:none-->", "!#1&replace_!#1#12<!--@*#1:none--><!--@*#12:a-->",
          "!&replace_!0 #1<!--@*#1:a-->", "#1x<!--@*#1:a--><!--@*0x:b-->",
          "#1<!--@*#1:a--><!--@*place:b-->", "#1<!--@*-:a--> - ", "#1<!--@*#1:a--><!--@** :b-->",
          "a #1<!--@*a:b--><!--@*#1:a--><!--@#1:a-->", "#1<!--#1:a--><!--@*#1:at-->",
          "#1<!--@*#1:odd-->", "#1 #12 #3<!--@*#1:long--><!--@#12:b--><!--@#3:none-->",
          "#1 #3 #3<!--@#3:self--><!--@#3:none--><!--@#3:a-->", "#1#1#1<!--@*#1:huge-->",
          "#1#2<!--@*#1:a--><!--@*#2:b--><!--@*:a--><!--@*:a--><!--@*:a--><!--@*:a-->"
          "<!--@*:a--><!--@*:a--><!--@*:a--><!--@*:a--><!--@*x:a-->x"})
        QVERIFY2(preparedEqualsPlain(theme, QString::fromLatin1(svg)), svg);
}

// Documents are strung together from parts that meet in every way: colours beside marks, colours
// that are parts of each other, of keys and of tags, markers of all kinds, broken ones.
void IconThemeTest::randomPreparedDocumentsEqualPlainOnes()
{
    const auto theme = peculiarTheme();
    // The first ten make documents that are mostly regular.
    const QStringList parts{QStringLiteral("#1"),         QStringLiteral("#12"),
                            QStringLiteral("#3"),         QStringLiteral("<g/>"),
                            QStringLiteral("\r\n"),       QStringLiteral("\u00e4\U0001f600"),
                            QStringLiteral("<!--@*#1:"),  QStringLiteral("<!--@#3:"),
                            QStringLiteral("<!--@*#12:"), QStringLiteral("<!--@* :"),
                            QStringLiteral("<!--@#1:"),   QStringLiteral("<!--@ #12:"),
                            QStringLiteral("<!--@*e:"),   QStringLiteral("<!--@*a :"),
                            QStringLiteral("<!--@*7:"),   QStringLiteral("<!--@e:"),
                            QStringLiteral("#111"),       QStringLiteral("e"),
                            QStringLiteral(" "),          QStringLiteral("a"),
                            QStringLiteral("-"),          QStringLiteral("!"),
                            QStringLiteral("<!-- #1 -->")};
    const QStringList keys{
        QStringLiteral("a"),    QStringLiteral("b"),    QStringLiteral("b_hover"),
        QStringLiteral("long"), QStringLiteral("none"), QStringLiteral("odd"),
        QStringLiteral("self"), QStringLiteral("tag"),  QStringLiteral("nil"),
        QStringLiteral("at"),   QStringLiteral("e"),    QStringLiteral("a:b")};
    QRandomGenerator random(20240607);
    int regular = 0;
    int irregular = 0;
    for (int round = 0; round < 20000; ++round) {
        QString svg;
        const int length = random.bounded(3, 30);
        const int variety = random.bounded(2) ? 10 : int(parts.size());
        for (int i = 0; i < length; ++i) {
            const QString &part = parts.at(random.bounded(variety));
            svg += part;
            if (part.startsWith(QLatin1String("<!--@"))) {
                // The odd keys are rarer, so that most documents stay whole.
                const int choice = random.bounded(4) ? random.bounded(4) : random.bounded(12);
                svg += keys.at(choice) + QLatin1String("-->");
            }
        }
        const int mode = random.bounded(4);
        const int state = random.bounded(2);
        ++(ThemedSvg(svg).isRegular() ? regular : irregular);
        QVERIFY2(preparedEqualsPlain(theme, svg, mode, state), qPrintable(svg));
    }
    QVERIFY2(regular > 2000 && irregular > 2000,
             qPrintable(QStringLiteral("%1 regular, %2 not").arg(regular).arg(irregular)));
}

ZEL_TEST_MAIN(IconThemeTest)
#include "tst_icon_theme.moc"
