#include "color/ZelColorHex.h"

#include <cmath>

namespace {

constexpr int digits = 6;

} // namespace

QString ZelColorHex::write(const ZelColor &color)
{
    QString text;
    for (const float channel : color.toRGB()) {
        const float inRange = std::isfinite(channel) ? qBound(0.0F, channel, 1.0F) : 0.0F;
        text += QStringLiteral("%1").arg(int(inRange * 255 + 0.5F), 2, 16, QLatin1Char('0'));
    }
    return text.toUpper();
}

ZelColor ZelColorHex::read(QString text)
{
    text.remove(u'#');
    if (text.size() == digits / 2) {
        for (qsizetype i = digits / 2 - 1; i >= 0; --i)
            text.insert(i, text.at(i));
    }
    text = text.leftJustified(digits, u'0');
    const auto channel = [&text](qsizetype index) {
        return float(text.mid(2 * index, 2).toUInt(nullptr, 16)) / 255.0F;
    };
    return {ZelColor::Space::RGB, channel(0), channel(1), channel(2)};
}
