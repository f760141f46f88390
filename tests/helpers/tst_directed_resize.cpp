#include "TestCase.h"
#include "UserInput.h"

#include <ZelWidgets/ZelDirectedResizeWidget>

#include <QBoxLayout>

namespace {

class HintWidget : public QWidget
{
public:
    explicit HintWidget(QSize hint)
        : hint_(hint)
    {}
    QSize sizeHint() const override { return hint_; }
    void setHint(QSize hint)
    {
        hint_ = hint;
        updateGeometry();
    }

private:
    QSize hint_;
};

QWidget *handleOf(const ZelDirectedResizeWidget &widget)
{
    return widget.findChild<QWidget *>(QStringLiteral("DirectedResizeHandle"));
}

} // namespace

/// The widget whose size is dragged along one direction.
class TestDirectedResize : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theSizeStartsAsTheHintAndIsSetToThePixel();
    void theSizeFollowsTheContent();
    void draggingChangesTheSizeInItsDirection();
    void arrowKeysMoveTheHandleAndItStopsAtZero();
    void theHandleCanBeSeenAndNamed();
    void anotherWidgetReplacesTheFormerOne();
};

void TestDirectedResize::theSizeStartsAsTheHintAndIsSetToThePixel()
{
    ZelDirectedResizeWidget widget(Qt::Horizontal);
    widget.setWidget(new HintWidget(QSize(41, 30)));
    const QSize natural = widget.sizeHint();
    QCOMPARE(natural, QSize(41 + handleOf(widget)->sizeHint().width(), 30));
    for (int size = 0; size < 400; ++size) {
        widget.setDirectedSize(size);
        QCOMPARE(widget.directedSize(), size);
    }
    QCOMPARE(widget.sizeHint().height(), natural.height());
    widget.setDirectedSize(-5);
    QCOMPARE(widget.directedSize(), 0);

    ZelDirectedResizeWidget empty(Qt::Vertical);
    empty.setDirectedSize(100);
    QCOMPARE(empty.sizeHint().height(), 100);
}

void TestDirectedResize::theSizeFollowsTheContent()
{
    ZelDirectedResizeWidget widget(Qt::Vertical);
    auto *content = new HintWidget(QSize(10, 50));
    widget.setWidget(content);
    const int natural = widget.directedSize();
    widget.setDirectedSize(2 * natural);
    content->setHint(QSize(10, 150));
    QCOMPARE(widget.directedSize(), 2 * (natural + 100));
    content->setHint(QSize(10, 5000000));
    widget.setDirectedSize(std::numeric_limits<int>::max());
    QCOMPARE(widget.directedSize(), QWIDGETSIZE_MAX);
}

void TestDirectedResize::draggingChangesTheSizeInItsDirection()
{
    const std::tuple<Qt::Orientation, Qt::LayoutDirection, QPoint, int> rows[] = {
        {Qt::Horizontal, Qt::LeftToRight, {30, 99}, 30},
        {Qt::Horizontal, Qt::LeftToRight, {-30, 0}, -30},
        {Qt::Horizontal, Qt::RightToLeft, {-30, 0}, 30},
        {Qt::Vertical, Qt::RightToLeft, {99, 30}, 30}};
    for (const auto &row : rows) {
        const auto [orientation, layoutDirection, way, change] = row;
        QWidget window;
        window.setLayoutDirection(layoutDirection);
        auto *layout = new QGridLayout(&window);
        ZelDirectedResizeWidget widget(orientation);
        widget.setWidget(new HintWidget(QSize(100, 100)));
        layout->addWidget(&widget, 0, 0);
        layout->setRowStretch(1, 1);
        layout->setColumnStretch(1, 1);
        window.resize(400, 400);
        window.show();
        const bool isHorizontal = std::get<0>(row) == Qt::Horizontal;
        const auto size = [&] {
            return isHorizontal ? widget.width() : widget.height();
        };
        const int before = size();
        QCOMPARE(before, widget.directedSize());

        QWidget *handle = handleOf(widget);
        const QPoint from = handle->rect().center();
        UserInput::press(handle, from);
        UserInput::move(handle, from + way);
        QCOMPARE(widget.directedSize(), before + change);
        QTRY_COMPARE(size(), before + change);
        UserInput::release(handle, from);
        UserInput::move(handle, from + way, {}, Qt::NoButton);
        QCOMPARE(widget.directedSize(), before + change);
        UserInput::drag(handle, from, from + way, {}, Qt::RightButton, 1);
        QCOMPARE(widget.directedSize(), before + change);
    }
}

void TestDirectedResize::arrowKeysMoveTheHandleAndItStopsAtZero()
{
    ZelDirectedResizeWidget widget(Qt::Horizontal);
    widget.setWidget(new HintWidget(QSize(50, 50)));
    QWidget *handle = handleOf(widget);
    QVERIFY(handle->focusPolicy() & Qt::TabFocus);
    const int before = widget.directedSize();
    QTest::keyClick(handle, Qt::Key_Right);
    QTest::keyClick(handle, Qt::Key_Right);
    QCOMPARE(widget.directedSize(), before + 20);
    QTest::keyClick(handle, Qt::Key_Left);
    QTest::keyClick(handle, Qt::Key_Up);
    QCOMPARE(widget.directedSize(), before + 10);
    widget.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(handle, Qt::Key_Right);
    QCOMPARE(widget.directedSize(), before);
    // Not below zero.
    widget.show();
    UserInput::drag(handle, QPoint(1, 1), QPoint(5000, 1), {}, Qt::LeftButton, 1);
    QCOMPARE(widget.directedSize(), 0);
    QVERIFY(widget.width() > 0);
}

void TestDirectedResize::theHandleCanBeSeenAndNamed()
{
    ZelDirectedResizeWidget widget(Qt::Vertical);
    widget.setWidget(new HintWidget(QSize(50, 50)));
    QWidget *handle = handleOf(widget);
    QVERIFY(!handle->accessibleName().isEmpty() && !handle->toolTip().isEmpty());
    QCOMPARE(handle->cursor().shape(), Qt::SplitVCursor);
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::red);
    widget.setPalette(palette);
    widget.show();
    const auto grip = [handle] {
        return handle->grab().toImage().pixelColor(handle->rect().center());
    };
    handle->clearFocus();
    QVERIFY(grip().lightness() < 100);
    QVERIFY(QTest::qWaitForWindowActive(&widget));
    handle->setFocus();
    QVERIFY(grip().red() > 200 && grip().green() < 100);
}

void TestDirectedResize::anotherWidgetReplacesTheFormerOne()
{
    ZelDirectedResizeWidget widget(Qt::Horizontal);
    const QPointer<QWidget> first = new HintWidget(QSize(50, 50));
    widget.setWidget(first);
    widget.setWidget(first);
    QCOMPARE(first->parentWidget(), &widget);
    auto *second = new HintWidget(QSize(80, 50));
    widget.setWidget(second);
    QVERIFY(!first);
    QCOMPARE(widget.widget(), second);
    delete second;
    QVERIFY(!widget.widget());
    widget.setWidget(nullptr);
    QCOMPARE(widget.directedSize(), handleOf(widget)->sizeHint().width());
}

ZEL_TEST_MAIN(TestDirectedResize)
#include "tst_directed_resize.moc"
