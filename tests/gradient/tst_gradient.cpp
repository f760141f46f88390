// The gradient model: order and life of stops, evaluation, rows of pixels, text and files.

#include "TestCase.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientGgr>
#include <ZelWidgets/ZelGradientText>

#include <QSignalSpy>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

namespace {

constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();

const ZelColor red(ZelColor::Space::RGB, 1, 0, 0);
const ZelColor blue(ZelColor::Space::RGB, 0, 0, 1);
const ZelColor black(ZelColor::Space::RGB, 0, 0, 0);
const ZelColor white;

using Floats = std::vector<float>;

Floats locations(const ZelGradient &gradient)
{
    Floats result;
    for (const ZelGradientStop &stop : gradient)
        result.push_back(stop.location());
    return result;
}

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

class Random
{
public:
    explicit Random(uint seed)
        : engine_(seed)
    {}

    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(engine_); }
    float in(float least, float most)
    {
        return std::uniform_real_distribution<float>(least, most)(engine_);
    }
    /// A location, often one that others have too, now and then none at all.
    float location()
    {
        switch (upTo(9)) {
        case 0:
            return in(-1, 2);
        case 1:
            return std::array{noNumber, inf, -inf}[size_t(upTo(2))];
        case 2:
        case 3:
            return float(upTo(4)) / 4;
        default:
            return in(0, 1);
        }
    }
    ZelColor color()
    {
        return {ZelColor::Space(upTo(4)), in(-0.2F, 1.2F), in(-0.2F, 1.2F), in(-0.2F, 1.2F),
                in(0, 1)};
    }

private:
    std::mt19937 engine_;
};

ZelGradientStop anyStop(const ZelGradient &gradient, Random &random)
{
    const int count = gradient.stops();
    return count > 0 ? *(gradient.begin() + random.upTo(count - 1)) : ZelGradientStop();
}

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

class TestGradient : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void fewStopsPaintTheirValueButEvaluateToWhiteAndOne();
    void intervalsFollowSlopesAndLocations();
    void stopsOfOneLocationKeepTheirPlaces();
    void automaticStopsTakeTheLargestGap();
    void handlesReadAsNullOnceTheStopIsGone();
    void editsTellWhenTheyAreTold();
    void numbersAreClampedOrDropped();
    void resetTakesOverAndTellsInOrder();
    void listenersMayDeleteTheGradient();
    void wholesaleEdits();
    void rowsAreThoseOfQColor_data();
    void rowsAreThoseOfQColor();
    void anyEditsKeepTheOrder();
    void textKeepsEverything();
    void brokenTextChangesNothing_data();
    void brokenTextChangesNothing();
    void ggrBecomesStops();
    void ggrFunctionsAreFollowed_data();
    void ggrFunctionsAreFollowed();
    void brokenGgrChangesNothing_data();
    void brokenGgrChangesNothing();
};

void TestGradient::init()
{
    TestCase::init();
    ZelGammaPolicy::get()->setEnableGammaCorrection(false);
    ZelGammaPolicy::get()->setGamma(2.2F);
}

void TestGradient::fewStopsPaintTheirValueButEvaluateToWhiteAndOne()
{
    ZelGradient gradient(ZelGradient::Alpha);
    for (const bool blend : {true, false}) {
        gradient.setBlend(blend);
        gradient.clearStops();
        QCOMPARE(gradient.paint(3).pixel(1, 0), qRgba(255, 255, 255, 255));
        gradient.addColorStop(0.3F, blue);
        gradient.addAlphaStop(0.3F, 0.5F);
        const QImage row = gradient.paint(3);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(row.pixel(i, 0), qRgba(0, 0, 255, 128));
        QCOMPARE(gradient.computeColor(0.3F).toRGB(), white.toRGB());
        QCOMPARE(gradient.computeAlpha(0.3F), 1.0F);
    }
    QVERIFY(gradient.paint(1).isNull() && gradient.paint(0).isNull() &&
            gradient.paint(-5).isNull());
}

