#include "TestCase.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelFontSizedWidget>
#include <ZelWidgets/ZelHyperLinkStyler>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelTextPainterStyle>

#include <QHBoxLayout>
#include <QStyle>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

ZelSettings ui()
{
    return ZelSettings(QStringLiteral("ui"));
}

QFont sized(int points)
{
    QFont font;
    font.setPointSize(points);
    return font;
}

// Choosing the mark of a size that was not read yet makes the next question read it.
void forgetFontSize()
{
    ZelFontMetrics::setZelmoraFontSizeSetting(-123);
    ui().removeKey(text("FontSize"));
}

} // namespace

/// Font services, the widgets that carry colours out of the style sheet, and the push button.
class TestFonts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFontSizeSettingIsReadInWholePoints();
    void theFontSizeSettingIsReadOnceAndStoredAtOnce();
    void theApplicationFontSizeIsAtLeastEight();
    void sizesAreLessOnScreensOfDoubleDensity();
    void theActualFontSizeIsWhatTheSheetProduced();
    void metricsMeasureTheFontOnItsDevice();
    void hintsInFontUnitsReplaceTheSetDirections();
    void hintsInFontUnitsFollowTheFontInLayouts();
    void linkColoursOfTheSheetReachThePalette();
    void textPaintersTakeTheirColoursFromTheSheet();
    void buttonsAreSecondaryAndMediumForTheSheet();

private:
    QFont font_;
    QPalette palette_;
};

void TestFonts::init()
{
    TestCase::init();
    font_ = QApplication::font();
    palette_ = QApplication::palette();
    forgetFontSize();
}

void TestFonts::cleanup()
{
    qApp->setStyleSheet(QString());
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
    TestCase::cleanup();
}

void TestFonts::theFontSizeSettingIsReadInWholePoints()
{
    const std::pair<QVariant, int> rows[] = {
        {14, 14},          {10.7, 10}, {-3.9, -3}, {text("12.9"), 12}, {text("large"), -1},
        {QSize(1, 2), -1}, {1e300, -1}};
    for (const auto &[stored, points] : rows) {
        forgetFontSize();
        ui().setValue(text("FontSize"), stored);
        QCOMPARE(ZelFontMetrics::getZelmoraFontSizeSetting(), points);
    }
}

void TestFonts::theFontSizeSettingIsReadOnceAndStoredAtOnce()
{
    QCOMPARE(ZelFontMetrics::getZelmoraFontSizeSetting(), -1);
    ui().setValue(text("FontSize"), 11);
    QCOMPARE(ZelFontMetrics::getZelmoraFontSizeSetting(), -1);
    ZelFontMetrics::setZelmoraFontSizeSetting(13);
    QCOMPARE(ui().value(text("FontSize")), QVariant(13));
    ui().setValue(text("FontSize"), 15);
    QCOMPARE(ZelFontMetrics::getZelmoraFontSizeSetting(), 13);
}

void TestFonts::theApplicationFontSizeIsAtLeastEight()
{
    const QList<QPair<int, int>> sizes{{7, 8}, {8, 8}, {12, 12}};
    for (const auto &[points, expected] : sizes) {
        QApplication::setFont(sized(points));
        QCOMPARE(ZelFontMetrics::getApplicationFontSize(), expected);
    }
    QFont inPixels;
    inPixels.setPixelSize(40);
    QApplication::setFont(inPixels);
    QCOMPARE(ZelFontMetrics::getApplicationFontSize(), 9);
}

void TestFonts::sizesAreLessOnScreensOfDoubleDensity()
{
    const bool isDouble = qEnvironmentVariable("QT_SCALE_FACTOR") == QLatin1String("2");
    QCOMPARE(ZelFontMetrics::adjustFontSize(12), isDouble ? 10 : 12);
    QCOMPARE(ZelFontMetrics::adjustFontSize(-1), isDouble ? -3 : -1);
}

void TestFonts::theActualFontSizeIsWhatTheSheetProduced()
{
    QApplication::setFont(sized(10));
    QCOMPARE(ZelFontMetrics::actualZelmoraFontSize(), 10);
    qApp->setStyleSheet(text("QWidget{font-size: 17pt;}"));
    QCOMPARE(ZelFontMetrics::actualZelmoraFontSize(), 17);
}

void TestFonts::metricsMeasureTheFontOnItsDevice()
{
    QWidget widget;
    widget.setFont(sized(20));
    const QFontMetrics plain(widget.font(), &widget);
    const ZelFontMetrics metrics(&widget);
    const int lineHeight = plain.boundingRect(text("Wgj")).height();
    QCOMPARE(metrics.editorHeight(), 12 * lineHeight / 10 + 6);
    QVERIFY(metrics.editorHeight() > metrics.height());
    QCOMPARE(metrics.widthM(), plain.boundingRect(QLatin1Char('M')).width());
    QCOMPARE(metrics.getHeight(ZelFontMetrics::FontHeight), plain.height());
    QCOMPARE(metrics.getHeight(ZelFontMetrics::EditorHeight), metrics.editorHeight());
    QCOMPARE(metrics.getHeight(ZelFontMetrics::HeightType(2)), -1);
    QCOMPARE(metrics.getHeight(ZelFontMetrics::HeightType(-7)), -1);

    QImage dense(10, 10, QImage::Format_RGB32);
    dense.setDotsPerMeterX(dense.dotsPerMeterX() * 3);
    dense.setDotsPerMeterY(dense.dotsPerMeterY() * 3);
    const ZelFontMetrics small(sized(10), nullptr);
    QCOMPARE(small.height(), QFontMetrics(sized(10)).height());
    QVERIFY(ZelFontMetrics(sized(10), &dense).height() > 2 * small.height());
    QCOMPARE(ZelFontMetrics(nullptr).height(), QFontMetrics(QApplication::font()).height());
}

