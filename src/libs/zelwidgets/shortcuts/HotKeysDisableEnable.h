#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QKeySequence>
#include <QList>
#include <QString>

#include <memory>

class HotKeysDisableEnablePrivate;

/// Switches the hot keys below the main widget off while some modal work runs; meant for the stack.
/// Handlers of keys in conflict stay on, and look at whether the object that they choose is on.
///
///     HotKeysDisableEnable hotKeys;
///     hotKeys.disableHotKeys({QStringLiteral("gen.aUndo")}, {});
///     renameInPlace();
class ZELWIDGETS_EXPORT HotKeysDisableEnable
{
public:
    HotKeysDisableEnable();
    /// Switches on what it switched off.
    ~HotKeysDisableEnable();
    HotKeysDisableEnable(const HotKeysDisableEnable &) = delete;
    HotKeysDisableEnable &operator=(const HotKeysDisableEnable &) = delete;

    void disableAllHotKeys();
    /// Those of the ids and with the keys stay on. Actions of tool bars stay as they are.
    void disableHotKeys(QList<QString> exceptIds, QList<QKeySequence> exceptKeys);
    void reEnableHotKeys();

private:
    std::unique_ptr<HotKeysDisableEnablePrivate> d_;
};
