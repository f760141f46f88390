#include "color/ZelLoupe.h"

#include <QColor>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <algorithm>

namespace {

constexpr int distance = 24;
constexpr QColor gridColor(0, 0, 0, 48);

void paintGrid(QPainter *painter, const QRect &rect, int cells)
{
    for (int i = 1; i < cells; ++i) {
        const int x = rect.x() + rect.width() * i / cells;
        const int y = rect.y() + rect.height() * i / cells;
        painter->fillRect(QRect(x, rect.y(), 1, rect.height()), gridColor);
        painter->fillRect(QRect(rect.x(), y, rect.width(), 1), gridColor);
    }
}

/// Two frames, so that one of them stands out from any colour.
void paintMark(QPainter *painter, const QRect &rect, int cells)
{
    const int middle = cells / 2;
    const auto edge = [&](int from, int length, int index) {
        return from + length * index / cells;
    };
    const QRect cell(
        QPoint(edge(rect.x(), rect.width(), middle), edge(rect.y(), rect.height(), middle)),
        QPoint(edge(rect.x(), rect.width(), middle + 1),
               edge(rect.y(), rect.height(), middle + 1)));
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(Qt::white, 1));
    painter->drawRect(cell.adjusted(0, 0, -1, -1));
    painter->setPen(QPen(Qt::black, 1));
    painter->drawRect(cell.adjusted(-1, -1, 0, 0));
}

int placeOnAxis(int cursor, int length, int first, int last)
{
    const int behind = cursor + distance;
    const int inFront = cursor - distance - length;
    if (behind + length - 1 <= last)
        return behind;
    return inFront >= first ? inFront : std::max(first, last - length + 1);
}

} // namespace

void ZelLoupe::paintPixels(QPainter *painter, const QRect &rect, const QImage &pixels)
{
    if (pixels.isNull())
        return;
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
    painter->fillRect(rect, QBrush(Qt::gray, Qt::BDiagPattern));
    painter->drawImage(rect, pixels);
    paintGrid(painter, rect, pixels.width());
    paintMark(painter, rect, pixels.width());
    painter->restore();
}

void ZelLoupe::paintValue(QPainter *painter, const QRect &rect, const QColor &color,
                          const QPalette &palette)
{
    if (!color.isValid())
        return;
    const int gap = painter->fontMetrics().height() / 4;
    QRect swatch = rect.adjusted(gap, gap, -gap, -gap);
    swatch.setWidth(swatch.height());
    painter->setPen(palette.color(QPalette::WindowText));
    painter->setBrush(color);
    painter->drawRect(swatch.adjusted(0, 0, -1, -1));
    const QString text = QStringLiteral("%1\n%2, %3, %4")
                             .arg(color.name())
                             .arg(color.red())
                             .arg(color.green())
                             .arg(color.blue());
    const QRect beside(swatch.right() + 2 * gap, rect.y(), rect.right() - swatch.right() - 2 * gap,
                       rect.height());
    painter->drawText(beside, Qt::AlignVCenter | Qt::AlignLeft, text);
}

QPoint ZelLoupe::placeBeside(const QPoint &cursor, const QSize &size, const QRect &screen)
{
    QPoint place(placeOnAxis(cursor.x(), size.width(), screen.left(), screen.right()),
                 placeOnAxis(cursor.y(), size.height(), screen.top(), screen.bottom()));
    return place;
}
