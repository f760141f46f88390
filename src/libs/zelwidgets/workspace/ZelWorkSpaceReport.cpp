#include "workspace/ZelWorkSpaceReport.h"

#include "workspace/WorkSpaceDefaultsPrivate.h"
#include "workspace/WorkSpaceExchange.h"
#include "workspace/WorkSpaceRecord.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace {

const QLatin1String problemsKey("problems");
const QLatin1String workSpacesKey("workspaces");

QJsonArray asJson(const QRect &rect)
{
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QJsonArray asJson(const QSize &size)
{
    return {size.width(), size.height()};
}

QJsonArray asJson(const QStringList &texts)
{
    return QJsonArray::fromStringList(texts);
}

template <typename Item>
QJsonArray asJson(const QList<Item> &items)
{
    QJsonArray array;
    for (const Item &item : items) {
        if constexpr (std::is_integral_v<Item>)
            array.append(item);
        else
            array.append(asJson(item));
    }
    return array;
}

void check(QStringList &problems, bool isGood, const char *problem)
{
    if (!isGood)
        problems.append(QString::fromLatin1(problem));
}

QStringList problemsOf(const WorkSpaceRecord &record)
{
    QStringList problems;
    check(problems, record.isValid, "The data are cut off or damaged");
    check(problems, record.version >= 2 && record.version <= WorkSpaceRecord::currentVersion,
          "The version is not known");
    check(problems, record.hasMatchingTabs(), "The lists of torn-out tabs differ in length");
    check(problems, record.hasMatchingTabWidgets(), "The lists of tab widgets differ in length");
    if (record.version < WorkSpaceRecord::firstVersionWithDocks)
        return problems;
    check(problems, record.hasMatchingTabScreens(),
          "The lists of torn-out tabs and of their screens differ in length");
    check(problems, record.hasMatchingDocks(), "The lists of docks differ in length");
    return problems;
}

void insertTabs(QJsonObject &report, const WorkSpaceRecord &record)
{
    report.insert(QLatin1String("tornOutNames"), asJson(record.tornOutNames));
    report.insert(QLatin1String("reservedNames"), asJson(record.reservedNames));
    report.insert(QLatin1String("tornOutRects"), asJson(record.tornOutRects));
    report.insert(QLatin1String("tornOutScreens"), asJson(record.tornOutScreens));
    report.insert(QLatin1String("libraryTabOrder"), asJson(record.libraryTabOrder));
    report.insert(QLatin1String("projectTabOrder"), asJson(record.projectTabOrder));
    report.insert(QLatin1String("libraryTabIndex"), record.libraryTabIndex);
    report.insert(QLatin1String("projectTabIndex"), record.projectTabIndex);
    report.insert(QLatin1String("tabWidgetNames"), asJson(record.tabWidgetNames));
    report.insert(QLatin1String("tabWidgetIndices"), asJson(record.tabWidgetIndices));
    report.insert(QLatin1String("sceneSubTabText"), record.sceneSubTabText);
}

void insertWindows(QJsonObject &report, const WorkSpaceRecord &record)
{
    report.insert(QLatin1String("mainWindowStateBytes"), record.mainWindowState.size());
    report.insert(QLatin1String("mainWindowGeometry"), asJson(record.mainWindowGeometry));
    report.insert(QLatin1String("maximized"), record.maximized);
    report.insert(QLatin1String("screenGeometry"), asJson(record.screenGeometry));
    report.insert(QLatin1String("screenAvailable"), asJson(record.screenAvailable));
    report.insert(QLatin1String("devicePixelRatio"), record.devicePixelRatio);
    report.insert(QLatin1String("screens"), asJson(record.screens));
    report.insert(QLatin1String("enableDocking"), record.enableDocking);
    report.insert(QLatin1String("dockNames"), asJson(record.dockNames));
    report.insert(QLatin1String("dockRects"), asJson(record.dockRects));
    report.insert(QLatin1String("dockScreens"), asJson(record.dockScreens));
}

void insertBars(QJsonObject &report, const WorkSpaceRecord &record)
{
    report.insert(QLatin1String("visibleRibbonIds"), asJson(record.visibleRibbonIds));
    report.insert(QLatin1String("hiddenRibbonIds"), asJson(record.hiddenRibbonIds));
    report.insert(QLatin1String("toolBarIconSize"), asJson(record.toolBarIconSize));
    report.insert(QLatin1String("toolBarVisible"), record.toolBarVisible);
    report.insert(QLatin1String("toolButtonStyle"), record.toolButtonStyle);
    report.insert(QLatin1String("toolBarMode"), record.toolBarMode);
}

QJsonObject start(const char *kind, const QStringList &problems)
{
    return {{QStringLiteral("kind"), QLatin1String(kind)}, {problemsKey, asJson(problems)}};
}

QJsonObject describeRecord(const QByteArray &data)
{
    const WorkSpaceRecord record = WorkSpaceRecord::read(data);
    QJsonObject report = start("workspace", problemsOf(record));
    report.insert(QLatin1String("version"), record.version);
    insertTabs(report, record);
    insertWindows(report, record);
    insertBars(report, record);
    return report;
}

QJsonObject describeEntry(const DefaultWorkSpaceInfo &workSpace)
{
    QJsonObject report = describeRecord(workSpace.data);
    report.insert(QLatin1String("id"), workSpace.id);
    report.insert(QLatin1String("name"), workSpace.name);
    return report;
}

template <typename List>
QJsonArray describeEntries(const List &workSpaces)
{
    QJsonArray entries;
    for (const DefaultWorkSpaceInfo &workSpace : workSpaces)
        entries.append(describeEntry(workSpace));
    return entries;
}

QJsonObject describeExchange(const QByteArray &text)
{
    const auto workSpaces = WorkSpaceExchange::read(text);
    QStringList problems;
    check(problems, workSpaces.has_value(), "The file is cut off, damaged or not of this kind");
    QJsonObject report = start("exchange", problems);
    if (workSpaces)
        report.insert(workSpacesKey, describeEntries(*workSpaces));
    return report;
}

QJsonObject describeBundle(const QString &fileName, const QByteArray &contents)
{
    WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError error;
    const auto bundle = WorkSpaceDefaultsPrivate::loadBundleFromFile({fileName,
                                                                      [contents] {
                                                                          return contents;
                                                                      }},
                                                                     error);
    QStringList problems;
    if (error.code == WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError::NameMismatch)
        problems.append(QStringLiteral("The name is not that of a bundle"));
    else if (error.code != WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError::NoError)
        problems.append(error.message);
    QJsonObject report = start("bundle", problems);
    report.insert(QLatin1String("major"), bundle.major);
    report.insert(QLatin1String("minor"), bundle.minor);
    report.insert(workSpacesKey, describeEntries(bundle.entries));
    return report;
}

} // namespace

QJsonObject ZelWorkSpaceReport::describe(const QString &fileName, const QByteArray &contents)
{
    const QFileInfo file(fileName);
    const QString suffix = file.suffix().toLower();
    if (suffix == QLatin1String("zelsw"))
        return describeExchange(contents);
    if (suffix == QLatin1String("json"))
        return describeBundle(file.fileName(), contents);
    return describeRecord(contents);
}

bool ZelWorkSpaceReport::isGood(const QJsonObject &report)
{
    const QJsonArray entries = report.value(workSpacesKey).toArray();
    return report.value(problemsKey).toArray().isEmpty() &&
           std::all_of(entries.begin(), entries.end(),
                       [](const QJsonValue &entry) { return isGood(entry.toObject()); });
}
