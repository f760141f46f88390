// What a gradient is turned into: rows of pixels, text, files of other programs.

#include "GradientSamples.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientGgr>
#include <ZelWidgets/ZelGradientText>

#include <QSignalSpy>

#include <cmath>

namespace {

/// The row as it is told pixel by pixel, with QColor.
class PlainRow
{
public:
    explicit PlainRow(const ZelGradient &gradient)
        : gradient_(gradient)
    {
        if (gradient.alphaStops() > 0)
            fromAlpha_ = toAlpha_ = gradient.alphaStop(0).alpha();
        if (gradient.colorStops() > 0)
            from_ = to_ = gradient.colorStop(0).color();
        if (gradient.blend()) {
            gradient.getAlphaCurve(0, alphaCurve_, fromAlpha_, toAlpha_);
            gradient.getColorCurve(0, colorCurve_, from_, to_);
        }
    }

    QImage paint(int width)
    {
        QImage image(width, 1, QImage::Format_ARGB32);
        for (int i = 0; i < width; ++i) {
            const float t = float(i) / float(width - 1);
            gradient_.blend() ? blendTo(t) : stepTo(t);
            const float alpha = fromAlpha_ + (toAlpha_ - fromAlpha_) * weight(alphaCurve_, t);
            const auto a = from_.toRGB();
            const auto b = to_.toRGB();
            const float w = weight(colorCurve_, t);
            QColor color = toDisplayQColor({ZelColor::Space::RGB, a[0] + (b[0] - a[0]) * w,
                                            a[1] + (b[1] - a[1]) * w, a[2] + (b[2] - a[2]) * w});
            color.setAlphaF(alpha > 0 ? std::min(alpha, 1.0f) : 0.0f);
            image.setPixel(i, 0, color.rgba());
        }
        return image;
    }

private:
    static float weight(const orv::color::BlendCurve &curve, float x)
    {
        if (curve.start >= x)
            return 0;
        if (x >= curve.end)
            return 1;
        const float u = (x - curve.start) * curve.invSpan;
        return std::clamp(((curve.a * u + curve.b) * u + curve.c) * u, 0.0f, 1.0f);
    }

    void blendTo(float t)
    {
        if (t > alphaCurve_.end)
            gradient_.getAlphaCurve(nextAlpha_++, alphaCurve_, fromAlpha_, toAlpha_);
        if (t > colorCurve_.end)
            gradient_.getColorCurve(nextColor_++, colorCurve_, from_, to_);
    }

    void stepTo(float t)
    {
        if (nextAlpha_ < gradient_.alphaStops() && t > gradient_.alphaStop(nextAlpha_).location())
            fromAlpha_ = toAlpha_ = gradient_.alphaStop(nextAlpha_++).alpha();
        if (nextColor_ < gradient_.colorStops() && t > gradient_.colorStop(nextColor_).location())
            from_ = to_ = gradient_.colorStop(nextColor_++).color();
    }

    const ZelGradient &gradient_;
    orv::color::BlendCurve alphaCurve_;
    orv::color::BlendCurve colorCurve_;
    float fromAlpha_ = 1;
    float toAlpha_ = 1;
    ZelColor from_;
    ZelColor to_;
    int nextAlpha_ = 1;
    int nextColor_ = 1;
};

void fill(ZelGradient &gradient, Random &random, int count)
{
    for (int i = 0; i < count; ++i) {
        gradient.addColorStop(random.location(), random.color());
        gradient.addAlphaStop(random.location(), random.in(-0.1F, 1.1F));
        ZelGradientStop stop = anyStop(gradient, random);
        stop.setSlopeIn(random.in(0, 4));
        stop.setSlopeOut(random.in(0, 4));
    }
}

const QByteArray ggrStart = "GIMP Gradient\nName: Sample\n";

} // namespace

