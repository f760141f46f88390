#include "TestCase.h"
#include "UserInput.h"

#include "pages/AnimationCurvePage.h"
#include "pages/BallRecording.h"

#include <ZelCore/ZelBezierCurveModel>

#include <QAbstractButton>
#include <QDoubleSpinBox>
#include <QGraphicsView>
#include <QLabel>

#include <cmath>

/// The page on which a recorded ball is played by its curve.
class AnimationCurveTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theMarkerRunsInSixtiethsAndRestsWhenHidden();
    void fieldMarkerAndBallAgree();
    void theCurveIsFittedAnew();

private:
    double time() const { return number(BallRecording::duration)->value(); }
    bool shows(const QString &text) const;
    QAbstractButton *button(const QString &text) const;
    QDoubleSpinBox *number(double maximum) const;

    std::unique_ptr<AnimationCurvePage> page_;
    ZelBezierCurveModel *model_ = nullptr;
};

void AnimationCurveTest::init()
{
    TestCase::init();
    page_ = std::make_unique<AnimationCurvePage>();
    page_->resize(1000, 700);
    page_->show();
    model_ = page_->findChild<ZelBezierCurveModel *>();
    QVERIFY(model_ && QTest::qWaitForWindowExposed(page_.get()));
}

void AnimationCurveTest::cleanup()
{
    page_.reset();
    TestCase::cleanup();
}

QAbstractButton *AnimationCurveTest::button(const QString &text) const
{
    for (auto *button : page_->findChildren<QAbstractButton *>()) {
        if (button->text().remove(u'&') == text)
            return button;
    }
    return nullptr;
}

QDoubleSpinBox *AnimationCurveTest::number(double maximum) const
{
    for (auto *number : page_->findChildren<QDoubleSpinBox *>()) {
        if (number->maximum() == maximum)
            return number;
    }
    return nullptr;
}

bool AnimationCurveTest::shows(const QString &text) const
{
    const QList<QLabel *> labels = page_->findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(),
                       [&](const QLabel *label) { return label->text().contains(text); });
}

void AnimationCurveTest::theMarkerRunsInSixtiethsAndRestsWhenHidden()
{
    QAbstractButton *play = button(QStringLiteral("Play"));
    number(BallRecording::duration)->setValue(9.9);
    play->click();
    // Round to the beginning, a recording is played again and again.
    QTRY_VERIFY(time() < 1.0 && time() > 0.1);
    const double steps = (time() + 0.1) * 60.0;
    QVERIFY2(std::abs(steps - std::round(steps)) < 0.05,
             qPrintable(QString::number(time(), 'f', 4)));
    page_->hide();
    QVERIFY(!play->isChecked());
    QVERIFY(button(QStringLiteral("Play")));
}

void AnimationCurveTest::fieldMarkerAndBallAgree()
{
    auto *view = page_->findChild<QGraphicsView *>();
    QWidget *viewport = view->viewport();
    const auto pixel = [&](double time, int y) {
        return QPoint(view->mapFromScene(QPointF(time, 0.0)).x(), y);
    };
    const int middle = viewport->height() / 2;
    const double pixelTime = view->mapToScene(1, 0).x() - view->mapToScene(0, 0).x();

    // The ruler, where the ball is highest.
    const QPoint onRuler = pixel(1.4, viewport->height() - 8);
    UserInput::press(viewport, onRuler);
    UserInput::release(viewport, onRuler);
    QVERIFY(std::abs(time() - 1.4) <= pixelTime);
    const QString height = QLocale().toString(*model_->valueAt(time()), 'f', 3);
    QVERIFY2(shows(QStringLiteral("Height ") + height), qPrintable(height));

    // The marker, beyond the end as well.
    UserInput::drag(viewport, pixel(time(), middle), pixel(7.0, middle));
    QVERIFY2(std::abs(time() - 7.0) <= 2 * pixelTime, qPrintable(QString::number(time())));
    UserInput::drag(viewport, pixel(time(), middle), pixel(-0.3, middle));
    QCOMPARE(time(), 0.0);

    // The field moves the marker to where it can be dragged from again.
    number(BallRecording::duration)->setValue(5.0);
    UserInput::drag(viewport, pixel(5.0, middle), pixel(6.0, middle));
    QVERIFY(std::abs(time() - 6.0) <= 2 * pixelTime);
}

void AnimationCurveTest::theCurveIsFittedAnew()
{
    number(BallRecording::duration)->setValue(0.0);
    const QList<ZelBezierCurveModel::Vertex> fitted = model_->vertices();
    QVERIFY(fitted.size() > 8 && shows(QStringLiteral(" %1 vertices").arg(fitted.size())));
    model_->vertexHandle(0).setData(ZelVertexData::Position, QPointF(0.0, 2.0));
    QVERIFY(shows(QStringLiteral("Height 2.000")) && shows(QStringLiteral("at most 1.0000 m")));
    button(QStringLiteral("Fit again"))->click();
    QVERIFY(model_->vertices() == fitted);
    number(0.5)->setValue(0.1);
    QVERIFY(model_->vertexCount() < fitted.size());
    number(0.95)->setValue(0.5);
    // A dull ball comes to rest early.
    QVERIFY(*model_->valueAt(6.0) < 0.1 && shows(QStringLiteral("2,401 samples")));
}

ZEL_TEST_MAIN(AnimationCurveTest)
#include "tst_animation_curve.moc"
