#include "TestCase.h"
#include "UserInput.h"

#include "DirValidator.h"
#include "FileValidator.h"

#include <ZelCore/ZelFileBrowser>
#include <ZelCore/ZelMimeTypes>
#include <ZelCore/showInFolder>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelClickableLineEdit>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelComboLineEdit>
#include <ZelWidgets/ZelDirEdit>
#include <ZelWidgets/ZelFileNameDisplay>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelResources>
#include <ZelWidgets/ZelSearchLineEdit>

#include <QAbstractItemView>
#include <QAccessible>
#include <QClipboard>
#include <QCompleter>
#include <QMenu>
#include <QMimeData>
#include <QToolButton>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

bool shows(QWidget &widget, const QColor &color)
{
    const QImage image = widget.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

/// What a drag and a drop of the data over the display give.
struct DropResult
{
    bool dragAccepted;
    bool dropAccepted;
    QStringList names;
};

DropResult drop(ZelFileNameDisplay &display, const QMimeData &data)
{
    QSignalSpy dropped(&display, &ZelFileNameDisplay::filenameDropped);
    QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QCoreApplication::sendEvent(&display, &enter);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QCoreApplication::sendEvent(&display, &drop);
    DropResult result{enter.isAccepted(), drop.isAccepted(), {}};
    for (const QList<QVariant> &arguments : dropped)
        result.names.append(arguments.first().toString());
    return result;
}

class RecordingBrowser : public ZelFileBrowser
{
public:
    explicit RecordingBrowser(QStringList *shown)
        : shown_(shown)
    {}
    void show(const QString &path) override { shown_->append(path); }

private:
    QStringList *shown_;
};

} // namespace

class TestTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theStyleablePlaceholderGivesWayToTextAndStandardPlaceholder();
    void aWidthInCharactersWidensTheMinimumHint();
    void aComboBoxTurnsWithControlAndTheWheelOnly();
    void aClickOnTheComboTextOpensAndClosesThePopup();
    void aClickableFieldGivesItsCursorBack();
    void aClickableFieldIsPressedByKeyAndAccessibility();
    void theSearchFieldClearsAndKeepsRoomForItsButtons();
    void namesAndPathsAreValidated();
    void aCompletedFolderIsTaken();
    void theFileNameIsShownWithItsPath();
    void dropsGiveOneLocalNameOrNone();
    void theContextMenuCopiesAndShowsThePath();
    void onlyExistingFilesAndFoldersAreShownInTheFolder();
};

void TestTexts::initTestCase()
{
    zelmorawidgets_init_resources();
    IconColorTheme::instance()->buildMap(
        text("[{\"icon_main\": \"#808080\", \"arrow_main\": \"#818181\"}]"));
}

void TestTexts::theStyleablePlaceholderGivesWayToTextAndStandardPlaceholder()
{
    // A blob of ink: antialiased text alone need not reach the full colour.
    const QColor ink(250, 0, 120);
    ZelLineEdit edit;
    edit.resize(200, 40);
    QFont font = edit.font();
    font.setPixelSize(30);
    edit.setFont(font);
    edit.setPlaceholderTextColor(ink);
    QVERIFY(!shows(edit, ink));
    edit.setStyleablePlaceholderText(text("MHHH"));
    QVERIFY(shows(edit, ink));
    edit.setText(text("x"));
    QVERIFY(!shows(edit, ink));
    edit.clear();
    edit.setPlaceholderText(text("standard"));
    QVERIFY(!shows(edit, ink));
}

void TestTexts::aWidthInCharactersWidensTheMinimumHint()
{
    ZelLineEdit edit;
    const int minimum = edit.minimumSizeHint().width();
    const int advance = edit.fontMetrics().horizontalAdvance(u'x');
    QVERIFY(edit.sizeHint().width() > minimum);
    const std::pair<int, int> widths[] = {
        {0, minimum}, {3, minimum}, {4, minimum + advance}, {20, minimum + 17 * advance}};
    for (const auto &[characters, width] : widths) {
        edit.setMinimalTextWidth(characters);
        QCOMPARE(edit.sizeHint().width(), width);
        QCOMPARE(edit.minimumSizeHint(), edit.sizeHint());
    }
    edit.setMinimalTextWidth(INT_MAX);
    QCOMPARE(edit.sizeHint().width(), QWIDGETSIZE_MAX);
    edit.setMinimalTextWidth(-1);
    QCOMPARE(edit.minimumSizeHint().width(), minimum);
}