class TestGradientForms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rowsAreThoseOfQColor_data();
    void rowsAreThoseOfQColor();
    void textKeepsEverything();
    void brokenTextChangesNothing_data();
    void brokenTextChangesNothing();
    void ggrBecomesStops();
    void ggrFunctionsAreFollowed_data();
    void ggrFunctionsAreFollowed();
    void brokenGgrChangesNothing_data();
    void brokenGgrChangesNothing();
};

void TestGradientForms::init()
{
    TestCase::init();
    ZelGammaPolicy::get()->setEnableGammaCorrection(false);
    ZelGammaPolicy::get()->setGamma(2.2F);
}

void TestGradientForms::rowsAreThoseOfQColor_data()
{
    QTest::addColumn<int>("stops");
    QTest::addColumn<int>("width");
    QTest::addColumn<float>("gamma");
    for (const float gamma : {0.0F, 0.45F, 1.0F, 2.2F, 6.0F}) {
        for (const int width : {2, 3, 100, 1021, 4096})
            for (const int stops : {0, 1, 2, 8, 300})
                QTest::addRow("%d stops, width %d, gamma %g", stops, width, double(gamma))
                    << stops << width << gamma;
    }
}

void TestGradientForms::rowsAreThoseOfQColor()
{
    QFETCH(int, stops);
    QFETCH(int, width);
    QFETCH(float, gamma);
    ZelGammaPolicy *policy = ZelGammaPolicy::get();
    policy->setEnableGammaCorrection(gamma > 0);
    if (gamma > 0)
        policy->setGamma(gamma);
    Random random{uint(stops * width)};
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient, random, stops);
    for (const bool blend : {true, false}) {
        gradient.setBlend(blend);
        const QImage row = gradient.paint(width);
        QCOMPARE(row.format(), QImage::Format_ARGB32);
        const QImage expected = PlainRow(gradient).paint(width);
        for (int i = 0; i < width; ++i)
            QVERIFY2(row.pixel(i, 0) == expected.pixel(i, 0),
                     qPrintable(QStringLiteral("pixel %1: %2, not %3")
                                    .arg(i)
                                    .arg(row.pixel(i, 0), 8, 16)
                                    .arg(expected.pixel(i, 0), 8, 16)));
    }
}

void TestGradientForms::textKeepsEverything()
{
    Random random(5);
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient, random, 40);
    gradient.setBlend(false);
    ZelColor named(ZelColor::Space::CMYK, 0.1F, 0.2F, 0.3F, 0.4F);
    named.setName("Tiefes \"Blau\"\n%20 \xc3\xa4");
    gradient.addColorStop(0.3F, named, 2.5F);
    gradient.addColorStop(0.3F, ZelColor(ZelColor::Space(9), noNumber, 1, 2));
    const QString text = ZelGradientText::write(gradient);

    ZelGradient copy(ZelGradient::Alpha);
    QString error;
    QVERIFY2(ZelGradientText::read(text, copy, &error), qPrintable(error));
    QCOMPARE(copy.stops(), gradient.stops());
    QVERIFY(!copy.blend());
    for (int i = 0; i < gradient.stops(); ++i) {
        const ZelGradientStop &ours = *(copy.begin() + i);
        const ZelGradientStop &its = *(gradient.begin() + i);
        QCOMPARE(
            (Floats{ours.location(), ours.slopeIn(), ours.slopeOut(), ours.gain(), ours.alpha()}),
            (Floats{its.location(), its.slopeIn(), its.slopeOut(), its.gain(), its.alpha()}));
        if (int(its.color().space()) > 4)
            continue;
        QCOMPARE(ours.color().space(), its.color().space());
        QCOMPARE(ours.color().components(), its.color().components());
        QCOMPARE(ours.color().name(), its.color().name());
    }
    ZelGradient opaque;
    QVERIFY(ZelGradientText::read(text, opaque));
    QCOMPARE(opaque.stops(), gradient.colorStops());
}

