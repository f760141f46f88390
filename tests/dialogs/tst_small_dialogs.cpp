#include "TestCase.h"

#include "UserInput.h"
#include "ZelCapsLockHint.h"
#include "ZelSecretText.h"

#include <ZelWidgets/ZelAuthenticationDialog>
#include <ZelWidgets/ZelBorderDialog>
#include <ZelWidgets/ZelDeleteItemsDialog>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelPasswordDialog>
#include <ZelWidgets/ZelPushButton>

#include <QDialogButtonBox>
#include <QGraphicsEffect>
#include <QKeyEvent>
#include <QListView>
#include <QVBoxLayout>

#include <limits>

namespace {

const QString secret = QStringLiteral("tr0ub4dor");

QPushButton *button(const QDialog &dialog, QDialogButtonBox::StandardButton which)
{
    return dialog.findChild<QDialogButtonBox *>()->button(which);
}

/// Whether no field holds a text, or would bring one back by an undo.
bool fieldsAreEmpty(const QDialog &dialog)
{
    for (QLineEdit *field : dialog.findChildren<QLineEdit *>()) {
        field->undo();
        if (!field->text().isEmpty() || !field->displayText().isEmpty())
            return false;
    }
    return true;
}

} // namespace

class SmallDialogsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void credentialsAreGivenOnceAndForgotten();
    void okTakesTwoEqualPasswords_data();
    void okTakesTwoEqualPasswords();
    void aPasswordIsForgotten();
    void aSecretSharesNothing();
    void capsLockIsToldWhereThePlatformDoes_data();
    void capsLockIsToldWhereThePlatformDoes();
    void enterDeletesNothing_data();
    void enterDeletesNothing();
    void theItemsAreListed();
    void theShadowIsPaintedOnlyIfItIsOn();
    void theNumbersOfTheShadowAreBounded();
};

void SmallDialogsTest::credentialsAreGivenOnceAndForgotten()
{
    ZelAuthenticationDialog dialog(nullptr);
    const auto fields = dialog.findChildren<QLineEdit *>();
    QCOMPARE(fields.size(), 2);
    QCOMPARE(fields[1]->echoMode(), QLineEdit::Password);
    QString heard;
    connect(&dialog, &QDialog::accepted, this, [&] { heard = dialog.getPassword(); });

    dialog.open();
    UserInput::type(&dialog, QStringLiteral("ada"));
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    UserInput::type(&dialog, secret);
    QCOMPARE(dialog.getPassword(), secret);
    QTest::keyClick(fields[1], Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(heard, secret);
    QCOMPARE(dialog.getUser(), QStringLiteral("ada"));
    QCOMPARE(dialog.getPassword(), secret);
    QVERIFY(fieldsAreEmpty(dialog));

    dialog.open();
    QVERIFY(dialog.getUser().isEmpty() && dialog.getPassword().isEmpty());
    fields[1]->setFocus();
    UserInput::type(&dialog, secret);
    QCOMPARE(fields[1]->text(), secret);
    dialog.close();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(dialog.getPassword().isEmpty());
    QVERIFY(fieldsAreEmpty(dialog));
}

void SmallDialogsTest::okTakesTwoEqualPasswords_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("empty") << QString() << QString() << false;
    QTest::newRow("one only") << secret << QString() << false;
    QTest::newRow("case") << secret << secret.toUpper() << false;
    QTest::newRow("equal") << secret << secret << true;
    QTest::newRow("blanks") << QStringLiteral("  ") << QStringLiteral("  ") << true;
}

void SmallDialogsTest::okTakesTwoEqualPasswords()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    QFETCH(bool, enabled);
    ZelPasswordDialog dialog(nullptr);
    dialog.show();
    const auto fields = dialog.findChildren<ZelLineEdit *>();
    QCOMPARE(fields.size(), 2);
    fields[0]->setFocus();
    UserInput::type(fields[0], first);
    fields[1]->setFocus();
    UserInput::type(fields[1], second);
    QCOMPARE(button(dialog, QDialogButtonBox::Ok)->isEnabled(), enabled);
    QTest::keyClick(fields[1], Qt::Key_Return);
    QCOMPARE(dialog.isVisible(), !enabled);
    QCOMPARE(dialog.password(), first);
}

void SmallDialogsTest::aPasswordIsForgotten()
{
    ZelPasswordDialog dialog(nullptr);
    for (const bool accept : {true, false}) {
        dialog.show();
        QVERIFY(dialog.password().isEmpty());
        QVERIFY(!button(dialog, QDialogButtonBox::Ok)->isEnabled());
        for (ZelLineEdit *field : dialog.findChildren<ZelLineEdit *>()) {
            field->setFocus();
            UserInput::type(field, secret);
        }
        QTest::keyClick(&dialog, accept ? Qt::Key_Return : Qt::Key_Escape);
        QCOMPARE(dialog.password(), accept ? secret : QString());
        QVERIFY(fieldsAreEmpty(dialog));
    }
}

void SmallDialogsTest::aSecretSharesNothing()
{
    const QString given = secret;
    ZelSecretText text;
    text.setText(given);
    const QString taken = text.text();
    text.clear();
    QCOMPARE(taken, QStringLiteral("tr0ub4dor"));
    QCOMPARE(given, QStringLiteral("tr0ub4dor"));
    QVERIFY(text.isEmpty() && text.text().isEmpty());
}

