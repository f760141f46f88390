// The markers of curves: selection, mouse, look.

#include "CurveSceneTestCase.h"
#include "UserInput.h"

#include <ZelWidgets/ZelPenScaling>

#include <QGraphicsView>
#include <QSignalSpy>

#include <cmath>

namespace {

/// The largest difference of a channel.
int difference(const QImage &left, const QImage &right)
{
    int worst = 0;
    for (qsizetype i = 0; i < left.sizeInBytes(); ++i)
        worst = std::max(worst, std::abs(int(left.constBits()[i]) - int(right.constBits()[i])));
    return worst;
}

} // namespace

class CurveMarkersTest : public CurveSceneTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLaterSelectionStays();
    void aHiddenTangentHandsItsSelectionOn();
    void markersRemoveWhatTheyStandFor();
    void mouseSelectsAddsAndSparesTheRightButton();
    void selectedVerticesAreHighlighted();
    void markersFollowTheFont();
    void stampedMarkersLookPainted();
    void pensAreUnscaled();
};

void CurveMarkersTest::theLaterSelectionStays()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    QSignalSpy spy(scene_.get(), qOverload<ZelVertexHandle>(&ZelCurveScene::selectionChanged));
    QGraphicsItem *foreign = scene_->addRect(0, 0, 1, 1);
    foreign->setFlag(QGraphicsItem::ItemIsSelectable);
    const QList<QGraphicsItem *> items{marker(model, 0), marker(model, 1, in), marker(model, 2),
                                       foreign, marker(model, 1)};
    for (int i = 0; i < 50; ++i) {
        QGraphicsItem *later = items[i % items.size()];
        later->setSelected(true);
        QCOMPARE(scene_->selectedItems(), QList<QGraphicsItem *>{later});
        const auto *selected = dynamic_cast<Marker *>(later);
        QCOMPARE(scene_->selectedVertex(), selected ? selected->vertexHandle() : ZelVertexHandle());
        QCOMPARE(spy.takeLast().first().value<ZelVertexHandle>(), scene_->selectedVertex());
    }
    QCOMPARE(spy.size(), 0);
    // From the tangent to its vertex there is no news.
    marker(model, 1, out)->setSelected(true);
    QCOMPARE(spy.size(), 0);
    scene_->clearSelection();
    QCOMPARE(spy.size(), 1);
    QVERIFY(!scene_->selectedVertex().isValid());
}

void CurveMarkersTest::aHiddenTangentHandsItsSelectionOn()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    for (const ZelVertexData key : {in, out}) {
        marker(model, 1, key)->setSelected(true);
        marker(model, 1, key)->setPosition(QPointF(1, 2));
        QVERIFY(!marker(model, 1, key)->isVisible());
        QVERIFY(marker(model, 1)->isSelected());
        QCOMPARE(scene_->selectedItems().size(), 1);
        QCOMPARE(scene_->selectedVertex(), model.vertexHandle(1));
    }
}

void CurveMarkersTest::markersRemoveWhatTheyStandFor()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    scene_->removeSelectedVertex();
    QCOMPARE(model.vertexCount(), 3);
    marker(model, 1, in)->setSelected(true);
    scene_->removeSelectedVertex();
    QCOMPARE(model.vertexCount(), 3);
    QVERIFY(!model.hasVertexData(1, in));
    scene_->removeSelectedVertex();
    scene_->removeSelectedVertex();
    QCOMPARE(model.vertexCount(), 2);
    flush();
    checkStep({&model});
    QVERIFY(!scene_->selectedVertex().isValid());
}

void CurveMarkersTest::mouseSelectsAddsAndSparesTheRightButton()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    QGraphicsView view(scene_.get());
    view.resize(400, 300);
    view.setAlignment(Qt::AlignLeft);
    view.scale(100, -100);
    view.centerOn(1, 1);
    view.show();
    const auto at = [&](double x, double y) {
        return view.mapFromScene(QPointF(x, y));
    };
    UserInput::press(view.viewport(), at(1, 2));
    UserInput::release(view.viewport(), at(1, 2));
    QVERIFY(marker(model, 1)->isSelected());
    UserInput::press(view.viewport(), at(1.5, 1.5), {}, Qt::RightButton);
    UserInput::release(view.viewport(), at(1.5, 1.5), {}, Qt::RightButton);
    QVERIFY(marker(model, 1)->isSelected());
    UserInput::press(view.viewport(), at(0, 0), Qt::ControlModifier);
    UserInput::release(view.viewport(), at(0, 0), Qt::ControlModifier);
    QCOMPARE(scene_->selectedItems(), QList<QGraphicsItem *>{marker(model, 0)});
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at(0.25, -0.5));
    QCOMPARE(model.vertexCount(), 4);
    const double x = view.mapToScene(at(0.25, -0.5)).x();
    QCOMPARE(model.vertices()[1].position.x(), double(float(x)));
}

