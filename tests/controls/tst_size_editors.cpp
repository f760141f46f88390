#include "NumberRows.h"
#include "ZelAspect.h"
#include "ZelCoordinateText.h"

#include <ZelWidgets/ZelCoordinateEdit>
#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelMetricWidget>
#include <ZelWidgets/ZelParameterGroup>
#include <ZelWidgets/ZelScaleWidget>
#include <ZelWidgets/ZelSizeEdit>
#include <ZelWidgets/ZelToolButton>

#include <QAbstractSpinBox>
#include <QSignalSpy>

#include <cmath>
#include <random>

namespace {

QAbstractSpinBox *fieldOf(QWidget *row)
{
    return row->findChild<QAbstractSpinBox *>();
}

/// The rows of an editor in the order in which they were made.
QList<ZelDoubleSliderEdit *> rowsOf(QWidget *editor)
{
    return editor->findChildren<ZelDoubleSliderEdit *>();
}

ZelDoubleSliderEdit *rowOf(QWidget *editor, const QString &name)
{
    for (ZelDoubleSliderEdit *row : rowsOf(editor)) {
        if (fieldOf(row)->accessibleName() == name)
            return row;
    }
    return nullptr;
}

} // namespace

class TestSizeEditors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void coordinateTexts_data();
    void coordinateTexts();
    void writtenCoordinatesAreReadBack();
    void coordinateFieldTakesWhatIsTyped();
    void lockedAspectMovesTheOtherSide();
    void aspectIsSetAndReset();
    void sidesShareOneRange();
    void sizeRowStandsForBoth();
    void scaleLinksItsFactors();
    void scaleKeepsLimitsAndRatio();
    void groupFlipsItsDetails();
    void metricWidgetTakesTheFontsHeight();
};