void TestTexts::aComboBoxTurnsWithControlAndTheWheelOnly()
{
    ZelComboBox combo;
    combo.addItems({text("a"), text("b"), text("c")});
    combo.show();
    QVERIFY(!UserInput::wheel(&combo, -1));
    QCOMPARE(combo.currentIndex(), 0);
    QVERIFY(UserInput::wheel(&combo, -1, Qt::ControlModifier));
    QCOMPARE(combo.currentIndex(), 1);

    // What is filled in when the pop-up is announced is in the list that comes up.
    connect(&combo, &ZelComboBox::aboutToPopup, &combo, [&combo] {
        QVERIFY(!combo.view()->isVisible());
        combo.addItem(text("late"));
    });
    combo.showPopup();
    QVERIFY(combo.view()->isVisible());
    QCOMPARE(combo.count(), 4);
    combo.hidePopup();
}

void TestTexts::aClickOnTheComboTextOpensAndClosesThePopup()
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QWidget window;
        window.setLayoutDirection(direction);
        window.resize(400, 300);
        ZelComboBox combo(&window);
        combo.addItems({text("a"), text("b")});
        combo.setGeometry(20, 20, 200, 30);
        new ZelComboLineEdit(&combo);
        QSignalSpy popups(&combo, &ZelComboBox::aboutToPopup);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QPoint onText(100, 35);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, onText);
        QTRY_VERIFY(combo.view()->isVisible());
        // Not every platform gives the press that closes a pop-up to the window below; what keeps
        // those that do from it is seen on all.
        const QWidget *popup = combo.view()->window();
        QVERIFY(!popup->testAttribute(Qt::WA_NoMouseReplay));
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, onText);
        QVERIFY(popup->testAttribute(Qt::WA_NoMouseReplay));
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, onText);
        QTRY_VERIFY(!combo.view()->isVisible());
        // A press that is given to the window below comes as a new event.
        QCoreApplication::processEvents();
        QCOMPARE(popups.count(), 1);
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, onText);
        QTRY_COMPARE(popups.count(), 2);
        combo.hidePopup();
    }
}

void TestTexts::aClickableFieldGivesItsCursorBack()
{
    const auto hover = [](QWidget &widget) {
        QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(&widget, &enter);
        return QApplication::overrideCursor() != nullptr;
    };
    auto edit = std::make_unique<ZelClickableLineEdit>();
    edit->show();
    QVERIFY(hover(*edit));
    QVERIFY(hover(*edit));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(edit.get(), &leave);
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(hover(*edit));
    edit->hide();
    QVERIFY(!QApplication::overrideCursor());
    edit->show();
    QVERIFY(hover(*edit));
    edit->setEnabled(false);
    QVERIFY(!QApplication::overrideCursor());
    edit->setEnabled(true);
    QVERIFY(hover(*edit));
    edit.reset();
    QVERIFY(!QApplication::overrideCursor());
}

void TestTexts::aClickableFieldIsPressedByKeyAndAccessibility()
{
    ZelClickableLineEdit edit;
    edit.setText(text("scene.png"));
    edit.show();
    QSignalSpy clicked(&edit, &ZelClickableLineEdit::clicked);
    QTest::mouseClick(&edit, Qt::LeftButton);
    QTest::keyClick(&edit, Qt::Key_Space);
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(clicked.count(), 3);
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&edit);
    QCOMPARE(face->role(), QAccessible::Link);
    QCOMPARE(face->text(QAccessible::Name), text("scene.png"));
    face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 4);
    edit.setEnabled(false);
    face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 4);
}

