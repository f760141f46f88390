#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QString>

/// Camera navigation as other programs do it.
namespace ViewCtrl {

/// A preset of the gestures for tumbling, panning and moving the camera. The names are the
/// application's; Mode0 is the user's own choice of gestures.
enum class ViewMode : int {
    Mode0,
    Mode1,
    Mode2,
    Mode3,
    Mode4,
    Mode5,
    Mode6,
    Mode7,
    Mode8,
    Mode9,
    Mode10,
    Mode11,
    Mode12,
    Mode13
};

/// Which way a drag moves the camera in; the meaning is the application's.
enum class DollyMouseMode : int { Mode0, Mode1, Mode2, Mode3 };

/// The preset in force. A preset changes four mouse gestures, not their entries in the registry of
/// shortcuts, so that Mode0 finds the user's own again.
class ZELWIDGETS_EXPORT Settings
{
public:
    static Settings *instance();

    ViewMode viewMode() const { return viewMode_; }
    /// Unknown modes are only remembered.
    void setViewMode(ViewMode mode);
    DollyMouseMode dollyZoomInMode() const { return dollyZoomInMode_; }
    void setDollyZoomInMode(DollyMouseMode mode) { dollyZoomInMode_ = mode; }

    /// Settings group "shortcutSettings", key "ViewCtrl"; nothing happens without the key.
    void restoreViewCamSettings();
    void storeViewCamSettings();

    /// Whether the mode in force, and not the registry, decides on the gesture of the id.
    bool decidesOn(const QString &id) const;

    /// Sets the gestures of the mode in force once more.
    void applyGestures();

private:
    Settings() = default;
    void applyEntries();

    ViewMode viewMode_ = ViewMode::Mode0;
    DollyMouseMode dollyZoomInMode_ = DollyMouseMode::Mode0;
};

} // namespace ViewCtrl
