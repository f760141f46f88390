#include "ZelDockWidget.h"

#include "ZelStoredValue.h"
#include "ZelTabKeyOrder.h"
#include "ZelWindowPlacement.h"
#include "docks/ZelDockHold.h"
#include "docks/ZelDockPlaces.h"
#include "docks/ZelDockWidgetPrivate.h"
#include "docks/ZelDockWidgetTitle.h"
#include "docks/ZelDocking.h"
#include "docks/ZelStackedTabs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr int holderMargin = 4;
constexpr double floatingOpacity = 0.8;

QPointer<ZelDockWidget> &lastMovedWidget()
{
    static QPointer<ZelDockWidget> dock;
    return dock;
}

} // namespace

ZelDockWidget::ZelDockWidget(const QString &title, const QString &objectName, bool showDockButton,
                             QWidget *parent)
    : QDockWidget(parent)
    , d_(std::make_unique<ZelDockWidgetPrivate>())
{
    setObjectName(objectName);
    prepareUndockOrHide();
    hide();
    QDockWidget::setWindowTitle(title);
    setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    setAutoFillBackground(false);
    // A window that comes up by itself leaves the keyboard where it is.
    setAttribute(Qt::WA_ShowWithoutActivating);
    d_->title = new ZelDockWidgetTitle(showDockButton, this);
    buildContents();
    setTitleBarWidget(d_->title);
    d_->title->setFeatures(features());
    for (QWidget *widget : {static_cast<QWidget *>(this), static_cast<QWidget *>(d_->title),
                            d_->contents.data(), d_->holder.data()}) {
        watch(widget);
        widget->setAttribute(Qt::WA_MouseTracking);
    }
    connectTitle();
    d_->forceFloating =
        storedValue(ZelSettings(QStringLiteral("ForceFloatingWdg")), objectName, false);
    d_->screen = screen();
}

ZelDockWidget::~ZelDockWidget()
{
    if (QWidget::mouseGrabber() == this)
        return;
    // What Qt keeps of a press that has become no drag yet goes with a release only.
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(), QPointF(), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    forceEvent(&release);
}

void ZelDockWidget::buildContents()
{
    d_->holder = new QWidget(this);
    d_->contents = new QWidget(d_->holder);
    d_->savedCursor = d_->contents->cursor();
    d_->layout = new QVBoxLayout(d_->holder);
    d_->layout->setContentsMargins(0, 0, 0, 0);
    d_->layout->addWidget(d_->contents, 1);
    d_->holder->setContentsMargins(holderMargin, holderMargin, holderMargin, holderMargin);
    setWidget(d_->holder);
}

void ZelDockWidget::connectTitle()
{
    connect(d_->title, &ZelDockWidgetTitle::closeClicked, this, &QWidget::close);
    connect(d_->title, &ZelDockWidgetTitle::toggleFloating, this, &ZelDockWidget::toggleFloating);
    connect(d_->title, &ZelDockWidgetTitle::titleBarPressed, this, [this] {
        d_->releaseTold = false;
        Q_EMIT titleBarPressed();
    });
    connect(d_->title, &ZelDockWidgetTitle::titleBarReleased, this, &ZelDockWidget::tellRelease);
    connect(this, &QDockWidget::featuresChanged, d_->title, &ZelDockWidgetTitle::setFeatures);
    connect(this, &QWidget::windowTitleChanged, d_->title, qOverload<>(&QWidget::update));
    connect(this, &QDockWidget::topLevelChanged, d_->title, &ZelDockWidgetTitle::floatingChanged);
    connect(this, &QDockWidget::topLevelChanged, this, &ZelDockWidget::screenChanged);
    connect(this, &QDockWidget::topLevelChanged, this, &ZelDockWidget::setTopLevel);
    connect(this, &QDockWidget::dockLocationChanged, this, &ZelDockWidget::setDockWidgetArea);
    connect(qApp, &QGuiApplication::screenRemoved, this, [this](QScreen *gone) {
        if (d_->sizeByScreen)
            d_->sizeByScreen->remove(gone);
    });
}

