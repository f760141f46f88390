#include "workspace/WorkSpaceDefaults.h"

#include "workspace/WorkSpaceDefaultsPrivate.h"

#include <ZelCore/ZelSettingsIO>

#include <QStringList>

namespace {

const QLatin1String group("WorkSpaces.");

} // namespace

WorkSpaceDefaults::WorkSpaceDefaults()
    : d_(std::make_unique<WorkSpaceDefaultsPrivate>(
          std::make_unique<WorkSpaceDefaultsResourceIterator>()))
{}

WorkSpaceDefaults::WorkSpaceDefaults(std::unique_ptr<WorkSpaceDefaultsPrivate> bundles)
    : d_(std::move(bundles))
{}

WorkSpaceDefaults::~WorkSpaceDefaults() = default;

QMap<QString, DefaultWorkSpaceInfo> WorkSpaceDefaults::getCurrentDefaults()
{
    return d_->getCurrentDefaults();
}

bool WorkSpaceDefaults::isWorkSpaceDataEqualToOneOfPreviousDefaults(const QString &id,
                                                                    const QByteArray &data)
{
    return d_->isWorkSpaceDataEqualToOneOfPreviousDefaults(id, data);
}

void WorkSpaceDefaults::updateSettingsIfNotAlreadyDone(ZelSettingsIO *settings)
{
    const QString flag = group + QLatin1String("hasUpdatedWorkspacesAfterZEL91");
    if (!settings || settings->value(flag, false).toBool())
        return;
    const QMap<QString, DefaultWorkSpaceInfo> current = d_->getCurrentDefaults();
    const QStringList ids = settings->value(group + QLatin1String("ids")).toStringList();
    for (const QString &id : ids)
        migrateWorkSpaceId(settings, id, current);
    settings->setValue(flag, true);
}

void WorkSpaceDefaults::migrateWorkSpaceId(ZelSettingsIO *settings, QString id,
                                           const QMap<QString, DefaultWorkSpaceInfo> &current)
{
    const auto latest = current.constFind(id);
    if (latest == current.constEnd())
        return;
    const QString key = group + id;
    const QByteArray stored = settings->value(key).toByteArray();
    if (d_->isWorkSpaceDataEqualToOneOfPreviousDefaults(id, stored))
        settings->setValue(key, latest->data);
}
