#pragma once

#include <ZelCore/Quantity>
#include <ZelCore/Unit>
#include <ZelCore/zelcore_export.h>

#include <QList>
#include <QObject>

#include <array>

/// Knows for each quantity the unit of the stored numbers and the unit in which the user sees them,
/// and converts between the two.
///
/// Stored and shown units start alike: metres (squared and cubed for areas and volumes), degrees,
/// degrees Celsius, seconds and kilograms. A number that goes to the display and back comes back
/// within 1e-12 of itself; while both units are the same it comes back bit for bit. Near zero
/// degrees of a temperature scale the bound is absolute, as the scales have different zeros. Not a
/// number and the infinities pass through.
class ZELCORE_EXPORT ZelUnitManager : public QObject
{
    Q_OBJECT

public:
    explicit ZelUnitManager(QObject *parent = nullptr);

    /// The units that measure the quantity, small to large; none for Quantity::None.
    static QList<Unit> units(Quantity quantity);
    /// The text behind a number ("mm", "m²", "°"), without a blank in front; empty if the unit
    /// does not measure the quantity, as Unit::None never does.
    static QString suffix(Quantity quantity, Unit unit);

    Unit displayUnit(Quantity quantity) const;
    Unit currentUnit(Quantity quantity) const;
    QString displaySuffix(Quantity quantity) const;
    /// The number to show for a stored one.
    double convertToDisplay(Quantity quantity, double value) const;
    /// The number to store for a shown one.
    double convertToCurrent(Quantity quantity, double value) const;

public Q_SLOTS:
    /// Sets the unit that the user sees. A unit that does not measure the quantity is refused with
    /// a warning.
    void setDisplayUnit(Quantity quantity, Unit unit);
    /// Tells in which unit numbers are stored; it converts none of them. Refuses like
    /// setDisplayUnit().
    void setCurrentUnit(Quantity quantity, Unit unit);

Q_SIGNALS:
    /// The display unit of a quantity has changed, or what the shown numbers are converted from;
    /// the argument is the display unit now in force.
    void displayChanged(Unit unit);

private:
    struct Units
    {
        Unit current = Unit::None;
        Unit display = Unit::None;
    };
    Units unitsOf(Quantity quantity) const;
    bool accepts(Quantity quantity, Unit unit) const;

    std::array<Units, 8> units_;
};
