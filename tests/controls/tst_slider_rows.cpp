#include "SliderRows.h"

#include <ZelCore/ZelUnitManager>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDoubleEdit>

#include <QAccessible>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QVBoxLayout>

namespace {

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
