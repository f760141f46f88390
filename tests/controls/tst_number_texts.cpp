#include "NumberFields.h"
#include "Rows.h"

#include "ZelNumberText.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSpinBox>
#include <ZelWidgets/ZelIntegerEdit>
#include <ZelWidgets/ZelSpinBox>

#include <cfloat>
#include <climits>
#include <cmath>

namespace {

const QLocale arabic(QLocale::Arabic, QLocale::Egypt);
using OpenSpinBox = Open<ZelDoubleSpinBox>;

QString shownNumber(const QAbstractSpinBox &field)
{
    return field.text().remove(field.property("suffix").toString());
}

} // namespace

class NumberTextsTest : public TestCase
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
};

void NumberTextsTest::init()
{
    TestCase::init();
    ZelDoubleEdit::locale = QLocale::c();
    ZelDoubleSpinBox::locale = QLocale::c();
}

using Writing = std::tuple<double, int, bool, bool, QLocale, Text>;

void NumberTextsTest::numbersBecomeTexts_data()
{
    const QLocale c = QLocale::c();
    addRows<Writing>({
        {"fraction", {2.5, 3, true, true, c, "2.5"}},
        {"whole", {2.0, 3, true, true, c, "2"}},
        {"hundred, no decimals", {100.0, 0, true, true, c, "100"}},
        {"tiny negative", {-0.0001, 3, true, true, c, "0"}},
        {"minus zero", {-0.0, 3, true, true, c, "0"}},
        {"all zeros", {2.5, 3, true, false, c, "2.500"}},
        {"small keeps digits", {0.00123, 3, false, false, c, "0.00123"}},
        {"smaller", {0.000123, 3, false, true, c, "0.000123"}},
        {"above one", {1.000123, 3, false, true, c, "1"}},
        {"denormal float",
         {double(FLT_TRUE_MIN), 3, false, true, c, text("0.") + QString(44, u'0') + text("14")}},
        {"large", {1e22, 3, true, true, c, text("1") + QString(22, u'0')}},
        {"not a number", {std::nan(""), 3, false, true, c, "NAN"}},
        {"infinite", {-HUGE_VAL, 3, false, true, c, "-INF"}},
        {"German", {-1234.5, 3, true, true, german, "-1234,5"}},
        {"Arabic", {2.5, 3, true, true, arabic, "٢٫٥"}},
        {"Arabic zero", {-0.0001, 3, true, true, arabic, "٠"}},
    });
}

void NumberTextsTest::numbersBecomeTexts()
{
    auto [number, decimals, absolute, strip, locale, expected] = currentRow<Writing>();
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

void NumberTextsTest::theSpinBoxWritesByItsOwnRule()
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

void NumberTextsTest::zeroIsStepsAway()
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

void NumberTextsTest::typingWhatIsShownStoresIt_data()
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

void NumberTextsTest::typingWhatIsShownStoresIt()
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

void NumberTextsTest::badTextsChangeNothing_data()
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

void NumberTextsTest::badTextsChangeNothing()
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

void NumberTextsTest::typedDecimalsStayVisible()
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

void NumberTextsTest::groupsAreReadInTheirPlacesOnly()
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

ZEL_TEST_MAIN(NumberTextsTest)
#include "tst_number_texts.moc"
