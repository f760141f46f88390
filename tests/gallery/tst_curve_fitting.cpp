#include "TestCase.h"

#include "pages/BallRecording.h"
#include "pages/CurveFitting.h"

#include <ZelCore/ZelBezierCurveModel>

#include <QRandomGenerator>

#include <cmath>

class CurveFittingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theRecordingIsThatOfABall();
    void everySampleIsWithinTheTolerance_data();
    void everySampleIsWithinTheTolerance();
    void bouncesAreCornersAndFlightsAreNot();
    void hardlyAnySamples();
};

void CurveFittingTest::theRecordingIsThatOfABall()
{
    const QList<QPointF> samples = BallRecording().samples();
    QCOMPARE(samples.size(), 2401);
    QCOMPARE(samples.last(), QPointF(10.0, 0.0));
    // Half a second of free fall from 3 m, a little slower in air.
    const double height = samples.at(120).y();
    QVERIFY(height > 3.0 - 0.5 * 9.81 * 0.25 && height < 1.85);
    for (const QPointF &sample : samples)
        QVERIFY(sample.y() >= 0.0 && sample.y() <= 3.0);
}

void CurveFittingTest::everySampleIsWithinTheTolerance_data()
{
    QTest::addColumn<QList<QPointF>>("samples");
    QTest::addColumn<double>("tolerance");
    QTest::addColumn<int>("mostVertices");
    const QList<QPointF> ball = BallRecording().samples();
    QTest::newRow("ball, coarse") << ball << 0.1 << 25;
    QTest::newRow("ball, fine") << ball << 0.001 << 60;
    QList<QPointF> waves;
    QList<QPointF> noise;
    QList<QPointF> line;
    QRandomGenerator random(3);
    for (int i = 0; i < 2000; ++i) {
        // Uneven steps.
        const double x = i + 0.8 * random.generateDouble();
        waves += QPointF(x, std::sin(x / 50.0) * x);
        noise += QPointF(x, random.generateDouble());
        line += QPointF(x, 3.0 * x);
    }
    QTest::newRow("waves") << waves << 1.0 << 80;
    QTest::newRow("noise") << noise << 0.01 << 2000;
    QTest::newRow("line") << line << 1e-9 << 2;
    QTest::newRow("through all") << ball << 0.0 << 2401;
}

void CurveFittingTest::everySampleIsWithinTheTolerance()
{
    QFETCH(QList<QPointF>, samples);
    QFETCH(double, tolerance);
    QFETCH(int, mostVertices);
    ZelBezierCurveModel model;
    model.setVertices(fitCurve(samples, tolerance));
    QVERIFY2(model.vertexCount() <= mostVertices, qPrintable(QString::number(model.vertexCount())));
    for (const QPointF &sample : samples) {
        const double error = std::abs(*model.valueAt(sample.x()) - sample.y());
        QVERIFY2(error <= tolerance + 1e-9,
                 qPrintable(QStringLiteral("%1 at %2").arg(error).arg(sample.x())));
    }
}

void CurveFittingTest::bouncesAreCornersAndFlightsAreNot()
{
    for (const auto &vertex : fitCurve(BallRecording().samples(), 0.02)) {
        const bool isEnd = vertex.position.x() == 0.0 || vertex.position.x() == 10.0;
        if (vertex.position.y() > 0.3)
            QCOMPARE(vertex.smooth, !isEnd);
        else if (vertex.position.x() < 4.0)
            QVERIFY(!vertex.smooth);
    }
}

void CurveFittingTest::hardlyAnySamples()
{
    QVERIFY(fitCurve({}, 1.0).isEmpty());
    QCOMPARE(fitCurve({QPointF(1, 2)}, 1.0).size(), 1);
    const auto two = fitCurve({QPointF(1, 2), QPointF(4, 8)}, 0.0);
    QCOMPARE(two.size(), 2);
    QCOMPARE(*two.first().outTangent, QPointF(2, 4));
    // A parabola is one piece.
    QCOMPARE(fitCurve({QPointF(0, 0), QPointF(1, 1), QPointF(2, 0)}, 1e-9).size(), 2);
}

ZEL_TEST_MAIN(CurveFittingTest)
#include "tst_curve_fitting.moc"
