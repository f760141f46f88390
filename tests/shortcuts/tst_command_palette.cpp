#include "RegistryTestCase.h"

#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelCommandPalette>
#include <ZelWidgets/ZelFuzzyMatch>
#include <ZelWidgets/ZelShortcut>

#include <QAction>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QSignalSpy>

#include <memory>

namespace {

/// The text with the letters that fit in brackets.
QString marked(const QString &text, const ZelFuzzyMatch &match)
{
    QString marked;
    for (qsizetype i = 0; i < text.size(); ++i)
        marked += match.positions.contains(i) ? u'[' + QString(text[i]) + u']' : QString(text[i]);
    return marked;
}

} // namespace

class CommandPaletteTest : public RegistryTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lettersAreFoundWhereTheyCountMost_data();
    void lettersAreFoundWhereTheyCountMost();
    void theBetterFitScoresHigher_data();
    void theBetterFitScoresHigher();
    void hugeTextsAreCutShort();
    void commandsStandInTheOrderOfTheEditor();
    void typingPutsTheBestFirst();
    void returnRunsWhatTheKeyDoes();
    void shortcutsAreActivated();
    void disabledCommandsAreShownButNotRun();
    void escapeGivesTheFocusBack();
    void theFocusDecidesAmongObjectsOfOneId();
    void commandsInConflictKeepTheirKeys();
    void commandsMayDieMeanwhile();

private:
    ZelAction *addAction(const char *id, const char *text, const QKeySequence &key = {});
    QStringList shownTexts() const;
    void type(const QString &text) { QTest::keyClicks(palette_->lineEdit(), text); }
    void press(Qt::Key key) { QTest::keyClick(palette_->lineEdit(), key); }

    std::unique_ptr<QWidget> window_;
    QLineEdit *field_ = nullptr;
    QPointer<ZelCommandPalette> palette_;
};

void CommandPaletteTest::init()
{
    RegistryTestCase::init();
    window_ = std::make_unique<QWidget>();
    window_->resize(600, 400);
    field_ = new QLineEdit(window_.get());
    palette_ = new ZelCommandPalette(window_.get());
    window_->show();
    window_->activateWindow();
    field_->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), field_);
}

void CommandPaletteTest::cleanup()
{
    window_.reset();
    RegistryTestCase::cleanup();
}

ZelAction *CommandPaletteTest::addAction(const char *id, const char *text, const QKeySequence &key)
{
    return new ZelAction(QLatin1String(id), QLatin1String(text), key, window_.get());
}

QStringList CommandPaletteTest::shownTexts() const
{
    QStringList texts;
    const QAbstractItemModel *model = palette_->listView()->model();
    for (int row = 0; row < model->rowCount(); ++row)
        texts += model->index(row, 0).data(Qt::AccessibleTextRole).toString();
    return texts;
}

void CommandPaletteTest::lettersAreFoundWhereTheyCountMost_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("empty") << ""
                           << "Frame"
                           << "Frame";
    QTest::newRow("blanks only") << "  "
                                 << "Frame"
                                 << "Frame";
    QTest::newRow("whole") << "frame"
                           << "Frame"
                           << "[F][r][a][m][e]";
    QTest::newRow("word starts") << "sa"
                                 << "Show last Area"
                                 << "[S]how last [A]rea";
    QTest::newRow("late run") << "pan"
                              << "Open a Panel"
                              << "Open a [P][a][n]el";
    QTest::newRow("humps") << "fs"
                           << "offsetFullScreen"
                           << "offset[F]ull[S]creen";
    QTest::newRow("digit") << "m2"
                           << "Items Model2"
                           << "Items [M]odel[2]";
    QTest::newRow("pattern with accents") << "éL"
                                          << "elan"
                                          << "[e][l]an";
    QTest::newRow("text with accents") << "grosse"
                                       << "Große Öfen"
                                       << "[G][r][o][ß][e] Öfen";
    QTest::newRow("umlaut") << "of"
                            << "Große Öfen"
                            << "Große [Ö][f]en";
    QTest::newRow("cyrillic") << "ЙК"
                              << "Мой код"
                              << "Мо[й] [к]од";
    QTest::newRow("words") << "add li"
                           << "Add Light"
                           << "[A][d][d] [L][i]ght";
    QTest::newRow("missing") << "fz"
                             << "Frame" << QString();
    QTest::newRow("order") << "rf"
                           << "Frame" << QString();
    QTest::newRow("too long") << "framee"
                              << "Frame" << QString();
    QTest::newRow("empty text") << "a"
                                << "" << QString();
}

