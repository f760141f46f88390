#include "ZelDockTargets.h"

#include "ZelWindowPlacement.h"
#include "docks/ZelDockWidgetFromTab.h"
#include "docks/ZelDocking.h"
#include "docks/ZelTextIconTabWidget.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>

#include <algorithm>

namespace {

using Place = ZelDockTarget::Place;

constexpr Qt::DockWidgetArea areasBefore[] = {Qt::LeftDockWidgetArea, Qt::TopDockWidgetArea};
constexpr Qt::DockWidgetArea areasBehind[] = {Qt::BottomDockWidgetArea, Qt::RightDockWidgetArea};
constexpr int sideShare = 4;

QString tr(const char *text)
{
    return QCoreApplication::translate("ZelDockingMode", text);
}

bool isAtSide(Qt::DockWidgetArea area)
{
    return area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea;
}

QString nameOf(Qt::DockWidgetArea area)
{
    switch (area) {
    case Qt::LeftDockWidgetArea:
        return tr("Left side");
    case Qt::RightDockWidgetArea:
        return tr("Right side");
    case Qt::TopDockWidgetArea:
        return tr("Top");
    default:
        return tr("Bottom");
    }
}

QString relation(const ZelDockTarget &target)
{
    if (target.place == Place::OnTop)
        return tr("%1, as a tab with %2");
    if (isAtSide(target.area))
        return target.place == Place::Before ? tr("%1, above %2") : tr("%1, below %2");
    return target.place == Place::Before ? tr("%1, left of %2") : tr("%1, right of %2");
}

/// The docks that stand in the area, in the order that they are seen in; of those that share a
/// place only the one in front.
QList<QDockWidget *> docksAt(const QMainWindow *window, Qt::DockWidgetArea area)
{
    QList<QDockWidget *> docks;
    for (auto *dock : window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (window->dockWidgetArea(dock) == area && dock->isVisible() && !dock->isFloating() &&
            window->rect().intersects(dock->geometry()))
            docks.append(dock);
    }
    std::sort(docks.begin(), docks.end(), [](const QDockWidget *a, const QDockWidget *b) {
        return a->x() + a->y() < b->x() + b->y();
    });
    return docks;
}

QRect halfOf(const QRect &whole, Qt::DockWidgetArea area, bool first)
{
    QRect half = whole;
    if (isAtSide(area))
        first ? half.setBottom(whole.center().y()) : half.setTop(whole.center().y());
    else
        first ? half.setRight(whole.center().x()) : half.setLeft(whole.center().x());
    return half;
}

QRect stripOf(const QRect &whole, Qt::DockWidgetArea area)
{
    QRect strip = whole;
    if (area == Qt::LeftDockWidgetArea)
        strip.setWidth(whole.width() / sideShare);
    else if (area == Qt::RightDockWidgetArea)
        strip.setLeft(whole.right() - whole.width() / sideShare);
    else if (area == Qt::TopDockWidgetArea)
        strip.setHeight(whole.height() / sideShare);
    else
        strip.setTop(whole.bottom() - whole.height() / sideShare);
    return strip;
}

} // namespace

ZelDockTargets::ZelDockTargets(QMainWindow *window, const ZelDockSubject &subject)
    : window_(window)
    , subject_(subject)
{
    if (!window || !subject.isValid())
        return;
    for (const Qt::DockWidgetArea area : areasBefore)
        add(placesAt(area));
    add(windows());
    for (const Qt::DockWidgetArea area : areasBehind)
        add(placesAt(area));
    present_ = findPresent();
    for (int column = 0; column < columns_.size(); ++column) {
        const int row = int(columns_[column].indexOf(present_));
        if (row >= 0) {
            column_ = column;
            row_ = row;
        }
    }
}

void ZelDockTargets::add(const QList<ZelDockTarget> &column)
{
    if (!column.isEmpty())
        columns_.append(column);
}

QList<ZelDockTarget> ZelDockTargets::placesAt(Qt::DockWidgetArea area) const
{
    QList<ZelDockTarget> places;
    if (!subject_.isAreaAllowed(area))
        return places;
    for (QDockWidget *dock : neighboursAt(area)) {
        // What goes beside one of several docks in a place would become one of them.
        const bool isAlone = window_->tabifiedDockWidgets(dock).isEmpty();
        if (isAlone && places.isEmpty())
            places.append({Place::Before, area, dock, nullptr});
        if (window_->dockOptions().testFlag(QMainWindow::AllowTabbedDocks))
            places.append({Place::OnTop, area, dock, nullptr});
        if (isAlone)
            places.append({Place::Behind, area, dock, nullptr});
    }
    if (places.isEmpty() || places.constLast().place == Place::OnTop)
        places.append({Place::Side, area, nullptr, nullptr});
    return places;
}

QList<QDockWidget *> ZelDockTargets::neighboursAt(Qt::DockWidgetArea area) const
{
    QList<QDockWidget *> docks = docksAt(window_, area);
    QDockWidget *dock = subject_.dock();
    if (docks.removeOne(dock)) {
        // It may hide one that it shares its place with.
        const QList<QDockWidget *> together = window_->tabifiedDockWidgets(dock);
        if (!together.isEmpty())
            docks.prepend(together.constFirst());
    }
    return docks;
}

