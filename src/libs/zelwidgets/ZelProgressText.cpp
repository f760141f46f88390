#include "ZelProgressText.h"

#include "theme/ZelFontMetrics.h"

#include <QStringList>

QString zelElidedProgressText(const QString &text, const QWidget *widget)
{
    constexpr int widestInM = 40;
    // No line of this many characters fits; it also bounds the time that eliding takes.
    constexpr int longest = 2000;
    if (Qt::mightBeRichText(text))
        return text;
    const ZelFontMetrics metrics(widget);
    const int widest = widestInM * metrics.widthM();
    QStringList lines = text.split(u'\n');
    for (QString &line : lines) {
        if (line.size() > longest)
            line.remove(longest / 2, line.size() - longest);
        line = metrics.elidedText(line, Qt::ElideMiddle, widest);
    }
    return lines.join(u'\n');
}