void TestGradient::intervalsFollowSlopesAndLocations()
{
    ZelGradient gradient(ZelGradient::Alpha);
    ZelGradientStop first = gradient.addAlphaStop(0.25F, 0.0F);
    ZelGradientStop last = gradient.addAlphaStop(0.75F, 1.0F);
    orv::color::BlendCurve curve;
    float from = -1;
    float to = -1;
    QVERIFY(!gradient.getAlphaCurve(-1, curve, from, to));
    QVERIFY(!gradient.getAlphaCurve(1, curve, from, to));
    QCOMPARE(from, -1.0F);
    QVERIFY(gradient.getAlphaCurve(0, curve, from, to));
    QCOMPARE((Floats{curve.start, curve.end, curve.invSpan, curve.a, curve.b, curve.c, from, to}),
             (Floats{0.25F, 0.75F, 2, 0, 0, 1, 0, 1}));
    first.setSlopeOut(0);
    last.setSlopeIn(0);
    QVERIFY(gradient.getAlphaCurve(0, curve, from, to));
    QCOMPARE((Floats{curve.a, curve.b, curve.c}), (Floats{-2, 3, 0}));
    QCOMPARE(gradient.computeAlpha(0.375F), 0.15625F);
    QCOMPARE((Floats{gradient.computeAlpha(0), gradient.computeAlpha(1)}), (Floats{0, 1}));
    // Steeper than a straight line on both ends: the cubic leaves 0 to 1, the blend doesn't.
    first.setSlopeOut(4);
    last.setSlopeIn(4);
    for (int i = 0; i <= 100; ++i)
        QVERIFY(std::clamp(gradient.computeAlpha(float(i) / 100), 0.0F, 1.0F) ==
                gradient.computeAlpha(float(i) / 100));

    gradient.addColorStop(0.0F, black);
    gradient.addColorStop(0.5F, red);
    gradient.addColorStop(0.5F, blue);
    gradient.addColorStop(1.0F, black);
    QCOMPARE(gradient.computeColor(0.5F).toRGB(), blue.toRGB());
    QVERIFY(gradient.computeColor(0.4999F).toRGB()[0] > 0.99F);
    QCOMPARE(gradient.computeColor(0.75F).toRGB(), (std::array{0.0F, 0.0F, 0.5F}));
}

void TestGradient::stopsOfOneLocationKeepTheirPlaces()
{
    ZelGradient gradient(ZelGradient::Alpha);
    const ZelGradientStop color1 = gradient.addColorStop(0.5F, red);
    const ZelGradientStop color2 = gradient.addColorStop(0.5F, blue);
    const ZelGradientStop alpha1 = gradient.addAlphaStop(0.5F, 0.1F);
    ZelGradientStop alpha2 = gradient.addAlphaStop(0.5F, 0.2F);
    const auto order = [&] {
        return QList<ZelGradientStop>(gradient.begin(), gradient.end());
    };
    QCOMPARE(order(), (QList{alpha2, alpha1, color1, color2}));
    const ZelGradientStop alpha3 = alpha2.clone(&gradient);
    QCOMPARE(order(), (QList{alpha2, alpha1, alpha3, color1, color2}));
    QCOMPARE(gradient.alphaStops(), 3);

    // One that comes from the left stops before its equals, one from the right behind them.
    alpha2.setLocation(0.2F);
    alpha2.setLocation(0.5F);
    QCOMPARE(order(), (QList{alpha2, alpha1, alpha3, color1, color2}));
    alpha2.setLocation(0.9F);
    alpha2.setLocation(0.5F);
    QCOMPARE(order(), (QList{alpha1, alpha3, alpha2, color1, color2}));

    QCOMPARE(gradient.after(alpha3), alpha2);
    QVERIFY(gradient.after(alpha2).isNull() && gradient.after(color2).isNull());
    QCOMPARE(gradient.before(color2), color1);
    QVERIFY(gradient.before(color1).isNull() && gradient.before(alpha1).isNull());
    QCOMPARE(gradient.alphaStop(2), alpha2);
    QCOMPARE(gradient.colorStop(0), color1);
    QVERIFY(gradient.alphaStop(3).isNull() && gradient.colorStop(2).isNull());
    QVERIFY(gradient.alphaStop(-1).isNull() && gradient.colorStop(-1).isNull());
}

