#pragma once

#include <QString>

/// What an extraction of frames left behind: enough to open the files as an image sequence.
struct VideoInformation
{
    QString firstFile;  ///< absolute path of the first file; empty if there is none
    int frameCount = 0; ///< number of the files that were written
};