void SmallDialogsTest::capsLockIsToldWhereThePlatformDoes_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<uint>("modifiers");
    QTest::addColumn<int>("state"); // -1: nothing is told
    const QString xcb = QStringLiteral("xcb");
    QTest::newRow("letter, off") << xcb << QEvent::KeyPress << Qt::Key_A << 0x10u << 0;
    QTest::newRow("letter, on") << xcb << QEvent::KeyRelease << Qt::Key_A << 0x12u << 1;
    QTest::newRow("turned on") << xcb << QEvent::KeyPress << Qt::Key_CapsLock << 0u << 1;
    QTest::newRow("turned off") << xcb << QEvent::KeyPress << Qt::Key_CapsLock << 2u << 0;
    QTest::newRow("let go") << xcb << QEvent::KeyRelease << Qt::Key_CapsLock << 2u << -1;
    QTest::newRow("no lock keys") << QStringLiteral("offscreen") << QEvent::KeyPress << Qt::Key_A
                                  << 2u << -1;
}

void SmallDialogsTest::capsLockIsToldWhereThePlatformDoes()
{
    QFETCH(QString, platform);
    QFETCH(QEvent::Type, type);
    QFETCH(Qt::Key, key);
    QFETCH(uint, modifiers);
    QFETCH(int, state);
    const QKeyEvent event(type, key, Qt::NoModifier, 0, 0, modifiers);
    const auto told = ZelCapsLockHint::stateAfter(event, platform);
    QCOMPARE(told ? int(*told) : -1, state);
}

void SmallDialogsTest::enterDeletesNothing_data()
{
    QTest::addColumn<bool>("onDelete");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("result");
    QTest::newRow("Enter") << false << Qt::Key_Return << int(QDialog::Rejected);
    QTest::newRow("Enter on Delete") << true << Qt::Key_Enter << int(QDialog::Rejected);
    QTest::newRow("Space on Delete") << true << Qt::Key_Space << int(QDialog::Accepted);
}

void SmallDialogsTest::enterDeletesNothing()
{
    QFETCH(bool, onDelete);
    QFETCH(Qt::Key, key);
    QFETCH(int, result);
    ZelDeleteItemsDialog dialog(nullptr, {QStringLiteral("a")}, QString(), QString());
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    QCOMPARE(dialog.focusWidget(), button(dialog, QDialogButtonBox::Cancel));
    if (onDelete)
        dialog.findChild<ZelPushButton *>()->setFocus();
    QTest::keyClick(dialog.focusWidget(), key);
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished[0][0].toInt(), result);
}

void SmallDialogsTest::theItemsAreListed()
{
    const QStringList items{QStringLiteral("b & <i>c"), QString(),
                            QStringLiteral("x").repeated(9999)};
    ZelDeleteItemsDialog dialog(nullptr, items, QStringLiteral("title"), QStringLiteral("text"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("title"));
    const auto *view = dialog.findChild<QListView *>();
    QStringList listed;
    for (int row = 0; row < view->model()->rowCount(); ++row)
        listed.append(view->model()->index(row, 0).data().toString());
    QCOMPARE(listed, items);
    QVERIFY(!view->model()->index(0, 0).flags().testFlag(Qt::ItemIsEditable));
    // The longest name doesn't make it wider than the screen.
    QVERIFY(dialog.sizeHint().width() < 800);
}

void SmallDialogsTest::theShadowIsPaintedOnlyIfItIsOn()
{
    ZelBorderDialog dialog(nullptr);
    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *content = new QWidget(&dialog);
    content->setMinimumSize(100, 60);
    layout->addWidget(content);
    QVERIFY(!dialog.isDropShadowEnabled());
    dialog.setShadowBlurRadius(10);
    dialog.setShadowOffsetX(20);
    dialog.setShadowOffsetY(0);
    dialog.setShadowColor(Qt::red);
    dialog.adjustSize();
    const auto count = [&dialog](auto isMeant) {
        const QImage picture = dialog.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        int found = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                found += isMeant(picture.pixelColor(x, y));
        }
        return found;
    };
    const auto isRed = [](const QColor &color) {
        return color.alpha() > 0 && color.red() > 2 * color.green() + 20;
    };
    const QSize plain = dialog.size();
    QCOMPARE(plain, QSize(100, 60));
    QCOMPARE(count(isRed), 0);

    dialog.enableDropShadow(true);
    dialog.adjustSize();
    QVERIFY(dialog.isDropShadowEnabled());
    QCOMPARE(dialog.size(), plain + QSize(30, 20));
    QVERIFY(count(isRed) > 500);
    QCOMPARE(dialog.grab().toImage().pixelColor(0, 0).alpha(), 0);

    dialog.enableDropShadow(false);
    dialog.adjustSize();
    QCOMPARE(dialog.size(), plain);
    QCOMPARE(count(isRed), 0);
}

void SmallDialogsTest::theNumbersOfTheShadowAreBounded()
{
    ZelBorderDialog dialog(nullptr);
    dialog.setShadowBlurRadius(1e30);
    QCOMPARE(dialog.shadowBlurRadius(), 500.0);
    dialog.setShadowBlurRadius(-1);
    QCOMPARE(dialog.shadowBlurRadius(), 0.0);
    dialog.setShadowOffsetX(-1e30);
    QCOMPARE(dialog.shadowOffsetX(), -500.0);
    dialog.setShadowOffsetY(2.5);
    messages().expect(QtWarningMsg, QStringLiteral("no number"));
    dialog.setShadowOffsetY(std::numeric_limits<double>::quiet_NaN());
    QCOMPARE(dialog.shadowOffsetY(), 2.5);
}

ZEL_TEST_MAIN(SmallDialogsTest)
#include "tst_small_dialogs.moc"
