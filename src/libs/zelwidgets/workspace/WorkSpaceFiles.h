#pragma once

#include "workspace/DefaultWorkSpaceInfo.h"

#include <QList>
#include <QStringList>

class QWidget;

/// Takes workspaces to files and from files, with the dialogs and message boxes that go with it.
/// The folder that was used last is remembered.
namespace WorkSpaceFiles {

/// Lets the user choose a file and writes the workspaces to it, their ids marked as exported. The
/// parent may be null or die meanwhile.
void exportWorkSpaces(QWidget *parent, const QList<DefaultWorkSpaceInfo> &workSpaces);
/// True if all was written; a file that could not be written whole stays as it was.
bool writeFile(QWidget *parent, const QString &path, const QList<DefaultWorkSpaceInfo> &workSpaces);

/// Lets the user choose files and gives all workspaces in them as they stand there.
QList<DefaultWorkSpaceInfo> importWorkSpaces(QWidget *parent);
/// Files that can't be read are told and left out.
QList<DefaultWorkSpaceInfo> readFiles(QWidget *parent, const QStringList &paths);

} // namespace WorkSpaceFiles
