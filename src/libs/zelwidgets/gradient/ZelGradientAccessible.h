#pragma once

#include "ZelAccessibleParts.h"

class ZelGradientDisplay;

/// The stops of a gradient's bar, in the order of its list.
class AccessibleStops : public ZelAccessibleParts
{
public:
    explicit AccessibleStops(QWidget *display);

    int partCount() const override;
    Part part(int index) const override;
    int currentPart() const override;
    void selectPart(int index) override;
    void setPartValue(int index, double value) override;

private:
    ZelGradientDisplay *display() const;
};
