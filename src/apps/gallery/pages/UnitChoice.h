#pragma once

#include <ZelCore/Quantity>
#include <ZelWidgets/ZelComboBox>

class ZelUnitManager;

/// The units of a quantity; the chosen one becomes the manager's display unit.
class UnitChoice : public ZelComboBox
{
    Q_OBJECT

public:
    UnitChoice(ZelUnitManager *units, Quantity quantity, const QString &name, QWidget *parent);
};
