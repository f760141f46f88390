#include "color/ZelEyeDropper.h"

#include "ZelArrowKeys.h"
#include "color/ZelColorConversion.h"
#include "color/ZelCursorPlace.h"
#include "color/ZelLoupe.h"
#include "color/ZelScreenGrabber.h"
#include "color/ZelScreenSample.h"

#include <ZelCore/ZelDesktopColorPicker>

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QStyleOption>
#include <QTimer>
#include <QWindow>

#include <cmath>
#include <optional>
#include <utility>

namespace {

constexpr int followInterval = 50;
constexpr int frame = 1;
constexpr int longStep = 10;

enum class Means { None, Grab, Desktop };

Means means()
{
    const ZelScreenGrabber &grabber = ZelScreenGrabber::instance();
    const bool prefersDesktop = !grabber.canGrab() || grabber.seesOwnWindowsOnly();
    if (prefersDesktop && ZelDesktopColorPicker::instance().isAvailable())
        return Means::Desktop;
    return grabber.canGrab() ? Means::Grab : Means::None;
}

/// A cross whose open middle, the hot spot, shows what is picked.
QCursor cross()
{
    constexpr int side = 11;
    constexpr int middle = 5;
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const auto bars = [&painter](int thick, const QColor &color) {
        const int from = middle - thick / 2;
        for (const int start : {0, middle + 2}) {
            painter.fillRect(start, from, middle - 1, thick, color);
            painter.fillRect(from, start, thick, middle - 1, color);
        }
    };
    bars(3, Qt::white);
    bars(1, Qt::black);
    painter.end();
    return QCursor(picture, middle, middle);
}

} // namespace

class ZelEyeDropperPrivate
{
public:
    QTimer timer;
    /// In global coordinates; a screen has places between whole ones.
    QPointF place;
    /// Nobody has told the part of a pixel of the desktop.
    bool isRounded = true;
    QPointer<QScreen> screen;
    ZelScreenSample sample;
    bool isFollowing = false;
    /// Where a key has sent the cursor, short of the place by less than a pixel of the desktop.
    std::optional<QPoint> sentTo;
    bool hasMouse = false;
};

ZelEyeDropper::ZelEyeDropper(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::CustomizeWindowHint)
    , d_(std::make_unique<ZelEyeDropperPrivate>())
{
    setWindowTitle(tr("Pick a color"));
    setMouseTracking(true);
    const int valueHeight = 5 * fontMetrics().height() / 2;
    setFixedSize(ZelLoupe::side + 2 * frame, ZelLoupe::side + valueHeight + 2 * frame);
    d_->timer.setInterval(followInterval);
    connect(&d_->timer, &QTimer::timeout, this, [this] { followCursor(); });
}

ZelEyeDropper::~ZelEyeDropper()
{
    stop();
}

bool ZelEyeDropper::isAvailable(QString *reason)
{
    const bool available = means() != Means::None;
    if (reason)
        *reason = available ? QString()
                            : tr("Colors can't be picked here: programs don't see the screen, and "
                                 "the desktop has no color picker.");
    return available;
}

void ZelEyeDropper::setVisible(bool visible)
{
    if (visible == isVisible())
        return QDialog::setVisible(visible);
    if (!visible) {
        stop();
        return QDialog::setVisible(false);
    }
    const Means found = means();
    setAttribute(Qt::WA_DontShowOnScreen, found != Means::Grab);
    if (found == Means::Grab)
        follow(QCursor::pos());
    QDialog::setVisible(true);
    if (found == Means::Grab)
        start();
    else if (found == Means::Desktop)
        askDesktop();
    else
        QMetaObject::invokeMethod(this, &QDialog::reject, Qt::QueuedConnection);
}

void ZelEyeDropper::start()
{
    d_->isFollowing = true;
    d_->hasMouse = false;
    QApplication::setOverrideCursor(cross());
    d_->timer.start();
}

/// Every end comes by here, and some come twice.
void ZelEyeDropper::stop()
{
    if (!d_->isFollowing)
        return;
    d_->isFollowing = false;
    d_->timer.stop();
    if (d_->hasMouse) {
        releaseMouse();
        releaseKeyboard();
    }
    QApplication::restoreOverrideCursor();
}

