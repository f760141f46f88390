#include "SamplePanels.h"
#include "TestCase.h"

#include "theme/GlobalEventFilter.h"
#include "theme/SimpleProgressBar.h"
#include "theme/StyleSheetChangeProgress.h"
#include "theme/ZelFontMetrics.h"
#include "theme/ZelStyleForwarder.h"
#include "theme/ZelStyleSheets.h"
#include "theme/ZelStyleSwitch.h"
#include "theme/ZelTextPainterStyle.h"
#include "theme/ZelmoraStyle.h"

#include <ZelCore/ZelGlobalIconCache>

#include <QtWidgets>

namespace {

const QString dark = QStringLiteral("Dark");
const QString light = QStringLiteral("Light");

// Counts how often the style sheet has a widget polished.
class CountingStyle : public ZelmoraStyle
{
public:
    using ZelmoraStyle::polish;
    void polish(QWidget *widget) override
    {
        ++polishes;
        ZelmoraStyle::polish(widget);
    }
    static inline int polishes = 0;
};

// Counts the events of one kind that reach a widget.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget *widget, QEvent::Type type)
        : type_(type)
    {
        widget->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        count += event->type() == type_;
        return QObject::eventFilter(object, event);
    }

private:
    QEvent::Type type_;
};

void switchTo(const QString &theme, bool fontChanged = false)
{
    QVERIFY(ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(theme, QString(), fontChanged));
}

struct Pages
{
    Pages()
        : window(SamplePanels::makeWindow(240, 2))
    {
        auto *stack = window->findChild<QStackedWidget *>();
        stack->addWidget(SamplePanels::makeMixedPage(stack));
        styled = new QPushButton(QStringLiteral("Own style"), stack);
        styled->setStyle(new ZelStyleForwarder(styled));
        stack->addWidget(styled);
        // Only widgets with a sheet of their own get their events at every switch.
        for (int i = 0; i < 20; ++i) {
            auto *label = new QLabel(QString::number(i), window.get());
            label->setStyleSheet(QStringLiteral("padding: 1px;"));
            window->statusBar()->addPermanentWidget(label);
        }
        window->show();
    }

    int count() const { return window->findChild<QStackedWidget *>()->count(); }

    QImage grab(int page) const
    {
        SamplePanels::showPage(*window, page);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
        if (QWidget *focus = QApplication::focusWidget())
            focus->clearFocus(); // no cursor that blinks
        return window->grab().toImage();
    }

    std::unique_ptr<QMainWindow> window;
    QPushButton *styled = nullptr;
};

// What an application shows that was started in this theme.
int renderFresh(const QString &theme, const QString &folder)
{
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(theme, QString(), false);
    const Pages pages;
    for (int page = 0; page < pages.count(); ++page) {
        if (!pages.grab(page).save(QStringLiteral("%1/%2.png").arg(folder).arg(page)))
            return 1;
    }
    return 0;
}

// Empty if the pictures are equal.
QRect difference(const QImage &left, const QImage &right)
{
    if (left.size() != right.size())
        return left.rect().united(right.rect());
    QRect area;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y))
                area |= QRect(x, y, 1, 1);
        }
    }
    return area;
}

} // namespace

class ThemeSwitchTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void onlyLaterSwitchesShowProgress();
    void polishesEachVisibleWidgetOnce();
    void looksLikeAFreshStart_data();
    void looksLikeAFreshStart();
    void hiddenPagesFollowWhenShownGrabbedOrIdle();
    void hiddenCarriersFollowAtOnce();
    void aChangedFontReachesHiddenPagesAtOnce();
    void reachesWidgetsThatNoRuleReaches();
    void survivesWidgetsThatGo();
    void theLaterOfTwoSwitchesHolds();
    void emptySheetTakesTheLookAway();
};

void ThemeSwitchTest::initTestCase()
{
    // The first styling of the process; all others are switches.
    const QString sheet = ZelStyleSheets::parseFullStyleSheet(dark, QString());
    QVERIFY(!sheet.isEmpty());
}

void ThemeSwitchTest::cleanup()
{
    ZelStyleSwitch::finish();
    ZelFontMetrics::setZelmoraFontSizeSetting(-1);
    TestCase::cleanup();
}

