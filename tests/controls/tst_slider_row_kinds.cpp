#include "Rows.h"
#include "SliderRows.h"

#include "ZelRangeAdjustment.h"

#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDropDownDoubleSliderEdit>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelIntSliderWithIcons>
#include <ZelWidgets/ZelIntegerEdit>
#include <ZelWidgets/ZelIntegerSlider>
#include <ZelWidgets/ZelIntegerSliderEdit>
#include <ZelWidgets/ZelSliderReleaseMemento>
#include <ZelWidgets/ZelSpecificIntegerSliderEdit>
#include <ZelWidgets/ZelTimeEdit>
#include <ZelWidgets/ZelTimeSliderEdit>
#include <ZelWidgets/ZelToolButton>

#include <QLabel>
#include <QSignalSpy>

#include <cmath>
#include <limits>
#include <random>

namespace {

using ZelRangeAdjustment::Method;
using ZelRangeAdjustment::Range;
const Range unset{-7, -7};

} // namespace

class TestSliderRowKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void rangeFollowsTheNumber_data();
    void rangeFollowsTheNumber();
    void anyAdjustedRangeLiesInTheLimits();
    void wholeNumbersNeverOverflow();
    void panelDropsDown();
    void wholeNumberRowLetsItsMaximumGrow();
    void wholeNumberRowTellsTheReleaseAlone();
    void listRowTakesTheClosestEntry();
    void zoomBarSteps();
    void timeRowKeepsItsTime();
    void mementoRemembersARelease();
};

void TestSliderRowKinds::initTestCase()
{
    IconColorTheme::instance()->buildMap(
        QStringLiteral("[{\"icon_main\": \"#808080\", \"arrow_main\": \"#818181\"}]"));
}

void TestSliderRowKinds::init()
{
    TestCase::init();
    ZelDoubleEdit::locale = QLocale::c();
}

using RangeRow = std::tuple<double, bool, double, double, double, double>;

void TestSliderRowKinds::rangeFollowsTheNumber_data()
{
    const double same = std::nan("");
    addRows<RangeRow>({
        {"beyond", {5.0, true, 0.0, 1.0, 0.0, 10.0}},
        {"near the top", {0.99, true, 0.0, 1.0, 0.0, 1.1}},
        {"near the bottom", {0.05, true, 0.0, 1.0, 0.0, 0.1}},
        {"well inside", {0.5, true, 0.0, 1.0, same, same}},
        {"symmetric, below", {-5.0, true, -1.0, 1.0, -10.0, 10.0}},
        {"symmetric, near the bottom", {-0.95, true, -1.0, 1.0, -1.1, 1.1}},
        {"below an uneven range", {-30.0, true, -1.0, 2.0, -60.0, 60.0}},
        {"beyond the limits", {5000.0, true, 0.0, 1.0, 0.0, 100.0}},
        {"whole above one", {0.7, true, 0.0, 0.5, 0.0, 2.0}},
        {"zero outside", {0.0, true, 1.0, 2.0, same, same}},
        {"zero at the bottom", {0.0, true, 0.0, 2.0, same, same}},
        {"too little left", {2e-5, true, 0.0, 1.0, same, same}},
        {"no number", {std::nan(""), true, 0.0, 1.0, same, same}},
        {"infinite", {infinity, false, 0.0, 1.0, same, same}},
        {"twice too large", {1e308, true, 0.0, 1.0, same, same}},
        {"centred on zero", {0.0, false, 0.0, 5.0, -1.0, 1.0}},
        {"centred on three", {3.0, false, 0.0, 5.0, 0.0, 6.0}},
        {"centred below", {-3.0, false, 0.0, 5.0, -6.0, 0.0}},
        {"centred already", {3.0, false, 0.0, 6.0, same, same}},
    });
}

