#include "TestCase.h"

#include <ZelCore/ZelColor>
#include <ZelCore/ZelColorMath>
#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelSettings>

#include <QSignalSpy>

#include <cmath>
#include <functional>
#include <lcms2.h>
#include <limits>
#include <memory>

using namespace ZelColorMath;
using Space = ZelColor::Space;

namespace {

QString text(const Triple &triple)
{
    return QStringLiteral("(%1, %2, %3)").arg(triple[0]).arg(triple[1]).arg(triple[2]);
}

float distance(const Triple &a, const Triple &b)
{
    float largest = 0.0f;
    for (size_t i = 0; i < 3; ++i) {
        const float difference = std::abs(a[i] - b[i]);
        // What isn't a number has to count as far.
        largest = difference <= largest ? largest : difference;
    }
    return largest;
}

#define VERIFY_NEAR(actual, expected, limit)                                                       \
    QVERIFY2(distance(actual, expected) <= (limit),                                                \
             qPrintable(text(actual) + QStringLiteral(" is not ") + text(expected)))

/// All colours of a grid with this many steps between 0 and 1.
std::vector<Triple> grid(int steps)
{
    std::vector<Triple> colors;
    const float step = 1.0f / float(steps);
    for (int r = 0; r <= steps; ++r) {
        for (int g = 0; g <= steps; ++g) {
            for (int b = 0; b <= steps; ++b)
                colors.push_back({float(r) * step, float(g) * step, float(b) * step});
        }
    }
    return colors;
}

Triple fromChromaticity(double x, double y)
{
    return {float(x / y * 50.0), 50.0f, float((1.0 - x - y) / y * 50.0)};
}

/// A colour-management library's idea of the same numbers.
class Oracle
{
public:
    Oracle()
        : profile_(cmsCreate_sRGBProfile(), &cmsCloseProfile)
        , xyzProfile_(cmsCreateXYZProfile(), &cmsCloseProfile)
        , toXyz_(transform(profile_.get(), TYPE_RGB_DBL, xyzProfile_.get(), TYPE_XYZ_DBL))
        , toRgb_(transform(xyzProfile_.get(), TYPE_XYZ_DBL, profile_.get(), TYPE_RGB_DBL))
    {}

    Triple rgbToXyz(const Triple &rgb) const
    {
        const double in[3] = {rgb[0], rgb[1], rgb[2]};
        cmsCIEXYZ profileWhite;
        cmsDoTransform(toXyz_.get(), in, &profileWhite, 1);
        cmsCIEXYZ out;
        cmsAdaptToIlluminant(&out, cmsD50_XYZ(), &white, &profileWhite);
        return {float(out.X * 100), float(out.Y * 100), float(out.Z * 100)};
    }

    Triple xyzToRgb(const Triple &xyz) const
    {
        const cmsCIEXYZ in = scaled(xyz);
        cmsCIEXYZ profileWhite;
        cmsAdaptToIlluminant(&profileWhite, &white, cmsD50_XYZ(), &in);
        double out[3];
        cmsDoTransform(toRgb_.get(), &profileWhite, out, 1);
        return {float(out[0]), float(out[1]), float(out[2])};
    }

    static Triple xyzToLab(const Triple &xyz)
    {
        const cmsCIEXYZ in = scaled(xyz);
        cmsCIELab out;
        cmsXYZ2Lab(&white, &out, &in);
        return {float(out.L), float(out.a), float(out.b)};
    }

    static Triple labToXyz(const Triple &lab)
    {
        const cmsCIELab in = {lab[0], lab[1], lab[2]};
        cmsCIEXYZ out;
        cmsLab2XYZ(&white, &out, &in);
        return {float(out.X * 100), float(out.Y * 100), float(out.Z * 100)};
    }

private:
    struct Close
    {
        void operator()(void *transform) const { cmsDeleteTransform(transform); }
    };
    using Transform = std::unique_ptr<void, Close>;

    static Transform transform(cmsHPROFILE from, quint32 input, cmsHPROFILE to, quint32 output)
    {
        return Transform(cmsCreateTransform(from, input, to, output, INTENT_RELATIVE_COLORIMETRIC,
                                            cmsFLAGS_NOOPTIMIZE));
    }
    static cmsCIEXYZ scaled(const Triple &xyz)
    {
        return {xyz[0] / 100.0, xyz[1] / 100.0, xyz[2] / 100.0};
    }

