#include "TestCase.h"

#include "ZelProgressDialog.h"
#include "ZelProgressObserverDialog.h"
#include "ZelResources.h"
#include "ZelSplashPainting.h"
#include "ZelSplashWindow.h"
#include "theme/IconColorTheme.h"
#include "theme/ZelFontMetrics.h"

#include <QAccessible>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>

#include <cmath>

namespace {

/// The timer that a progress dialog waits with before it shows itself; null if it doesn't wait.
QTimer *waitingTimer(QDialog *dialog)
{
    for (QObject *child : dialog->children())
        if (auto *timer = qobject_cast<QTimer *>(child); timer && timer->isActive())
            return timer;
    return nullptr;
}

void fire(QTimer *timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

/// What the window system does for the close box.
void clickCloseBox(QWidget *window)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window, &event);
    QVERIFY(!event.isAccepted());
    QCoreApplication::processEvents();
}

QProgressDialog *observerDialog(QWidget *parent)
{
    return parent->findChild<QProgressDialog *>();
}

QImage pictureOf(QWidget *widget)
{
    return widget->grab().toImage();
}

/// How much of the bar is blue, in columns; the painted outline and ground are not.
int filledColumns(ZelSplashWindow *splash)
{
    const QImage image = pictureOf(splash);
    const QPoint bar = ZelSplashPainting::defaultBarPosition;
    int columns = 0;
    for (int x = 1; x < ZelSplashPainting::barSize.width(); ++x)
        columns += image.pixelColor(bar + QPoint(x, 9)) == QColor(0, 102, 255);
    return columns;
}

QString nameAndValue(QWidget *bar)
{
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(bar);
    return access->role() == QAccessible::ProgressBar
               ? access->text(QAccessible::Name) + u' ' + access->text(QAccessible::Value)
               : QString();
}

} // namespace

class ProgressTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theDialogIsBuiltAsAToolWindow();
    void onlyACancelButtonLetsTheUserCancel();
    void theProgramClosesWithoutACancel();
    void theMinimumDurationBeginsWithTheFirstValue();
    void longLinesLoseTheirMiddle();
    void theObserverFollowsTheWork();
    void theUsersCloseIsACancel_data();
    void theUsersCloseIsACancel();
    void theObserverOutlivesItsDialog();
    void theSplashWindowTakesItsPicture_data();
    void theSplashWindowTakesItsPicture();
    void theSplashWindowChoosesItsScreen();
    void theSplashWindowPaintsItsProgress();
    void theSplashWindowElidesItsStatus();
    void theSplashWindowStaysForASecond();
    void aModalDialogEndsTheSplashWindow();
    void screenReadersHearTheProgress();
};

void ProgressTest::initTestCase()
{
    zelmorawidgets_init_resources();
    IconColorTheme::instance()->buildMap(QStringLiteral("[{\"splash_text\": \"#ff0000\"}]"));
}

void ProgressTest::theDialogIsBuiltAsAToolWindow()
{
    ZelProgressDialog dialog(QStringLiteral("Rendering"));
    QCOMPARE(dialog.windowFlags(), Qt::WindowFlags(33820683));
    QCOMPARE(dialog.windowTitle(), QGuiApplication::applicationDisplayName());
    QCOMPARE(dialog.minimumWidth(), 25 * ZelFontMetrics(&dialog).widthM());
    const auto bars = dialog.findChildren<QProgressBar *>();
    QCOMPARE(bars.size(), 2);
    QVERIFY(bars[0]->isVisibleTo(&dialog) && !bars[1]->isVisibleTo(&dialog));
    dialog.setShowSecond(true);
    dialog.setRange(0, 10);
    dialog.setRangeSecond(5, 8);
    dialog.setValue(4);
    dialog.setValueSecond(6);
    QVERIFY(bars[1]->isVisibleTo(&dialog));
    QCOMPARE(bars[0]->text() + bars[1]->text(), QStringLiteral("40%33%"));
    QVERIFY(!dialog.isVisible());
}

void ProgressTest::onlyACancelButtonLetsTheUserCancel()
{
    ZelProgressDialog dialog(QStringLiteral("Rendering"));
    auto *button = dialog.findChild<QPushButton *>();
    const QSignalSpy cancels(&dialog, &ZelProgressDialog::cancelRequested);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    clickCloseBox(&dialog);
    QVERIFY(dialog.isVisible() && cancels.isEmpty());

    dialog.setCancelVisible(true);
    button->click();
    button->click();
    dialog.reject();
    QCOMPARE(cancels.size(), 1);
    QVERIFY(dialog.isVisible() && !button->isEnabled());
    dialog.setCancelEnabled(true);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QCOMPARE(cancels.size(), 2);
    // Work that closes the dialog at once in answer to its close box.
    dialog.setCancelEnabled(true);
    connect(&dialog, &ZelProgressDialog::cancelRequested, &dialog, &QWidget::close);
    clickCloseBox(&dialog);
    QCOMPARE(cancels.size(), 3);
    QVERIFY(!dialog.isVisible());
}