void TestSliderRowKinds::rangeFollowsTheNumber()
{
    const auto [value, grows, minimum, maximum, newMinimum, newMaximum] = currentRow<RangeRow>();
    Range result = unset;
    const bool differs = ZelRangeAdjustment::adjust(value, grows ? Method::Grow : Method::Recentre,
                                                    {minimum, maximum}, {-100, 100}, result);
    QCOMPARE(differs, !std::isnan(newMinimum));
    if (!differs)
        return;
    QVERIFY2(std::abs(result.minimum - newMinimum) < 1e-9,
             qPrintable(QString::number(result.minimum)));
    QVERIFY2(std::abs(result.maximum - newMaximum) < 1e-9,
             qPrintable(QString::number(result.maximum)));
}

void TestSliderRowKinds::anyAdjustedRangeLiesInTheLimits()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> exponent(-320, 308);
    std::uniform_real_distribution<double> mantissa(-1, 1);
    const auto number = [&] {
        return mantissa(random) * std::pow(10.0, exponent(random));
    };
    int adjusted = 0;
    for (int round = 0; round < 20000; ++round) {
        const Range current{number(), number()};
        const Range limits{-std::abs(number()), std::abs(number())};
        Range result = unset;
        const Method method = round % 2 ? Method::Grow : Method::Recentre;
        if (!ZelRangeAdjustment::adjust(number(), method, current, limits, result))
            continue;
        ++adjusted;
        QVERIFY(result.minimum >= limits.minimum && result.maximum <= limits.maximum);
        QVERIFY(result.maximum - result.minimum >= 0.0001 && result != current);
    }
    QVERIFY(adjusted > 1000);
}

void TestSliderRowKinds::wholeNumbersNeverOverflow()
{
    constexpr int most = std::numeric_limits<int>::max();
    constexpr int least = std::numeric_limits<int>::min();
    QCOMPARE(ZelRangeAdjustment::softMaximum(500, 1000), 550);
    QCOMPARE(ZelRangeAdjustment::softMaximum(9, 1000), 9);
    QCOMPARE(ZelRangeAdjustment::softMaximum(most, most), most);
    QCOMPARE(ZelRangeAdjustment::softMaximum(least, most), least);
    QCOMPARE(ZelRangeAdjustment::closest({1, 2, 4, 8}, 3), 1);
    QCOMPARE(ZelRangeAdjustment::closest({1, 2, 4, 8}, most), 3);
    QCOMPARE(ZelRangeAdjustment::closest({least, most}, -1), 0);
    QCOMPARE(ZelRangeAdjustment::closest({least, most}, 0), 1);
    QCOMPARE(ZelRangeAdjustment::closest({}, 3), -1);
}

void TestSliderRowKinds::panelDropsDown()
{
    float value = 0.25F;
    ZelDropDownDoubleSliderEdit row(QStringLiteral("Light"), 0, 1, &value, 0, 100, nullptr, true);
    auto *inner = new QLabel(QStringLiteral("Inside"));
    row.addWidget(inner, 0, {});
    row.setAutoScaleRange(true, true);
    QSignalSpy visible(&row, &ZelDropDownDoubleSliderEdit::widgetVisible);
    show(&row);
    QVERIFY(!inner->isVisible());
    const int closed = row.sizeHint().height();
    auto *caption = row.findChild<ZelFlipLabel *>();
    QTest::mouseClick(caption, Qt::LeftButton);
    QVERIFY(inner->isVisible() && caption->isOpen());
    QVERIFY(row.sizeHint().height() >= closed + inner->sizeHint().height());
    row.dropDownToggle();
    QVERIFY(!inner->isVisible() && !caption->isOpen());
    QCOMPARE(visible, (QList<QVariantList>{{true}, {false}}));
    typeInto(editOf(&row), QStringLiteral("5"));
    QCOMPARE(row.sliderMaximum(), 10.0);
    QCOMPARE(sliderOf(&row)->value(), 500);

    ZelDropDownDoubleSliderEdit plain(QStringLiteral("Light"), 0, 1, &value, 0, 1, nullptr, false);
    plain.dropDownToggle();
    QLabel stray;
    messages().expect(QtWarningMsg, QStringLiteral("The row has no panel to add a widget to."));
    plain.addWidget(&stray, 0, {});
    QVERIFY(!stray.parent());
}

