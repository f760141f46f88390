#include "ViewCtrl.h"

#include "ZelMouseActionSettings.h"
#include "ZelShortcutHandler_p.h"
#include "ZelStoredValue.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

using Shortcut = ZelMouseShortcut;

constexpr Qt::KeyboardModifiers none = Qt::NoModifier;
constexpr Qt::KeyboardModifiers alt = Qt::AltModifier;
constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;
constexpr Qt::MouseButton left = Qt::LeftButton;
constexpr Qt::MouseButton middle = Qt::MiddleButton;
constexpr Qt::MouseButton right = Qt::RightButton;
constexpr Qt::MouseButtons leftAndRight = Qt::LeftButton | Qt::RightButton;

constexpr std::array gestureIds{QLatin1String("cam#ctrl.aTumble"), QLatin1String("cam#ctrl.bPan"),
                                QLatin1String("cam#ctrl.cvDolly"),
                                QLatin1String("cam#ctrl.cxDolly2")};
using Gestures = std::array<Shortcut, gestureIds.size()>;

Shortcut drag(Qt::KeyboardModifiers modifiers, Qt::MouseButtons buttons)
{
    return {Shortcut::Drag, modifiers, buttons};
}

Shortcut wheel(Qt::KeyboardModifiers modifiers = none)
{
    return {Shortcut::Wheel, modifiers, Qt::NoButton};
}

struct Preset
{
    Gestures gestures;
    std::optional<ViewCtrl::DollyMouseMode> dolly;
};

/// The presets from Mode1 on.
const auto &presets()
{
    using Dolly = ViewCtrl::DollyMouseMode;
    static const std::array<Preset, 13> presets{{
        {{drag(none, left), drag(none, middle), wheel(), drag(alt, right)}, Dolly::Mode3},
        {{drag(alt, middle), drag(none, middle), wheel(), drag(alt, right)}, Dolly::Mode1},
        {{drag(none, middle), drag(shift, middle), wheel(), drag(ctrl, middle)}, Dolly::Mode2},
        {{drag(alt, left), drag(alt, middle), drag(alt, right), {}}, Dolly::Mode3},
        {{drag(none, right), drag(shift, right), wheel(), drag(ctrl, right)}, Dolly::Mode1},
        {{drag(none, middle), drag(ctrl, middle), wheel(), drag(shift, middle)}, Dolly::Mode1},
        {{drag(alt | shift, left), drag(alt | shift, middle), wheel(), drag(alt | shift, right)},
         Dolly::Mode0},
        {{drag(none, middle), drag(shift, middle), wheel(), {}}, std::nullopt},
        {{drag(shift, right), drag(ctrl | shift, right), drag(ctrl, right), {}}, Dolly::Mode2},
        {{drag(none, right), drag(alt, right), wheel(ctrl), {}}, Dolly::Mode2},
        {{drag(shift, middle), drag(none, middle), wheel(), {}}, Dolly::Mode2},
        {{drag(none, leftAndRight), drag(shift, leftAndRight), wheel(), {}}, Dolly::Mode2},
        {{drag(none, middle), drag(shift, middle), wheel(), drag(ctrl, middle)}, Dolly::Mode2},
    }};
    return presets;
}

const Preset *presetOf(ViewCtrl::ViewMode mode)
{
    const int index = static_cast<int>(mode) - 1;
    return index >= 0 && index < static_cast<int>(presets().size())
               ? &presets()[static_cast<std::size_t>(index)]
               : nullptr;
}

using Actions = std::array<ZelMouseAction *, gestureIds.size()>;

Actions gestureActions()
{
    Actions actions{};
    const auto *settings = ZelMouseActionSettings::instance();
    for (std::size_t i = 0; i < actions.size(); ++i) {
        // The table hands its actions out as const; presets are its own business.
        actions[i] = const_cast<ZelMouseAction *>(settings->findById(gestureIds[i]));
    }
    return actions;
}

void applyPreset(const Preset &preset)
{
    const Actions actions = gestureActions();
    for (std::size_t i = 0; i < actions.size(); ++i)
        actions[i]->setShortcut(preset.gestures[i]);
}

} // namespace

namespace ViewCtrl {

Settings *Settings::instance()
{
    static Settings settings;
    return &settings;
}

void Settings::setViewMode(ViewMode mode)
{
    viewMode_ = mode;
    if (const Preset *preset = presetOf(mode)) {
        applyPreset(*preset);
        dollyZoomInMode_ = preset->dolly.value_or(dollyZoomInMode_);
    } else if (mode == ViewMode::Mode0) {
        const ZelSettings store(ZelShortcutKeys::group());
        dollyZoomInMode_ = static_cast<DollyMouseMode>(
            storedValue(store, QStringLiteral("DollyLastManualMoveMode"),
                        static_cast<int>(DollyMouseMode::Mode3)));
        for (ZelMouseAction *action : gestureActions()) {
            action->setShortcutFromText(
                ZelShortcutHandler::instance()->getShortcutInfo(action->id()));
        }
    }
}

void Settings::applyGestures()
{
    if (const Preset *preset = presetOf(viewMode_))
        applyPreset(*preset);
    else if (viewMode_ == ViewMode::Mode0)
        applyEntries();
}

void Settings::applyEntries()
{
    const ShortcutEntries &entries = ZelShortcutHandler::instance()->d_->entries;
    for (ZelMouseAction *action : gestureActions()) {
        const auto entry = entries.constFind(action->id());
        if (entry != entries.constEnd() && entry->currentKey != action->internalShortcutTxt())
            action->setShortcutFromText(entry->currentKey.text());
    }
}

bool Settings::decidesOn(const QString &id) const
{
    return presetOf(viewMode_) &&
           std::find(gestureIds.begin(), gestureIds.end(), id) != gestureIds.end();
}

void Settings::restoreViewCamSettings()
{
    const QVariant stored =
        ZelSettings(ZelShortcutKeys::group()).value(ZelShortcutKeys::viewMode());
    if (stored.metaType() == QMetaType::fromType<int>())
        setViewMode(static_cast<ViewMode>(stored.toInt()));
}

void Settings::storeViewCamSettings()
{
    ZelSettings store(ZelShortcutKeys::group());
    store.removeKey(ZelShortcutKeys::viewMode());
    store.setValue(ZelShortcutKeys::viewMode(), static_cast<int>(viewMode_));
}

} // namespace ViewCtrl
