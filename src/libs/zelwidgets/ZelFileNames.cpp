#include "ZelFileNames.h"

#include <QString>

#include <algorithm>

bool ZelFileNames::isFileName(QStringView text)
{
    const QString forbidden = QStringLiteral("/\\?*\"|:<>");
    return std::none_of(text.begin(), text.end(),
                        [&forbidden](QChar c) { return forbidden.contains(c); });
}

bool ZelFileNames::isFolderPath(QStringView text)
{
    const QString forbidden = QStringLiteral("?*\"|<>");
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (forbidden.contains(text[i]) || (text[i] == u':' && i != 1))
            return false;
    }
    return true;
}
