#include "TestCase.h"

#include "theme/AnimationControlStyler.h"
#include "theme/SingleClickActivationStyle.h"
#include "theme/ZelStyleSwitch.h"

#include <ZelCore/ZelGlobalIconCache>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelStyleForwarder>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelmoraStyle>

#include <QCommonStyle>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStyleFactory>
#include <QStyleOption>

#include <memory>

namespace {

using Option = QStyleOption;
using Complex = QStyleOptionComplex;

// Answers all with fixed values and writes down what it was asked and what it drew.
class RecordingStyle : public QCommonStyle
{
public:
    int smallIconSize = 14;
    QRect spinDown = QRect(3, 10, 5, 6);
    mutable QRect drawnRect;
    mutable QStringList calls;

    int pixelMetric(PixelMetric metric, const Option *, const QWidget *) const override
    {
        return note("pixelMetric", metric == PM_SmallIconSize ? smallIconSize : 100 + int(metric));
    }
    int styleHint(StyleHint hint, const Option *, const QWidget *,
                  QStyleHintReturn *) const override
    {
        return note("styleHint", 1000 + int(hint));
    }
    QRect subControlRect(ComplexControl, const Complex *, SubControl,
                         const QWidget *) const override
    {
        return note("subControlRect", spinDown);
    }
    void drawPrimitive(PrimitiveElement, const Option *option, QPainter *,
                       const QWidget *) const override
    {
        drawnRect = note("drawPrimitive", option->rect);
    }
    QSize sizeFromContents(ContentsType, const Option *, const QSize &,
                           const QWidget *) const override
    {
        return note("sizeFromContents", QSize(1, 2));
    }
    void polish(QPalette &) override { note("polishPalette"); }
    void polish(QApplication *) override { note("polishApplication"); }
    void polish(QWidget *) override { note("polishWidget"); }
    void unpolish(QWidget *) override { note("unpolishWidget"); }
    void unpolish(QApplication *) override { note("unpolishApplication"); }
    QRect itemTextRect(const QFontMetrics &, const QRect &, int flags, bool enabled,
                       const QString &) const override
    {
        return note("itemTextRect", QRect(flags, enabled, 2, 3));
    }
    QRect itemPixmapRect(const QRect &, int flags, const QPixmap &) const override
    {
        return note("itemPixmapRect", QRect(flags, 1, 2, 3));
    }
    void drawItemText(QPainter *, const QRect &, int, const QPalette &, bool, const QString &,
                      QPalette::ColorRole) const override
    {
        note("drawItemText");
    }
    void drawItemPixmap(QPainter *, const QRect &, int, const QPixmap &) const override
    {
        note("drawItemPixmap");
    }
    QPalette standardPalette() const override { return note("standardPalette", QPalette()); }
    void drawControl(ControlElement, const Option *, QPainter *, const QWidget *) const override
    {
        note("drawControl");
    }
    QRect subElementRect(SubElement element, const Option *, const QWidget *) const override
    {
        return note("subElementRect", QRect(int(element), 1, 2, 3));
    }
    void drawComplexControl(ComplexControl, const Complex *, QPainter *,
                            const QWidget *) const override
    {
        note("drawComplexControl");
    }
    SubControl hitTestComplexControl(ComplexControl, const Complex *, const QPoint &,
                                     const QWidget *) const override
    {
        return note("hitTestComplexControl", SC_SliderGroove);
    }
    QPixmap standardPixmap(StandardPixmap, const Option *, const QWidget *) const override
    {
        return note("standardPixmap", QPixmap(3, 4));
    }
    QIcon standardIcon(StandardPixmap, const Option *, const QWidget *) const override
    {
        return note("standardIcon", QIcon(QPixmap(5, 6)));
    }
    QPixmap generatedIconPixmap(QIcon::Mode, const QPixmap &, const Option *) const override
    {
        return note("generatedIconPixmap", QPixmap(7, 8));
    }
    int layoutSpacing(QSizePolicy::ControlType, QSizePolicy::ControlType, Qt::Orientation,
                      const Option *, const QWidget *) const override
    {
        return note("layoutSpacing", 77);
    }

private:
    template <typename Result = int>
    Result note(const char *call, Result result = {}) const
    {
        calls += QString::fromLatin1(call);
        return result;
    }
};

// A widget on a screen of another density, without the screen.
class DenseWidget : public QWidget
{
public:
    double ratio = 2;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        if (metric == PdmDevicePixelRatio)
            return qRound(ratio);
        if (metric == PdmDevicePixelRatioScaled)
            return qRound(ratio * devicePixelRatioFScale());
        return QWidget::metric(metric);
    }
};

