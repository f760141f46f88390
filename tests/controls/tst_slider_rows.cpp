#include "TestCase.h"
#include "UserInput.h"

#include "ZelRangeAdjustment.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSlider>
#include <ZelWidgets/ZelDoubleSliderEdit>
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

#include <QAccessible>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

using ZelRangeAdjustment::Method;
using ZelRangeAdjustment::Range;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const Range unset{-7, -7};

using Row = ZelDoubleSliderEdit;

std::unique_ptr<Row> makeRow(float *value, double minimum = 0, double maximum = 1,
                             float limitMinimum = 0, float limitMaximum = 100)
{
    return std::make_unique<Row>(QStringLiteral("Radius"), minimum, maximum, value, limitMinimum,
                                 limitMaximum, nullptr, nullptr, false);
}

ZelDoubleEdit *editOf(QWidget *row)
{
    return row->findChild<ZelDoubleEdit *>();
}

ZelDoubleSlider *sliderOf(QWidget *row)
{
    return row->findChild<ZelDoubleSlider *>();
}

void typeInto(QAbstractSpinBox *field, const QString &text)
{
    field->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

void show(QWidget *widget)
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget));
}

class PaintCount : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

class TestSliderRows : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void rangeFollowsTheNumber_data();
    void rangeFollowsTheNumber();
    void anyAdjustedRangeLiesInTheLimits();
    void wholeNumbersNeverOverflow();
    void rowIsLaidOutAsAsked_data();
    void rowIsLaidOutAsAsked();
    void fieldAndSliderKeepInStep();
    void programsNumberIsShownWithoutASignal();
    void numbersChangedInEverySignalAreKept();
    void adjustmentWaitsForTheHandle();
    void autoScalingStartsWithTheNextNumber();
    void rangesAreUnited();
    void unitSwitchesRestoreEveryNumber();
    void resetIsOfferedToTheUser();
    void unchangedNumberIsNotRepainted();
    void compactFieldIsAsLowAsOneWithASheet();
    void rowMayDieAnyTime();
    void panelDropsDown();
    void wholeNumberRowLetsItsMaximumGrow();
    void wholeNumberRowTellsTheReleaseAlone();
    void listRowTakesTheClosestEntry();
    void zoomBarSteps();
    void timeRowKeepsItsTime();
    void mementoRemembersARelease();
    void typingWhatIsShownKeepsIt();
    void assistiveTechnologyReadsTheRow();
};

void TestSliderRows::initTestCase()
{
    IconColorTheme::instance()->buildMap(
        QStringLiteral("[{\"icon_main\": \"#808080\", \"arrow_main\": \"#818181\"}]"));
}

void TestSliderRows::init()
{
    TestCase::init();
    ZelDoubleEdit::locale = QLocale::c();
}

void TestSliderRows::rangeFollowsTheNumber_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("grows");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("newMinimum");
    QTest::addColumn<double>("newMaximum");

    const double same = std::nan("");
    QTest::newRow("beyond") << 5.0 << true << 0.0 << 1.0 << 0.0 << 10.0;
    QTest::newRow("near the top") << 0.99 << true << 0.0 << 1.0 << 0.0 << 1.1;
    QTest::newRow("near the bottom") << 0.05 << true << 0.0 << 1.0 << 0.0 << 0.1;
    QTest::newRow("well inside") << 0.5 << true << 0.0 << 1.0 << same << same;
    QTest::newRow("symmetric, below") << -5.0 << true << -1.0 << 1.0 << -10.0 << 10.0;
    QTest::newRow("symmetric, near the bottom") << -0.95 << true << -1.0 << 1.0 << -1.1 << 1.1;
    QTest::newRow("below an uneven range") << -30.0 << true << -1.0 << 2.0 << -60.0 << 60.0;
    QTest::newRow("beyond the limits") << 5000.0 << true << 0.0 << 1.0 << 0.0 << 100.0;
    QTest::newRow("whole above one") << 0.7 << true << 0.0 << 0.5 << 0.0 << 2.0;
    QTest::newRow("zero outside") << 0.0 << true << 1.0 << 2.0 << same << same;
    QTest::newRow("zero at the bottom") << 0.0 << true << 0.0 << 2.0 << same << same;
    QTest::newRow("too little left") << 2e-5 << true << 0.0 << 1.0 << same << same;
    QTest::newRow("no number") << std::nan("") << true << 0.0 << 1.0 << same << same;
    QTest::newRow("infinite") << infinity << false << 0.0 << 1.0 << same << same;
    QTest::newRow("twice too large") << 1e308 << true << 0.0 << 1.0 << same << same;
    QTest::newRow("centred on zero") << 0.0 << false << 0.0 << 5.0 << -1.0 << 1.0;
    QTest::newRow("centred on three") << 3.0 << false << 0.0 << 5.0 << 0.0 << 6.0;
    QTest::newRow("centred below") << -3.0 << false << 0.0 << 5.0 << -6.0 << 0.0;
    QTest::newRow("centred already") << 3.0 << false << 0.0 << 6.0 << same << same;
}

