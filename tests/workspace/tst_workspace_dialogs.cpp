#include "TestCase.h"
#include "UserInput.h"

#include "theme/IconColorTheme.h"
#include "workspace/WorkSpaceExchange.h"
#include "workspace/WorkSpaceFiles.h"
#include "workspace/WorkSpaceMaintainDialog.h"
#include "workspace/WorkSpaceRibbonData.h"
#include "workspace/WorkSpaceTextDialog.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QTableView>
#include <QToolButton>

namespace {

const QString one = QStringLiteral("wsid1");
const QString two = QStringLiteral("wsid2");
const QString three = QStringLiteral("wsid3");
const QString factoryId = QStringLiteral("defWorkSpace1");

/// Three stored workspaces "A", "B" and "C", of which the second one is current, and one of the
/// factory that isn't listed.
std::shared_ptr<WorkSpaceRibbonData> sampleData()
{
    auto data = std::make_shared<WorkSpaceRibbonData>();
    data->list.add({one, QStringLiteral("A"), "a"});
    data->list.add({two, QStringLiteral("B"), "b"});
    data->list.add({three, QStringLiteral("C"), "c"});
    data->currentId = two;
    data->factory = {{factoryId, QStringLiteral("Factory"), "f"}};
    return data;
}

/// The dialog as a user meets it.
struct Shown
{
    explicit Shown(std::shared_ptr<WorkSpaceRibbonData> data)
        : dialog(std::move(data))
        , table(dialog.findChild<QTableView *>())
    {
        dialog.show();
        dialog.activateWindow();
        isActive = QTest::qWaitForWindowActive(&dialog);
        table->setFocus();
    }

    QToolButton *button(const char *toolTip) const
    {
        for (auto *button : dialog.findChildren<QToolButton *>()) {
            if (button->toolTip() == QLatin1String(toolTip))
                return button;
        }
        return nullptr;
    }
    void click(const char *toolTip) const { button(toolTip)->click(); }
    void press(QDialogButtonBox::StandardButton which) const
    {
        dialog.findChild<QDialogButtonBox *>()->button(which)->click();
    }
    void select(const QList<int> &rows) const
    {
        table->clearSelection();
        for (int row : rows) {
            const QModelIndex index = table->model()->index(row, 0);
            table->selectionModel()->setCurrentIndex(index, QItemSelectionModel::Select);
        }
    }
    QStringList enabled() const
    {
        QStringList names;
        for (auto *button : dialog.findChildren<QToolButton *>()) {
            if (button->isEnabled())
                names.append(button->toolTip().section(u' ', 0, 1));
        }
        return names;
    }
    /// Opens the editor of a row with the key for it.
    QLineEdit *edit(int row) const
    {
        select({row});
        QTest::keyClick(table, Qt::Key_F2);
        return table->findChild<QLineEdit *>();
    }

    WorkSpaceMaintainDialog dialog;
    QTableView *table;
    bool isActive = false;
};

/// Chooses a path in the next file dialog; the texts of the message box that follows, if one is
/// awaited, are kept.
class FileChoice
{
public:
    FileChoice(const QString &path, bool hasBox)
        : chooser_([this, path, hasBox](QDialog *dialog) {
            title = dialog->windowTitle();
            if (hasBox)
                box_ = std::make_unique<UserInput::DialogAnswer>([this](QDialog *box) {
                    const auto *message = qobject_cast<QMessageBox *>(box);
                    boxTexts = {box->windowTitle(), message ? message->text() : QString()};
                    box->reject();
                });
            dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(path);
            dialog->findChild<QDialogButtonBox *>()->buttons().first()->click();
        })
    {}

    QString title;
    QStringList boxTexts;

private:
    std::unique_ptr<UserInput::DialogAnswer> box_;
    UserInput::DialogAnswer chooser_;
};

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestWorkspaceDialogs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void asksForAName();
    void editsNames();
    void movesRows();
    void movesOnlyOneRow();
    void deletesAndRestores();
    void cancelChangesNothing();
    void importsTwice();
    void exportsWhatIsSelected();
    void tellsWhatFailed_data();
    void tellsWhatFailed();
    void hasAKeyboardMenu();
    void namesWhatTakesTheFocus();
    void survivesTheEndOfItsParent();
};

