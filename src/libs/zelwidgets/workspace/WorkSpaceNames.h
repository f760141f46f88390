#pragma once

#include <QString>
#include <QStringList>

/// How workspaces and the windows in them get their ids and names.
namespace WorkSpaceNames {

/// The longest name that a workspace can have.
constexpr int maximumLength = 20;

/// The first id of the form "wsid1" that isn't taken.
QString freeId(const QStringList &takenIds);
/// The name to propose for a new workspace.
QString proposedName(const QStringList &takenNames);
/// The name of an imported workspace: a blank one becomes "Imported", one that is taken is
/// numbered, and none is longer than maximumLength.
QString importedName(const QString &name, const QStringList &takenNames);
/// The id to write to an exchange file, marked so that no import takes it for a factory workspace.
QString exportedId(const QString &id);
/// True if the first id comes before the second one; numbers at the end are compared as numbers.
bool isIdLess(const QString &first, const QString &second);

/// An object name reduced to what may stand in a stored state: letters, digits, "_" and "-".
QString filtered(const QString &objectName);

} // namespace WorkSpaceNames
