#pragma once

#include <QPointF>

#include <utility>

/// One cubic piece of a curve that is a function of x: both control points lie between its ends.
struct ZelBezierPiece
{
    QPointF from;
    QPointF control1;
    QPointF control2;
    QPointF to;

    /// The piece between two vertices; tangents that reach beyond its other end are shortened.
    static ZelBezierPiece between(QPointF from, QPointF outTangent, QPointF inTangent, QPointF to);

    QPointF at(double t) const;
    /// The parameter in 0 to 1 where the piece has this x; x is between its ends.
    double parameterAt(double x) const;
    /// The two parts that meet at the parameter.
    std::pair<ZelBezierPiece, ZelBezierPiece> split(double t) const;
    /// The lowest and the highest y.
    std::pair<double, double> heights() const;
};