void ThemeSwitchTest::onlyLaterSwitchesShowProgress()
{
    int windows = 0;
    int values = 0;
    QPointer<QWidget> progress;
    const auto look = [&] {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->inherits("StyleSheetChangeProgress") && window->isVisible()) {
                progress = window;
                ++windows;
                values += window->findChild<QProgressBar *>()->value() > 0;
            }
        }
    };
    GlobalEventFilter *filter = GlobalEventFilter::instance();
    const auto connection = connect(filter, &GlobalEventFilter::themeChangedProgress, this, look);
    const Pages pages;
    switchTo(dark);
    QCOMPARE(windows, 0);
    switchTo(light);
    disconnect(connection);
    QVERIFY(windows > 0);
    QCOMPARE(values, windows - 1); // this slot comes before the window's at the first signal
    QVERIFY(!progress);
    QCOMPARE(filter->changeThemeProgressCount(), 0);
}

void ThemeSwitchTest::polishesEachVisibleWidgetOnce()
{
    switchTo(light);
    const Pages pages;
    for (int page = pages.count(); page-- > 0;)
        pages.grab(page);
    const int widgets = int(QApplication::allWidgets().size());
    CountingStyle::polishes = 0;
    switchTo(dark);
    const int atOnce = CountingStyle::polishes;
    ZelStyleSwitch::finish();
    const int inAll = CountingStyle::polishes;
    QVERIFY2(atOnce > 0 && atOnce < widgets, qPrintable(QString::number(atOnce)));
    QVERIFY2(inAll <= widgets * 1.2, qPrintable(QString::number(double(inAll) / widgets)));
}

void ThemeSwitchTest::looksLikeAFreshStart_data()
{
    QTest::addColumn<QString>("theme");
    QTest::addColumn<int>("switches");
    QTest::addColumn<int>("shownPage");
    QTest::newRow("one switch to light") << light << 1 << 0;
    QTest::newRow("one switch to dark, mixed page shown") << dark << 1 << 2;
    QTest::newRow("many switches to dark, mixed page shown") << dark << 4 << 2;
    QTest::newRow("many switches to light, own style shown") << light << 5 << 3;
}

void ThemeSwitchTest::looksLikeAFreshStart()
{
    QFETCH(QString, theme);
    QFETCH(int, switches);
    QFETCH(int, shownPage);
    QProcess fresh;
    fresh.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--render"), theme, folder()});
    QVERIFY(fresh.waitForFinished(60000));
    QCOMPARE(fresh.exitCode(), 0);

    switchTo((switches % 2 == 1) == (theme == light) ? dark : light);
    const Pages pages;
    for (int page = 0; page < pages.count(); ++page)
        pages.grab(page);
    pages.grab(shownPage);
    for (int done = 0; done < switches; ++done)
        switchTo(((switches - done) % 2 == 1) == (theme == light) ? light : dark);
    for (int page = 0; page < pages.count(); ++page) {
        const QImage expected(QStringLiteral("%1/%2.png").arg(folder()).arg(page));
        QVERIFY(!expected.isNull());
        const QImage actual = pages.grab(page).convertToFormat(expected.format());
        QCOMPARE(difference(actual, expected), QRect());
    }
}

void ThemeSwitchTest::hiddenPagesFollowWhenShownGrabbedOrIdle()
{
    enum { Shown, Grabbed, Idle };
    for (const int way : {Shown, Grabbed, Idle}) {
        switchTo(dark);
        const Pages pages;
        pages.grab(1);
        pages.grab(0);
        auto *stack = pages.window->findChild<QStackedWidget *>();
        QWidget *page = stack->widget(1);
        auto *hidden = page->findChild<QLineEdit *>();
        const EventCounter styleChanges(hidden, QEvent::StyleChange);
        switchTo(light);
        QCOMPARE(styleChanges.count, 0);
        QCOMPARE(hidden->palette().color(QPalette::Base), QColor(0x303012));
        if (way == Shown)
            stack->setCurrentIndex(1);
        const QImage atOnce = way == Grabbed ? page->grab().toImage() : QImage();
        if (way == Idle)
            QTRY_COMPARE(hidden->palette().color(QPalette::Base), QColor(0xf0f012));
        QCOMPARE(hidden->palette().color(QPalette::Base), QColor(0xf0f012));
        QCOMPARE(hidden->palette().color(QPalette::Text), QColor(0x202011));
        ZelStyleSwitch::finish();
        QVERIFY(way != Grabbed || atOnce == page->grab().toImage());
    }
}

void ThemeSwitchTest::hiddenCarriersFollowAtOnce()
{
    switchTo(dark);
    QWidget window;
    auto *inVisible = new ZelTextPainterStyle(&window);
    inVisible->hide();
    ZelTextPainterStyle alone;
    window.show();
    inVisible->ensurePolished();
    alone.ensurePolished();
    QCOMPARE(alone.getFillColor(), QColor(0x2020d0));
    switchTo(light);
    QCOMPARE(inVisible->getFillColor(), QColor(0xf0f0d0));
    QCOMPARE(alone.getTextColor(), QColor(0xf0f0d2));
    QCOMPARE(QApplication::palette().color(QPalette::Link), QColor(0x1010a6));
    QCOMPARE(QApplication::palette().color(QPalette::LinkVisited), QColor(0x1010a7));
}

