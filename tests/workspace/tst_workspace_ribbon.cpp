#include "TestCase.h"
#include "UserInput.h"
#include "WorkSpaceWindow.h"

#include "workspace/WorkSpaceExchange.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/WorkSpaceTextDialog>
#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelMessageBox>
#include <ZelWidgets/ZelStyleSheets>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>

namespace {

ZelSettings store()
{
    return ZelSettings(QStringLiteral("WorkSpaces"));
}

QStringList entries(WorkSpaceWidgetRibbon &ribbon)
{
    Q_EMIT ribbon.menu()->aboutToShow();
    QStringList texts;
    for (const QAction *action : ribbon.menu()->actions())
        texts.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return texts;
}

QAction *entry(WorkSpaceWidgetRibbon &ribbon, const QString &text)
{
    const qsizetype index = entries(ribbon).indexOf(text);
    return ribbon.menu()->actions().value(index);
}

/// Chooses an entry as a click does.
void choose(WorkSpaceWidgetRibbon &ribbon, const char *text)
{
    QMenu *menu = ribbon.menu();
    menu->popup(QPoint());
    for (QAction *action : menu->actions()) {
        if (action->text() == QLatin1String(text)) {
            menu->setActiveAction(action);
            QTest::keyClick(menu, Qt::Key_Return);
            return;
        }
    }
    QFAIL("no such entry");
}

/// Answers the next dialog with a button.
UserInput::DialogAnswer answer(QDialogButtonBox::StandardButton which, QStringList *told = nullptr,
                               const QString &typed = QString())
{
    return UserInput::DialogAnswer([=](QDialog *dialog) {
        if (auto *box = qobject_cast<QMessageBox *>(dialog); box && told)
            *told = {box->windowTitle(), box->text(), box->button(QMessageBox::Yes)->text()};
        if (auto *edit = dialog->findChild<QLineEdit *>(); edit && told)
            *told = {dialog->windowTitle(), edit->text()};
        if (!typed.isNull())
            UserInput::type(dialog, typed);
        dialog->findChild<QDialogButtonBox *>()->button(which)->click();
    });
}

const QDialogButtonBox::StandardButton yes = QDialogButtonBox::Yes;
const QDialogButtonBox::StandardButton no = QDialogButtonBox::No;
const QDialogButtonBox::StandardButton ok = QDialogButtonBox::Ok;
const QDialogButtonBox::StandardButton cancel = QDialogButtonBox::Cancel;

/// A main window with the button that takes care of it.
struct Interface
{
    Interface()
    {
        window.show();
        ribbon.setLibraryWindow(window.library);
        ribbon.setProjectWindow(window.project);
        ribbon.show();
        QCoreApplication::processEvents();
    }
    QByteArray capture() const
    {
        return WorkSpaceHandler::getWorkSpaceData(window.library, window.project);
    }

    WorkSpaceWindow window;
    WorkSpaceWidgetRibbon ribbon;
};

} // namespace

class TestWorkspaceRibbon : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsWithFactoryWorkSpaces();
    void showsTheLastUsed_data();
    void showsTheLastUsed();
    void makesItsMenu();
    void adds();
    void revertsAndApplies();
    void restoresAnother();
    void duplicatesAndExports();
    void manages();
    void choosesThemes();
    void diesInItsDialogs_data();
    void diesInItsDialogs();
};

void TestWorkspaceRibbon::initTestCase()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
}

void TestWorkspaceRibbon::startsWithFactoryWorkSpaces()
{
    {
        const WorkSpaceWidgetRibbon ribbon;
        QCOMPARE(ribbon.text(), QStringLiteral("Default"));
        QCOMPARE(ribbon.currentWorkSpace(), QStringLiteral("defWorkSpace1"));
        QCOMPARE(ribbon.objectName(), QStringLiteral("Ribbon"));
        QVERIFY(ribbon.styleSheet().endsWith(QLatin1String("text-align: left;")));
        QCOMPARE(ribbon.menu()->title(), QStringLiteral("Workspaces"));
        QCOMPARE(int(ribbon.menu()->windowFlags()), 0x40000809);
    }
    QCOMPARE(store().value(QStringLiteral("ids")).toStringList(),
             (QStringList{QStringLiteral("defWorkSpace1"), QStringLiteral("defWorkSpace2")}));
    QCOMPARE(store().value(QStringLiteral("defWorkSpace2")).toByteArray(), QByteArray("two"));
    QCOMPARE(store().value(QStringLiteral("DefaultWorkspacesCount")).toInt(), 10);
    QVERIFY(store().value(QStringLiteral("isSetup")).toBool());
    // What the user deleted doesn't come back.
    store().setValue(QStringLiteral("ids"), QStringList());
    store().setValue(QStringLiteral("names"), QStringList());
    const WorkSpaceWidgetRibbon second;
    QVERIFY(second.text().isEmpty() && second.currentWorkSpace().isEmpty());
}

