#include "HandleSvgInStyle.h"

#include "ZelCombinedIcon.h"

#include <QCoreApplication>
#include <QDebug>
#include <QVariant>

void HandleSvgInStyle::prepareHandleSvgIcons()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application) {
        qWarning() << "HandleSvgInStyle::prepareHandleSvgIcons needs an application object";
        return;
    }
    application->setProperty("CreateIconEngineFunc", QVariant::fromValue(reinterpret_cast<void *>(
                                                         &HandleSvgInStyle::iconEngineForFile)));
}

QIconEngine *HandleSvgInStyle::iconEngineForFile(const QString &path)
{
    const QString name = path.toLower();
    if (name.endsWith(QLatin1String(".zelsvgr")))
        return ZelCombinedIcon::createEngineForZELSVGR(path);
    if (!name.endsWith(QLatin1String(".zelsvg")))
        qCritical() << "unexpected wrong call to HandleSvgInStyle::iconEngineForFile";
    return ZelCombinedIcon::createEngineForZELSVG(path);
}
