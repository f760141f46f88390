#include "ModalWindowPlacement.h"

#include "ZelWindowPlacement.h"

#include <QApplication>
#include <QDebug>
#include <QPointer>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <array>

namespace ModalWindowPlacement {
namespace {

bool isToolWindowWithTitle(const QWidget *widget)
{
    constexpr auto wanted = Qt::Tool | Qt::WindowTitleHint;
    return widget->isWindow() && (widget->windowFlags() & wanted) == wanted;
}

bool isAlwaysOnTop(const QWidget *widget)
{
    return widget->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
}

bool liesOver(const QWidget *other, const QWidget *modalWindow)
{
    if (!other->isVisible() || other == modalWindow || !isAlwaysOnTop(other))
        return false;
    if (other == modalWindow->parentWidget() && isAlwaysOnTop(modalWindow))
        return false;
    return coversTooMuch(other->geometry(), modalWindow->geometry());
}

bool hasToStay(const QWidget *window)
{
    return window->isModal() || window->property("modalDialog").toBool();
}

void hideForModalWindow(QWidget *window)
{
    qWarning() << "* called hide() on alwaysOnTopDialog to show modal dialog";
    qWarning() << "* hidden widget " << window << " with title:" << window->windowTitle();
    window->hide();
}

QSize searchStepOf(QWidget *window)
{
    std::optional<QSize> available;
    if (const QScreen *screen = widgetScreen(window))
        available = screen->availableGeometry().size();
    return searchStep(window->size(), available);
}

void searchFreePlace(QWidget *window)
{
    const QPoint firstPlace = window->pos();
    for (int candidate = 0; candidate < candidateCount; ++candidate) {
        window->move(candidatePosition(candidate, firstPlace, searchStepOf(window)));
        if (!isOverlappedByAlwaysOnTopDialog(window))
            return;
    }
}

} // namespace

void placeShownWindow(QWidget *widget)
{
    if (isToolWindowWithTitle(widget) && widget->objectName() != QLatin1String("WelcomeWidget"))
        widget->activateWindow();
    if (!widget->isWindow() || widget->windowModality() == Qt::NonModal)
        return;
    if (!isOverlappedByAlwaysOnTopDialog(widget))
        return;
    centerWidgetOnScreen(widget, nullptr);
    if (isOverlappedByAlwaysOnTopDialog(widget))
        searchFreePlace(widget);
}

bool isOverlappedByAlwaysOnTopDialog(QWidget *modalWindow)
{
    bool isOverlapped = false;
    // Hiding a window runs its owner's code, which may delete others.
    const QWidgetList present = QApplication::topLevelWidgets();
    const QList<QPointer<QWidget>> windows(present.cbegin(), present.cend());
    for (const QPointer<QWidget> &window : windows) {
        if (!window || !liesOver(window, modalWindow))
            continue;
        if (hasToStay(window))
            isOverlapped = true;
        else
            hideForModalWindow(window);
    }
    return isOverlapped;
}

bool coversTooMuch(const QRect &window, const QRect &modalWindow)
{
    const QRect common = window.intersected(modalWindow);
    if (common.isEmpty())
        return false;
    const qint64 modalArea = qint64(modalWindow.width()) * modalWindow.height();
    return qint64(common.width()) * common.height() > modalArea / 3;
}

QSize searchStep(QSize window, const std::optional<QSize> &screen)
{
    const QSize step(std::max(window.width() + 20, 400), std::max(window.height() + 40, 330));
    return screen ? step.expandedTo({screen->width() / 3, screen->height() / 3}) : step;
}

QPoint candidatePosition(int candidate, QPoint firstPlace, QSize step)
{
    static constexpr std::array<QPoint, candidateCount> directions{
        {{-1, -1}, {-1, 0}, {-1, 1}, {0, -1}, {0, 1}, {1, -1}, {1, 0}, {1, 1}}};
    const QPoint direction = directions.at(size_t(candidate));
    return {firstPlace.x() + direction.x() * step.width(),
            std::max(firstPlace.y() + direction.y() * step.height(), 0)};
}

} // namespace ModalWindowPlacement
