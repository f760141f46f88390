#include "TestCase.h"

#include "theme/IconRedirect.h"
#include "theme/StyleSvgIconEngine.h"
#include "theme/ZelCombinedIconEngine.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelCombinedIcon>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelSvgIcon>

#include <QIconEngine>
#include <QPainter>

#include <memory>

namespace {

// One coloured rectangle; the colour is the theme's for the key.
QByteArray document(const QByteArray &key, int width = 16, int height = 16)
{
    const QByteArray size =
        "width=\"" + QByteArray::number(width) + "\" height=\"" + QByteArray::number(height) + "\"";
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" " + size + ">\n<rect " + size +
           " fill=\"#808080\"/><!--@#808080:" + key + "-->\n</svg>\n";
}

QColor centerOf(const QPixmap &pixmap)
{
    return pixmap.isNull() ? QColor() : pixmap.toImage().pixelColor(pixmap.rect().center());
}

// What the engine paints over a white square of 16 pixels.
QImage painted(QIconEngine &engine, QIcon::Mode mode = QIcon::Normal,
               QIcon::State state = QIcon::Off)
{
    QImage image(16, 16, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    engine.paint(&painter, image.rect(), mode, state);
    return image;
}

QColor centerOf(QIconEngine *engine, QIcon::Mode mode, QIcon::State state)
{
    return engine ? painted(*engine, mode, state).pixelColor(8, 8) : QColor();
}

} // namespace

class IconsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void iconsShowTheThemeAtEachPaint();
    void pinnedIconsKeepTheirModeAndState();
    void namesWithoutSuffixGetOne();
    void picturesKeepTheirAspectRatioAndAreCentered();
    void unreadableDocumentsPaintNothing_data();
    void unreadableDocumentsPaintNothing();
    void failedRewritingPaintsNothing();
    void combinedIconsServeTheBestMatch();
    void overriddenPicturesStandTwice();
    void emptyCombinedIconsAreGray();
    void iconsAreSortedByTheirNames();
    void familiesAreFoundByTheirNames();
    void incompleteFamilies();
    void redirectsTellModeAndState();
    void redirectsArePinned();
    void badRedirectsGiveNoEngine();
    void theFactoryIsPublished();
    void plainIconsRenderTheirText();
    void overrideColorReplacesPlainColors();

private:
    QString writeIcon(const QString &name, const QByteArray &key = "k");
};

void IconsTest::init()
{
    TestCase::init();
    // Each colour tells for which mode (first digit) and state (second digit) it stands.
    IconColorTheme::instance()->loadThemeFile(
        writeFile(QStringLiteral("theme.json"),
                  R"([{"k": "#100000", "k_active": "#110000", "k_hover": "#200000",
             "k_active_hover": "#210000", "k_disabled": "#300000", "k_active_disabled": "#310000",
             "k_selected": "#400000", "red": "#ff0000", "green": "#00ff00", "blue": "#0000ff"}])"));
}

QString IconsTest::writeIcon(const QString &name, const QByteArray &key)
{
    return writeFile(name, document(key));
}

void IconsTest::iconsShowTheThemeAtEachPaint()
{
    const ZelStyleIcon icon(writeIcon(QStringLiteral("i.svg")));
    QVERIFY(!icon.isNull());
    QCOMPARE(centerOf(icon.pixmap(16)), QColor(0x10, 0, 0));
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Active, QIcon::On)), QColor(0x21, 0, 0));
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Selected)), QColor(0x40, 0, 0));
    IconColorTheme::instance()->loadThemeFile(
        writeFile(QStringLiteral("other.json"), R"([{"k": "#0000fe"}])"));
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Active, QIcon::On)), QColor(0, 0, 0xfe));
}

void IconsTest::pinnedIconsKeepTheirModeAndState()
{
    const ZelStyleIcon icon(writeIcon(QStringLiteral("i.svg")));
    const auto shown = [](const ZelStyleIcon &pinned) {
        return centerOf(pinned.pixmap(16, QIcon::Selected, QIcon::Off));
    };
    QCOMPARE(shown(icon.active()), QColor(0x11, 0, 0));
    QCOMPARE(shown(icon.inactive()), QColor(0x10, 0, 0));
    QCOMPARE(shown(icon.hover()), QColor(0x20, 0, 0));
    QCOMPARE(shown(icon.hover().disabled()), QColor(0x30, 0, 0));
    QCOMPARE(shown(icon), QColor(0x40, 0, 0));
    QCOMPARE(icon.hover().iconName(), icon.iconName());
}

