#pragma once

#include "workspace/DefaultWorkSpaceInfo.h"

#include <QByteArray>
#include <QList>

#include <optional>

/// The text of a `.zelsw` file, in which workspaces travel from one installation to another.
namespace WorkSpaceExchange {

/// The most workspaces that a file is read for.
constexpr int maximumCount = 4096;

/// One line of text. Ids are written as they are.
QByteArray write(const QList<DefaultWorkSpaceInfo> &workSpaces);

/// Nothing if the text is cut off, damaged, or holds lists of unequal lengths or more
/// than maximumCount workspaces.
std::optional<QList<DefaultWorkSpaceInfo>> read(const QByteArray &text);

} // namespace WorkSpaceExchange
