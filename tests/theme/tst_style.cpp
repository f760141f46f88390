#include "TestCase.h"

#include "theme/AnimationControlStyler.h"
#include "theme/SingleClickActivationStyle.h"

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

// Answers all with fixed values and writes down what it was asked and what it drew.
class RecordingStyle : public QCommonStyle
{
public:
    int smallIconSize = 14;
    QRect spinDown = QRect(3, 10, 5, 6);
    mutable QRect drawnRect;
    mutable QIcon menuIcon;
    mutable QStringList calls;

    int pixelMetric(PixelMetric metric, const QStyleOption *, const QWidget *) const override
    {
        calls += QStringLiteral("pixelMetric");
        return metric == PM_SmallIconSize ? smallIconSize : 100 + int(metric);
    }
    int styleHint(StyleHint hint, const QStyleOption *, const QWidget *,
                  QStyleHintReturn *) const override
    {
        calls += QStringLiteral("styleHint");
        return 1000 + int(hint);
    }
    QRect subControlRect(ComplexControl, const QStyleOptionComplex *, SubControl,
                         const QWidget *) const override
    {
        calls += QStringLiteral("subControlRect");
        return spinDown;
    }
    void drawPrimitive(PrimitiveElement, const QStyleOption *option, QPainter *,
                       const QWidget *) const override
    {
        calls += QStringLiteral("drawPrimitive");
        drawnRect = option->rect;
    }
    QSize sizeFromContents(ContentsType, const QStyleOption *option, const QSize &,
                           const QWidget *) const override
    {
        calls += QStringLiteral("sizeFromContents");
        if (const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option))
            menuIcon = item->icon;
        return {1, 2};
    }
    void polish(QPalette &) override { calls += QStringLiteral("polish palette"); }
    void polish(QApplication *) override { calls += QStringLiteral("polish application"); }
    void polish(QWidget *) override { calls += QStringLiteral("polish widget"); }
    void unpolish(QWidget *) override { calls += QStringLiteral("unpolish widget"); }
    void unpolish(QApplication *) override { calls += QStringLiteral("unpolish application"); }
    QRect itemTextRect(const QFontMetrics &, const QRect &, int flags, bool enabled,
                       const QString &) const override
    {
        calls += QStringLiteral("itemTextRect");
        return {flags, enabled, 2, 3};
    }
    QRect itemPixmapRect(const QRect &, int flags, const QPixmap &) const override
    {
        calls += QStringLiteral("itemPixmapRect");
        return {flags, 1, 2, 3};
    }
    void drawItemText(QPainter *, const QRect &, int, const QPalette &, bool, const QString &,
                      QPalette::ColorRole) const override
    {
        calls += QStringLiteral("drawItemText");
    }
    void drawItemPixmap(QPainter *, const QRect &, int, const QPixmap &) const override
    {
        calls += QStringLiteral("drawItemPixmap");
    }
    QPalette standardPalette() const override
    {
        calls += QStringLiteral("standardPalette");
        return QPalette(Qt::magenta);
    }
    void drawControl(ControlElement, const QStyleOption *, QPainter *,
                     const QWidget *) const override
    {
        calls += QStringLiteral("drawControl");
    }
    QRect subElementRect(SubElement element, const QStyleOption *, const QWidget *) const override
    {
        calls += QStringLiteral("subElementRect");
        return {int(element), 1, 2, 3};
    }
    void drawComplexControl(ComplexControl, const QStyleOptionComplex *, QPainter *,
                            const QWidget *) const override
    {
        calls += QStringLiteral("drawComplexControl");
    }
    SubControl hitTestComplexControl(ComplexControl, const QStyleOptionComplex *, const QPoint &,
                                     const QWidget *) const override
    {
        calls += QStringLiteral("hitTestComplexControl");
        return SC_SliderGroove;
    }
    QPixmap standardPixmap(StandardPixmap, const QStyleOption *, const QWidget *) const override
    {
        calls += QStringLiteral("standardPixmap");
        return QPixmap(3, 4);
    }
    QIcon standardIcon(StandardPixmap, const QStyleOption *, const QWidget *) const override
    {
        calls += QStringLiteral("standardIcon");
        return QIcon(QPixmap(5, 6));
    }
    QPixmap generatedIconPixmap(QIcon::Mode, const QPixmap &, const QStyleOption *) const override
    {
        calls += QStringLiteral("generatedIconPixmap");
        return QPixmap(7, 8);
    }
    int layoutSpacing(QSizePolicy::ControlType, QSizePolicy::ControlType, Qt::Orientation,
                      const QStyleOption *, const QWidget *) const override
    {
        calls += QStringLiteral("layoutSpacing");
        return 77;
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

QStringList allCalls()
{
    return {QStringLiteral("polish palette"),
            QStringLiteral("polish application"),
            QStringLiteral("polish widget"),
            QStringLiteral("unpolish widget"),
            QStringLiteral("unpolish application"),
            QStringLiteral("itemTextRect"),
            QStringLiteral("itemPixmapRect"),
            QStringLiteral("drawItemText"),
            QStringLiteral("drawItemPixmap"),
            QStringLiteral("standardPalette"),
            QStringLiteral("drawPrimitive"),
            QStringLiteral("drawControl"),
            QStringLiteral("subElementRect"),
            QStringLiteral("drawComplexControl"),
            QStringLiteral("hitTestComplexControl"),
            QStringLiteral("subControlRect"),
            QStringLiteral("pixelMetric"),
            QStringLiteral("sizeFromContents"),
            QStringLiteral("styleHint"),
            QStringLiteral("standardPixmap"),
            QStringLiteral("standardIcon"),
            QStringLiteral("generatedIconPixmap"),
            QStringLiteral("layoutSpacing")};
}

} // namespace

class StyleTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void metricsFollowTheSmallIconSize_data();
    void metricsFollowTheSmallIconSize();
    void scalableMenuIconsKeepToTheFont();
    void menuItemsReserveRoomForIcons();
    void hintsThatAreSwitchedOff();
    void lowerSpinButtonMovesOnDenseScreens_data();
    void lowerSpinButtonMovesOnDenseScreens();
    void spinArrowsAreWiderOnDenseScreens();
    void rightArrowFollowsTheTheme();
    void separatorsOfToolBars_data();
    void separatorsOfToolBars();
    void forwardersForwardEverything();
    void forwardersOutliveTheirBase();
    void forwardersAreListedByTheirBase();
    void forwardersSurviveAnEmptySheet();
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

void StyleTest::metricsFollowTheSmallIconSize_data()
{
    QTest::addColumn<int>("smallIconSize");
    QTest::addColumn<int>("toolBarIconSize");
    QTest::newRow("small") << 14 << 16;
    QTest::newRow("large") << 17 << 17;
}

void StyleTest::metricsFollowTheSmallIconSize()
{
    QFETCH(int, smallIconSize);
    base_->smallIconSize = smallIconSize;
    QTEST(style_->pixelMetric(QStyle::PM_ToolBarIconSize), "toolBarIconSize");
    QCOMPARE(style_->pixelMetric(QStyle::PM_IndicatorWidth), smallIconSize);
    QCOMPARE(style_->pixelMetric(QStyle::PM_IndicatorHeight), smallIconSize);
    QCOMPARE(style_->pixelMetric(QStyle::PM_ButtonMargin), 100 + int(QStyle::PM_ButtonMargin));
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
    QCOMPARE(base_->menuIcon.cacheKey(), icon.cacheKey());
    // Other widgets that draw menu items keep what they have.
    QStyleOptionMenuItem other;
    QPushButton button;
    style_->sizeFromContents(QStyle::CT_MenuItem, &other, QSize(), &button);
    QVERIFY(other.icon.isNull());
    QStyleOption plain;
    QCOMPARE(style_->sizeFromContents(QStyle::CT_MenuItem, &plain, QSize(), &menu), QSize(1, 2));
}

void StyleTest::hintsThatAreSwitchedOff()
{
    QCOMPARE(style_->styleHint(QStyle::SH_EtchDisabledText), 0);
    QCOMPARE(style_->styleHint(QStyle::SH_ItemView_ShowDecorationSelected), 0);
    QCOMPARE(style_->styleHint(QStyle::SH_Widget_Animate), 1000 + int(QStyle::SH_Widget_Animate));
}

void StyleTest::lowerSpinButtonMovesOnDenseScreens_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("top");
    // The base's rectangle is 6 high.
    QTest::newRow("room") << 2.0 << 14 << 11;
    QTest::newRow("no room") << 2.0 << 13 << 10;
    QTest::newRow("fraction") << 1.25 << 14 << 11;
    QTest::newRow("plain screen") << 1.0 << 14 << 10;
}

void StyleTest::lowerSpinButtonMovesOnDenseScreens()
{
    QFETCH(double, ratio);
    QFETCH(int, height);
    QFETCH(int, top);
    DenseWidget widget;
    widget.ratio = ratio;
    widget.resize(40, height);
    QStyleOptionSpinBox option;
    const auto rect = [&](QStyle::SubControl control, const QWidget *asking) {
        return style_->subControlRect(QStyle::CC_SpinBox, &option, control, asking);
    };
    QCOMPARE(rect(QStyle::SC_SpinBoxDown, &widget), QRect(3, top, 5, 6));
    QCOMPARE(rect(QStyle::SC_SpinBoxUp, &widget), base_->spinDown);
    QCOMPARE(rect(QStyle::SC_SpinBoxDown, nullptr), base_->spinDown);
}

