#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

class QTimer;

/// Keeps the machine from going to sleep between start() and stop(), during long work. It may
/// sleep again when the last of several has stopped.
class ZELWIDGETS_EXPORT PreventSleep : public QObject
{
    Q_OBJECT

public:
    explicit PreventSleep(QObject *parent = nullptr);
    /// Lets the machine sleep again if stop() was forgotten.
    ~PreventSleep() override;

    bool isActive() const;

public Q_SLOTS:
    void start();
    void stop();

private:
    void end();

    QTimer *timer_;
};
