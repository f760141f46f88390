#include "WorkSpaceAnimationBlock.h"

#include "ZelStoredValue.h"
#include "docks/ZelDocksOf.h"
#include "theme/AnimationControlStyler.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QStyle>

WorkSpaceAnimationBlock::WorkSpaceAnimationBlock(QMainWindow *window)
{
    const QString key = QStringLiteral("BlockWorkspaceAnimations");
    ZelSettings settings(QStringLiteral("ui"));
    const bool isOn = storedValue(settings, key, false);
    if (settings.value(key) != QVariant(isOn))
        settings.setValue(key, isOn);
    if (!isOn || !window)
        return;
    for (QDockWidget *dock : zelDocksOf<QDockWidget>(window)) {
        QStyle *own = dock->testAttribute(Qt::WA_SetStyle) ? dock->style() : nullptr;
        auto *styler = new AnimationControlStyler(dock);
        entries_.append({dock, styler, own});
        dock->setStyle(styler);
    }
}

WorkSpaceAnimationBlock::~WorkSpaceAnimationBlock()
{
    for (const Entry &entry : std::as_const(entries_)) {
        if (entry.dock)
            entry.dock->setStyle(entry.own);
        if (entry.styler)
            entry.styler->deleteLater();
    }
}
