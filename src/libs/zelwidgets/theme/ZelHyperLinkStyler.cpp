#include "ZelHyperLinkStyler.h"

#include <QApplication>
#include <QPalette>

ZelHyperLinkStyler::ZelHyperLinkStyler(QWidget *parent)
    : QWidget(parent)
{}

QColor ZelHyperLinkStyler::getHyperLinkColor() const
{
    return hyperLinkColor_;
}

void ZelHyperLinkStyler::setHyperLinkColor(const QColor &color)
{
    hyperLinkColor_ = color;
}

QColor ZelHyperLinkStyler::getHyperLinkVisitedColor() const
{
    return hyperLinkVisitedColor_;
}

void ZelHyperLinkStyler::setHyperLinkVisitedColor(const QColor &color)
{
    hyperLinkVisitedColor_ = color;
}

void ZelHyperLinkStyler::updateApplicationPalette()
{
    QPalette palette = QGuiApplication::palette();
    ZelHyperLinkStyler carrier;
    carrier.ensurePolished();
    palette.setBrush(QPalette::All, QPalette::Link, QBrush(carrier.hyperLinkColor_));
    palette.setBrush(QPalette::All, QPalette::LinkVisited, QBrush(carrier.hyperLinkVisitedColor_));
    QApplication::setPalette(palette);
}