void CommandPaletteTest::lettersAreFoundWhereTheyCountMost()
{
    QFETCH(QString, pattern);
    QFETCH(QString, text);
    QFETCH(QString, expected);
    const auto match = ZelFuzzyMatch::of(pattern, text);
    QCOMPARE(match.has_value(), !expected.isNull());
    if (match)
        QCOMPARE(marked(text, *match), expected);
}

void CommandPaletteTest::theBetterFitScoresHigher_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("better");
    QTest::addColumn<QString>("worse");

    QTest::newRow("word starts") << "cp"
                                 << "Copy Path"
                                 << "Copy";
    QTest::newRow("run") << "light"
                         << "Add Light"
                         << "Last in global height";
    QTest::newRow("hump") << "gs"
                          << "gridSnap"
                          << "gadgets";
    QTest::newRow("begin") << "pan"
                           << "Pan"
                           << "Span";
    QTest::newRow("near the begin") << "pan"
                                    << "A Pan"
                                    << "Alternative Spandex";
}

void CommandPaletteTest::theBetterFitScoresHigher()
{
    QFETCH(QString, pattern);
    QFETCH(QString, better);
    QFETCH(QString, worse);
    const auto first = ZelFuzzyMatch::of(pattern, better);
    const auto second = ZelFuzzyMatch::of(pattern, worse);
    QVERIFY(first && second);
    QVERIFY(first->score > second->score);
}

void CommandPaletteTest::hugeTextsAreCutShort()
{
    const QString text(1000000, u'a');
    const auto match = ZelFuzzyMatch::of(text, text);
    QVERIFY(match);
    QCOMPARE(match->positions.size(), 64);
    QVERIFY(!ZelFuzzyMatch::of(QStringLiteral("b"), text + u'b'));
}

void CommandPaletteTest::commandsStandInTheOrderOfTheEditor()
{
    addAction("if.x", "&Interface thing...", Qt::CTRL | Qt::Key_I);
    addAction("cam#ctrl.b", "Control");
    addAction("cam.z", "Camera");
    addAction("zoo.x", "Wild");
    addAction("gen.empty", "");
    addAction("gen.hidden", "Hidden")->setVisible(false);
    palette_->open();
    QVERIFY(palette_->isVisible());
    const QStringList expected{
        QStringLiteral("Camera, Camera"), QStringLiteral("Control, Camera Control"),
        QStringLiteral("Interface thing, Interface, Ctrl+I"), QStringLiteral("Wild")};
    QCOMPARE(shownTexts(), expected);
    QCOMPARE(palette_->lineEdit()->accessibleDescription(), expected.first());
}

void CommandPaletteTest::typingPutsTheBestFirst()
{
    addAction("cam.a", "Spandex");
    addAction("cam.b", "Pan View");
    addAction("cam.c", "Pan");
    addAction("mat.a", "Cycle");
    palette_->open();
    type(QStringLiteral("pan"));
    QCOMPARE(shownTexts(),
             (QStringList{QStringLiteral("Pan, Camera"), QStringLiteral("Pan View, Camera"),
                          QStringLiteral("Spandex, Camera")}));
    palette_->lineEdit()->clear();
    // By the category too.
    type(QStringLiteral("mat"));
    QCOMPARE(shownTexts(), QStringList{QStringLiteral("Cycle, Materials")});
    type(QStringLiteral("xyz"));
    QCOMPARE(shownTexts(), QStringList());
    press(Qt::Key_Return);
    press(Qt::Key_Down);
    QVERIFY(palette_->isVisible());
}

void CommandPaletteTest::returnRunsWhatTheKeyDoes()
{
    const auto *first = addAction("cam.a", "First");
    const auto *second = addAction("cam.b", "Second");
    addAction("cam.c", "Third");
    QWidget *focusThen = nullptr;
    connect(second, qOverload<>(&ZelAction::triggered), this,
            [&focusThen] { focusThen = QApplication::focusWidget(); });
    const QSignalSpy firstRan(first, qOverload<>(&ZelAction::triggered));
    const QSignalSpy secondRan(second, qOverload<>(&ZelAction::triggered));
    const QSignalSpy told(palette_, &ZelCommandPalette::aboutToRun);
    palette_->open();
    QTRY_COMPARE(QApplication::focusWidget(), palette_->lineEdit());
    // Round by the end, and to a place in the middle.
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    QVERIFY(!palette_->isVisible());
    QCOMPARE(secondRan.count(), 1);
    QCOMPARE(focusThen, field_);
    QCOMPARE(told, QList<QVariantList>{{QStringLiteral("cam.b")}});

    palette_->open();
    const QListView *view = palette_->listView();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(0, 0)).center());
    QCOMPARE(firstRan.count(), 1);
    QCOMPARE(secondRan.count(), 1);
}

