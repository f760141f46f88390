#include "ZelMarkerPainter.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>

#include <array>
#include <cmath>
#include <vector>

namespace {

/// Stamps for the places of a marker's middle within a pixel, along each axis.
constexpr int phases = 4;
/// Larger markers are few, and their stamps would be large.
constexpr double largestStamp = 96;
/// Markers farther from the origin are far outside of any screen.
constexpr double farthest = 1e6;

void paintShape(QPainter &painter, const ZelMarkerLook &look)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgba(look.pen), look.penWidth));
    painter.setBrush(QColor::fromRgba(look.brush));
    painter.drawPath(zelMarkerPath(look.isRound, look.size));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// 1 or 2 where pixmaps can be laid on the device pixel by pixel, else 0.
int stampScale(const QPainter &painter, const QTransform &toDevice)
{
    const QPaintEngine *engine = painter.paintEngine();
    if (!engine || engine->type() != QPaintEngine::Raster ||
        toDevice.type() > QTransform::TxScale || toDevice.m11() != toDevice.m22())
        return 0;
    return toDevice.m11() == 1.0 ? 1 : toDevice.m11() == 2.0 ? 2 : 0;
}

} // namespace

/// The pictures of one look at one device pixel ratio, painted as they are needed.
struct ZelMarkerStamps
{
    ZelMarkerStamps(const ZelMarkerLook &ofLook, int atScale)
        : look(ofLook)
        , scale(atScale)
        , margin(int(std::ceil((look.size + look.penWidth) * scale / 2)) + 2)
    {}

    const QPixmap &at(int phaseX, int phaseY)
    {
        QPixmap &pixmap = pixmaps[size_t(phaseY * phases + phaseX)];
        if (pixmap.isNull())
            pixmap = painted(phaseX, phaseY);
        return pixmap;
    }

    QPixmap painted(int phaseX, int phaseY) const
    {
        QImage image(QSize(2 * margin + 1, 2 * margin + 1), QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate((margin + double(phaseX) / phases) / scale,
                          (margin + double(phaseY) / phases) / scale);
        paintShape(painter, look);
        painter.end();
        return QPixmap::fromImage(std::move(image));
    }

    ZelMarkerLook look;
    int scale;
    /// From the picture's edges to the pixel in the middle.
    int margin;
    std::array<QPixmap, size_t(phases) * phases> pixmaps;
};

namespace {

/// The stamps of a look; they live as long as a marker uses them.
std::shared_ptr<ZelMarkerStamps> stampsOf(const ZelMarkerLook &look, int scale)
{
    static std::vector<std::weak_ptr<ZelMarkerStamps>> known;
    for (const auto &entry : known) {
        const auto stamps = entry.lock();
        if (stamps && stamps->scale == scale && stamps->look == look)
            return stamps;
    }
    std::erase_if(known, [](const auto &entry) { return entry.expired(); });
    auto stamps = std::make_shared<ZelMarkerStamps>(look, scale);
    known.push_back(stamps);
    return stamps;
}

} // namespace

ZelMarkerPainter::ZelMarkerPainter() = default;
ZelMarkerPainter::~ZelMarkerPainter() = default;

void ZelMarkerPainter::paint(QPainter &painter, const ZelMarkerLook &look)
{
    const QTransform toDevice = painter.deviceTransform();
    const int scale = stampScale(painter, toDevice);
    if (scale == 0 || !(look.size + look.penWidth < largestStamp)) {
        paintShape(painter, look);
        return;
    }
    if (!(std::abs(toDevice.dx()) < farthest && std::abs(toDevice.dy()) < farthest))
        return;
    if (!stamps_ || stamps_->scale != scale || stamps_->look != look)
        stamps_ = stampsOf(look, scale);
    const int x = qRound(toDevice.dx() * phases);
    const int y = qRound(toDevice.dy() * phases);
    const int left = (x - (x & (phases - 1))) / phases;
    const int top = (y - (y & (phases - 1))) / phases;
    painter.drawPixmap(QPointF((left - stamps_->margin - toDevice.dx()) / scale,
                               (top - stamps_->margin - toDevice.dy()) / scale),
                       stamps_->at(x & (phases - 1), y & (phases - 1)));
}

QPainterPath zelMarkerPath(bool isRound, double size)
{
    struct Known
    {
        double size = -1;
        QPainterPath path;
    };
    static std::array<Known, 2> latest;
    Known &known = latest[isRound ? 0 : 1];
    if (known.size != size) {
        const QRectF rect(-size / 2, -size / 2, size, size);
        known.path = QPainterPath();
        if (isRound)
            known.path.addEllipse(rect);
        else
            known.path.addRect(rect);
        known.size = size;
    }
    return known.path;
}

double zelApplicationFontHeight()
{
    static QFont knownFont;
    static double height = -1;
    const QFont font = QApplication::font();
    if (height < 0 || font != knownFont) {
        knownFont = font;
        height = QFontMetricsF(font).height();
    }
    return height;
}
