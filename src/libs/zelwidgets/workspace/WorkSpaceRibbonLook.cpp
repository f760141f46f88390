#include "workspace/WorkSpaceRibbonLook.h"

#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr int dotSize = 6;
/// Wide enough for the space that a style sheet puts in front of a name.
constexpr int dotMargin = 14;
constexpr int dotIconSize = 10;

void paint(QPainter *painter, const QRectF &place, const QPalette &palette)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette.color(QPalette::Link));
    painter->drawEllipse(place);
}

} // namespace

QString WorkSpaceRibbonLook::shownName(const QString &name)
{
    QString text = name;
    return text.replace(u'&', QStringLiteral("&&"));
}

QIcon WorkSpaceRibbonLook::dotIcon(const QWidget *widget)
{
    const qreal ratio = widget->devicePixelRatioF();
    QPixmap picture((QSizeF(dotIconSize, dotIconSize) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const qreal margin = (dotIconSize - dotSize) / 2.0;
    paint(&painter, QRectF(margin, margin, dotSize, dotSize), widget->palette());
    painter.end();
    return picture;
}

void WorkSpaceRibbonLook::paintDot(QPushButton *button, const QStyleOptionButton &option)
{
    const QRect contents =
        button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
    // As long as there is room in front of the arrow.
    const int left =
        std::min(contents.left() + text.width() + dotMargin, contents.right() - dotSize);
    const QRect dot(left, (button->height() - dotSize) / 2, dotSize, dotSize);
    QPainter painter(button);
    paint(&painter, QStyle::visualRect(button->layoutDirection(), button->rect(), dot),
          button->palette());
}
