#include "TestCase.h"

#include "UserInput.h"

#include <ZelWidgets/ZelImageCropDialog>
#include <ZelWidgets/ZelImageCropWidget>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelSubRectSelector>

#include <QDialogButtonBox>
#include <QPainter>
#include <QRandomGenerator>
#include <QScrollArea>

Q_DECLARE_METATYPE(Qt::CursorShape)

namespace {

QRect rectOf(const ZelSubRectSelector &selector)
{
    return {selector.position(), selector.cropSize()};
}

/// In a picture of 400 by 300, the rectangle (100, 50), 200 by 100.
ZelSubRectSelector selectorInTheMiddle()
{
    ZelSubRectSelector selector(QSize(20, 10));
    selector.setImageSize({400, 300});
    selector.growBy({-200, 0});
    selector.moveBy({100, 0});
    return selector;
}

void drag(ZelSubRectSelector *selector, QPoint from, QPoint to)
{
    selector->mouseMove(from);
    selector->mousePress(from);
    selector->mouseMove(to);
    selector->mouseRelease();
}

QPixmap noise(QSize size, bool hasAlpha)
{
    QImage image(size, hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, hasAlpha ? random.generate() : random.generate() | 0xff000000U);
    }
    return QPixmap::fromImage(image);
}

/// The picture as it has to be shown, composed as a whole.
QImage composed(const QPixmap &picture, const QRect &rect)
{
    QPixmap shown(picture.size());
    shown.fill(QColor(70, 50, 50, 200));
    QPainter painter(&shown);
    painter.fillRect(rect, Qt::white);
    painter.setCompositionMode(QPainter::CompositionMode_Multiply);
    painter.drawPixmap(0, 0, picture);
    painter.setPen(Qt::black);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    painter.end();
    return shown.toImage();
}

/// What was painted of a widget while it lives.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region_ += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
    QRegion region_;
};

QImage shownBy(const ZelImageCropWidget &widget)
{
    return widget.pixmap(Qt::ReturnByValue).toImage();
}

} // namespace

class CropTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theFirstRectangleIsTheLargestOfTheRatio_data();
    void theFirstRectangleIsTheLargestOfTheRatio();
    void edgesAndCornersAreFoundAndDragged_data();
    void edgesAndCornersAreFoundAndDragged();
    void theRectangleIsMovedFromAnywhereElse();
    void theSmallestRectangleStaysButCanGrow();
    void theRectangleNeverLeavesThePicture();
    void emptySizesDoNoHarm();
    void theWidgetShowsWhatAWholeCompositionWould_data();
    void theWidgetShowsWhatAWholeCompositionWould();
    void aStepRepaintsWhatItChanges();
    void theCursorTellsTheDrag();
    void theKeysMoveAndResize();
    void cuttingTwiceCutsTheCut();
    void theDialogGivesThePartInside();
    void aLargePictureScrolls();
};

void CropTest::theFirstRectangleIsTheLargestOfTheRatio_data()
{
    QTest::addColumn<QSize>("ratio");
    QTest::addColumn<QSize>("image");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("wide") << QSize(20, 10) << QSize(400, 300) << QRect(0, 50, 400, 200);
    QTest::newRow("tall") << QSize(1, 2) << QSize(400, 300) << QRect(125, 0, 150, 300);
    QTest::newRow("truncated") << QSize(3, 2) << QSize(100, 100) << QRect(0, 17, 100, 66);
    QTest::newRow("same size") << QSize(33, 47) << QSize(33, 47) << QRect(0, 0, 33, 47);
    QTest::newRow("one pixel") << QSize(16, 9) << QSize(1, 1) << QRect(0, 0, 1, 1);
    QTest::newRow("strip") << QSize(1, 1) << QSize(20000, 10) << QRect(9995, 0, 10, 10);
    QTest::newRow("no such ratio") << QSize(1, 100) << QSize(20000, 10) << QRect(9999, 0, 1, 10);
}

void CropTest::theFirstRectangleIsTheLargestOfTheRatio()
{
    QFETCH(const QSize, ratio);
    QFETCH(const QSize, image);
    QFETCH(const QRect, rect);
    ZelSubRectSelector selector(ratio);
    QCOMPARE(selector.cropSize(), ratio);
    selector.setImageSize(image);
    QCOMPARE(rectOf(selector), rect);
}