void TestGradientForms::brokenTextChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char *name, const QByteArray &text, const char *complaint) {
        QTest::newRow(name) << QString::fromUtf8(text) << QString::fromUtf8(complaint);
    };
    const QByteArray start = "zelgradient 1\nblend off\n";
    row("empty", {}, "a gradient expected");
    row("other text", "Lorem ipsum", "found \"Lorem\"");
    row("later version", "zelgradient 2", "Line 1");
    row("unknown line", start + "colour 0", "Line 3");
    row("cut", start + "color 0 1 1", "Line 3: a number expected.");
    row("no number", start + "opacity nan 1 1 1", "found \"nan\"");
    row("outside", start + "\n\nopacity 0.5 5 1 1", "Line 5: a number from 0 to 4");
    row("overflow", start + "opacity 0.5 1 1 1e99", "found \"1e99\"");
    row("space", start + "color 0 1 1 1 yuv 1 1 1", "a colour space");
    row("too much", start + "opacity 0 1 1 1 1", "the end of the line");
    row("long word", start + QByteArray(100000, 'x'), "xxxx\".");
    row("stops", start + QByteArray("opacity 0 1 1 1\n").repeated(65537), "no more than");
    row("huge", QByteArray(17 * 1024 * 1024, ' '), "too long");
}

void TestGradientForms::brokenTextChangesNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, complaint);
    ZelGradient gradient(ZelGradient::Alpha);
    const ZelGradientStop stop = gradient.addColorStop(0.5F, red);
    QSignalSpy changes(&gradient, &ZelGradient::gradientChanged);
    QString error;
    QVERIFY(!ZelGradientText::read(text, gradient, &error));
    QVERIFY2(error.contains(complaint) && error.size() < 200, qPrintable(error));
    QVERIFY(stop && gradient.blend() && changes.isEmpty());
}

void TestGradientForms::ggrBecomesStops()
{
    ZelGradient gradient(ZelGradient::Alpha);
    QString name;
    QString error;
    QVERIFY2(ZelGradientGgr::read(ggrStart + "3\n"
                                             "0 0.1 0.2  1 0 0 1  0 0 1 0.5  0 0\n"
                                             "0.2 0.4 0.6  0 0 1 0.5  1 1 1 1  5 0 0 0\n"
                                             "0.600001 0.8 1  0 0 1 1  1 0 0 1  0 0 1 4\n",
                                  gradient, &name, &error),
             qPrintable(error));
    QCOMPARE(name, QStringLiteral("Sample"));
    // Even segments are two stops, a step has two in its middle; the last one takes black for the
    // foreground and white without opacity for the background.
    Floats expected = {0, 0.2F, 0.4F, 0.4F, 0.6F, 0.6F, 1};
    QCOMPARE(gradient.colorStops(), 7);
    for (int i = 0; i < 7; ++i)
        QCOMPARE(gradient.colorStop(i).location(), expected[size_t(i)]);
    QCOMPARE(gradient.computeColor(0.1F).toRGB()[0], 0.5F);
    QCOMPARE(gradient.computeColor(0.3F).toRGB(), blue.toRGB());
    QCOMPARE(gradient.computeColor(0.5F).toRGB(), white.toRGB());
    QVERIFY(std::abs(gradient.computeColor(0.8F).toRGB()[0] - 0.5F) < 1e-5F);
    QVERIFY(std::abs(gradient.computeAlpha(0.8F) - 0.5F) < 1e-5F);
    QCOMPARE(gradient.computeAlpha(0.1F), 0.75F);

    // From red to blue by way of green, or the other way round by way of magenta.
    for (const int coloring : {1, 2}) {
        const QByteArray line =
            "1\n0 0.5 1  1 0 0 1  0 0 1 1  0 " + QByteArray::number(coloring) + '\n';
        QVERIFY(ZelGradientGgr::read(ggrStart + line, gradient));
        const auto [r, g, b] = gradient.computeColor(0.5F).toRGB();
        QVERIFY(std::abs(g - float(coloring == 1)) < 1e-4F);
        QVERIFY(std::abs(r - float(coloring == 2)) < 1e-4F && std::abs(r - b) < 1e-4F);
        QCOMPARE(gradient.alphaStops(), 0);
    }
    QVERIFY(
        ZelGradientGgr::read("GIMP Gradient\r\n1\r\n0 0.5 1 0 0 0 1 1 1 1 1 0 0\r\n", gradient));
    QCOMPARE(gradient.stops(), 2);
}

