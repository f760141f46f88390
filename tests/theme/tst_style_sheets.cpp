#include "TestCase.h"
#include "UserInput.h"

#include "theme/StyleSheetErrorLocator.h"
#include "theme/ZelFontMetrics.h"
#include "theme/ZelLinkColors.h"
#include "theme/ZelMarkedKeys.h"
#include "theme/ZelPaletteSubstitution.h"
#include "theme/ZelStylePalette.h"
#include "theme/ZelStyleSheets.h"
#include "theme/ZelStyleSwitch.h"
#include "theme/ZelVerifyStyleSheetWidget.h"

#include <ZelCore/ZelGlobalIconCache>
#include <ZelCore/ZelSettings>

#include <QtWidgets>
#include <nlohmann/json.hpp>

namespace {

const QString dark = QStringLiteral("Dark");
const QString fontRule = QStringLiteral("QWidget{font-size    : 11pt; } \n");
const QString marker = QStringLiteral("// BEGIN STYLESHEET SECTION");

// The rule of substitution, word by word.
QString substitutedInPlace(QString text, const QString &key, const QString &value)
{
    const auto isPartOfName = [](QChar character) {
        return character.isLetterOrNumber() || QStringLiteral("-_").contains(character);
    };
    for (qsizetype from = 0; from < text.size();) {
        const qsizetype position = text.indexOf(key, from);
        if (position < 0)
            break;
        from = position + key.size();
        if (from + 1 >= text.size() || !isPartOfName(text.at(from + 1)))
            text.replace(position, key.size(), value);
    }
    return text;
}

QString withPalette(const QString &palette, const QString &sheet)
{
    return palette + marker + QLatin1Char('\n') + sheet;
}

} // namespace

// Outside of any namespace, as the macros for resources demand.
// A resource file in place of the application's, until the end of the block.
class FaultyStyleFile
{
public:
    FaultyStyleFile()
    {
        Q_CLEANUP_RESOURCE(test_style);
        Q_INIT_RESOURCE(faulty_style);
    }
    ~FaultyStyleFile()
    {
        Q_CLEANUP_RESOURCE(faulty_style);
        Q_INIT_RESOURCE(test_style);
    }
};

class NoStyleFile
{
public:
    NoStyleFile() { Q_CLEANUP_RESOURCE(test_style); }
    ~NoStyleFile() { Q_INIT_RESOURCE(test_style); }
};

class StyleSheetsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void substitutes();
    void substitutesAsIfInPlace();
    void substitutesMarkedKeysAsOneAfterTheOther();
    void substitutionEnds();
    void removesComments();
    void exchangesTheFontRule();

    void makesTheSheetOfATheme();
    void keepsThemesBeforeAFault();
    void badFiles_data();
    void badFiles();
    void reportsPlainSvg();
    void missingFile();
    void checksAllThemes();
    void remembersTheChoice();
    void themeNameDecidesAboutIcons();

    void locatesErrors();
    void acceptsAWholeSheet();
    void showsTheErroneousLines_data();
    void showsTheErroneousLines();
    void recolorsLinks();
};

void StyleSheetsTest::initTestCase()
{
    Q_CLEANUP_RESOURCE(faulty_style);
}

void StyleSheetsTest::init()
{
    TestCase::init();
    ZelFontMetrics::setZelmoraFontSizeSetting(11);
}

void StyleSheetsTest::cleanup()
{
    qApp->setStyleSheet(QString());
    TestCase::cleanup();
}

void StyleSheetsTest::substitutes()
{
    const std::pair<const char *, const char *> rows[] = {{"color: key;\n", "color: VALUES;\n"},
                                                          {"key-x;", "key-x;"},
                                                          {"key- ;", "VALUES- ;"},
                                                          {"keyed;", "keyed;"},
                                                          {"keys;", "VALUESs;"},
                                                          {"key;1 key;_", "key;1 key;_"},
                                                          {"a key", "a VALUES"},
                                                          {"a key;", "a VALUES;"},
                                                          {"key, key; ", "VALUES, VALUES; "},
                                                          {"color: red;", "color: red;"},
                                                          {"", ""},
                                                          {"key;\xe4", "key;\xe4"}};
    for (const auto &[text, expected] : rows) {
        QCOMPARE(ZelStylePalette::substitute(QString::fromLatin1(text),
                                             {{"", "nothing"}, {"key", "VALUES"}}),
                 QString::fromLatin1(expected));
    }
}

