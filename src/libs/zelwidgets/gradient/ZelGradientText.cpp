#include "gradient/ZelGradientText.h"

#include "gradient/ZelGradientLines.h"

#include <QCoreApplication>
#include <QUrl>

#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr qsizetype longestText = 16 * 1024 * 1024;
constexpr int mostStops = 65536;
constexpr int version = 1;
constexpr QByteArrayView formName = "zelgradient";
constexpr std::array<QByteArrayView, 5> spaceNames = {"xyz", "rgb", "hsv", "cmyk", "lab"};

QString tr(const char *text)
{
    return QCoreApplication::translate("ZelGradientText", text);
}

size_t componentCount(ZelColor::Space space)
{
    return space == ZelColor::Space::CMYK ? 4 : 3;
}

// The shortest digits that are read back as the same float.
void append(QByteArray &text, float number)
{
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   std::isfinite(number) ? number : 0.0f);
    text += ' ';
    text.append(digits.data(), end.ptr - digits.data());
}

void append(QByteArray &text, const ZelColor &color)
{
    const auto space = size_t(color.space());
    if (space >= spaceNames.size()) {
        const auto [red, green, blue] = color.toRGB();
        append(text, ZelColor(ZelColor::Space::RGB, red, green, blue));
        return;
    }
    text += ' ';
    text += spaceNames[space];
    for (size_t i = 0; i < componentCount(color.space()); ++i)
        append(text, color.components()[i]);
    if (!color.name().empty())
        text += ' ' + QUrl::toPercentEncoding(QString::fromStdString(color.name()));
}

QByteArray lineOf(const ZelGradientStop &stop)
{
    QByteArray line = stop.isAlpha() ? "opacity" : "color";
    append(line, stop.location());
    append(line, stop.slopeIn());
    append(line, stop.slopeOut());
    append(line, stop.isAlpha() ? stop.alpha() : stop.gain());
    if (stop.isColor())
        append(line, stop.color());
    return line + '\n';
}

class Reader
{
public:
    Reader(QByteArrayView text, ZelGradient &gradient)
        : lines_(text)
        , gradient_(gradient)
    {}

    bool read()
    {
        if (!readHeader())
            return false;
        while (lines_.nextLine()) {
            if (!readLine() || !lines_.lineEnds())
                return false;
        }
        return true;
    }

    QString error() const { return lines_.error(); }

private:
    bool readHeader()
    {
        lines_.nextLine();
        const QByteArrayView found = lines_.word();
        if (found != formName)
            return lines_.fail(tr("a gradient"), found);
        int number = 0;
        return lines_.number(number, version, version) && lines_.lineEnds();
    }

    bool readLine()
    {
        const QByteArrayView what = lines_.word();
        if (what == "blend")
            return readBlend();
        if (what != "color" && what != "opacity")
            return lines_.fail(tr("\"blend\", \"opacity\" or \"color\""), what);
        if (++stops_ > mostStops)
            return lines_.fail(tr("no more than %1 stops").arg(mostStops), {});
        return readStop(what == "color");
    }

    bool readBlend()
    {
        const QByteArrayView found = lines_.word();
        if (found != "on" && found != "off")
            return lines_.fail(tr("\"on\" or \"off\""), found);
        gradient_.setBlend(found == "on");
        return true;
    }

    bool readStop(bool isColor)
    {
        float location = 0.0f;
        float slopeIn = 0.0f;
        float slopeOut = 0.0f;
        float value = 0.0f;
        ZelColor color;
        if (!lines_.number(location, 0.0f, 1.0f) || !lines_.number(slopeIn, 0.0f, 4.0f) ||
            !lines_.number(slopeOut, 0.0f, 4.0f) || !lines_.number(value) ||
            (isColor && !readColor(color)))
            return false;
        ZelGradientStop stop = isColor ? ZelGradientStop(nullptr, location, color, value)
                                       : ZelGradientStop(nullptr, location, value);
        stop.setSlopeIn(slopeIn);
        stop.setSlopeOut(slopeOut);
        stop.clone(&gradient_);
        return true;
    }

    bool readColor(ZelColor &color)
    {
        const QByteArrayView found = lines_.word();
        const auto name = std::find(spaceNames.begin(), spaceNames.end(), found);
        if (name == spaceNames.end())
            return lines_.fail(tr("a colour space"), found);
        const auto space = ZelColor::Space(name - spaceNames.begin());
        std::array<float, 4> components = {};
        for (size_t i = 0; i < componentCount(space); ++i) {
            if (!lines_.number(components[i]))
                return false;
        }
        color = ZelColor(space, components[0], components[1], components[2], components[3]);
        color.setName(QUrl::fromPercentEncoding(lines_.word().toByteArray()).toStdString());
        return true;
    }

    ZelGradientLines lines_;
    ZelGradient &gradient_;
    int stops_ = 0;
};

} // namespace

QString ZelGradientText::write(const ZelGradient &gradient)
{
    QByteArray text = formName.toByteArray() + ' ' + QByteArray::number(version) + '\n';
    text += gradient.blend() ? "blend on\n" : "blend off\n";
    for (const ZelGradientStop &stop : gradient)
        text += lineOf(stop);
    return QString::fromUtf8(text);
}

bool ZelGradientText::read(const QString &text, ZelGradient &gradient, QString *error)
{
    QString complaint;
    if (text.size() > longestText) {
        complaint = tr("The text is too long for a gradient.");
    } else {
        const QByteArray bytes = text.toUtf8();
        ZelGradient result(gradient.hasAlpha() ? ZelGradient::Alpha : ZelGradient::Feature());
        Reader reader(bytes, result);
        if (reader.read()) {
            gradient.reset(result);
            return true;
        }
        complaint = reader.error();
    }
    if (error)
        *error = complaint;
    return false;
}
