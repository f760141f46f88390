#pragma once

#include "GalleryPage.h"

#include <ZelCore/Quantity>

class QFormLayout;
class QLabel;
class QSpinBox;
class ZelDoubleEdit;
class ZelUnitManager;

/// The number fields: bound ones beside the numbers that they edit, units, spin boxes and times.
class FieldsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit FieldsPage(QWidget *parent = nullptr);

private:
    void addBoundFields();
    void addUnits();
    void addSpinBoxes();
    ZelDoubleEdit *addNumber(QFormLayout *form, const QString &name, float start, double minimum,
                             double maximum);
    QSpinBox *addWholeNumber(QFormLayout *form, const QString &name, int start);
    void addUnitRow(QFormLayout *form, const QString &name, Quantity quantity, float start);

    ZelUnitManager *units_;
};
