#include "StyleSheetErrorLocator.h"

namespace StyleSheetErrorLocator {

QString nameRule(const QString &name)
{
    return QStringLiteral("QWidget#ZelVerifyStyleSheetWidget {qProperty-stylename: \"%1\";}")
        .arg(name);
}

QString lineRule(int line)
{
    return QStringLiteral("QWidget#ZelVerifyStyleSheetWidget {qProperty-errorLine: %1;} ")
        .arg(line);
}

Place locate(QStringList &lines, const Check &check)
{
    Place place;
    QString beginning;
    int line = 0;
    for (; line < int(lines.size()); ++line) {
        QString &text = lines[line];
        text.remove(QLatin1Char('\r'));
        const bool isCheckPoint = text.isEmpty();
        if (isCheckPoint)
            text = lineRule(line);
        beginning += text;
        if (!isCheckPoint)
            continue;
        if (!check(beginning, line))
            break;
        place.lastGoodLine = line;
    }
    place.errorLine = line;
    return place;
}

QString heading(const Place &place, int removedLines)
{
    return QStringLiteral("An error has occured between line %1 and line %2 in the stylesheet.\n\n")
        .arg(place.lastGoodLine + removedLines)
        .arg(place.errorLine + removedLines);
}

} // namespace StyleSheetErrorLocator
