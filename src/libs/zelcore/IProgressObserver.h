#pragma once

#include <ZelCore/zelcore_export.h>

#include <QString>

/// How a long piece of work tells its progress without knowing who shows it, and learns that the
/// user has had enough of it.
///
///     observer->open(tr("Reading the scene"));
///     for (int i = 0; i < count && observer->progress(100 * i / count); ++i)
///         read(i);
///     observer->close();
class ZELCORE_EXPORT IProgressObserver
{
public:
    virtual ~IProgressObserver();

    /// The work begins.
    virtual void open(const QString &title) = 0;
    /// The work is over, whether it was done or cancelled.
    virtual void close() = 0;
    /// What is being done at the moment.
    virtual void setText(const QString &text) = 0;
    /// How far the work is, 0 to 100. False if it should stop.
    virtual bool progress(int value) = 0;
    virtual bool cancelled() = 0;
};
