#pragma once

#include <QByteArray>
#include <QString>

/// A factory workspace.
struct DefaultWorkSpaceInfo
{
    QString id;
    /// What the user reads.
    QString name;
    /// The captured interface, as WorkSpaceHandler::restoreWorkSpace() takes it.
    QByteArray data;

    bool operator==(const DefaultWorkSpaceInfo &) const = default;
};
