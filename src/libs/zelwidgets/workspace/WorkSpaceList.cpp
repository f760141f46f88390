#include "workspace/WorkSpaceList.h"

#include <QSet>

namespace {

const QLatin1String idsKey("ids");
const QLatin1String namesKey("names");
const QLatin1String factoryCountKey("DefaultWorkspacesCount");
const QLatin1String isSetUpKey("isSetup");
const QLatin1String lastUsedKey("LastUsedWorkspace");
/// How many factory workspaces a store that is up to date has seen.
constexpr int factoryCount = 10;

/// Keys of the group that hold something else; no workspace can have one of them as its id.
bool isReserved(const QString &id)
{
    static const QStringList keys{idsKey,
                                  namesKey,
                                  factoryCountKey,
                                  isSetUpKey,
                                  QStringLiteral("hasUpdatedWorkspacesAfterZEL91"),
                                  lastUsedKey,
                                  QStringLiteral("AutosavedArrangement"),
                                  QStringLiteral("LastUsedWSFolder"),
                                  QStringLiteral("debugEnabledOnWS"),
                                  QStringLiteral("debugExpectToolbarVisible"),
                                  QStringLiteral("debugExpectStudioHidden")};
    return id.isEmpty() || keys.contains(id);
}

} // namespace

WorkSpaceList::WorkSpaceList()
    : settings_(QStringLiteral("WorkSpaces"))
{
    const QStringList ids = settings_.value(idsKey).toStringList();
    const QStringList names = settings_.value(namesKey).toStringList();
    QSet<QString> known;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        if (isReserved(ids[i]) || known.contains(ids[i]))
            continue;
        known.insert(ids[i]);
        ids_.append(ids[i]);
        names_.append(names.value(i, ids[i]));
    }
}

QString WorkSpaceList::nameOf(const QString &id) const
{
    return names_.value(ids_.indexOf(id));
}

QByteArray WorkSpaceList::data(const QString &id) const
{
    return contains(id) ? settings_.value(id).toByteArray() : QByteArray();
}

void WorkSpaceList::setData(const QString &id, const QByteArray &data)
{
    if (!contains(id))
        return;
    settings_.setValue(id, data);
    ZelSettings::save();
}

void WorkSpaceList::add(const DefaultWorkSpaceInfo &workSpace)
{
    append(workSpace);
    store();
}

void WorkSpaceList::replace(const QList<DefaultWorkSpaceInfo> &workSpaces)
{
    const QStringList former = ids_;
    ids_.clear();
    names_.clear();
    QSet<QString> known;
    for (const DefaultWorkSpaceInfo &workSpace : workSpaces) {
        if (isReserved(workSpace.id) || known.contains(workSpace.id))
            continue;
        known.insert(workSpace.id);
        ids_.append(workSpace.id);
        names_.append(workSpace.name);
        if (!workSpace.data.isEmpty())
            settings_.setValue(workSpace.id, workSpace.data);
    }
    for (const QString &id : former) {
        if (!known.contains(id))
            settings_.removeKey(id);
    }
    store();
}

void WorkSpaceList::addNewFactoryWorkSpaces(const QList<DefaultWorkSpaceInfo> &factory)
{
    if (settings_.value(factoryCountKey, 0).toInt() >= factoryCount)
        return;
    addMissing(factory);
    settings_.setValue(factoryCountKey, factoryCount);
    store();
}

QString WorkSpaceList::setUpOnce(const QList<DefaultWorkSpaceInfo> &factory)
{
    if (settings_.value(isSetUpKey, false).toBool())
        return {};
    settings_.setValue(isSetUpKey, true);
    addMissing(factory);
    store();
    return factory.isEmpty() ? QString() : factory.first().id;
}

QString WorkSpaceList::startId(const QList<DefaultWorkSpaceInfo> &factory) const
{
    QString id = settings_.value(lastUsedKey).toString();
    const ZelSettings misc(QStringLiteral("misc"));
    const bool isFirstTime = misc.value(QStringLiteral("first_time"), true).toBool();
    if (id.isEmpty() && isFirstTime && !factory.isEmpty())
        id = factory.first().id;
    return contains(id) ? id : QString();
}

void WorkSpaceList::setLastUsed(const QString &id)
{
    settings_.setValue(lastUsedKey, id);
    ZelSettings::save();
}

void WorkSpaceList::append(const DefaultWorkSpaceInfo &workSpace)
{
    if (isReserved(workSpace.id) || contains(workSpace.id))
        return;
    ids_.append(workSpace.id);
    names_.append(workSpace.name);
    settings_.setValue(workSpace.id, workSpace.data);
}

void WorkSpaceList::addMissing(const QList<DefaultWorkSpaceInfo> &factory)
{
    for (const DefaultWorkSpaceInfo &workSpace : factory)
        append(workSpace);
}

void WorkSpaceList::store()
{
    settings_.setValue(idsKey, ids_);
    settings_.setValue(namesKey, names_);
    ZelSettings::save();
}
