#include "TestCase.h"
#include "color/ZelLoupe.h"
#include "color/ZelScreenGrabber.h"
#include "color/ZelScreenSample.h"

#include <ZelCore/ZelDesktopColorPicker>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelEyeDropper>

#include <QPainter>
#include <QScreen>
#include <QSignalSpy>

#include <cmath>

namespace {

/// Every pixel of a device has a colour of its own, within reach of the eye dropper.
QRgb pixelOf(int screen, int x, int y)
{
    return qRgb(x & 0xff, y & 0xff, 1 + screen * 16 + (x >> 8) % 4 * 4 + (y >> 8) % 4);
}

QImage picture(int screen, const QRect &pixels)
{
    QImage image(pixels.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, pixelOf(screen, pixels.x() + x, pixels.y() + y));
    }
    return image;
}

/// What a window system gives for a region: it starts and ends on whole pixels.
QImage grabbed(int screen, const QRect &region, qreal ratio)
{
    const QRect pixels(qRound(region.x() * ratio), qRound(region.y() * ratio),
                       qRound(region.width() * ratio), qRound(region.height() * ratio));
    return picture(screen, pixels);
}

class FakeGrabber : public ZelScreenGrabber
{
public:
    bool canGrab() const override { return sees; }
    bool seesOwnWindowsOnly() const override { return seesLittle; }
    QImage grab(QScreen *screen, const QRect &region) const override
    {
        ++grabs;
        if (isBlind)
            return {};
        return grabbed(int(QGuiApplication::screens().indexOf(screen)), region,
                       screen->devicePixelRatio());
    }
    bool sees = true;
    bool seesLittle = false;
    bool isBlind = false;
    mutable int grabs = 0;
};

class FakePicker : public ZelDesktopColorPicker
{
public:
    bool isAvailable() override { return available; }
    void pick(const QString &, QObject *context, const Answer &answer) override
    {
        ++picks;
        QMetaObject::invokeMethod(
            context, [this, answer] { answer(color); }, Qt::QueuedConnection);
    }
    bool available = false;
    QColor color;
    int picks = 0;
};

void sendMouse(QWidget *widget, QEvent::Type type, const QPointF &place,
               Qt::MouseButton button = Qt::NoButton)
{
    const QPointF local = place - widget->mapToGlobal(QPoint(0, 0));
    QMouseEvent event(type, local.toPoint(), local, place, button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class EyeDropperTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void samplesAreRightAtEveryScale_data();
    void samplesAreRightAtEveryScale();
    void edgesAreCutOff();
    void loupeStandsClearOfTheCursor();
    void loupeMarksTheMiddle();
    void picksOnBothScreens_data();
    void picksOnBothScreens();
    void picksWhatIsReallyOnTheScreen();
    void keysGoPixelByPixel();
    void everyEndGivesTheCursorBack_data();
    void everyEndGivesTheCursorBack();
    void meansAreChosen_data();
    void meansAreChosen();

private:
    FakeGrabber *grabber_ = nullptr;
    FakePicker *picker_ = nullptr;
};

void EyeDropperTest::init()
{
    TestCase::init();
    auto grabber = std::make_unique<FakeGrabber>();
    auto picker = std::make_unique<FakePicker>();
    grabber_ = grabber.get();
    picker_ = picker.get();
    ZelScreenGrabber::setInstance(std::move(grabber));
    ZelDesktopColorPicker::setInstance(std::move(picker));
}

void EyeDropperTest::cleanup()
{
    ZelScreenGrabber::setInstance(nullptr);
    ZelDesktopColorPicker::setInstance(nullptr);
    TestCase::cleanup();
}

void EyeDropperTest::samplesAreRightAtEveryScale_data()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0})
        QTest::addRow("%g", ratio) << ratio;
}

