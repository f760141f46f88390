#include "ZelConflictChoice.h"

#include <QDockWidget>
#include <QMenu>
#include <QWidget>

namespace {

constexpr int actionOfMenuScore = 1;
constexpr int notApplicationScore = 200;
constexpr int otherWindowScore = 500;
constexpr int stepScore = 2;

bool isMenu(const QWidget *widget)
{
    return qobject_cast<const QMenu *>(widget) != nullptr;
}

/// The dock, or the window that is no menu, that a widget is in.
QWidget *rootOf(QWidget *widget)
{
    while (widget->parentWidget() && !qobject_cast<QDockWidget *>(widget) &&
           (!widget->isWindow() || isMenu(widget)))
        widget = widget->parentWidget();
    return widget;
}

/// Tool windows and popups are part of their parent; others stand for themselves.
bool standsAlone(const QWidget *root)
{
    return root->isModal() || !root->parentWidget() || root->windowType() == Qt::Window ||
           root->windowType() == Qt::Dialog;
}

bool isInWindowOf(QWidget *scope, QWidget *place)
{
    const QWidget *scopeRoot = rootOf(scope);
    QWidget *root = rootOf(place);
    while (!ZelConflictChoice::isAncestorOrSame(scopeRoot, root)) {
        if (standsAlone(root))
            return false;
        root = rootOf(root->parentWidget());
    }
    return true;
}

bool leadsToWindowOf(const QWidget *scope, const QWidget *focus)
{
    const QWidget *window = scope->window();
    for (const QWidget *widget = focus; widget; widget = widget->parentWidget()) {
        if (widget == window)
            return true;
        const Qt::WindowType type = widget->windowType();
        if (type != Qt::Widget && type != Qt::Popup && type != Qt::SubWindow)
            return false;
    }
    return false;
}

int stepsUp(const QWidget *from, const QWidget *window, const QWidget *scope)
{
    int steps = 0;
    for (const QWidget *widget = from; widget && widget != window && widget != scope;
         widget = widget->parentWidget())
        ++steps;
    return steps;
}

} // namespace

namespace ZelConflictChoice {

bool isAncestorOrSame(const QWidget *ancestor, const QWidget *widget)
{
    return ancestor == widget || ancestor->isAncestorOf(widget);
}

QWidget *windowBehindMenus(QWidget *widget)
{
    QWidget *window = widget->window();
    while (isMenu(window) && window->parentWidget())
        window = window->parentWidget()->window();
    return window;
}

bool isCandidate(const Claim &claim, QWidget *focus, QWidget *place)
{
    switch (claim.context) {
    case Qt::WidgetShortcut:
        return focus && focus->window() == claim.scope->window();
    case Qt::WidgetWithChildrenShortcut:
        return leadsToWindowOf(claim.scope, focus);
    case Qt::WindowShortcut:
        return isInWindowOf(claim.scope, place);
    case Qt::ApplicationShortcut:
        break;
    }
    return true;
}

int score(const Claim &claim, const QWidget *place)
{
    const QWidget *window = windowBehindMenus(claim.scope);
    int score = 0;
    if (isMenu(claim.scope->window()) && !claim.isShortcut)
        score += actionOfMenuScore;
    if (claim.context != Qt::ApplicationShortcut)
        score += notApplicationScore;
    if (!isAncestorOrSame(window, place))
        score += otherWindowScore;
    return score + stepScore * stepsUp(place, window, claim.scope);
}

} // namespace ZelConflictChoice