void TestGradientForms::ggrFunctionsAreFollowed_data()
{
    QTest::addColumn<int>("function");
    QTest::addColumn<float>("middle");
    for (const int function : {0, 1, 2, 3, 4}) {
        // A curve whose middle lies at 0 is a jump.
        for (const float middle : {function == 1 ? 0.02F : 0.0F, 0.1F, 0.5F, 0.7F, 1.0F})
            QTest::addRow("%d with middle %g", function, double(middle)) << function << middle;
    }
}

/// The formulas in double, each with its middle laid where the segment has it.
void TestGradientForms::ggrFunctionsAreFollowed()
{
    QFETCH(int, function);
    QFETCH(float, middle);
    ZelGradient gradient;
    const QByteArray line = "0 " + QByteArray::number(double(middle)) + " 1  0 0 0 1  1 1 1 1  " +
                            QByteArray::number(function) + " 0\n";
    QVERIFY(ZelGradientGgr::read(ggrStart + "1\n" + line, gradient));
    const double m = double(middle);
    for (int i = 1; i < 200; ++i) {
        const double x = i / 200.0;
        const double even = x <= m ? 0.5 * x / m : 0.5 + 0.5 * (x - m) / (1 - m);
        const double power = std::log(0.5) / std::log(std::clamp(m, 1e-5, 1 - 1e-5));
        const double expected[] = {even, std::pow(x, power), 0.5 - 0.5 * std::cos(M_PI * even),
                                   std::sqrt(1 - (1 - even) * (1 - even)),
                                   1 - std::sqrt(1 - even * even)};
        const double found = double(gradient.computeColor(float(x)).toRGB()[1]);
        QVERIFY2(std::abs(found - expected[function]) < (function == 0 ? 1e-4 : 0.02),
                 qPrintable(QStringLiteral("%1: %2").arg(x).arg(found)));
    }
}

void TestGradientForms::brokenGgrChangesNothing_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray segment = "0 0.5 1 0 0 0 1 1 1 1 1 0 0\n";
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("other file") << QByteArray("GIMP Palette\n");
    QTest::newRow("no count") << ggrStart;
    QTest::newRow("no segments") << ggrStart + "0\n";
    QTest::newRow("many segments") << ggrStart + "2000000000\n" + segment;
    QTest::newRow("missing segment") << ggrStart + "2\n" + segment;
    QTest::newRow("cut segment") << ggrStart + "1\n" + segment.left(20);
    QTest::newRow("gap") << ggrStart + "1\n" + "0.2 0.5 1 0 0 0 1 1 1 1 1 0 0\n";
    QTest::newRow("open end") << ggrStart + "1\n" + "0 0.5 0.9 0 0 0 1 1 1 1 1 0 0\n";
    QTest::newRow("backwards") << ggrStart + "1\n" + "0 0.5 0.2 0 0 0 1 1 1 1 1 0 0\n";
    QTest::newRow("function") << ggrStart + "1\n" + "0 0.5 1 0 0 0 1 1 1 1 1 6 0\n";
    QTest::newRow("colour") << ggrStart + "1\n" + "0 0.5 1 0 inf 0 1 1 1 1 1 0 0\n";
    QTest::newRow("huge") << ggrStart + "1\n" + segment + QByteArray(5 * 1024 * 1024, ' ');
}

void TestGradientForms::brokenGgrChangesNothing()
{
    QFETCH(QByteArray, content);
    ZelGradient gradient;
    const ZelGradientStop stop = gradient.addColorStop(0.5F, red);
    QString error;
    QVERIFY(!ZelGradientGgr::read(content, gradient, nullptr, &error));
    QVERIFY(!error.isEmpty() && stop);
}

ZEL_TEST_MAIN(TestGradientForms)
#include "tst_gradient_forms.moc"
