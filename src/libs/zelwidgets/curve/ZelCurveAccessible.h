#pragma once

#include "ZelAccessibleParts.h"

#include <ZelCore/ZelCurvePointHandle>

class ZelCurveGraphicsView;

/// The markers of a curve view: vertices and the ends of their tangents. Their number is the place
/// on the horizontal axis, their text tells both coordinates.
class AccessibleCurveMarkers : public ZelAccessibleParts
{
public:
    explicit AccessibleCurveMarkers(QWidget *view);

    /// The name that the editor around the view was given comes first.
    QString text(QAccessible::Text kind) const override;
    int partCount() const override;
    Part part(int index) const override;
    int currentPart() const override;
    void selectPart(int index) override;
    void setPartValue(int index, double value) override;

private:
    ZelCurveGraphicsView *view() const;
    ZelCurvePointHandle pointAt(int index) const;
    QString nameOf(int index) const;
};
