#include "ZelCurveViewDecorator2.h"

ZelCurveViewDecorator2::ZelCurveViewDecorator2() = default;

ZelCurveViewDecorator2::~ZelCurveViewDecorator2() = default;

void ZelCurveViewDecorator2::updateItems(QRectF, QTransform) {}

void ZelCurveViewDecorator2::setScene(QGraphicsScene *) {}

void ZelCurveViewDecorator2::paint(QPainter &, QRectF const &, QTransform const &) {}
