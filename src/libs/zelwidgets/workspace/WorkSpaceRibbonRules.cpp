#include "workspace/WorkSpaceRibbonRules.h"

namespace {

const QLatin1String prefix("Ribbon");
const QLatin1String studios("Studios");

/// Buttons that go with the one of the studios.
bool belongsToStudios(const QString &objectName)
{
    return objectName == QLatin1String("RibbonStudiosTggl") ||
           objectName == QLatin1String("RibbonStudiosStep");
}

} // namespace

bool WorkSpaceRibbonRules::isRibbonAction(const QString &objectName)
{
    return objectName.startsWith(prefix);
}

QString WorkSpaceRibbonRules::idOf(const QString &objectName)
{
    return isRibbonAction(objectName) ? objectName.mid(prefix.size()) : objectName;
}

WorkSpaceRibbonRules::Buttons::Buttons(const QStringList &visibleIds, const QStringList &hiddenIds)
    : visibleIds_(visibleIds)
    , hiddenIds_(hiddenIds)
    , showsUnknown_(!hiddenIds.isEmpty())
{
    // Workspaces that tell no visible buttons are older than the one for scripts.
    if (visibleIds_.isEmpty())
        hiddenIds_.append(QStringLiteral("Script"));
}

bool WorkSpaceRibbonRules::Buttons::isVisible(const QString &objectName) const
{
    if (belongsToStudios(objectName) && hiddenIds_.contains(studios))
        return false;
    const QString id = idOf(objectName);
    return visibleIds_.contains(id) || (showsUnknown_ && !hiddenIds_.contains(id));
}

QList<bool> WorkSpaceRibbonRules::visibleItems(const QList<BarItem> &items)
{
    QList<bool> visible;
    bool isBehindSeparator = false;
    for (const BarItem &item : items) {
        visible.append(item.isSeparator ? !isBehindSeparator : item.isVisible);
        if (item.isSeparator || item.isVisible)
            isBehindSeparator = item.isSeparator;
    }
    return visible;
}