void IconsTest::namesWithoutSuffixGetOne()
{
    const QString path = writeIcon(QStringLiteral("i.svg"));
    const ZelStyleIcon icon(path.chopped(4));
    QVERIFY(!icon.isNull());
    QCOMPARE(icon.iconName(), path);
    const QString other = writeIcon(QStringLiteral("i.SVG"));
    messages().expect(QtWarningMsg, QStringLiteral("Failed to load icon file \"%1\"").arg(other));
    QCOMPARE(ZelStyleIcon(other).iconName(), other + QStringLiteral(".svg"));
}

void IconsTest::picturesKeepTheirAspectRatioAndAreCentered()
{
    StyleSvgIconEngine engine(writeFile(QStringLiteral("i.zelsvg"), document("red", 20, 10)));
    QCOMPARE(engine.actualSize(QSize(16, 16), QIcon::Normal, QIcon::Off), QSize(16, 8));
    QCOMPARE(engine.actualSize(QSize(100, 5), QIcon::Normal, QIcon::Off), QSize(10, 5));
    // 10 x 5 in a height of 8: the offset of 1.5 is rounded to 2.
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        engine.paint(&painter, QRect(3, 4, 10, 8), QIcon::Normal, QIcon::Off);
    }
    QRect red;
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < 20; ++x) {
            if (image.pixelColor(x, y) == QColor(Qt::red))
                red |= QRect(x, y, 1, 1);
        }
    }
    QCOMPARE(red, QRect(3, 6, 10, 5));
    QVERIFY(engine.pixmap(QSize(), QIcon::Normal, QIcon::Off).isNull());
}

void IconsTest::unreadableDocumentsPaintNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<QString>("warning");
    const QString noFile = QStringLiteral("Failed to load icon file");
    const QString noMarker = QStringLiteral("Unexpected no colors to replace in svg");
    QTest::newRow("missing") << QByteArray() << true << noFile;
    QTest::newRow("empty") << QByteArray("") << true << noFile;
    QTest::newRow("truncated") << document("k").left(90) << false << noMarker;
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\x00\x00\xff\xfe\x80<!--", 17) << false
                            << QStringLiteral("Comments in svg mismatch");
    QTest::newRow("huge") << QByteArray(10 * 1024 * 1024, 'x') << false << noMarker;
    QTest::newRow("huge, all markers") << QByteArray("<!--@*#1:k-->").repeated(800000) << false
                                       << QStringLiteral("holds too many comments");
    QTest::newRow("huge comment") << "<svg><!--@" + QByteArray(10 * 1024 * 1024, '-') + "-->"
                                  << false << QStringLiteral("failed parse at 5");
}

void IconsTest::unreadableDocumentsPaintNothing()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, warning);
    const QString path = content.isNull() ? folder() + QStringLiteral("/missing.zelsvg")
                                          : writeFile(QStringLiteral("i.zelsvg"), content);
    StyleSvgIconEngine engine(path);
    QTEST(engine.isNull(), "isNull");
    QCOMPARE(engine.actualSize(QSize(7, 9), QIcon::Normal, QIcon::Off), QSize(7, 9));
    const QImage image = painted(engine);
    QImage white(image.size(), image.format());
    white.fill(Qt::white);
    QCOMPARE(image, white);
    // The renderer complains of such documents in words of its own.
    const QString all = messages().messages(QtWarningMsg).join(u'\n');
    QVERIFY2(all.contains(warning), qPrintable(all));
    messages().clear();
}

void IconsTest::failedRewritingPaintsNothing()
{
    const QString path = writeFile(QStringLiteral("i.svg"), document("k").replace(":k", ":k:k"));
    StyleSvgIconEngine engine(path);
    messages().expect(QtWarningMsg, QStringLiteral("Svg icon  \"%1\" failed parse at").arg(path));
    QCOMPARE(painted(engine).pixelColor(8, 8), QColor(Qt::white));
    QVERIFY(!engine.isNull());
}

void IconsTest::combinedIconsServeTheBestMatch()
{
    ZelCombinedIcon icon;
    QVERIFY(icon.isNull());
    const ZelStyleIcon themed(writeIcon(QStringLiteral("i.svg")));
    icon.addIconForMode(themed, QIcon::Normal, QIcon::Off);
    icon.addIconForMode(ZelStyleIcon(writeIcon(QStringLiteral("b.svg"), "blue")), QIcon::Disabled,
                        QIcon::On);
    QVERIFY(!icon.isNull());
    // The picture is the fallback's, the colours those of the mode that is asked for.
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Active, QIcon::On)), QColor(0x21, 0, 0));
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Selected, QIcon::Off)), QColor(0x40, 0, 0));
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Disabled, QIcon::On)), QColor(Qt::blue));
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Disabled, QIcon::Off)), QColor(0x30, 0, 0));
    QCOMPARE(icon.findBestMatch(QIcon::Active, QIcon::Off).iconName(), themed.iconName());
    QCOMPARE(icon.actualSize(QSize(40, 30)), QSize(30, 30));
}

