#pragma once

#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QList>
#include <QString>

class QIconEngine;
class ZelCombinedIconEngine;

/// An icon made of several themed SVG documents, each for one icon mode and state.
///
/// A family of files around a base name X makes such an icon: X.zelsvg or X_inactive.zelsvg
/// (normal, off), X_active.zelsvg (normal, on), X_hover.zelsvg (active, off), X_active_hover.zelsvg
/// (active, on), X_disabled.zelsvg (disabled, on and off). What has no picture of its own is served
/// by the nearest that there is, in the colours of the mode and state that were asked for.
///
/// Don't add pixmaps or files to it.
class ZELWIDGETS_EXPORT ZelCombinedIcon : public QIcon
{
public:
    /// Without pictures; it is null and paints a gray rectangle.
    ZelCombinedIcon();
    ZelCombinedIcon(const ZelCombinedIcon &) = default;
    ZelCombinedIcon &operator=(const ZelCombinedIcon &) = default;

    /// Adds a picture; one that is there for the pair is overridden. Copies of this icon share it.
    void addIconForMode(const ZelStyleIcon &icon, QIcon::Mode mode, QIcon::State state);
    /// The picture that serves the mode and state; a null icon, with a warning, if there is none.
    ZelStyleIcon findBestMatch(QIcon::Mode mode, QIcon::State state) const;

    /// Sorts icons by their file names: "_active" is the state on, else it is off; "_selected",
    /// "_disabled" and "_hover" (in this order of priority) tell the mode.
    static ZelCombinedIcon createFromBaseIconsAndNames(const QList<ZelStyleIcon> &icons);

    /// The engine of the family that a .zelsvg file belongs to; null if there is no file of it.
    /// The caller owns the engine.
    static QIconEngine *createEngineForZELSVG(const QString &path);
    /// The engine of the one picture that a .zelsvgr file refers to; null, with a message, if the
    /// file is missing or invalid. The caller owns the engine.
    ///
    /// Line 1 is the path of a .zelsvg file, line 2, optional, holds words that pin the mode and
    /// the state: "active", "inactive", "selected", "disabled", "normal", "hover".
    static QIconEngine *createEngineForZELSVGR(const QString &path);

private:
    static ZelCombinedIcon iconForZELSVG(const QString &path);

    explicit ZelCombinedIcon(ZelCombinedIconEngine *engine);

    // The engine of the icon, which owns it.
    ZelCombinedIconEngine *engine_;
};