    static constexpr cmsCIEXYZ white = {0.95047, 1.0, 1.08883};
    std::unique_ptr<void, decltype(&cmsCloseProfile)> profile_;
    std::unique_ptr<void, decltype(&cmsCloseProfile)> xyzProfile_;
    Transform toXyz_;
    Transform toRgb_;
};

} // namespace

class ColorTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void gammaSwitchesStartFromTheSettings();
    void gammaSettersTellChangesOnly();
    void gammaAndItsInverseMeet();
    void knownColorsConvert();
    void componentsOfTheOwnSpaceStayAsTheyAre();
    void srgbAgreesWithColorManagement();
    void labAgreesWithColorManagement();
    void spacesLeadBackToRgb_data();
    void spacesLeadBackToRgb();
    void huesAreFolded();
    void whatRgbCannotShowIsClamped();
    void equalityDependsOnTheSpaces();
    void blackBodiesLieOnThePublishedLocus_data();
    void blackBodiesLieOnThePublishedLocus();
    void illuminantsHaveTheirPublishedTemperatures_data();
    void illuminantsHaveTheirPublishedTemperatures();
    void temperaturesComeBack();
    void extremesOfTemperature();
    void whatIsNotFiniteStopsNothing();
};

void ColorTest::gammaSwitchesStartFromTheSettings()
{
    // The object is made once a process, and this is the first function to ask for it.
    ZelSettings settings(QStringLiteral("colors"));
    settings.setValue(QStringLiteral("enable_gamma_correction"), false);
    settings.setValue(QStringLiteral("enable_gamma_correction_input"), QStringLiteral("false"));
    QVERIFY(!ZelGammaPolicy::get()->isGammaCorrectionEnabled());
    // Not a bool: as if nothing were stored.
    QVERIFY(ZelGammaPolicy::get()->areValuesGammaCorrected());
    QCOMPARE(ZelGammaPolicy::get()->getInvGamma(), 1.0f / 2.2f);
}

void ColorTest::gammaSettersTellChangesOnly()
{
    ZelGammaPolicy &policy = *ZelGammaPolicy::get();
    policy.setEnableGammaCorrection(false);
    policy.setGammaCorrectValues(false);
    QSignalSpy enabled(&policy, &ZelGammaPolicy::gammaCorrectChanged);
    QSignalSpy values(&policy, &ZelGammaPolicy::gammaCorrectValuesChanged);
    QSignalSpy gamma(&policy, &ZelGammaPolicy::gammaChanged);
    for (int i = 0; i < 2; ++i) {
        policy.setEnableGammaCorrection(true);
        policy.setGammaCorrectValues(true);
        policy.setGamma(1.8f);
    }
    QCOMPARE(enabled, QList<QVariantList>{{true}});
    QCOMPARE(values, QList<QVariantList>{{true}});
    QCOMPARE(gamma, QList<QVariantList>{{1.8f}});
    for (const float refused : {0.0f, -1.0f, std::numeric_limits<float>::infinity(),
                                std::numeric_limits<float>::quiet_NaN()}) {
        messages().expect(QtWarningMsg, QStringLiteral("not a gamma"));
        policy.setGamma(refused);
    }
    QCOMPARE(policy.gamma(), 1.8f);
    policy.setGamma(2.2f);
}

void ColorTest::gammaAndItsInverseMeet()
{
    const ZelGammaPolicy &policy = *ZelGammaPolicy::get();
    ZelColor grey(Space::HSV, 0.0f, 0.0f, 0.5f);
    grey.setName("mid");
    const ZelColor shown = policy.gammaCorrect(grey);
    QCOMPARE(shown.space(), Space::RGB);
    QCOMPARE(shown.name(), grey.name());
    // 0.5 to the power 1/2.2.
    VERIFY_NEAR(shown.toRGB(), (Triple{0.729740f, 0.729740f, 0.729740f}), 1e-5f);
    for (Triple rgb : grid(8)) {
        rgb[0] -= 0.25f;
        const ZelColor color(Space::RGB, rgb[0], rgb[1], rgb[2]);
        VERIFY_NEAR(policy.inverseGammaCorrect(policy.gammaCorrect(color)).toRGB(), rgb, 1e-6f);
    }
}