void TestWorkspaceRibbon::showsTheLastUsed_data()
{
    QTest::addColumn<QVariant>("lastUsed");
    QTest::addColumn<QVariant>("isFirstTime");
    QTest::addColumn<QString>("shown");
    const QString none;
    QTest::newRow("used") << QVariant(QStringLiteral("defWorkSpace2")) << QVariant(false)
                          << QStringLiteral("Studio");
    QTest::newRow("first time") << QVariant() << QVariant() << QStringLiteral("Default");
    QTest::newRow("none") << QVariant() << QVariant(false) << none;
    QTest::newRow("gone") << QVariant(QStringLiteral("wsid7")) << QVariant(true) << none;
    QTest::newRow("wrong types") << QVariant(QSize(1, 2)) << QVariant(QSize(1, 2)) << none;
}

void TestWorkspaceRibbon::showsTheLastUsed()
{
    QFETCH(QVariant, lastUsed);
    QFETCH(QVariant, isFirstTime);
    {
        const WorkSpaceWidgetRibbon firstStart;
    }
    if (lastUsed.isValid())
        store().setValue(QStringLiteral("LastUsedWorkspace"), lastUsed);
    if (isFirstTime.isValid())
        ZelSettings(QStringLiteral("misc")).setValue(QStringLiteral("first_time"), isFirstTime);
    const WorkSpaceWidgetRibbon ribbon;
    QTEST(ribbon.text(), "shown");
}

void TestWorkspaceRibbon::makesItsMenu()
{
    WorkSpaceWidgetRibbon ribbon;
    const QStringList tail{
        QStringLiteral("-"), QStringLiteral("Dark Theme"),   QStringLiteral("Light Theme"),
        QStringLiteral("-"), QStringLiteral("Duplicate..."), QStringLiteral("Export...")};
    const QStringList commands{QStringLiteral("-"), QStringLiteral("Add..."),
                               QStringLiteral("Apply Changes..."), QStringLiteral("Manage...")};
    QCOMPARE(entries(ribbon), (QStringList{QStringLiteral("Default..."), QStringLiteral("Studio")} +
                               commands + tail));
    QCOMPARE(entries(ribbon).size(), 12);
    QVERIFY(entry(ribbon, QStringLiteral("Apply Changes..."))->isEnabled());
    QVERIFY(entry(ribbon, QStringLiteral("Dark Theme"))->isChecked());
    QVERIFY(!entry(ribbon, QStringLiteral("Light Theme"))->isChecked());
    QCOMPARE(entry(ribbon, QStringLiteral("Studio"))->data().toString(),
             QStringLiteral("defWorkSpace2"));

    store().setValue(QStringLiteral("names"), QStringList{QStringLiteral("A & B")});
    ZelSettings(QStringLiteral("misc")).setValue(QStringLiteral("first_time"), false);
    WorkSpaceWidgetRibbon other;
    QCOMPARE(entries(other).first(), QStringLiteral("A && B"));
    for (const char *text : {"Apply Changes...", "Duplicate...", "Export..."})
        QVERIFY(!entry(other, QString::fromLatin1(text))->isEnabled());
}

