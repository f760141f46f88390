#include "ZelUnitManager.h"

#include <QDebug>

namespace {

constexpr double pi = 3.14159265358979323846;

/// What a unit measures in its first power, its size as a multiple of what the units of that
/// quantity have in common, and its text. The sizes are whole wherever that is possible, so that a
/// conversion rounds only once.
struct Measure
{
    Unit unit;
    Quantity quantity;
    double size;
    QStringView suffix;
};

constexpr Measure measures[] = {
    {Unit::Millimeter, Quantity::Length, 10.0, u"mm"},
    {Unit::Centimeter, Quantity::Length, 100.0, u"cm"},
    {Unit::Inch, Quantity::Length, 254.0, u"in"},
    {Unit::Foot, Quantity::Length, 3048.0, u"ft"},
    {Unit::Meter, Quantity::Length, 10000.0, u"m"},
    {Unit::Kilometer, Quantity::Length, 10000000.0, u"km"},
    {Unit::Degree, Quantity::Angle, pi, u"\u00b0"},
    {Unit::Radian, Quantity::Angle, 180.0, u"rad"},
    {Unit::Celsius, Quantity::Temperature, 1.8, u"\u00b0C"},
    {Unit::Fahrenheit, Quantity::Temperature, 1.0, u"\u00b0F"},
    {Unit::Second, Quantity::Time, 1.0, u"s"},
    {Unit::Minute, Quantity::Time, 60.0, u"min"},
    {Unit::Hour, Quantity::Time, 3600.0, u"h"},
    {Unit::Gram, Quantity::Mass, 1.0, u"g"},
    {Unit::Kilogram, Quantity::Mass, 1000.0, u"kg"},
};

int power(Quantity quantity)
{
    if (quantity == Quantity::Volume)
        return 3;
    return quantity == Quantity::Area ? 2 : 1;
}

/// The quantity whose units measure this one.
Quantity baseOf(Quantity quantity)
{
    return power(quantity) > 1 ? Quantity::Length : quantity;
}

const Measure *measureOf(Quantity quantity, Unit unit)
{
    const Quantity base = baseOf(quantity);
    for (const Measure &measure : measures) {
        if (measure.unit == unit && measure.quantity == base)
            return &measure;
    }
    return nullptr;
}

double raised(double number, int power)
{
    double result = number;
    for (int i = 1; i < power; ++i)
        result *= number;
    return result;
}

double convertTemperature(double value, Unit to)
{
    constexpr double zeroCelsius = 32.0;
    return to == Unit::Fahrenheit ? value * 1.8 + zeroCelsius : (value - zeroCelsius) / 1.8;
}

double convert(Quantity quantity, double value, Unit from, Unit to)
{
    const Measure *source = measureOf(quantity, from);
    const Measure *target = measureOf(quantity, to);
    if (from == to || !source || !target)
        return value;
    if (quantity == Quantity::Temperature)
        return convertTemperature(value, to);
    const int exponent = power(quantity);
    // Always with the factor above 1: it is the one that is exact between decimal units.
    if (source->size > target->size)
        return value * raised(source->size / target->size, exponent);
    return value / raised(target->size / source->size, exponent);
}

} // namespace

ZelUnitManager::ZelUnitManager(QObject *parent)
    : QObject(parent)
    , units_{{{},
              {Unit::Meter, Unit::Meter},
              {Unit::Meter, Unit::Meter},
              {Unit::Meter, Unit::Meter},
              {Unit::Degree, Unit::Degree},
              {Unit::Celsius, Unit::Celsius},
              {Unit::Second, Unit::Second},
              {Unit::Kilogram, Unit::Kilogram}}}
{}

QList<Unit> ZelUnitManager::units(Quantity quantity)
{
    QList<Unit> result;
    for (const Measure &measure : measures) {
        if (measure.quantity == baseOf(quantity))
            result.append(measure.unit);
    }
    return result;
}

QString ZelUnitManager::suffix(Quantity quantity, Unit unit)
{
    const Measure *measure = measureOf(quantity, unit);
    if (!measure)
        return QString();
    constexpr QStringView marks[] = {u"", u"\u00b2", u"\u00b3"};
    return measure->suffix.toString().append(marks[power(quantity) - 1]);
}

ZelUnitManager::Units ZelUnitManager::unitsOf(Quantity quantity) const
{
    const auto index = static_cast<std::size_t>(quantity);
    return index < units_.size() ? units_[index] : Units{};
}

Unit ZelUnitManager::displayUnit(Quantity quantity) const
{
    return unitsOf(quantity).display;
}

Unit ZelUnitManager::currentUnit(Quantity quantity) const
{
    return unitsOf(quantity).current;
}

QString ZelUnitManager::displaySuffix(Quantity quantity) const
{
    return suffix(quantity, displayUnit(quantity));
}

double ZelUnitManager::convertToDisplay(Quantity quantity, double value) const
{
    const Units units = unitsOf(quantity);
    return convert(quantity, value, units.current, units.display);
}

double ZelUnitManager::convertToCurrent(Quantity quantity, double value) const
{
    const Units units = unitsOf(quantity);
    return convert(quantity, value, units.display, units.current);
}

bool ZelUnitManager::accepts(Quantity quantity, Unit unit) const
{
    if (measureOf(quantity, unit))
        return true;
    qWarning() << "The unit does not measure the quantity" << static_cast<int>(unit)
               << static_cast<int>(quantity) << objectName();
    return false;
}

void ZelUnitManager::setDisplayUnit(Quantity quantity, Unit unit)
{
    if (!accepts(quantity, unit) || displayUnit(quantity) == unit)
        return;
    units_[static_cast<std::size_t>(quantity)].display = unit;
    Q_EMIT displayChanged(unit);
}

void ZelUnitManager::setCurrentUnit(Quantity quantity, Unit unit)
{
    if (!accepts(quantity, unit) || currentUnit(quantity) == unit)
        return;
    units_[static_cast<std::size_t>(quantity)].current = unit;
    Q_EMIT displayChanged(displayUnit(quantity));
}
