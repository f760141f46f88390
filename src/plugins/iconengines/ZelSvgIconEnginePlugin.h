#pragma once

#include <QIconEnginePlugin>

/// Makes the icon engines of .zelsvg and .zelsvgr files for QIcon and for style sheets.
///
/// It calls the factory that the application object has as the property "CreateIconEngineFunc"
/// (a function from a path to an engine), or else the library's own.
class ZelSvgIconEnginePlugin : public QIconEnginePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QIconEngineFactoryInterface_iid FILE "zelsvg.json")

public:
    using QIconEnginePlugin::QIconEnginePlugin;

    QIconEngine *create(const QString &fileName = QString()) override;
};
