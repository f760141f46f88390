#include "ZelTextPainterStyle.h"

ZelTextPainterStyle::ZelTextPainterStyle(QWidget *parent)
    : QWidget(parent)
{}

QColor ZelTextPainterStyle::getFillColor() const
{
    return fillColor_;
}

void ZelTextPainterStyle::setFillColor(const QColor &color)
{
    fillColor_ = color;
}

QColor ZelTextPainterStyle::getBorderColor() const
{
    return borderColor_;
}

void ZelTextPainterStyle::setBorderColor(const QColor &color)
{
    borderColor_ = color;
}

QColor ZelTextPainterStyle::getTextColor() const
{
    return textColor_;
}

void ZelTextPainterStyle::setTextColor(const QColor &color)
{
    textColor_ = color;
}
