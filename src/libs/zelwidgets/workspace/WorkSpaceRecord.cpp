#include "workspace/WorkSpaceRecord.h"

#include "workspace/WorkSpaceReader.h"
#include "workspace/WorkSpaceWriter.h"

namespace {

/// Names the fields of all versions in their order.
template <typename Record, typename Visitor>
void visitFirstFields(Record &record, Visitor &&visit)
{
    visit(record.tornOutNames);
    visit(record.reservedNames);
    visit(record.tornOutRects);
    visit(record.libraryTabOrder);
    visit(record.projectTabOrder);
    visit(record.libraryTabIndex);
    visit(record.projectTabIndex);
    visit(record.mainWindowState);
    visit(record.reservedInts);
    visit(record.screenGeometry);
    visit(record.screenAvailable);
    visit(record.devicePixelRatio);
    visit(record.hiddenRibbonIds);
    visit(record.tabWidgetNames);
    visit(record.tabWidgetIndices);
    visit(record.sceneSubTabText);
    visit(record.mainWindowGeometry);
    visit(record.maximized);
    visit(record.toolBarIconSize);
    visit(record.toolBarVisible);
    visit(record.toolButtonStyle);
    visit(record.enableDocking);
    visit(record.visibleRibbonIds);
}

template <typename Record, typename Visitor>
void visitDockFields(Record &record, Visitor &&visit)
{
    visit(record.tornOutScreens);
    visit(record.dockNames);
    visit(record.dockRects);
    visit(record.dockScreens);
    visit(record.screens);
}

} // namespace

QByteArray WorkSpaceRecord::write() const
{
    WorkSpaceWriter writer;
    const auto write = [&writer](const auto &field) {
        writer.write(field);
    };
    write(currentVersion);
    visitFirstFields(*this, write);
    visitDockFields(*this, write);
    write(toolBarMode);
    return writer.take();
}

WorkSpaceRecord WorkSpaceRecord::read(const QByteArray &bytes)
{
    WorkSpaceRecord record;
    WorkSpaceReader reader(bytes);
    const auto read = [&reader](auto &field) {
        reader.read(field);
    };
    record.version = 0;
    read(record.version);
    visitFirstFields(record, read);
    if (!reader.isOk())
        record.enableDocking = true;
    if (record.version >= firstVersionWithDocks)
        visitDockFields(record, read);
    if (record.version >= firstVersionWithToolBarMode)
        read(record.toolBarMode);
    record.isValid = reader.isOk();
    return record;
}

bool WorkSpaceRecord::hasMatchingTabs() const
{
    const bool hasReserved = !reservedNames.isEmpty();
    return (!hasReserved || reservedNames.size() == tornOutNames.size()) &&
           tornOutRects.size() == tornOutNames.size();
}

bool WorkSpaceRecord::hasMatchingTabScreens() const
{
    return tornOutRects.size() == tornOutNames.size() &&
           tornOutScreens.size() == tornOutNames.size();
}

bool WorkSpaceRecord::hasMatchingDocks() const
{
    return dockRects.size() == dockNames.size() && dockScreens.size() == dockNames.size();
}

bool WorkSpaceRecord::hasMatchingTabWidgets() const
{
    return tabWidgetNames.size() == tabWidgetIndices.size();
}