void ColorTest::knownColorsConvert()
{
    const ZelColor white;
    VERIFY_NEAR(white.toXYZ(), (Triple{95.0456f, 100.0f, 108.8754f}), 1e-4f);
    VERIFY_NEAR(white.toLab(), (Triple{100.0f, 0.0f, 0.0f}), 0.02f);
    const ZelColor red(Space::RGB, 1.0f, 0.0f, 0.0f);
    QCOMPARE(red.toHSV(), (Triple{0.0f, 1.0f, 1.0f}));
    VERIFY_NEAR(red.toLab(), (Triple{53.24f, 80.09f, 67.20f}), 0.02f);
    QCOMPARE(ZelColor(Space::RGB, 0.0f, 0.5f, 0.5f).toHSV(), (Triple{180.0f, 1.0f, 0.5f}));
    QCOMPARE(ZelColor(Space::RGB, 1.0f, 0.0f, 0.5f).toHSV(), (Triple{330.0f, 1.0f, 1.0f}));
    QCOMPARE(ZelColor(Space::RGB, 0.4f, 0.4f, 0.4f).toHSV(), (Triple{0.0f, 0.0f, 0.4f}));
    const ZelColor black(Space::RGB, 0.0f, 0.0f, 0.0f);
    QCOMPARE(black.toHSV(), (Triple{0.0f, 0.0f, 0.0f}));
    QCOMPARE(black.toCMYK(), (Quad{0.0f, 0.0f, 0.0f, 1.0f}));
    QCOMPARE(red.toCMYK(), (Quad{0.0f, 1.0f, 1.0f, 0.0f}));
    VERIFY_NEAR(ZelColor(Space::CMYK, 0.0f, 0.5f, 1.0f, 0.2f).toRGB(), (Triple{0.8f, 0.4f, 0.0f}),
                1e-6f);
    VERIFY_NEAR(ZelColor(Space::HSV, 120.0f, 1.0f, 1.0f).toXYZ(),
                (Triple{35.758f, 71.516f, 11.9193f}), 1e-4f);
}

void ColorTest::componentsOfTheOwnSpaceStayAsTheyAre()
{
    const Triple odd = {-720.5f, 1e30f, 0.3f};
    QCOMPARE(ZelColor(Space::XYZ, odd[0], odd[1], odd[2]).toXYZ(), odd);
    QCOMPARE(ZelColor(Space::RGB, odd[0], odd[1], odd[2]).toRGB(), odd);
    QCOMPARE(ZelColor(Space::HSV, odd[0], odd[1], odd[2]).toHSV(), odd);
    QCOMPARE(ZelColor(Space::Lab, odd[0], odd[1], odd[2]).toLab(), odd);
    QCOMPARE(ZelColor(Space::CMYK, 3.0f, -1.0f, 0.3f, 7.0f).toCMYK(),
             (Quad{3.0f, -1.0f, 0.3f, 7.0f}));
    const ZelColor unknown(Space(17), 0.2f, 0.3f, 0.4f);
    QCOMPARE(unknown.toXYZ(), Triple{});
    QCOMPARE(unknown.toRGB(), Triple{});
}

void ColorTest::srgbAgreesWithColorManagement()
{
    const Oracle oracle;
    for (const Triple &rgb : grid(16)) {
        const Triple xyz = rgbToXyz(rgb);
        // The matrix's primaries are rounded in another way; that shows in the third digit.
        VERIFY_NEAR(xyz, oracle.rgbToXyz(rgb), 0.02f);
        VERIFY_NEAR(xyzToRgb(xyz), oracle.xyzToRgb(xyz), 0.002f);
    }
}

void ColorTest::labAgreesWithColorManagement()
{
    for (const Triple &rgb : grid(16)) {
        const Triple xyz = rgbToXyz(rgb);
        const Triple lab = Oracle::xyzToLab(xyz);
        VERIFY_NEAR(xyzToLab(xyz), lab, 0.002f);
        VERIFY_NEAR(labToXyz(lab), Oracle::labToXyz(lab), 0.002f);
    }
    // Far outside of what a display shows.
    for (const Triple &unit : grid(12)) {
        const Triple lab = {unit[0] * 100.0f, unit[1] * 256.0f - 128.0f, unit[2] * 256.0f - 128.0f};
        VERIFY_NEAR(labToXyz(lab), Oracle::labToXyz(lab), 0.003f);
    }
}

