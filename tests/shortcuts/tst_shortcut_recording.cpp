#include "TestCase.h"

#include "shortcuts/ZelGestureChoice.h"
#include "shortcuts/ZelRecordedKey.h"
#include "shortcuts/ZelShortcutFilter.h"
#include "shortcuts/ZelShortcutVerdict.h"

#include <QKeyEvent>

namespace {

using Shortcut = ZelMouseShortcut;

QString id(const char *text)
{
    return QLatin1String(text);
}

} // namespace

/// What a recorder makes of events, and when bindings meet: no window is needed.
class ShortcutRecordingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keyPressesBecomeKeys_data();
    void keyPressesBecomeKeys();
    void gesturesAreWhatTheirTextCanTell();
    void bindingsClash_data();
    void bindingsClash();
    void aFilterWantsAllOfItsConditions();
};

void ShortcutRecordingTest::keyPressesBecomeKeys_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifiers");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("scanCode");
    QTest::addColumn<QString>("portable");
    const auto row = [](const char *name, int key, int modifiers, const QString &text,
                        const char *portable, int scanCode = 0) {
        QTest::newRow(name) << key << modifiers << text << scanCode << id(portable);
    };
    constexpr int shift = Qt::ShiftModifier;
    constexpr int ctrl = Qt::ControlModifier;
    constexpr int keypad = Qt::KeypadModifier;
    row("letter", Qt::Key_A, 0, QStringLiteral("a"), "A");
    row("capital", Qt::Key_A, shift, QStringLiteral("A"), "Shift+A");
    row("symbol", Qt::Key_Exclam, shift, QStringLiteral("!"), "!");
    row("shifted space", Qt::Key_Space, shift, QStringLiteral(" "), "Shift+Space");
    row("back tab", Qt::Key_Backtab, shift, QString(), "Shift+Tab");
    row("keypad", Qt::Key_5, keypad, QStringLiteral("5"), "Num+5");
    row("keypad enter", Qt::Key_Enter, keypad | ctrl, QString(), "Ctrl+Num+Enter");
    row("modifier alone", Qt::Key_Control, ctrl, QString(), "");
    row("dead key", Qt::Key_Dead_Acute, 0, QString(), "");
    row("unknown", Qt::Key_unknown, 0, QString(), "");
    row("group switch", Qt::Key_Q, Qt::GroupSwitchModifier, QStringLiteral("@"), "Q");
    row("umlaut", Qt::Key_Udiaeresis, ctrl, QString(), "Ctrl+\xdc");
#ifdef Q_OS_LINUX
    row("cyrillic es", 0x421, ctrl, QString(), "Ctrl+C", 54);
    row("cyrillic ya", 0x42f, ctrl | shift, QString(), "Ctrl+Shift+Z", 52);
    row("cyrillic be", 0x411, 0, QStringLiteral("\u0431"), ",", 59);
    row("greek alpha", 0x391, ctrl, QString(), "Ctrl+A", 38);
#endif
    QTest::newRow("no place known")
        << 0x421 << ctrl << QString() << 0 << QString(QStringLiteral("Ctrl+") + QChar(0x421));
}

void ShortcutRecordingTest::keyPressesBecomeKeys()
{
    QFETCH(const int, key);
    QFETCH(const int, modifiers);
    QFETCH(const QString, text);
    QFETCH(const int, scanCode);
    QFETCH(const QString, portable);
    const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers),
                          quint32(scanCode), 0, 0, text);
    const auto combination = ZelRecordedKey::combination(event);
    QCOMPARE(combination ? QKeySequence(*combination).toString(QKeySequence::PortableText)
                         : QString(),
             portable);
}

void ShortcutRecordingTest::gesturesAreWhatTheirTextCanTell()
{
    using namespace ZelGestureChoice;
    const QKeyCombination digit(Qt::NoModifier, Qt::Key_1);
    const QKeyCombination both(Qt::ControlModifier | Qt::MetaModifier, Qt::Key_2);
    const QList<Shortcut> gestures{{Shortcut::LeftClick, digit, Qt::LeftButton},
                                   {Shortcut::LeftClick, both, Qt::NoButton},
                                   {Shortcut::Drag, digit, Qt::LeftButton | Qt::BackButton},
                                   {Shortcut::Drag, digit, Qt::NoButton},
                                   {Shortcut::Wheel, both, Qt::MiddleButton}};
    for (const Shortcut &gesture : gestures) {
        const Shortcut kept = normalized(gesture);
        QCOMPARE(Shortcut::buildFromExportedString(kept.exportToString()), kept);
    }
    QCOMPARE(normalized(gestures[1]).getKeyCombination().key(), Qt::Key_2);
    QVERIFY(isComplete(normalized(gestures[2])));
    QVERIFY(!isComplete(normalized(gestures[3])));
    QVERIFY(!isComplete({}));
    QVERIFY(!events(ZelMouseAction::DragOnly).contains(Shortcut::Wheel));
    QVERIFY(!events(ZelMouseAction::OneShot).contains(Shortcut::Drag));
}

void ShortcutRecordingTest::bindingsClash_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<bool>("clash");
    const auto row = [](const char *a, const char *b, bool clash) {
        QTest::addRow("%s and %s", a, b) << id(a) << id(b) << clash;
    };
    row("Ctrl+K", "ctrl+k", true);
    row("Ctrl+K", "Ctrl+K, C", true);
    row("Ctrl+K, C", "Ctrl+K, V", false);
    row("5", "Num+5", false);
    row("", "", false);
    row("!#MD#LMB#!#", "!#MD#lmb#!#", true);
    row("!#MD#LMB#!#", "!#MD#RMB#!#", false);
    row("!#MW#/", "A", false);
    row("!#", "", false);
}

void ShortcutRecordingTest::bindingsClash()
{
    QFETCH(const bool, clash);
    QFETCH(const QString, a);
    QFETCH(const QString, b);
    const auto first = ZelShortcutBinding::of(a);
    const auto second = ZelShortcutBinding::of(b);
    QCOMPARE(first.clashesWith(second), clash);
    QCOMPARE(second.clashesWith(first), clash);
    if (clash)
        QCOMPARE(first.bucket(), second.bucket());
}

void ShortcutRecordingTest::aFilterWantsAllOfItsConditions()
{
    const ZelShortcutFilter::Row row{QStringLiteral("camera frame all ctrl+k, f"),
                                     {Qt::CTRL | Qt::Key_K, Qt::Key_F},
                                     true,
                                     false};
    ZelShortcutFilter filter;
    QVERIFY(filter.isEmpty() && filter.fits(row));
    filter.setText(QStringLiteral("  ALL cam "));
    QVERIFY(!filter.isEmpty() && filter.fits(row));
    filter.key = QKeySequence(Qt::CTRL | Qt::Key_K);
    filter.onlyChanged = true;
    QVERIFY(filter.fits(row));
    filter.key = QKeySequence(Qt::CTRL | Qt::Key_K, Qt::Key_G);
    QVERIFY(!filter.fits(row));
    filter.key = QKeySequence(Qt::CTRL | Qt::Key_K, Qt::Key_F, Qt::Key_F);
    QVERIFY(!filter.fits(row));
    filter.key = {};
    filter.onlyConflicts = true;
    QVERIFY(!filter.fits(row));
}

ZEL_TEST_MAIN(ShortcutRecordingTest)
#include "tst_shortcut_recording.moc"