void StyleSheetsTest::substitutesAsIfInPlace()
{
    QRandomGenerator random(7);
    const auto words = [&random](int length) {
        QString text;
        for (int i = 0; i < length; ++i)
            text += QStringLiteral("ab;").at(random.bounded(3));
        return text;
    };
    for (int round = 0; round < 3000; ++round) {
        const QString text = words(30);
        const QString key = words(1 + random.bounded(4));
        const QString value = words(random.bounded(5)).left(key.size());
        QCOMPARE(ZelStylePalette::substituteKey(text, key, value),
                 substitutedInPlace(text, key, value));
    }
}

void StyleSheetsTest::substitutesMarkedKeysAsOneAfterTheOther()
{
    QRandomGenerator random(11);
    const auto pick = [&random](std::initializer_list<const char *> texts) {
        return std::string(*(texts.begin() + random.bounded(int(texts.size()))));
    };
    int shortWays = 0;
    for (int round = 0; round < 4000; ++round) {
        ZelStylePalette::Colors colors;
        for (const char *key : {"@a@", "@b@", "@abc@", "@;@"}) {
            if (random.bounded(4) > 0 || key[1] == 'a')
                colors[key] = pick({"", "#", "#12", "red", "#2d2d2d", "rgba(1, 2, 3)"});
        }
        std::string text;
        for (int part = 0; part < 6; ++part) {
            text += pick({"", ";", ";\n", "; x: ", "-x ", "xy ", "a"});
            text += pick({"@a@", "@b@", "@abc@", "@abc@", "", round % 8 == 0 ? "@" : "@a@"});
        }
        QString expected = QString::fromStdString(text);
        for (const auto &[key, value] : colors) {
            expected = ZelStylePalette::substituteKey(expected, QString::fromStdString(key),
                                                      QString::fromStdString(value));
        }
        const QString source = QString::fromStdString(text);
        QCOMPARE(ZelStylePalette::substitute(source, colors), expected);
        shortWays += ZelStylePalette::substituteMarkedKeys(source, colors).has_value();
    }
    // Both ways were tried.
    QVERIFY(shortWays > 200 && shortWays < 3800);
}

void StyleSheetsTest::substitutionEnds()
{
    using ZelStylePalette::substituteKey;
    const auto text = [](const char *latin) {
        return QString::fromLatin1(latin);
    };
    QCOMPARE(substituteKey(text("ab. ab."), text("ab"), text("xab")), text("xab. xab."));
    messages().expect(QtWarningMsg,
                      text("Palette value would be replaced without end, key \"ab\""));
    QCOMPARE(substituteKey(text("ab. ab."), text("ab"), text("xxab")), text("xxab. xxab."));
    QCOMPARE(substituteKey(text("ab. ab."), text("ab"), text("xxabcd")), text("xxabcd. xxabcd."));

    messages().expect(QtWarningMsg,
                      text("Palette value makes the stylesheet too large, key \"k\""));
    const QString many = text("k, ").repeated(10000);
    QCOMPARE(substituteKey(many, text("k"), QString(10000, QLatin1Char('v'))), many);
}

void StyleSheetsTest::removesComments()
{
    const QString large = QStringLiteral("line of a comment\r\n").repeated(6000);
    const std::pair<QString, QString> rows[] = {
        {QStringLiteral("a/* b\n\r\n c */d"), QStringLiteral("ad")},
        {QStringLiteral("/**/a/***/b/* /* */c*/"), QStringLiteral("abc*/")},
        {QStringLiteral("a/*/b*/c"), QStringLiteral("ac")},
        {QStringLiteral("a/*b*/c/*d"), QStringLiteral("ac/*d")},
        {QStringLiteral("a/*") + large + QStringLiteral("*/b"), QStringLiteral("ab")}};
    for (const auto &[text, expected] : rows)
        QCOMPARE(ZelStylePalette::withoutComments(text), expected);
}

