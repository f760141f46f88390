#include "ZelBorderDialog.h"

#include <QDebug>
#include <QGraphicsDropShadowEffect>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace {

constexpr double firstBlur = 24;
constexpr double firstOffsetY = 4;
constexpr QColor firstColor(0, 0, 0, 110);
constexpr double largest = 500;

int room(double pixels)
{
    return std::max(int(std::ceil(pixels)), 0);
}

} // namespace

ZelBorderDialog::ZelBorderDialog(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , shadow_(new QGraphicsDropShadowEffect(this))
{
    setObjectName(QStringLiteral("Viewer"));
    setAttribute(Qt::WA_TranslucentBackground);
    shadow_->setBlurRadius(firstBlur);
    shadow_->setOffset(0, firstOffsetY);
    shadow_->setColor(firstColor);
    shadow_->setEnabled(false);
    setGraphicsEffect(shadow_);
}

void ZelBorderDialog::enableDropShadow(bool enable)
{
    shadow_->setEnabled(enable);
    updateMargins();
}

bool ZelBorderDialog::isDropShadowEnabled() const
{
    return shadow_->isEnabled();
}

bool ZelBorderDialog::bound(double *number, double lowest) const
{
    if (std::isnan(*number)) {
        qWarning() << "The shadow of a dialog can't take what is no number" << objectName();
        return false;
    }
    *number = std::clamp(*number, lowest, largest);
    return true;
}

void ZelBorderDialog::setShadowBlurRadius(double radius)
{
    if (!bound(&radius, 0))
        return;
    shadow_->setBlurRadius(radius);
    updateMargins();
}

double ZelBorderDialog::shadowBlurRadius() const
{
    return shadow_->blurRadius();
}

void ZelBorderDialog::setShadowColor(QColor color)
{
    shadow_->setColor(color);
}

QColor ZelBorderDialog::shadowColor() const
{
    return shadow_->color();
}

void ZelBorderDialog::setShadowOffsetX(double offset)
{
    if (!bound(&offset, -largest))
        return;
    shadow_->setXOffset(offset);
    updateMargins();
}

double ZelBorderDialog::shadowOffsetX() const
{
    return shadow_->xOffset();
}

void ZelBorderDialog::setShadowOffsetY(double offset)
{
    if (!bound(&offset, -largest))
        return;
    shadow_->setYOffset(offset);
    updateMargins();
}

double ZelBorderDialog::shadowOffsetY() const
{
    return shadow_->yOffset();
}

void ZelBorderDialog::updateMargins()
{
    if (!shadow_->isEnabled()) {
        setContentsMargins(0, 0, 0, 0);
        return;
    }
    const double blur = shadow_->blurRadius();
    setContentsMargins(room(blur - shadow_->xOffset()), room(blur - shadow_->yOffset()),
                       room(blur + shadow_->xOffset()), room(blur + shadow_->yOffset()));
}

void ZelBorderDialog::paintEvent(QPaintEvent *)
{
    // The ground that the style sheet has painted reaches over the room of the shadow.
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    QStyleOption option;
    option.initFrom(this);
    option.rect = contentsRect();
    if (!testAttribute(Qt::WA_StyledBackground))
        painter.fillRect(option.rect, palette().window());
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