void TestGradient::automaticStopsTakeTheLargestGap()
{
    ZelGradient gradient(ZelGradient::Alpha);
    gradient.addColorStop();
    gradient.addColorStop();
    QCOMPARE(locations(gradient), (Floats{0, 0}));
    gradient.clearStops();
    gradient.addColorStop(0.0F, black);
    gradient.addColorStop(1.0F, red);
    const ZelGradientStop middle = gradient.addColorStop();
    QCOMPARE(middle.color().toRGB(), (std::array{0.5F, 0.0F, 0.0F}));
    gradient.addColorStop();
    QCOMPARE(locations(gradient), (Floats{0, 0.25F, 0.5F, 1}));
    gradient.clearStops();
    gradient.addAlphaStop(0.0F, 1.0F);
    gradient.addAlphaStop(0.5F, 0.5F);
    QCOMPARE(gradient.addAlphaStop().alpha(), 0.75F);
    QCOMPARE(locations(gradient), (Floats{0, 0.25F, 0.5F}));
}

void TestGradient::handlesReadAsNullOnceTheStopIsGone()
{
    auto gradient = std::make_unique<ZelGradient>(ZelGradient::Alpha);
    ZelGradient other;
    QVERIFY(other.addAlphaStop(0.5F, 0.2F).isNull() && other.addAlphaStop().isNull());
    ZelGradientStop kept = gradient->addColorStop(0.5F, red);
    const ZelGradientStop removed = gradient->addAlphaStop(0.5F, 0.2F);
    gradient->setSelected(removed);
    QCOMPARE(gradient->getIndexOfSelected(), 0);
    QSignalSpy changes(gradient.get(), &ZelGradient::gradientChanged);
    QSignalSpy selections(gradient.get(), &ZelGradient::selectionChanged);

    other.removeStop(removed);
    gradient->removeStop({});
    gradient->removeStop(ZelGradientStop(gradient.get(), 0.5F, 0.2F)); // never in the list
    QCOMPARE(gradient->stops(), 2);
    gradient->removeStop(removed);
    QCOMPARE(gradient->stops(), 1);
    QCOMPARE(changes.count(), 1);
    QVERIFY(removed.isNull() && !removed.parent() && gradient->selected().isNull());
    QCOMPARE(removed.alpha(), 0.2F);
    QCOMPARE(gradient->selected(), removed);
    QCOMPARE(gradient->getIndexOfSelected(), -1);
    QVERIFY(selections.isEmpty());
    QVERIFY(removed.clone(&other).isNull());

    gradient.reset();
    QVERIFY(kept.isNull() && kept.isColor());
    kept.setLocation(7);
    kept.setColor(blue);
    QCOMPARE(kept.location(), 7.0F);
    QCOMPARE(kept.clone(&other).location(), 1.0F);
    QCOMPARE(other.colorStop(0).color(), blue);

    ZelGradientStop none;
    none.setLocation(1);
    none.setColor(red);
    none.invalidate();
    QVERIFY(!none.isAlpha() && !none.isColor() && none.clone(&other).isNull());
    QCOMPARE(none.color(), white);
}