void ThemeSwitchTest::aChangedFontReachesHiddenPagesAtOnce()
{
    switchTo(dark);
    const Pages pages;
    pages.grab(1);
    pages.grab(0);
    auto *hidden = pages.window->findChild<QStackedWidget *>()->widget(1)->findChild<QLabel *>();
    ZelFontMetrics::setZelmoraFontSizeSetting(17);
    switchTo(dark, true);
    QCOMPARE(hidden->font().pointSize(), 17);
    QCOMPARE(ZelFontMetrics::actualZelmoraFontSize(), 17);
}

void ThemeSwitchTest::reachesWidgetsThatNoRuleReaches()
{
    const auto apply = [](const QString &sheet) {
        ZelStyleSwitch::apply(sheet, ZelStyleSwitch::HiddenWidgets::Now);
    };
    apply(QString());
    QPushButton button;
    button.setStyle(new ZelStyleForwarder(&button));
    button.ensurePolished();
    apply(QStringLiteral("QLabel { color: red; }"));
    apply(QStringLiteral("QLabel { color: blue; }"));
    QVERIFY(button.testAttribute(Qt::WA_Hover));
}

void ThemeSwitchTest::theLaterOfTwoSwitchesHolds()
{
    const auto isAllDark = [](const Pages &pages) {
        auto *page = pages.window->findChild<QStackedWidget *>()->currentWidget();
        return page->findChild<QLineEdit *>()->palette().color(QPalette::Base) ==
                   QColor(0x303012) &&
               ZelGlobalIconCache::darkTheme();
    };
    switchTo(dark);
    const Pages pages;
    bool isPosted = true;
    QMetaObject::invokeMethod(
        this,
        [&] {
            switchTo(dark);
            isPosted = false;
        },
        Qt::QueuedConnection);
    switchTo(light);
    QVERIFY(!isPosted);
    QVERIFY(isAllDark(pages));

    int signalCount = 0;
    QObject context;
    connect(GlobalEventFilter::instance(), &GlobalEventFilter::themeChangedProgress, &context, [&] {
        if (++signalCount == 1)
            switchTo(dark);
    });
    switchTo(light);
    QVERIFY(signalCount > 0);
    QVERIFY(isAllDark(pages));
}

void ThemeSwitchTest::survivesWidgetsThatGo()
{
    switchTo(dark);
    auto pages = std::make_unique<Pages>();
    pages->grab(1);
    pages->grab(0);
    auto *stack = pages->window->findChild<QStackedWidget *>();
    QWidget *kept = stack->widget(1)->findChild<QGroupBox *>();
    switchTo(light);
    delete stack->widget(2);
    kept->setParent(stack->widget(0));
    kept->show();
    QTRY_COMPARE(kept->findChild<QLineEdit *>()->palette().color(QPalette::Base), QColor(0xf0f012));
    QObject context;
    connect(GlobalEventFilter::instance(), &GlobalEventFilter::themeChangedProgress, &context,
            [stack] { delete stack->widget(1); });
    switchTo(dark);
    QCOMPARE(stack->count(), 1);
    QMetaObject::invokeMethod(
        this, [&] { pages.reset(); }, Qt::QueuedConnection);
    switchTo(light);
    QVERIFY(!pages);
    ZelStyleSwitch::finish();
}

void ThemeSwitchTest::emptySheetTakesTheLookAway()
{
    switchTo(dark);
    const Pages pages;
    auto *edit = pages.window->findChild<QLineEdit *>();
    edit->ensurePolished();
    ZelStyleSwitch::apply(QString(), ZelStyleSwitch::HiddenWidgets::Later);
    QVERIFY(edit->palette().color(QPalette::Base) != QColor(0x303012));
    pages.grab(3);
    ZelStyleSwitch::apply(ZelStyleSheets::parseFullStyleSheet(light, QString()),
                          ZelStyleSwitch::HiddenWidgets::Later);
    QCOMPARE(edit->palette().color(QPalette::Base), QColor(0xf0f012));
    pages.grab(3);
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(new CountingStyle);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--render"))
        return renderFresh(arguments.value(2), arguments.value(3));
    ThemeSwitchTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_theme_switch.moc"
