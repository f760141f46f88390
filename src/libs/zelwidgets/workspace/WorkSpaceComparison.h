#pragma once

#include <QByteArray>

/// Whether the user changed anything since a workspace was in force.
namespace WorkSpaceComparison {

/// True if both captures show the same arrangement. Looking at another tab is no change, nor is
/// another screen or another size of the main window: places and sizes, which follow these, aren't
/// compared if they differ. Damaged bytes are only the same as themselves.
bool isSameArrangement(const QByteArray &first, const QByteArray &second);

} // namespace WorkSpaceComparison
