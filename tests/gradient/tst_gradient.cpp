// The gradient model: order and life of stops, evaluation.

#include "GradientSamples.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientText>

#include <QSignalSpy>

#include <functional>

namespace {

Floats locations(const ZelGradient &gradient)
{
    Floats result;
    for (const ZelGradientStop &stop : gradient)
        result.push_back(stop.location());
    return result;
}

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
    void anyEditsKeepTheOrder();
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

ZEL_TEST_MAIN(TestGradient)
#include "tst_gradient.moc"
