#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// Chooses the ids and names of many workspaces one after the other, each different from those that
/// were chosen before. What it found taken once isn't looked at again.
class WorkSpaceNameChooser
{
public:
    WorkSpaceNameChooser(const QStringList &takenIds, const QStringList &takenNames);

    /// The first id of the form "wsid1" that isn't taken.
    QString takeId();
    /// The name of an imported workspace, see WorkSpaceNames::importedName().
    QString takeName(const QString &wanted);

private:
    /// For numbers that are taken a higher one, up to which all are.
    using Jumps = QHash<qint64, qint64>;

    QString takeNumbered(const QString &stem, qint64 first);

    QSet<QString> ids_;
    QSet<QString> names_;
    int lastId_ = 0;
    QHash<QString, Jumps> jumpsByStem_;
};
