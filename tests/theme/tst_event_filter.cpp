#include "TestCase.h"
#include "UserInput.h"

#include "theme/GlobalEventFilter.h"
#include "theme/GlobalEventFilterPrivate.h"
#include "theme/KeyStateInformation.h"
#include "theme/ModalWindowPlacement.h"
#include "theme/SimpleProgressBar.h"

#include <QtWidgets>

namespace {

// Writes down the types of the events that reach an object.
class EventLog : public QObject
{
public:
    explicit EventLog(QObject *watched) { watched->installEventFilter(this); }
    int count(QEvent::Type type) const { return int(types.count(type)); }
    QList<QEvent::Type> types;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        types.append(event->type());
        return QObject::eventFilter(object, event);
    }
};

void send(QObject *object, QEvent::Type type)
{
    QEvent event(type);
    QCoreApplication::sendEvent(object, &event);
}

// True if the event was taken from the object.
bool sendKey(QObject *object, QEvent::Type type, int key)
{
    const EventLog log(object);
    QKeyEvent event(type, key, Qt::NoModifier);
    event.ignore();
    QCoreApplication::sendEvent(object, &event);
    return log.types.isEmpty() && event.isAccepted();
}

// The style-change mode, until the end of the block.
class ChangeMode
{
public:
    explicit ChangeMode(bool skipFontChanges = true)
    {
        GlobalEventFilter::instance()->setStyleChangeMode(true, skipFontChanges);
    }
    ~ChangeMode() { GlobalEventFilter::instance()->setStyleChangeMode(false, false); }
};

int countOfEvents()
{
    return GlobalEventFilter::instance()->changeThemeProgressCount();
}

} // namespace

class EventFilterTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheKeys();
    void editingKeysStayWithTheEditor();
    void preparesSpinBoxesOnce();
    void neverPaintsFocusFrames();
    void sizesToolTips();
    void clearsStuckHover();

    void hiddenWidgetsGetNothingInTheMode();
    void visibleWidgetsGetOneOfEachKind();
    void countsAndSignals();
    void keysInTheModeAreNotSeen();

    void candidatesAroundAPlace();
    void modalWindowHidesToolWindows();
    void modalWindowAvoidsModalWindows();
    void smallOverlapIsLeftAlone();

    void fillsTheProgressBar();
};

void EventFilterTest::knowsTheKeys()
{
    QCOMPARE(KeyStateInformation::lastKeyPress()->type(), QEvent::None);
    QCOMPARE(KeyStateInformation::lastKeyRelease()->key(), 0);
    QWidget window;
    sendKey(&window, QEvent::KeyPress, Qt::Key_A);
    for (const int modifier : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr}) {
        sendKey(&window, QEvent::KeyPress, modifier);
        QVERIFY(KeyStateInformation::isKeyDown(modifier));
        QCOMPARE(KeyStateInformation::lastKeyPress()->key(), int(Qt::Key_A));
        sendKey(&window, QEvent::KeyRelease, modifier);
        QVERIFY(!KeyStateInformation::isKeyDown(modifier));
        QCOMPARE(KeyStateInformation::lastKeyRelease()->key(), modifier);
    }
    sendKey(&window, QEvent::ShortcutOverride, Qt::Key_Meta);
    QCOMPARE(KeyStateInformation::lastKeyPress()->key(), int(Qt::Key_Meta));
    QVERIFY(KeyStateInformation::isKeyDown(Qt::Key_A));
    sendKey(&window, QEvent::KeyRelease, Qt::Key_A);
    QVERIFY(!KeyStateInformation::isKeyDown(Qt::Key_A));

    QObject object;
    send(&object, QEvent::TouchBegin);
    QVERIFY(KeyStateInformation::isTrackPadTouched());
    send(&object, QEvent::TouchEnd);
    QVERIFY(!KeyStateInformation::isTrackPadTouched());
}

void EventFilterTest::editingKeysStayWithTheEditor()
{
    QWidget window;
    auto *lineEdit = new QLineEdit(&window);
    auto *spinBox = new QSpinBox(&window);
    auto *button = new QPushButton(&window);
    window.show();
    QApplication::setActiveWindow(&window);

    const QList<int> horizontal{Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Right};
    const QList<int> vertical{Qt::Key_Up, Qt::Key_Down};
    for (QWidget *focus : std::initializer_list<QWidget *>{lineEdit, spinBox, button}) {
        for (const int key : horizontal + vertical + QList<int>{Qt::Key_A}) {
            const bool isKept = (focus != button && horizontal.contains(key)) ||
                                (focus == spinBox && vertical.contains(key));
            focus->setFocus(); // an arrow key moves the focus on from a button
            QTRY_COMPARE(QApplication::focusWidget(), focus);
            QCOMPARE(sendKey(window.windowHandle(), QEvent::ShortcutOverride, key), isKept);
            QVERIFY(!sendKey(window.windowHandle(), QEvent::KeyPress, key));
            sendKey(&window, QEvent::KeyRelease, key);
        }
    }
}