void TestSliderRows::rangeFollowsTheNumber()
{
    QFETCH(double, value);
    QFETCH(bool, grows);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, newMinimum);
    QFETCH(double, newMaximum);
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

void TestSliderRows::anyAdjustedRangeLiesInTheLimits()
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

void TestSliderRows::wholeNumbersNeverOverflow()
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

void TestSliderRows::rowIsLaidOutAsAsked_data()
{
    QTest::addColumn<bool>("isHorizontal");
    QTest::addColumn<bool>("hasExtra");
    QTest::newRow("column") << false << false;
    QTest::newRow("column with extras") << false << true;
    QTest::newRow("line") << true << false;
    QTest::newRow("line with extras") << true << true;
}

void TestSliderRows::rowIsLaidOutAsAsked()
{
    QFETCH(bool, isHorizontal);
    QFETCH(bool, hasExtra);
    float value = 0.25F;
    const auto button = [&] {
        auto *widget = hasExtra ? new QWidget : nullptr;
        if (widget)
            widget->setFixedSize(16, 16);
        return widget;
    };
    QWidget *trailing = button();
    QWidget *leading = button();
    Row row(QStringLiteral("Radius"), 0, 1, &value, 0, 100, trailing, leading, isHorizontal);
    row.resize(400, row.sizeHint().height());
    show(&row);
    const auto *label = row.findChild<QLabel *>();
    const QRect slider = sliderOf(&row)->geometry();
    const QRect edit = editOf(&row)->geometry();
    QCOMPARE(label->x(), 0);
    QCOMPARE(edit.width(), 80);
    QCOMPARE(row.sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(int(sliderOf(&row)->focusPolicy()), 14);
    if (isHorizontal) {
        QCOMPARE(slider.left() - label->geometry().right() - 1, 5);
        const QRect next = hasExtra ? leading->geometry() : edit;
        QCOMPARE(next.left() - slider.right() - 1, 2);
    } else {
        QCOMPARE(slider.left(), 0);
        QCOMPARE(slider.width(), row.width());
        QVERIFY(slider.top() > edit.bottom());
    }
    if (hasExtra) {
        QCOMPARE(edit.left() - leading->geometry().right() - 1, 5);
        QCOMPARE(trailing->x() - edit.right() - 1, 2);
        QCOMPARE(trailing->geometry().right(), row.rect().right());
    }
}

void TestSliderRows::fieldAndSliderKeepInStep()
{
    float value = 0.25F;
    const auto row = makeRow(&value);
    QSignalSpy updates(row.get(), &Row::valueUpdated);
    sliderOf(row.get())->setValue(500);
    QCOMPARE(value, 0.5F);
    QCOMPARE(editOf(row.get())->text(), QStringLiteral("0.5"));
    QCOMPARE(updates, QList<QVariantList>{{false}});
    typeInto(editOf(row.get()), QStringLiteral("0.75"));
    QCOMPARE(value, 0.75F);
    QCOMPARE(sliderOf(row.get())->value(), 750);
    QCOMPARE(updates.takeLast(), QVariantList{true});
    typeInto(editOf(row.get()), QStringLiteral("60"));
    QCOMPARE(value, 60.0F);
    QCOMPARE(sliderOf(row.get())->value(), 1000);
    QCOMPARE(row->sliderMaximum(), 1.0);
    QCOMPARE(updates.size(), 2);
}

void TestSliderRows::programsNumberIsShownWithoutASignal()
{
    float value = 0.25F;
    const auto row = makeRow(&value);
    QSignalSpy updates(row.get(), &Row::valueUpdated);
    QSignalSpy texts(editOf(row.get()), &QDoubleSpinBox::valueChanged);
    QSignalSpy positions(sliderOf(row.get()), &QSlider::valueChanged);
    value = 0.5F;
    row->updateValue();
    QCOMPARE(sliderOf(row.get())->value(), 500);
    messages().expect(QtDebugMsg,
                      QStringLiteral("Slider got value out of range. Check your limits."));
    row->updateValue(150.0F);
    QCOMPARE(value, 150.0F);
    QCOMPARE(sliderOf(row.get())->value(), 1000);
    row->setLimits(0, 10);
    row->setRange(-1, 1);
    QCOMPARE(value, 150.0F);
    value = 0;
    row->updateValue();
    row->resetValue();
    QCOMPARE(value, 0.25F);
    QCOMPARE(sliderOf(row.get())->value(), 500);
    QCOMPARE(editOf(row.get())->text(), QStringLiteral("0.25"));
    QVERIFY(updates.isEmpty() && texts.isEmpty() && positions.isEmpty());

    // A change of how numbers are written shows with the next update, the same number or not.
    row->setDecimals(1);
    value = 0.25F;
    row->updateValue();
    QVERIFY(editOf(row.get())->text() != QStringLiteral("0.25"));
    Row own(QStringLiteral("Own"), 0.5, 1, nullptr, 0, 1, nullptr, nullptr, false);
    QCOMPARE(own.value(), 0.5F);
}

void TestSliderRows::numbersChangedInEverySignalAreKept()
{
    float value = 0.25F;
    const auto row = makeRow(&value);
    row->setAutoScaleRange(true, true);
    float written = 3;
    const auto write = [&] {
        value = written;
        row->updateValue();
        row->updateValue(4.0F);
        written += 1;
    };
    connect(row.get(), &Row::valueUpdated, this, write);
    sliderOf(row.get())->setValue(900);
    QCOMPARE(value, 3.0F);
    typeInto(editOf(row.get()), QStringLiteral("0.5"));
    QCOMPARE(value, 4.0F);
    row->updateValue();
    QCOMPARE(editOf(row.get())->text(), QStringLiteral("4"));
    row->disconnect(this);

    for (const auto signal : {&Row::beforeAdjustRange, &Row::sliderPressed, &Row::sliderReleased}) {
        const auto connection = connect(row.get(), signal, this, [&] { value = 7; });
        value = 0.5F;
        sliderOf(row.get())->setSliderDown(true);
        sliderOf(row.get())->setSliderDown(false);
        QCOMPARE(value, 7.0F);
        disconnect(connection);
    }
}

void TestSliderRows::adjustmentWaitsForTheHandle()
{
    float value = 0.5F;
    const auto row = makeRow(&value);
    row->setAutoScaleRange(true, true);
    QSignalSpy before(row.get(), &Row::beforeAdjustRange);
    sliderOf(row.get())->setSliderDown(true);
    sliderOf(row.get())->setSliderPosition(1000);
    row->adjustSliderRange();
    QVERIFY(before.isEmpty());
    QCOMPARE(row->sliderMaximum(), 1.0);
    sliderOf(row.get())->setSliderDown(false);
    QCOMPARE(row->sliderMaximum(), 1.1);
    QCOMPARE(value, 1.0F);
    QCOMPARE(before.size(), 1);

    row->adjustSliderRangeDelayed();
    row->adjustSliderRangeDelayed();
    QCOMPARE(before.size(), 1);
    QTRY_COMPARE(before.size(), 2);
}

void TestSliderRows::autoScalingStartsWithTheNextNumber()
{
    float value = 5;
    const auto row = makeRow(&value);
    QSignalSpy before(row.get(), &Row::beforeAdjustRange);
    row->setAutoScaleRange(true, true);
    QCOMPARE(before.size(), 1);
    QCOMPARE(row->sliderMaximum(), 1.0);
    row->updateValue();
    QCOMPARE(row->sliderMaximum(), 10.0);
    QCOMPARE(sliderOf(row.get())->value(), 500);
    row->setLimits(0, 6);
    QCOMPARE(row->sliderMaximum(), 10.0);
    value = 5.9F;
    row->setAutoScaleRange(true, false);
    row->updateValue();
    QCOMPARE(row->sliderMaximum(), 6.0);
    row->adjustSliderRange();
    double minimum = 1;
    double maximum = 2;
    QVERIFY(!row->computeAdjustedRange(infinity, minimum, maximum));
    QVERIFY(row->computeAdjustedRange(2, minimum, maximum));
    QCOMPARE(minimum, 0.0);
    QCOMPARE(maximum, 4.0);
}

void TestSliderRows::rangesAreUnited()
{
    float a = 0;
    float b = 0;
    const auto first = makeRow(&a, -3, 1);
    const auto second = makeRow(&b, 0, 20);
    first->syncRange(*second);
    for (const Row *row : {first.get(), second.get()}) {
        QCOMPARE(row->sliderMinimum(), -3.0);
        QCOMPARE(row->sliderMaximum(), 20.0);
    }
    first->setRange(0, 2);
    second->setRange(*first);
    QCOMPARE(second->sliderMaximum(), 2.0);
}

void TestSliderRows::unitSwitchesRestoreEveryNumber()
{
    auto manager = std::make_unique<ZelUnitManager>();
    float value = 0.3F;
    const auto row = makeRow(&value, 0, 1, -1e9F, 1e9F);
    row->setUnit(manager.get());
    show(row.get());
    const auto *edit = editOf(row.get());
    const QString before = edit->text();
    for (const Unit unit : ZelUnitManager::units(Quantity::Length)) {
        manager->setDisplayUnit(Quantity::Length, unit);
        QVERIFY(edit->text().endsWith(ZelUnitManager::suffix(Quantity::Length, unit)));
        QCOMPARE(value, 0.3F);
    }
    manager->setDisplayUnit(Quantity::Length, Unit::Meter);
    QCOMPARE(edit->text(), before);
    manager->setDisplayUnit(Quantity::Length, Unit::Centimeter);
    typeInto(editOf(row.get()), QStringLiteral("75 cm"));
    QCOMPARE(value, 0.75F);
    QCOMPARE(sliderOf(row.get())->value(), 750);
    manager.reset();
    row->updateValue();
    QCOMPARE(edit->text(), QStringLiteral("0.75"));
}

void TestSliderRows::resetIsOfferedToTheUser()
{
    float value = 0.25F;
    const auto row = makeRow(&value);
    auto *label = row->findChild<QLabel *>();
    show(row.get());
    row->updateValue(0.5F);
    QSignalSpy updates(row.get(), &Row::valueUpdated);
    row->setSliderEditEnabled(false);
    QTest::mouseDClick(label, Qt::LeftButton);
    QCOMPARE(value, 0.5F);
    row->setSliderEditEnabled(true);
    QTest::mouseDClick(label, Qt::LeftButton);
    QCOMPARE(value, 0.25F);
    QCOMPARE(sliderOf(row.get())->value(), 250);
    QTest::mouseDClick(label, Qt::LeftButton);
    QCOMPARE(updates, QList<QVariantList>{{true}});

    row->updateValue(0.5F);
    const QPoint middle = label->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, label->mapToGlobal(middle));
    QCoreApplication::sendEvent(label, &event);
    auto *menu = row->findChild<QMenu *>();
    QVERIFY(menu);
    menu->findChild<QAction *>(QStringLiteral("reset"))->trigger();
    QCOMPARE(value, 0.25F);
    menu->close();
}

