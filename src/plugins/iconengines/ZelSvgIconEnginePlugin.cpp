#include "ZelSvgIconEnginePlugin.h"

#include <ZelWidgets/HandleSvgInStyle>

#include <QCoreApplication>
#include <QVariant>

namespace {

using Factory = QIconEngine *(*)(const QString &);

Factory factory()
{
    const QCoreApplication *application = QCoreApplication::instance();
    const QVariant published =
        application ? application->property("CreateIconEngineFunc") : QVariant();
    if (published.metaType() == QMetaType::fromType<void *>() && published.value<void *>())
        return reinterpret_cast<Factory>(published.value<void *>());
    return &HandleSvgInStyle::iconEngineForFile;
}

} // namespace

QIconEngine *ZelSvgIconEnginePlugin::create(const QString &fileName)
{
    return factory()(fileName);
}