void CropTest::edgesAndCornersAreFoundAndDragged_data()
{
    QTest::addColumn<QPoint>("from");
    QTest::addColumn<QPoint>("by");
    QTest::addColumn<Qt::CursorShape>("shape");
    QTest::addColumn<QRect>("rect");
    const auto row = [](const char *name, QPoint from, QPoint by, Qt::CursorShape shape,
                        QRect rect) {
        QTest::newRow(name) << from << by << shape << rect;
    };
    row("inside", {200, 100}, {7, -9}, Qt::ClosedHandCursor, {107, 41, 200, 100});
    row("outside", {10, 250}, {7, -9}, Qt::ClosedHandCursor, {107, 41, 200, 100});
    row("just off the corner", {305, 155}, {1, 1}, Qt::ClosedHandCursor, {101, 51, 200, 100});
    row("top left", {95, 45}, {20, 20}, Qt::SizeFDiagCursor, {140, 70, 160, 80});
    row("top left, outward", {104, 54}, {-40, -20}, Qt::SizeFDiagCursor, {60, 30, 240, 120});
    row("top right", {304, 45}, {-20, 20}, Qt::SizeBDiagCursor, {100, 70, 160, 80});
    row("bottom left", {95, 154}, {20, -20}, Qt::SizeBDiagCursor, {140, 50, 160, 80});
    row("bottom right", {304, 154}, {-20, -20}, Qt::SizeFDiagCursor, {100, 50, 160, 80});
    row("bottom right, one way", {304, 154}, {-50, 40}, Qt::SizeFDiagCursor, {100, 50, 150, 75});
    row("bottom right, too far", {304, 154}, {900, 900}, Qt::SizeFDiagCursor, {100, 50, 300, 150});
    row("top left, too far", {95, 45}, {-900, -900}, Qt::SizeFDiagCursor, {0, 0, 300, 150});
    row("top", {200, 45}, {0, 20}, Qt::SizeVerCursor, {100, 70, 160, 80});
    row("top, outward", {200, 45}, {0, -20}, Qt::SizeVerCursor, {100, 30, 240, 120});
    row("bottom", {200, 154}, {0, -20}, Qt::SizeVerCursor, {100, 50, 160, 80});
    row("bottom, too far", {200, 154}, {0, 900}, Qt::SizeVerCursor, {100, 50, 300, 150});
    row("left", {95, 100}, {20, 0}, Qt::SizeHorCursor, {120, 50, 180, 90});
    row("right", {304, 100}, {-20, 0}, Qt::SizeHorCursor, {100, 50, 180, 90});
    row("right, outward", {304, 100}, {20, 0}, Qt::SizeHorCursor, {100, 50, 220, 110});
    row("right, inside out", {304, 100}, {-900, 0}, Qt::SizeHorCursor, {100, 50, 10, 5});
    row("not moved", {95, 45}, {0, 0}, Qt::SizeFDiagCursor, {100, 50, 200, 100});
}

void CropTest::edgesAndCornersAreFoundAndDragged()
{
    QFETCH(const QPoint, from);
    QFETCH(const QPoint, by);
    QFETCH(const Qt::CursorShape, shape);
    QFETCH(const QRect, rect);
    ZelSubRectSelector selector = selectorInTheMiddle();
    QCOMPARE(rectOf(selector), QRect(100, 50, 200, 100));
    QCOMPARE(selector.cursorShape(), Qt::ArrowCursor);
    selector.mouseMove(from);
    QCOMPARE(selector.cursorShape(), shape);
    selector.mousePress(from);
    QVERIFY(selector.isDragging());
    // The way there leaves nothing behind.
    selector.mouseMove(from - by * 3);
    selector.mouseMove(from + by);
    selector.mouseRelease();
    QVERIFY(!selector.isDragging());
    QCOMPARE(rectOf(selector), rect);
}

void CropTest::theRectangleIsMovedFromAnywhereElse()
{
    ZelSubRectSelector selector = selectorInTheMiddle();
    // Without a hover before, even on a corner.
    selector.mousePress({100, 50});
    selector.mouseMove({130, 60});
    QCOMPARE(rectOf(selector), QRect(130, 60, 200, 100));
    selector.mouseMove({-1000, 1000});
    QCOMPARE(rectOf(selector), QRect(0, 200, 200, 100));
    // Neither the keys take part in a drag.
    selector.moveBy({5, 5});
    selector.growBy({5, 5});
    QCOMPARE(rectOf(selector), QRect(0, 200, 200, 100));
    selector.mouseRelease();
    selector.mouseMove({300, 100});
    QCOMPARE(rectOf(selector), QRect(0, 200, 200, 100));
}

void CropTest::theSmallestRectangleStaysButCanGrow()
{
    ZelSubRectSelector selector(QSize(10, 10));
    selector.setImageSize({100, 100});
    drag(&selector, {104, 104}, {0, 0});
    QCOMPARE(rectOf(selector), QRect(0, 0, 10, 10));
    drag(&selector, {14, 14}, {-50, -50});
    QCOMPARE(rectOf(selector), QRect(0, 0, 10, 10));

    // Opposite edges are both under the mouse.
    ZelSubRectSelector flat(QSize(40, 10));
    flat.setImageSize({200, 100});
    flat.growBy({-200, 0});
    QCOMPARE(rectOf(flat), QRect(0, 25, 10, 2));
    drag(&flat, {12, 26}, {52, 90});
    QCOMPARE(rectOf(flat), QRect(0, 25, 50, 12));
}