void TestSizeEditors::coordinateTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isPosition");
    QTest::addColumn<float>("latitude");
    QTest::addColumn<float>("longitude");

    const auto good = [](const QString &text, float latitude, float longitude) {
        QTest::newRow(qPrintable(text)) << text << true << latitude << longitude;
    };
    const auto bad = [](const QString &text) {
        QTest::newRow(qPrintable(text.left(40))) << text << false << 0.0F << 0.0F;
    };
    good(QStringLiteral("48.1372 N 11.5755 E"), 48.1372F, 11.5755F);
    good(QStringLiteral("48.1372s11.5755w"), -48.1372F, -11.5755F);
    good(QStringLiteral("  48,5 n ,\t7\u00B0 e\n"), 48.5F, 7);
    good(QStringLiteral("90N180W"), 90, -180);
    good(QStringLiteral("90.00000000 S 179.99999999 E"), -90, 180);
    good(QStringLiteral("1e-05 N 2.5e-07 E"), 1e-5F, 2.5e-7F);
    good(QStringLiteral("\u0664\u0665\u066B\u0665 N \u0661\u0660 E"), 45.5F, 10);
    good(QStringLiteral("\uFF11\uFF10 N 099 W"), 10, -99);
    bad(QString());
    bad(QStringLiteral("90.00000001 N 0 E"));
    bad(QStringLiteral("0 N 180.1 E"));
    bad(QStringLiteral("0 N 181 E"));
    bad(QStringLiteral("1.123456789 N 0 E"));
    bad(QStringLiteral("1 E 1 N"));
    bad(QStringLiteral("-1 N 1 E"));
    bad(QStringLiteral("1 N 1"));
    bad(QStringLiteral("1 N 1 E x"));
    bad(QStringLiteral("1. N 1 E"));
    bad(QStringLiteral("1") + QString(10'000, u' ') + QStringLiteral("N 1") +
        QString(10'000, u' '));
    bad(QString(10'000, u'9'));
}

void TestSizeEditors::coordinateTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isPosition);
    QFETCH(float, latitude);
    QFETCH(float, longitude);

    QWidget parent;
    const ZelCoordinateValidator validator(&parent);
    int cursor = 0;
    QCOMPARE(validator.validate(text, cursor),
             isPosition ? QValidator::Acceptable : QValidator::Invalid);
    float readLatitude = 0;
    float readLongitude = 0;
    QCOMPARE(validator.extractCoordinates(text, readLatitude, readLongitude), isPosition);
    QCOMPARE(readLatitude, latitude);
    QCOMPARE(readLongitude, longitude);
}

void TestSizeEditors::writtenCoordinatesAreReadBack()
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> part(-1, 1);
    const QRegularExpression expression = ZelCoordinateText::expression();
    for (const char *name : {"C", "de_DE", "sv_SE", "ar_EG", "fa_IR", "hi_IN"}) {
        const QLocale locale{QLatin1String(name)};
        for (int i = 0; i < 300; ++i) {
            const float shrink = std::pow(10.0F, static_cast<float>(-(i % 8)));
            const ZelCoordinateText::Position position{90 * part(random) * shrink,
                                                       180 * part(random) * shrink};
            const QString text = ZelCoordinateText::write(position, locale);
            const auto read = ZelCoordinateText::read(
                expression.match(ZelCoordinateText::normalized(text, locale)));
            QVERIFY2(read, qPrintable(text));
            QVERIFY(std::abs(read->latitude - position.latitude) <=
                    1e-5F * std::abs(position.latitude));
            QVERIFY(std::abs(read->longitude - position.longitude) <=
                    1e-5F * std::abs(position.longitude));
            QCOMPARE(ZelCoordinateText::write(*read, locale), text);
        }
    }
    QVERIFY(!ZelCoordinateText::isOnGlobe({std::nanf(""), 0}));
    QVERIFY(!ZelCoordinateText::isOnGlobe({0, -infinity}));
}

void TestSizeEditors::coordinateFieldTakesWhatIsTyped()
{
    ZelCoordinateEdit edit(nullptr);
    QSignalSpy updated(&edit, &ZelCoordinateEdit::valueUpdated);
    const auto position = [&edit] {
        float latitude = 0;
        float longitude = 0;
        edit.coordinates(latitude, longitude);
        return QPointF(static_cast<qreal>(latitude), static_cast<qreal>(longitude));
    };
    edit.setCoordinates(12.3456789F, -98.7654321F);
    QCOMPARE(edit.text(), QStringLiteral("12.3457 N 98.7654 W"));
    const QPointF stored = position();
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(position(), stored);
    messages().expect(QtWarningMsg, QStringLiteral("globe"));
    edit.setCoordinates(91, 0);
    QCOMPARE(position(), stored);
    QCOMPARE(updated.count(), 0);

    enter(&edit, QStringLiteral("91 N 0 E"));
    QCOMPARE(edit.styleSheet(), QStringLiteral("QLineEdit {background: #f99;}"));
    QCOMPARE(position(), stored);
    QTest::keyClick(&edit, Qt::Key_Escape);
    QCOMPARE(edit.text(), QStringLiteral("12.3457 N 98.7654 W"));
    QCOMPARE(edit.styleSheet(), QString());

    enter(&edit, QStringLiteral("1.5s2w"));
    QCOMPARE(edit.text(), QStringLiteral("1.5 S 2 W"));
    QCOMPARE(position(), QPointF(-1.5, -2));
    QCOMPARE(updated.count(), 1);
    enter(&edit, QStringLiteral("1.5 S 2 W"));
    QCOMPARE(updated.count(), 1);
}

void TestSizeEditors::lockedAspectMovesTheOtherSide()
{
    ZelSizeEdit edit(nullptr);
    edit.setSize(4, 3);
    QSignalSpy changed(&edit, &ZelSizeEdit::sizeChanged);
    auto *width = rowOf(&edit, QStringLiteral("Width"));
    auto *height = rowOf(&edit, QStringLiteral("Height"));
    QVERIFY(width && height);
    enter(fieldOf(width), QStringLiteral("6"));
    QCOMPARE(edit.height(), 3.0F);
    edit.setAspectLocked(true);
    enter(fieldOf(width), QStringLiteral("8"));
    QCOMPARE(edit.height(), 4.0F);
    QCOMPARE(fieldOf(height)->text(), QStringLiteral("4"));
    enter(fieldOf(height), QStringLiteral("2"));
    QCOMPARE(edit.width(), 4.0F);
    QCOMPARE(changed.count(), 3);
    QCOMPARE(changed.last(), QVariantList({4.0F, 2.0F}));

    std::mt19937 random(3);
    std::uniform_real_distribution<float> side(0.001F, 1000);
    for (int i = 0; i < 1000; ++i) {
        const float base = side(random);
        const double aspect = ZelAspect::ofSize(base, side(random));
        const float there = ZelAspect::heightFor(base, aspect);
        QVERIFY(std::abs(ZelAspect::widthFor(there, aspect) - base) <= 2e-7F * base);
    }
    QVERIFY(std::isinf(ZelAspect::ofSize(0, 1)));
    QVERIFY(!ZelAspect::isClose(0, 1e-300));
    QVERIFY(ZelAspect::isClose(1, 1 + 1e-13));
    QVERIFY(!ZelAspect::isClose(std::nan(""), 1));
}

void TestSizeEditors::aspectIsSetAndReset()
{
    ZelSizeEdit edit(nullptr);
    const auto buttons = edit.findChildren<ZelToolButton *>();
    QToolButton *lock = nullptr;
    QToolButton *reset = nullptr;
    for (ZelToolButton *button : buttons)
        (button->toolTip() == QStringLiteral("Lock Aspect") ? lock : reset) = button;
    QVERIFY(lock && reset && lock->isCheckable());
    QVERIFY(!reset->isEnabled());
    QSignalSpy changed(&edit, &ZelSizeEdit::sizeChanged);
    QSignalSpy locked(&edit, &ZelSizeEdit::aspectLockChanged);
    edit.setSize(4, 2);
    QCOMPARE(changed.count(), 0);
    QVERIFY(reset->isEnabled());
    lock->click();
    QVERIFY(edit.isAspectLocked());
    lock->click();
    reset->click();
    QCOMPARE(edit.height(), 4.0F);
    QVERIFY(edit.isAspectLocked() && lock->isChecked() && !reset->isEnabled());
    QCOMPARE(locked.count(), 3);
    QCOMPARE(changed.count(), 1);
    edit.setAspect(1);
    QCOMPARE(changed.count(), 1);
    edit.setAspect(0.5);
    QCOMPARE(changed.last(), QVariantList({4.0F, 2.0F}));
    edit.setDefaultAspect(0.5);
    QVERIFY(!reset->isEnabled());
    messages().expect(QtWarningMsg, QStringLiteral("finite"));
    edit.setAspect(std::nan(""));
    edit.setSize(0, 0);
    edit.setSize(3, 6);
    QCOMPARE(edit.height(), 6.0F);
}

void TestSizeEditors::sidesShareOneRange()
{
    ZelSizeEdit edit(nullptr);
    auto *width = rowOf(&edit, QStringLiteral("Width"));
    auto *height = rowOf(&edit, QStringLiteral("Height"));
    for (const char *text : {"50", "3", "4000", "0.01", "0"}) {
        enter(fieldOf(width), QLatin1String(text));
        enter(fieldOf(height), QStringLiteral("7"));
        QTRY_COMPARE(width->sliderMaximum(), height->sliderMaximum());
        QVERIFY(width->sliderMaximum() >= static_cast<double>(edit.width()));
        QVERIFY(width->sliderMaximum() >= 7);
        QCOMPARE(width->sliderMinimum(), 0.0);
    }
}

void TestSizeEditors::sizeRowStandsForBoth()
{
    ZelSizeEdit edit(nullptr);
    edit.setSize(4, 3);
    edit.setShowSizeOnly(true);
    edit.setSizeOnlyText(QStringLiteral("Edge"));
    QSignalSpy changed(&edit, &ZelSizeEdit::sizeChanged);
    for (ZelDoubleSliderEdit *row : rowsOf(&edit))
        QCOMPARE(row->isHidden(), row != rowOf(&edit, QStringLiteral("Edge")));
    enter(fieldOf(rowOf(&edit, QStringLiteral("Edge"))), QStringLiteral("8"));
    QCOMPARE(changed, QList<QVariantList>({{8.0F, 6.0F}}));
    edit.setShowSizeOnly(false);
    QCOMPARE(fieldOf(rowOf(&edit, QStringLiteral("Width")))->text(), QStringLiteral("8"));
    QCOMPARE(fieldOf(rowOf(&edit, QStringLiteral("Height")))->text(), QStringLiteral("6"));
}

void TestSizeEditors::scaleLinksItsFactors()
{
    ZelScaleWidget scale(QStringLiteral("Scale"));
    QSignalSpy updated(&scale, &ZelScaleWidget::scaleUpdated);
    scale.set(1, 2, 2);
    QCOMPARE(updated.count(), 0);
    auto *both = rowOf(&scale, QStringLiteral("Scale"));
    auto *x = rowOf(&scale, QStringLiteral("X"));
    auto *y = rowOf(&scale, QStringLiteral("Y"));
    QVERIFY(both && x && y);
    enter(fieldOf(both), QStringLiteral("3"));
    enter(fieldOf(x), QStringLiteral("4"));
    enter(fieldOf(y), QStringLiteral("10"));
    QCOMPARE(updated, QList<QVariantList>({{3.0F, 6.0F}, {4.0F, 8.0F}, {5.0F, 10.0F}}));
    QCOMPARE(fieldOf(both)->text(), QStringLiteral("5"));

    scale.setKeepAspectRatio(false);
    enter(fieldOf(x), QStringLiteral("2.5"));
    QCOMPARE(scale.scaleY(), 10.0F);
    enter(fieldOf(both), QStringLiteral("5"));
    QCOMPARE(scale.scaleY(), 20.0F);

    scale.show();
    auto *label = scale.findChildren<ZelFlipLabel *>().constFirst();
    label->setFocus();
    QTest::mouseClick(label, Qt::LeftButton);
    QVERIFY(scale.isOpen() && both->isHidden() && x->isVisible());
    scale.open(false);
    QVERIFY(!both->isHidden() && !x->isVisible());
}

void TestSizeEditors::scaleKeepsLimitsAndRatio()
{
    ZelScaleWidget scale(QStringLiteral("Scale"));
    QSignalSpy updated(&scale, &ZelScaleWidget::scaleUpdated);
    for (const float ratio : {0.0F, infinity, std::nanf("")}) {
        messages().expect(QtWarningMsg, QStringLiteral("ratio"));
        scale.setAspectRatio(ratio);
    }
    QCOMPARE(scale.aspectRatio(), 1.0F);
    QCOMPARE(updated.count(), 0);
    scale.setAspectRatio(3);
    QCOMPARE(updated, QList<QVariantList>({{1.0F, 3.0F}}));
    scale.setLimits(true, 0, 10, 0, 6);
    auto *x = rowOf(&scale, QStringLiteral("X"));
    QCOMPARE(x->sliderMaximum(), 10.0);
    QCOMPARE(rowOf(&scale, QStringLiteral("Y"))->sliderMaximum(), 6.0);
    enter(fieldOf(x), QStringLiteral("4"));
    QCOMPARE(scale.scaleY(), 6.0F);
    enter(fieldOf(x), QStringLiteral("1"));
    QCOMPARE(scale.scaleY(), 3.0F);
}

void TestSizeEditors::groupFlipsItsDetails()
{
    ZelParameterGroup group(QStringLiteral("Relief"));
    float number = 1;
    auto *row = new ZelDoubleSliderEdit(QStringLiteral("Depth"), 0, 9, &number, 0, 9, nullptr,
                                        nullptr, false);
    auto *always = new QWidget;
    group.setGroupWidget(always);
    group.addDetailWidget(row);
    group.show();
    QVERIFY(always->isVisible() && !row->isVisible() && !group.groupLabel()->isOpen());
    QTest::mouseClick(group.groupLabel(), Qt::LeftButton);
    QVERIFY(row->isVisible() && group.groupLabel()->isOpen());
    QSignalSpy updated(&group, &ZelParameterGroup::valueUpdated);
    enter(fieldOf(row), QStringLiteral("5"));
    QCOMPARE(updated.count(), 1);
    group.hide();
    QMetaObject::invokeMethod(&group, "widgetFlip");
    QVERIFY(!group.groupLabel()->isOpen());
    group.show();
    QVERIFY(!row->isVisible());
}

void TestSizeEditors::metricWidgetTakesTheFontsHeight()
{
    ZelMetricWidget widget(ZelFontMetrics::FontHeight);
    QCOMPARE(widget.sizeHint().height(), ZelFontMetrics(&widget).height());
    widget.setHeightType(ZelFontMetrics::EditorHeight);
    QCOMPARE(widget.sizeHint().height(), ZelFontMetrics(&widget).editorHeight());
    widget.setHeightType(static_cast<ZelFontMetrics::HeightType>(7));
    QCOMPARE(widget.sizeHint(), QSize(-1, -1));
    auto *child = new QWidget;
    child->setFixedSize(40, 90);
    widget.setChildWidget(child, true);
    QCOMPARE(widget.sizeHint(), QSize(40, -1));
    widget.setMinSize({50, 10});
    widget.setExtraSize({3, 4});
    QCOMPARE(widget.sizeHint(), QSize(53, 14));
    widget.resize(140, 90);
    widget.show();
    QCOMPARE(child->geometry(), QRect(50, 0, 40, 90));
    widget.setChildWidget(new QWidget);
    QVERIFY(child->isHidden() && child->parent() == &widget);
}

ZEL_TEST_MAIN(TestSizeEditors)
#include "tst_size_editors.moc"
