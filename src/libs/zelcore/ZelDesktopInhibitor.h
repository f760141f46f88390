#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QStringList>

/// Asks the desktop's inhibit services on a bus, one after the other, and holds what the first
/// one grants. All calls are asynchronous; no service, no effect.
class ZelDesktopInhibitor : public QObject
{
    Q_OBJECT

public:
    explicit ZelDesktopInhibitor(const QDBusConnection &bus, QObject *parent = nullptr);
    ~ZelDesktopInhibitor() override;

    /// Whether a session bus is to be had without starting one.
    static bool hasSessionBus();

    /// Does nothing while an inhibit is held or being asked for.
    void inhibit();
    void uninhibit();
    bool isHeld() const { return state_ == Held; }

private:
    enum State { Idle, Asking, Held };

    void ask(int service);
    void answered(const QDBusMessage &reply, int service);
    void giveBack(int service, uint cookie);
    void serviceGone(const QString &name);

    QDBusConnection bus_;
    QDBusServiceWatcher watcher_;
    State state_ = Idle;
    bool isWanted_ = false;
    int service_ = 0;
    uint cookie_ = 0;
};
