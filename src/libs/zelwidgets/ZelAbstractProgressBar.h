#pragma once

#include <ZelWidgets/zelwidgets_export.h>

class QString;

/// What the start of an application needs of whatever shows its progress.
class ZELWIDGETS_EXPORT ZelAbstractProgressBar
{
public:
    virtual ~ZelAbstractProgressBar();

    /// What is being done at the moment.
    virtual void setStatus(const QString &status) = 0;
    /// How far it is, 0 to 1; other values are clamped.
    virtual void setProgress(float progress) = 0;
    /// The start is over. The progress bar may delete itself, now or later.
    virtual void close_window() = 0;
};
