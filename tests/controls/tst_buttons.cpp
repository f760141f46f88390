#include "ButtonPictures.h"

#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelMenuButton>
#include <ZelWidgets/ZelSwitchControl>
#include <ZelWidgets/ZelTextlessCheckBox>
#include <ZelWidgets/ZelTextlessRadioButton>
#include <ZelWidgets/ZelTinyIconButton>
#include <ZelWidgets/ZelToolButton>

#include <QAccessible>
#include <QAction>
#include <QIconEngine>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QStyle>
#include <QToolBar>

namespace {

/// An icon without sizes that fills whatever it is given: red, blue when disabled, green when on.
class FillingEngine : public QIconEngine
{
public:
    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->fillRect(rect, mode == QIcon::Disabled ? Qt::blue
                                : state == QIcon::On    ? Qt::green
                                                        : Qt::red);
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }
    QIconEngine *clone() const override { return new FillingEngine; }
};

QIcon fillingIcon()
{
    return QIcon(new FillingEngine);
}

} // namespace

class ButtonsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aScaledIconStandsInAFullCell();
    void textAtTheBottomLeavesTheRestToTheIcon();
    void ofFixedPicturesTheLargestThatFitsIsTaken();
    void theIconAloneIsPlaced();
    void aDisabledPictureIsNotGreyedTwice();
    void sizeHintsFollowIconTextAndMenu();
    void anActionLeadsItsButton();
    void theMenuArrowReachesTheSheet();
    void aDelayedMenuOpensByKeys();
    void theHandCursorComesAndGoes();
    void aMenuButtonTellsWhatWasChosen();
    void aMenuButtonKeepsRemovedActions();
    void buttonsWithoutATextAreSmallAndNamed();
    void focusIsSeenOnWhatPaintsItself();
};

void ButtonsTest::initTestCase()
{
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/dark_theme.json"));
}

void ButtonsTest::aScaledIconStandsInAFullCell()
{
    ZelToolButton button;
    button.setIcon(fillingIcon());
    button.setIconSize(QSize(20, 20));
    button.setText(QStringLiteral("Text"));
    button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    QVERIFY(button.hasSvgIcon());
    button.resize(80, 80);
    const QRect full = boundsOf(&button, Qt::red);
    QCOMPARE(full.size(), QSize(20, 20));

    button.setIconScalePercentage(50);
    const QRect half = boundsOf(&button, Qt::red);
    QCOMPARE(half.size(), QSize(10, 10));
    QVERIFY(full.contains(half));
    QCOMPARE(half.center(), full.center());
}

void ButtonsTest::textAtTheBottomLeavesTheRestToTheIcon()
{
    ZelToolButton button;
    button.setIcon(QIcon(filled(QSize(16, 16), Qt::red)));
    button.setIconSize(QSize(16, 16));
    button.setText(QStringLiteral("Text"));
    button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button.resize(60, 120);
    button.setForceTextAtBottom(true);
    const QRect icon = boundsOf(&button, Qt::red);
    QCOMPARE(icon.size(), QSize(16, 16));
    const int cell = 120 - button.fontMetrics().height() - 10;
    QVERIFY2(qAbs(icon.center().y() - cell / 2) <= 4, qPrintable(QString::number(icon.top())));
    // No room is left for the icon: nothing to draw, and no endless or negative picture.
    button.resize(60, 8);
    button.grab();
}

void ButtonsTest::ofFixedPicturesTheLargestThatFitsIsTaken()
{
    QIcon icon;
    icon.addPixmap(filled(QSize(8, 8), Qt::red));
    icon.addPixmap(filled(QSize(32, 32), Qt::blue));
    icon.addPixmap(filled(QSize(16, 16), Qt::green));
    const std::pair<int, Qt::GlobalColor> rows[] = {
        {16, Qt::green}, {31, Qt::green}, {50, Qt::blue}, {9, Qt::red}};
    for (const auto &[side, color] : rows) {
        ZelToolButton button;
        button.setIcon(icon);
        button.setIconSize(QSize(side, side));
        button.setIconOnlyMode(true);
        button.resize(60, 60);
        QVERIFY(!button.hasSvgIcon());
        QCOMPARE(boundsOf(&button, color).size(), QSize(side, side));
    }
}

void ButtonsTest::theIconAloneIsPlaced()
{
    const std::tuple<bool, bool, QRect> rows[] = {{false, true, {25, 15, 10, 10}},
                                                  {false, false, {20, 15, 20, 10}},
                                                  {true, true, {10, 0, 40, 40}},
                                                  {true, false, {0, 0, 60, 40}}};
    for (const auto &[expand, squared, place] : rows) {
        ZelToolButton button;
        button.setIcon(fillingIcon());
        button.setIconSize(QSize(20, 10));
        button.setIconOnlyMode(true);
        button.setExpandIfIconOnly(expand);
        button.setImageSquared(squared);
        button.resize(60, 40);
        QCOMPARE(boundsOf(&button, Qt::red), place);
        QCOMPARE(button.sizeHint(), QSize(20, 10));
    }
}

