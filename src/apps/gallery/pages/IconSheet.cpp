#include "IconSheet.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/ZelStyleIcon>

#include <QDir>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int gap = 4;
constexpr int sizes[] = {16, 24, 48};
constexpr QIcon::Mode modes[] = {QIcon::Normal, QIcon::Active, QIcon::Disabled, QIcon::Selected};
constexpr QIcon::State states[] = {QIcon::Off, QIcon::On};

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
    int width = gap;
    for (const int size : sizes)
        width += int(std::size(modes)) * (size + gap);
    const int height = 2 * (sizes[2] + gap) + fontMetrics().height() + 3 * gap;
    return {width + 2 * gap, height};
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
    const QSize cell = cellSize();
    const int columns = columnsFor(width());
    for (int i = 0; i < int(entries_.size()); ++i) {
        const QPoint origin(i % columns * cell.width(), i / columns * cell.height());
        if (event->rect().intersects(QRect(origin, cell)))
            paintCell(painter, origin, entries_[size_t(i)]);
    }
}

void IconSheet::paintCell(QPainter &painter, QPoint origin, const Entry &entry) const
{
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect title(origin + QPoint(gap, gap),
                      QSize(cellSize().width() - 2 * gap, fontMetrics().height()));
    painter.drawText(title, Qt::AlignLeading | Qt::AlignVCenter,
                     fontMetrics().elidedText(entry.name, Qt::ElideRight, title.width()));
    int x = origin.x() + gap;
    const int top = title.bottom() + gap;
    for (const int size : sizes) {
        for (const QIcon::Mode mode : modes) {
            int y = top;
            for (const QIcon::State state : states) {
                entry.icon.paint(&painter, QRect(x, y, size, size), Qt::AlignCenter, mode, state);
                y += size + gap;
            }
            x += size + gap;
        }
    }
}
