#pragma once

#include "KeyDesk.h"
#include "TestCase.h"
#include "shortcuts/ZelShortcutConflictHandler.h"

#include <ZelWidgets/ZelShortcutHandler>

inline const QString idA = QStringLiteral("cam.aFirst");
inline const QString idB = QStringLiteral("cam.bSecond");
inline const QString copyId = QStringLiteral("gen.aCopy");
inline const QString one = QStringLiteral("one");
inline const QString two = QStringLiteral("two");
inline const QKeySequence ctrlD(QStringLiteral("Ctrl+D"));
using Names = QStringList;

inline bool realKeys()
{
    return qEnvironmentVariableIsSet("ZEL_REAL_KEYS");
}

/// Base of tests that press keys: each function has a registry and a desk of its own.
class KeyDeskTest : public TestCase
{
    Q_OBJECT

protected:
    void start()
    {
        QVERIFY(desk_->show());
        registry().setSystemInitialized(desk_->window());
    }
    static ZelShortcutHandler &registry() { return *ZelShortcutHandler::instance(); }
    /// The names of what a press of the key fires.
    QStringList pressed(Qt::Key key = Qt::Key_D, Qt::KeyboardModifiers held = Qt::ControlModifier)
    {
        desk_->press(key, held);
        return desk_->takeFired();
    }
    bool hasReport()
    {
        return messages()
            .messages(QtDebugMsg)
            .join(u'\n')
            .contains(QStringLiteral("Hotkey conflict with"));
    }
    static int handlerCount(const QObject *parent)
    {
        return static_cast<int>(parent->findChildren<ZelShortcutConflictHandler *>().size());
    }

    std::unique_ptr<KeyDesk> desk_;

protected Q_SLOTS:
    void init()
    {
        TestCase::init();
        ZelShortcutHandler::destroy();
        ZelShortcutHandler::prepareInstance();
        desk_ = std::make_unique<KeyDesk>(realKeys());
    }
    void cleanup()
    {
        desk_.reset();
        ZelShortcutHandler::destroy();
        TestCase::cleanup();
    }
};

/// Runs the tests with keys that they send themselves or, with ZEL_REAL_KEYS in the environment,
/// with those of a window system; skipped where there is none.
template <typename Test>
int runKeyTests(int argc, char **argv)
{
    constexpr int skipped = 77;
    KeyServer server;
    if (realKeys() && !server.start())
        return skipped;
    return runTests<Test>(argc, argv);
}
