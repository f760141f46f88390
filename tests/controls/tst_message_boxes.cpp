#include "TestCase.h"

#include "UserInput.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelDontShowAgainDialog>
#include <ZelWidgets/ZelMessageBox>
#include <ZelWidgets/ZelMessageDialog>

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace {

const QString showKey = QStringLiteral("ZelDontShowAgainDialog.Test");
const QString choiceKey = QStringLiteral("ZelDontShowAgainDialog.UserChoices.Test");

QTimer *timerOf(const QDialog *dialog, int interval)
{
    for (QTimer *timer : dialog->findChildren<QTimer *>()) {
        if (timer->interval() == interval && timer->isActive())
            return timer;
    }
    return nullptr;
}

void fire(QTimer *timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

QPushButton *buttonOf(QDialog *dialog, QMessageBox::StandardButton which)
{
    return qobject_cast<QPushButton *>(qobject_cast<QMessageBox *>(dialog)->button(which));
}

} // namespace

class MessageBoxesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void theAnswerIsTheButton_data();
    void theAnswerIsTheButton();
    void theDefaultButtonCountsDown();
    void onlyADefaultButtonCountsDown();
    void theBoxIsAsWideAsItsTitle();
    void aBoxThatDiesWithItsParentAnswersNothing();
    void withoutGuiMessagesAreLoggedAndCollected();
    void aScopedModeRestoresTheModeBefore();
    void theTextsOfADialogAreCopied();
    void aMessageDialogAnswers();
    void theDialogRemembers_data();
    void theDialogRemembers();
    void theAnswerIsStored_data();
    void theAnswerIsStored();
    void settingsOfAWrongTypeAreDefaults();
    void aDefaultButtonIsAdded();
};

void MessageBoxesTest::cleanup()
{
    ZelMessageBox::setMode(ZelMessageBox::Show);
    ZelMessageBox::getMessages({});
    TestCase::cleanup();
}

void MessageBoxesTest::theAnswerIsTheButton_data()
{
    using Function = decltype(&ZelMessageBox::information);
    QTest::addColumn<Function>("function");
    QTest::addColumn<int>("icon");
    QTest::newRow("information") << &ZelMessageBox::information << int(QMessageBox::Information);
    QTest::newRow("warning") << &ZelMessageBox::warning << int(QMessageBox::Warning);
    QTest::newRow("critical") << &ZelMessageBox::critical << int(QMessageBox::Critical);
    QTest::newRow("question") << &ZelMessageBox::question << int(QMessageBox::Question);
}

void MessageBoxesTest::theAnswerIsTheButton()
{
    using Function = decltype(&ZelMessageBox::information);
    QFETCH(Function, function);
    QFETCH(int, icon);
    const auto ask = [&](Qt::Key key) {
        const UserInput::DialogAnswer answer([&](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            QCOMPARE(int(box->icon()), icon);
            QCOMPARE(box->text(), QStringLiteral("Text"));
            QCOMPARE(box->detailedText(), QStringLiteral("Details"));
            QVERIFY(!box->windowFlags().testFlag(Qt::MSWindowsFixedSizeDialogHint));
            QTest::keyClick(box, key);
        });
        const auto result = function(nullptr, QStringLiteral("Title"), QStringLiteral("Text"),
                                     QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                     QMessageBox::Discard, 0, QStringLiteral("Details"));
        return answer.finished() ? result : QMessageBox::NoButton;
    };
    QCOMPARE(ask(Qt::Key_Return), QMessageBox::Discard);
    QCOMPARE(ask(Qt::Key_Escape), QMessageBox::Cancel);
}

void MessageBoxesTest::theDefaultButtonCountsDown()
{
    QStringList texts;
    const UserInput::DialogAnswer answer([&](QDialog *dialog) {
        QTimer *second = timerOf(dialog, 1000);
        QTimer *end = timerOf(dialog, 3000);
        QPushButton *button = buttonOf(dialog, QMessageBox::RestoreDefaults);
        if (!second || !end) {
            dialog->reject();
            return;
        }
        const int width = button->width();
        for (int i = 0; i < 3; ++i) {
            fire(second);
            texts.append(button->text().remove(u'&'));
            // A box does not grow any more.
            QVERIFY(button->sizeHint().width() <= width);
        }
        fire(end);
    });
    const auto result = ZelMessageBox::question(
        nullptr, QStringLiteral("Title"), QStringLiteral("Text"),
        QMessageBox::RestoreDefaults | QMessageBox::No, QMessageBox::RestoreDefaults, 3000);
    QVERIFY(answer.finished());
    QCOMPARE(result, QMessageBox::RestoreDefaults);
    QCOMPARE(texts, QStringList({QStringLiteral("Restore Defaults (2s)"),
                                 QStringLiteral("Restore Defaults (1s)"),
                                 QStringLiteral("Restore Defaults (0s)")}));
}

