#include "TestCase.h"

#include <ZelCore/ZelTime>
#include <ZelCore/ZelUnitManager>

#include <cmath>
#include <limits>

namespace {

constexpr Quantity quantities[] = {Quantity::Length,      Quantity::Area, Quantity::Volume,
                                   Quantity::Angle,       Quantity::Time, Quantity::Mass,
                                   Quantity::Temperature, Quantity::None};

const double numbers[] = {0.0,
                          -0.0,
                          1.0,
                          -1.0,
                          0.1,
                          1.0 / 3.0,
                          -273.15,
                          123456.789,
                          1e-30,
                          double(std::numeric_limits<float>::denorm_min()),
                          double(std::numeric_limits<float>::max())};

/// Scales of temperature have different zeros, so digits far below a degree are lost between them.
double allowedError(Quantity quantity, double value)
{
    const double size = std::abs(value);
    return 1e-12 * (quantity == Quantity::Temperature ? std::max(size, 100.0) : size);
}

} // namespace

class UnitManagerTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void numbersComeBackFromEveryUnit();
    void numbersAreWhatTheUnitsSay_data();
    void numbersAreWhatTheUnitsSay();
    void whatIsNoNumberPassesThrough();
    void unitsHaveTheirSuffixes();
    void aChangeIsToldOnceAndAWrongUnitIsRefused();
};

void UnitManagerTest::numbersComeBackFromEveryUnit()
{
    int pairs = 0;
    for (const Quantity quantity : quantities) {
        for (const Unit stored : ZelUnitManager::units(quantity)) {
            for (const Unit shown : ZelUnitManager::units(quantity)) {
                ZelUnitManager manager;
                manager.setCurrentUnit(quantity, stored);
                manager.setDisplayUnit(quantity, shown);
                ++pairs;
                for (const double number : numbers) {
                    const double back = manager.convertToCurrent(
                        quantity, manager.convertToDisplay(quantity, number));
                    QVERIFY2(std::abs(back - number) <= allowedError(quantity, number),
                             qPrintable(QStringLiteral("%1: %2 to %3, %4 became %5")
                                            .arg(int(quantity))
                                            .arg(int(stored))
                                            .arg(int(shown))
                                            .arg(number)
                                            .arg(back)));
                    if (stored == shown)
                        QCOMPARE(std::memcmp(&back, &number, sizeof back), 0);
                }
            }
        }
    }
    QCOMPARE(pairs, 3 * 36 + 4 + 4 + 9 + 4);
}

void UnitManagerTest::numbersAreWhatTheUnitsSay_data()
{
    QTest::addColumn<Quantity>("quantity");
    QTest::addColumn<Unit>("stored");
    QTest::addColumn<Unit>("shown");
    QTest::addColumn<double>("number");
    QTest::addColumn<double>("expected");

    using Q = Quantity;
    using U = Unit;
    QTest::newRow("inch") << Q::Length << U::Inch << U::Millimeter << 1.0 << 25.4;
    QTest::newRow("foot") << Q::Length << U::Foot << U::Inch << 1.0 << 12.0;
    QTest::newRow("centimetres") << Q::Length << U::Meter << U::Centimeter << 2.75 << 275.0;
    QTest::newRow("kilometre") << Q::Length << U::Meter << U::Kilometer << 1.0 << 0.001;
    QTest::newRow("area") << Q::Area << U::Foot << U::Inch << 1.0 << 144.0;
    QTest::newRow("volume") << Q::Volume << U::Meter << U::Millimeter << 1.0 << 1e9;
    QTest::newRow("right angle") << Q::Angle << U::Degree << U::Radian << 90.0
                                 << std::acos(-1.0) / 2;
    QTest::newRow("boiling") << Q::Temperature << U::Celsius << U::Fahrenheit << 100.0 << 212.0;
    QTest::newRow("freezing") << Q::Temperature << U::Fahrenheit << U::Celsius << 32.0 << 0.0;
    QTest::newRow("noon") << Q::Time << U::Second << U::Hour << 43200.0 << 12.0;
    QTest::newRow("minutes") << Q::Time << U::Hour << U::Minute << 0.5 << 30.0;
    QTest::newRow("grams") << Q::Mass << U::Kilogram << U::Gram << 0.25 << 250.0;
}