void EyeDropperTest::samplesAreRightAtEveryScale()
{
    QFETCH(double, ratio);
    const QSize screen(801, 603);
    for (int i = 0; i < 2000; ++i) {
        const QPoint pixel(i * 37 % int(screen.width() * ratio),
                           i * 53 % int(screen.height() * ratio));
        const QPointF place((pixel.x() + 0.5) / ratio, (pixel.y() + 0.5) / ratio);
        const QRect region = ZelScreenSample::regionAround(place, screen, ratio, ZelLoupe::pixels);
        QVERIFY(QRect(QPoint(0, 0), screen).contains(region));
        const ZelScreenSample sample(grabbed(0, region, ratio), region, place);
        QCOMPARE(sample.color().rgb(), pixelOf(0, pixel.x(), pixel.y()));
        QCOMPARE(sample.cutOut(15).pixel(0, 7),
                 pixel.x() < 7 ? 0U : pixelOf(0, pixel.x() - 7, pixel.y()));
    }
}

void EyeDropperTest::edgesAreCutOff()
{
    const QSize screen(1920, 1080);
    const QRect region = ZelScreenSample::regionAround({1919.5, 0}, screen, 1, 15);
    const ZelScreenSample sample(grabbed(0, region, 1), region, {1919.5, 0});
    const QImage cutOut = sample.cutOut(15);
    QCOMPARE(cutOut.pixel(7, 7), pixelOf(0, 1919, 0));
    QCOMPARE(cutOut.pixel(0, 14), pixelOf(0, 1912, 7));
    QCOMPARE(qAlpha(cutOut.pixel(8, 7)), 0);
    QCOMPARE(qAlpha(cutOut.pixel(7, 6)), 0);

    const QPointF outside(-1, 5);
    QVERIFY(ZelScreenSample(grabbed(0, region, 1), region, outside).isNull());
    QVERIFY(!ZelScreenSample(QImage(), region, {1919, 0}).color().isValid());
    QVERIFY(ZelScreenSample().isNull());
    QVERIFY(ZelScreenSample::regionAround({5000, 5000}, screen, 1, 15).isEmpty());
}

void EyeDropperTest::loupeStandsClearOfTheCursor()
{
    const QRect screen(1920, 0, 1280, 1024);
    const QSize size(242, 290);
    for (int x = screen.left(); x <= screen.right(); x += 29) {
        for (int y = screen.top(); y <= screen.bottom(); y += 31) {
            const QRect loupe(ZelLoupe::placeBeside({x, y}, size, screen), size);
            QVERIFY(screen.contains(loupe));
            QVERIFY(!loupe.intersects(QRect(x - 8, y - 8, 17, 17)));
        }
    }
}

void EyeDropperTest::loupeMarksTheMiddle()
{
    QImage pixels(15, 15, QImage::Format_ARGB32);
    pixels.fill(Qt::red);
    pixels.setPixelColor(7, 7, Qt::blue);
    pixels.setPixelColor(0, 0, Qt::transparent);
    QImage image(240, 240, QImage::Format_RGB32);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        ZelLoupe::paintPixels(&painter, image.rect(), pixels);
    }
    QCOMPARE(image.pixelColor(120, 120), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(112, 120), QColor(Qt::white));
    QCOMPARE(image.pixelColor(111, 120), QColor(Qt::black));
    QCOMPARE(image.pixelColor(104, 120), QColor(Qt::red));
    QVERIFY(image.pixelColor(96, 120) != QColor(Qt::red));
    QVERIFY(image.pixelColor(8, 8) != QColor(Qt::red));
}

void EyeDropperTest::picksOnBothScreens_data()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<int>("screen");
    QTest::addColumn<QPoint>("pixel");
    QTest::newRow("ratio 1") << QPointF(700.25, 300.75) << 0 << QPoint(700, 300);
    QTest::newRow("last of ratio 1") << QPointF(1919, 1079) << 0 << QPoint(1919, 1079);
    QTest::newRow("first of ratio 2") << QPointF(1920, 0) << 1 << QPoint(0, 0);
    QTest::newRow("even pixel") << QPointF(2020, 10) << 1 << QPoint(200, 20);
    QTest::newRow("odd pixel") << QPointF(2020.5, 10.5) << 1 << QPoint(201, 21);
    QTest::newRow("last of ratio 2") << QPointF(3199.5, 1023.5) << 1 << QPoint(2559, 2047);
    QTest::newRow("rounded past the last") << QPointF(3200, 0) << 1 << QPoint(2559, 0);
}

