#pragma once

#include <QStringView>

/// Which texts name a file or a folder on every system that files are exchanged with.
namespace ZelFileNames {

/// True for a name without a path separator and without a character that a system reserves; also
/// for an empty one.
bool isFileName(QStringView text);
/// True for a path without a reserved character; a colon may stand behind a drive letter.
bool isFolderPath(QStringView text);

} // namespace ZelFileNames
