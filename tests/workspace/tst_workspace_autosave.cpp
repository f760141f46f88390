#include "TestCase.h"
#include "WorkSpaceWindow.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/WorkSpaceAutosave>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelDockWidgetFromTab>
#include <ZelWidgets/ZelMessageBox>

#include <QProcess>

#include <cstdio>
#include <cstdlib>

namespace {

const QString key = QStringLiteral("AutosavedArrangement");

ZelSettings store()
{
    return ZelSettings(QStringLiteral("WorkSpaces"));
}

QByteArray stored()
{
    return store().value(key).toByteArray();
}

void loadIcons()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
}

/// Ends the process without a word, as a kill does, as soon as a restore touches the object.
class Killer : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (WorkSpaceHandler::isInWorkspaceRestore() && event->type() == QEvent::Hide)
            std::_Exit(9);
        return false;
    }
};

/// An application of its own: one changes the interface, tells when that is stored and waits; the
/// other one dies in the restore of its start-up.
int runChild(const QString &what, const QString &path)
{
    loadIcons();
    ZelSettings::setStorePath(path);
    WorkSpaceWindow window;
    WorkSpaceAutosave autosave(window.library, window.project);
    Killer killer;
    if (what == QStringLiteral("restore")) {
        window.docks[0]->installEventFilter(&killer);
        autosave.restore();
        return 0;
    }
    QObject::connect(&autosave, &WorkSpaceAutosave::saved, &autosave, [] {
        std::puts("saved");
        std::fflush(stdout);
    });
    autosave.setDelay(20);
    window.docks[0]->hide();
    window.library->changeTab2Window(1)->setGeometry(300, 300, 220, 200);
    autosave.setEnabled(true);
    QTimer::singleShot(30000, qApp, &QCoreApplication::quit);
    return QCoreApplication::exec();
}

} // namespace

class TestWorkspaceAutosave : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { loadIcons(); }
    void storesEveryChange();
    void waitsForTheUser();
    void storesNothingWhenOff();
    void restores_data();
    void restores();
    void outlivesAKill();
};

void TestWorkspaceAutosave::storesEveryChange()
{
    WorkSpaceWindow window;
    WorkSpaceAutosave autosave(window.library, window.project);
    autosave.setDelay(0);
    autosave.setEnabled(true);
    ZelDockWidgetFromTab *floating = nullptr;
    const std::vector<std::function<void()>> changes{
        [] {},
        [&] { window.docks[0]->hide(); },
        [&] { window.docks[1]->setFloating(true); },
        [&] { window.docks[1]->move(700, 500); },
        [&] { window.library->tabBar()->moveTab(0, 2); },
        [&] { window.subTabs->setCurrentIndex(2); },
        [&] { window.toolBar->setIconSizeMode(ZelToolBar::LargeIcons); },
        [&] { window.ribbon->actions().first()->setVisible(false); },
        [&] { floating = window.library->changeTab2Window(1); },
        [&] { floating->setGeometry(400, 300, 320, 240); },
        [&] { window.resize(1100, 700); },
    };
    QSignalSpy saved(&autosave, &WorkSpaceAutosave::saved);
    for (const auto &change : changes) {
        const qsizetype before = saved.size();
        change();
        QTRY_VERIFY(saved.size() > before);
        QTRY_COMPARE(stored(), WorkSpaceHandler::getWorkSpaceData(window.library, window.project));
    }
}

void TestWorkspaceAutosave::waitsForTheUser()
{
    WorkSpaceWindow window;
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    WorkSpaceAutosave autosave(window.library, window.project);
    autosave.setDelay(0);
    QSignalSpy saved(&autosave, &WorkSpaceAutosave::saved);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    autosave.setEnabled(true);
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    QVERIFY(saved.isEmpty());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QTRY_COMPARE(saved.size(), 1);

    // What closes with the main window isn't the user's arrangement.
    const QByteArray before = stored();
    for (ZelDockWidget *dock : std::as_const(window.docks))
        dock->hide();
    window.close();
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    QCOMPARE(stored(), before);
}