void EyeDropperTest::picksOnBothScreens()
{
    QFETCH(QPointF, place);
    QFETCH(int, screen);
    QFETCH(QPoint, pixel);
    ZelEyeDropper dropper;
    QSignalSpy selected(&dropper, &ZelEyeDropper::colorSelected);
    dropper.open();
    sendMouse(&dropper, QEvent::MouseMove, place);
    QCOMPARE(QGuiApplication::screens().indexOf(dropper.screen()), screen);
    sendMouse(&dropper, QEvent::MouseButtonPress, place, Qt::LeftButton);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(toQColor(selected.first().first().value<ZelColor>()).rgb(),
             pixelOf(screen, pixel.x(), pixel.y()));
    QCOMPARE(dropper.result(), int(QDialog::Accepted));
    QVERIFY(!dropper.isVisible());
}

void EyeDropperTest::picksWhatIsReallyOnTheScreen()
{
    ZelScreenGrabber::setInstance(nullptr);
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setPalette(QPalette(Qt::darkCyan));
    window.setGeometry(QGuiApplication::primaryScreen()->geometry());
    QWidget patch(&window);
    patch.setPalette(QPalette(Qt::magenta));
    patch.setAutoFillBackground(true);
    patch.setGeometry(400, 300, 8, 8);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.repaint();
    const auto picked = [](QPointF place) {
        ZelEyeDropper dropper;
        QSignalSpy selected(&dropper, &ZelEyeDropper::colorSelected);
        dropper.open();
        sendMouse(&dropper, QEvent::MouseButtonPress, place, Qt::LeftButton);
        return selected.isEmpty() ? QColor() : toQColor(selected.first().first().value<ZelColor>());
    };
    const QColor ground = window.palette().color(QPalette::Window);
    const QColor inside = patch.palette().color(QPalette::Window);
    QVERIFY(ground != inside);
    QCOMPARE(picked({399, 304}).name(), ground.name());
    QCOMPARE(picked({400, 300}).name(), inside.name());
    QCOMPARE(picked({407, 307}).name(), inside.name());
    QCOMPARE(picked({408, 304}).name(), ground.name());
}