void CropTest::theRectangleNeverLeavesThePicture()
{
    QRandomGenerator random(11);
    const auto length = [&random] {
        return 1 + int(random.bounded(120));
    };
    for (int round = 0; round < 300; ++round) {
        const QSize image(length(), length());
        ZelSubRectSelector selector(QSize(length(), length()));
        selector.setImageSize(image);
        for (int step = 0; step < 30; ++step) {
            drag(&selector, {length() - 10, length() - 10}, {length() - 30, length() - 30});
            const QRect rect = rectOf(selector);
            QVERIFY2(QRect(QPoint(), image).contains(rect) && !rect.isEmpty(),
                     qPrintable(QStringLiteral("round %1, step %2").arg(round).arg(step)));
        }
    }
}

void CropTest::emptySizesDoNoHarm()
{
    messages().expect(QtWarningMsg, QStringLiteral("the crop size is empty"));
    ZelSubRectSelector selector(QSize(0, 7));
    selector.setImageSize({30, 20});
    QCOMPARE(rectOf(selector), QRect(5, 0, 20, 20));
    selector.setImageSize({-4, 0});
    drag(&selector, {0, 0}, {5, 5});
    QVERIFY(rectOf(selector).isEmpty());

    messages().expect(QtWarningMsg, QStringLiteral("there is no picture to crop"));
    ZelImageCropWidget widget(QPixmap(), QSize(16, 9));
    widget.show();
    UserInput::drag(&widget, {2, 2}, {9, 9});
    QTest::keyClick(&widget, Qt::Key_Right);
    widget.cropImage();
    QVERIFY(widget.getImage().isNull() && widget.cropRect().isEmpty());
}

void CropTest::theWidgetShowsWhatAWholeCompositionWould_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("hasAlpha");
    QTest::newRow("opaque") << QSize(200, 120) << false;
    QTest::newRow("alpha") << QSize(200, 120) << true;
    QTest::newRow("one pixel") << QSize(1, 1) << true;
    QTest::newRow("strip") << QSize(20000, 10) << false;
}

void CropTest::theWidgetShowsWhatAWholeCompositionWould()
{
    QFETCH(const QSize, size);
    QFETCH(const bool, hasAlpha);
    const QPixmap picture = noise(size, hasAlpha);
    ZelImageCropWidget widget(picture, QSize(4, 3));
    QCOMPARE(shownBy(widget), composed(picture, widget.cropRect()));
    const QList<QPoint> points{{90, 60}, {100, 60}, {140, 90}, {20, 10}, {26, 119}, {0, 0}};
    for (int i = 1; i < points.size(); ++i) {
        UserInput::move(&widget, points[i - 1], {}, Qt::NoButton);
        // Somebody who keeps a picture keeps it unchanged.
        const QPixmap kept = widget.pixmap(Qt::ReturnByValue);
        const QImage before = composed(picture, widget.cropRect());
        UserInput::drag(&widget, points[i - 1], points[i], {}, Qt::LeftButton, 3);
        QTest::keyClick(&widget, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(shownBy(widget), composed(picture, widget.cropRect()));
        QCOMPARE(kept.toImage(), before);
    }
}

void CropTest::aStepRepaintsWhatItChanges()
{
    ZelImageCropWidget widget(noise({200, 120}, false), QSize(1, 1));
    widget.setMargin(3);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
    QCoreApplication::processEvents();
    const QImage before = widget.grab().toImage();
    const PaintedRegion painted(&widget);
    QTest::keyClick(&widget, Qt::Key_Right, Qt::ShiftModifier);
    QTRY_VERIFY(!painted.region_.isEmpty());
    const QRegion region = painted.region_;
    const QImage after = widget.grab().toImage();
    QVERIFY(after != before && !region.contains(widget.rect().center()));
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x)
            QVERIFY(after.pixel(x, y) == before.pixel(x, y) || region.contains(QPoint(x, y)));
    }
}

void CropTest::theCursorTellsTheDrag()
{
    ZelImageCropWidget widget(noise({200, 100}, false), QSize(1, 1));
    QCOMPARE(widget.cropRect(), QRect(50, 0, 100, 100));
    widget.show();
    QVERIFY(!widget.testAttribute(Qt::WA_SetCursor));
    UserInput::move(&widget, {50, 50}, {}, Qt::NoButton);
    QCOMPARE(widget.cursor().shape(), Qt::SizeHorCursor);
    UserInput::move(&widget, {100, 50}, {}, Qt::NoButton);
    QCOMPARE(widget.cursor().shape(), Qt::ClosedHandCursor);
    // Other buttons drag nothing.
    UserInput::drag(&widget, {100, 50}, {110, 50}, {}, Qt::RightButton);
    QCOMPARE(widget.cropRect(), QRect(50, 0, 100, 100));
    UserInput::drag(&widget, {100, 50}, {110, 50});
    QCOMPARE(widget.cropRect(), QRect(60, 0, 100, 100));
}

