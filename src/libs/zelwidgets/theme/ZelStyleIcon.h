#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QString>

class StyleSvgIconEngine;

/// An icon whose picture is one SVG document in the colours of the icon theme.
///
///     button->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/add.svg")));
///
/// The document is read once and coloured anew at each paint, so that the icon follows a theme
/// switch by itself. Don't add pixmaps or files to it.
class ZELWIDGETS_EXPORT ZelStyleIcon : public QIcon
{
public:
    /// A null icon.
    ZelStyleIcon();
    /// Loads the file; ".svg" is appended to a name that ends neither in ".svg" nor in ".zelsvg".
    /// A file that can't be read gives a null icon and a warning.
    explicit ZelStyleIcon(const QString &file);
    ZelStyleIcon(const ZelStyleIcon &) = default;
    ZelStyleIcon &operator=(const ZelStyleIcon &) = default;

    /// Copies that always show the colours of one mode and state: normal and on, normal and off,
    /// active and off, disabled and off.
    ZelStyleIcon active() const;
    ZelStyleIcon inactive() const;
    ZelStyleIcon hover() const;
    ZelStyleIcon disabled() const;

    /// The file name, with what was appended.
    QString iconName() const;

private:
    friend class ZelCombinedIcon;
    friend class ZelCombinedIconEngine;

    explicit ZelStyleIcon(StyleSvgIconEngine *engine);
    ZelStyleIcon modeIcon(QIcon::Mode mode, QIcon::State state) const;

    // The engine of the icon, which owns it.
    StyleSvgIconEngine *engine_;
};