void CurveMarkersTest::selectedVerticesAreHighlighted()
{
    ZelBezierCurveModel model;
    model.setVertices(hill());
    scene_->addCurve(&model);
    ZelCurveView2Style &style = *style_;
    style.highlightColor = Qt::yellow;
    style.vertexOutlineColor = Qt::red;
    style.vertexFillColor = Qt::green;
    style.vertexSelectedFillColor = Qt::blue;
    style.vertexPenWidth = 0.1;
    style.vertexHighlightPenWidth = 0.2;
    style.vertexDiameter = 0.75;
    style.tangentOutlineColor = Qt::cyan;
    style.tangentFillColor = Qt::gray;
    style.tangentSelectedFillColor = Qt::white;
    style.tangentPenWidth = 0.05;
    style.tangentHighlightPenWidth = 0.15;
    style.tangentDiameter = 0.5;
    style.tangentLineColor = Qt::magenta;
    style.tangentLineWidth = 0.25;
    style.backgroundColor = Qt::darkBlue;
    scene_->onStyleUpdated();
    QCOMPARE(scene_->backgroundBrush(), QBrush(Qt::darkBlue));
    const double height = QFontMetricsF(QApplication::font()).height();
    const auto check = [&](bool selected) {
        const Marker *vertex = marker(model, 1);
        const Marker *tangent = marker(model, 1, out);
        QCOMPARE(vertex->pen().color(), QColor(selected ? Qt::yellow : Qt::red));
        const double width = selected ? 0.2 : 0.1;
        QCOMPARE(vertex->pen().widthF(), width * height);
        QCOMPARE(vertex->path().boundingRect().width(), (0.75 - width / 2) * height);
        QCOMPARE(vertex->brush().color(), QColor(Qt::green));
        QCOMPARE(tangent->pen().color(), QColor(selected ? Qt::yellow : Qt::cyan));
        QCOMPARE(tangent->pen().widthF(), (selected ? 0.15 : 0.05) * height);
        QCOMPARE(tangent->brush().color(), QColor(selected ? Qt::white : Qt::gray));
        QCOMPARE(marker(model, 0)->pen().color(), QColor(Qt::red));
        int highlighted = 0;
        for (const LineItem *line : itemsOf<LineItem>()) {
            QVERIFY(line->pen().isCosmetic());
            QCOMPARE(line->pen().widthF(), 0.25 * height);
            highlighted += line->pen().color() == QColor(Qt::yellow);
        }
        QCOMPARE(highlighted, selected ? 2 : 0);
    };
    check(false);
    marker(model, 1, out)->setSelected(true);
    check(true);
    scene_->clearSelection();
    check(false);
}

void CurveMarkersTest::markersFollowTheFont()
{
    const QFont before = QApplication::font();
    ZelBezierCurveModel model;
    model.setVertices({{QPointF(0, 0)}});
    scene_->addCurve(&model);
    const double size = marker(model, 0)->path().boundingRect().width();
    QFont large = before;
    large.setPointSizeF(before.pointSizeF() * 3);
    QApplication::setFont(large);
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    scene_->render(&painter, QRectF(), QRectF(-1, -1, 2, 2));
    const double now = marker(model, 0)->path().boundingRect().width();
    QApplication::setFont(before);
    QVERIFY(now > 2 * size);
    QVERIFY(marker(model, 0)->boundingRect().width() > now);
}

void CurveMarkersTest::stampedMarkersLookPainted()
{
    for (const int scale : {1, 2}) {
        QImage blank(QSize(40, 40) * scale, QImage::Format_RGB32);
        blank.setDevicePixelRatio(scale);
        blank.fill(Qt::white);
        for (const QPointF place : {QPointF(20, 20), QPointF(20.5, 20.25), QPointF(20.875, -0.25),
                                    QPointF(19.12, 38.9)}) {
            for (const bool isRound : {true, false}) {
                const ZelMarkerLook look{isRound, 12.5, 1.5, qRgb(200, 40, 40), qRgb(30, 200, 90)};
                QImage stamped = blank;
                QPainter stamping(&stamped);
                stamping.translate(place);
                ZelMarkerPainter().paint(stamping, look);
                QImage painted = blank;
                QPainter painting(&painted);
                painting.setRenderHint(QPainter::Antialiasing);
                painting.translate(place);
                painting.setPen(QPen(QColor(look.pen), look.penWidth));
                painting.setBrush(QColor(look.brush));
                painting.drawPath(zelMarkerPath(isRound, look.size));
                // An eighth of a pixel along each axis, at the corners.
                QVERIFY(difference(stamped, painted) <= 2 * 256 / 8 + 2);
                QVERIFY(difference(stamped, blank) > 200);
            }
        }
    }
}

void CurveMarkersTest::pensAreUnscaled()
{
    struct Case
    {
        ZelScaleMethod method;
        double width;
        double expected;
        bool cosmetic = false;
    };
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(2, -5);
    for (const Case &now : {Case{ZelScaleMethod::X, 3, 1.5}, Case{ZelScaleMethod::Y, 3, 0.6},
                            Case{ZelScaleMethod::Min, 3, 1.5}, Case{ZelScaleMethod::Max, 3, 0.6},
                            Case{ZelScaleMethod(77), 3, 0.6}, Case{ZelScaleMethod::X, 0.5, 0.25},
                            Case{ZelScaleMethod::X, 0.4, 0.4, true}}) {
        painter.setPen(QPen(Qt::red, now.width));
        unscalePenWidth(&painter, now.method);
        QCOMPARE(painter.pen().widthF(), now.expected);
        QCOMPARE(painter.pen().isCosmetic(), now.cosmetic);
    }
    QPen cosmetic(Qt::red, 4);
    cosmetic.setCosmetic(true);
    painter.setPen(cosmetic);
    unscalePenWidth(&painter, ZelScaleMethod::X);
    QCOMPARE(painter.pen(), cosmetic);
}

ZEL_TEST_MAIN(CurveMarkersTest)
#include "tst_curve_markers.moc"
