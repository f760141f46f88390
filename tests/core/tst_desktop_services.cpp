#include "TestCase.h"

#include "ZelDesktopInhibitor.h"
#include "ZelFileManagerCall.h"

#include <ZelCore/ZelKeepAwake>

#include <QElapsedTimer>
#include <QProcess>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace

#define SKIP_WITHOUT_BUS()                                                                         \
    if (address_.isEmpty())                                                                        \
    QSKIP("There is no dbus-daemon.")

/// What a desktop offers on the bus: counts the inhibits that are held.
class InhibitService : public QObject
{
    Q_OBJECT

public:
    QList<uint> held;
    int grants = 0;

public Q_SLOTS:
    uint Inhibit(const QString &application, const QString &reason)
    {
        if (!application.isEmpty() && !reason.isEmpty())
            held.append(uint(100 + ++grants));
        return held.isEmpty() ? 0 : held.last();
    }
    void UnInhibit(uint cookie) { held.removeOne(cookie); }
};

/// A file manager on the bus.
class FileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &addresses, const QString &) { shown += addresses; }
};

class TestDesktopServices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void repeatedCallsHoldOneInhibit();
    void aReleaseBeforeTheAnswerGivesTheInhibitBack();
    void withoutAScreenSaverThePowerManagementIsAsked();
    void aServiceThatCameBackIsAskedAgain();
    void withoutAServiceNothingHappens();
    void withoutABusCallsReturnAtOnceAndQuietly();
    void theFileManagerIsAskedBeforeTheFolderIsOpened();

private:
    void offer(const char *path, const char *service, const char *interface);
    void offerScreenSaver();

    QProcess daemon_;
    QString address_;
    std::unique_ptr<InhibitService> service_;
    std::unique_ptr<ZelDesktopInhibitor> inhibitor_;
};

void TestDesktopServices::initTestCase()
{
    daemon_.start(text("dbus-daemon"),
                  {text("--session"), text("--nofork"), text("--print-address=1")});
    if (daemon_.waitForReadyRead())
        address_ = QString::fromLocal8Bit(daemon_.readLine()).trimmed();
}

void TestDesktopServices::cleanupTestCase()
{
    daemon_.kill();
    daemon_.waitForFinished();
}

void TestDesktopServices::init()
{
    TestCase::init();
    service_ = std::make_unique<InhibitService>();
    if (address_.isEmpty())
        return;
    QDBusConnection::connectToBus(address_, text("desktop"));
    inhibitor_ = std::make_unique<ZelDesktopInhibitor>(
        QDBusConnection::connectToBus(address_, text("application")));
}

void TestDesktopServices::cleanup()
{
    inhibitor_.reset();
    QDBusConnection::disconnectFromBus(text("application"));
    QDBusConnection::disconnectFromBus(text("desktop"));
    TestCase::cleanup();
}

void TestDesktopServices::offer(const char *path, const char *service, const char *interface)
{
    QDBusConnection desktop(text("desktop"));
    QVERIFY(desktop.registerObject(text(path), text(interface), service_.get(),
                                   QDBusConnection::ExportAllSlots));
    QVERIFY(desktop.registerService(text(service)));
}

void TestDesktopServices::offerScreenSaver()
{
    offer("/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver",
          "org.freedesktop.ScreenSaver");
}

void TestDesktopServices::repeatedCallsHoldOneInhibit()
{
    SKIP_WITHOUT_BUS();
    offerScreenSaver();
    for (int i = 0; i < 3; ++i)
        inhibitor_->inhibit();
    QTRY_VERIFY(inhibitor_->isHeld());
    inhibitor_->inhibit();
    inhibitor_->uninhibit();
    QTRY_VERIFY(service_->held.isEmpty());
    QCOMPARE(service_->grants, 1);
    QVERIFY(!inhibitor_->isHeld());

    inhibitor_->inhibit();
    QTRY_COMPARE(service_->held, QList<uint>{102});
    QTRY_VERIFY(inhibitor_->isHeld());
    inhibitor_.reset();
    QTRY_VERIFY(service_->held.isEmpty());
}

