#include "DesktopBusTest.h"

#include "ZelDesktopInhibitor.h"
#include "ZelFileManagerCall.h"

#include <ZelCore/ZelKeepAwake>

#include <QElapsedTimer>

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

class TestDesktopServices : public DesktopBusTest
{
    Q_OBJECT

private Q_SLOTS:
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
    void offerScreenSaver()
    {
        offer("org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", service_.get(),
              "org.freedesktop.ScreenSaver");
    }

    std::unique_ptr<InhibitService> service_;
    std::unique_ptr<ZelDesktopInhibitor> inhibitor_;
};

void TestDesktopServices::init()
{
    DesktopBusTest::init();
    service_ = std::make_unique<InhibitService>();
    inhibitor_ = std::make_unique<ZelDesktopInhibitor>(application());
}

void TestDesktopServices::cleanup()
{
    inhibitor_.reset();
    DesktopBusTest::cleanup();
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
    offer("org.freedesktop.PowerManagement", "/org/freedesktop/PowerManagement/Inhibit",
          service_.get(), "org.freedesktop.PowerManagement.Inhibit");
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
    QVERIFY(desktop().unregisterService(text("org.freedesktop.ScreenSaver")));
    QTRY_VERIFY(!inhibitor_->isHeld());
    QVERIFY(desktop().registerService(text("org.freedesktop.ScreenSaver")));
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
    ZelFileManagerCall::showItem(application(), path, open, this);
    QTRY_COMPARE(opened.size(), 2);
    FileManager manager;
    offer("org.freedesktop.FileManager1", "/org/freedesktop/FileManager1", &manager);
    ZelFileManagerCall::showItem(application(), path, open, this);
    QTRY_COMPARE(manager.shown, QStringList(text("file:///a%20b/c%25%23%0A.png")));
    QCOMPARE(opened.size(), 2);
}

ZEL_TEST_MAIN(TestDesktopServices)
#include "tst_desktop_services.moc"