void StyleSheetsTest::exchangesTheFontRule()
{
    const QString sheet = ZelStyleSheets::parseFullStyleSheet(dark, QStringLiteral("A{}\nB{}"));
    QCOMPARE(sheet, fontRule + QStringLiteral("A{}\nB{}"));
    ZelFontMetrics::setZelmoraFontSizeSetting(14);
    QCOMPARE(ZelStyleSheets::parseFullStyleSheet(dark, sheet),
             QStringLiteral("QWidget{font-size    : 14pt; } \nA{}\nB{}"));
    QCOMPARE(ZelStyleSheets::parseFullStyleSheet(
                 dark, QStringLiteral("QWidget{font-size    :by hand; more}\n\nA{}")),
             QStringLiteral("QWidget{font-size    : 14pt; } \n\nA{}"));
    for (const int size : {-1, 0}) {
        ZelFontMetrics::setZelmoraFontSizeSetting(size);
        QCOMPARE(
            ZelStyleSheets::parseFullStyleSheet(dark, QStringLiteral("QWidget{font-size    :")),
            QStringLiteral("QWidget{font-size    : %1pt; } \n")
                .arg(ZelFontMetrics::getApplicationFontSize()));
    }
}

void StyleSheetsTest::makesTheSheetOfATheme()
{
    const QString sheet = ZelStyleSheets::parseFullStyleSheet(dark, QString());
    QVERIFY(sheet.startsWith(fontRule + QLatin1Char('\n')));
    QVERIFY(sheet.contains(QStringLiteral("color: #d0d011 ; background-color: #303010 ;")));
    QVERIFY(!sheet.contains(QLatin1Char('@')));
    QVERIFY(ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(dark, QString(), false));
    QCOMPARE(qApp->styleSheet(), sheet);

    const QString unknown = ZelStyleSheets::parseFullStyleSheet(QStringLiteral("dark"), QString());
    QVERIFY(unknown.contains(QStringLiteral("color: @text@ ;")));
}

void StyleSheetsTest::keepsThemesBeforeAFault()
{
    const std::pair<const char *, const char *> rows[] = {
        {R"({"Dark": {"@c@": "red"}, "Light": {"@c@": 1}})", "red"},
        {R"({"Apple": {"@c@": 1}, "Dark": {"@c@": "red"}})", "@c@"},
        {R"({"Dark": ["@c@", "red"]})", "@c@"},
        {R"([{"@c@": "red"}])", "@c@"},
        {R"({"Dark": {"@c@": "red"}, "Li)", "@c@"},
        {R"({"Dark": {"@c@": "red"}} {})", "@c@"},
        {"", "@c@"}};
    for (const auto &[palette, color] : rows) {
        messages().expect(QtCriticalMsg,
                          QRegularExpression(QStringLiteral(
                              "^Error in JSON Color Palette in stylesheet:  \\[json\\.exception")));
        const QString sheet = ZelStyleSheets::parseFullStyleSheet(
            dark, withPalette(QString::fromLatin1(palette), QStringLiteral("A { color: @c@ ; }")));
        QVERIFY2(sheet ==
                     fontRule + QStringLiteral("\nA { color: %1 ; }").arg(QLatin1String(color)),
                 palette);
    }
}

void StyleSheetsTest::badFiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasFault");
    const QString good = QStringLiteral("{\"Dark\": {\"@c@\": \"red\"}}");
    QByteArray binary(5000, '\0');
    for (int i = 0; i < binary.size(); ++i)
        binary[i] = char(i * 37);
    QTest::newRow("binary") << QString::fromUtf8(binary) << false;
    QTest::newRow("binary palette") << withPalette(QString::fromLatin1(binary), QString()) << true;
    QTest::newRow("10 MB of sheet")
        << withPalette(good, QStringLiteral("A { color: @c@ ; }\n\n").repeated(500000)) << false;
    QTest::newRow("a million levels")
        << withPalette(QString(1'000'000, QLatin1Char('[')), QString()) << true;
    QTest::newRow("cut in the marker") << good + marker.left(20) << false;
}

void StyleSheetsTest::badFiles()
{
    QFETCH(QString, text);
    QFETCH(bool, hasFault);
    if (hasFault)
        messages().expect(QtCriticalMsg, QStringLiteral("Error in JSON Color Palette"));
    const QString sheet = ZelStyleSheets::parseFullStyleSheet(dark, text);
    QVERIFY(sheet.startsWith(fontRule));
    QCOMPARE(sheet.contains(QLatin1String("color: red ;")), text.contains(QLatin1String("A { ")));
}