QWidget *ZelDockWidget::contentsWidget() const
{
    return d_->contents;
}

ZelDockWidgetTitle *ZelDockWidget::zelTitleWidget() const
{
    return d_->title;
}

bool ZelDockWidget::hitTest(const QPoint &globalPoint) const
{
    return d_->title && d_->title->rect().contains(d_->title->mapFromGlobal(globalPoint));
}

bool ZelDockWidget::isAtSide() const
{
    return d_->area == Qt::LeftDockWidgetArea || d_->area == Qt::RightDockWidgetArea;
}

Qt::DockWidgetArea ZelDockWidget::area() const
{
    return d_->area;
}

bool ZelDockWidget::isTopLevel() const
{
    return d_->topLevel;
}

void ZelDockWidget::setContentsWidget(QWidget *contents)
{
    QWidget *former = d_->contents;
    if (contents == former)
        return;
    if (former) {
        d_->layout->removeWidget(former);
        former->removeEventFilter(this);
        d_->filtered.remove(former);
        if (isAncestorOf(former))
            former->deleteLater();
    }
    d_->contents = contents;
    if (contents) {
        d_->layout->addWidget(contents, 1);
        contents->setMouseTracking(true);
        watch(contents);
        placeInTabOrder(contents, d_->title->lastTabStop());
    }
}

void ZelDockWidget::setFeatures(DockWidgetFeatures features)
{
    QDockWidget::setFeatures(features);
}

void ZelDockWidget::setGroupName(const QString &name)
{
    d_->title->setGroupName(name);
}

void ZelDockWidget::setHeaderTitle(const QString &title)
{
    d_->title->setHeaderTitle(title);
}

void ZelDockWidget::setWindowTitle(const QString &title)
{
    QDockWidget::setWindowTitle(title);
}

void ZelDockWidget::setRestoreInCentralWidget()
{
    d_->forceFloating = true;
}

void ZelDockWidget::showDropFrame(bool show)
{
    d_->dropFrame = show;
    update();
}

bool ZelDockWidget::forceEvent(QEvent *event)
{
    return QDockWidget::event(event);
}

ZelDockWidget *ZelDockWidget::lastMovedDockWidget()
{
    return lastMovedWidget();
}

void ZelDockWidget::clearLastMoveWidget()
{
    lastMovedWidget().clear();
}

void ZelDockWidget::setVisible(bool visible)
{
    if (!visible) {
        prepareUndockOrHide();
        QDockWidget::setVisible(false);
        return;
    }
    if (ZelDocking::isInRestore())
        d_->forceFloating = false;
    if (d_->forceFloating && ZelDocking::isEnabled())
        floatInMiddle();
    else
        QDockWidget::setVisible(true);
}

void ZelDockWidget::floatInMiddle()
{
    d_->forceFloating = false;
    setFloating(true);
    QDockWidget::setVisible(true);
    const QMainWindow *window = ZelDocking::mainWindowOf(parentWidget());
    const QWidget *central = window ? window->centralWidget() : nullptr;
    if (!central || !d_->contents)
        return;
    const QPointF half(d_->contents->width() / 2.0, d_->contents->height() / 2.0);
    move((QPointF(central->mapToGlobal(central->rect().center())) - half).toPoint());
}

void ZelDockWidget::toggleFloating()
{
    if (!ZelDocking::isEnabled())
        return;
    const QPointer<ZelDockWidget> guard(this);
    d_->releaseTold = false;
    Q_EMIT titleBarPressed();
    if (!guard)
        return;
    prepareUndockOrHide();
    if (isFloating())
        redock();
    else
        floatInSight();
    if (!guard)
        return;
    const QScreen *primary = QGuiApplication::primaryScreen();
    if (isFloating() && primary && !primary->availableGeometry().contains(pos()))
        move(x(), primary->availableGeometry().top());
    QCoreApplication::processEvents();
    if (guard)
        tellRelease();
}