void IconsTest::overriddenPicturesStandTwice()
{
    ZelCombinedIconEngine engine;
    engine.addIcon(ZelStyleIcon(writeIcon(QStringLiteral("r.svg"), "red")), QIcon::Normal,
                   QIcon::On);
    messages().expect(QtDebugMsg, QStringLiteral("ZelCombinedIcon - Unexpected icon override"));
    engine.addIcon(ZelStyleIcon(writeIcon(QStringLiteral("g.svg"), "green")), QIcon::Normal,
                   QIcon::On);
    QCOMPARE(messages().messages(QtDebugMsg).size(), 1);
    QCOMPARE(engine.count(), 2);
    QCOMPARE(centerOf(&engine, QIcon::Normal, QIcon::On), QColor(Qt::green));
    // A clone has a list of its own.
    const std::unique_ptr<QIconEngine> clone(engine.clone());
    engine.addIcon(ZelStyleIcon(writeIcon(QStringLiteral("b.svg"), "blue")), QIcon::Active,
                   QIcon::On);
    QCOMPARE(centerOf(clone.get(), QIcon::Active, QIcon::On), QColor(Qt::green));
}

void IconsTest::emptyCombinedIconsAreGray()
{
    ZelCombinedIconEngine engine;
    const QString warning = QStringLiteral(
        "ZelCombinedIconEngine::findBestMatch didn't find a match (mode: 2  ,state:  0 )");
    for (int i = 0; i < 4; ++i)
        messages().expect(QtWarningMsg, warning);
    QCOMPARE(centerOf(&engine, QIcon::Active, QIcon::On), QColor(Qt::gray));
    QCOMPARE(engine.actualSize(QSize(3, 4), QIcon::Active, QIcon::On), QSize(3, 4));
    QVERIFY(engine.pixmap(QSize(3, 4), QIcon::Active, QIcon::On).isNull());
    QVERIFY(ZelCombinedIcon().findBestMatch(QIcon::Active, QIcon::On).isNull());
    // Null pictures make a null icon.
    engine.addIcon(ZelStyleIcon(), QIcon::Normal, QIcon::Off);
    QVERIFY(engine.isNull());
}

void IconsTest::iconsAreSortedByTheirNames()
{
    const auto icon = ZelCombinedIcon::createFromBaseIconsAndNames(
        {ZelStyleIcon(writeIcon(QStringLiteral("i_inactive.svg"), "red")),
         ZelStyleIcon(writeIcon(QStringLiteral("i_active_hover.svg"), "green")),
         ZelStyleIcon(writeIcon(QStringLiteral("i_selected_disabled.svg"), "blue"))});
    const auto shown = [&](QIcon::Mode mode, QIcon::State state) {
        return centerOf(icon.pixmap(16, mode, state));
    };
    QCOMPARE(shown(QIcon::Normal, QIcon::Off), QColor(Qt::red));
    QCOMPARE(shown(QIcon::Active, QIcon::On), QColor(Qt::green));
    QCOMPARE(shown(QIcon::Selected, QIcon::Off), QColor(Qt::blue));
}

void IconsTest::familiesAreFoundByTheirNames()
{
    const QString path = writeIcon(QStringLiteral("x.zelsvg"), "red");
    writeIcon(QStringLiteral("x_active.zelsvg"), "green");
    writeIcon(QStringLiteral("x_disabled.zelsvg"), "blue");
    writeIcon(QStringLiteral("x_active_hover.zelsvg"), "k");
    std::unique_ptr<QIconEngine> engine(ZelCombinedIcon::createEngineForZELSVG(path));
    const auto *combined = dynamic_cast<ZelCombinedIconEngine *>(engine.get());
    QVERIFY(combined);
    QCOMPARE(combined->count(), 5);
    QCOMPARE(centerOf(engine.get(), QIcon::Normal, QIcon::Off), QColor(Qt::red));
    QCOMPARE(centerOf(engine.get(), QIcon::Normal, QIcon::On), QColor(Qt::green));
    QCOMPARE(centerOf(engine.get(), QIcon::Active, QIcon::Off), QColor(Qt::red));
    QCOMPARE(centerOf(engine.get(), QIcon::Active, QIcon::On), QColor(0x21, 0, 0));
    QCOMPARE(centerOf(engine.get(), QIcon::Disabled, QIcon::Off), QColor(Qt::blue));
    QCOMPARE(centerOf(engine.get(), QIcon::Selected, QIcon::On), QColor(Qt::green));
    // The file with the suffix goes before the plain one.
    writeIcon(QStringLiteral("x_inactive.zelsvg"), "k");
    engine.reset(ZelCombinedIcon::createEngineForZELSVG(path));
    QCOMPARE(centerOf(engine.get(), QIcon::Normal, QIcon::Off), QColor(0x10, 0, 0));
}

