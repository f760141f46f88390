#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QJsonObject>
#include <QString>

/// Tells what is in a file of workspaces, and what is wrong with it.
namespace ZelWorkSpaceReport {

/// The kind goes by the name: `.zelsw` is a file of exchanged workspaces, `.json` a bundle of
/// factory workspaces, anything else the captured interface itself. The object holds "kind",
/// "problems" (texts) and the content; the workspaces of a file are objects of the same form.
ZELWIDGETS_EXPORT QJsonObject describe(const QString &fileName, const QByteArray &contents);

/// True if neither the object nor one in it has problems.
ZELWIDGETS_EXPORT bool isGood(const QJsonObject &report);

} // namespace ZelWorkSpaceReport
