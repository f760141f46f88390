#pragma once

#include <ZelWidgets/ZelLabel>
#include <ZelWidgets/zelwidgets_export.h>

/// A sign, as of an operation or a unit, between fields: in the font "Cambria" or the serif font
/// that stands in for it, at the size of the other texts and in the middle.
class ZELWIDGETS_EXPORT ZelSignLabel : public ZelLabel
{
    Q_OBJECT

public:
    explicit ZelSignLabel(const QString &sign, QWidget *parent = nullptr);
};