void TestWorkspaceAutosave::storesNothingWhenOff()
{
    auto window = std::make_unique<WorkSpaceWindow>();
    WorkSpaceAutosave autosave(window->library, window->project);
    autosave.setDelay(0);
    autosave.setEnabled(true);
    autosave.setEnabled(false);
    autosave.schedule();
    window->docks[0]->hide();
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    QVERIFY(stored().isEmpty());
    autosave.setEnabled(true);
    window.reset();
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    QVERIFY(stored().isEmpty());
}

void TestWorkspaceAutosave::restores_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("diedBefore");
    QTest::addColumn<WorkSpaceAutosave::RestoreResult>("expected");
    const QVariant none;
    const QVariant junk = QByteArray("junk");
    QTest::newRow("nothing") << none << false << WorkSpaceAutosave::NothingStored;
    QTest::newRow("wrong type") << QVariant(QSize(1, 2)) << false
                                << WorkSpaceAutosave::NothingStored;
    QTest::newRow("junk") << junk << false << WorkSpaceAutosave::Failed;
    QTest::newRow("died") << junk << true << WorkSpaceAutosave::Skipped;
    QTest::newRow("died elsewhere") << none << true << WorkSpaceAutosave::Skipped;
}

void TestWorkspaceAutosave::restores()
{
    QFETCH(QVariant, value);
    QFETCH(bool, diedBefore);
    QFETCH(WorkSpaceAutosave::RestoreResult, expected);
    if (value.isValid())
        store().setValue(key, value);
    ZelSettings(QStringLiteral("ui")).setValue(QStringLiteral("DoingStartupRestore"), diedBefore);
    const ZelScopedMessageBoxMode mode(ZelMessageBox::NoGui);
    if (expected == WorkSpaceAutosave::Failed)
        messages().expect(QtCriticalMsg, QStringLiteral("Could not set/restore desktop state"));
    WorkSpaceWindow window;
    WorkSpaceAutosave autosave(window.library, window.project);
    QCOMPARE(autosave.restore(), expected);
    QCOMPARE(autosave.restore(), WorkSpaceAutosave::NothingStored);
    QVERIFY(!WorkSpaceHandler::mayHaveStartupRestoreIssue());
}

void TestWorkspaceAutosave::outlivesAKill()
{
    const QString path = folder() + QStringLiteral("/killed.json");
    const auto start = [&path](QProcess &process, const QString &what) {
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--child"), what, path});
    };
    QProcess first;
    start(first, QStringLiteral("save"));
    QVERIFY(first.waitForReadyRead(20000));
    first.kill();
    QVERIFY(first.waitForFinished());

    ZelSettings::setStorePath(path);
    {
        WorkSpaceWindow window;
        WorkSpaceAutosave autosave(window.library, window.project);
        QCOMPARE(autosave.restore(), WorkSpaceAutosave::Restored);
        QVERIFY(window.docks[0]->isHidden());
        const QList<ZelDockWidgetFromTab *> floating = window.library->getChildren();
        QCOMPARE(floating.size(), 1);
        QCOMPARE(floating.first()->geometry(), QRect(300, 300, 220, 200));
    }
    ZelSettings::setStorePath(settingsFile());
    QProcess second;
    start(second, QStringLiteral("restore"));
    QVERIFY(second.waitForFinished(20000));
    QCOMPARE(second.exitCode(), 9);

    ZelSettings::setStorePath(path);
    WorkSpaceWindow window;
    WorkSpaceAutosave autosave(window.library, window.project);
    QCOMPARE(autosave.restore(), WorkSpaceAutosave::Skipped);
    QCOMPARE(autosave.restore(), WorkSpaceAutosave::NothingStored);
    ZelSettings::setStorePath(settingsFile());
}

int main(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], "--child") == 0) {
        const QApplication application(argc, argv);
        return runChild(QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    }
    return runTests<TestWorkspaceAutosave>(argc, argv);
}
#include "tst_workspace_autosave.moc"