void TestWorkspaceDialogs::initTestCase()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
}

void TestWorkspaceDialogs::asksForAName()
{
    QWidget opener;
    opener.setGeometry(100, 100, 200, 30);
    opener.show();
    WorkSpaceTextDialog dialog(QStringLiteral("Add Workspace"), QStringLiteral("Workspace Name:"),
                               QString(), &opener);
    dialog.open();
    QCOMPARE(dialog.pos(), QPoint(100, 130 - dialog.fontMetrics().height()));
    auto *edit = dialog.findChild<QLineEdit *>();
    const QPushButton *ok = dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QVERIFY(!ok->isEnabled());
    QTest::keyClicks(edit, QStringLiteral("  "));
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(dialog.isVisible() && !ok->isEnabled());
    QTest::keyClicks(edit, QStringLiteral("abcdefghijklmnopqrstuvw"));
    QCOMPARE(dialog.text(), QStringLiteral("  abcdefghijklmnopqr"));
    QSignalSpy finished(&dialog, &QDialog::finished);
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(finished, (QList<QVariantList>{{int(QDialog::Accepted)}}));

    opener.setGeometry(0, 5000, 200, 30);
    dialog.open();
    QVERIFY(dialog.screen()->geometry().contains(dialog.frameGeometry()));
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void TestWorkspaceDialogs::editsNames()
{
    const auto data = sampleData();
    Shown shown(data);
    QLineEdit *edit = shown.edit(0);
    QVERIFY(edit);
    edit->clear();
    QTest::keyClicks(edit, QStringLiteral("   "));
    QTest::keyClick(edit, Qt::Key_Return);
    QTRY_VERIFY(shown.table->findChild<QLineEdit *>());
    shown.dialog.findChild<QPushButton *>()->setFocus();
    QTRY_VERIFY(!shown.table->findChild<QLineEdit *>());
    QCOMPARE(shown.table->model()->index(0, 0).data().toString(), QStringLiteral("A"));

    edit = shown.edit(0);
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("abcdefghijklmnopqrstuvw"));
    QVERIFY(data->list.nameOf(one) == QStringLiteral("A"));
    // The open editor is a part of what is accepted.
    shown.dialog.accept();
    QCOMPARE(WorkSpaceList().nameOf(one), QStringLiteral("abcdefghijklmnopqrst"));
    QCOMPARE(WorkSpaceList().data(one), QByteArray("a"));
    QCOMPARE(data->currentId, two);
}