void TestTexts::theSearchFieldClearsAndKeepsRoomForItsButtons()
{
    ZelSearchLineEdit edit;
    edit.resize(240, 30);
    edit.show();
    const QList<QToolButton *> buttons = edit.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 2);
    QToolButton *clear = buttons[0]->isVisible() ? buttons[1] : buttons[0];
    QToolButton *search = buttons[0]->isVisible() ? buttons[0] : buttons[1];
    QTest::keyClicks(&edit, text("lamp"));
    QVERIFY(clear->isVisible());
    QVERIFY(search->geometry().right() < 40 && clear->geometry().left() > 200);
    QVERIFY(edit.minimumWidth() >= 2 * qMax(clear->width(), search->width()) + 2);
    QTest::mouseClick(clear, Qt::LeftButton);
    QVERIFY(edit.text().isEmpty() && !clear->isVisible());
    QTest::keyClicks(&edit, text("lamp"));
    QTest::keyClick(&edit, Qt::Key_Escape);
    QVERIFY(edit.text().isEmpty());

    edit.setLayoutDirection(Qt::RightToLeft);
    QVERIFY(clear->geometry().right() < 40 && search->geometry().left() > 200);

    QMenu menu;
    menu.addAction(text("By name"));
    edit.setMenu(&menu);
    QTimer::singleShot(0, &menu, &QMenu::close);
    QSignalSpy shown(&menu, &QMenu::aboutToShow);
    QTest::keyClick(&edit, Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(shown.count(), 1);
}

void TestTexts::namesAndPathsAreValidated()
{
    struct Row
    {
        QString name;
        bool isFile, isFolder;
    };
    QList<Row> rows{{QString(), true, true},       {text("scene 1.png"), true, true},
                    {text("a/b"), false, true},    {text("a\\b"), false, true},
                    {text("C:\\a"), false, true},  {text(":a"), false, false},
                    {text("C:a:b"), false, false}, {QString(10000, u'a'), true, true}};
    for (const char c : {'?', '*', '"', '|', '<', '>'})
        rows.append({QString(QLatin1Char(c)), false, false});
    const auto expected = [](bool isValid) {
        return isValid ? QValidator::Acceptable : QValidator::Invalid;
    };
    for (Row &row : rows) {
        int position = 0;
        QVERIFY2(FileValidator().validate(row.name, position) == expected(row.isFile) &&
                     DirValidator().validate(row.name, position) == expected(row.isFolder),
                 qPrintable(row.name));
    }
}

void TestTexts::aCompletedFolderIsTaken()
{
    QVERIFY(QDir(folder()).mkdir(text("pictures")));
    writeFile(text("picture.png"), {});
    ZelDirEdit edit(folder() + text("/pictur"));
    edit.show();
    QTest::keyClicks(&edit, text("e?"));
    QCOMPARE(edit.text(), folder() + text("/picture"));
    const auto completions = [&edit] {
        edit.completer()->setCompletionPrefix(edit.text());
        return edit.completer()->completionCount();
    };
    QTRY_COMPARE(completions(), 1);
    Q_EMIT edit.completer()->activated(edit.completer()->currentCompletion());
    QCOMPARE(edit.text(), folder() + text("/pictures"));
}

void TestTexts::theFileNameIsShownWithItsPath()
{
    const QString file = writeFile(text("wood.png"), "x");
    ZelFileNameDisplay display(file, ZelFileNameDisplay::Open | ZelFileNameDisplay::Replace);
    auto *field = display.findChild<QLineEdit *>();
    QCOMPARE(field->text(), text("wood.png"));
    QCOMPARE(field->toolTip(), file);
    QCOMPARE(display.filename(), file);
    const QList<QToolButton *> buttons = display.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 2);
    QSignalSpy open(&display, &ZelFileNameDisplay::openClicked);
    QSignalSpy replace(&display, &ZelFileNameDisplay::replaceClicked);
    for (QToolButton *button : buttons)
        button->click();
    QCOMPARE(open.count(), 1);
    QCOMPARE(replace.count(), 1);
    display.setEnabled(true, false);
    for (QToolButton *button : buttons)
        button->click();
    QCOMPARE(open.count(), 2);
    QCOMPARE(replace.count(), 1);

    const QString odd[] = {text("/no/such/../a\nb.png"), text("/") + QString(10000, u'a'),
                           text("<b>bold</b>")};
    for (const QString &name : odd) {
        display.setFilename(name);
        QCOMPARE(display.filename(), name);
        QVERIFY(field->toolTip().isEmpty());
    }
    display.clearFilename();
    QVERIFY(field->text().isEmpty() && display.path().isEmpty());
}

