#include "ThemePage.h"

#include "IconSheet.h"
#include "StyleFile.h"

#include <QHeaderView>
#include <QPainter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr int tableHeight = 300;
constexpr QSize swatchSize(32, 16);

/// A patch of a colour, with a sample of text on it if there is a colour for it.
QIcon swatch(const QColor &ground, const QColor &text = {})
{
    constexpr int sharpness = 2;
    QPixmap pixmap(sharpness * swatchSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(sharpness, sharpness);
    painter.setPen(QColor(128, 128, 128));
    painter.setBrush(ground);
    const QRectF frame = QRectF(QPointF(), swatchSize).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRect(frame);
    if (text.isValid()) {
        QFont font;
        font.setPixelSize(12);
        painter.setFont(font);
        painter.setPen(text);
        painter.drawText(frame, Qt::AlignCenter, QStringLiteral("Aa"));
    }
    QIcon icon(pixmap);
    // Without a picture of its own a selected row would tint the colour.
    icon.addPixmap(pixmap, QIcon::Selected);
    return icon;
}

QTableWidgetItem *paletteCell(const QString &value)
{
    auto *item = new QTableWidgetItem(value);
    if (const QColor color = StyleFile::color(value); color.isValid())
        item->setIcon(swatch(color));
    return item;
}

} // namespace

ThemePage::ThemePage(QWidget *parent)
    : GalleryPage(parent)
{
    addPalette();
    addContrast();
    addIcons();
    addStretch();
}

QTableWidget *ThemePage::addTable(QVBoxLayout *section, const QStringList &columns,
                                  const QString &accessibleName)
{
    auto *table = new QTableWidget(0, static_cast<int>(columns.size()), this);
    table->setHorizontalHeaderLabels(columns);
    table->setAccessibleName(accessibleName);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setAlternatingRowColors(true);
    table->setTabKeyNavigation(false);
    table->setIconSize(swatchSize);
    table->setMinimumHeight(tableHeight);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    section->addWidget(table);
    return table;
}

void ThemePage::addPalette()
{
    const auto palettes = StyleFile::palettes();
    const QStringList themes = palettes.keys();
    QVBoxLayout *section =
        addSection(tr("Palette"), tr("What each key of the style file stands for in the themes."));
    QTableWidget *table = addTable(section, QStringList(tr("Key")) + themes, tr("Palette"));
    const QStringList keys = palettes.value(themes.value(0)).keys();
    table->setRowCount(static_cast<int>(keys.size()));
    for (int row = 0; row < keys.size(); ++row) {
        table->setItem(row, 0, new QTableWidgetItem(keys[row]));
        for (int i = 0; i < themes.size(); ++i)
            table->setItem(row, i + 1, paletteCell(palettes.value(themes[i]).value(keys[row])));
    }
    table->setColumnWidth(0, 240);
    table->setColumnWidth(1, 360);
}

void ThemePage::addContrast()
{
    const auto palettes = StyleFile::palettes();
    const auto pairs = StyleFile::contrastPairs();
    QVBoxLayout *section = addSection(
        tr("Contrast"), tr("The ratio of each colour to what it is seen on: at least 4.5 for text, "
                           "3 for icons, marks and frames."));
    QTableWidget *table =
        addTable(section, QStringList{tr("Colour"), tr("On"), tr("At least")} + palettes.keys(),
                 tr("Contrast"));
    table->setRowCount(static_cast<int>(pairs.size()));
    for (int row = 0; row < pairs.size(); ++row) {
        const StyleFile::ContrastPair &pair = pairs[row];
        table->setItem(row, 0, new QTableWidgetItem(pair.foreground));
        table->setItem(row, 1, new QTableWidgetItem(pair.background));
        table->setItem(row, 2, new QTableWidgetItem(QString::number(pair.required)));
        int column = 3;
        for (const StyleFile::Palette &palette : palettes) {
            const QColor foreground = StyleFile::color(palette.value(pair.foreground));
            const QColor background = StyleFile::color(palette.value(pair.background));
            const double ratio = StyleFile::contrast(foreground, background);
            auto *item = new QTableWidgetItem(QString::number(ratio, 'f', 2) +
                                              (ratio < pair.required ? tr(" too low") : QString()));
            item->setIcon(swatch(background, foreground));
            table->setItem(row, column++, item);
        }
    }
    table->setColumnWidth(0, 200);
    table->setColumnWidth(1, 200);
    table->setColumnWidth(3, 200);
}

void ThemePage::addIcons()
{
    const struct
    {
        QString title;
        QString folder;
        QStringList patterns;
    } folders[] = {
        {tr("Icons"), QStringLiteral(":/ui/icons"), {QStringLiteral("*.svg")}},
        {tr("Widget pictures"), QStringLiteral(":/ui/widgetIcons"), {QStringLiteral("*.zelsvg")}},
    };
    for (const auto &folder : folders) {
        QVBoxLayout *section = addSection(
            folder.title,
            tr("%1 at 16, 24 and 48 pixels. Each block shows the modes normal, hover, disabled and "
               "selected side by side, the state off above the state on.")
                .arg(folder.folder));
        section->addWidget(new IconSheet(folder.folder, folder.patterns, this));
    }
}