constexpr char allCalls[] =
    "polishPalette polishApplication polishWidget unpolishWidget unpolishApplication itemTextRect "
    "itemPixmapRect drawItemText drawItemPixmap standardPalette drawPrimitive drawControl "
    "subElementRect drawComplexControl hitTestComplexControl subControlRect pixelMetric "
    "sizeFromContents styleHint standardPixmap standardIcon generatedIconPixmap layoutSpacing";

} // namespace

class StyleTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metricsAndHints();
    void scalableMenuIconsKeepToTheFont();
    void menuItemsReserveRoomForIcons();
    void spinBoxesOnDenseScreens();
    void rightArrowFollowsTheTheme();
    void separatorsOfToolBars();
    void forwardersForwardEverything();
    void forwardersOutliveTheirBase();
    void forwardersSurviveAnEmptySheetAndStayOnTheStyleThroughASwitch();
    void stylersAnswerTheirHints();

private:
    void loadTheme(const char *arrow, bool dark);

    // Owned by the style in use.
    RecordingStyle *base_ = nullptr;
    std::unique_ptr<ZelmoraStyle> style_;
};

void StyleTest::init()
{
    TestCase::init();
    base_ = new RecordingStyle;
    style_ = std::make_unique<ZelmoraStyle>(base_);
}

void StyleTest::loadTheme(const char *arrow, bool dark)
{
    IconColorTheme::instance()->loadThemeFile(
        writeFile(QStringLiteral("theme.json"), QByteArray(R"([{"arrow": ")") + arrow + R"("}])"));
    ZelGlobalIconCache::setDarkTheme(dark);
}

void StyleTest::metricsAndHints()
{
    QCOMPARE(style_->pixelMetric(QStyle::PM_ToolBarIconSize), 16);
    base_->smallIconSize = 17;
    QCOMPARE(style_->pixelMetric(QStyle::PM_ToolBarIconSize), 17);
    QCOMPARE(style_->pixelMetric(QStyle::PM_IndicatorWidth), 17);
    QCOMPARE(style_->pixelMetric(QStyle::PM_IndicatorHeight), 17);
    QCOMPARE(style_->pixelMetric(QStyle::PM_ButtonMargin), 100 + int(QStyle::PM_ButtonMargin));
    QCOMPARE(style_->styleHint(QStyle::SH_EtchDisabledText), 0);
    QCOMPARE(style_->styleHint(QStyle::SH_ItemView_ShowDecorationSelected), 0);
    QCOMPARE(style_->styleHint(QStyle::SH_Widget_Animate), 1000 + int(QStyle::SH_Widget_Animate));
}

void StyleTest::scalableMenuIconsKeepToTheFont()
{
    base_->smallIconSize = 400;
    QWidget widget;
    const int fontHeight = QFontMetrics(widget.font()).height();
    const auto size = [&](const QIcon &icon, const QWidget *asking) {
        QStyleOptionMenuItem option;
        option.icon = icon;
        return style_->pixelMetric(QStyle::PM_SmallIconSize, &option, asking);
    };
    const ZelStyleIcon scalable(QStringLiteral(":/ui/widgetIcons/arrow_right.zelsvg"));
    QCOMPARE(size(scalable, &widget), fontHeight);
    QCOMPARE(size(scalable, nullptr), 400);
    QCOMPARE(size(QIcon(), &widget), 400);
    QCOMPARE(size(QIcon(QPixmap(16, 16)), &widget), 400);
    QCOMPARE(style_->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget), 400);
    base_->smallIconSize = 1;
    QCOMPARE(size(scalable, &widget), 1);
}

void StyleTest::menuItemsReserveRoomForIcons()
{
    QMenu menu;
    menu.addAction(QStringLiteral("plain"));
    QStyleOptionMenuItem option;
    style_->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(), &menu);
    QVERIFY(option.icon.isNull());
    const QIcon icon(QPixmap(16, 16));
    menu.addAction(icon, QStringLiteral("with icon"));
    menu.addAction(QIcon(QPixmap(8, 8)), QStringLiteral("with another"));
    QCOMPARE(style_->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(), &menu), QSize(1, 2));
    QCOMPARE(option.icon.cacheKey(), icon.cacheKey());
    // Other widgets that draw menu items keep what they have.
    QStyleOptionMenuItem other;
    QPushButton button;
    style_->sizeFromContents(QStyle::CT_MenuItem, &other, QSize(), &button);
    QVERIFY(other.icon.isNull());
    QStyleOption plain;
    QCOMPARE(style_->sizeFromContents(QStyle::CT_MenuItem, &plain, QSize(), &menu), QSize(1, 2));
}

