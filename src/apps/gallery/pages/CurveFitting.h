#pragma once

#include <ZelCore/ZelBezierCurveModel>

#include <QList>
#include <QPointF>

/// Few vertices for many samples.
///
/// The samples are sorted by x with no two alike. The curve goes through the first and the last one
/// and through those it has vertices at; it misses the others by at most the tolerance. Where the
/// samples turn sharply the vertex is a corner, elsewhere it is smooth.
QList<ZelBezierCurveModel::Vertex> fitCurve(const QList<QPointF> &samples, double tolerance);