void EyeDropperTest::keysGoPixelByPixel()
{
    ZelEyeDropper dropper;
    QSignalSpy selected(&dropper, &ZelEyeDropper::colorSelected);
    dropper.open();
    QCursor::setPos(2020, 10);
    sendMouse(&dropper, QEvent::MouseMove, {2020, 10});
    QTest::keyClick(&dropper, Qt::Key_Right);
    QTest::keyClick(&dropper, Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(QCursor::pos(), QPoint(2020, 15));
    // The platform tells of the cursor that was moved, by whole places.
    sendMouse(&dropper, QEvent::MouseMove, {2020, 15});
    const int before = grabber_->grabs;
    QTRY_VERIFY(grabber_->grabs > before + 1);
    QTest::keyClick(&dropper, Qt::Key_Space);
    QCOMPARE(selected.size(), 1);
    QCOMPARE(toQColor(selected.first().first().value<ZelColor>()).rgb(), pixelOf(1, 201, 30));
}

void EyeDropperTest::everyEndGivesTheCursorBack_data()
{
    QTest::addColumn<QString>("end");
    QTest::addColumn<bool>("accepts");
    for (const char *end : {"right button", "escape", "close", "delete", "blind"})
        QTest::newRow(end) << QString::fromLatin1(end) << false;
    QTest::newRow("return") << QStringLiteral("return") << true;
}

void EyeDropperTest::everyEndGivesTheCursorBack()
{
    QFETCH(QString, end);
    auto dropper = std::make_unique<ZelEyeDropper>();
    QSignalSpy selected(dropper.get(), &ZelEyeDropper::colorSelected);
    QSignalSpy accepted(dropper.get(), &QDialog::accepted);
    dropper->open();
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->hotSpot(), QPoint(5, 5));
    QTRY_COMPARE(QWidget::mouseGrabber(), dropper.get());
    sendMouse(dropper.get(), QEvent::MouseMove, {500, 500});
    if (end == QStringLiteral("right button"))
        sendMouse(dropper.get(), QEvent::MouseButtonPress, {500, 500}, Qt::RightButton);
    else if (end == QStringLiteral("escape"))
        QTest::keyClick(dropper.get(), Qt::Key_Escape);
    else if (end == QStringLiteral("return"))
        QTest::keyClick(dropper.get(), Qt::Key_Return);
    else if (end == QStringLiteral("close"))
        dropper->close();
    else if (end == QStringLiteral("delete"))
        dropper.reset();
    grabber_->isBlind = true;
    if (end == QStringLiteral("blind"))
        sendMouse(dropper.get(), QEvent::MouseButtonPress, {500, 500}, Qt::LeftButton);
    QVERIFY(!dropper || !dropper->isVisible());
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(!QWidget::mouseGrabber());
    QVERIFY(!QWidget::keyboardGrabber());
    QTEST(!accepted.isEmpty(), "accepts");
    QTEST(!selected.isEmpty(), "accepts");
}

void EyeDropperTest::meansAreChosen_data()
{
    QTest::addColumn<bool>("sees");
    QTest::addColumn<bool>("seesLittle");
    QTest::addColumn<bool>("portal");
    QTest::addColumn<QColor>("color");
    QTest::addColumn<bool>("available");
    QTest::addColumn<int>("picks");
    const QColor orange(255, 128, 0);
    QTest::newRow("all seen") << true << false << true << orange << true << 0;
    QTest::newRow("own windows, portal") << true << true << true << orange << true << 1;
    QTest::newRow("own windows only") << true << true << false << orange << true << 0;
    QTest::newRow("portal") << false << false << true << orange << true << 1;
    QTest::newRow("portal, cancelled") << false << false << true << QColor() << true << 1;
    QTest::newRow("neither") << false << false << false << orange << false << 0;
}

void EyeDropperTest::meansAreChosen()
{
    QFETCH(bool, sees);
    QFETCH(bool, available);
    QFETCH(int, picks);
    QFETCH(QColor, color);
    grabber_->sees = sees;
    grabber_->seesLittle = *static_cast<bool *>(QTest::qData("seesLittle", qMetaTypeId<bool>()));
    picker_->available = *static_cast<bool *>(QTest::qData("portal", qMetaTypeId<bool>()));
    picker_->color = color;
    QString reason = QStringLiteral("old");
    QCOMPARE(ZelEyeDropper::isAvailable(&reason), available);
    QCOMPARE(reason.isEmpty(), available);

    ZelEyeDropper dropper;
    QSignalSpy selected(&dropper, &ZelEyeDropper::colorSelected);
    const bool grabs = available && picks == 0;
    if (grabs)
        QTimer::singleShot(0, &dropper, [&dropper] {
            sendMouse(&dropper, QEvent::MouseButtonPress, {5, 5}, Qt::LeftButton);
        });
    const bool accepts = grabs || (picks > 0 && color.isValid());
    QCOMPARE(dropper.exec() == QDialog::Accepted, accepts);
    QCOMPARE(picker_->picks, picks);
    QCOMPARE(selected.size(), accepts ? 1 : 0);
    if (accepts && !grabs)
        QCOMPARE(toQColor(selected.first().first().value<ZelColor>()).name(), color.name());
    QVERIFY(!QApplication::overrideCursor());
}

ZEL_TEST_MAIN(EyeDropperTest)
#include "tst_eye_dropper.moc"
