// The gallery's curve editor page: what counts as one step back, and the numbers below the view.

#include "TestCase.h"
#include "pages/CurveHistory.h"
#include "pages/CurveStrip.h"

#include <QCheckBox>
#include <QDoubleSpinBox>

class CurveEditorPageTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dragIsOneStep()
    {
        ZelBezierCurveModel first;
        ZelBezierCurveModel second;
        first.setVertices({{QPointF(0, 0)}, {QPointF(1, 1)}});
        CurveHistory history({&first, &second});
        QUndoStack *stack = history.stack();
        const auto moveTo = [&first](QPointF point) {
            first.vertexHandle(1).setData(ZelVertexData::Position, point);
        };
        history.begin();
        moveTo(QPointF(2, 2));
        moveTo(QPointF(3, 3));
        QCoreApplication::processEvents();
        QCOMPARE(stack->count(), 0);
        history.end();
        QCOMPARE(stack->count(), 1);
        // What ends as it began is no step.
        history.begin();
        moveTo(QPointF(9, 9));
        moveTo(QPointF(3, 3));
        history.end();
        QCOMPARE(stack->count(), 1);
        // Changes of one turn are one step, and don't run into a drag that follows.
        second.addVertex(1);
        second.addVertex(2);
        history.begin();
        moveTo(QPointF(4, 4));
        history.end();
        QCOMPARE(stack->count(), 3);
        stack->undo();
        QCOMPARE(first.vertices().at(1).position, QPointF(3, 3));
        QCOMPARE(second.vertexCount(), 2);
        stack->undo();
        QCOMPARE(second.vertexCount(), 0);
        stack->undo();
        QCOMPARE(first.vertices().at(1).position, QPointF(1, 1));
        stack->setIndex(3);
        QCOMPARE(first.vertices().at(1).position, QPointF(4, 4));
        QCoreApplication::processEvents();
        QCOMPARE(stack->count(), 3);
    }

    void numbersFollowAndWrite()
    {
        ZelBezierCurveModel model;
        model.setVertices({{QPointF(0, 0)}, {QPointF(4, 1), QPointF(3, 1), {}}, {QPointF(9, 0)}});
        CurveStrip strip;
        const QList<QDoubleSpinBox *> numbers = strip.findChildren<QDoubleSpinBox *>();
        QVERIFY(!numbers[0]->isEnabled());
        strip.setVertex(model.vertexHandle(1));
        QCOMPARE(numbers[0]->value(), 4.0);
        QCOMPARE(numbers[3]->value(), 1.0);
        QVERIFY(!numbers[4]->isEnabled());
        numbers[1]->setValue(0.5);
        QCOMPARE(model.vertices().at(1).position, QPointF(4, 0.5));
        // Behind its neighbour the curve doesn't let it go, and the field tells so.
        numbers[0]->setValue(20);
        QCOMPARE(numbers[0]->value(), 9.0);
        strip.findChildren<QCheckBox *>().at(0)->setChecked(true);
        QVERIFY(numbers[4]->isEnabled() || model.isSmooth(model.vertexHandle(1)));
        model.removeVertex(1);
        QVERIFY(!numbers[0]->isEnabled());
    }
};

ZEL_TEST_MAIN(CurveEditorPageTest)
#include "tst_curve_editor_page.moc"
