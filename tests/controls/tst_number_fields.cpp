#include "TestCase.h"
#include "UserInput.h"

#include "ZelNumberFieldMenu.h"
#include "ZelNumberText.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSpinBox>
#include <ZelWidgets/ZelIntegerEdit>
#include <ZelWidgets/ZelSpinBox>
#include <ZelWidgets/ZelTimeEdit>

#include <QAccessible>
#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>

namespace {

const QLocale german(QLocale::German, QLocale::Germany);
const QLocale arabic(QLocale::Arabic, QLocale::Egypt);

constexpr auto control = Qt::ControlModifier;
constexpr auto shift = Qt::ShiftModifier;

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

template <typename Field>
struct Open : Field
{
    using Field::Field;
    using Field::textFromValue;
    using Field::valueFromText;
};

using OpenEdit = Open<ZelDoubleEdit>;
using OpenSpinBox = Open<ZelDoubleSpinBox>;

void press(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
           const QString &typed = QString())
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, typed);
        QCoreApplication::sendEvent(widget, &event);
    }
}

/// Types over what the field shows and presses Return; any character can be typed.
void enter(QAbstractSpinBox *field, const QString &typed)
{
    field->selectAll();
    for (const QChar character : typed)
        press(field, Qt::Key_unknown, {}, QString(character));
    press(field, Qt::Key_Return);
}

void paste(QAbstractSpinBox *field, const QString &pasted)
{
    QGuiApplication::clipboard()->setText(pasted);
    field->selectAll();
    field->findChild<QLineEdit *>()->paste();
    press(field, Qt::Key_Return);
}

bool sameBits(float left, float right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

QString shownNumber(const QAbstractSpinBox &field)
{
    return field.text().remove(field.property("suffix").toString());
}

/// A panel that scrolls, with one editor of each kind.
struct Panel
{
    Panel()
    {
        area.setWidget(new QWidget);
        auto *layout = new QVBoxLayout(area.widget());
        for (QAbstractSpinBox *field : fields) {
            layout->addWidget(field);
            layout->addSpacing(100);
        }
        doubles->setValue(50.0);
        integers->setValue(50);
        area.setWidgetResizable(true);
        area.resize(200, 200);
        area.show();
    }
    QScrollArea area;
    float number = 50.0F;
    int count = 50;
    ZelDoubleEdit *edit = new ZelDoubleEdit(nullptr, 0.0, 100.0, &number);
    ZelIntegerEdit *integerEdit = new ZelIntegerEdit(nullptr, 0, 100, &count);
    ZelDoubleSpinBox *doubles = new ZelDoubleSpinBox(nullptr);
    ZelSpinBox *integers = new ZelSpinBox(nullptr);
    ZelTimeEdit *time = new ZelTimeEdit;
    QAbstractSpinBox *fields[5] = {edit, integerEdit, doubles, integers, time};
};

} // namespace

class NumberFieldsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbersBecomeTexts_data();
    void numbersBecomeTexts();
    void theSpinBoxWritesByItsOwnRule();
    void zeroIsStepsAway();
    void typingWhatIsShownStoresIt_data();
    void typingWhatIsShownStoresIt();
    void badTextsChangeNothing_data();
    void badTextsChangeNothing();
    void typedDecimalsStayVisible();
    void groupsAreReadInTheirPlacesOnly();
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

