#include "TestCase.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/IconColorTheme>

#include <QIconEngine>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace {

const char icon[] = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"16\" height=\"16\">"
                    "<rect width=\"16\" height=\"16\" fill=\"#808080\"/><!--@*#808080:k--></svg>";

int createdEngines = 0;

QIconEngine *countingFactory(const QString &path)
{
    ++createdEngines;
    return HandleSvgInStyle::iconEngineForFile(path);
}

} // namespace

/// Icons that reach our engines by the names of files alone, through the plugin.
class IconEnginesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesOfTheTwoSuffixesMakeThemedIcons();
    void thePublishedFactoryIsAsked();
    void styleSheetsFollowTheTheme();

private:
    void loadTheme(const QByteArray &color);

    QString path_;
    QString redirect_;
};

void IconEnginesTest::init()
{
    TestCase::init();
    loadTheme("#ff0000");
    path_ = writeFile(QStringLiteral("x.zelsvg"), icon);
    redirect_ = writeFile(QStringLiteral("r.zelsvgr"), path_.toUtf8() + "\nhover");
}

void IconEnginesTest::loadTheme(const QByteArray &color)
{
    IconColorTheme::instance()->loadThemeFile(writeFile(
        QStringLiteral("theme.json"), R"([{"k": ")" + color + R"(", "k_hover": "#0000ff"}])"));
}

void IconEnginesTest::filesOfTheTwoSuffixesMakeThemedIcons()
{
    const auto shown = [](const QIcon &icon) {
        return icon.pixmap(16).toImage().pixelColor(8, 8);
    };
    const QIcon plain(path_);
    QCOMPARE(shown(plain), QColor(Qt::red));
    QCOMPARE(shown(QIcon(redirect_)), QColor(Qt::blue));
    loadTheme("#00ff00");
    QCOMPARE(shown(plain), QColor(Qt::green));
    messages().expect(QtWarningMsg, QStringLiteral("was not found."));
    QVERIFY(QIcon(folder() + QStringLiteral("/missing.zelsvg")).isNull());
}

void IconEnginesTest::thePublishedFactoryIsAsked()
{
    qApp->setProperty("CreateIconEngineFunc",
                      QVariant::fromValue(reinterpret_cast<void *>(&countingFactory)));
    createdEngines = 0;
    QVERIFY(!QIcon(path_).isNull());
    QCOMPARE(createdEngines, 1);
    // What isn't a factory is passed over.
    for (const QVariant &other : {QVariant(7), QVariant::fromValue<void *>(nullptr), QVariant()}) {
        qApp->setProperty("CreateIconEngineFunc", other);
        QVERIFY(!QIcon(path_).isNull());
    }
    QCOMPARE(createdEngines, 1);
}

void IconEnginesTest::styleSheetsFollowTheTheme()
{
    HandleSvgInStyle::prepareHandleSvgIcons();
    QLabel label;
    QPushButton button;
    QToolButton toolButton;
    const std::tuple<const char *, QWidget *, QString> rows[] = {
        {"QLabel { image: url(%1); }", &label, path_},
        {"QPushButton { icon: url(%1); border: none; }", &button, path_},
        {"QToolButton { qproperty-icon: url(%1); border: none; }", &toolButton, path_},
        {"QLabel { image: url(%1); }", &label, redirect_}};
    for (const auto &[rule, shown, path] : rows) {
        loadTheme("#ff0000");
        qApp->setStyleSheet(QString::fromLatin1(rule).arg(path));
        shown->resize(16, 16);
        const bool isPinned = path == redirect_;
        QCOMPARE(shown->grab().toImage().pixelColor(8, 8), isPinned ? Qt::blue : Qt::red);
        // Nothing but the theme changes: the next paint shows it.
        loadTheme("#00ff00");
        QCOMPARE(shown->grab().toImage().pixelColor(8, 8), isPinned ? Qt::blue : Qt::green);
    }
    qApp->setStyleSheet(QString());
    qApp->setProperty("CreateIconEngineFunc", QVariant());
}

ZEL_TEST_MAIN(IconEnginesTest)
#include "tst_icon_engines.moc"
