#pragma once

#include "TestCase.h"

#include <QDBusConnection>
#include <QProcess>

/// Base of tests that play a desktop and an application on a session bus of their own.
class DesktopBusTest : public TestCase
{
    Q_OBJECT

protected:
    static QString text(const char *latin1) { return QString::fromLatin1(latin1); }
    bool hasBus() const { return !address_.isEmpty(); }
    static QDBusConnection desktop() { return QDBusConnection(text("desktop")); }
    static QDBusConnection application() { return QDBusConnection(text("application")); }

    /// The desktop has this object at the path, and the service is its.
    static void offer(const char *service, const char *path, QObject *object,
                      const char *interface = "")
    {
        QVERIFY(desktop().registerObject(text(path), text(interface), object,
                                         QDBusConnection::ExportAllSlots));
        QVERIFY(desktop().registerService(text(service)));
    }

protected Q_SLOTS:
    void initTestCase()
    {
        daemon_.start(text("dbus-daemon"),
                      {text("--session"), text("--nofork"), text("--print-address=1")});
        if (daemon_.waitForReadyRead())
            address_ = QString::fromLocal8Bit(daemon_.readLine()).trimmed();
    }
    void cleanupTestCase()
    {
        daemon_.kill();
        daemon_.waitForFinished();
    }
    void init()
    {
        TestCase::init();
        if (!hasBus())
            return;
        QDBusConnection::connectToBus(address_, text("desktop"));
        QDBusConnection::connectToBus(address_, text("application"));
    }
    void cleanup()
    {
        QDBusConnection::disconnectFromBus(text("application"));
        QDBusConnection::disconnectFromBus(text("desktop"));
        TestCase::cleanup();
    }

private:
    QProcess daemon_;
    QString address_;
};

#define SKIP_WITHOUT_BUS()                                                                         \
    if (!hasBus())                                                                                 \
    QSKIP("There is no dbus-daemon.")
