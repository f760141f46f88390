#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QString>

class QIconEngine;

/// Lets Qt make themed icons of the .zelsvg and .zelsvgr files that style sheets name.
///
/// The application calls prepareHandleSvgIcons() before it applies such a sheet. The icon-engine
/// plugin for the two suffixes asks the application object for the factory; the application must
/// be able to find the plugin (QCoreApplication::addLibraryPath with the folder that holds
/// "iconengines", or Q_IMPORT_PLUGIN(ZelSvgIconEnginePlugin) when it is linked statically).
/// `image`, `icon` and `qproperty-` icons of a sheet take these files; `background-image` and
/// `border-image` don't ask icon engines.
class ZELWIDGETS_EXPORT HandleSvgInStyle
{
public:
    HandleSvgInStyle() = delete;

    /// Publishes iconEngineForFile() as the property "CreateIconEngineFunc", of type void *, of the
    /// application object.
    static void prepareHandleSvgIcons();
    /// The engine for a .zelsvg or .zelsvgr file, null if there is no picture. The caller owns it.
    static QIconEngine *iconEngineForFile(const QString &path);
};
