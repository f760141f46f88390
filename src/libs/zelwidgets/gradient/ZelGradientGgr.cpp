#include "gradient/ZelGradientGgr.h"

#include "gradient/ZelGradientLines.h"
#include "gradient/ZelGradientSegment.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

using Segment = ZelGradientSegment;

constexpr qsizetype longestContent = 4 * 1024 * 1024;
constexpr int mostSegments = 4096;
/// Files that were written with few digits leave such gaps between segments.
constexpr float gap = 0.001f;

QString tr(const char *text)
{
    return QCoreApplication::translate("ZelGradientGgr", text);
}

class Reader
{
public:
    explicit Reader(QByteArrayView content)
        : lines_(content)
    {}

    const std::vector<Segment> &segments() const { return segments_; }
    QString name() const { return name_; }
    QString error() const { return lines_.error(); }

    bool read()
    {
        int count = 0;
        if (!readHeader(count))
            return false;
        float end = 0.0f;
        for (int i = 0; i < count; ++i, end = segments_.back().right) {
            if (!lines_.nextLine())
                return lines_.fail(tr("a segment"), {});
            if (!readSegment(end))
                return false;
        }
        if (end < 1.0f - gap)
            return lines_.fail(tr("segments up to 1"), {});
        segments_.back().right = 1.0f;
        return true;
    }

private:
    bool readHeader(int &count)
    {
        lines_.nextLine();
        if (lines_.rest() != "GIMP Gradient")
            return lines_.fail(tr("\"GIMP Gradient\""), lines_.rest());
        lines_.nextLine();
        if (lines_.rest().startsWith("Name:")) {
            lines_.word();
            name_ = QString::fromUtf8(lines_.rest());
            lines_.nextLine();
        }
        return lines_.number(count, 1, mostSegments) && lines_.lineEnds();
    }

    bool readSegment(float start)
    {
        Segment segment;
        int function = 0;
        int coloring = 0;
        if (!lines_.number(segment.left, start - gap, start + gap) ||
            !lines_.number(segment.middle, segment.left, 1.0f) ||
            !lines_.number(segment.right, segment.middle, 1.0f) || !readColor(segment.from) ||
            !readColor(segment.to) || !lines_.number(function, Segment::Linear, Segment::Step) ||
            !lines_.number(coloring, Segment::Rgb, Segment::HsvDownwards) ||
            (!lines_.rest().isEmpty() &&
             !(readSource(segment.from) && readSource(segment.to) && lines_.lineEnds())))
            return false;
        segment.left = start;
        segment.right = std::max(segment.right, start);
        segment.middle = std::clamp(segment.middle, start, segment.right);
        segment.function = Segment::Function(function);
        segment.coloring = Segment::Coloring(coloring);
        segments_.push_back(segment);
        return true;
    }

    bool readColor(Segment::Rgba &color)
    {
        constexpr float most = 1000.0f;
        return std::all_of(color.begin(), color.end(),
                           [&](float &channel) { return lines_.number(channel, -most, most); });
    }

    /// 0 keeps the colour; then foreground, it without opacity, background, it without opacity.
    bool readSource(Segment::Rgba &color)
    {
        int source = 0;
        if (!lines_.number(source, 0, 4))
            return false;
        if (source > 0) {
            const float channel = source > 2 ? 1.0f : 0.0f;
            color = {channel, channel, channel, source % 2 == 1 ? 1.0f : 0.0f};
        }
        return true;
    }

    ZelGradientLines lines_;
    QString name_;
    std::vector<Segment> segments_;
};

/// Joins pieces to stops of one kind: an end and a start of equal value on one place are one stop.
class Joiner
{
public:
    Joiner(ZelGradient &gradient, bool isColor)
        : gradient_(gradient)
        , isColor_(isColor)
    {}

    void add(const Segment::Piece &piece)
    {
        if (!isOpen_ || !isSame(piece.from)) {
            finish();
            begin(piece.start, piece.from);
        }
        stop_.setSlopeOut(piece.slopeOut);
        finish();
        begin(piece.end, piece.to);
        stop_.setSlopeIn(piece.slopeIn);
    }

    void finish()
    {
        if (isOpen_)
            stop_.clone(&gradient_);
        isOpen_ = false;
    }

private:
    bool isSame(const Segment::Rgba &value) const
    {
        return isColor_ ? std::equal(value.begin(), value.begin() + 3, value_.begin())
                        : value[3] == value_[3];
    }

    void begin(float location, const Segment::Rgba &value)
    {
        value_ = value;
        isOpen_ = true;
        const ZelColor color(ZelColor::Space::RGB, value[0], value[1], value[2]);
        stop_ = isColor_ ? ZelGradientStop(nullptr, location, color, 1.0f)
                         : ZelGradientStop(nullptr, location, value[3]);
    }

    ZelGradient &gradient_;
    bool isColor_;
    bool isOpen_ = false;
    Segment::Rgba value_ = {};
    ZelGradientStop stop_;
};

void build(const std::vector<Segment> &segments, ZelGradient &gradient)
{
    const bool isOpaque = std::all_of(segments.begin(), segments.end(), [](const Segment &segment) {
        return segment.from[3] >= 1.0f && segment.to[3] >= 1.0f;
    });
    Joiner colors(gradient, true);
    Joiner opacities(gradient, false);
    for (const Segment &segment : segments) {
        for (const Segment::Piece &piece : segment.pieces()) {
            colors.add(piece);
            if (!isOpaque)
                opacities.add(piece);
        }
    }
    colors.finish();
    opacities.finish();
}

} // namespace

bool ZelGradientGgr::read(const QByteArray &content, ZelGradient &gradient, QString *name,
                          QString *error)
{
    if (content.size() > longestContent) {
        if (error)
            *error = tr("The file is too long for a gradient.");
        return false;
    }
    Reader reader(content);
    if (!reader.read()) {
        if (error)
            *error = reader.error();
        return false;
    }
    if (name)
        *name = reader.name();
    ZelGradient result(gradient.hasAlpha() ? ZelGradient::Alpha : ZelGradient::Feature());
    build(reader.segments(), result);
    gradient.reset(result);
    return true;
}
