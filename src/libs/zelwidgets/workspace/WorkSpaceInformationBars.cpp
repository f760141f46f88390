#include "WorkSpaceInformation.h"

#include "ZelToolBar.h"
#include "workspace/WorkSpaceHandler.h"
#include "workspace/WorkSpaceRibbonRules.h"

#include <QAction>
#include <QLayout>
#include <QMainWindow>
#include <QToolButton>
#include <QWidgetAction>

namespace {

/// True for a hidden widget that is still enabled or not as the application wants it.
constexpr char keptProperty[] = "zelKeepsEnabled";

/// An action disables its widget when it is hidden and enables it when it is shown: a widget of the
/// application's own stays as it is.
void setActionVisible(QToolBar *bar, QAction *action, bool visible)
{
    const bool hasOwn = qobject_cast<QWidgetAction *>(action) != nullptr;
    const QPointer<QWidget> widget(hasOwn ? bar->widgetForAction(action) : nullptr);
    const bool isKept = widget && (action->isVisible() || widget->property(keptProperty).toBool());
    const bool isEnabled = widget && !widget->testAttribute(Qt::WA_ForceDisabled);
    action->setVisible(visible);
    if (!widget)
        return;
    if (isKept)
        widget->setEnabled(isEnabled);
    widget->setProperty(keptProperty, isKept && !visible);
}

/// The bars of a main window are its own children; an application may have put one elsewhere.
template <typename Bar>
Bar *barOf(const QMainWindow *window, const QString &name)
{
    Bar *bar = window->findChild<Bar *>(name, Qt::FindDirectChildrenOnly);
    return bar ? bar : window->findChild<Bar *>(name);
}

} // namespace

QToolBar *WorkSpaceInformation::ribbon() const
{
    // The button of the workspaces bears this name too.
    return barOf<QToolBar>(window_, QStringLiteral("Ribbon"));
}

void WorkSpaceInformation::captureRibbon()
{
    const QToolBar *bar = ribbon();
    if (!bar)
        return;
    for (const QAction *action : bar->actions()) {
        const QString name = action->objectName();
        if (!WorkSpaceRibbonRules::isRibbonAction(name))
            continue;
        QStringList &ids = action->isVisible() ? record_.visibleRibbonIds : record_.hiddenRibbonIds;
        ids.append(WorkSpaceRibbonRules::idOf(name));
    }
}

void WorkSpaceInformation::captureToolBar()
{
    const auto *bar = barOf<ZelToolBar>(window_, QStringLiteral("MainToolBar"));
    if (!bar)
        return;
    record_.toolBarIconSize = bar->iconSize();
    record_.toolBarVisible = !bar->isHidden();
    record_.toolButtonStyle = qint16(bar->toolButtonStyle());
    record_.toolBarMode = bar->currentIconSizeMode();
}

void WorkSpaceInformation::restoreRibbon()
{
    const QPointer<QToolBar> bar = window_ ? ribbon() : nullptr;
    if (!bar)
        return;
    const WorkSpaceRibbonRules::Buttons buttons(record_.visibleRibbonIds, record_.hiddenRibbonIds);
    const QList<QAction *> present = bar->actions();
    const QList<QPointer<QAction>> actions(present.begin(), present.end());
    for (const QPointer<QAction> &action : actions) {
        const QString name = action ? action->objectName() : QString();
        if (bar && WorkSpaceRibbonRules::isRibbonAction(name))
            setActionVisible(bar, action, buttons.isVisible(name));
    }
    if (bar)
        WorkSpaceHandler::fixSeparators(bar);
}

void WorkSpaceInformation::restoreToolBar()
{
    auto *bar = window_ ? barOf<ZelToolBar>(window_, QStringLiteral("MainToolBar")) : nullptr;
    if (!bar || !record_.isValid || record_.toolBarIconSize.isEmpty())
        return;
    bar->setUpdatesEnabled(false);
    const auto mode = ZelToolBar::IconSizeMode(record_.toolBarMode);
    if (ZelToolBar::isKnownMode(mode))
        bar->setIconSizeMode(mode);
    else
        bar->setBestIconSizeModeFromSize(record_.toolBarIconSize);
    if (record_.toolButtonStyle >= 0 && record_.toolButtonStyle <= Qt::ToolButtonFollowStyle) {
        const auto style = Qt::ToolButtonStyle(record_.toolButtonStyle);
        bar->setToolButtonStyle(style);
        for (QToolButton *button : bar->findChildren<QToolButton *>()) {
            button->setToolButtonStyle(style);
            button->setIconSize(bar->iconSize());
        }
    }
    bar->setUpdatesEnabled(true);
    bar->updateGeometry();
    bar->setVisible(record_.toolBarVisible);
}

void WorkSpaceInformation::refreshRibbon()
{
    QToolBar *bar = window_ ? ribbon() : nullptr;
    if (!bar)
        return;
    bar->setProperty("ForceNotificationUpdate", true);
    bar->updateGeometry();
    bar->setVisible(!bar->isHidden());
}

/// Buttons that came and went give their bars other sizes.
void WorkSpaceInformation::settle()
{
    if (!window_)
        return;
    for (QToolBar *bar : window_->findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly))
        bar->layout()->activate();
    window_->layout()->activate();
    // Or all would be painted once more when they come.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}