void TestGradient::editsTellWhenTheyAreTold()
{
    ZelGradient gradient(ZelGradient::Alpha);
    ZelGradientStop stop = gradient.addColorStop(0.5F, red);
    QSignalSpy changes(&gradient, &ZelGradient::gradientChanged);
    QSignalSpy selections(&gradient, &ZelGradient::selectionChanged);
    const auto told = [&](const std::function<void()> &edit) {
        const auto before = changes.count();
        edit();
        return changes.count() - before;
    };
    for (const int first : {1, 0}) { // the second time all values are the present ones
        QCOMPARE(told([&] { stop.setLocation(0.2F); }), first);
        QCOMPARE(told([&] { stop.setSlopeIn(9); }), first);
        QCOMPARE(told([&] { stop.setSlopeOut(-9); }), first);
        QCOMPARE(told([&] { stop.setAlpha(0.3F); }), first);
        QCOMPARE(told([&] { gradient.setBlend(false); }), first);
        QCOMPARE(told([&] { stop.setGain(30); }), 1);
        QCOMPARE(told([&] { stop.setColor(blue); }), 1);
        QCOMPARE(told([&] { stop.setGain(-1); }), 0);
    }
    QCOMPARE((Floats{stop.slopeIn(), stop.slopeOut(), stop.gain()}), (Floats{4, 0, 30}));

    gradient.setSelected(stop);
    gradient.setSelected(stop);
    QCOMPARE(selections.count(), 1);
    gradient.clearSelection();
    gradient.clearSelection();
    QCOMPARE(selections.count(), 3);
    QVERIFY(selections.last().first().value<ZelGradientStop>().isNull());
}

void TestGradient::numbersAreClampedOrDropped()
{
    ZelGradient gradient(ZelGradient::Alpha);
    gradient.addColorStop(noNumber, red, noNumber);
    gradient.addColorStop(inf, ZelColor(ZelColor::Space::RGB, noNumber, inf, -inf));
    gradient.addAlphaStop(-inf, 3.0F);
    QCOMPARE(locations(gradient), (Floats{0, 0, 1}));
    ZelGradientStop stop = gradient.alphaStop(0);
    QCOMPARE(stop.alpha(), 3.0F);
    QSignalSpy changes(&gradient, &ZelGradient::gradientChanged);
    stop.setLocation(noNumber);
    stop.setSlopeIn(noNumber);
    stop.setSlopeOut(noNumber);
    stop.setAlpha(noNumber);
    stop.setGain(noNumber);
    QVERIFY(changes.isEmpty());
    stop.setAlpha(inf);
    stop.setLocation(inf);
    stop.setSlopeIn(inf);
    QCOMPARE((Floats{stop.alpha(), stop.location(), stop.slopeIn()}), (Floats{1, 1, 4}));
    gradient.addAlphaStop(0.0F, noNumber);
    for (const bool blend : {true, false}) {
        gradient.setBlend(blend);
        QCOMPARE(gradient.paint(2).pixel(0, 0), qRgba(blend ? 0 : 255, 0, 0, 0));
    }
}

void TestGradient::resetTakesOverAndTellsInOrder()
{
    ZelGradient source(ZelGradient::Alpha | ZelGradient::Hdr);
    source.setBlend(false);
    source.addColorStop(0.5F, red, 3.0F).setSlopeIn(2);
    source.addAlphaStop(0.5F, 0.1F);
    source.addAlphaStop(0.5F, 0.2F);
    ZelGradient gradient;
    const ZelGradientStop old = gradient.addColorStop(0.1F, blue);
    gradient.setSelected(old);
    QStringList told;
    connect(&gradient, &ZelGradient::gradientChanged, &gradient,
            [&] { told += QString::number(gradient.stops()); });
    connect(&gradient, &ZelGradient::selectionChanged, &gradient, [&](const ZelGradientStop &stop) {
        told += QLatin1String(stop ? "selected" : "none");
    });
    gradient.reset(source);
    QCOMPARE(told.join(QLatin1Char(' ')), QStringLiteral("none 0 3 none"));
    QVERIFY(old.isNull() && gradient.hasAlpha() && !gradient.hasHdrColors() && !gradient.blend());
    QCOMPARE(ZelGradientText::write(gradient), ZelGradientText::write(source));
    QVERIFY(!(gradient.colorStop(0) == source.colorStop(0)));
    gradient.reset(gradient);
    QCOMPARE(ZelGradientText::write(gradient), ZelGradientText::write(source));
}