void ButtonsTest::aDisabledPictureIsNotGreyedTwice()
{
    QIcon icon(filled(QSize(16, 16), Qt::red));
    icon.addPixmap(filled(QSize(16, 16), Qt::blue), QIcon::Disabled);
    for (const QIcon &shown : {icon, fillingIcon()}) {
        ZelToolButton button;
        button.setIcon(shown);
        button.setIconSize(QSize(16, 16));
        button.setText(QStringLiteral("x"));
        button.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button.setForceTextAtBottom(true);
        button.resize(60, 60);
        button.setEnabled(false);
        QCOMPARE(boundsOf(&button, Qt::blue).size(), QSize(16, 16));
    }
}

void ButtonsTest::sizeHintsFollowIconTextAndMenu()
{
    ZelToolButton button;
    QToolButton plain;
    QMenu menu;
    for (QToolButton *each : {static_cast<QToolButton *>(&button), &plain}) {
        each->setIcon(fillingIcon());
        each->setIconSize(QSize(20, 20));
        each->setText(QStringLiteral("A long text beside the icon"));
        each->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        each->setAutoRaise(true);
    }
    QCOMPARE(button.sizeHint(), plain.sizeHint());
    button.setMenu(&menu);
    plain.setMenu(&menu);
    QCOMPARE(button.sizeHint().width() - plain.sizeHint().width(),
             button.fontMetrics().horizontalAdvance(QStringLiteral("Wx")));
    button.setTextWidthIgnore(true);
    QVERIFY(button.sizeHint().width() < plain.sizeHint().width() / 2);
    QCOMPARE(button.minimumSizeHint(), button.sizeHint());
    button.setTextWidthIgnore(false);

    button.setMenu(nullptr);
    plain.setMenu(nullptr);
    button.setIconScalePercentage(50);
    QCOMPARE(button.sizeHint(), plain.sizeHint() + QSize(10, 10));
}

void ButtonsTest::anActionLeadsItsButton()
{
    QToolBar bar;
    QAction action(QStringLiteral("Run"));
    action.setIcon(fillingIcon());
    auto *button = new ZelToolButton(&action, &bar);
    QAction *entry = bar.addWidget(button);
    action.setVisible(false);
    QVERIFY(!entry->isVisible());
    action.setVisible(true);
    QVERIFY(entry->isVisible());
    QVERIFY(button->hasSvgIcon());
    button->slotActionChanged();

    QSignalSpy triggered(&action, &QAction::triggered);
    button->click();
    QCOMPARE(triggered.count(), 1);

    ZelToolButton alone(&action);
    action.setText(QStringLiteral("Run again"));
    QVERIFY(!alone.isVisible());
    alone.show();
    action.setVisible(false);
    QVERIFY(alone.isHidden());
    action.setVisible(true);
    QVERIFY(alone.isVisible());
}

void ButtonsTest::theMenuArrowReachesTheSheet()
{
    QWidget panel;
    panel.setStyleSheet(QStringLiteral("QToolButton[hasMenuArrow=\"true\"] { min-width: 200px; }"
                                       "QToolButton#FlatButtonLow { max-height: 7px; }"));
    ZelToolButton button(ZelToolButton::Flat, &panel);
    QMenu menu;
    button.setMenu(&menu);
    button.ensurePolished();
    QVERIFY(button.sizeHint().width() < 200);
    panel.show();
    QVERIFY(button.sizeHint().width() >= 200);
    button.setPaintMenuArrow(false);
    QVERIFY(button.sizeHint().width() < 200);
    button.addToObjectName(QStringLiteral("Low"));
    QVERIFY(button.maximumHeight() < 20);
    QCOMPARE(ZelToolButton(ZelToolButton::Border).objectName(), QStringLiteral("BorderButton"));
}

void ButtonsTest::aDelayedMenuOpensByKeys()
{
    ZelToolButton button;
    QMenu menu;
    menu.addAction(QStringLiteral("Entry"));
    button.setMenu(&menu);
    button.show();
    bool opened = false;
    // The menu runs a loop of its own until it closes.
    QTimer::singleShot(0, &menu, [&menu, &opened] {
        opened = menu.isVisible();
        menu.close();
    });
    QTest::keyClick(&button, Qt::Key_Down, Qt::AltModifier);
    QVERIFY(opened);

    ZelMenuButton push;
    push.addAction(QStringLiteral("Entry"));
    push.show();
    opened = false;
    QTimer::singleShot(0, push.menu(), [&push, &opened] {
        opened = push.menu()->isVisible();
        push.menu()->close();
    });
    QTest::keyClick(&push, Qt::Key_Down, Qt::AltModifier);
    QVERIFY(opened);
}

void ButtonsTest::theHandCursorComesAndGoes()
{
    ZelToolButton button;
    button.setUseHandCursorOnMouseOver(true);
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&button, &enter);
    QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
    QApplication::sendEvent(&button, &leave);
    QCOMPARE(button.cursor().shape(), Qt::ArrowCursor);
}

