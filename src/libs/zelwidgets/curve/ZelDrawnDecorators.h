#pragma once

#include <ZelWidgets/ZelCurveViewDecorator2>

#include <QPen>

/// The lines x = 0 and y = 0. Pens of drawn decorators keep their width on screen; a setter only
/// stores, and the caller repaints.
class ZELWIDGETS_EXPORT ZelAxisDecorator : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    void setPen(QPen pen);
    void paint(QPainter &painter, QRectF const &rect, QTransform const &transform) override;

private:
    QPen pen_;
};

/// A frame around what is painted, black and 2 pixels wide at first.
class ZELWIDGETS_EXPORT ZelFrameDecorator2 : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    void setPen(QPen pen);
    void paint(QPainter &painter, QRectF const &rect, QTransform const &transform) override;

private:
    QPen pen_ = QPen(Qt::black, 2.0);
};

/// A vertical line, at x = 0 at first.
class ZELWIDGETS_EXPORT ZelVLineDecorator2 : public ZelCurveViewDecorator2
{
    Q_OBJECT

public:
    void setPen(QPen pen);
    void setPosition(double position);
    void paint(QPainter &painter, QRectF const &rect, QTransform const &transform) override;

private:
    QPen pen_;
    double position_ = 0;
};
