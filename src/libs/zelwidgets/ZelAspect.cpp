#include "ZelAspect.h"

#include <QtGlobal>

double ZelAspect::ofSize(float width, float height)
{
    return static_cast<double>(height) / static_cast<double>(width);
}

bool ZelAspect::isClose(double first, double second)
{
    return qFuzzyCompare(first, second);
}

float ZelAspect::heightFor(float width, double aspect)
{
    return static_cast<float>(static_cast<double>(width) * aspect);
}

float ZelAspect::widthFor(float height, double aspect)
{
    return static_cast<float>(static_cast<double>(height) / aspect);
}
