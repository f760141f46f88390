#include "IconSheet.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/ZelStyleIcon>

#include <QDir>
#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int gap = 3;
constexpr int cellMargin = 4;
constexpr int sizes[] = {16, 24, 48};
constexpr QIcon::Mode modes[] = {QIcon::Normal, QIcon::Active, QIcon::Disabled, QIcon::Selected};
constexpr QIcon::State states[] = {QIcon::Off, QIcon::On};
constexpr const char *modeNames[] = {
    QT_TRANSLATE_NOOP("IconSheet", "normal"), QT_TRANSLATE_NOOP("IconSheet", "hover"),
    QT_TRANSLATE_NOOP("IconSheet", "disabled"), QT_TRANSLATE_NOOP("IconSheet", "selected")};
constexpr const char *stateNames[] = {QT_TRANSLATE_NOOP("IconSheet", "off"),
                                      QT_TRANSLATE_NOOP("IconSheet", "on")};

QIcon loadIcon(const QString &path)
{
    if (path.endsWith(QLatin1String(".svg")))
        return ZelStyleIcon(path);
    return QIcon(HandleSvgInStyle::iconEngineForFile(path));
}

/// A family's variants are shown by its base file alone.
bool isVariant(const QString &file)
{
    static const QStringList suffixes{QStringLiteral("_active"), QStringLiteral("_inactive"),
                                      QStringLiteral("_hover"), QStringLiteral("_disabled")};
    const QString base = file.section(u'.', 0, 0);
    return std::any_of(suffixes.begin(), suffixes.end(),
                       [&](const QString &suffix) { return base.endsWith(suffix); });
}

} // namespace

IconSheet::IconSheet(const QString &folder, const QStringList &patterns, QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Icons of %1").arg(folder));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    const QDir dir(folder);
    const QStringList files = dir.entryList(patterns, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const bool family = file.endsWith(QLatin1String(".zelsvg"));
        if (!family || !isVariant(file))
            entries_.push_back({file, loadIcon(dir.filePath(file))});
    }
}

QSize IconSheet::cellSize() const
{
    const QRect last = slotRect({2, int(std::size(modes)) - 1, int(std::size(states)) - 1});
    return {last.right() + 1 + cellMargin, last.bottom() + 1 + 2 * cellMargin};
}

/// Where a picture lies in its cell: the small sizes above each other, the largest beside them.
QRect IconSheet::slotRect(const Slot &slot) const
{
    const int side = sizes[slot.size];
    int left = cellMargin;
    int top = 2 * cellMargin + fontMetrics().height();
    if (slot.size == 1)
        top += int(std::size(states)) * (sizes[0] + gap) + gap;
    else if (slot.size == 2)
        left += int(std::size(modes)) * (sizes[1] + gap) + gap;
    return {left + slot.mode * (side + gap), top + slot.state * (side + gap), side, side};
}

QRect IconSheet::cellRect(int index) const
{
    const int columns = columnsFor(width());
    const QSize cell = cellSize();
    const QPoint origin(index % columns * cell.width(), index / columns * cell.height());
    return QStyle::visualRect(layoutDirection(), rect(), QRect(origin, cell));
}

template <typename Visit>
void IconSheet::forEachSlot(const QRect &cell, Visit visit) const
{
    for (int size = 0; size < int(std::size(sizes)); ++size) {
        for (int mode = 0; mode < int(std::size(modes)); ++mode) {
            for (int state = 0; state < int(std::size(states)); ++state) {
                const Slot slot{size, mode, state};
                visit(slot, QStyle::visualRect(layoutDirection(), cell,
                                               slotRect(slot).translated(cell.topLeft())));
            }
        }
    }
}

int IconSheet::columnsFor(int width) const
{
    return std::max(1, width / cellSize().width());
}

QSize IconSheet::sizeHint() const
{
    const int width = 3 * cellSize().width();
    return {width, heightForWidth(width)};
}

QSize IconSheet::minimumSizeHint() const
{
    return cellSize();
}

int IconSheet::heightForWidth(int width) const
{
    const int columns = columnsFor(width);
    return (int(entries_.size()) + columns - 1) / columns * cellSize().height();
}

void IconSheet::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    for (int i = 0; i < int(entries_.size()); ++i) {
        const QRect cell = cellRect(i);
        if (event->rect().intersects(cell))
            paintCell(painter, cell, entries_[size_t(i)]);
    }
}

void IconSheet::paintCell(QPainter &painter, const QRect &cell, const Entry &entry) const
{
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect title(cell.topLeft() + QPoint(cellMargin, cellMargin),
                      QSize(cell.width() - 2 * cellMargin, fontMetrics().height()));
    painter.drawText(
        title, int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading | Qt::AlignVCenter)),
        fontMetrics().elidedText(entry.name, Qt::ElideRight, title.width()));
    forEachSlot(cell, [&](const Slot &slot, const QRect &place) {
        entry.icon.paint(&painter, place, Qt::AlignCenter, modes[slot.mode], states[slot.state]);
    });
}

QString IconSheet::describe(QPoint position) const
{
    QString text;
    for (int i = 0; i < int(entries_.size()); ++i) {
        const QRect cell = cellRect(i);
        if (!cell.contains(position))
            continue;
        forEachSlot(cell, [&](const Slot &slot, const QRect &place) {
            if (place.adjusted(0, 0, gap, gap).contains(position))
                text = tr("%1, %2 pixels, %3, %4")
                           .arg(entries_[size_t(i)].name)
                           .arg(sizes[slot.size])
                           .arg(tr(modeNames[slot.mode]), tr(stateNames[slot.state]));
        });
    }
    return text;
}

bool IconSheet::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    QToolTip::showText(help->globalPos(), describe(help->pos()), this);
    return true;
}
