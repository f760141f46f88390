#include "ZelCommandDelegate.h"

#include "ZelCommandModel.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace {

constexpr int margin = 8;
constexpr int gap = 3;
constexpr int keyGap = 16;

QFont smallFont(const QFont &font)
{
    QFont small = font;
    if (font.pointSizeF() > 0)
        small.setPointSizeF(font.pointSizeF() * 0.85);
    else
        small.setPixelSize(font.pixelSize() * 85 / 100);
    return small;
}

/// The letter at the position with all that belongs to it.
int letterLength(const QString &text, qsizetype position)
{
    qsizetype end = position + (text[position].isHighSurrogate() ? 2 : 1);
    while (end < text.size() && text[end].isMark())
        ++end;
    return static_cast<int>(std::min(end, text.size()) - position);
}

QList<QTextLayout::FormatRange> marks(const QString &text, const QList<qsizetype> &positions)
{
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setFontUnderline(true);
    QList<QTextLayout::FormatRange> ranges;
    for (const qsizetype position : positions) {
        if (position < text.size())
            ranges.append({static_cast<int>(position), letterLength(text, position), format});
    }
    return ranges;
}

void drawMarked(QPainter *painter, const QRect &area, const QFont &font, const QString &text,
                const QList<qsizetype> &positions)
{
    QTextLayout layout(text, font);
    QTextOption textOption;
    textOption.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(textOption);
    layout.setFormats(marks(text, positions));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(area.width());
    layout.endLayout();
    painter->save();
    painter->setClipRect(area);
    layout.draw(painter, area.topLeft());
    painter->restore();
}

QColor textColor(const QStyleOptionViewItem &option, bool enabled)
{
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    const bool selected = option.state & QStyle::State_Selected;
    return option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

QSize ZelCommandDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    const int height =
        QFontMetrics(option.font).height() + gap + QFontMetrics(smallFont(option.font)).height();
    return {100, height + margin};
}

void ZelCommandDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle *style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const bool enabled = index.data(ZelCommandModel::EnabledRole).toBool();
    painter->save();
    painter->setPen(textColor(row, enabled));
    QRect area = row.rect.adjusted(margin, margin / 2, -margin, -margin / 2);
    const QString key = index.data(ZelCommandModel::KeyRole).toString();
    painter->setFont(row.font);
    painter->drawText(
        QStyle::visualRect(row.direction, row.rect, area),
        int(QStyle::visualAlignment(row.direction, Qt::AlignRight)) | Qt::AlignVCenter, key);
    area.setWidth(area.width() - QFontMetrics(row.font).horizontalAdvance(key) - keyGap);
    const QRect place = QStyle::visualRect(row.direction, row.rect, area);
    const auto positions = index.data(ZelCommandModel::PositionsRole).value<QList<qsizetype>>();
    drawMarked(painter, place, row.font, index.data().toString(), positions);
    QString category = index.data(ZelCommandModel::CategoryRole).toString();
    if (!enabled)
        category += (category.isEmpty() ? QString() : QStringLiteral(" – ")) + tr("not available");
    painter->setFont(smallFont(row.font));
    painter->drawText(place,
                      int(QStyle::visualAlignment(row.direction, Qt::AlignLeft)) | Qt::AlignBottom,
                      category);
    painter->restore();
}