void UnitManagerTest::numbersAreWhatTheUnitsSay()
{
    QFETCH(Quantity, quantity);
    QFETCH(Unit, stored);
    QFETCH(Unit, shown);
    QFETCH(double, number);
    QFETCH(double, expected);

    ZelUnitManager manager;
    manager.setCurrentUnit(quantity, stored);
    manager.setDisplayUnit(quantity, shown);
    QCOMPARE(manager.convertToDisplay(quantity, number), expected);
    QCOMPARE(manager.convertToCurrent(quantity, expected), number);
}

void UnitManagerTest::whatIsNoNumberPassesThrough()
{
    ZelUnitManager manager;
    manager.setDisplayUnit(Quantity::Volume, Unit::Foot);
    manager.setDisplayUnit(Quantity::Temperature, Unit::Fahrenheit);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Quantity quantity : {Quantity::Volume, Quantity::Temperature}) {
        QVERIFY(std::isnan(manager.convertToDisplay(quantity, std::nan(""))));
        QCOMPARE(manager.convertToDisplay(quantity, -infinity), -infinity);
        QCOMPARE(manager.convertToCurrent(quantity, infinity), infinity);
    }
    for (const int foreign : {0, 8, -1, std::numeric_limits<int>::min()}) {
        const auto quantity = static_cast<Quantity>(foreign);
        QCOMPARE(manager.convertToDisplay(quantity, 12.5), 12.5);
        QCOMPARE(manager.displaySuffix(quantity), QString());
        QCOMPARE(manager.displayUnit(quantity), Unit::None);
    }
}

void UnitManagerTest::unitsHaveTheirSuffixes()
{
    QStringList all;
    for (const Quantity quantity : quantities) {
        QCOMPARE(ZelUnitManager::suffix(quantity, Unit(-1)), QString());
        for (const Unit unit : ZelUnitManager::units(quantity))
            all.append(ZelUnitManager::suffix(quantity, unit));
    }
    QCOMPARE(all.join(u' '), QStringLiteral("mm cm in ft m km mm² cm² in² ft² m² km² mm³ cm³ in³ "
                                            "ft³ m³ km³ ° rad s min h g kg °C °F"));
    QCOMPARE(ZelUnitManager::suffix(Quantity::Mass, Unit::Meter), QString());
    QCOMPARE(ZelTime().seconds, 0.0);
    QVERIFY(ZelTime{43200.0} == ZelTime{43200.0} && ZelTime{1.0} != ZelTime{});
}

void UnitManagerTest::aChangeIsToldOnceAndAWrongUnitIsRefused()
{
    ZelUnitManager manager;
    manager.setObjectName(QStringLiteral("scene"));
    QList<Unit> told;
    connect(&manager, &ZelUnitManager::displayChanged, this,
            [&told](Unit unit) { told.append(unit); });
    manager.setDisplayUnit(Quantity::Length, Unit::Inch);
    manager.setDisplayUnit(Quantity::Length, Unit::Inch);
    QCOMPARE(told, QList<Unit>{Unit::Inch});
    QCOMPARE(manager.displayUnit(Quantity::Area), Unit::Meter);
    manager.setCurrentUnit(Quantity::Length, Unit::Millimeter);
    QCOMPARE(told, (QList<Unit>{Unit::Inch, Unit::Inch}));
    QCOMPARE(manager.currentUnit(Quantity::Length), Unit::Millimeter);

    for (const auto &[quantity, unit] :
         {std::pair(Quantity::Length, Unit::Second), std::pair(Quantity::None, Unit::Meter),
          std::pair(Quantity(-7), Unit::Meter), std::pair(Quantity::Length, Unit(99))}) {
        messages().expect(QtWarningMsg,
                          QRegularExpression(QStringLiteral("does not measure .* \"scene\"")));
        manager.setDisplayUnit(quantity, unit);
    }
    QCOMPARE(told.size(), 2);
    QCOMPARE(manager.displaySuffix(Quantity::Length), QStringLiteral("in"));
}

ZEL_TEST_MAIN(UnitManagerTest)
#include "tst_unit_manager.moc"
