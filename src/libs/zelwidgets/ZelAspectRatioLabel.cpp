#include "ZelAspectRatioLabel.h"

#include "ZelAccessible.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

ZelAspectRatioLabel::ZelAspectRatioLabel(QWidget *parent)
    : QWidget(parent)
{
    ZelAccessible::installFactory();
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QPixmap ZelAspectRatioLabel::pixmap() const
{
    return pixmap_;
}

void ZelAspectRatioLabel::setPixmap(const QPixmap &pixmap)
{
    pixmap_ = pixmap;
    updateGeometry();
    update();
}

QSize ZelAspectRatioLabel::sizeHint() const
{
    return pixmap_.deviceIndependentSize().toSize();
}

int ZelAspectRatioLabel::heightForWidth(int width) const
{
    if (pixmap_.isNull())
        return -1;
    const qint64 height = qint64(width) * pixmap_.height() / pixmap_.width();
    return int(std::min<qint64>(height, QWIDGETSIZE_MAX));
}

void ZelAspectRatioLabel::paintEvent(QPaintEvent *)
{
    if (pixmap_.isNull())
        return;
    const QSize size = pixmap_.size().scaled(this->size(), Qt::KeepAspectRatio);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, size, rect()),
                       pixmap_);
}
