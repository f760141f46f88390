#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>

#include <memory>

/// The system's file browser: the file manager on the D-Bus session bus, else whatever opens the
/// address of a folder. Nothing blocks and nothing is written to the log. For the GUI thread.
class ZELCORE_EXPORT ZelFileBrowser
{
public:
    virtual ~ZelFileBrowser();

    /// Shows a file or folder that exists, given by its absolute path.
    virtual void show(const QString &path) = 0;

    static ZelFileBrowser &instance();
    /// Puts another browser in place, for tests; null brings the system's back.
    static void setInstance(std::unique_ptr<ZelFileBrowser> browser);
};
