#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// Finds the place at which a style sheet stops being one. The blank lines of the sheet are the
/// check points: a probe rule is put in each and the sheet tried up to there.
namespace StyleSheetErrorLocator {

/// Tries the beginning of a sheet; true if the probe rule of this line at its end took effect.
using Check = std::function<bool(const QString &beginning, int line)>;

struct Place
{
    int errorLine = 0;    ///< the check point that failed, or the number of lines
    int lastGoodLine = 0; ///< the last check point that did not
};

/// The rule that is put in at the end of a whole sheet.
QString nameRule(const QString &name);
/// The rule that is put in the place of a blank line.
QString lineRule(int line);

/// Searches the lines; carriage returns are removed and the blank lines that were tried replaced
/// by their rules.
Place locate(QStringList &lines, const Check &check);

/// What the dialog says about the place, with line numbers of the file that the sheet came from.
QString heading(const Place &place, int removedLines);

} // namespace StyleSheetErrorLocator
