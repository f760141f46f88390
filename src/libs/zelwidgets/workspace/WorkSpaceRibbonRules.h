#pragma once

#include <QList>
#include <QStringList>

/// Which buttons of the ribbon a workspace shows.
namespace WorkSpaceRibbonRules {

/// True if the action of this object name is one of the ribbon's.
bool isRibbonAction(const QString &objectName);
/// The object name without "Ribbon" in front.
QString idOf(const QString &objectName);

class Buttons
{
public:
    /// The ids that were visible and hidden when the workspace was captured.
    Buttons(const QStringList &visibleIds, const QStringList &hiddenIds);

    /// For an action of the ribbon. A button that the workspace doesn't know is shown if the
    /// workspace hides any.
    bool isVisible(const QString &objectName) const;

private:
    QStringList visibleIds_;
    QStringList hiddenIds_;
    bool showsUnknown_;
};

struct BarItem
{
    bool isSeparator = false;
    bool isVisible = true;
};

/// Which items of a tool bar are to be visible, so that no two separators stand side by side:
/// items that aren't separators stay as they are, and of separators with nothing visible between
/// them the first one is shown.
QList<bool> visibleItems(const QList<BarItem> &items);

} // namespace WorkSpaceRibbonRules