void ButtonsTest::aMenuButtonTellsWhatWasChosen()
{
    ZelMenuButton button;
    button.setHeader(QStringLiteral("Material"));
    button.addAction(QStringLiteral("Wood"), 1);
    button.addSeparator();
    QAction *glass = button.addAction(QStringLiteral("Glass"), 2);
    QCOMPARE(button.getCurrentText(), QStringLiteral("Wood"));
    QCOMPARE(button.text(), QStringLiteral("Material"));

    QStringList told;
    connect(&button, &ZelMenuButton::activated, this,
            [&told](int index) { told << QString::number(index); });
    connect(&button, &ZelMenuButton::triggered, this,
            [&told](QAction *action) { told << u'!' + action->text(); });
    connect(&button, &ZelMenuButton::textActivated, this,
            [&told](const QString &text) { told << text; });
    button.menu()->show();
    button.menu()->setActiveAction(glass);
    QTest::keyClick(button.menu(), Qt::Key_Return);
    QCOMPARE(told,
             QStringList({QStringLiteral("2"), QStringLiteral("!Glass"), QStringLiteral("Glass")}));
    QCOMPARE(button.text(), QStringLiteral("Material"));
    button.showSelection();
    QCOMPARE(button.text(), QStringLiteral("Glass"));

    QVERIFY(!button.setCurrentIndex(button.count()));
    QVERIFY(!button.setCurrentIndex(-1));
    QCOMPARE(button.getCurrentData(), QVariant(2));
    button.setCurrentText(QStringLiteral("Wood"));
    QCOMPARE(button.getCurrentIndex(), 0);
    QCOMPARE(button.text(), QStringLiteral("Wood"));
    QCOMPARE(told.size(), 3);
    QCOMPARE(button.getIndexByData(QVariant()), -1);
}

void ButtonsTest::aMenuButtonKeepsRemovedActions()
{
    QWidget panel;
    auto *button = new ZelMenuButton(&panel);
    const QPointer<QAction> first = button->addAction(QStringLiteral("First"));
    const QPointer<QAction> second = button->addAction(QStringLiteral("Second"));
    button->showSelection();
    button->removeActionByIndex(0);
    QVERIFY(first && !button->getCurrentAction());
    QVERIFY(button->setCurrentIndex(0));
    button->clear();
    QVERIFY(second && !button->getCurrentAction() && button->count() == 0);
    QCOMPARE(button->text(), QString());
    // An action that dies elsewhere leaves nothing behind.
    QScopedPointer<QAction> foreign(new QAction(QStringLiteral("Foreign")));
    button->addActionWithData(foreign.data(), 7);
    QCOMPARE(button->getActionByData(7), foreign.data());
    foreign.reset();
    QCOMPARE(button->getCurrentIndex(), -1);
}

void ButtonsTest::buttonsWithoutATextAreSmallAndNamed()
{
    ZelTextlessCheckBox check;
    ZelTextlessRadioButton radio;
    ZelToolButton tool;
    ZelTinyIconButton tiny(fillingIcon(), QSize(12, 12), QStringLiteral("Tip"));
    ZelMenuButton menu;
    const QList<std::pair<QAbstractButton *, QAccessible::Role>> buttons{
        {&check, QAccessible::CheckBox},
        {&radio, QAccessible::RadioButton},
        {&tool, QAccessible::Button},
        {&tiny, QAccessible::Button},
        {&menu, QAccessible::ButtonMenu}};
    for (const auto &[button, role] : buttons) {
        button->setToolTip(QStringLiteral("Tip"));
        QAccessibleInterface *access = accessible(button);
        QCOMPARE(access->role(), role);
        QCOMPARE(access->text(QAccessible::Name), QStringLiteral("Tip"));
        button->setText(QStringLiteral("&This && that"));
        QCOMPARE(access->text(QAccessible::Name), QStringLiteral("This & that"));
    }
    QVERIFY(ZelTextlessCheckBox().sizeHint().width() < check.sizeHint().width());
    QCOMPARE(ZelTextlessRadioButton().sizeHint().width(),
             radio.style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                 radio.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing));
}

void ButtonsTest::focusIsSeenOnWhatPaintsItself()
{
    QWidget panel;
    auto *only = new ZelToolButton(ZelToolButton::Flat, &panel);
    only->setIcon(fillingIcon());
    only->setIconOnlyMode(true);
    auto *tiny = new ZelTinyIconButton(fillingIcon(), QSize(12, 12), QString(), &panel);
    auto *control = new ZelSwitchControl(ZelSwitchControl::Plain, &panel);
    panel.show();
    panel.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    for (QWidget *widget : {static_cast<QWidget *>(only), static_cast<QWidget *>(tiny),
                            static_cast<QWidget *>(control)}) {
        widget->resize(30, 30);
        panel.setFocus();
        const QImage before = widget->grab().toImage();
        widget->setFocus(Qt::TabFocusReason);
        QVERIFY(widget->hasFocus());
        QVERIFY(widget->grab().toImage() != before);
    }
}

ZEL_TEST_MAIN(ButtonsTest)
#include "tst_buttons.moc"
