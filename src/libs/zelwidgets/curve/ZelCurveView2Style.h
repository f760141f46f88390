#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QHash>
#include <QMargins>

class ZelCurveModel;

/// How a curve view looks and whether the user can navigate in it. Widths and diameters of markers
/// are in heights of the application font, so that they follow the user's font size.
struct ZELWIDGETS_EXPORT ZelCurveView2Style
{
    /// Colours and widths of single curves; the others have the defaults below.
    QHash<ZelCurveModel *, QColor> curveColors;
    QHash<ZelCurveModel *, float> curveWidths;

    /// Zooming by wheel and keys and panning by the mouse.
    bool navigable = false;

    /// Stacking of curves, lines to tangents, vertices and ends of tangents.
    double curveZ = 0.0;
    double tangentLineZ = 1.0;
    double vertexZ = 1.1;
    double tangentZ = 1.2;

    QColor backgroundColor;
    QColor defaultCurveColor;
    /// In pixels.
    int defaultCurveWidth = 0;
    /// Outlines and lines of the vertex whose position or tangent is selected.
    QColor highlightColor;

    QColor vertexOutlineColor;
    QColor vertexFillColor;
    QColor vertexSelectedFillColor;
    double vertexPenWidth = 0;
    double vertexHighlightPenWidth = 0;
    double vertexDiameter = 1.0;

    QColor tangentOutlineColor;
    QColor tangentFillColor;
    QColor tangentSelectedFillColor;
    double tangentPenWidth = 0;
    double tangentHighlightPenWidth = 0;
    double tangentDiameter = 1.0;

    QColor tangentLineColor;
    double tangentLineWidth = 0;

    /// The scene can't be scrolled far to the left of this.
    float sceneLeftLimit = -0.2F;
    /// A border of the viewport that curves are not fitted into, for rulers and labels.
    QMargins viewportMargins;
    /// In scene units for each pixel that the mouse is outside, in a quarter of a second.
    double autoScrollStepY = 0.1;
};
