#pragma once

#include <QString>

/// The debug message of a precondition of the decorators or of grid positioning that failed.
inline QString decoratorAssertion(const char *expression, const char *function, int line)
{
    return QStringLiteral("soft assertion: \"%1\" failed in function: %2\n"
                          " in file: src/libs/zelwidgets/curve/ZelCurveViewDecorator2\n"
                          " line: %3\n")
        .arg(QLatin1String(expression), QLatin1String(function))
        .arg(line);
}