void TestWorkspaceDialogs::movesRows()
{
    const auto data = sampleData();
    Shown shown(data);
    QCOMPARE(shown.table->currentIndex().row(), 1);
    const QStringList first{QStringLiteral("Move down"), QStringLiteral("Import Workspaces"),
                            QStringLiteral("Export Workspaces"),
                            QStringLiteral("Delete Workspaces")};
    QTest::keyClick(shown.table, Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(shown.enabled(), first);
    shown.click("Move down item");
    shown.click("Move down item");
    QVERIFY(!shown.button("Move down item")->isEnabled());
    QVERIFY(shown.button("Move up item")->isEnabled());
    shown.select({0});
    QCOMPARE(shown.enabled(), first);
    shown.press(QDialogButtonBox::Ok);
    QCOMPARE(WorkSpaceList().ids(), (QStringList{one, three, two}));
    QCOMPARE(WorkSpaceList().names().last(), QStringLiteral("B"));
}

void TestWorkspaceDialogs::movesOnlyOneRow()
{
    Shown shown(sampleData());
    shown.select({0, 1});
    QCOMPARE(shown.enabled().size(), 3);
    shown.select({1});
    shown.table->selectionModel()->setCurrentIndex(shown.table->model()->index(0, 0),
                                                   QItemSelectionModel::NoUpdate);
    QCOMPARE(shown.enabled().size(), 3);
    shown.select({});
    QCOMPARE(shown.enabled(), QStringList{QStringLiteral("Import Workspaces")});
}

void TestWorkspaceDialogs::deletesAndRestores()
{
    const auto data = sampleData();
    Shown shown(data);
    shown.click("Move up item");
    shown.select({0, 1});
    QTest::keyClick(shown.table, Qt::Key_Delete);
    QCOMPARE(shown.table->model()->rowCount(), 1);
    for (auto *button : shown.dialog.findChildren<QPushButton *>()) {
        if (button->text() == QStringLiteral("Restore Default Workspaces"))
            for (int i = 0; i < 2; ++i)
                button->click();
    }
    QCOMPARE(WorkSpaceList().ids().size(), 3);
    shown.press(QDialogButtonBox::Ok);
    QCOMPARE(WorkSpaceList().ids(), (QStringList{three, factoryId}));
    QCOMPARE(WorkSpaceList().data(factoryId), QByteArray("f"));
    QVERIFY(!ZelSettings(QStringLiteral("WorkSpaces")).hasKey(one));
    QVERIFY(data->currentId.isEmpty());
}

void TestWorkspaceDialogs::cancelChangesNothing()
{
    const auto data = sampleData();
    Shown shown(data);
    shown.click("Move up item");
    shown.click("Delete Workspaces");
    shown.press(QDialogButtonBox::Cancel);
    QCOMPARE(data->list.ids(), (QStringList{one, two, three}));
    QCOMPARE(WorkSpaceList().ids(), data->list.ids());
    QCOMPARE(data->currentId, two);
}

void TestWorkspaceDialogs::importsTwice()
{
    const QString path =
        writeFile(QStringLiteral("some.zelsw"),
                  WorkSpaceExchange::write({{QStringLiteral("Exp1"), QStringLiteral("B"), "x"},
                                            {QStringLiteral("Exp1"), QString(), "y"}}));
    const auto data = sampleData();
    Shown shown(data);
    // An id that is free only when the dialog is accepted isn't given to another workspace.
    shown.select({1});
    shown.click("Delete Workspaces");
    for (int i = 0; i < 2; ++i) {
        FileChoice choice(path, false);
        shown.click("Import Workspaces");
        QCOMPARE(choice.title, QStringLiteral("Import workspaces"));
    }
    QCOMPARE(WorkSpaceList().ids().size(), 3);
    shown.press(QDialogButtonBox::Ok);
    const WorkSpaceList list;
    QCOMPARE(list.ids(), (QStringList{one, three, QStringLiteral("wsid4"), QStringLiteral("wsid5"),
                                      QStringLiteral("wsid6"), QStringLiteral("wsid7")}));
    QCOMPARE(list.names().mid(2), (QStringList{QStringLiteral("B"), QStringLiteral("Imported"),
                                               QStringLiteral("B1"), QStringLiteral("Imported1")}));
    QCOMPARE(list.data(QStringLiteral("wsid6")), QByteArray("x"));
    QVERIFY(data->currentId.isEmpty());
    QCOMPARE(ZelSettings(QStringLiteral("WorkSpaces"))
                 .value(QStringLiteral("LastUsedWSFolder"))
                 .toString(),
             QFileInfo(path).absolutePath());
}

void TestWorkspaceDialogs::exportsWhatIsSelected()
{
    const QString path = folder() + QStringLiteral("/out.zelsw");
    const auto data = sampleData();
    data->list.add({QStringLiteral("myExp"), QStringLiteral("D"), "d"});
    Shown shown(data);
    shown.select({3});
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(shown.table, Qt::Key_Up, Qt::AltModifier);
    shown.select({1, 3});
    {
        FileChoice choice(folder() + QStringLiteral("/out"), true);
        shown.click("Export Workspaces");
        QCOMPARE(choice.title, QStringLiteral("Export Workspaces"));
        QCOMPARE(choice.boxTexts, (QStringList{QStringLiteral("Workspaces exported"),
                                               QStringLiteral("The export succeeded without "
                                                              "errors.")}));
    }
    const auto written = WorkSpaceExchange::read(contents(path));
    QVERIFY(written);
    const QList<DefaultWorkSpaceInfo> expected{
        {QStringLiteral("myExp"), QStringLiteral("D"), "d"},
        {QStringLiteral("Expwsid2"), QStringLiteral("B"), "b"}};
    QCOMPARE(*written, expected);

    const QString missing = folder() + QStringLiteral("/missing/out.zelsw");
    FileChoice choice(missing, true);
    shown.click("Export Workspaces");
    QCOMPARE(choice.boxTexts, (QStringList{QStringLiteral("Write file error"),
                                           QStringLiteral("Failed to write the file ") + missing}));
}

void TestWorkspaceDialogs::tellsWhatFailed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("form");
    const QByteArray good =
        QByteArray::fromBase64(WorkSpaceExchange::write({{one, QStringLiteral("A"), "a"}}));
    const QString error = QStringLiteral("Error");
    const QString refused = QStringLiteral("Could not import workspaces from file %1");
    QTest::newRow("missing") << QByteArray() << QStringLiteral("Error opening file")
                             << QStringLiteral("The file %1 could not be opened");
    QTest::newRow("no Base64") << QByteArray("{\"a\": 1}") << error << refused;
    QTest::newRow("cut off") << good.chopped(1).toBase64() << error << refused;
    QByteArray unequal = good;
    // The list of names is said to be empty, which makes its one name the list of data.
    unequal.replace(QByteArray("\0\0\0\1\0\0\0\2\0A", 10), QByteArray("\0\0\0\0", 4));
    QTest::newRow("unequal lists") << unequal.toBase64() << error << refused;
    QByteArray huge = good;
    huge.replace(4, 4, QByteArray("\xff\xff\xff\xff"));
    QTest::newRow("huge count") << huge.toBase64() << error << refused;
}

