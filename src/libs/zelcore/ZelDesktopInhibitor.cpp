#include "ZelDesktopInhibitor.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFileInfo>

#include <array>

namespace {

struct Service
{
    const char *name;
    const char *path;
    const char *interface;
};

constexpr std::array services{
    Service{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver",
            "org.freedesktop.ScreenSaver"},
    Service{"org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
            "org.freedesktop.PowerManagement.Inhibit"},
};

QDBusMessage callTo(int index, const char *method)
{
    const Service &service = services.at(size_t(index));
    return QDBusMessage::createMethodCall(QLatin1String(service.name), QLatin1String(service.path),
                                          QLatin1String(service.interface), QLatin1String(method));
}

} // namespace

ZelDesktopInhibitor::ZelDesktopInhibitor(const QDBusConnection &bus, QObject *parent)
    : QObject(parent)
    , bus_(bus)
{
    if (!bus_.isConnected())
        return;
    watcher_.setConnection(bus_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    for (const Service &service : services)
        watcher_.addWatchedService(QLatin1String(service.name));
    connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, this,
            &ZelDesktopInhibitor::serviceGone);
}

ZelDesktopInhibitor::~ZelDesktopInhibitor()
{
    uninhibit();
}

bool ZelDesktopInhibitor::hasSessionBus()
{
    if (!QCoreApplication::instance())
        return false;
    if (qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QLatin1String("/bus"));
}

void ZelDesktopInhibitor::inhibit()
{
    isWanted_ = true;
    if (state_ == Idle && bus_.isConnected())
        ask(0);
}

void ZelDesktopInhibitor::uninhibit()
{
    isWanted_ = false;
    if (state_ != Held)
        return;
    state_ = Idle;
    giveBack(service_, cookie_);
}

void ZelDesktopInhibitor::ask(int service)
{
    state_ = Asking;
    QDBusMessage call = callTo(service, "Inhibit");
    call << QCoreApplication::applicationName() << tr("Work is in progress");
    auto *watcher = new QDBusPendingCallWatcher(bus_.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, service, watcher] {
        watcher->deleteLater();
        answered(watcher->reply(), service);
    });
}

void ZelDesktopInhibitor::answered(const QDBusMessage &reply, int service)
{
    const QDBusPendingReply<uint> cookie = reply;
    state_ = Idle;
    if (cookie.isValid() && isWanted_) {
        state_ = Held;
        service_ = service;
        cookie_ = cookie.value();
    } else if (cookie.isValid()) {
        giveBack(service, cookie.value());
    } else if (isWanted_ && service + 1 < int(services.size())) {
        ask(service + 1);
    }
}

void ZelDesktopInhibitor::giveBack(int service, uint cookie)
{
    bus_.send(callTo(service, "UnInhibit") << cookie);
}

// What it granted is gone with it; the next call asks anew.
void ZelDesktopInhibitor::serviceGone(const QString &name)
{
    if (state_ == Held && name == QLatin1String(services.at(size_t(service_)).name))
        state_ = Idle;
}
