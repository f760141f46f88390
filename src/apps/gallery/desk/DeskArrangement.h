#pragma once

#include <QString>
#include <QStringList>

class DeskWindow;

/// The arrangements that the factory workspaces are captured from, by the ids of these.
namespace DeskArrangement {

/// Of the newest bundle, whose major number is 1.
constexpr int latestMinorVersion = 1;

/// The arrangement of a new user.
QString standardId();
/// The factory workspaces of a version of the gallery, as the minor number of its bundle.
QStringList ids(int minorVersion);
QString nameOf(const QString &id);
/// Puts docks, tabs and bars where the arrangement has them. The window has to be shown.
void apply(DeskWindow *window, const QString &id, int minorVersion);

} // namespace DeskArrangement