void TestSliderRows::unchangedNumberIsNotRepainted()
{
    float value = 0.25F;
    const auto row = makeRow(&value);
    show(row.get());
    QCoreApplication::processEvents();
    PaintCount count;
    for (QWidget *part : row->findChildren<QWidget *>())
        part->installEventFilter(&count);
    row->updateValue();
    QCoreApplication::processEvents();
    QCOMPARE(count.paints, 0);
    value = 0.5F;
    row->updateValue();
    QTRY_VERIFY(count.paints > 0);

    // An unfinished text gives way to the number, also to the same one.
    editOf(row.get())->setFocus();
    QTest::keyClicks(editOf(row.get()), QStringLiteral("9"));
    row->updateValue();
    QCOMPARE(editOf(row.get())->text(), QStringLiteral("0.5"));
}

void TestSliderRows::compactFieldIsAsLowAsOneWithASheet()
{
    const QString sheet = QStringLiteral("ZelDoubleEdit { min-height: 0px; }");
    for (const bool hasRule : {false, true}) {
        qApp->setStyleSheet(hasRule ? QStringLiteral("QAbstractSpinBox { min-height: 60px; }")
                                    : QString());
        float value = 0;
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        auto *plain = new ZelDoubleEdit(&window, 0, 1, &value);
        auto *styled = new ZelDoubleEdit(&window, 0, 1, &value);
        styled->setStyleSheet(sheet);
        auto *compact = new ZelDoubleEdit(&window, 0, 1, &value);
        compact->setCompact();
        for (QWidget *field : {plain, styled, compact})
            layout->addWidget(field);
        show(&window);
        QCOMPARE(compact->styleSheet(), sheet);
        QCOMPARE(compact->geometry().size(), styled->geometry().size());
        QCOMPARE(compact->sizeHint(), styled->sizeHint());
        QCOMPARE(compact->minimumSizeHint(), styled->minimumSizeHint());
        QVERIFY(!hasRule || compact->height() < plain->height());
    }
    qApp->setStyleSheet(QString());
}

