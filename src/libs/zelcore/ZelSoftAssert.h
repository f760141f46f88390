#pragma once

#include <ZelCore/zelcore_export.h>

/// Tests a precondition whose failure is a mistake of the calling program, not of its user: if it
/// fails, a debug message tells of it and the program goes on. The result is whether it holds.
///
///     if (!ZEL_SOFT_ASSERT(size > 0.0, "size > 0.0", "setDiameter", "src/Marker", 42))
///         return;
///
/// The four literals behind the condition are what the message shows: the expression, the function,
/// the source path and the line.
#define ZEL_SOFT_ASSERT(condition, expression, function, path, line)                               \
    ((condition) ? true : (zelSoftAssertionFailed(expression, function, path, line), false))

ZELCORE_EXPORT void zelSoftAssertionFailed(const char *expression, const char *function,
                                           const char *path, int line);