void NumberFieldsTest::numbersBecomeTexts_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<bool>("strip");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("expected");

    const QLocale c = QLocale::c();
    QTest::newRow("fraction") << 2.5 << 3 << true << true << c << text("2.5");
    QTest::newRow("whole") << 2.0 << 3 << true << true << c << text("2");
    QTest::newRow("hundred, no decimals") << 100.0 << 0 << true << true << c << text("100");
    QTest::newRow("tiny negative") << -0.0001 << 3 << true << true << c << text("0");
    QTest::newRow("minus zero") << -0.0 << 3 << true << true << c << text("0");
    QTest::newRow("all zeros") << 2.5 << 3 << true << false << c << text("2.500");
    QTest::newRow("small keeps digits") << 0.00123 << 3 << false << false << c << text("0.00123");
    QTest::newRow("smaller") << 0.000123 << 3 << false << true << c << text("0.000123");
    QTest::newRow("above one") << 1.000123 << 3 << false << true << c << text("1");
    QTest::newRow("denormal float") << double(FLT_TRUE_MIN) << 3 << false << true << c
                                    << text("0.") + QString(44, u'0') + text("14");
    QTest::newRow("large") << 1e22 << 3 << true << true << c << u'1' + QString(22, u'0');
    QTest::newRow("not a number") << std::nan("") << 3 << false << true << c << text("NAN");
    QTest::newRow("infinite") << -HUGE_VAL << 3 << false << true << c << text("-INF");
    QTest::newRow("German") << -1234.5 << 3 << true << true << german << text("-1234,5");
    QTest::newRow("Arabic") << 2.5 << 3 << true << true << arabic << text("٢٫٥");
    QTest::newRow("Arabic zero") << -0.0001 << 3 << true << true << arabic << text("٠");
}

void NumberFieldsTest::numbersBecomeTexts()
{
    QFETCH(double, number);
    QFETCH(int, decimals);
    QFETCH(bool, absolute);
    QFETCH(bool, strip);
    QFETCH(QLocale, locale);
    QFETCH(QString, expected);

    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    QCOMPARE(ZelNumberText::fromNumber(number, {decimals, absolute, strip}, locale), expected);
    ZelDoubleEdit::locale = locale;
    float own = 0.0F;
    OpenEdit edit(nullptr, -DBL_MAX, DBL_MAX, &own);
    edit.setDecimals(decimals);
    edit.setDecimalsIsAbsolute(absolute);
    edit.setStripTailingZeros(strip);
    QCOMPARE(edit.textFromValue(number), expected);
}

void NumberFieldsTest::theSpinBoxWritesByItsOwnRule()
{
    using ZelNumberText::spinBoxText;
    QCOMPARE(spinBoxText(2.5, 4, QLocale::c()), text("2.5"));
    QCOMPARE(spinBoxText(-0.00001, 4, QLocale::c()), text("-0"));
    QCOMPARE(spinBoxText(100.0, 0, QLocale::c()), text("1"));
    QCOMPARE(spinBoxText(0.0, 0, QLocale::c()), QString());
    QCOMPARE(spinBoxText(2.0, 4, german), text("2"));
    OpenSpinBox box(nullptr);
    QCOMPARE(box.decimals(), 4);
    QCOMPARE(box.textFromValue(0.25), text("0.25"));
    QDoubleSpinBox plain;
    plain.setDecimals(4);
    QVERIFY(box.sizeHint().width() >= plain.sizeHint().width());
}

void NumberFieldsTest::zeroIsStepsAway()
{
    OpenSpinBox box(nullptr);
    box.setRange(-10.0, 10.0);
    box.setSingleStep(0.1);
    box.setValue(0.1);
    box.stepBy(-1);
    QVERIFY(std::abs(box.value()) < 1e-9);
    box.setCanBeZero(false);
    box.setDecimals(7);
    box.setValue(0.1);
    box.stepBy(-1);
    QCOMPARE(box.value(), -0.1);
    box.stepBy(1);
    QCOMPARE(box.value(), 0.1);
    QCOMPARE(box.valueFromText(text("0")), 1e-6);
    QCOMPARE(box.valueFromText(text("-0.0000005")), -1e-6);
    QCOMPARE(box.valueFromText(text("0.5")), 0.5);
    enter(&box, text("0"));
    QCOMPARE(box.value(), 1e-6);

    box.setSingleStep(1e-6);
    messages().expect(QtWarningMsg, text("Single step was set unexpectedly low"));
    box.stepBy(-1);
    QCOMPARE(box.value(), 1e-6);
}

void NumberFieldsTest::typingWhatIsShownStoresIt_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<bool>("absolute");
    QTest::addColumn<Unit>("unit");
    const QList<std::pair<const char *, QLocale>> locales{{"C", QLocale::c()},
                                                          {"de", german},
                                                          {"ar", arabic},
                                                          {"fa", QLocale(QLocale::Persian)},
                                                          {"he", QLocale(QLocale::Hebrew)},
                                                          {"sv", QLocale(QLocale::Swedish)}};
    for (const auto &[name, locale] : locales) {
        for (const bool absolute : {true, false}) {
            for (const Unit unit : {Unit::None, Unit::Millimeter, Unit::Foot})
                QTest::addRow("%s %d %d", name, absolute, int(unit)) << locale << absolute << unit;
        }
    }
}