QList<ZelDockTarget> ZelDockTargets::windows() const
{
    QList<ZelDockTarget> places;
    const QList<QScreen *> screens = QGuiApplication::screens();
    if (subject_.canFloat() && (screens.size() == 1 || !ZelDocking::hasGlobalPositions())) {
        places.append({Place::Floating, Qt::NoDockWidgetArea, nullptr, nullptr});
    } else if (subject_.canFloat()) {
        for (QScreen *screen : screens)
            places.append({Place::Floating, Qt::NoDockWidgetArea, nullptr, screen});
    }
    if (subject_.tabs())
        places.append({Place::Tabs, Qt::NoDockWidgetArea, nullptr, nullptr});
    return places;
}

ZelDockTarget ZelDockTargets::findPresent() const
{
    QDockWidget *dock = subject_.dock();
    if (!dock)
        return {Place::Tabs, Qt::NoDockWidgetArea, nullptr, nullptr};
    if (dock->isFloating()) {
        for (const ZelDockTarget &place : windows()) {
            if (place.place == Place::Floating && (!place.screen || place.screen == dock->screen()))
                return place;
        }
        return {};
    }
    const Qt::DockWidgetArea area = window_->dockWidgetArea(dock);
    if (!window_->tabifiedDockWidgets(dock).isEmpty())
        return {Place::OnTop, area, neighboursAt(area).value(0), nullptr};
    const QList<QDockWidget *> docks = docksAt(window_, area);
    const int index = int(docks.indexOf(dock));
    if (index > 0)
        return {Place::Behind, area, docks[index - 1], nullptr};
    if (docks.size() > 1)
        return {Place::Before, area, docks[1], nullptr};
    return {Place::Side, area, nullptr, nullptr};
}

bool ZelDockTargets::move(const QPoint &step)
{
    const int column = std::clamp(column_ + step.x(), 0, int(columns_.size()) - 1);
    const int row = std::clamp(row_ + step.y(), 0, int(columns_[column].size()) - 1);
    if (column == column_ && row == row_)
        return false;
    column_ = column;
    row_ = row;
    return true;
}

QString ZelDockTargets::text() const
{
    const ZelDockTarget &target = current();
    switch (target.place) {
    case Place::Floating:
        return target.screen ? tr("Window on screen %1").arg(target.screen->name())
                             : tr("Window of its own");
    case Place::Tabs:
        return tr("Among the tabs");
    case Place::Side:
        return nameOf(target.area);
    default:
        return relation(target).arg(nameOf(target.area),
                                    target.neighbour ? target.neighbour->windowTitle() : QString());
    }
}

QRect ZelDockTargets::area() const
{
    const ZelDockTarget &target = current();
    if (isPresentPlace() && subject_.dock())
        return {window_->mapFromGlobal(subject_.dock()->mapToGlobal(QPoint())),
                subject_.dock()->size()};
    const QWidget *central = window_->centralWidget();
    const QRect middle = central ? central->geometry() : window_->rect();
    const QRect neighbour = target.neighbour ? target.neighbour->geometry() : middle;
    switch (target.place) {
    case Place::Before:
    case Place::Behind:
        return halfOf(neighbour, target.area, target.place == Place::Before);
    case Place::OnTop:
        return neighbour;
    case Place::Tabs:
        if (subject_.tabs())
            return {subject_.tabs()->mapTo(window_, QPoint(0, 0)), subject_.tabs()->size()};
        return middle;
    case Place::Floating:
        return floatingArea(middle);
    case Place::Side:
        break;
    }
    return stripOf(middle, target.area);
}

/// As large as it is now, at the middle.
QRect ZelDockTargets::floatingArea(const QRect &middle) const
{
    const QWidget *panel = subject_.dock();
    if (!panel)
        panel = subject_.tabs();
    const QSize size = panel ? panel->size() : middle.size() / 2;
    QRect area(QPoint(), size.boundedTo(window_->size()));
    area.moveCenter(middle.center());
    return area;
}

QDockWidget *ZelDockTargets::apply()
{
    const ZelDockTarget target = current();
    if (!window_ || !subject_.isValid())
        return nullptr;
    if (target.place == Place::Tabs) {
        if (auto *tornOut = qobject_cast<ZelDockWidgetFromTab *>(subject_.dock()))
            tornOut->forceRestoreInView();
        return nullptr;
    }
    const bool isPresent = isPresentPlace();
    const QRect place = area();
    const QPointer<QDockWidget> dock(subject_.takeOut());
    if (!dock || isPresent)
        return dock;
    if (target.place == Place::Floating) {
        dock->setFloating(true);
        dock->show();
        if (dock && target.screen)
            centerWidgetOnScreen(dock, target.screen);
        else if (dock && window_ && ZelDocking::hasGlobalPositions())
            dock->setGeometry(place.translated(window_->mapToGlobal(QPoint())));
    } else {
        insert(dock);
    }
    return dock;
}

void ZelDockTargets::insert(QDockWidget *dock)
{
    const ZelDockTarget &target = current();
    const Qt::Orientation orientation = isAtSide(target.area) ? Qt::Vertical : Qt::Horizontal;
    window_->addDockWidget(target.area, dock);
    dock->setFloating(false);
    dock->show();
    QDockWidget *neighbour = target.neighbour;
    if (!neighbour || neighbour->isFloating() || target.place == Place::Side)
        return;
    if (target.place == Place::OnTop) {
        window_->tabifyDockWidget(neighbour, dock);
        dock->raise();
        return;
    }
    window_->splitDockWidget(neighbour, dock, orientation);
    if (target.place == Place::Before)
        window_->splitDockWidget(dock, neighbour, orientation);
}
