#pragma once

#include <ZelWidgets/DefaultWorkSpaceInfo>
#include <ZelWidgets/zelwidgets_export.h>

#include <QMap>

#include <memory>

class WorkSpaceDefaultsPrivate;
class ZelSettingsIO;

/// The factory workspaces that the application ships, one bundle for each of its versions.
///
/// The bundles are the files `zelmora<major>.<minor>.json` of the resource directory
/// ":/res/workspaces_bundled_defaults". They are read when they are first asked for; a file that
/// can't be used is told in a warning and left out whole.
class ZELWIDGETS_EXPORT WorkSpaceDefaults
{
public:
    WorkSpaceDefaults();
    /// Takes the bundles from elsewhere.
    explicit WorkSpaceDefaults(std::unique_ptr<WorkSpaceDefaultsPrivate> bundles);
    ~WorkSpaceDefaults();
    WorkSpaceDefaults(const WorkSpaceDefaults &) = delete;
    WorkSpaceDefaults &operator=(const WorkSpaceDefaults &) = delete;

    /// The workspaces of the newest bundle by their ids.
    QMap<QString, DefaultWorkSpaceInfo> getCurrentDefaults();
    /// True if any bundle, the newest one as well, has a workspace of this id with just these data.
    bool isWorkSpaceDataEqualToOneOfPreviousDefaults(const QString &id, const QByteArray &data);
    /// Brings stored workspaces that the user never changed to the newest bundle. Does so once in
    /// the life of the settings. Without settings nothing happens.
    void updateSettingsIfNotAlreadyDone(ZelSettingsIO *settings);

private:
    void migrateWorkSpaceId(ZelSettingsIO *settings, QString id,
                            const QMap<QString, DefaultWorkSpaceInfo> &current);

    std::unique_ptr<WorkSpaceDefaultsPrivate> d_;
};