void CropTest::theKeysMoveAndResize()
{
    ZelImageCropWidget widget(noise({200, 120}, false), QSize(2, 1));
    const auto press = [&widget](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(&widget, key, modifiers);
        return widget.cropRect();
    };
    const Qt::KeyboardModifiers resize = Qt::ControlModifier;
    QCOMPARE(press(Qt::Key_Up, Qt::NoModifier), QRect(0, 9, 200, 100));
    QCOMPARE(press(Qt::Key_Left, resize | Qt::ShiftModifier), QRect(0, 9, 190, 95));
    QCOMPARE(press(Qt::Key_Right, Qt::ShiftModifier), QRect(10, 9, 190, 95));
    QCOMPARE(press(Qt::Key_Up, resize), QRect(10, 9, 188, 94));
    QCOMPARE(press(Qt::Key_Down, resize | Qt::KeypadModifier), QRect(10, 9, 190, 95));
    QCOMPARE(press(Qt::Key_Right, resize), QRect(10, 9, 190, 95));
    QCOMPARE(press(Qt::Key_Down, Qt::AltModifier), QRect(10, 9, 190, 95));
    QVERIFY(!widget.accessibleName().isEmpty());
    QVERIFY(widget.accessibleDescription().startsWith(QLatin1String("190 by 95 pixels at 10, 9")));
}

void CropTest::cuttingTwiceCutsTheCut()
{
    const QPixmap picture = noise({210, 120}, false);
    ZelImageCropWidget widget(picture, QSize(7, 1));
    QCOMPARE(widget.cropRect(), QRect(0, 45, 210, 30));
    QCOMPARE(widget.getImage(), picture.copy(0, 45, 210, 30).toImage());
    widget.cropImage();
    QCOMPARE(widget.cropRect(), QRect(0, 0, 210, 30));
    widget.cropImage();
    QCOMPARE(widget.getImage(), picture.copy(0, 45, 210, 30).toImage());
    QTest::keyClick(&widget, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&widget, Qt::Key_Right);
    widget.cropImage();
    QCOMPARE(widget.getImage(), picture.copy(1, 45, 200, 28).toImage());
    QCOMPARE(widget.size(), QSize(200, 28));
    QCOMPARE(shownBy(widget), composed(picture.copy(1, 45, 200, 28), QRect(0, 0, 200, 28)));
}

void CropTest::theDialogGivesThePartInside()
{
    const QPixmap picture = noise({200, 120}, true);
    ZelImageCropDialog dialog(picture, QSize(1, 1));
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    QCOMPARE(buttons->button(QDialogButtonBox::Ok)->text(), QStringLiteral("Apply"));
    QCOMPARE(buttons->button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Cancel"));
    auto *crop = dialog.findChild<ZelPushButton *>();
    QCOMPARE(crop->text(), QStringLiteral("Crop"));
    dialog.open();
    auto *widget = dialog.findChild<ZelImageCropWidget *>();
    // All of a picture that fits on the screen is seen.
    QTRY_COMPARE(widget->visibleRegion().boundingRect().size(), QSize(200, 120));
    UserInput::drag(widget, {100, 60}, {110, 60});
    crop->click();
    QCOMPARE(widget->size(), QSize(120, 120));
    buttons->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.getImage(), picture.copy(50, 0, 120, 120).toImage());
    dialog.open();
    buttons->button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void CropTest::aLargePictureScrolls()
{
    QPixmap picture(3000, 2000);
    picture.fill(Qt::gray);
    picture.setDevicePixelRatio(2);
    ZelImageCropDialog dialog(picture, QSize(1, 1));
    dialog.open();
    const QSize screen = dialog.screen()->availableGeometry().size();
    QVERIFY(dialog.width() <= screen.width() && dialog.height() <= screen.height());
    auto *widget = dialog.findChild<ZelImageCropWidget *>();
    QCOMPARE(widget->size(), QSize(3000, 2000));
    // The keys bring the rectangle into sight.
    for (int i = 0; i < 180; ++i)
        QTest::keyClick(widget, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
    for (int i = 0; i < 250; ++i)
        QTest::keyClick(widget, Qt::Key_Right, Qt::ShiftModifier);
    QCOMPARE(widget->cropRect(), QRect(2800, 0, 200, 200));
    QVERIFY(widget->visibleRegion().contains(widget->cropRect().center()));
}

ZEL_TEST_MAIN(CropTest)
#include "tst_crop.moc"