void CommandPaletteTest::shortcutsAreActivated()
{
    const ZelShortcut shortcut(QStringLiteral("cam.a"), QStringLiteral("Alone"), Qt::Key_F2,
                               window_.get());
    auto *qAction = new QAction(QStringLiteral("Together"), window_.get());
    const ZelShortcut together(QStringLiteral("cam.b"), qAction, window_.get());
    const QSignalSpy alone(&shortcut, &QShortcut::activated);
    const QSignalSpy pair(&together, &QShortcut::activated);
    const QSignalSpy action(qAction, &QAction::triggered);
    palette_->open();
    press(Qt::Key_Return);
    QCOMPARE(alone.count(), 1);
    palette_->open();
    QCOMPARE(shownTexts().size(), 2);
    press(Qt::Key_PageDown);
    press(Qt::Key_Enter);
    QCOMPARE(pair.count() + action.count(), 1);
}

void CommandPaletteTest::disabledCommandsAreShownButNotRun()
{
    auto *action = addAction("cam.a", "Frame");
    action->setEnabled(false);
    const QSignalSpy ran(action, qOverload<>(&ZelAction::triggered));
    palette_->open();
    QCOMPARE(shownTexts(), QStringList{QStringLiteral("Frame, Camera, not available")});
    press(Qt::Key_Return);
    QVERIFY(palette_->isVisible());
    QCOMPARE(ran.count(), 0);
    // What is on meanwhile can be run.
    action->setEnabled(true);
    press(Qt::Key_Return);
    QCOMPARE(ran.count(), 1);
}

void CommandPaletteTest::escapeGivesTheFocusBack()
{
    const auto *action = addAction("cam.a", "Frame");
    const QSignalSpy ran(action, qOverload<>(&ZelAction::triggered));
    palette_->open();
    type(QStringLiteral("fr"));
    QTRY_COMPARE(QApplication::focusWidget(), palette_->lineEdit());
    press(Qt::Key_Escape);
    QVERIFY(!palette_->isVisible());
    QCOMPARE(QApplication::focusWidget(), field_);
    QCOMPARE(ran.count(), 0);
    palette_->open();
    QVERIFY(palette_->lineEdit()->text().isEmpty());
    delete field_;
    press(Qt::Key_Escape);
    QVERIFY(!palette_->isVisible());
}

void CommandPaletteTest::theFocusDecidesAmongObjectsOfOneId()
{
    auto *other = new QWidget(window_.get());
    auto *far = new ZelAction(QStringLiteral("gen.aCopy"), QStringLiteral("Copy"), {}, other);
    auto *near = new ZelAction(QStringLiteral("gen.aCopy"), QStringLiteral("Copy"), {}, field_);
    const QSignalSpy farRan(far, qOverload<>(&ZelAction::triggered));
    const QSignalSpy nearRan(near, qOverload<>(&ZelAction::triggered));
    palette_->open();
    QCOMPARE(shownTexts(), QStringList{QStringLiteral("Copy, General")});
    press(Qt::Key_Return);
    QCOMPARE(nearRan.count(), 1);
    near->setEnabled(false);
    palette_->open();
    press(Qt::Key_Return);
    QCOMPARE(farRan.count(), 1);
}

void CommandPaletteTest::commandsInConflictKeepTheirKeys()
{
    registry().setSystemInitialized(window_.get());
    const ZelShortcut a(QStringLiteral("cam.a"), QStringLiteral("A"), Qt::Key_F2, window_.get());
    const ZelShortcut b(QStringLiteral("cam.b"), QStringLiteral("B"), Qt::Key_F2, field_);
    QVERIFY(a.key().isEmpty());
    const QSignalSpy ran(&b, &QShortcut::activated);
    palette_->open();
    QCOMPARE(shownTexts(),
             (QStringList{QStringLiteral("A, Camera, F2"), QStringLiteral("B, Camera, F2")}));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QCOMPARE(ran.count(), 1);
}

void CommandPaletteTest::commandsMayDieMeanwhile()
{
    const QPointer<ZelAction> action = addAction("cam.a", "Frame");
    palette_->open();
    delete action;
    press(Qt::Key_Return);
    QVERIFY(palette_->isVisible());
    press(Qt::Key_Escape);

    const auto *killer = addAction("cam.b", "Kill");
    connect(killer, qOverload<>(&ZelAction::triggered), this, [this] { delete palette_; });
    palette_->open();
    press(Qt::Key_Return);
    QVERIFY(!palette_);
    QCOMPARE(QApplication::focusWidget(), field_);
}

ZEL_TEST_MAIN(CommandPaletteTest)
#include "tst_command_palette.moc"