void StyleSheetsTest::reportsPlainSvg()
{
    const FaultyStyleFile file;
    messages().expect(QtCriticalMsg, QStringLiteral("Error in JSON Color Palette"));
    messages().expect(
        QtCriticalMsg,
        QRegularExpression(QStringLiteral(
            "StyleSheet has plain \\.svg file rather than \\.zelsvg here  .*add\\.svg")));
    QVERIFY(
        ZelStyleSheets::parseFullStyleSheet(dark, QString()).contains(QLatin1String("#d0d011")));
    ZelStyleSheets::parseFullStyleSheet(dark, QStringLiteral("A { image: url(a.svg); }"));
}

void StyleSheetsTest::missingFile()
{
    QVERIFY(ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(dark, QString(), false));
    const QString running = qApp->styleSheet();
    const NoStyleFile noFile;
    ZelGlobalIconCache::setDarkTheme(true);
    QCOMPARE(ZelStyleSheets::parseFullStyleSheet(QStringLiteral("Light"), QString()), QString());
    QVERIFY(ZelGlobalIconCache::darkTheme());
    QVERIFY(!ZelStyleSheets::updateColorTheme(false));
    QCOMPARE(qApp->styleSheet(), running);
    QCOMPARE(ZelStyleSheets::getRemovedLineCount(10), -9);
    messages().expect(QtCriticalMsg, QStringLiteral("Could not load stylesheet"));
    ZelStyleSheets::parseAllStyleSheets();
    QVERIFY(ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(QString(), QString(), false));
    QCOMPARE(qApp->styleSheet(), QString());
}

void StyleSheetsTest::checksAllThemes()
{
    ZelStyleSheets::parseAllStyleSheets();
    QVERIFY(!ZelGlobalIconCache::darkTheme()); // "Light" comes last
    const FaultyStyleFile file;
    QVERIFY_THROWS_EXCEPTION(nlohmann::json::exception, ZelStyleSheets::parseAllStyleSheets());
}

void StyleSheetsTest::remembersTheChoice()
{
    QCOMPARE(ZelStyleSheets::colorThemeFromSettings(), dark);
    ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("colortheme"), QSize(1, 2));
    QCOMPARE(ZelStyleSheets::colorThemeFromSettings(), dark);
    const auto themes = ZelStyleSheets::colorThemeList();
    QCOMPARE(themes.size(), 2);
    QCOMPARE(themes.at(0).second, dark);
    QCOMPARE(themes.at(1).first, QStringLiteral("Light"));
    ZelStyleSheets::updateColorThemeSettings(themes.at(1).second);
    QCOMPARE(ZelSettings(QStringLiteral("ui")).value(QStringLiteral("colortheme")),
             QVariant(QStringLiteral("Light")));
    QVERIFY(qApp->styleSheet().isEmpty());
    QVERIFY(ZelStyleSheets::updateColorTheme(false));
    QVERIFY(qApp->styleSheet().contains(QLatin1String("color: #202011 ;")));
}

void StyleSheetsTest::themeNameDecidesAboutIcons()
{
    const std::pair<const char *, bool> rows[] = {
        {"Dark", true}, {"ExtraDARKest", true}, {"Light", false}, {"Blue", false}, {"", false}};
    for (const auto &[theme, isDark] : rows) {
        ZelGlobalIconCache::setDarkTheme(!isDark);
        ZelStyleSheets::parseFullStyleSheet(QString::fromLatin1(theme), QStringLiteral("A{}"));
        QCOMPARE(ZelGlobalIconCache::darkTheme(), isDark);
    }
}

void StyleSheetsTest::locatesErrors()
{
    const QString sheet = QStringLiteral("f\n\na\nb\r\n\r\nc\n\nd\ne");
    struct Row
    {
        QString sheet;
        int badLine, lastGood, error;
    };
    // In the first rule, in a middle one, behind the last blank line, without a blank line.
    for (const Row &row : {Row{sheet, 0, 0, 1}, Row{sheet, 3, 1, 4}, Row{sheet, 8, 6, 9},
                           Row{QStringLiteral("a\nb\nc"), 1, 0, 3}}) {
        QStringList lines = row.sheet.split(QLatin1Char('\n'));
        const auto place =
            StyleSheetErrorLocator::locate(lines, [&row](const QString &beginning, int line) {
                const bool hasProbe =
                    beginning.endsWith(QStringLiteral("{qProperty-errorLine: %1;} ").arg(line));
                return hasProbe && !beginning.contains(QLatin1Char('\n')) && line < row.badLine;
            });
        QCOMPARE(place.lastGoodLine, row.lastGood);
        QCOMPARE(place.errorLine, row.error);
        QCOMPARE(lines.size(), row.sheet.count(QLatin1Char('\n')) + 1);
    }
}

