#pragma once

#include <QString>

class DeskWindow;

/// The files of the factory workspaces.
namespace WorkspaceBundles {

/// Arranges the window as each factory workspace of each version, captures it, and writes a bundle
/// a version into the folder. False if one can't be written.
bool write(DeskWindow *window, const QString &folder);

} // namespace WorkspaceBundles