void TestFonts::hintsInFontUnitsReplaceTheSetDirections()
{
    ZelFontSizedWidget widget;
    QCOMPARE(widget.sizeHint(), QWidget().sizeHint());
    QCOMPARE(widget.minimumSizeHint(), QWidget().minimumSizeHint());
    const ZelFontMetrics metrics(&widget);
    widget.setSizeHint(10, std::nullopt);
    QCOMPARE(widget.sizeHint(), QSize(10 * metrics.widthM(), -1));
    widget.setSizeHint(10, 3);
    widget.setMinimumSizeHint(std::nullopt, 2);
    QCOMPARE(widget.sizeHint(), QSize(10 * metrics.widthM(), 3 * metrics.height()));
    QCOMPARE(widget.minimumSizeHint(), QSize(-1, 2 * metrics.height()));
    widget.setSizeHint(0, std::numeric_limits<unsigned int>::max());
    QCOMPARE(widget.sizeHint(), QSize(0, QWIDGETSIZE_MAX));
    widget.setSizeHint(std::nullopt, std::nullopt);
    QCOMPARE(widget.sizeHint(), QWidget().sizeHint());
}

void TestFonts::hintsInFontUnitsFollowTheFontInLayouts()
{
    QWidget window;
    auto *layout = new QHBoxLayout(&window);
    auto *widget = new ZelFontSizedWidget;
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    widget->setSizeHint(5, 5);
    layout->addWidget(widget);
    window.setFont(sized(10));
    window.show();
    const QSize before = widget->size();
    QCOMPARE(before, widget->sizeHint());
    window.setFont(sized(20));
    QTRY_VERIFY(widget->height() > before.height());
    QCOMPARE(widget->size(), widget->sizeHint());
    widget->setSizeHint(6, 5);
    QTRY_COMPARE(widget->width(), 6 * ZelFontMetrics(widget).widthM());
}

void TestFonts::linkColoursOfTheSheetReachThePalette()
{
    QVERIFY(!ZelHyperLinkStyler().getHyperLinkColor().isValid());
    const auto link = [](QPalette::ColorGroup group) {
        return QApplication::palette().brush(group, QPalette::Link);
    };
    const auto rule = [](const char *colour) {
        return text("ZelHyperLinkStyler { qproperty-hyperLinkColor: %1;"
                    " qproperty-hyperLinkVisitedColor: #405060; }")
            .arg(text(colour));
    };
    const QColor window = QApplication::palette().color(QPalette::Window);
    for (const char *colour : {"#112233", "#aabbcc"}) {
        qApp->setStyleSheet(rule(colour));
        ZelHyperLinkStyler::updateApplicationPalette();
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
            QCOMPARE(link(group), QBrush(QColor(text(colour)), Qt::SolidPattern));
        QCOMPARE(QApplication::palette().color(QPalette::LinkVisited), QColor(0x40, 0x50, 0x60));
        QCOMPARE(QApplication::palette().color(QPalette::Window), window);
        QCOMPARE(QWidget().palette().color(QPalette::Link), QColor(text(colour)));
    }
}

void TestFonts::textPaintersTakeTheirColoursFromTheSheet()
{
    ZelTextPainterStyle plain;
    QCOMPARE(plain.getFillColor(), QColor(200, 200, 200, 200));
    QCOMPARE(plain.getBorderColor(), QColor(50, 50, 50, 128));
    QCOMPARE(plain.getTextColor(), QColor(10, 10, 10, 200));

    qApp->setStyleSheet(text("ZelTextPainterStyle { qproperty-fillColor: rgba(1, 2, 3, 40);"
                             " qproperty-textColor: #ff0000; }"));
    ZelTextPainterStyle styled;
    styled.ensurePolished();
    QCOMPARE(styled.getFillColor(), QColor(1, 2, 3, 40));
    QCOMPARE(styled.getBorderColor(), QColor(50, 50, 50, 128));
    QCOMPARE(styled.getTextColor(), QColor(255, 0, 0));
}

void TestFonts::buttonsAreSecondaryAndMediumForTheSheet()
{
    qApp->setStyleSheet(
        text("ZelPushButton[rank=\"Secondary\"][dimension=\"Medium\"] { color: #010203; }"
             "ZelPushButton[rank=\"Primary\"] { color: #040506; }"));
    QWidget parent;
    QPixmap picture(4, 4);
    picture.fill(Qt::red);
    const QList<ZelPushButton *> buttons{new ZelPushButton(&parent),
                                         new ZelPushButton(text("b"), &parent),
                                         new ZelPushButton(picture, text("b"), &parent)};
    for (ZelPushButton *button : buttons) {
        QCOMPARE(button->parent(), &parent);
        QCOMPARE(button->text(), button == buttons.first() ? QString() : text("b"));
        QCOMPARE(button->icon().isNull(), button != buttons.last());
        QCOMPARE(button->property("rank"), QVariant(text("Secondary")));
        QCOMPARE(button->property("dimension"), QVariant(text("Medium")));
        button->ensurePolished();
        QCOMPARE(button->palette().color(QPalette::ButtonText), QColor(1, 2, 3));
        button->setProperty("rank", text("Primary"));
        button->style()->unpolish(button);
        button->style()->polish(button);
        QCOMPARE(button->palette().color(QPalette::ButtonText), QColor(4, 5, 6));
    }
}

ZEL_TEST_MAIN(TestFonts)
#include "tst_fonts.moc"
