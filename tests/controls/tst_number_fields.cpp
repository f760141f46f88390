#include "NumberFields.h"
#include "Rows.h"
#include "UserInput.h"

#include "ZelNumberFieldMenu.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSpinBox>
#include <ZelWidgets/ZelIntegerEdit>

#include <QAccessible>
#include <QClipboard>
#include <QMenu>
#include <QScrollBar>

#include <cfloat>
#include <climits>
#include <cmath>

namespace {

constexpr auto control = Qt::ControlModifier;
constexpr auto shift = Qt::ShiftModifier;

} // namespace

class NumberFieldsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutTypingNothingIsWritten();
    void theProgramChangesInSilence();
    void aUnitConvertsAndGoes();
    void numbersOutsideEveryRangeAreHarmless();
    void theWholeNumberFieldIsAsymmetric();
    void theWheelTurnsWithControlOnly_data();
    void theWheelTurnsWithControlOnly();
    void theKeypadTypesTheLocalesPoint();
    void aDoubleClickSelectsTheNumber();
    void theMenuResetsCopiesAndPastes();
    void assistiveTechnologyReadsAndWrites();
    void aSignalMayDoAnything();
};

void NumberFieldsTest::init()
{
    TestCase::init();
    ZelDoubleEdit::locale = QLocale::c();
    ZelDoubleSpinBox::locale = QLocale::c();
}

void NumberFieldsTest::withoutTypingNothingIsWritten()
{
    QWidget window;
    float number = 0.123456789F;
    int count = 500;
    auto *edit = new ZelDoubleEdit(&window, -1.0, 1.0, &number);
    auto *integerEdit = new ZelIntegerEdit(&window, 0, 100, &count);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QSignalSpy updated(edit, &ZelDoubleEdit::valueUpdated);
    QSignalSpy integerUpdated(integerEdit, &ZelIntegerEdit::valueUpdated);
    QSignalSpy left(edit, &ZelDoubleEdit::signalFocusOut);
    QSignalSpy finished(edit, &QAbstractSpinBox::editingFinished);
    for (int round = 0; round < 2; ++round) {
        edit->setFocus();
        press(edit, Qt::Key_Return);
        press(edit, Qt::Key_Home);
        integerEdit->setFocus();
        press(integerEdit, Qt::Key_Enter);
        number = 5.0F;
        edit->updateValue();
    }
    QCOMPARE(number, 5.0F);
    QCOMPARE(count, 500);
    QCOMPARE(edit->text(), text("1"));
    QCOMPARE(updated.count() + integerUpdated.count(), 0);
    QCOMPARE(left.count(), 2);
    QVERIFY(finished.count() >= 2);
    number = 0.123456789F;
    edit->updateValue();
    press(edit, Qt::Key_Return);
    QVERIFY(sameBits(number, 0.123456789F));
    edit->stepBy(1);
    QCOMPARE(number, 1.0F);
    enter(edit, text("0.5"));
    QCOMPARE(number, 0.5F);
    QCOMPARE(updated.count(), 2);
}

void NumberFieldsTest::theProgramChangesInSilence()
{
    float number = 50.0F;
    ZelDoubleEdit edit(nullptr, 0.0, 100.0, &number);
    QSignalSpy updated(&edit, &ZelDoubleEdit::valueUpdated);
    QSignalSpy changed(&edit, &QDoubleSpinBox::valueChanged);
    edit.setRange(0.0, 10.0);
    QCOMPARE(number, 50.0F);
    QCOMPARE(edit.text(), text("10"));
    edit.setRange(100.0, 0.0);
    QCOMPARE(number, 50.0F);
    edit.setRange(0.0, 100.0);
    QCOMPARE(edit.text(), text("50"));
    number = 20.0F;
    edit.updateValue();
    QCOMPARE(edit.text(), text("20"));
    edit.resetValue();
    QCOMPARE(number, 50.0F);
    QCOMPARE(edit.text(), text("50"));
    edit.setDegreeSuffix();
    QCOMPARE(edit.text(), text("50 °"));
    QCOMPARE(updated.count() + changed.count(), 0);

    ZelDoubleEdit own;
    enter(&own, text("3.25"));
    QCOMPARE(own.getValue(), 3.25F);
}

