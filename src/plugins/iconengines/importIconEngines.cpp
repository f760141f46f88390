// Part of each executable that uses the icon engines as a static plugin.

#include <QtPlugin>

Q_IMPORT_PLUGIN(ZelSvgIconEnginePlugin)