void NumberFieldsTest::typingWhatIsShownStoresIt()
{
    QFETCH(QLocale, locale);
    QFETCH(bool, absolute);
    QFETCH(Unit, unit);

    ZelDoubleEdit::locale = locale;
    ZelUnitManager manager;
    if (unit != Unit::None)
        manager.setDisplayUnit(Quantity::Length, unit);
    for (const float number : {0.0F, 1.0F, -2.5F, 0.1F, 1234.5678F, -0.0001F, 0.000123F, 1e-7F,
                               987654.3F, 16777216.0F, 1e20F, -3.0e38F}) {
        float bound = number;
        ZelDoubleEdit edit(nullptr, -DBL_MAX, DBL_MAX, &bound);
        edit.setDecimalsIsAbsolute(absolute);
        if (unit != Unit::None)
            edit.setUnit(&manager);
        edit.updateValue();
        const QString shown = shownNumber(edit);
        bool readable = false;
        const double typed =
            locale.toDouble(ZelNumberText::readable(shown.trimmed(), locale), &readable);
        QVERIFY2(readable, qPrintable(shown));
        enter(&edit, shown);
        const double expected =
            unit != Unit::None ? manager.convertToCurrent(Quantity::Length, typed) : typed;
        QVERIFY2(bound == static_cast<float>(expected), qPrintable(shown));
        edit.updateValue();
        const QString again = ZelNumberText::readable(shownNumber(edit).trimmed(), locale);
        QCOMPARE(static_cast<float>(locale.toDouble(again)), static_cast<float>(typed));
    }
}

void NumberFieldsTest::badTextsChangeNothing_data()
{
    QTest::addColumn<QString>("bad");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << text("   ");
    QTest::newRow("signs") << text("--5");
    QTest::newRow("mixed signs") << text("+-5");
    QTest::newRow("sign alone") << text("-");
    QTest::newRow("two points") << text("1.2.3");
    QTest::newRow("two suffixes") << text("1.5 mm mm cm");
    QTest::newRow("other unit") << text("1.5 cm");
    QTest::newRow("full width") << text("１２");
    QTest::newRow("Arabic") << text("١٢");
    QTest::newRow("words") << text("twelve");
    QTest::newRow("expression") << text("1+1");
    QTest::newRow("hexadecimal") << text("0x10");
    QTest::newRow("line feeds") << text("1\n2\n3");
    QTest::newRow("null character") << QString(QChar(0));
    QTest::newRow("ten thousand digits") << QString(10000, u'9');
    QTest::newRow("misplaced groups") << text("1,2,3");
    QTest::newRow("lone surrogate") << QString(QChar(0xd800));
}

void NumberFieldsTest::badTextsChangeNothing()
{
    QFETCH(QString, bad);

    Panel panel;
    panel.number = 0.123456789F;
    panel.edit->updateValue();
    ZelUnitManager manager;
    manager.setDisplayUnit(Quantity::Length, Unit::Millimeter);
    panel.edit->setUnit(&manager);
    OpenEdit open(nullptr, -DBL_MAX, DBL_MAX, &panel.number);
    if (bad != QString(10000, u'9'))
        QCOMPARE(open.valueFromText(bad), double(panel.number));
    QStringList before;
    for (QAbstractSpinBox *field : panel.fields)
        before.append(field->text());
    for (QAbstractSpinBox *field : panel.fields) {
        for (const auto &put : {paste, enter}) {
            // Keys are typed one by one, and a part may be a number by itself.
            if (put != enter || bad.trimmed().isEmpty())
                put(field, bad);
        }
    }
    QVERIFY(sameBits(panel.number, 0.123456789F));
    QCOMPARE(panel.count, 50);
    QStringList after;
    for (QAbstractSpinBox *field : panel.fields)
        after.append(field->text());
    QCOMPARE(after, before);
}

