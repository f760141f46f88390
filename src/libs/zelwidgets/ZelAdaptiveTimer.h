#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QTimer>

/// A repeating timer that slows down by itself: after each timeout a shorter interval than the
/// longest one doubles. It may overshoot the longest interval once.
class ZELWIDGETS_EXPORT ZelAdaptiveTimer : public QTimer
{
    Q_OBJECT

public:
    /// The longest interval is in milliseconds.
    explicit ZelAdaptiveTimer(int longestInterval, QObject *parent = nullptr);

    /// Fires the wanted number of milliseconds after the last timeout, or that long from now if
    /// they have passed already; tells whether they have.
    bool setNewInterval(int wanted);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void slowDown();

    int longestInterval_;
};