void TestDesktopServices::aReleaseBeforeTheAnswerGivesTheInhibitBack()
{
    SKIP_WITHOUT_BUS();
    offerScreenSaver();
    inhibitor_->inhibit();
    inhibitor_->uninhibit();
    QTRY_COMPARE(service_->grants, 1);
    QTRY_VERIFY(service_->held.isEmpty());
    QVERIFY(!inhibitor_->isHeld());
}

void TestDesktopServices::withoutAScreenSaverThePowerManagementIsAsked()
{
    SKIP_WITHOUT_BUS();
    offer("/org/freedesktop/PowerManagement/Inhibit", "org.freedesktop.PowerManagement",
          "org.freedesktop.PowerManagement.Inhibit");
    inhibitor_->inhibit();
    QTRY_VERIFY(inhibitor_->isHeld());
    QCOMPARE(service_->held, QList<uint>{101});
    inhibitor_->uninhibit();
    QTRY_VERIFY(service_->held.isEmpty());
}

void TestDesktopServices::aServiceThatCameBackIsAskedAgain()
{
    SKIP_WITHOUT_BUS();
    offerScreenSaver();
    inhibitor_->inhibit();
    QTRY_VERIFY(inhibitor_->isHeld());
    QDBusConnection desktop(text("desktop"));
    QVERIFY(desktop.unregisterService(text("org.freedesktop.ScreenSaver")));
    QTRY_VERIFY(!inhibitor_->isHeld());
    QVERIFY(desktop.registerService(text("org.freedesktop.ScreenSaver")));
    inhibitor_->inhibit();
    QTRY_VERIFY(inhibitor_->isHeld());
    QCOMPARE(service_->grants, 2);
}

void TestDesktopServices::withoutAServiceNothingHappens()
{
    SKIP_WITHOUT_BUS();
    inhibitor_->inhibit();
    offerScreenSaver();
    // The answers to the first round come before those to the second.
    const auto isHeldAfterAnotherCall = [this] {
        inhibitor_->inhibit();
        return inhibitor_->isHeld();
    };
    QTRY_VERIFY(isHeldAfterAnotherCall());
    QCOMPARE(service_->grants, 1);
}

void TestDesktopServices::withoutABusCallsReturnAtOnceAndQuietly()
{
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 3; ++i)
        ZelKeepAwake::instance().keepAwake();
    ZelKeepAwake::instance().release();
    QVERIFY(clock.elapsed() < 1000);
    ZelDesktopInhibitor inhibitor(QDBusConnection(text("no such connection")));
    inhibitor.inhibit();
    QVERIFY(!inhibitor.isHeld());
    inhibitor.uninhibit();
    QCOMPARE(messages().messages(QtDebugMsg), QStringList());
}

void TestDesktopServices::theFileManagerIsAskedBeforeTheFolderIsOpened()
{
    QStringList opened;
    const auto open = [&opened](const QString &path) {
        opened.append(path);
    };
    const QString path = text("/a b/c%#\n.png");
    ZelFileManagerCall::showItem(QDBusConnection(text("no such connection")), path, open, this);
    QCOMPARE(opened, QStringList(path));

    SKIP_WITHOUT_BUS();
    const QDBusConnection application(text("application"));
    ZelFileManagerCall::showItem(application, path, open, this);
    QTRY_COMPARE(opened.size(), 2);
    FileManager manager;
    QDBusConnection desktop(text("desktop"));
    QVERIFY(desktop.registerObject(text("/org/freedesktop/FileManager1"), &manager,
                                   QDBusConnection::ExportAllSlots));
    QVERIFY(desktop.registerService(text("org.freedesktop.FileManager1")));
    ZelFileManagerCall::showItem(application, path, open, this);
    QTRY_COMPARE(manager.shown, QStringList(text("file:///a%20b/c%25%23%0A.png")));
    QCOMPARE(opened.size(), 2);
}

ZEL_TEST_MAIN(TestDesktopServices)
#include "tst_desktop_services.moc"