void NumberFieldsTest::aUnitConvertsAndGoes()
{
    float number = 1.25F;
    auto manager = std::make_unique<ZelUnitManager>();
    manager->setDisplayUnit(Quantity::Length, Unit::Millimeter);
    OpenEdit edit(nullptr, -1e9, 1e9, &number);
    QSignalSpy updated(&edit, &ZelDoubleEdit::valueUpdated);
    edit.setUnit(manager.get());
    QCOMPARE(edit.text(), text("1250 mm"));
    manager->setDisplayUnit(Quantity::Length, Unit::Centimeter);
    QCOMPARE(edit.text(), text("125 cm"));
    edit.setQuantity(Quantity::Area);
    QCOMPARE(edit.text(), text("1.25 m²"));
    edit.setQuantity(Quantity::Length);
    QCOMPARE(updated.count(), 0);
    enter(&edit, text("250"));
    QCOMPARE(number, 2.5F);
    QCOMPARE(edit.valueFromText(text("12 cm")), 12.0);
    QCOMPARE(edit.valueFromText(text("12 mm")), 2.5);
    for (int round = 0; round < 100; ++round) {
        for (const Unit unit : ZelUnitManager::units(Quantity::Length))
            manager->setDisplayUnit(Quantity::Length, unit);
    }
    QCOMPARE(number, 2.5F);
    manager.reset();
    QCOMPARE(edit.text(), text("2.5"));
    enter(&edit, text("4"));
    QCOMPARE(number, 4.0F);
    edit.setUnit(nullptr);
    QCOMPARE(updated.count(), 2);
}

void NumberFieldsTest::numbersOutsideEveryRangeAreHarmless()
{
    for (const float number :
         {std::nanf(""), HUGE_VALF, -HUGE_VALF, FLT_MAX, FLT_TRUE_MIN, -0.0F}) {
        float bound = number;
        ZelDoubleEdit edit(nullptr, -10.0, 10.0, &bound);
        edit.show();
        edit.setFocus();
        press(&edit, Qt::Key_Return);
        edit.clearFocus();
        edit.updateValue();
        edit.setRange(5.0, 5.0);
        edit.setRange(0.0, 1e-320);
        QVERIFY(sameBits(bound, number));
        edit.setRange(-10.0, 10.0);
        enter(&edit, text("2.5"));
        QCOMPARE(bound, 2.5F);
    }
    for (const int number : {INT_MIN, INT_MAX}) {
        int bound = number;
        ZelIntegerEdit edit(nullptr, INT_MIN, INT_MAX, &bound);
        QCOMPARE(edit.value(), number);
        edit.stepBy(number > 0 ? 1 : -1);
        QCOMPARE(bound, number);
        enter(&edit, QString::number(number / 2));
        QCOMPARE(bound, number / 2);
    }
}

void NumberFieldsTest::theWholeNumberFieldIsAsymmetric()
{
    int count = 7;
    ZelIntegerEdit edit(nullptr, 0, 100, &count);
    QSignalSpy updated(&edit, &ZelIntegerEdit::valueUpdated);
    QSignalSpy changed(&edit, &QSpinBox::valueChanged);
    enter(&edit, text("12"));
    QCOMPARE(count, 12);
    QCOMPARE(edit.getValue(), 12.0F);
    QCOMPARE(updated.count(), 1);
    edit.resetValue();
    QCOMPARE(count, 7);
    QCOMPARE(edit.text(), text("12"));
    enter(&edit, text("12"));
    QCOMPARE(count, 7);
    edit.updateValue();
    QCOMPARE(edit.text(), text("7"));
    QCOMPARE(updated.count(), 1);
    QCOMPARE(changed.count(), 2);
}

using WheelRow = std::tuple<Qt::KeyboardModifiers, QStringList>;