void EventFilterTest::preparesSpinBoxesOnce()
{
    QSpinBox spinBox;
    const EventLog log(spinBox.findChild<QLineEdit *>());
    spinBox.grab();
    QCOMPARE(log.count(QEvent::ScreenChangeInternal), 1);
    QCOMPARE(spinBox.property("isPainted"), QVariant(true));
    spinBox.grab();
    QCOMPARE(log.count(QEvent::ScreenChangeInternal), 1);

    QSpinBox marked;
    marked.setProperty("isPainted", false);
    const EventLog markedLog(marked.findChild<QLineEdit *>());
    marked.grab();
    QCOMPARE(markedLog.count(QEvent::ScreenChangeInternal), 0);
}

void EventFilterTest::neverPaintsFocusFrames()
{
    QWidget window;
    auto *button = new QPushButton(&window);
    auto *frame = new QFocusFrame(&window);
    frame->setWidget(button);
    const EventLog frameLog(frame);
    const EventLog buttonLog(button);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTRY_VERIFY(buttonLog.count(QEvent::Paint) > 0);
    window.grab();
    QVERIFY(frame->isVisible());
    QCOMPARE(frameLog.count(QEvent::Paint), 0);
}

void EventFilterTest::sizesToolTips()
{
    const QString text = QStringLiteral("Two\nlines");
    QLabel toolTip(text);
    toolTip.setObjectName(QStringLiteral("qtooltip_label"));
    toolTip.show();
    QCOMPARE(toolTip.width(), toolTip.fontMetrics().horizontalAdvance(text) + 20);
    QCOMPARE(toolTip.height(), toolTip.fontMetrics().capHeight() + 12);
    QCOMPARE(toolTip.alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    // The next widget's tip takes the same label while it is shown.
    toolTip.setText(text + text);
    toolTip.move(toolTip.pos() + QPoint(20, 0));
    QCOMPARE(toolTip.width(), toolTip.fontMetrics().horizontalAdvance(text + text) + 20);

    QLabel plain(text);
    const Qt::Alignment alignment = plain.alignment();
    plain.show();
    QCOMPARE(plain.alignment(), alignment);
}

void EventFilterTest::clearsStuckHover()
{
    QWidget window;
    window.setGeometry(300, 300, 200, 200);
    auto *button = new QPushButton(&window);
    button->setGeometry(0, 0, 50, 50);
    window.show();
    QCursor::setPos(button->mapToGlobal(QPoint(10, 10)));
    QWidget popup(&window, Qt::Popup);
    popup.setGeometry(350, 350, 50, 50);

    int leaves = 0;
    const auto openAndClose = [&](QPoint mouse) {
        UserInput::press(button, QPoint(10, 10));
        popup.show();
        bool watched = false;
        // Behind the watch's own timer of 15 ms.
        QTimer::singleShot(16, [&watched] { watched = true; });
        QTRY_VERIFY(watched);
        QCursor::setPos(mouse);
        const EventLog log(button);
        popup.hide();
        leaves = log.count(QEvent::Leave);
    };
    openAndClose(button->mapToGlobal(QPoint(10, 10)));
    QCOMPARE(QApplication::widgetAt(QCursor::pos()), button);
    QCOMPARE(leaves, 0);
    openAndClose(window.mapToGlobal(QPoint(150, 10)));
    QCOMPARE(leaves, 1);
    QVERIFY(GlobalEventFilterPrivate::isOpenedByPress(window, 499));
    QVERIFY(!GlobalEventFilterPrivate::isOpenedByPress(window, 500));
    QVERIFY(!GlobalEventFilterPrivate::isOpenedByPress(*button, 0));
}

void EventFilterTest::hiddenWidgetsGetNothingInTheMode()
{
    QWidget hidden;
    QObject object;
    const EventLog hiddenLog(&hidden);
    const EventLog objectLog(&object);
    const ChangeMode mode;
    for (const auto type : {QEvent::StyleChange, QEvent::PaletteChange, QEvent::User}) {
        send(&hidden, type);
        send(&object, type);
    }
    QVERIFY(hiddenLog.types.isEmpty());
    QCOMPARE(objectLog.types.size(), 3);
    QCOMPARE(countOfEvents(), 3);
}

void EventFilterTest::visibleWidgetsGetOneOfEachKind()
{
    QWidget plain;
    QWidget styled;
    styled.setStyleSheet(QStringLiteral("QWidget { color: red; }"));
    plain.show();
    styled.show();
    EventLog plainLog(&plain);
    EventLog styledLog(&styled);
    const auto sendAll = [&] {
        for (QWidget *widget : {&plain, &styled}) {
            for (const auto type : {QEvent::StyleChange, QEvent::PaletteChange, QEvent::FontChange,
                                    QEvent::StyleChange, QEvent::PaletteChange, QEvent::User})
                send(widget, type);
        }
    };
    using Types = QList<QEvent::Type>;
    {
        const ChangeMode mode;
        sendAll();
        QCOMPARE(plainLog.types, Types({QEvent::StyleChange, QEvent::PaletteChange, QEvent::User}));
        QCOMPARE(styledLog.types.size(), 5);
        QCOMPARE(styledLog.count(QEvent::FontChange), 0);
        QCOMPARE(countOfEvents(), 8);
    }
    plainLog.types.clear();
    styledLog.types.clear();
    {
        const ChangeMode mode(false);
        sendAll();
        QCOMPARE(plainLog.types, Types({QEvent::FontChange, QEvent::User}));
        QCOMPARE(styledLog.types.size(), 6);
        QCOMPARE(countOfEvents(), 6); // a FontChange passes uncounted
    }
    plainLog.types.clear();
    sendAll();
    QCOMPARE(plainLog.types.size(), 6);
}

void EventFilterTest::countsAndSignals()
{
    GlobalEventFilter *filter = GlobalEventFilter::instance();
    const QSignalSpy signalSpy(filter, &GlobalEventFilter::themeChangedProgress);
    QObject object;
    {
        const ChangeMode mode;
        for (int number = 0; number < 40; ++number)
            send(&object, QEvent::User);
        QCOMPARE(countOfEvents(), 40);
        QCOMPARE(signalSpy.size(), 2);
        for (int number = 0; number < 8; ++number)
            send(&object, number % 2 ? QEvent::Paint : QEvent::UpdateRequest);
        QCOMPARE(countOfEvents(), 48);
        QCOMPARE(signalSpy.size(), 2);
    }
    QCOMPARE(countOfEvents(), 0);
    send(&object, QEvent::User);
    QCOMPARE(countOfEvents(), 0);
    QCOMPARE(filter->estiamteOnThemeChangeProgressObjects(), 1500);
}

void EventFilterTest::keysInTheModeAreNotSeen()
{
    QWidget window;
    window.show();
    sendKey(&window, QEvent::KeyPress, Qt::Key_B);
    {
        const ChangeMode mode;
        sendKey(&window, QEvent::KeyRelease, Qt::Key_B);
        sendKey(&window, QEvent::KeyPress, Qt::Key_C);
    }
    QVERIFY(KeyStateInformation::isKeyDown(Qt::Key_B));
    QVERIFY(!KeyStateInformation::isKeyDown(Qt::Key_C));
    sendKey(&window, QEvent::KeyRelease, Qt::Key_B);
    QVERIFY(!KeyStateInformation::isKeyDown(Qt::Key_B));
}

void EventFilterTest::candidatesAroundAPlace()
{
    using namespace ModalWindowPlacement;
    QCOMPARE(searchStep(QSize(100, 100), std::nullopt), QSize(400, 330));
    QCOMPARE(searchStep(QSize(500, 400), std::nullopt), QSize(520, 440));
    QCOMPARE(searchStep(QSize(100, 100), QSize(1920, 1001)), QSize(640, 333));

    QList<QPoint> places;
    for (int candidate = 0; candidate < candidateCount; ++candidate)
        places.append(candidatePosition(candidate, QPoint(100, 200), QSize(400, 330)));
    QCOMPARE(places, QList<QPoint>({{-300, 0},
                                    {-300, 200},
                                    {-300, 530},
                                    {100, 0},
                                    {100, 530},
                                    {500, 0},
                                    {500, 200},
                                    {500, 530}}));
    QVERIFY(coversTooMuch(QRect(0, 0, 10, 4), QRect(0, 0, 10, 10)));
    QVERIFY(!coversTooMuch(QRect(0, 0, 11, 3), QRect(0, 0, 10, 10)));
    QVERIFY(!coversTooMuch(QRect(20, 0, 10, 10), QRect(0, 0, 10, 10)));
}

void EventFilterTest::modalWindowHidesToolWindows()
{
    QWidget tool(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    tool.setWindowTitle(QStringLiteral("Palette"));
    tool.setGeometry(100, 100, 300, 300);
    tool.show();
    QWidget plain;
    plain.setGeometry(100, 100, 300, 300);
    plain.show();
    QDialog dialog;
    dialog.setModal(true);
    dialog.setGeometry(100, 100, 300, 300);
    messages().expect(QtWarningMsg,
                      QStringLiteral("* called hide() on alwaysOnTopDialog to show modal dialog"));
    messages().expect(QtWarningMsg, QRegularExpression(QStringLiteral(
                                        "\\* hidden widget .*  with title: \"Palette\"")));
    dialog.show();
    QVERIFY(!tool.isVisible());
    QVERIFY(plain.isVisible());
    QCOMPARE(dialog.size(), QSize(300, 300));
}

void EventFilterTest::modalWindowAvoidsModalWindows()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget blocker(nullptr, Qt::Window | Qt::WindowStaysOnTopHint);
    blocker.setProperty("modalDialog", true);
    blocker.setGeometry(QRect(screen.center() - QPoint(200, 200), QSize(400, 400)));
    blocker.show();
    QDialog dialog;
    dialog.setModal(true);
    dialog.setGeometry(QRect(screen.center() - QPoint(190, 190), QSize(300, 200)));
    dialog.show();
    QVERIFY(blocker.isVisible());
    QVERIFY(!ModalWindowPlacement::isOverlappedByAlwaysOnTopDialog(&dialog));

    // No place is free: the last one has to do.
    blocker.setGeometry(screen.adjusted(-5000, -5000, 5000, 5000));
    dialog.hide();
    dialog.show();
    const QSize step = ModalWindowPlacement::searchStep(dialog.size(), screen.size());
    const QPoint middle(screen.left() + (screen.width() - dialog.width()) / 2,
                        screen.top() + (screen.height() - dialog.height()) / 2);
    QCOMPARE(dialog.pos(), middle + QPoint(step.width(), step.height()));

    QDialog nonModal;
    nonModal.setGeometry(10, 10, 300, 200);
    nonModal.show();
    QCOMPARE(nonModal.geometry(), QRect(10, 10, 300, 200));
}

void EventFilterTest::smallOverlapIsLeftAlone()
{
    const QRect place(100, 100, 300, 300);
    QWidget tool(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    tool.setGeometry(100, 100, 300, 99);
    tool.show();
    QWidget parent(nullptr, Qt::Window | Qt::WindowStaysOnTopHint);
    parent.setGeometry(place);
    parent.show();
    // The parent of an always-on-top window may be under it.
    QDialog dialog(&parent, Qt::Dialog | Qt::WindowStaysOnTopHint);
    dialog.setModal(true);
    dialog.setGeometry(place);
    dialog.show();
    QVERIFY(tool.isVisible() && parent.isVisible());
    QCOMPARE(dialog.geometry(), place);
}

void EventFilterTest::fillsTheProgressBar()
{
    const QRect bar(QPoint(10, 5), QPoint(110, 15));
    QCOMPARE(SimpleProgressBar::filledRect(bar, 0, 1500).right(), 10);
    QCOMPARE(SimpleProgressBar::filledRect(bar, 500, 1500), QRect(bar.topLeft(), QPoint(43, 15)));
    QCOMPARE(SimpleProgressBar::filledRect(bar, 1500, 1500), bar);
    QCOMPARE(SimpleProgressBar::filledRect(bar, 9999, 1500), bar);

    SimpleProgressBar widget;
    widget.resize(105, 15);
    widget.setValue(50);
    const QImage image = widget.grab().toImage();
    QCOMPARE(image.pixelColor(0, 7), QColor(Qt::gray));
    QCOMPARE(image.pixelColor(50, 7), QColor(0x0066ff));
    QVERIFY(image.pixelColor(60, 7) != QColor(0x0066ff));
}

ZEL_TEST_MAIN(EventFilterTest)

#include "tst_event_filter.moc"
