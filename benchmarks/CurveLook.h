#pragma once

#include <ZelWidgets/ZelCurveView2Style>

/// The look of the curves under test.
inline ZelCurveView2Style curveLook()
{
    ZelCurveView2Style style;
    style.backgroundColor = Qt::darkGray;
    style.defaultCurveColor = Qt::white;
    style.defaultCurveWidth = 1;
    style.vertexOutlineColor = Qt::black;
    style.vertexFillColor = Qt::red;
    style.vertexPenWidth = 0.1;
    style.vertexDiameter = 0.7;
    style.tangentOutlineColor = Qt::black;
    style.tangentFillColor = Qt::yellow;
    style.tangentPenWidth = 0.1;
    style.tangentDiameter = 0.5;
    style.tangentLineColor = Qt::lightGray;
    style.tangentLineWidth = 0.1;
    return style;
}