void TestWorkspaceRibbon::adds()
{
    Interface ui;
    QStringList told;
    {
        const auto typed = answer(cancel);
        choose(ui.ribbon, "Add...");
        QVERIFY(typed.finished());
    }
    QVERIFY(!store().hasKey(QStringLiteral("wsid1")));
    for (int i = 0; i < 2; ++i) {
        const auto typed = answer(ok, &told);
        choose(ui.ribbon, "Add...");
        QVERIFY(typed.finished());
    }
    QCOMPARE(told, (QStringList{QStringLiteral("Add Workspace"), QStringLiteral("Workspace 1")}));
    {
        const auto typed = answer(ok, nullptr, QStringLiteral("Mine"));
        choose(ui.ribbon, "Add...");
    }
    QCOMPARE(ui.ribbon.text(), QStringLiteral("Mine"));
    QCOMPARE(ui.ribbon.currentWorkSpace(), QStringLiteral("wsid3"));
    QCOMPARE(store().value(QStringLiteral("wsid3")).toByteArray(), ui.capture());
    QCOMPARE(WorkSpaceWidgetRibbon().text(), QStringLiteral("Mine"));
}

void TestWorkspaceRibbon::revertsAndApplies()
{
    Interface ui;
    {
        const auto typed = answer(ok, nullptr, QStringLiteral("Mine"));
        choose(ui.ribbon, "Add...");
    }
    const QByteArray stored = ui.capture();
    ui.window.library->setCurrentIndex(2);
    QVERIFY(!entry(ui.ribbon, QStringLiteral("Mine..."))->icon().cacheKey());
    ui.window.docks[0]->hide();
    QVERIFY(entry(ui.ribbon, QStringLiteral("Mine..."))->icon().cacheKey());
    QVERIFY(ui.ribbon.isWorkSpaceChanged());
    QCOMPARE(ui.ribbon.text(), QStringLiteral("Mine"));
    QVERIFY(ui.ribbon.accessibleDescription().contains(QStringLiteral("differs")));

    QStringList told;
    {
        const auto refused = answer(no, &told);
        choose(ui.ribbon, "Mine...");
    }
    QCOMPARE(told, (QStringList{QStringLiteral("Revert Workspace Changes"),
                                QStringLiteral("Do you want to revert to the saved Workspace "
                                               "'Mine'?"),
                                QStringLiteral("Revert")}));
    QVERIFY(ui.window.docks[0]->isHidden());
    {
        const auto agreed = answer(yes);
        choose(ui.ribbon, "Mine...");
    }
    QVERIFY(!ui.window.docks[0]->isHidden());
    QVERIFY(!entry(ui.ribbon, QStringLiteral("Mine..."))->icon().cacheKey());
    QVERIFY(!ui.ribbon.isWorkSpaceChanged());

    ui.window.docks[0]->hide();
    {
        const auto refused = answer(no, &told);
        choose(ui.ribbon, "Apply Changes...");
    }
    QCOMPARE(told.first(), QStringLiteral("Apply Workspace Changes"));
    QCOMPARE(told[1], QStringLiteral("Do you want to update 'Mine' to use the current interface "
                                     "configuration?"));
    QCOMPARE(store().value(QStringLiteral("wsid1")).toByteArray(), stored);
    QVERIFY(ui.ribbon.isWorkSpaceChanged());
    {
        const auto agreed = answer(yes);
        choose(ui.ribbon, "Apply Changes...");
    }
    QCOMPARE(store().value(QStringLiteral("wsid1")).toByteArray(), ui.capture());
    QVERIFY(!ui.ribbon.isWorkSpaceChanged());
}

void TestWorkspaceRibbon::restoresAnother()
{
    Interface ui;
    {
        const auto typed = answer(ok, nullptr, QStringLiteral("Mine"));
        choose(ui.ribbon, "Add...");
    }
    ui.window.docks[0]->hide();
    {
        const auto typed = answer(ok, nullptr, QStringLiteral("Other"));
        choose(ui.ribbon, "Add...");
    }
    choose(ui.ribbon, "Mine");
    QCOMPARE(ui.ribbon.text(), QStringLiteral("Mine"));
    QVERIFY(!ui.window.docks[0]->isHidden());
    QVERIFY(entries(ui.ribbon).contains(QStringLiteral("Other")));
    // Nobody is asked where no dialogs are wanted.
    const ZelScopedMessageBoxMode mode(ZelMessageBox::NoGui);
    ui.window.docks[0]->hide();
    choose(ui.ribbon, "Mine...");
    QVERIFY(!ui.window.docks[0]->isHidden());
    // A workspace without data leaves the interface alone.
    messages().expect(QtCriticalMsg, QStringLiteral("Could not set/restore desktop state"));
    store().removeKey(QStringLiteral("defWorkSpace2"));
    const QByteArray before = ui.capture();
    choose(ui.ribbon, "Studio");
    QCOMPARE(ui.capture(), before);
    QVERIFY(!ZelMessageBox::getMessages(ZelMessageBox::Critical).isEmpty());
}