void ColorTest::spacesLeadBackToRgb_data()
{
    using Way = std::function<Triple(const Triple &)>;
    QTest::addColumn<Way>("way");
    QTest::addColumn<float>("limit");
    const auto add = [](const char *name, const Way &way, float limit) {
        QTest::newRow(name) << way << limit;
    };
    add(
        "HSV", [](const Triple &rgb) { return hsvToRgb(rgbToHsv(rgb)); }, 1e-6f);
    add(
        "CMYK", [](const Triple &rgb) { return cmykToRgb(rgbToCmyk(rgb)); }, 1e-6f);
    // The matrices there and back are each other's inverses to six digits only, which the slope of
    // the encoding near black makes twelve times as much.
    add(
        "XYZ", [](const Triple &rgb) { return xyzToRgb(rgbToXyz(rgb)); }, 3e-5f);
    add(
        "Lab", [](const Triple &rgb) { return xyzToRgb(labToXyz(xyzToLab(rgbToXyz(rgb)))); },
        3e-5f);
}

void ColorTest::spacesLeadBackToRgb()
{
    QFETCH(std::function<Triple(const Triple &)>, way);
    QFETCH(float, limit);
    for (const Triple &rgb : grid(51))
        VERIFY_NEAR(way(rgb), rgb, limit);
}

void ColorTest::huesAreFolded()
{
    for (int hue = 0; hue < 360; hue += 5) {
        const Triple rgb = hsvToRgb({float(hue), 0.7f, 0.9f});
        for (const float turns : {-1080.0f, -360.0f, 360.0f, 3600.0f})
            VERIFY_NEAR(hsvToRgb({float(hue) + turns, 0.7f, 0.9f}), rgb, 1e-5f);
        QCOMPARE(qRound(rgbToHsv(rgb)[0]), hue);
    }
    // Just below red there is no hue of 360.
    const float hue = rgbToHsv({1.0f, 0.0f, 1e-9f})[0];
    QVERIFY2(hue >= 0.0f && hue < 360.0f, qPrintable(QString::number(hue)));
}

void ColorTest::whatRgbCannotShowIsClamped()
{
    QCOMPARE(xyzToRgb({1000.0f, 1000.0f, 1000.0f}), (Triple{1.0f, 1.0f, 1.0f}));
    QCOMPARE(xyzToRgb({-5.0f, -5.0f, -5.0f}), Triple{});
    const Triple green = ZelColor(Space::Lab, 50.0f, -128.0f, 0.0f).toRGB();
    QCOMPARE(green[0], 0.0f);
    QVERIFY(green[1] > 0.4f && green[1] < 1.0f);
}

void ColorTest::equalityDependsOnTheSpaces()
{
    const ZelColor rgb(Space::RGB, 0.25f, 0.5f, 0.75f);
    const Triple hsv = rgb.toHSV();
    const Triple xyz = rgb.toXYZ();
    ZelColor named = rgb;
    named.setName("steel");
    QVERIFY(named == rgb);
    QVERIFY(ZelColor(Space::HSV, hsv[0], hsv[1], hsv[2]) == rgb);
    QVERIFY(rgb != ZelColor(Space::HSV, hsv[0], hsv[1] + 0.0002f, hsv[2]));
    QVERIFY(rgb == ZelColor(Space::XYZ, xyz[0] + 0.0009f, xyz[1], xyz[2]));
    QVERIFY(rgb != ZelColor(Space::XYZ, xyz[0], xyz[1], xyz[2] + 0.0011f));
    // The same colour on a display, but not as hue; nor are greys of different hue.
    QVERIFY(ZelColor(Space::HSV, 0.0f, 1.0f, 1.0f) != ZelColor(Space::HSV, 359.99f, 1.0f, 1.0f));
    QVERIFY(ZelColor(Space::HSV, 90.0f, 0.0f, 1.0f) != ZelColor());
}

void ColorTest::blackBodiesLieOnThePublishedLocus_data()
{
    QTest::addColumn<float>("kelvin");
    QTest::addColumn<float>("x");
    QTest::addColumn<float>("y");
    const std::array<float, 3> published[] = {
        {1000, 0.6528f, 0.3444f}, {1500, 0.5857f, 0.3931f},  {2000, 0.5267f, 0.4133f},
        {2500, 0.4770f, 0.4137f}, {3000, 0.4369f, 0.4041f},  {4000, 0.3805f, 0.3768f},
        {5000, 0.3451f, 0.3516f}, {6000, 0.3221f, 0.3318f},  {6500, 0.3135f, 0.3237f},
        {8000, 0.2952f, 0.3048f}, {10000, 0.2807f, 0.2884f}, {2855.5f, 0.4476f, 0.4074f},
    };
    for (const auto &[kelvin, x, y] : published)
        QTest::addRow("%g", double(kelvin)) << kelvin << x << y;
}