void MessageBoxesTest::onlyADefaultButtonCountsDown()
{
    for (const auto which : {QMessageBox::NoButton, QMessageBox::Cancel}) {
        bool counts = true;
        const UserInput::DialogAnswer answer([&](QDialog *dialog) {
            counts = timerOf(dialog, 3000);
            buttonOf(dialog, QMessageBox::No)->click();
        });
        const auto result =
            ZelMessageBox::question(nullptr, QString(), QStringLiteral("Text"),
                                    QMessageBox::Yes | QMessageBox::No, which, 3000);
        QCOMPARE(result, QMessageBox::No);
        QVERIFY(!counts);
    }
}

void MessageBoxesTest::theBoxIsAsWideAsItsTitle()
{
    const QString title(60, u'W');
    int width = 0;
    int needed = INT_MAX;
    const UserInput::DialogAnswer answer([&](QDialog *dialog) {
        QFont bold = dialog->font();
        bold.setBold(true);
        needed = QFontMetrics(bold).horizontalAdvance(title);
        width = dialog->width();
        for (QWidget *widget : dialog->findChildren<QCheckBox *>())
            QVERIFY(!widget->isVisible());
        dialog->reject();
    });
    ZelMessageBox::information(nullptr, title, QStringLiteral("Text"));
    QVERIFY(answer.finished());
    QVERIFY2(width >= needed, qPrintable(QStringLiteral("%1 < %2").arg(width).arg(needed)));
}

void MessageBoxesTest::aBoxThatDiesWithItsParentAnswersNothing()
{
    auto *parent = new QWidget;
    const UserInput::DialogAnswer answer([&](QDialog *) { delete parent; });
    QCOMPARE(ZelMessageBox::warning(parent, QString(), QStringLiteral("Text"), QMessageBox::Ok,
                                    QMessageBox::Ok, 3000),
             QMessageBox::NoButton);
    QVERIFY(answer.finished());
}

