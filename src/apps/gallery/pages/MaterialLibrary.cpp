#include "MaterialLibrary.h"

#include <QCache>
#include <QCoreApplication>
#include <QIconEngine>
#include <QMimeData>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int cacheKilobytes = 64 * 1024;
constexpr int mostPixels = 1024;
constexpr qsizetype mostBytes = 1 << 20;

enum Pattern { Plain, Grain, Veins, Checks, Flakes };

struct Kind
{
    const char *name;
    Pattern pattern;
    int hue;
    int hueRange;
    int saturation;
    double roughness;
};

constexpr std::array kindTable{
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Ceramic"), Plain, 0, 360, 90, 0.2},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Fabric"), Checks, 0, 360, 150, 0.9},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Marble"), Veins, 20, 60, 40, 0.3},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Metal"), Grain, 200, 40, 25, 0.25},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Paint"), Flakes, 0, 360, 210, 0.1},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Plastic"), Plain, 0, 360, 190, 0.5},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Stone"), Flakes, 25, 30, 50, 0.8},
    Kind{QT_TRANSLATE_NOOP("MaterialLibrary", "Wood"), Grain, 18, 22, 150, 0.7},
};

uint scrambled(uint value)
{
    value = (value ^ (value >> 16)) * 0x45d9f3bU;
    value = (value ^ (value >> 16)) * 0x45d9f3bU;
    return value ^ (value >> 16);
}

const Kind &kindOf(int number)
{
    return kindTable[std::size_t(number) % kindTable.size()];
}

/// How light the surface is at a place, around 1.
double patternAt(Pattern pattern, double x, double y, const MaterialLibrary::Material &material)
{
    const double phase = material.seed % 628 / 100.0;
    switch (pattern) {
    case Plain:
        return 1.0;
    case Grain:
        return 1.0 + 0.14 * std::sin(material.scale * (3 * y + std::sin(2 * x + phase)) * 4);
    case Veins:
        return 1.0 - 0.35 * std::pow(std::abs(std::cos(material.scale * (x + y) +
                                                       2 * std::sin(3 * x - y + phase))),
                                     8.0);
    case Checks:
        return std::sin(material.scale * 5 * x) * std::sin(material.scale * 5 * y) > 0 ? 1.08 : 0.8;
    case Flakes: {
        const uint cell = uint(int((x + 2) * 24)) * 977U + uint(int((y + 2) * 24));
        return 0.88 + 0.24 * double(scrambled(cell + material.seed) % 100) / 100.0;
    }
    }
    return 1.0;
}

QRgb shaded(const QColor &color, double light, double gloss)
{
    const auto channel = [light, gloss](int value) {
        return std::clamp(int(value * light + 255 * gloss), 0, 255);
    };
    return qRgb(channel(color.red()), channel(color.green()), channel(color.blue()));
}

int &painted()
{
    static int count = 0;
    return count;
}

QPixmap cachedPicture(int number, int pixels)
{
    static QCache<quint64, QPixmap> cache(cacheKilobytes);
    const quint64 key = quint64(number) << 16 | quint64(pixels);
    if (const QPixmap *known = cache.object(key))
        return *known;
    const QPixmap made = QPixmap::fromImage(MaterialLibrary::picture(number, pixels));
    cache.insert(key, new QPixmap(made), std::max(1, pixels * pixels * 4 / 1024));
    return made;
}

class MaterialIconEngine : public QIconEngine
{
public:
    explicit MaterialIconEngine(int number)
        : number_(number)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const int side = std::min(rect.width(), rect.height());
        QRect square(0, 0, side, side);
        square.moveCenter(rect.center());
        const qreal ratio = painter->device()->devicePixelRatioF();
        const int pixels = std::clamp(qRound(side * ratio), 1, mostPixels);
        painter->save();
        painter->setOpacity(painter->opacity() * (mode == QIcon::Disabled ? 0.4 : 1.0));
        painter->drawPixmap(square, cachedPicture(number_, pixels));
        painter->restore();
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new MaterialIconEngine(number_); }

private:
    int number_;
};

} // namespace

QStringList MaterialLibrary::kinds()
{
    QStringList names;
    for (const Kind &kind : kindTable)
        names << QCoreApplication::translate("MaterialLibrary", kind.name);
    return names;
}

MaterialLibrary::Material MaterialLibrary::material(int number)
{
    const Kind &kind = kindOf(number);
    const uint seed = scrambled(uint(number) + 1);
    const QString name = QCoreApplication::translate("MaterialLibrary", kind.name);
    const int ofKind = number / int(kindTable.size()) + 1;
    return {QStringLiteral("%1 %2").arg(name).arg(ofKind, 4, 10, QLatin1Char('0')),
            name,
            QColor::fromHsv((kind.hue + int(seed % uint(kind.hueRange))) % 360, kind.saturation,
                            120 + int(seed / 512 % 120)),
            std::clamp(kind.roughness + int(seed / 64 % 21 - 10) / 100.0, 0.02, 1.0),
            2.0 + seed / 4096 % 6,
            seed};
}

QImage MaterialLibrary::picture(int number, int pixels)
{
    ++painted();
    const Material material = MaterialLibrary::material(number);
    const Pattern pattern = kindOf(number).pattern;
    const double shine = 4 + 60 * (1 - material.roughness);
    const double radius = pixels * 0.47;
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int row = 0; row < pixels; ++row) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(row));
        for (int column = 0; column < pixels; ++column) {
            const double x = (column + 0.5 - pixels / 2.0) / radius;
            const double y = (row + 0.5 - pixels / 2.0) / radius;
            const double outside = (std::sqrt(x * x + y * y) - 1) * radius;
            if (outside >= 0.5)
                continue;
            const double z = std::sqrt(std::max(0.0, 1 - x * x - y * y));
            const double diffuse = std::max(0.0, -0.45 * x - 0.6 * y + 0.66 * z);
            const double gloss = (1 - material.roughness) * std::pow(diffuse, shine);
            const double light = (0.22 + 0.85 * diffuse) * patternAt(pattern, x, y, material);
            const double cover = std::clamp(0.5 - outside, 0.0, 1.0);
            const QRgb color = shaded(material.color, light, gloss);
            line[column] =
                qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), qRound(255 * cover)));
        }
    }
    return image;
}

QIcon MaterialLibrary::icon(int number)
{
    return QIcon(new MaterialIconEngine(number));
}

int MaterialLibrary::paintedPictures()
{
    return painted();
}

QString MaterialLibrary::mimeType()
{
    return QStringLiteral("application/x-gallery-materials");
}

QMimeData *MaterialLibrary::toMimeData(const QList<int> &numbers)
{
    QStringList texts;
    QStringList names;
    for (const int number : numbers) {
        texts << QString::number(number);
        names << material(number).name;
    }
    auto *data = new QMimeData;
    data->setData(mimeType(), texts.join(u',').toLatin1());
    data->setText(names.join(u'\n'));
    return data;
}

QList<int> MaterialLibrary::fromMimeData(const QMimeData *data)
{
    QList<int> numbers;
    const QByteArray bytes = data->data(mimeType());
    if (bytes.size() > mostBytes)
        return numbers;
    for (const QByteArray &text : bytes.split(',')) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (isNumber && number >= 0 && number < size)
            numbers << number;
    }
    return numbers.mid(0, size);
}
