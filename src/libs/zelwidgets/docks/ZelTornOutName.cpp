#include "ZelTornOutName.h"

#include "ZelStoredValue.h"
#include "workspace/WorkSpaceNames.h"

#include <QWidget>

namespace ZelTornOutName {
namespace {

QString stem(const QWidget *page)
{
    if (!page)
        return QStringLiteral("ErrorInName");
    return QLatin1String("ZelDW") + WorkSpaceNames::filtered(page->objectName());
}

} // namespace

QString stable(const QWidget *page)
{
    return stem(page) + u'_';
}

QString takeNext(const QWidget *page)
{
    const QString key = QStringLiteral("windowSeq");
    ZelSettings settings(page ? page->objectName() + QLatin1String("DockWdg")
                              : QStringLiteral("ProblematicNullPtrError"));
    const uint number = storedValue(settings, key, 0U) + 1;
    settings.setValue(key, number);
    return stem(page) + QString::number(number);
}

} // namespace ZelTornOutName
