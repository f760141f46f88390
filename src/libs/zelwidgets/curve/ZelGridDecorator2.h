#pragma once

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QPen>

#include <memory>

class ZelGridPositioning;

/// The lines of a grid, one apart in both directions unless a positioning says otherwise.
class ZELWIDGETS_EXPORT ZelGridDecorator2 : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    ZelGridDecorator2();
    ~ZelGridDecorator2() override;

    /// Only stored, the caller repaints.
    void setPen(QPen pen);
    /// Null keeps the former positioning.
    void setPositioning(std::unique_ptr<ZelGridPositioning> positioning);
    void paint(QPainter &painter, QRectF const &rect, QTransform const &transform) override;

private:
    QPen pen_;
    std::unique_ptr<ZelGridPositioning> positioning_;
};
