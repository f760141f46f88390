#include "ZelWindowPlacement.h"

#include "ZelPlacementGeometry.h"

#include <QDebug>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QStyleOptionTitleBar>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace {

ZelPlacementGeometry::WindowSizes sizesOf(const QWidget *widget)
{
    return {widget->size(),
            widget->sizeHint(),
            widget->minimumSize(),
            widget->isVisible(),
            widget->windowHandle() != nullptr,
            widget->testAttribute(Qt::WA_Resized)};
}

int titleBarHeight(const QWidget *widget)
{
    QStyleOptionTitleBar option;
    option.initFrom(widget);
    return widget->style()->pixelMetric(QStyle::PM_TitleBarHeight, &option, widget);
}

void centreOnParent(QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    const QRect area(parent->mapToGlobal(QPoint(0, 0)), parent->size());
    widget->move(ZelPlacementGeometry::topLeftInMiddle(widget->size(), area));
}

bool isWhollyOnOneScreen(const QRect &rectangle)
{
    const auto screens = QGuiApplication::screens();
    return std::any_of(screens.cbegin(), screens.cend(), [&](const QScreen *screen) {
        return screen->availableGeometry().contains(rectangle);
    });
}

void bringBackIntoSight(QWidget *widget, const QScreen *screen)
{
    if (const QWidget *parent = widget->parentWidget()) {
        const QScreen *parentScreen = parent->window()->screen();
        if (parentScreen == screen || !parentScreen)
            centreOnParent(widget);
        else
            centerWidgetOnScreen(widget, nullptr);
    } else if (!isWhollyOnOneScreen(widget->geometry())) {
        centerWidgetOnScreen(widget, nullptr);
    }
}

} // namespace

QScreen *widgetScreen(QWidget *widget)
{
    QScreen *screen = widget ? widget->screen() : nullptr;
    if (!screen && widget && widget->windowHandle())
        screen = widget->windowHandle()->screen();
    if (!screen && widget)
        screen = QGuiApplication::screenAt(widget->window()->geometry().center());
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        qWarning() << "widgetScreen(QWidget *wdg) returned a null pointer.";
    return screen;
}

void centerWidgetOnScreen(QWidget *widget, QScreen *screen)
{
    if (!widget)
        return;
    widget->raise();
    if (screen)
        widget->setScreen(screen);
    else if (!(screen = widget->screen()))
        screen = widgetScreen(widget);
    if (!screen)
        return;

    const QRect available = screen->availableGeometry();
    if (!widget->isVisible()) {
        widget->move(available.topLeft());
        widget->ensurePolished();
    }
    const QSize size =
        ZelPlacementGeometry::sizeToCentre(sizesOf(widget)).boundedTo(available.size());
    if (size != widget->size())
        widget->resize(size);
    // A window that can't be made small enough keeps its title bar in sight.
    const QSize placed = size.boundedTo(widget->size());
    widget->move(ZelPlacementGeometry::topLeftInMiddle(placed, available));
}

void ensureNiceWidgetPosition(QWidget *widget)
{
    if (!widget || !widget->isWindow() || widget->isFullScreen() || widget->isMaximized())
        return;
    const int titleHeight = titleBarHeight(widget);
    const QRect geometry = widget->geometry();
    const QScreen *screen = widgetScreen(widget);
    if (!screen)
        return;

    const QRect available = screen->availableGeometry();
    const QSize size = ZelPlacementGeometry::sizeInside(geometry.size(), available, titleHeight);
    if (size != geometry.size())
        widget->resize(size);
    if (ZelPlacementGeometry::isNicelyPlaced(geometry, available))
        return;
    qWarning() << "ensureNiceWidgetPosition will center on screen due overlap outside area"
               << "\n"
               << geometry << widget->windowTitle();
    bringBackIntoSight(widget, screen);
}