void NumberFieldsTest::typedDecimalsStayVisible()
{
    float number = 1.0F;
    OpenEdit edit(nullptr, -1000.0, 1000.0, &number);
    QSignalSpy updated(&edit, &ZelDoubleEdit::valueUpdated);
    enter(&edit, text("1.23456"));
    QCOMPARE(number, 1.23456F);
    QCOMPARE(updated.count(), 1);
    QCOMPARE(edit.text(), text("1.23456"));
    number = 0.000014F;
    edit.updateValue();
    QCOMPARE(edit.text(), text("0.00001"));
    enter(&edit, text("2.5"));
    QCOMPARE(edit.textFromValue(1.0 / 3.0), text("0.33333"));
    edit.setDecimals(2);
    QCOMPARE(edit.textFromValue(1.0 / 3.0), text("0.33"));
    QCOMPARE(edit.valueFromText(text(".123456")), 0.123456);
    QCOMPARE(edit.textFromValue(1.0 / 3.0), text("0.33"));
    QCOMPARE(edit.valueFromText(text("1.") + QString(10000, u'1')), 1.0 + 1.0 / 9.0);
    QVERIFY(edit.textFromValue(1.0 / 3.0).size() < 400);
    edit.setDecimals(INT_MAX);
    QVERIFY(edit.textFromValue(0.1).size() < 400);
    edit.setDecimals(-5);
    QCOMPARE(edit.textFromValue(1.75), text("2"));
    enter(&edit, text("1.123456789012345"));
    QVERIFY(edit.valueFromText(text("12 cm")) == double(number));
}

void NumberFieldsTest::groupsAreReadInTheirPlacesOnly()
{
    ZelDoubleEdit::locale = german;
    ZelDoubleSpinBox::locale = german;
    float number = 7.5F;
    int count = 7;
    ZelDoubleEdit edit(nullptr, -1e6, 1e6, &number);
    ZelIntegerEdit integerEdit(nullptr, 0, 1000000, &count);
    ZelDoubleSpinBox box(nullptr);
    box.setRange(-1e6, 1e6);
    ZelSpinBox integers(nullptr);
    integers.setRange(0, 1000000);
    integers.setLocale(german);
    integerEdit.setLocale(german);
    QAbstractSpinBox *fields[] = {&edit, &integerEdit, &box, &integers};
    for (QAbstractSpinBox *field : fields)
        enter(field, text("1.500"));
    QCOMPARE(number, 1500.0F);
    QCOMPARE(count, 1500);
    QCOMPARE(box.value(), 1500.0);
    QCOMPARE(integers.value(), 1500);
    for (QAbstractSpinBox *field : fields)
        enter(field, text("1.5"));
    QCOMPARE(number, 1500.0F);
    QCOMPARE(count, 1500);
    QCOMPARE(box.value(), 1500.0);
    QCOMPARE(integers.value(), 1500);
    edit.setRange(-10.0, 10.0);
    number = 7.5F;
    edit.updateValue();
    enter(&edit, text("1.5"));
    QCOMPARE(number, 7.5F);
    QCOMPARE(edit.text(), text("7,5"));
    enter(&edit, text("2,75"));
    QCOMPARE(number, 2.75F);
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

void NumberFieldsTest::theWheelTurnsWithControlOnly_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QStringList>("expected");
    using Modifiers = Qt::KeyboardModifiers;
    const QStringList unchanged{text("50"), text("50"), text("50"), text("50"), text("12:00:00")};
    QTest::newRow("plain") << Modifiers() << unchanged;
    QTest::newRow("Shift") << Modifiers(shift) << unchanged;
    QTest::newRow("Control") << Modifiers(control)
                             << QStringList{text("49"), text("49"), text("49"), text("40"),
                                            text("11:00:00")};
    QTest::newRow("Control, Shift")
        << (control | shift)
        << QStringList{text("40"), text("50"), text("40"), text("50"), text("02:00:00")};
    QTest::newRow("Control, Meta")
        << (control | Qt::MetaModifier)
        << QStringList{text("49"), text("50"), text("49"), text("50"), text("11:00:00")};
}

void NumberFieldsTest::theWheelTurnsWithControlOnly()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QStringList, expected);

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