void TestWorkspaceDialogs::tellsWhatFailed()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, title);
    QFETCH(QString, form);
    const QString good = writeFile(QStringLiteral("good.zelsw"),
                                   WorkSpaceExchange::write({{one, QStringLiteral("A"), "a"}}));
    const QString bad = text.isEmpty() ? folder() + QStringLiteral("/none.zelsw")
                                       : writeFile(QStringLiteral("bad.zelsw"), text);
    QStringList told;
    const UserInput::DialogAnswer answer([&told](QDialog *dialog) {
        told = {dialog->windowTitle(), qobject_cast<QMessageBox *>(dialog)->text()};
        dialog->reject();
    });
    QCOMPARE(WorkSpaceFiles::readFiles(nullptr, {bad, good}).size(), 1);
    QCOMPARE(told, (QStringList{title, form.arg(bad)}));
}

void TestWorkspaceDialogs::hasAKeyboardMenu()
{
    Shown shown(sampleData());
    shown.select({2});
    QStringList texts;
    QTimer::singleShot(0, this, [&texts] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        if (!menu)
            return;
        for (const QAction *action : menu->actions())
            texts.append(action->text());
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(50, 50));
    QApplication::sendEvent(shown.table->viewport(), &event);
    QCOMPARE(texts, (QStringList{QStringLiteral("Rename"), QStringLiteral("Delete")}));
    QCOMPARE(shown.table->model()->rowCount(), 2);
}

void TestWorkspaceDialogs::namesWhatTakesTheFocus()
{
    WorkSpaceMaintainDialog managing(sampleData());
    WorkSpaceTextDialog naming(QStringLiteral("Add"), QStringLiteral("Name:"), QString());
    for (QDialog *dialog : {static_cast<QDialog *>(&managing), static_cast<QDialog *>(&naming)}) {
        dialog->show();
        int stops = 0;
        for (QWidget *widget : dialog->findChildren<QWidget *>()) {
            if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus))
                continue;
            ++stops;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(accessible && !accessible->text(QAccessible::Name).isEmpty(),
                     widget->metaObject()->className());
        }
        QCOMPARE(stops, dialog == &managing ? 9 : 3);
    }
}

void TestWorkspaceDialogs::survivesTheEndOfItsParent()
{
    auto *dialog = new WorkSpaceMaintainDialog(sampleData());
    dialog->show();
    auto *button = dialog->findChild<QToolButton *>();
    QVERIFY(button);
    QPointer<WorkSpaceMaintainDialog> guard(dialog);
    const UserInput::DialogAnswer answer([dialog](QDialog *chooser) {
        QVERIFY(chooser != dialog);
        delete dialog;
    });
    for (auto *candidate : dialog->findChildren<QToolButton *>()) {
        if (candidate->toolTip() == QStringLiteral("Import Workspaces"))
            button = candidate;
    }
    button->click();
    QVERIFY(!guard);
}

ZEL_TEST_MAIN(TestWorkspaceDialogs)
#include "tst_workspace_dialogs.moc"