void ProgressTest::theProgramClosesWithoutACancel()
{
    ZelProgressDialog dialog(QStringLiteral("Rendering"));
    dialog.setCancelVisible(true);
    const QSignalSpy cancels(&dialog, &ZelProgressDialog::cancelRequested);
    const QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    dialog.setValue(100);
    dialog.setAutoClose(true);
    dialog.setValueSecond(100);
    dialog.setValue(99);
    QVERIFY(dialog.isVisible());
    dialog.setValue(100);
    QVERIFY(!dialog.isVisible());
    dialog.show();
    QVERIFY(dialog.close() && !dialog.isVisible());
    QCOMPARE(finished.size(), 2);
    QVERIFY(cancels.isEmpty());
}

void ProgressTest::theMinimumDurationBeginsWithTheFirstValue()
{
    ZelProgressDialog dialog(QStringLiteral("Rendering"));
    dialog.setMinimumDuration(500);
    QVERIFY(!waitingTimer(&dialog));
    dialog.setValue(0);
    QTimer *timer = waitingTimer(&dialog);
    QVERIFY(timer && timer->interval() == 500);
    // Work that is quicker shows nothing.
    dialog.close();
    QVERIFY(!waitingTimer(&dialog));
    dialog.setValue(1);
    QVERIFY(waitingTimer(&dialog));
    dialog.setMinimumDuration(-1);
    QVERIFY(!waitingTimer(&dialog));
    dialog.setMinimumDuration(400);
    timer = waitingTimer(&dialog);
    QVERIFY(timer && timer->interval() == 400);
    fire(timer);
    QVERIFY(dialog.isVisible() && !waitingTimer(&dialog));
}

void ProgressTest::longLinesLoseTheirMiddle()
{
    const QString path = QStringLiteral("Reading /") + QString(5000, u'm') + QStringLiteral(".png");
    ZelProgressDialog dialog(QStringLiteral("Rendering"));
    dialog.setText(QStringLiteral("Reading\n") + path);
    const auto *label = dialog.findChild<QLabel *>();
    QVERIFY(label->text().startsWith(QLatin1String("Reading\nReading /mm")));
    QVERIFY(label->text().endsWith(QLatin1String("m.png")));
    QVERIFY(dialog.sizeHint().width() < 45 * ZelFontMetrics(&dialog).widthM());
    QVERIFY(label->toolTip().contains(path));

    QWidget window;
    ZelProgressObserverDialog observer(&window, {}, false, false);
    observer.setText(path);
    QVERIFY(observerDialog(&window)->sizeHint().width() < 45 * ZelFontMetrics(&window).widthM());
    dialog.setText(QStringLiteral("<b>Done</b>"));
    QCOMPARE(label->text() + label->toolTip(), QStringLiteral("<b>Done</b>"));
}

void ProgressTest::theObserverFollowsTheWork()
{
    QWidget window;
    window.show();
    auto observer = std::make_unique<ZelProgressObserverDialog>(&window, QString(), false, true);
    const QPointer<QProgressDialog> dialog = observerDialog(&window);
    QCOMPARE(dialog->windowFlags(), Qt::WindowFlags(0x2001003));
    QCOMPARE(dialog->minimumWidth(), 200);
    QVERIFY(!dialog->isVisible() && !waitingTimer(dialog));

    observer->open(QStringLiteral("Reading"));
    observer->setText(QStringLiteral("file 1"));
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog->windowTitle() + u' ' + dialog->labelText(), QStringLiteral("Reading file 1"));
    QVERIFY(observer->progress(40));
    QCOMPARE(dialog->value(), 40);
    QTimer::singleShot(0, dialog, [dialog] { dialog->findChild<QPushButton *>()->click(); });
    QVERIFY(!observer->progress(50));
    // The end of the range doesn't make it forget.
    QVERIFY(!observer->progress(100));
    observer->close();
    QVERIFY(observer->cancelled() && !dialog->isVisible());

    observer->open(QStringLiteral("Again"));
    QVERIFY(observer->progress(100) && dialog->isVisible());
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Again"));
    observer->close();
    QVERIFY(!observer->cancelled() && !dialog->isVisible());
    observer.reset();
    QVERIFY(dialog);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!dialog);
}