void StyleTest::spinBoxesOnDenseScreens()
{
    DenseWidget widget;
    QStyleOptionSpinBox option;
    const auto top = [&](double ratio, int height, QStyle::SubControl part) {
        widget.ratio = ratio;
        widget.resize(40, height);
        return style_->subControlRect(QStyle::CC_SpinBox, &option, part, &widget).top();
    };
    // The base's rectangle begins at 10 and is 6 high: it moves where 13 is less than the height.
    QCOMPARE(top(2, 14, QStyle::SC_SpinBoxDown), 11);
    QCOMPARE(top(1.25, 14, QStyle::SC_SpinBoxDown), 11);
    QCOMPARE(top(2, 13, QStyle::SC_SpinBoxDown), 10);
    QCOMPARE(top(1, 14, QStyle::SC_SpinBoxDown), 10);
    QCOMPARE(top(2, 14, QStyle::SC_SpinBoxUp), 10);

    const auto drawn = [&](double ratio, QStyle::PrimitiveElement element) {
        widget.ratio = ratio;
        option.rect = QRect(10, 10, 8, 6);
        style_->drawPrimitive(element, &option, nullptr, &widget);
        return base_->drawnRect;
    };
    QCOMPARE(drawn(2, QStyle::PE_IndicatorSpinUp), QRect(8, 10, 12, 6));
    QCOMPARE(drawn(2, QStyle::PE_IndicatorSpinDown), QRect(8, 10, 12, 6));
    QCOMPARE(drawn(2, QStyle::PE_IndicatorSpinPlus), QRect(10, 10, 8, 6));
    QCOMPARE(drawn(1, QStyle::PE_IndicatorSpinUp), QRect(10, 10, 8, 6));
}

void StyleTest::rightArrowFollowsTheTheme()
{
    QWidget widget;
    const int side = widget.fontMetrics().boundingRect(QLatin1Char('i')).height();
    QStyleOption option;
    option.rect = QRect(10, 20, 100, side + 7);
    const auto painted = [&]() {
        QImage image(140, 20 + side + 20, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        style_->drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, &painter, &widget);
        return image;
    };
    // Right-aligned and centred; the space above is 7 / 2 rounded down.
    const QRect target(109 - side, 23, side, side);
    loadTheme("#ff0000", true);
    QImage wanted(140, 20 + side + 20, QImage::Format_ARGB32_Premultiplied);
    wanted.fill(Qt::white);
    QPainter(&wanted).fillRect(target, Qt::red);
    QCOMPARE(painted(), wanted);
    // The picture is kept until the mark of the theme changes.
    loadTheme("#00ff00", true);
    QCOMPARE(painted(), wanted);
    loadTheme("#00ff00", false);
    QPainter(&wanted).fillRect(target, Qt::green);
    QCOMPARE(painted(), wanted);
    // Without a widget the base draws.
    style_->drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, nullptr, nullptr);
    QCOMPARE(base_->drawnRect, option.rect);
}

void StyleTest::separatorsOfToolBars()
{
    struct Row
    {
        QSize size;
        double ratio;
        bool dark;
        QRect line;
    };
    for (const Row &row :
         {Row{{6, 20}, 1, true, {3, 0, 1, 20}}, Row{{20, 7}, 1, false, {0, 3, 20, 1}},
          Row{{6, 20}, 2, true, {5, 0, 2, 40}}}) {
        DenseWidget widget;
        widget.ratio = row.ratio;
        widget.setPalette(QPalette(Qt::black, Qt::blue));
        ZelGlobalIconCache::setDarkTheme(row.dark);
        QStyleOption option;
        option.rect = QRect(QPoint(0, 0), row.size);
        QImage image((QSizeF(row.size) * row.ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        QImage wanted = image;
        image.setDevicePixelRatio(row.ratio);
        {
            QPainter painter(&image);
            style_->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &option, &painter, &widget);
        }
        wanted.fill(Qt::blue);
        QPainter(&wanted).fillRect(row.line, row.dark ? QColor(0, 0, 0) : QColor(224, 224, 224));
        image.setDevicePixelRatio(1);
        QCOMPARE(image, wanted);
    }
}

void StyleTest::forwardersForwardEverything()
{
    QObject owner;
    QWidget widget;
    auto *forwarder = new ZelStyleForwarder(&owner, base_);
    QCOMPARE(forwarder->parent(), &owner);
    base_->calls.clear();
    QPalette palette;
    QStyleOptionSpinBox option;
    QPixmap pixmap(2, 2);
    forwarder->polish(palette);
    forwarder->polish(qApp);
    forwarder->polish(&widget);
    forwarder->unpolish(&widget);
    forwarder->unpolish(qApp);
    QCOMPARE(forwarder->itemTextRect(widget.fontMetrics(), QRect(), 8, true, QString()),
             QRect(8, 1, 2, 3));
    QCOMPARE(forwarder->itemPixmapRect(QRect(), 9, pixmap), QRect(9, 1, 2, 3));
    forwarder->drawItemText(nullptr, QRect(), 0, palette, true, QString());
    forwarder->drawItemPixmap(nullptr, QRect(), 0, pixmap);
    forwarder->standardPalette();
    forwarder->drawPrimitive(QStyle::PE_Frame, &option, nullptr);
    forwarder->drawControl(QStyle::CE_MenuItem, &option, nullptr);
    QCOMPARE(forwarder->subElementRect(QStyle::SE_LineEditContents, &option).x(),
             int(QStyle::SE_LineEditContents));
    forwarder->drawComplexControl(QStyle::CC_SpinBox, &option, nullptr);
    QCOMPARE(forwarder->hitTestComplexControl(QStyle::CC_Slider, &option, QPoint()),
             QStyle::SC_SliderGroove);
    QCOMPARE(forwarder->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxUp),
             base_->spinDown);
    QCOMPARE(forwarder->pixelMetric(QStyle::PM_SmallIconSize), 14);
    QCOMPARE(forwarder->sizeFromContents(QStyle::CT_SpinBox, &option, QSize()), QSize(1, 2));
    QCOMPARE(forwarder->styleHint(QStyle::SH_EtchDisabledText),
             1000 + int(QStyle::SH_EtchDisabledText));
    QCOMPARE(forwarder->standardPixmap(QStyle::SP_ArrowUp).size(), QSize(3, 4));
    QCOMPARE(forwarder->standardIcon(QStyle::SP_ArrowUp).actualSize(QSize(9, 9)), QSize(5, 6));
    QCOMPARE(forwarder->generatedIconPixmap(QIcon::Disabled, pixmap, &option).size(), QSize(7, 8));
    QCOMPARE(forwarder->layoutSpacing(QSizePolicy::Label, QSizePolicy::Label, Qt::Vertical), 77);
    QCOMPARE(base_->calls.join(u' '), QString::fromLatin1(allCalls));
}

