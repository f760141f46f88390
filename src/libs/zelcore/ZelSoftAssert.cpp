#include "ZelSoftAssert.h"

#include <QDebug>

void zelSoftAssertionFailed(const char *expression, const char *function, const char *path,
                            int line)
{
    qDebug().noquote().nospace() << "soft assertion: \"" << expression
                                 << "\" failed in function: " << function << "\n in file: " << path
                                 << "\n line: " << line << "\n";
}