void TestTexts::dropsGiveOneLocalNameOrNone()
{
    ZelFileNameDisplay display(ZelFileNameDisplay::Open);
    const auto urls = [](const QStringList &addresses) {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> list;
        for (const QString &address : addresses)
            list.append(QUrl(address));
        data->setUrls(list);
        return data;
    };
    const auto one = urls({text("file:///a/wood.png")});
    QCOMPARE(drop(display, *one).names, QStringList(text("/a/wood.png")));
    for (const auto &none : {urls({}), urls({text("file:///a"), text("file:///b")}),
                             urls({text("https://example.org/a.png")})}) {
        const DropResult result = drop(display, *none);
        QVERIFY(!result.dragAccepted && !result.dropAccepted && result.names.isEmpty());
    }
    QMimeData large;
    const QByteArray megabytes(100 * 1024 * 1024, 'a');
    large.setData(text("text/plain"), megabytes);
    large.setData(ZelMimeTypes::TEXTURE, megabytes);
    QVERIFY(!drop(display, large).dragAccepted);

    // The kinds of pictures come before the address, and what can't be a path counts as nothing.
    QMimeData picture;
    picture.setUrls(one->urls());
    picture.setData(ZelMimeTypes::BACKPLATE, "/b/\xc3\xa4.png");
    QCOMPARE(drop(display, picture).names, QStringList(QString::fromUtf8("/b/\xc3\xa4.png")));
    picture.setData(ZelMimeTypes::TEXTURE, QByteArray("/t/\xff.png"));
    picture.setData(ZelMimeTypes::ENVIRONMENT, QByteArray("/e/\0.png", 8));
    QCOMPARE(drop(display, picture).names, QStringList(QString::fromUtf8("/b/\xc3\xa4.png")));

    display.setDropPattern(text("*.jpg;*.PNG"));
    QVERIFY(drop(display, *one).dragAccepted);
    display.setDropPattern(text("*.jpg"));
    QVERIFY(!drop(display, *one).dragAccepted);
}

void TestTexts::theContextMenuCopiesAndShowsThePath()
{
    QStringList shown;
    ZelFileBrowser::setInstance(std::make_unique<RecordingBrowser>(&shown));
    const QString file = writeFile(text("wood.png"), "x");
    ZelFileNameDisplay display(file, ZelFileNameDisplay::Open);
    display.show();
    auto *field = display.findChild<QLineEdit *>();
    const auto trigger = [&](int entry) {
        Q_EMIT field->customContextMenuRequested(QPoint(2, 2));
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        menu->actions().at(entry)->trigger();
        menu->close();
    };
    trigger(0);
    QCOMPARE(QGuiApplication::clipboard()->text(), file);
    trigger(1);
    QCOMPARE(shown, QStringList(file));
    ZelFileBrowser::setInstance(nullptr);
}

void TestTexts::onlyExistingFilesAndFoldersAreShownInTheFolder()
{
    QStringList shown;
    ZelFileBrowser::setInstance(std::make_unique<RecordingBrowser>(&shown));
    const QString file = writeFile(text("a\nb.png"), "x");
    orv::showInFolder(file);
    orv::showInFolder(folder() + text("/missing.png"));
    for (const QString &nothing :
         {QString(), text(":/ui"), text("/no/such/folder/x"), text("/") + QString(10000, u'a'),
          folder() + text("/no/such.png")})
        orv::showInFolder(nothing);
    QCOMPARE(shown, (QStringList{file, folder(), text("/")}));
    ZelFileBrowser::setInstance(nullptr);
    orv::showInFolder(file);
}

ZEL_TEST_MAIN(TestTexts)
#include "tst_texts.moc"
