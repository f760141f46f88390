#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the command line asks of the gallery.
struct GalleryOptions
{
    QString page;
    QString theme;
    QString settingsFile;
    QString screenshotFolder;
    /// Where the bundles of factory workspaces are to be written, for who builds the gallery.
    QString bundleFolder;
    /// Tells the time to the first paint, and leaves.
    bool timeStart = false;
    std::optional<double> scale;
    bool listPages = false;

    /// Reads the arguments (the first is the program). A bad one ends the process with a plain
    /// message; so do --help and --version.
    static GalleryOptions fromArguments(const QStringList &arguments);
    /// The value of --scale, needed before the application object exists.
    static std::optional<double> scaleFromArguments(int argc, char **argv);
};