void IconsTest::incompleteFamilies()
{
    const QString path = folder() + QStringLiteral("/x.zelsvg");
    const QString missing = QStringLiteral("Icon file \"%1\" was not found.").arg(path);
    messages().expect(QtWarningMsg, missing);
    QVERIFY(!ZelCombinedIcon::createEngineForZELSVG(path));

    writeIcon(QStringLiteral("x_active.zelsvg"));
    messages().expect(QtWarningMsg, missing);
    messages().expect(QtWarningMsg, QStringLiteral("Only one icon mode found for  \"%1\" (basename "
                                                   "was not found)")
                                        .arg(path));
    std::unique_ptr<QIconEngine> engine(ZelCombinedIcon::createEngineForZELSVG(path));
    QVERIFY(dynamic_cast<StyleSvgIconEngine *>(engine.get()));
    QCOMPARE(engine->iconName(), folder() + QStringLiteral("/x_active.zelsvg"));
    // Not pinned: the painter's mode tells the colour.
    QCOMPARE(centerOf(engine.get(), QIcon::Active, QIcon::Off), QColor(0x20, 0, 0));

    // The bare name exists, but the picture is looked for under the name with a suffix.
    const QString bare = writeIcon(QStringLiteral("y"));
    messages().expect(QtWarningMsg, QStringLiteral("y.zelsvg\" was not found."));
    messages().expect(QtWarningMsg, QStringLiteral("Failed to load icon file \"%1\"").arg(bare));
    messages().expect(QtWarningMsg, QStringLiteral("Only one icon mode found for "));
    engine.reset(ZelCombinedIcon::createEngineForZELSVG(bare + QStringLiteral(".zelsvg")));
    QVERIFY(engine->isNull());
}

void IconsTest::redirectsTellModeAndState()
{
    struct Row
    {
        const char *text;
        const char *target;
        QIcon::Mode mode;
        QIcon::State state;
    };
    const Row rows[] = {
        {":/a b.zelsvg", ":/a b.zelsvg", QIcon::Normal, QIcon::Off},
        {"\r\n\n\t:/a\t\r\n\r\nactive_hover\nselected", ":/a", QIcon::Active, QIcon::On},
        {":/a\nhover inactive active", ":/a", QIcon::Active, QIcon::Off},
        {":/a\nhover normal disabled selected", ":/a", QIcon::Selected, QIcon::Off},
        {":/a\nhover normal", ":/a", QIcon::Normal, QIcon::Off},
        {":/a\nDisabled Active", ":/a", QIcon::Normal, QIcon::Off}};
    for (const Row &row : rows) {
        const auto redirect = IconRedirect::parse(QString::fromLatin1(row.text));
        QVERIFY2(redirect && redirect->target == QLatin1String(row.target) &&
                     redirect->mode == row.mode && redirect->state == row.state,
                 row.text);
    }
    QVERIFY(!IconRedirect::parse(QStringLiteral("\r\n\t\n")));
}

void IconsTest::redirectsArePinned()
{
    const QString target = writeIcon(QStringLiteral("x.zelsvg"));
    writeIcon(QStringLiteral("x_hover.zelsvg"), "green");
    const QString path =
        writeFile(QStringLiteral("r.zelsvgr"), target.toUtf8() + "\r\nactive_hover\r\n");
    std::unique_ptr<QIconEngine> engine(ZelCombinedIcon::createEngineForZELSVGR(path));
    QVERIFY(engine);
    QCOMPARE(engine->iconName(), folder() + QStringLiteral("/x_hover.zelsvg"));
    QFile::remove(folder() + QStringLiteral("/x_hover.zelsvg"));
    engine.reset(ZelCombinedIcon::createEngineForZELSVGR(path));
    QCOMPARE(centerOf(engine.get(), QIcon::Disabled, QIcon::Off), QColor(0x21, 0, 0));
}