void TestSliderRows::rowMayDieAnyTime()
{
    float value = 0.25F;
    auto row = makeRow(&value);
    show(row.get());
    editOf(row.get())->setFocus();
    QTest::keyClicks(editOf(row.get()), QStringLiteral("9"));
    row.reset();
    QCOMPARE(value, 0.25F);

    row = std::make_unique<Row>(QStringLiteral("Own"), 0, 1, nullptr, 0, 1, nullptr, nullptr, true);
    show(row.get());
    sliderOf(row.get())->setFocus();
    row.reset();

    row = makeRow(&value);
    delete row->findChild<QLabel *>();
    row->setText(QStringLiteral("Gone"));
    row->setAutoScaleRange(true, true);
    connect(row.get(), &Row::beforeAdjustRange, this, [&] { row.reset(); });
    value = 9;
    row->updateValue();
    QVERIFY(!row);
}

void TestSliderRows::panelDropsDown()
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

void TestSliderRows::wholeNumberRowLetsItsMaximumGrow()
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

void TestSliderRows::wholeNumberRowTellsTheReleaseAlone()
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

void TestSliderRows::listRowTakesTheClosestEntry()
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

void TestSliderRows::zoomBarSteps()
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

void TestSliderRows::timeRowKeepsItsTime()
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

