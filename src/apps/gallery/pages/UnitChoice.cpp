#include "UnitChoice.h"

#include <ZelCore/ZelUnitManager>

UnitChoice::UnitChoice(ZelUnitManager *units, Quantity quantity, const QString &name,
                       QWidget *parent)
    : ZelComboBox(parent)
{
    setAccessibleName(tr("Unit of %1").arg(name));
    for (const Unit unit : ZelUnitManager::units(quantity)) {
        addItem(ZelUnitManager::suffix(quantity, unit), static_cast<int>(unit));
        if (unit == units->displayUnit(quantity))
            setCurrentIndex(count() - 1);
    }
    connect(this, &QComboBox::currentIndexChanged, units, [this, units, quantity](int index) {
        units->setDisplayUnit(quantity, static_cast<Unit>(itemData(index).toInt()));
    });
}