void IconsTest::badRedirectsGiveNoEngine()
{
    const std::tuple<QByteArray, QtMsgType, const char *> rows[] = {
        {QByteArray(), QtWarningMsg, "was not found."},
        {"", QtCriticalMsg, "was invalid."},
        {"\r\n\t\n", QtCriticalMsg, "was invalid."},
        {"nowhere.zelsvg\nhover", QtCriticalMsg,
         " refers to  \"nowhere.zelsvg\" which doesn't exists"},
        {"\xff\xfe\x80\x01", QtCriticalMsg, "which doesn't exists"},
        {QByteArray(10 * 1024 * 1024, 'x'), QtCriticalMsg, "which doesn't exists"}};
    for (const auto &[content, type, message] : rows) {
        const QString path = content.isNull() ? folder() + QStringLiteral("/missing.zelsvgr")
                                              : writeFile(QStringLiteral("r.zelsvgr"), content);
        messages().expect(type, QString::fromLatin1(message));
        QVERIFY(!ZelCombinedIcon::createEngineForZELSVGR(path));
    }
}

void IconsTest::theFactoryIsPublished()
{
    HandleSvgInStyle::prepareHandleSvgIcons();
    const QVariant property = qApp->property("CreateIconEngineFunc");
    QCOMPARE(property.metaType(), QMetaType(QMetaType::VoidStar));
    const auto factory =
        reinterpret_cast<QIconEngine *(*)(const QString &)>(property.value<void *>());
    const QString path = writeIcon(QStringLiteral("x.ZELSVG"));
    // The suffix is tested in lower case, the names of a family are not.
    const QString redirect =
        writeFile(QStringLiteral("r.ZelSvgR"), writeIcon(QStringLiteral("i.zelsvg")).toUtf8());
    std::unique_ptr<QIconEngine> engine(factory(redirect));
    QVERIFY(engine && !engine->isNull());
    messages().expect(QtCriticalMsg, QStringLiteral("unexpected wrong call to "
                                                    "HandleSvgInStyle::iconEngineForFile"));
    messages().expect(QtWarningMsg, QStringLiteral("i.svg\" was not found."));
    QVERIFY(!factory(folder() + QStringLiteral("/i.svg")));
    qApp->setProperty("CreateIconEngineFunc", QVariant());
}

void IconsTest::plainIconsRenderTheirText()
{
    const QString path = writeFile(QStringLiteral("p.svg"), document("k"));
    ZelSvgIcon icon = ZelSvgIcon::fromFile(path);
    QCOMPARE(centerOf(icon.pixmap(16, QIcon::Disabled)), QColor(0x80, 0x80, 0x80));
    icon.overrideColor(QStringLiteral("#00ff00"));
    QCOMPARE(centerOf(icon.pixmap(16)), QColor(Qt::green));
    icon.setNewText(QString::fromUtf8(document("k").replace("#808080", "blue")));
    QCOMPARE(centerOf(icon.pixmap(16)), QColor(Qt::blue));
    messages().expect(QtWarningMsg, QStringLiteral("Svg file not found:  \"nowhere\""));
    QCOMPARE(centerOf(ZelSvgIcon::fromFile(QStringLiteral("nowhere")).pixmap(16)),
             QColor(0, 0, 0, 0));
}

void IconsTest::overrideColorReplacesPlainColors()
{
    const std::pair<const char *, QStringList> rows[] = {
        {"#12ab9f", {QStringLiteral("12ab9f")}},
        {"#12AB9F", {}},
        {"#12a", {}},
        {"#12ab9fff", {}},
        {"#12ab9fF", {}},
        {"#000000 #ffffff", {QStringLiteral("000000"), QStringLiteral("ffffff")}},
        {"#12ab9", {}}};
    QStringList wanted;
    for (const auto &[fill, replaced] : rows) {
        for (const QString &digits : replaced) {
            wanted.append(QStringLiteral("ZelSvgIcon: Replacing color  \"%1\"  with  \"#0a0b0c\"")
                              .arg(digits));
        }
        ZelSvgIcon icon(QString::fromLatin1(fill));
        icon.overrideColor(QStringLiteral("#0a0b0c"));
        QVERIFY2(messages().messages(QtDebugMsg) == wanted, fill);
    }
    messages().expect(QtWarningMsg, QStringLiteral("not a color"));
    ZelSvgIcon(QString()).overrideColor(QStringLiteral("#0a0"));
}

ZEL_TEST_MAIN(IconsTest)
#include "tst_icons.moc"