void ColorTest::blackBodiesLieOnThePublishedLocus()
{
    QFETCH(float, kelvin);
    QFETCH(float, x);
    QFETCH(float, y);
    const Triple xyz = blackBodyToXyz(kelvin);
    QCOMPARE(xyz[1], 50.0f);
    const float sum = xyz[0] + xyz[1] + xyz[2];
    VERIFY_NEAR((Triple{xyz[0] / sum, xyz[1] / sum, 0.0f}), (Triple{x, y, 0.0f}), 0.0002f);
}

void ColorTest::illuminantsHaveTheirPublishedTemperatures_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<double>("kelvin");
    QTest::newRow("A") << 0.44757 << 0.40745 << 2856.0;
    QTest::newRow("B") << 0.34842 << 0.35161 << 4874.0;
    QTest::newRow("C") << 0.31006 << 0.31616 << 6774.0;
    QTest::newRow("D50") << 0.34567 << 0.35850 << 5003.0;
    QTest::newRow("D55") << 0.33242 << 0.34743 << 5503.0;
    QTest::newRow("D65") << 0.31271 << 0.32902 << 6504.0;
    QTest::newRow("D75") << 0.29902 << 0.31485 << 7504.0;
    QTest::newRow("E") << 1.0 / 3.0 << 1.0 / 3.0 << 5454.0;
    QTest::newRow("F11") << 0.38052 << 0.37713 << 4000.0;
}

void ColorTest::illuminantsHaveTheirPublishedTemperatures()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, kelvin);
    const double actual = double(temperature(fromChromaticity(x, y)));
    QVERIFY2(std::abs(actual - kelvin) <= kelvin * 0.0004, qPrintable(QString::number(actual)));
}

void ColorTest::temperaturesComeBack()
{
    for (int kelvin = 1700; kelvin <= 30000; kelvin += 10) {
        const double back = double(temperature(blackBodyToXyz(float(kelvin))));
        const double error = std::abs(back - kelvin) / kelvin;
        // The lines of the table grow apart towards the hot end.
        const double limit = kelvin <= 4000 ? 3e-4 : 3e-7 * kelvin;
        QVERIFY2(error <= limit, qPrintable(QStringLiteral("%1 became %2").arg(kelvin).arg(back)));
    }
}

void ColorTest::extremesOfTemperature()
{
    QCOMPARE(temperature({0.0f, 0.0f, 0.0f}), 0.0f);
    QCOMPARE(temperature(ZelColor(Space::RGB, 0.0f, 0.0f, 1.0f).toXYZ()), 0.0f);
    for (const float cold : {0.0f, -300.0f, 1e-30f, 1.0f, std::numeric_limits<float>::quiet_NaN()})
        QCOMPARE(blackBodyToXyz(cold), Triple{});
    for (float kelvin = 2.0f; std::isfinite(kelvin); kelvin *= 1.1f) {
        for (const float channel : xyzToRgb(blackBodyToXyz(kelvin)))
            QVERIFY2(channel >= 0.0f && channel <= 1.0f, qPrintable(QString::number(kelvin)));
    }
    // However hot, a body is never bluer than this.
    const Triple hot = blackBodyToXyz(std::numeric_limits<float>::infinity());
    VERIFY_NEAR(hot, fromChromaticity(0.2399, 0.2342), 0.4f);
}

void ColorTest::whatIsNotFiniteStopsNothing()
{
    using Limits = std::numeric_limits<float>;
    const float odd[] = {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
                         Limits::max(),       Limits::lowest(),   0.5f};
    for (const int space : {0, 1, 2, 3, 4, 5}) {
        for (int i = 0; i < 6 * 6 * 6; ++i) {
            const ZelColor color(Space(space), odd[i % 6], odd[i / 6 % 6], odd[i / 36], odd[i % 6]);
            const Triple lab = color.toLab();
            for (const float channel : ZelColor(Space::Lab, lab[0], lab[1], lab[2]).toRGB())
                QVERIFY(channel >= 0.0f && channel <= 1.0f);
            QVERIFY(temperature(color.toXYZ()) >= 0.0f);
            // A hue alone can't spoil a colour.
            for (const float channel : hsvToRgb({odd[i % 6], 0.5f, 0.5f}))
                QVERIFY(channel >= 0.0f && channel <= 1.0f);
        }
    }
}

ZEL_TEST_MAIN(ColorTest)
#include "tst_color.moc"