void StyleSheetsTest::acceptsAWholeSheet()
{
    QString sheet = ZelStyleSheets::parseFullStyleSheet(dark, QString());
    ZelStyleSheets::appendStylesheetCheck(sheet, QStringLiteral("whole"));
    QVERIFY(sheet.endsWith(
        QLatin1String("QWidget#ZelVerifyStyleSheetWidget {qProperty-stylename: \"whole\";}")));
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(dark, sheet, false);
    QVERIFY(ZelStyleSheets::verifyStylesheetApplied(sheet, QStringLiteral("whole")));
}

void StyleSheetsTest::showsTheErroneousLines_data()
{
    QTest::addColumn<int>("brokenRule");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    // Lines: 0 font rule, 1 blank, then a rule and a blank line each, the last without.
    QTest::newRow("first") << 0 << 1 << 3;
    QTest::newRow("middle") << 2 << 5 << 7;
    QTest::newRow("last") << 4 << 9 << 11;
}

void StyleSheetsTest::showsTheErroneousLines()
{
    QFETCH(int, brokenRule);
    QFETCH(int, from);
    QFETCH(int, to);
    QStringList rules;
    for (int rule = 0; rule < 5; ++rule)
        rules.append(QStringLiteral("QLabel#l%1 { color: red; }").arg(rule));
    rules[brokenRule] = QStringLiteral("QLabel { color: } red }}");
    QString sheet = fontRule + QLatin1Char('\n') + rules.join(QLatin1String("\n\n"));
    ZelStyleSheets::appendStylesheetCheck(sheet, QStringLiteral("broken"));
    // Qt tells of the whole sheet, then of the part in which the search finds the error.
    const QString refused = QStringLiteral("Could not parse application stylesheet");
    messages().expect(QtWarningMsg, refused);
    if (brokenRule < 4)
        messages().expect(QtWarningMsg, refused);
    QWidget window;
    window.show();
    ZelStyleSwitch::apply(sheet, ZelStyleSwitch::HiddenWidgets::Now);

    QString text;
    QString title;
    bool stays = false;
    const UserInput::DialogAnswer answer([&](QDialog *dialog) {
        text = dialog->findChild<QTextEdit *>()->toPlainText();
        title = dialog->windowTitle();
        stays = dialog->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        dialog->findChild<QPushButton *>()->click();
    });
    QVERIFY(!ZelStyleSheets::verifyStylesheetApplied(sheet, QStringLiteral("broken")));
    QVERIFY(answer.finished());
    QCOMPARE(title, QStringLiteral("Error in stylesheet"));
    QVERIFY(stays);
    const int removed = ZelStyleSheets::getRemovedLineCount(11);
    QVERIFY(text.startsWith(
        QStringLiteral("An error has occured between line %1 and line %2 in the stylesheet.\n\n")
            .arg(from + removed)
            .arg(to + removed)));
    QVERIFY(text.contains(StyleSheetErrorLocator::lineRule(from).trimmed()));
    QVERIFY(text.contains(rules.at(brokenRule)));
    QCOMPARE(text.count(QLatin1String("QLabel#l")), 0);
}

void StyleSheetsTest::recolorsLinks()
{
    QTextDocument document;
    document.setHtml(QStringLiteral("<a href='x'>one</a> plain <a href='y'>two</a> "
                                    "<a href='z' style='color: #123456'>own</a>"));
    const QColor before = QGuiApplication::palette().color(QPalette::Link);
    document.setModified(false);
    ZelLinkColors::recolor(document, before, Qt::magenta);
    QStringList recolored;
    for (auto part = document.begin().begin(); !part.atEnd(); ++part) {
        if (part.fragment().charFormat().foreground().color() == QColor(Qt::magenta))
            recolored.append(part.fragment().text());
    }
    QCOMPARE(recolored, QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    QVERIFY(!document.isModified());
}

ZEL_TEST_MAIN(StyleSheetsTest)

#include "tst_style_sheets.moc"