void MessageBoxesTest::withoutGuiMessagesAreLoggedAndCollected()
{
    const auto send = [] {
        const QString title = QStringLiteral("Title");
        QList<QMessageBox::StandardButton> answers;
        answers << ZelMessageBox::critical(nullptr, title, QStringLiteral("c"));
        answers << ZelMessageBox::warning(nullptr, title, QStringLiteral("w"), QMessageBox::Ok,
                                          QMessageBox::Ok);
        answers << ZelMessageBox::question(nullptr, title, QStringLiteral("q"),
                                           QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
        answers << ZelMessageBox::information(nullptr, title, QStringLiteral("i"));
        return answers;
    };
    const QList<QMessageBox::StandardButton> defaults{QMessageBox::NoButton, QMessageBox::Ok,
                                                      QMessageBox::No, QMessageBox::NoButton};
    const auto all = ZelMessageBox::Information | ZelMessageBox::Warning | ZelMessageBox::Critical;
    const QStringList order{QStringLiteral("q"), QStringLiteral("i"), QStringLiteral("w"),
                            QStringLiteral("c")};
    for (const auto types : {all, ZelMessageBox::Types(ZelMessageBox::Warning)}) {
        ZelMessageBox::setMode(ZelMessageBox::NoGui);
        QVERIFY(ZelMessageBox::noGui());
        messages().expect(QtCriticalMsg, QStringLiteral("\"Title\" \"c\""));
        messages().expect(QtWarningMsg, QStringLiteral("\"Title\" \"w\""));
        QCOMPARE(send(), defaults);
        QCOMPARE(ZelMessageBox::getMessages(types), types == all ? order : order.mid(2, 1));
        QVERIFY(ZelMessageBox::getMessages(all).isEmpty());
    }
    QCOMPARE(messages().messages(QtDebugMsg).filter(QStringLiteral("\"q\"")).size(), 2);
    QCOMPARE(messages().messages(QtInfoMsg).filter(QStringLiteral("\"i\"")).size(), 2);

    for (const int silent : {2, -7}) {
        ZelMessageBox::setMode(ZelMessageBox::Mode(silent));
        QCOMPARE(send(), defaults);
        QVERIFY(ZelMessageBox::getMessages(all).isEmpty());
    }
}

void MessageBoxesTest::aScopedModeRestoresTheModeBefore()
{
    ZelMessageBox::setMode(ZelMessageBox::Silent);
    {
        const ZelScopedMessageBoxMode outer(ZelMessageBox::NoGui);
        const ZelScopedMessageBoxMode inner(ZelMessageBox::Show);
        QCOMPARE(ZelMessageBox::getMode(), ZelMessageBox::Show);
    }
    QCOMPARE(ZelMessageBox::getMode(), ZelMessageBox::Silent);
}

void MessageBoxesTest::theTextsOfADialogAreCopied()
{
    const auto copied = [](QWidget *focus) {
        QGuiApplication::clipboard()->clear();
        QTest::keySequence(focus, QKeySequence::Copy);
        return QGuiApplication::clipboard()
            ->text()
            .split(u'\n', Qt::SkipEmptyParts)
            .filter(QRegularExpression(QStringLiteral("[^-]")));
    };
    QStringList lines;
    const UserInput::DialogAnswer answer([&](QDialog *dialog) {
        lines = copied(buttonOf(dialog, QMessageBox::Yes));
        dialog->reject();
    });
    ZelMessageBox::question(nullptr, QStringLiteral("Title"), QStringLiteral("<b>Bold</b> text"),
                            QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, 0,
                            QStringLiteral("Details"));
    QVERIFY(answer.finished());
    QCOMPARE(lines.mid(0, 2), QStringList({QStringLiteral("Title"), QStringLiteral("Bold text")}));
    QVERIFY(lines.at(2).contains(QStringLiteral("Yes")));
    QCOMPARE(lines.last(), QStringLiteral("Details"));

    ZelMessageDialog dialog(nullptr, QStringLiteral("Own"), QStringLiteral("Words"), true,
                            QDialogButtonBox::Ok, true);
    dialog.setButtonName(QDialogButtonBox::Ok, QStringLiteral("&Save && go"));
    dialog.show();
    QCOMPARE(copied(&dialog), QStringList({QStringLiteral("Own"), QStringLiteral("Words"),
                                           QStringLiteral("Save & go")}));
}

void MessageBoxesTest::aMessageDialogAnswers()
{
    ZelMessageDialog dialog(nullptr, QStringLiteral("Title"),
                            QString(400, u'w').append(u' ').repeated(3), true,
                            QDialogButtonBox::Ok | QDialogButtonBox::Cancel, true);
    QVERIFY(dialog.minimumWidth() == 300);
    QVERIFY(!dialog.dontShowAgain());
    dialog.findChild<QCheckBox *>()->click();
    QVERIFY(dialog.dontShowAgain());
    auto *buttons = dialog.findChild<QDialogButtonBox *>();
    dialog.setButtonName(QDialogButtonBox::Save, QStringLiteral("Absent"));
    buttons->button(QDialogButtonBox::Ok)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));

    const ZelMessageDialog plain(nullptr, QStringLiteral("Title"), QStringLiteral("Text"), false,
                                 QDialogButtonBox::Ok, false);
    QVERIFY(plain.dontShowAgain());
}

void MessageBoxesTest::theDialogRemembers_data()
{
    QTest::addColumn<bool>("show");
    QTest::addColumn<int>("choice");
    QTest::addColumn<bool>("remember");
    QTest::addColumn<bool>("force");
    QTest::addColumn<bool>("isShown");
    const int yes = QMessageBox::Yes;
    QTest::newRow("wanted") << true << -1 << false << false << true;
    QTest::newRow("not wanted") << false << yes << false << false << false;
    QTest::newRow("not wanted, no choice") << false << -1 << false << false << false;
    QTest::newRow("forced") << false << yes << false << true << true;
    QTest::newRow("wanted, with a choice") << true << yes << true << false << true;
    QTest::newRow("not wanted, with a choice") << false << yes << true << false << false;
    QTest::newRow("a choice is missing") << false << -1 << true << false << true;
}