void TestGradient::listenersMayDeleteTheGradient()
{
    ZelGradient source;
    source.addColorStop(0.5F, red);
    for (const auto signal : {0, 1}) {
        auto *gradient = new ZelGradient;
        ZelGradientStop stop = gradient->addColorStop(0.1F, blue);
        const auto end = [gradient] {
            delete gradient;
        };
        if (signal == 0)
            connect(gradient, &ZelGradient::gradientChanged, this, end);
        else
            connect(gradient, &ZelGradient::selectionChanged, this, end);
        gradient->reset(source);
        QVERIFY(stop.isNull());
    }
    auto *gradient = new ZelGradient;
    ZelGradientStop stop = gradient->addColorStop(0.1F, blue);
    connect(gradient, &ZelGradient::gradientChanged, this, [gradient] { delete gradient; });
    stop.setLocation(0.7F);
    QVERIFY(stop.isNull());
}

void TestGradient::wholesaleEdits()
{
    ZelGradient gradient(ZelGradient::Alpha);
    gradient.addColorStop(0.25F, red).setSlopeOut(3);
    gradient.addColorStop(0.5F, blue);
    gradient.addColorStop(0.5F, black);
    gradient.addAlphaStop(0.25F, 0.5F);
    QSignalSpy changes(&gradient, &ZelGradient::gradientChanged);
    gradient.reverse();
    QCOMPARE(locations(gradient), (Floats{0.75F, 0.5F, 0.5F, 0.75F}));
    QCOMPARE(gradient.colorStop(0).color(), black);
    QCOMPARE(gradient.colorStop(2).slopeIn(), 3.0F);
    gradient.distributeEvenly();
    QCOMPARE(locations(gradient), (Floats{0.75F, 0, 0.5F, 1}));
    QCOMPARE(changes.count(), 2);
}

void TestGradient::rowsAreThoseOfQColor_data()
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

void TestGradient::rowsAreThoseOfQColor()
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

/// Beside a list that is sorted anew, stably, after every edit.
void TestGradient::anyEditsKeepTheOrder()
{
    Random random(8);
    ZelGradient gradient(ZelGradient::Alpha);
    QList<ZelGradientStop> model;
    for (int i = 0; i < 10000; ++i) {
        ZelGradientStop stop = anyStop(gradient, random);
        switch (random.upTo(model.size() > 60 ? 6 : 5)) {
        case 0:
            model.append(gradient.addColorStop(random.location(), random.color()));
            break;
        case 1:
            model.prepend(gradient.addAlphaStop(random.location(), random.in(0, 1)));
            break;
        case 2:
            if (stop)
                model.append(stop.clone(&gradient));
            break;
        case 3:
        case 4:
            stop.setLocation(random.location());
            break;
        case 5:
            model.removeOne(stop);
            gradient.removeStop(stop);
            break;
        default:
            gradient.clearStops();
            model.clear();
        }
        std::stable_sort(model.begin(), model.end());
        QCOMPARE(QList<ZelGradientStop>(gradient.begin(), gradient.end()), model);
        QCOMPARE(gradient.alphaStops(),
                 int(std::count_if(model.begin(), model.end(),
                                   [](const ZelGradientStop &one) { return one.isAlpha(); })));
        for (const ZelGradientStop &one : model)
            QVERIFY(one && one.location() >= 0 && one.location() <= 1);
    }
}

void TestGradient::textKeepsEverything()
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

void TestGradient::brokenTextChangesNothing_data()
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

void TestGradient::brokenTextChangesNothing()
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

void TestGradient::ggrBecomesStops()
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

void TestGradient::ggrFunctionsAreFollowed_data()
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
void TestGradient::ggrFunctionsAreFollowed()
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

void TestGradient::brokenGgrChangesNothing_data()
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

void TestGradient::brokenGgrChangesNothing()
{
    QFETCH(QByteArray, content);
    ZelGradient gradient;
    const ZelGradientStop stop = gradient.addColorStop(0.5F, red);
    QString error;
    QVERIFY(!ZelGradientGgr::read(content, gradient, nullptr, &error));
    QVERIFY(!error.isEmpty() && stop);
}

ZEL_TEST_MAIN(TestGradient)
#include "tst_gradient.moc"