void StyleTest::spinArrowsAreWiderOnDenseScreens()
{
    DenseWidget widget;
    const auto drawn = [&](QStyle::PrimitiveElement element) {
        QStyleOptionSpinBox option;
        option.rect = QRect(10, 10, 8, 6);
        style_->drawPrimitive(element, &option, nullptr, &widget);
        return base_->drawnRect;
    };
    QCOMPARE(drawn(QStyle::PE_IndicatorSpinUp), QRect(8, 10, 12, 6));
    QCOMPARE(drawn(QStyle::PE_IndicatorSpinDown), QRect(8, 10, 12, 6));
    QCOMPARE(drawn(QStyle::PE_IndicatorSpinPlus), QRect(10, 10, 8, 6));
    widget.ratio = 1;
    QCOMPARE(drawn(QStyle::PE_IndicatorSpinUp), QRect(10, 10, 8, 6));
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

void StyleTest::separatorsOfToolBars_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<double>("ratio");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QRect>("line");
    QTest::newRow("tall, dark") << QSize(6, 20) << 1.0 << true << QRect(3, 0, 1, 20);
    QTest::newRow("wide, light") << QSize(20, 7) << 1.0 << false << QRect(0, 3, 20, 1);
    QTest::newRow("square") << QSize(8, 8) << 1.0 << false << QRect(0, 4, 8, 1);
    QTest::newRow("dense") << QSize(6, 20) << 2.0 << true << QRect(5, 0, 2, 40);
    QTest::newRow("empty") << QSize(0, 20) << 1.0 << true << QRect();
}

void StyleTest::separatorsOfToolBars()
{
    QFETCH(QSize, size);
    QFETCH(double, ratio);
    QFETCH(bool, dark);
    QFETCH(QRect, line);
    DenseWidget widget;
    widget.ratio = ratio;
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::blue);
    widget.setPalette(palette);
    ZelGlobalIconCache::setDarkTheme(dark);
    QStyleOption option;
    option.rect = QRect(QPoint(0, 0), size);
    const QSize pixels = size.isEmpty() ? QSize(4, 4) : (QSizeF(size) * ratio).toSize();
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QImage wanted = image;
    {
        QPainter painter(&image);
        style_->drawPrimitive(QStyle::PE_IndicatorToolBarSeparator, &option, &painter, &widget);
    }
    wanted.setDevicePixelRatio(1);
    if (!size.isEmpty()) {
        QPainter painter(&wanted);
        painter.fillRect(wanted.rect(), Qt::blue);
        painter.fillRect(line, dark ? QColor(0, 0, 0) : QColor(224, 224, 224));
    }
    image.setDevicePixelRatio(1);
    QCOMPARE(image, wanted);
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
    QCOMPARE(forwarder->standardPalette(), QPalette(Qt::magenta));
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
    QCOMPARE(base_->calls, allCalls());
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
    // A new base takes over; the fallback goes when control is back in the event loop.
    QSignalSpy gone(fallback, &QObject::destroyed);
    forwarder.setBaseStyle(style_.get());
    QCOMPARE(forwarder.baseStyle(), style_.get());
    QTRY_COMPARE(gone.size(), 1);
    forwarder.setParent(nullptr);
}

void StyleTest::forwardersAreListedByTheirBase()
{
    QWidget widget;
    auto *first = new ZelStyleForwarder(&widget, base_);
    auto second = std::make_unique<AnimationControlStyler>(&widget, base_);
    ZelStyleForwarder other(nullptr, style_.get());
    QCOMPARE(ZelStyleForwarder::forwardersOf(base_),
             (QList<ZelStyleForwarder *>{first, second.get()}));
    second.reset();
    first->setBaseStyle(style_.get());
    QCOMPARE(ZelStyleForwarder::forwardersOf(base_), QList<ZelStyleForwarder *>());
    QCOMPARE(ZelStyleForwarder::forwardersOf(style_.get()),
             (QList<ZelStyleForwarder *>{first, &other}));
}

void StyleTest::forwardersSurviveAnEmptySheet()
{
    qApp->setStyleSheet(QStringLiteral("QPushButton { color: red; }"));
    QPushButton button(QStringLiteral("text"));
    auto *forwarder = new ZelStyleForwarder(&button);
    QCOMPARE(forwarder->parent(), &button);
    QCOMPARE(forwarder->baseStyle(), qApp->style());
    button.setStyle(forwarder);
    const QPointer<QStyle> sheetStyle = qApp->style();
    const QList<ZelStyleForwarder *> lost = ZelStyleForwarder::forwardersOf(sheetStyle);
    QCOMPARE(lost, QList<ZelStyleForwarder *>{forwarder});
    qApp->setStyleSheet(QString());
    QVERIFY(!sheetStyle);
    QVERIFY(!button.grab().isNull());
    qApp->setStyleSheet(QStringLiteral("QPushButton { color: blue; }"));
    for (ZelStyleForwarder *each : lost)
        each->setBaseStyle(qApp->style());
    QCOMPARE(forwarder->baseStyle(), qApp->style());
    QVERIFY(!button.grab().isNull());
    qApp->setStyleSheet(QString());
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
