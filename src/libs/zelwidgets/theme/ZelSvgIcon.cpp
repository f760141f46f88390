#include "ZelSvgIcon.h"

#include <QDebug>
#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>

namespace {

class SVGIconEngine : public QIconEngine
{
public:
    explicit SVGIconEngine(const QByteArray &svg)
        : svg_(svg)
    {}
    ~SVGIconEngine() override = default;

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        Q_UNUSED(mode)
        Q_UNUSED(state)
        if (!svg_.isEmpty())
            QSvgRenderer(svg_).render(painter, rect);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QImage image(size, QImage::Format_ARGB32);
        image.fill(0);
        QPixmap pixmap = QPixmap::fromImage(image, Qt::NoFormatConversion);
        if (pixmap.isNull())
            return pixmap;
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new SVGIconEngine(svg_); }

private:
    QByteArray svg_;
};

constexpr qsizetype digitCount = 6;

bool isLowerHexDigit(QChar character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f');
}

bool isHexDigit(QChar character)
{
    return isLowerHexDigit(character) || (character >= u'A' && character <= u'F');
}

// Whether a colour of exactly six lower-case digits begins at the index.
bool isPlainColorAt(const QString &text, qsizetype index)
{
    if (text.at(index) != u'#')
        return false;
    const QStringView digits = QStringView(text).mid(index + 1, digitCount);
    const qsizetype behind = index + 1 + digitCount;
    return std::all_of(digits.begin(), digits.end(), isLowerHexDigit) &&
           !(behind < text.size() && isHexDigit(text.at(behind)));
}

} // namespace

ZelSvgIcon::ZelSvgIcon(const QString &svg)
    : QIcon(new SVGIconEngine(svg.toUtf8()))
    , text_(svg)
{}

ZelSvgIcon ZelSvgIcon::fromFile(const QString &path)
{
    QFile file(path);
    QString text;
    if (file.open(QIODevice::ReadOnly))
        text = QString::fromUtf8(file.readAll());
    else
        qWarning() << "Svg file not found: " << path;
    return ZelSvgIcon(text);
}

void ZelSvgIcon::setNewText(const QString &svg)
{
    *this = ZelSvgIcon(svg);
}

void ZelSvgIcon::overrideColor(const QString &color)
{
    if (color.size() < 1 + digitCount) {
        qWarning() << "ZelSvgIcon: not a color of six digits:" << color;
        return;
    }
    const QString digits = color.mid(1, digitCount);
    QString text = text_;
    for (qsizetype i = 0; i < text.size() - digitCount; ++i) {
        if (!isPlainColorAt(text, i))
            continue;
        qDebug() << "ZelSvgIcon: Replacing color " << text.mid(i + 1, digitCount) << " with "
                 << color;
        text.replace(i + 1, digitCount, digits);
    }
    setNewText(text);
}