void MessageBoxesTest::theDialogRemembers()
{
    QFETCH(bool, show);
    QFETCH(int, choice);
    QFETCH(bool, remember);
    QFETCH(bool, force);
    QFETCH(bool, isShown);
    ZelSettings settings;
    settings.setValue(showKey, show);
    settings.setValue(choiceKey, choice);
    ZelDontShowAgainDialog dialog(QStringLiteral("Test"), QMessageBox::Question,
                                  QStringLiteral("Title"), QStringLiteral("Text"),
                                  QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(dialog.checkBox()->isChecked(), !show);
    dialog.setRememberUserChoice(remember);
    dialog.setForceShow(force);
    const UserInput::DialogAnswer answer(
        [&](QDialog *shown) { buttonOf(shown, QMessageBox::No)->click(); });
    QCOMPARE(dialog.exec(), isShown ? int(QMessageBox::No) : choice);
    QCOMPARE(dialog.wasShown(), isShown);
    QCOMPARE(answer.finished(), isShown);
    QCOMPARE(settings.value(choiceKey).toInt(), isShown ? int(QMessageBox::No) : choice);
    QCOMPARE(settings.value(showKey).toBool(), show);
}

void MessageBoxesTest::theAnswerIsStored_data()
{
    QTest::addColumn<QMessageBox::StandardButtons>("buttons");
    QTest::addColumn<int>("escapeKey");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("isStored");
    const auto yesNo = QMessageBox::Yes | QMessageBox::No;
    QTest::newRow("cancel") << (yesNo | QMessageBox::Cancel) << 0 << int(QMessageBox::Cancel)
                            << false;
    QTest::newRow("no") << yesNo << 0 << int(QMessageBox::No) << true;
    QTest::newRow("chosen key") << (yesNo | QMessageBox::Cancel) << int(QMessageBox::Yes)
                                << int(QMessageBox::Yes) << true;
    QTest::newRow("none") << (QMessageBox::Save | QMessageBox::Open) << 0 << 0 << false;
}

void MessageBoxesTest::theAnswerIsStored()
{
    QFETCH(QMessageBox::StandardButtons, buttons);
    QFETCH(int, escapeKey);
    QFETCH(int, result);
    QFETCH(bool, isStored);
    ZelDontShowAgainDialog dialog(QStringLiteral("Test"), QMessageBox::Question,
                                  QStringLiteral("Title"), QStringLiteral("Text"), buttons);
    if (escapeKey)
        dialog.setEscapeKey(QMessageBox::StandardButton(escapeKey));
    dialog.checkBox()->setChecked(true);
    const UserInput::DialogAnswer answer([](QDialog *shown) { shown->reject(); });
    QCOMPARE(dialog.exec(), result);
    QVERIFY(answer.finished());
    const ZelSettings settings;
    QCOMPARE(dialog.settingsName(), showKey);
    QCOMPARE(settings.hasKey(showKey), isStored);
    QCOMPARE(settings.value(showKey, true).toBool(), !isStored);
    QCOMPARE(settings.value(choiceKey, -1).toInt(), isStored ? result : -1);
}

void MessageBoxesTest::settingsOfAWrongTypeAreDefaults()
{
    ZelSettings settings;
    settings.setValue(showKey, QStringLiteral("false"));
    settings.setValue(choiceKey, QStringLiteral("many"));
    ZelDontShowAgainDialog dialog(QStringLiteral("Test"));
    QCOMPARE(dialog.windowTitle(), QCoreApplication::applicationName());
    dialog.setButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    const UserInput::DialogAnswer answer([](QDialog *shown) { shown->reject(); });
    QCOMPARE(dialog.exec(), int(QMessageBox::Cancel));
    QVERIFY(dialog.wasShown());
}

void MessageBoxesTest::aDefaultButtonIsAdded()
{
    ZelDontShowAgainDialog dialog(QStringLiteral("Test"), QMessageBox::Question,
                                  QStringLiteral("Title"), QStringLiteral("Text"),
                                  QDialogButtonBox::StandardButtons(QDialogButtonBox::Yes));
    dialog.setDefaultButton(QDialogButtonBox::No);
    QVERIFY(dialog.button(QDialogButtonBox::No));
    QCOMPARE(dialog.defaultButton(), dialog.button(QMessageBox::No));
}

ZEL_TEST_MAIN(MessageBoxesTest)
#include "tst_message_boxes.moc"
