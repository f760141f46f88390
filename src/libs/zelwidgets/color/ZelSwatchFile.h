#pragma once

#include <ZelCore/ZelColor>

#include <QString>

#include <vector>

/// Swatches in palette files (.gpl), as the colours are shown: the display's gamma is taken out of
/// a palette that is read and put into one that is written, if it is on.
namespace ZelSwatchFile {

struct Result
{
    std::vector<ZelColor> colors;
    /// For the user; empty if all is well.
    QString problem;
};

/// A file that holds no colour is a problem, and so is one beyond all measure (16 MiB).
Result read(const QString &fileName);
/// Gives the problem, if there is one; what was in the file is kept then.
QString write(const QString &fileName, const std::vector<ZelColor> &colors);

} // namespace ZelSwatchFile