void StyleTest::forwardersOutliveTheirBase()
{
    auto base = std::make_unique<RecordingStyle>();
    ZelStyleForwarder forwarder(this, base.get());
    QCOMPARE(forwarder.baseStyle(), base.get());
    base.reset();
    QStyle *fallback = forwarder.baseStyle();
    QVERIFY(qobject_cast<QCommonStyle *>(fallback));
    QCOMPARE(fallback->parent(), &forwarder);
    QCOMPARE(forwarder.baseStyle(), fallback);
    QVERIFY(forwarder.pixelMetric(QStyle::PM_SmallIconSize) > 0);
    forwarder.setParent(nullptr);
}

void StyleTest::forwardersSurviveAnEmptySheetAndStayOnTheStyleThroughASwitch()
{
    qApp->setStyleSheet(QStringLiteral("QPushButton { color: red; }"));
    QPushButton button(QStringLiteral("text"));
    auto *forwarder = new ZelStyleForwarder(&button);
    QCOMPARE(forwarder->parent(), &button);
    QCOMPARE(forwarder->baseStyle(), qApp->style());
    button.setStyle(forwarder);
    const QPointer<QStyle> sheetStyle = qApp->style();
    ZelStyleSwitch::apply(QStringLiteral("QPushButton { color: blue; }"),
                          ZelStyleSwitch::HiddenWidgets::Now);
    QVERIFY(sheetStyle);
    QCOMPARE(qApp->style(), sheetStyle.data());
    QCOMPARE(forwarder->baseStyle(), sheetStyle.data());
    qApp->setStyleSheet(QString());
    QVERIFY(!sheetStyle);
    QVERIFY(!button.grab().isNull());
}

void StyleTest::stylersAnswerTheirHints()
{
    const auto answers = [&](const QStyle &styler) {
        QList<QStyle::StyleHint> own;
        for (int hint = 0; hint < 120; ++hint) {
            if (styler.styleHint(QStyle::StyleHint(hint)) != 1000 + hint)
                own.append(QStyle::StyleHint(hint));
        }
        return own;
    };
    const AnimationControlStyler still(this, base_);
    QCOMPARE(answers(still), (QList<QStyle::StyleHint>{QStyle::SH_Widget_Animate,
                                                       QStyle::SH_Widget_Animation_Duration}));
    QCOMPARE(still.styleHint(QStyle::SH_Widget_Animate), 0);
    QCOMPARE(still.styleHint(QStyle::SH_Widget_Animation_Duration), 0);
    const SingleClickActivationStyle single(this, base_);
    QCOMPARE(answers(single),
             QList<QStyle::StyleHint>{QStyle::SH_ItemView_ActivateItemOnSingleClick});
    QCOMPARE(single.styleHint(QStyle::SH_ItemView_ActivateItemOnSingleClick), 1);
}

ZEL_TEST_MAIN(StyleTest)
#include "tst_style.moc"