void ZelDockWidget::redock()
{
    setFloating(false);
}

/// A dock behind others in a group of tabs lies out of sight, and would float there: it floats
/// where the group stands.
void ZelDockWidget::floatInSight()
{
    const QPointer<ZelDockWidget> guard(this);
    const QPointer<QMainWindow> window(ZelDocking::mainWindowOf(parentWidget()));
    const QRect place = window ? ZelDockPlaces(window).of(this) : geometry();
    const bool isBehind = place != geometry();
    const QPoint outOfSight = mapToGlobal(QPoint());
    setFloating(true);
    if (guard && window && isBehind && geometry().topLeft() == outOfSight)
        setGeometry(place.translated(window->mapToGlobal(QPoint())));
}

void ZelDockWidget::setDockWidgetArea(Qt::DockWidgetArea a)
{
    d_->area = a;
    ZelStackedTabs::watch(ZelDocking::mainWindowOf(parentWidget()));
}

void ZelDockWidget::setTopLevel(bool b)
{
    d_->topLevel = b;
}

void ZelDockWidget::prepareUndockOrHide()
{
    ZelDockHold::holdOthers(this);
}

/// A release comes from the title bar, and again when it goes on to the dock: it is told once.
void ZelDockWidget::tellRelease()
{
    if (d_->releaseTold)
        return;
    d_->releaseTold = true;
    Q_EMIT titleBarReleased();
}

void ZelDockWidget::closeEvent(QCloseEvent *event)
{
    const QPointer<ZelDockWidget> guard(this);
    Q_EMIT closed();
    if (!guard)
        return;
    QDockWidget::closeEvent(event);
    hide();
}

void ZelDockWidget::hideEvent(QHideEvent *event)
{
    endResize();
    QDockWidget::hideEvent(event);
    Q_EMIT closed();
}

void ZelDockWidget::showEvent(QShowEvent *event)
{
    QDockWidget::showEvent(event);
    Q_EMIT opened();
}

void ZelDockWidget::moveEvent(QMoveEvent *event)
{
    if (d_->resizeState == 0 && !ZelDocking::isInRestore() && isFloating() &&
        QGuiApplication::mouseButtons().testFlag(Qt::LeftButton) &&
        !(d_->sizeByScreen && d_->sizeByScreen->contains(d_->screen)))
        rememberSize();
    QDockWidget::moveEvent(event);
    const QWidget *under = QApplication::widgetAt(QCursor::pos());
    if (under && (under == this || under == d_->title))
        lastMovedWidget() = this;
    if (isFloating())
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    followScreen();
}

void ZelDockWidget::resizeEvent(QResizeEvent *event)
{
    QDockWidget::resizeEvent(event);
    if (d_->resizeState != 0 || !isFloating())
        d_->sizeByScreen.reset();
}

void ZelDockWidget::rememberSize()
{
    if (!d_->sizeByScreen)
        d_->sizeByScreen.emplace();
    d_->sizeByScreen->insert(d_->screen, size());
}

void ZelDockWidget::followScreen()
{
    QScreen *present = isFloating() ? widgetScreen(this) : screen();
    if (present == d_->screen)
        return;
    d_->screen = present;
    const QPointer<ZelDockWidget> guard(this);
    Q_EMIT screenChanged();
    if (!guard || !isFloating() || !d_->sizeByScreen)
        return;
    const auto size = d_->sizeByScreen->constFind(present);
    if (size != d_->sizeByScreen->constEnd())
        resize(*size);
}

void ZelDockWidget::paintEvent(QPaintEvent *event)
{
    if (!d_->dropFrame && !isFloating()) {
        QDockWidget::paintEvent(event);
        return;
    }
    QPainter painter(this);
    if (d_->dropFrame) {
        painter.fillRect(rect(), palette().highlight());
        return;
    }
    painter.setOpacity(floatingOpacity);
    painter.fillRect(rect(), palette().window());
    painter.setOpacity(1);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
