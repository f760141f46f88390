#pragma once

#include <QString>

/// What the extraction dialog works on: what the video is, and where its frames go.
struct PrivateVideoInformation
{
    QString videoPath;
    QString durationText;
    QString resolutionText; ///< width, "x", height
    int frameCount = 0;
    QString format; ///< as in the file names, lower case
    QString outputFolder;
    QString currentFolder; ///< the process's folder before the extraction
};