void TestSliderRowKinds::wholeNumberRowLetsItsMaximumGrow()
{
    int value = 500;
    ZelIntegerSliderEdit high(QStringLiteral("Samples"), 0, 100, &value, 0, 1000);
    QCOMPARE(high.sliderWdg()->maximum(), 550);

    value = 5;
    ZelIntegerSliderEdit row(QStringLiteral("Samples"), 0, 100, &value, 0, 1000);
    QSignalSpy updates(&row, &ZelIntegerSliderEdit::valueUpdated);
    ZelIntegerSlider *slider = row.sliderWdg();
    slider->setSliderDown(true);
    slider->setSliderPosition(100);
    QCOMPARE(updates.size(), 1);
    slider->setSliderDown(false);
    QCOMPARE(slider->maximum(), 110);
    QCOMPARE(slider->value(), 100);
    QCOMPARE(value, 100);
    QCOMPARE(updates.size(), 1);
    auto *edit = row.findChild<ZelIntegerEdit *>();
    QCOMPARE(edit->value(), 100);

    QSignalSpy edits(&row, &ZelIntegerSliderEdit::editUpdated);
    QSignalSpy returns(&row, &ZelIntegerSliderEdit::returnPressed);
    typeInto(edit, QStringLiteral("990"));
    QCOMPARE(slider->value(), 110);
    QCOMPARE(value, 990);
    QCOMPARE(edits.size(), 1);
    QCOMPARE(returns.size(), 1);
    row.slotMaxUpdateDelayed();
    QTRY_COMPARE(slider->maximum(), 1000);
    QCOMPARE(slider->value(), 990);
    row.setRange(0, 20);
    QCOMPARE(value, 990);
    row.resetValue();
    row.updateValue();
    QCOMPARE(value, 5);
    QCOMPARE(slider->value(), 5);
    QCOMPARE(updates.size(), 2);
}

void TestSliderRowKinds::wholeNumberRowTellsTheReleaseAlone()
{
    int value = 5;
    const std::unique_ptr<ZelIntegerSliderEdit> row(
        ZelIntegerSliderEdit::createFixed(QStringLiteral("Samples"), 0, 100, &value));
    row->setSliderTracking(false);
    QSignalSpy updates(row.get(), &ZelIntegerSliderEdit::valueUpdated);
    QSignalSpy states(row.get(), &ZelIntegerSliderEdit::visibleStateChanged);
    row->sliderWdg()->setSliderDown(true);
    row->sliderWdg()->setSliderPosition(40);
    QCOMPARE(value, 40);
    QVERIFY(updates.isEmpty());
    row->sliderWdg()->setSliderDown(false);
    QCOMPARE(updates.size(), 1);
    row->sliderWdg()->setValue(50);
    QCOMPARE(updates.size(), 2);
    row->setVisible(false);
    const auto hidden = states.size();
    row->setVisible(true);
    row->setVisible(true);
    QCOMPARE(states.size(), hidden + 1);
}

void TestSliderRowKinds::listRowTakesTheClosestEntry()
{
    int value = 2;
    ZelSpecificIntegerSliderEdit row(QStringLiteral("Size"), {1, 2, 4, 8}, 1, &value, 2);
    QSignalSpy updates(&row, &ZelSpecificIntegerSliderEdit::valueUpdated);
    auto *slider = row.findChild<ZelIntegerSlider *>();
    auto *edit = row.findChild<ZelIntegerEdit *>();
    slider->setValue(3);
    QCOMPARE(value, 8);
    QCOMPARE(edit->value(), 8);
    typeInto(edit, QStringLiteral("3"));
    QCOMPARE(value, 2);
    QCOMPARE(slider->value(), 1);
    QCOMPARE(edit->text(), QStringLiteral("2"));
    QCOMPARE(updates.size(), 2);
    value = 100;
    row.updateValue();
    QCOMPARE(value, 8);
    QCOMPARE(slider->value(), 3);
    QTest::mouseDClick(row.findChild<QLabel *>(), Qt::LeftButton);
    QCOMPARE(value, 2);
    messages().expect(QtWarningMsg, QStringLiteral("No values for the row \"None\""));
    const ZelSpecificIntegerSliderEdit none(QStringLiteral("None"), {}, 5, &value, 1);
}

