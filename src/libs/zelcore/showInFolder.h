#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>

namespace orv {

/// Opens the system's file browser on a file or folder, with a file selected where the browser
/// can do that. Of a path that isn't there the folder is shown; if that is missing too, or the
/// path is empty or inside the resources, nothing happens. Returns at once.
///
/// ZelFileBrowser::setInstance() puts another browser in place.
ZELCORE_EXPORT void showInFolder(const QString &path);

} // namespace orv