void ZelEyeDropper::askDesktop()
{
    QString window;
    if (parentWidget() && QGuiApplication::platformName() == QLatin1String("xcb"))
        window = QStringLiteral("x11:") +
                 QString::number(parentWidget()->window()->effectiveWinId(), 16);
    ZelDesktopColorPicker::instance().pick(window, this, [this](const QColor &color) {
        if (color.isValid())
            select(color);
        else
            reject();
    });
}

/// For moves that no event tells of, and for pictures that change. The cursor's place is rounded,
/// so one that is near says nothing new of a place between the pixels of the desktop. A cursor that
/// rests where only the rounded place is known is sent there: a press takes the pixel under it,
/// which would lie beside the marked one.
void ZelEyeDropper::followCursor()
{
    const QPointF cursor = QCursor::pos();
    const QPointF way = cursor - d_->place;
    const bool isNear = std::abs(way.x()) < 1 && std::abs(way.y()) < 1;
    if (!isNear) {
        d_->isRounded = true;
    } else if (d_->screen && d_->screen->devicePixelRatio() != 1 && cursor == d_->place &&
               std::exchange(d_->isRounded, false)) {
        QCursor::setPos(ZelCursorPlace::floored(d_->place));
    }
    follow(isNear ? d_->place : cursor);
}

/// Only a window that is on the screen can have the mouse.
void ZelEyeDropper::holdInput()
{
    if (!d_->isFollowing || d_->hasMouse || !windowHandle() || !windowHandle()->isExposed())
        return;
    d_->hasMouse = true;
    grabMouse();
    grabKeyboard();
}

void ZelEyeDropper::follow(const QPointF &place)
{
    d_->place = place;
    QScreen *screen = ZelCursorPlace::screenAt(d_->place);
    holdInput();
    if (!screen)
        return;
    if (screen != std::exchange(d_->screen, screen))
        d_->isRounded = true;
    const QRect area = screen->geometry();
    const QPointF inside = d_->place - area.topLeft();
    const QRect region = ZelScreenSample::regionAround(
        inside, area.size(), screen->devicePixelRatio(), ZelLoupe::pixels);
    d_->sample = ZelScreenSample(ZelScreenGrabber::instance().grab(screen, region), region, inside);
    move(ZelLoupe::placeBeside(ZelCursorPlace::floored(d_->place), size(), area));
    update();
}

void ZelEyeDropper::pick()
{
    follow(d_->place);
    if (d_->sample.isNull())
        reject();
    else
        select(d_->sample.color());
}

void ZelEyeDropper::select(const QColor &color)
{
    const QPointer<ZelEyeDropper> guard(this);
    Q_EMIT colorSelected(fromQColor(color));
    if (guard)
        done(Accepted);
}

void ZelEyeDropper::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return reject();
    mouseMoveEvent(event);
    pick();
}

void ZelEyeDropper::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF place = ZelCursorPlace::of(event);
    if (d_->sentTo && QPointF(*d_->sentTo) == place)
        return;
    d_->sentTo.reset();
    d_->isRounded = false;
    follow(place);
}

void ZelEyeDropper::keyPressEvent(QKeyEvent *event)
{
    const QPoint step = zelArrowStep(event->key());
    if (!step.isNull()) {
        const QScreen *screen = QGuiApplication::screenAt(ZelCursorPlace::floored(d_->place));
        const int pixels = event->modifiers() & Qt::ShiftModifier ? longStep : 1;
        const QPointF place =
            d_->place + QPointF(step * pixels) / (screen ? screen->devicePixelRatio() : 1);
        if (!QGuiApplication::screenAt(ZelCursorPlace::floored(place)))
            return;
        d_->sentTo = ZelCursorPlace::floored(place);
        QCursor::setPos(*d_->sentTo);
        follow(place);
    } else if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
               event->key() == Qt::Key_Enter) {
        pick();
    } else {
        QDialog::keyPressEvent(event);
    }
}

void ZelEyeDropper::paintEvent(QPaintEvent *event)
{
    Q_UNUSED(event)
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    const QRect loupe(frame, frame, ZelLoupe::side, ZelLoupe::side);
    ZelLoupe::paintPixels(&painter, loupe, d_->sample.cutOut(ZelLoupe::pixels));
    const QRect value(frame, loupe.bottom() + 1, ZelLoupe::side,
                      height() - loupe.bottom() - 1 - frame);
    ZelLoupe::paintValue(&painter, value, d_->sample.color(), palette());
}
