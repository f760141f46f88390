#include "LiveIconView.h"

#include <ZelWidgets/IconColorTheme>

#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr int side = 48;
constexpr int gap = 12;

struct Column
{
    QIcon::Mode mode;
    const char *name;
};
constexpr Column columns[] = {{QIcon::Normal, QT_TRANSLATE_NOOP("LiveIconView", "Normal")},
                              {QIcon::Active, QT_TRANSLATE_NOOP("LiveIconView", "Hover")},
                              {QIcon::Disabled, QT_TRANSLATE_NOOP("LiveIconView", "Disabled")},
                              {QIcon::Selected, QT_TRANSLATE_NOOP("LiveIconView", "Selected")}};

constexpr QIcon::State states[] = {QIcon::Off, QIcon::On};

} // namespace

LiveIconView::LiveIconView(QWidget *parent)
    : QWidget(parent)
{
    setMinimumSize(sizeHint());
    setAccessibleName(tr("Rendered document"));
}

void LiveIconView::setDocument(const QString &svg)
{
    svg_ = svg;
    refresh();
}

void LiveIconView::refresh()
{
    documents_.clear();
    for (const Column &column : columns) {
        for (const QIcon::State state : states) {
            documents_.append(
                IconColorTheme::instance()
                    ->mapSvgToTheme(svg_, column.mode, state, QStringLiteral("typed document"))
                    .toUtf8());
        }
    }
    update();
}

QSize LiveIconView::sizeHint() const
{
    const int title = fontMetrics().height() + gap;
    return {4 * (side + 2 * gap) + gap, title + 2 * (side + gap) + gap};
}

void LiveIconView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    int x = gap;
    qsizetype document = 0;
    for (const Column &column : columns) {
        painter.drawText(QRect(x - gap, 0, side + 2 * gap, fontMetrics().height()), Qt::AlignCenter,
                         tr(column.name));
        int y = fontMetrics().height() + gap;
        for (int row = 0; row < int(std::size(states)); ++row) {
            const QByteArray text = documents_.value(document++);
            QSvgRenderer renderer;
            if (!text.isEmpty() && renderer.load(text))
                renderer.render(&painter, QRectF(x, y, side, side));
            y += side + gap;
        }
        x += side + 2 * gap;
    }
}