void TestWorkspaceRibbon::duplicatesAndExports()
{
    Interface ui;
    QStringList told;
    {
        const auto typed = answer(ok, &told);
        choose(ui.ribbon, "Duplicate...");
    }
    QCOMPARE(told,
             (QStringList{QStringLiteral("Duplicate Workspace"), QStringLiteral("Default1")}));
    QCOMPARE(ui.ribbon.text(), QStringLiteral("Default1"));
    QCOMPARE(store().value(QStringLiteral("wsid1")).toByteArray(), QByteArray("one"));

    const QString path = folder() + QStringLiteral("/copy.zelsw");
    std::unique_ptr<UserInput::DialogAnswer> box;
    const UserInput::DialogAnswer chooser([&](QDialog *dialog) {
        box = std::make_unique<UserInput::DialogAnswer>([](QDialog *next) { next->reject(); });
        dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
        dialog->findChild<QDialogButtonBox *>()->buttons().first()->click();
    });
    choose(ui.ribbon, "Export...");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const auto written = WorkSpaceExchange::read(file.readAll());
    QVERIFY(written);
    const QList<DefaultWorkSpaceInfo> expected{
        {QStringLiteral("Expwsid1"), QStringLiteral("Default1"), "one"}};
    QVERIFY(*written == expected);
}

void TestWorkspaceRibbon::manages()
{
    WorkSpaceWidgetRibbon ribbon;
    for (const auto which : {cancel, ok}) {
        const UserInput::DialogAnswer closing([which](QDialog *dialog) {
            for (QAction *action : dialog->findChild<QTableView *>()->actions()) {
                if (action->text() == QStringLiteral("Delete"))
                    action->trigger();
            }
            dialog->findChild<QDialogButtonBox *>()->button(which)->click();
        });
        choose(ribbon, "Manage...");
        QVERIFY(closing.finished());
        QCOMPARE(ribbon.text(), which == ok ? QString() : QStringLiteral("Default"));
    }
    QVERIFY(ribbon.currentWorkSpace().isEmpty());
    QVERIFY(!entry(ribbon, QStringLiteral("Apply Changes..."))->isEnabled());
    QVERIFY(!store().hasKey(QStringLiteral("defWorkSpace1")));
}

void TestWorkspaceRibbon::choosesThemes()
{
    WorkSpaceWidgetRibbon ribbon;
    ribbon.show();
    QSignalSpy changed(&ribbon, &WorkSpaceWidgetRibbon::changedTheme);
    choose(ribbon, "Light Theme");
    QCOMPARE(changed, (QList<QVariantList>{{QStringLiteral("Light")}}));
    QCOMPARE(ZelStyleSheets::colorThemeFromSettings(), QStringLiteral("Light"));
    QVERIFY(entry(ribbon, QStringLiteral("Light Theme"))->isChecked());
    QCOMPARE(ribbon.text(), QStringLiteral("Default"));
    qApp->setStyleSheet(QString());
}

void TestWorkspaceRibbon::diesInItsDialogs_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char *text :
         {"Add...", "Apply Changes...", "Manage...", "Duplicate...", "Export...", "Default..."})
        QTest::newRow(text) << QByteArray(text);
}

void TestWorkspaceRibbon::diesInItsDialogs()
{
    QFETCH(QByteArray, text);
    QPointer<WorkSpaceWidgetRibbon> ribbon = new WorkSpaceWidgetRibbon;
    const UserInput::DialogAnswer end([ribbon](QDialog *) { delete ribbon.data(); });
    choose(*ribbon, text.constData());
    QVERIFY(end.finished());
    QVERIFY(!ribbon);
    QCOMPARE(store().value(QStringLiteral("ids")).toStringList().size(), 2);
}

ZEL_TEST_MAIN(TestWorkspaceRibbon)
#include "tst_workspace_ribbon.moc"
