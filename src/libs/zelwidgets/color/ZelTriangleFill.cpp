#include "ZelTriangleFill.h"

#include <QColor>
#include <QImage>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>

namespace {

using ZelTriangleFill::Corner;

/// A place on an edge or in a row, with its colour.
struct Record
{
    double x;
    double red;
    double green;
    double blue;

    Record &operator+=(const Record &step)
    {
        x += step.x;
        red += step.red;
        green += step.green;
        blue += step.blue;
        return *this;
    }
};

Record operator-(const Record &left, const Record &right)
{
    return {left.x - right.x, left.red - right.red, left.green - right.green,
            left.blue - right.blue};
}

Record operator*(const Record &record, double factor)
{
    return {record.x * factor, record.red * factor, record.green * factor, record.blue * factor};
}

Record recordOf(const Corner &corner)
{
    return {corner.point.x(), double(qRed(corner.color)), double(qGreen(corner.color)),
            double(qBlue(corner.color))};
}

/// Inline room for the rows of any usual triangle.
using Records = QVarLengthArray<Record, 2000>;

/// Pixels from the first up to, but not with, the last.
struct Span
{
    int first;
    int last;
};

/// The pixels of a line of this length whose centres lie between two places.
Span centersBetween(double from, double to, int length)
{
    const double most = length;
    return {int(std::clamp(std::ceil(from - 0.5), 0.0, most)),
            int(std::clamp(std::ceil(to - 0.5), 0.0, most))};
}

class Filler
{
public:
    Filler(QImage &image, const Corner &top, const Corner &bottom)
        : image_(image)
        , rows_(centersBetween(top.point.y(), bottom.point.y(), image.height()))
        , longEdge_(rows_.last - rows_.first)
        , shortEdges_(rows_.last - rows_.first)
    {}

    void walkLongEdge(const Corner &from, const Corner &to) { walk(from, to, longEdge_); }
    void walkShortEdge(const Corner &from, const Corner &to) { walk(from, to, shortEdges_); }

    void fillRows()
    {
        for (int row = rows_.first; row < rows_.last; ++row) {
            const Record &one = longEdge_[row - rows_.first];
            const Record &other = shortEdges_[row - rows_.first];
            fillRow(row, one.x <= other.x ? one : other, one.x <= other.x ? other : one);
        }
    }

private:
    void walk(const Corner &from, const Corner &to, Records &records) const
    {
        const Span rows = centersBetween(from.point.y(), to.point.y(), image_.height());
        if (rows.first >= rows.last)
            return;
        const Record step =
            (recordOf(to) - recordOf(from)) * (1.0 / (to.point.y() - from.point.y()));
        Record record = recordOf(from);
        record += step * (rows.first + 0.5 - from.point.y());
        for (int row = rows.first; row < rows.last; ++row, record += step)
            records[row - rows_.first] = record;
    }

    void fillRow(int row, const Record &left, const Record &right)
    {
        const Span pixels = centersBetween(left.x, right.x, image_.width());
        if (pixels.first >= pixels.last)
            return;
        const Record step = (right - left) * (1.0 / (right.x - left.x));
        // The half makes the truncation round.
        Record color = left;
        color += step * (pixels.first + 0.5 - left.x);
        color += {0.0, 0.5, 0.5, 0.5};
        auto *line = reinterpret_cast<QRgb *>(image_.scanLine(row));
        for (int x = pixels.first; x < pixels.last; ++x, color += step)
            line[x] = qRgb(int(color.red), int(color.green), int(color.blue));
    }

    QImage &image_;
    Span rows_;
    Records longEdge_;
    Records shortEdges_;
};

} // namespace

void ZelTriangleFill::fill(QImage &image, std::array<Corner, 3> corners)
{
    std::sort(corners.begin(), corners.end(), [](const Corner &left, const Corner &right) {
        return left.point.y() < right.point.y();
    });
    const auto &[top, middle, bottom] = corners;
    Filler filler(image, top, bottom);
    filler.walkLongEdge(top, bottom);
    filler.walkShortEdge(top, middle);
    filler.walkShortEdge(middle, bottom);
    filler.fillRows();
}