void NumberFieldsTest::theWheelTurnsWithControlOnly_data()
{
    using Modifiers = Qt::KeyboardModifiers;
    const QStringList unchanged{text("50"), text("50"), text("50"), text("50"), text("12:00:00")};
    addRows<WheelRow>({
        {"plain", {Modifiers(), unchanged}},
        {"Shift", {Modifiers(shift), unchanged}},
        {"Control",
         {Modifiers(control),
          QStringList{text("49"), text("49"), text("49"), text("40"), text("11:00:00")}}},
        {"Control, Shift",
         {(control | shift),
          QStringList{text("40"), text("50"), text("40"), text("50"), text("02:00:00")}}},
        {"Control, Meta",
         {(control | Qt::MetaModifier),
          QStringList{text("49"), text("50"), text("49"), text("50"), text("11:00:00")}}},
    });
}

void NumberFieldsTest::theWheelTurnsWithControlOnly()
{
    const auto [modifiers, expected] = currentRow<WheelRow>();
    Panel panel;
    QVERIFY(QTest::qWaitForWindowExposed(&panel.area));
    QScrollBar *bar = panel.area.verticalScrollBar();
    for (int i = 0; i < 5; ++i) {
        QAbstractSpinBox *field = panel.fields[i];
        const QString before = field->text();
        bar->setValue(field->y() - 80);
        const int scrolled = bar->value();
        for (QWidget *widget = field; widget; widget = widget->parentWidget()) {
            if (UserInput::wheel(widget, -1.0, modifiers))
                break;
        }
        QCOMPARE(field->text(), expected[i]);
        QCOMPARE(bar->value() > scrolled, field->text() == before);
        QCOMPARE(field->focusPolicy(), Qt::StrongFocus);
    }
    QCOMPARE(QString::number(panel.number), expected[0]);
    QCOMPARE(QString::number(panel.count), expected[1]);
}

void NumberFieldsTest::theKeypadTypesTheLocalesPoint()
{
    ZelDoubleEdit::locale = german;
    ZelDoubleSpinBox::locale = QLocale::c();
    float number = 0.0F;
    ZelDoubleEdit edit(nullptr, 0.0, 10.0, &number);
    ZelDoubleSpinBox box(nullptr);
    for (QAbstractSpinBox *field :
         {static_cast<QAbstractSpinBox *>(&edit), static_cast<QAbstractSpinBox *>(&box)}) {
        const bool swapped = field == &box;
        field->selectAll();
        QTest::keyClicks(field, text("1"));
        press(field, swapped ? Qt::Key_Comma : Qt::Key_Period, Qt::KeypadModifier,
              swapped ? text(",") : text("."));
        QTest::keyClicks(field, text("25"));
        press(field, Qt::Key_Enter, Qt::KeypadModifier);
    }
    QCOMPARE(number, 1.25F);
    QCOMPARE(box.value(), 1.25);
}

void NumberFieldsTest::aDoubleClickSelectsTheNumber()
{
    ZelDoubleSpinBox field(nullptr);
    field.setDegreeSuffix();
    field.setValue(12.5);
    field.show();
    auto *line = field.findChild<QLineEdit *>();
    QTest::mouseDClick(line, Qt::LeftButton, {}, QPoint(8, line->height() / 2));
    QTRY_COMPARE(line->selectedText(), field.cleanText());
    QTest::keyClicks(line, QStringLiteral("3.75"));
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(field.value(), 3.75);
}

