#pragma once

#include "workspace/DefaultWorkSpaceInfo.h"

#include <ZelCore/ZelSettings>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// The stored workspaces of the user, in their order. Every change is written to the store at once.
class WorkSpaceList
{
public:
    /// Reads what is stored. A workspace without a name bears its id, one named twice counts once.
    WorkSpaceList();

    const QStringList &ids() const { return ids_; }
    /// As many as there are ids.
    const QStringList &names() const { return names_; }
    bool contains(const QString &id) const { return ids_.contains(id); }
    /// Empty for an unknown id.
    QString nameOf(const QString &id) const;
    /// The captured interface; empty if there is none.
    QByteArray data(const QString &id) const;
    /// Overwrites the data of a workspace that is in the list.
    void setData(const QString &id, const QByteArray &data);
    /// Appends a workspace; one whose id is known is left as it is.
    void add(const DefaultWorkSpaceInfo &workSpace);

    /// Puts workspaces in place of all. Those that are gone lose their data; the data of an entry
    /// are written if they aren't empty.
    void replace(const QList<DefaultWorkSpaceInfo> &workSpaces);

    /// Adds the factory workspaces that aren't in the list, once in the life of the store.
    void addNewFactoryWorkSpaces(const QList<DefaultWorkSpaceInfo> &factory);
    /// Does so on the very first start, and gives the id to begin with; else an empty one.
    QString setUpOnce(const QList<DefaultWorkSpaceInfo> &factory);
    /// The workspace to show at the start: the one used last or, for a new user, the first of the
    /// factory. Empty if the list doesn't have it.
    QString startId(const QList<DefaultWorkSpaceInfo> &factory) const;
    /// What startId() is to give from now on; empty for none.
    void setLastUsed(const QString &id);

private:
    void append(const DefaultWorkSpaceInfo &workSpace);
    void addMissing(const QList<DefaultWorkSpaceInfo> &factory);
    void store();

    ZelSettings settings_;
    QStringList ids_;
    QStringList names_;
};