void TestSliderRows::mementoRemembersARelease()
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

void TestSliderRows::typingWhatIsShownKeepsIt()
{
    std::mt19937 random(11);
    std::uniform_real_distribution<float> numbers(-1000, 1000);
    float value = 0;
    const auto row = makeRow(&value, -1000, 1000, -1e6F, 1e6F);
    for (int round = 0; round < 200; ++round) {
        value = numbers(random);
        const float stored = value;
        row->updateValue();
        const QString shown = editOf(row.get())->text();
        QTest::keyClick(editOf(row.get()), Qt::Key_Return);
        QVERIFY(std::memcmp(&value, &stored, sizeof value) == 0);
        typeInto(editOf(row.get()), shown);
        QCOMPARE(value, shown.toFloat());
        QCOMPARE(editOf(row.get())->text(), shown);
    }
}

void TestSliderRows::assistiveTechnologyReadsTheRow()
{
    float value = 0.25F;
    const auto row = makeRow(&value);
    row->setSuffix(QStringLiteral(" m"));
    auto *face = QAccessible::queryAccessibleInterface(sliderOf(row.get()));
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Radius"));
    QCOMPARE(face->text(QAccessible::Value), QStringLiteral("0.25 m"));
    face = QAccessible::queryAccessibleInterface(editOf(row.get()));
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Radius"));
    row->setText(QStringLiteral("Width"));
    QCOMPARE(sliderOf(row.get())->accessibleName(), QStringLiteral("Width"));
}

ZEL_TEST_MAIN(TestSliderRows)
#include "tst_slider_rows.moc"