void TestSliderRowKinds::zoomBarSteps()
{
    int value = 3;
    ZelIntSliderWithIcons bar(nullptr, 0, 10, &value);
    QSignalSpy updates(&bar, &ZelIntSliderWithIcons::valueUpdated);
    bar.setSingleStep(4);
    bar.zoomInButton()->click();
    bar.zoomInButton()->click();
    QCOMPARE(value, 10);
    bar.zoomOutButton()->click();
    QCOMPARE(value, 6);
    QCOMPARE(bar.valuePercentage(), 0.6F);
    bar.setValuePercentage(0.59F);
    QCOMPARE(value, 5);
    bar.setValuePercentage(std::nanf(""));
    QCOMPARE(updates.size(), 4);
    bar.setRange(5, 5);
    QCOMPARE(bar.valuePercentage(), 0.0F);
}

void TestSliderRowKinds::timeRowKeepsItsTime()
{
    ZelTimeSliderEdit row(QStringLiteral("Time"), nullptr);
    auto *edit = row.findChild<ZelTimeEdit *>();
    QSignalSpy updates(&row, &ZelTimeSliderEdit::valueUpdated);
    QCOMPARE(row.hours(), 12.0F);
    QCOMPARE(edit->time(), QTime(12, 0));
    row.setHour(18.5F);
    QCOMPARE(edit->time(), QTime(18, 30));
    row.setTime(QTime(5, 6, 7, 250));
    QCOMPARE(row.time(), ZelTime{0.25});
    row.setTime(ZelTime{3600});
    row.updateValue(1e9F);
    QCOMPARE(row.time().seconds, 86399.0);
    row.setRangeHours(6, 12);
    QCOMPARE(row.time().seconds, 86399.0);
    QVERIFY(updates.isEmpty());
    connect(&row, &ZelTimeSliderEdit::valueUpdated, &row, [&row] { row.updateValue(5); });
    edit->setTime(QTime(9, 0));
    QCOMPARE(row.time().seconds, 32400.0);
    QCOMPARE(sliderOf(&row)->value(), 500);
    sliderOf(&row)->setValue(0);
    QCOMPARE(edit->time(), QTime(6, 0));
    QCOMPARE(updates.size(), 2);
    row.resetValue();
    QCOMPARE(edit->time(), QTime(12, 0));
}

void TestSliderRowKinds::mementoRemembersARelease()
{
    float real = 0;
    int whole = 0;
    const auto row = makeRow(&real);
    ZelIntegerSliderEdit other(QStringLiteral("Samples"), 0, 9, &whole, 0, 9);
    ZelSliderReleaseMemento memento;
    memento.addSlider(row.get());
    memento.addSlider(&other);
    int acted = 0;
    const auto act = [&] {
        acted += memento.retrieveReleaseState();
    };
    connect(row.get(), &Row::valueUpdated, this, act);
    connect(&other, &ZelIntegerSliderEdit::valueUpdated, this, act);
    const QList<QSlider *> sliders{sliderOf(row.get()), other.sliderWdg()};
    for (QSlider *slider : sliders) {
        slider->setSliderDown(true);
        slider->setSliderPosition(5);
        slider->setSliderPosition(6);
        slider->setSliderDown(false);
    }
    QCOMPARE(acted, 2);
    QVERIFY(!memento.retrieveReleaseState());
}

ZEL_TEST_MAIN(TestSliderRowKinds)
#include "tst_slider_row_kinds.moc"
