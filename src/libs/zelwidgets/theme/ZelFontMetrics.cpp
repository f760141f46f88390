#include "ZelFontMetrics.h"

#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>
#include <limits>

namespace {

constexpr int notReadYet = -123;
constexpr int noChoice = -1;

int fontSizeSetting = notReadYet;

QString fontSizeKey()
{
    return QStringLiteral("FontSize");
}

ZelSettings uiSettings()
{
    return ZelSettings(QStringLiteral("ui"));
}

QFontMetrics metricsOn(const QFont &font, const QPaintDevice *device)
{
    return device ? QFontMetrics(font, device) : QFontMetrics(font);
}

int truncated(double value)
{
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return value >= lowest && value <= highest ? static_cast<int>(value) : noChoice;
}

} // namespace

ZelFontMetrics::ZelFontMetrics(const QWidget *widget)
    : QFontMetrics(metricsOn(widget ? widget->font() : QApplication::font(), widget))
{}

ZelFontMetrics::ZelFontMetrics(const QFont &font, const QPaintDevice *device)
    : QFontMetrics(metricsOn(font, device))
{}

int ZelFontMetrics::getHeight(HeightType type) const
{
    switch (type) {
    case FontHeight:
        return height();
    case EditorHeight:
        return editorHeight();
    }
    return -1;
}

int ZelFontMetrics::editorHeight() const
{
    return 12 * boundingRect(QStringLiteral("Wgj")).height() / 10 + 6;
}

int ZelFontMetrics::widthM() const
{
    return boundingRect(QStringLiteral("M")).width();
}

int ZelFontMetrics::getZelmoraFontSizeSetting()
{
    if (fontSizeSetting == notReadYet) {
        bool isNumber = false;
        const double stored = uiSettings().value(fontSizeKey(), noChoice).toDouble(&isNumber);
        fontSizeSetting = isNumber ? truncated(stored) : noChoice;
    }
    return fontSizeSetting;
}

void ZelFontMetrics::setZelmoraFontSizeSetting(int points)
{
    fontSizeSetting = points;
    uiSettings().setValue(fontSizeKey(), points);
}

int ZelFontMetrics::getApplicationFontSize()
{
    const int points = QApplication::font().pointSize();
    return points < 1 ? 9 : std::max(points, 8);
}

int ZelFontMetrics::adjustFontSize(int points)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen && screen->devicePixelRatio() >= 2.0 ? points - 2 : points;
}

int ZelFontMetrics::actualZelmoraFontSize()
{
    QWidget probe;
    probe.ensurePolished();
    return probe.font().pointSize();
}