void ProgressTest::theUsersCloseIsACancel_data()
{
    QTest::addColumn<bool>("noCancel");
    QTest::newRow("with cancel") << false;
    QTest::newRow("without") << true;
}

void ProgressTest::theUsersCloseIsACancel()
{
    QFETCH(const bool, noCancel);
    QWidget window;
    ZelProgressObserverDialog observer(&window, QStringLiteral("Title"), noCancel, false);
    QProgressDialog *dialog = observerDialog(&window);
    QCOMPARE(dialog->findChild<QPushButton *>() == nullptr, noCancel);
    for (const bool byKey : {true, false}) {
        observer.open(QStringLiteral("Other"));
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Title"));
        QCloseEvent event;
        QSpontaneKeyEvent::setSpontaneous(&event);
        if (byKey)
            dialog->reject();
        else
            qApp->notify(dialog, &event);
        QCOMPARE(observer.cancelled(), !noCancel);
        QCOMPARE(dialog->isVisible(), noCancel);
        QCOMPARE(observer.progress(10), noCancel);
    }
}

void ProgressTest::theObserverOutlivesItsDialog()
{
    auto window = std::make_unique<QWidget>();
    ZelProgressObserverDialog observer(window.get(), QString(), true, true);
    IProgressObserver *interface = &observer;
    interface->open(QStringLiteral("Title"));
    window.reset();
    interface->open(QStringLiteral("Title"));
    interface->setText(QStringLiteral("Text"));
    QVERIFY(interface->progress(5) && !interface->cancelled());
    interface->close();
}

void ProgressTest::theSplashWindowTakesItsPicture_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("hasPicture");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QColor>("color");
    const QColor window = QApplication::palette().color(QPalette::Window);
    QTest::newRow("own") << 2 << true << QSize(200, 100) << QColor(Qt::red);
    QTest::newRow("own, missing") << 2 << false << QSize(841, 437) << window;
    QTest::newRow("plain") << 7 << true << QSize(841, 437) << window;
    QTest::newRow("built-in") << 1 << true << QSize(841, 437) << QColor();
}

void ProgressTest::theSplashWindowTakesItsPicture()
{
    QFETCH(const int, type);
    QFETCH(const bool, hasPicture);
    QFETCH(const QSize, size);
    QFETCH(const QColor, color);
    QPixmap picture;
    if (hasPicture) {
        picture = QPixmap(400, 200);
        picture.setDevicePixelRatio(2);
        picture.fill(Qt::red);
    }
    const ZelSplashWindow splash(ZelSplashWindow::SplashType(type), QPoint(), nullptr, false,
                                 picture, QPoint(20, 30));
    QVERIFY(splash.isVisible());
    QCOMPARE(splash.windowFlags(), Qt::WindowFlags(2063));
    QCOMPARE(splash.windowModality(), Qt::ApplicationModal);
    QCOMPARE(splash.size(), size);
    const QPoint middle = splash.screen()->availableGeometry().center();
    QVERIFY((splash.geometry().center() - middle).manhattanLength() <= 2);
    const QColor shown = pictureOf(const_cast<ZelSplashWindow *>(&splash)).pixelColor(5, 90);
    if (color.isValid())
        QCOMPARE(shown, color);
    else
        QVERIFY(shown.blue() > shown.red());
}

void ProgressTest::theSplashWindowChoosesItsScreen()
{
    QWidget parent;
    parent.setGeometry(2000, 100, 100, 100);
    const auto screenAt = [](QPoint where, QWidget *parent) {
        const ZelSplashWindow splash(ZelSplashWindow::OwnPicture, where, parent, false,
                                     QPixmap(100, 50));
        return splash.screen()->name();
    };
    const QPoint nowhere(-5000, 0);
    QCOMPARE(screenAt(QPoint(), &parent), QStringLiteral("left"));
    QCOMPARE(screenAt(QPoint(2000, 50), nullptr), QStringLiteral("right"));
    QCOMPARE(screenAt(nowhere, &parent), QStringLiteral("right"));
    QCOMPARE(screenAt(nowhere, nullptr), QStringLiteral("left"));
}