void NumberFieldsTest::theMenuResetsCopiesAndPastes()
{
    float number = 1.5F;
    int count = 3;
    QWidget window;
    auto *edit = new ZelDoubleEdit(&window, 0.0, 10.0, &number);
    edit->setDegreeSuffix();
    auto *integerEdit = new ZelIntegerEdit(&window, 0, 10, &count);
    window.show();
    QSignalSpy updated(edit, &ZelDoubleEdit::valueUpdated);
    QSignalSpy integerUpdated(integerEdit, &ZelIntegerEdit::valueUpdated);
    enter(edit, text("4"));
    enter(integerEdit, text("5"));
    for (QAbstractSpinBox *field :
         {static_cast<QAbstractSpinBox *>(edit), static_cast<QAbstractSpinBox *>(integerEdit)}) {
        for (int round = 0; round < 2; ++round) {
            QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), QPoint(5, 5));
            QCoreApplication::sendEvent(field, &event);
            const QPointer<QMenu> menu = field->findChild<QMenu *>();
            QVERIFY(menu && menu->isVisible());
            auto *reset = menu->findChild<QAction *>(QStringLiteral("reset"));
            QVERIFY(reset && reset->isEnabled());
            reset->trigger();
            menu->close();
            QTRY_VERIFY(!menu);
        }
    }
    QCOMPARE(number, 1.5F);
    QCOMPARE(edit->text(), text("1.5 °"));
    QCOMPARE(count, 3);
    QCOMPARE(integerEdit->text(), text("3"));
    QCOMPARE(updated.count(), 2);
    QCOMPARE(integerUpdated.count(), 2);

    QClipboard *clipboard = QGuiApplication::clipboard();
    clipboard->setText(text("6"));
    const std::unique_ptr<QMenu> menu(ZelNumberFieldMenu::forRow(&window, edit, [] {}));
    menu->findChild<QAction *>(QStringLiteral("copy"))->trigger();
    QCOMPARE(clipboard->text(), text("1.5"));
    auto *pasting = menu->findChild<QAction *>(QStringLiteral("paste"));
    for (const auto &[pasted, expected] : {std::pair(" 2.75\n", 2.75F), std::pair("2.75 cm", 2.75F),
                                           std::pair("99", 2.75F), std::pair("3 °", 3.0F)}) {
        clipboard->setText(text(pasted));
        pasting->trigger();
        QCOMPARE(number, expected);
    }
    edit->setEnabled(false);
    clipboard->setText(text("4"));
    pasting->trigger();
    QCOMPARE(number, 3.0F);
}

void NumberFieldsTest::assistiveTechnologyReadsAndWrites()
{
    float number = 1.0F;
    ZelDoubleEdit edit(nullptr, 0.0, 10.0, &number);
    QSignalSpy updated(&edit, &ZelDoubleEdit::valueUpdated);
    edit.setDegreeSuffix();
    QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&edit);
    QCOMPARE(seen->role(), QAccessible::SpinBox);
    seen->valueInterface()->setCurrentValue(7.5);
    QCOMPARE(number, 7.5F);
    QCOMPARE(updated.count(), 1);
    QAccessibleTextInterface *shown = seen->textInterface();
    QCOMPARE(shown->text(0, shown->characterCount()), text("7.5 °"));
}

void NumberFieldsTest::aSignalMayDoAnything()
{
    float number = 1.0F;
    ZelUnitManager manager;
    ZelDoubleEdit edit(nullptr, 0.0, 100.0, &number);
    edit.setUnit(&manager);
    connect(&edit, &ZelDoubleEdit::valueUpdated, this, [&] {
        number = 42.125F;
        manager.setDisplayUnit(Quantity::Length, Unit::Centimeter);
        edit.setRange(0.0, 1e6);
        edit.updateValue();
    });
    enter(&edit, text("5"));
    QCOMPARE(number, 42.125F);
    QCOMPARE(edit.text(), text("4212.5 cm"));

    int count = 1;
    auto *dying = new ZelIntegerEdit(nullptr, 0, 100, &count);
    connect(dying, &ZelIntegerEdit::valueUpdated, dying, &QObject::deleteLater);
    const QPointer<ZelIntegerEdit> guard(dying);
    enter(dying, text("5"));
    QTRY_VERIFY(!guard);
    QCOMPARE(count, 5);

    // A field that dies with a text which is not committed writes nothing.
    {
        ZelDoubleEdit half(nullptr, 0.0, 100.0, &number);
        half.show();
        half.setFocus();
        QTest::keyClicks(&half, text("7"));
    }
    QCOMPARE(number, 42.125F);
}

ZEL_TEST_MAIN(NumberFieldsTest)
#include "tst_number_fields.moc"
