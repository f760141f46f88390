// The two ways between a colour and the temperature of a black body.

#include "ZelColorMath.h"

#include <limits>

namespace {

using ZelColorMath::Triple;

/// The colour-matching functions of the CIE 1931 2-degree observer, 380 nm to 770 nm.
constexpr double observer[][3] = {
    {0.0014, 0.0000, 0.0065}, {0.0042, 0.0001, 0.0201}, {0.0143, 0.0004, 0.0679},
    {0.0435, 0.0012, 0.2074}, {0.1344, 0.0040, 0.6456}, {0.2839, 0.0116, 1.3856},
    {0.3483, 0.0230, 1.7471}, {0.3362, 0.0380, 1.7721}, {0.2908, 0.0600, 1.6692},
    {0.1954, 0.0910, 1.2876}, {0.0956, 0.1390, 0.8130}, {0.0320, 0.2080, 0.4652},
    {0.0049, 0.3230, 0.2720}, {0.0093, 0.5030, 0.1582}, {0.0633, 0.7100, 0.0782},
    {0.1655, 0.8620, 0.0422}, {0.2904, 0.9540, 0.0203}, {0.4334, 0.9950, 0.0087},
    {0.5945, 0.9950, 0.0039}, {0.7621, 0.9520, 0.0021}, {0.9163, 0.8700, 0.0017},
    {1.0263, 0.7570, 0.0011}, {1.0622, 0.6310, 0.0008}, {1.0026, 0.5030, 0.0003},
    {0.8544, 0.3810, 0.0002}, {0.6424, 0.2650, 0.0000}, {0.4479, 0.1750, 0.0000},
    {0.2835, 0.1070, 0.0000}, {0.1649, 0.0610, 0.0000}, {0.0874, 0.0320, 0.0000},
    {0.0468, 0.0170, 0.0000}, {0.0227, 0.0082, 0.0000}, {0.0114, 0.0041, 0.0000},
    {0.0058, 0.0021, 0.0000}, {0.0029, 0.0010, 0.0000}, {0.0014, 0.0005, 0.0000},
    {0.0007, 0.0002, 0.0000}, {0.0003, 0.0001, 0.0000}, {0.0002, 0.0001, 0.0000},
    {0.0001, 0.0000, 0.0000},
};
constexpr int wavelengths = int(std::size(observer));
static_assert(wavelengths == 40);

/// One line of Robertson's table: the reciprocal temperature, where the line meets the black-body
/// curve in the CIE 1960 diagram, and its slope.
struct IsotemperatureLine
{
    double reciprocal;
    double u;
    double v;
    double slope;
};

/// The first line stands for an infinite temperature; its reciprocal can still be inverted.
constexpr IsotemperatureLine lines[] = {
    {std::numeric_limits<double>::min(), 0.18006, 0.26352, -0.24341},
    {10e-6, 0.18066, 0.26589, -0.25479},
    {20e-6, 0.18133, 0.26846, -0.26876},
    {30e-6, 0.18208, 0.27119, -0.28539},
    {40e-6, 0.18293, 0.27407, -0.30470},
    {50e-6, 0.18388, 0.27709, -0.32675},
    {60e-6, 0.18494, 0.28021, -0.35156},
    {70e-6, 0.18611, 0.28342, -0.37915},
    {80e-6, 0.18740, 0.28668, -0.40955},
    {90e-6, 0.18880, 0.28997, -0.44278},
    {100e-6, 0.19032, 0.29326, -0.47888},
    {125e-6, 0.19462, 0.30141, -0.58204},
    {150e-6, 0.19962, 0.30921, -0.70471},
    {175e-6, 0.20525, 0.31647, -0.84901},
    {200e-6, 0.21142, 0.32312, -1.0182},
    {225e-6, 0.21807, 0.32909, -1.2168},
    {250e-6, 0.22511, 0.33439, -1.4512},
    {275e-6, 0.23247, 0.33904, -1.7298},
    {300e-6, 0.24010, 0.34308, -2.0637},
    {325e-6, 0.24792, 0.34655, -2.4681},
    {350e-6, 0.25591, 0.34951, -2.9641},
    {375e-6, 0.26400, 0.35200, -3.5814},
    {400e-6, 0.27218, 0.35407, -4.3633},
    {425e-6, 0.28039, 0.35577, -5.3762},
    {450e-6, 0.28863, 0.35714, -6.7262},
    {475e-6, 0.29685, 0.35823, -8.5955},
    {500e-6, 0.30505, 0.35907, -11.324},
    {525e-6, 0.31320, 0.35968, -15.628},
    {550e-6, 0.32129, 0.36011, -23.325},
    {575e-6, 0.32931, 0.36038, -40.770},
    {600e-6, 0.33724, 0.36051, -116.45},
};
static_assert(std::size(lines) == 31);

/// What doesn't depend on the temperature, for one wavelength.
struct Radiation
{
    double scale;
    double exponent;
};

std::array<Radiation, wavelengths> radiations()
{
    std::array<Radiation, wavelengths> table;
    for (int i = 0; i < wavelengths; ++i) {
        const double metres = (380 + 10 * i) * 1e-9;
        table[size_t(i)] = {3.741832e-16 * std::pow(metres, -5.0), 0.01438786 / metres};
    }
    return table;
}

double distance(const IsotemperatureLine &line, double u, double v)
{
    return (v - line.v) - (u - line.u) * line.slope;
}

double normalized(double distance, const IsotemperatureLine &line)
{
    return distance / std::sqrt(1.0 + line.slope * line.slope);
}

} // namespace

Triple ZelColorMath::blackBodyToXyz(float kelvin)
{
    static const auto table = radiations();
    if (!(kelvin > 0.0f))
        return {0.0f, 0.0f, 0.0f};
    const double degrees = std::min(kelvin, std::numeric_limits<float>::max());
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    for (int i = 0; i < wavelengths; ++i) {
        const Radiation &wave = table[size_t(i)];
        const double radiance = wave.scale / std::expm1(wave.exponent / degrees);
        x += radiance * observer[i][0];
        y += radiance * observer[i][1];
        z += radiance * observer[i][2];
    }
    const double sum = x + y + z;
    if (!(sum > 0.0 && y > 0.0))
        return {0.0f, 0.0f, 0.0f};
    x /= sum;
    y /= sum;
    return {float(x * 50.0 / y), 50.0f, float((1.0 - x - y) * 50.0 / y)};
}

float ZelColorMath::temperature(const Triple &xyz)
{
    constexpr float dark = 1e-20f;
    if (xyz[0] < dark && xyz[1] < dark && xyz[2] < dark)
        return 0.0f;
    const double x = xyz[0];
    const double y = xyz[1];
    const double weight = x + 15.0 * y + 3.0 * xyz[2];
    const double u = 4.0 * x / weight;
    const double v = 6.0 * y / weight;
    double before = distance(lines[0], u, v);
    for (size_t i = 1; i < std::size(lines); ++i) {
        const double here = distance(lines[i], u, v);
        if ((before < 0.0 && here >= 0.0) || (before >= 0.0 && here < 0.0)) {
            const double d0 = normalized(before, lines[i - 1]);
            const double d1 = normalized(here, lines[i]);
            const double first = lines[i - 1].reciprocal;
            const double kelvin = 1.0 / (first + d0 / (d0 - d1) * (lines[i].reciprocal - first));
            return float(std::min(kelvin, double(std::numeric_limits<float>::max())));
        }
        before = here;
    }
    return 0.0f;
}