void ProgressTest::theSplashWindowPaintsItsProgress()
{
    const auto type = ZelSplashWindow::SplashType(-1);
    ZelSplashWindow splash(type);
    ZelSplashWindow labelled(type, QPoint(), nullptr, true);
    ZelAbstractProgressBar *bar = &splash;
    QCOMPARE(filledColumns(&splash), 0);
    bar->setProgress(0.5F);
    const int half = filledColumns(&splash);
    QVERIFY2(half >= 76 && half <= 80, qPrintable(QString::number(half)));
    bar->setProgress(1.5F);
    QVERIFY(filledColumns(&splash) >= 156);
    for (const float nothing : {-1.0F, 0.0F, std::nanf("")}) {
        bar->setProgress(nothing);
        QCOMPARE(filledColumns(&splash), 0);
    }
    const QRect labelArea(130, 120, 160, 20);
    const QImage empty = pictureOf(&splash);
    const QImage label = pictureOf(&labelled).copy(labelArea);
    QVERIFY(label != empty.copy(labelArea));

    // The legal line stands under the bar, on as many lines as it has.
    QCOMPARE(splash.legalLine().count(QString::number(QDate::currentDate().year())), 1);
    const QRect thirdLine(130, 358, 300, 30);
    splash.setLegalLine(QString());
    const QImage bare = pictureOf(&splash);
    splash.setLegalLine(QStringLiteral("First, %1\n\nThird, %1"));
    QCOMPARE(ZelSplashPainting::legalLine(QStringLiteral("%1 a %1"), 2031),
             QStringLiteral("2031 a 2031"));
    const QImage lines = pictureOf(&splash);
    QVERIFY(lines.copy(thirdLine) != bare.copy(thirdLine));
    QCOMPARE(lines.copy(0, 0, 841, 341), bare.copy(0, 0, 841, 341));
}

void ProgressTest::theSplashWindowElidesItsStatus()
{
    ZelSplashWindow splash(ZelSplashWindow::SplashType(-1));
    QCOMPARE(splash.status(), QStringLiteral("Initializing..."));
    static_cast<ZelAbstractProgressBar &>(splash).setStatus(QString(200, u'm'));
    QVERIFY(splash.status().endsWith(QChar(0x2026)));
    QVERIFY(splash.fontMetrics().horizontalAdvance(splash.status()) <= 250);
}

void ProgressTest::theSplashWindowStaysForASecond()
{
    QCOMPARE(ZelSplashPainting::remainingTime(0), 1050);
    QCOMPARE(ZelSplashPainting::remainingTime(200), 850);
    QCOMPARE(ZelSplashPainting::remainingTime(999), 51);
    QCOMPARE(ZelSplashPainting::remainingTime(1000), 0);

    QElapsedTimer time;
    time.start();
    const QPointer<ZelSplashWindow> splash = new ZelSplashWindow(ZelSplashWindow::BuiltIn);
    ZelAbstractProgressBar *bar = splash;
    bar->close_window();
    bar->close_window();
    QVERIFY(splash->isVisible());
    QTRY_VERIFY(!splash);
    QVERIFY(time.elapsed() >= 1000);
}

void ProgressTest::aModalDialogEndsTheSplashWindow()
{
    const QPointer<ZelSplashWindow> splash = new ZelSplashWindow(ZelSplashWindow::BuiltIn);
    QWidget window;
    QLineEdit edit(&window);
    window.show();
    window.activateWindow();
    edit.setFocus();
    QDialog dialog;
    QLineEdit field(&dialog);
    dialog.open();
    dialog.activateWindow();
    field.setFocus();
    QTRY_VERIFY(!splash);
}

void ProgressTest::screenReadersHearTheProgress()
{
    ZelProgressDialog dialog(QStringLiteral("Rendering"));
    const auto bars = dialog.findChildren<QProgressBar *>();
    dialog.setValue(30);
    QCOMPARE(nameAndValue(bars[0]), QStringLiteral("Rendering 30"));
    dialog.setText(QString());
    QCOMPARE(nameAndValue(bars[0]), QStringLiteral("Progress 30"));
    dialog.setValueSecond(7);
    QCOMPARE(nameAndValue(bars[1]), QStringLiteral("Current step 7"));
    ZelSplashWindow splash(ZelSplashWindow::BuiltIn);
    ZelAbstractProgressBar *bar = &splash;
    bar->setStatus(QStringLiteral("Loading"));
    bar->setProgress(0.25F);
    QCOMPARE(nameAndValue(&splash), QStringLiteral("Loading 25%"));
    QAccessibleInterface *access = QAccessible::queryAccessibleInterface(&splash);
    QCOMPARE(access->valueInterface()->currentValue(), QVariant(25));
}

ZEL_TEST_MAIN(ProgressTest)
#include "tst_progress.moc"
