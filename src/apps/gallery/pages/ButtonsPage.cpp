#include "ButtonsPage.h"

#include <ZelWidgets/ZelCheckBox>
#include <ZelWidgets/ZelIconButton>
#include <ZelWidgets/ZelIconCheckBox>
#include <ZelWidgets/ZelMenuButton>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelSwitchControl>
#include <ZelWidgets/ZelTextlessCheckBox>
#include <ZelWidgets/ZelTextlessRadioButton>
#include <ZelWidgets/ZelTinyIconButton>
#include <ZelWidgets/ZelToolButton>

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

namespace {

ZelStyleIcon themed(const char *name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/") + QLatin1String(name) +
                        QStringLiteral(".svg"));
}

/// A picture of fixed sizes that shows which of them was taken.
QIcon raster()
{
    QIcon icon;
    const std::pair<int, QColor> pictures[] = {{16, QColor(0xd0, 0x60, 0x40)},
                                               {24, QColor(0x40, 0xa0, 0x60)},
                                               {48, QColor(0x50, 0x80, 0xd0)}};
    for (const auto &[side, color] : pictures) {
        QPixmap pixmap(side, side);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(pixmap.rect().adjusted(1, 1, -1, -1));
        icon.addPixmap(pixmap);
    }
    return icon;
}

template <typename Button>
Button *named(Button *button, const QString &toolTip)
{
    button->setToolTip(toolTip);
    return button;
}

ZelToolButton *underIcon(const QIcon &icon, const QString &text)
{
    auto *button = new ZelToolButton(ZelToolButton::Border);
    button->setIcon(icon);
    button->setIconSize(QSize(24, 24));
    button->setText(text);
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    return button;
}

/// A tool button and a push button of one look.
QList<QWidget *> rankedPair(const QString &rank, const QString &dimension)
{
    const bool isOnAccent = rank == QLatin1String("Primary");
    const ZelStyleIcon icon = themed(isOnAccent ? "play_on_accent" : "play");
    auto *tool = ZelToolButton::createZelNextToolButton(ZelToolButton::Flat);
    tool->setText(ButtonsPage::tr("Play"));
    tool->setIcon(icon);
    tool->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    const QList<QWidget *> pair{tool, new ZelPushButton(icon, ButtonsPage::tr("Play"))};
    for (QWidget *button : pair) {
        button->setProperty("rank", rank);
        button->setProperty("dimension", dimension);
    }
    return pair;
}

} // namespace

ButtonsPage::ButtonsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addStates();
    addRanks();
    addIconSizes();
    addIconAlone();
    addMenus();
    addMenuButtons();
    addSwitches();
    addBoundBoxes();
    addOtherBoxes();
    addStretch();
}

QGridLayout *ButtonsPage::addTable(const QString &title, const QString &explanation,
                                   const QStringList &columns)
{
    QVBoxLayout *section = addSection(title, explanation);
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(10);
    table->setVerticalSpacing(6);
    for (int column = 0; column < columns.size(); ++column) {
        auto *label = new QLabel(columns[column], this);
        label->setProperty("dim", true);
        // An empty title leaves its room to the one before.
        const bool isWide = column + 1 < columns.size() && columns[column + 1].isEmpty();
        table->addWidget(label, 0, column + 1, 1, isWide ? 2 : 1);
        column += isWide ? 1 : 0;
    }
    table->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 22);
    table->setColumnStretch(10, 1);
    section->addLayout(table);
    return table;
}

void ButtonsPage::addRow(QGridLayout *table, const QString &title, const QList<QWidget *> &cells)
{
    const int row = table->rowCount();
    table->addWidget(new QLabel(title, this), row, 0);
    for (int column = 0; column < cells.size(); ++column) {
        QWidget *cell = cells[column];
        if (auto *button = qobject_cast<QAbstractButton *>(cell))
            watch(button, &QAbstractButton::clicked, QStringLiteral("clicked"));
        table->addWidget(cell, row, column + 1, Qt::AlignLeading | Qt::AlignVCenter);
    }
}

/// Four copies: at rest, checked, disabled, disabled and checked.
template <typename Make>
void ButtonsPage::addStateRow(QGridLayout *table, const QString &title, Make make)
{
    QList<QWidget *> cells;
    for (const bool enabled : {true, false}) {
        for (const bool checked : {false, true}) {
            QAbstractButton *button = make();
            button->setCheckable(button->isCheckable() || checked);
            button->setChecked(checked);
            button->setEnabled(enabled);
            if (button->toolTip().isEmpty())
                button->setToolTip(title);
            cells.append(button);
        }
    }
    addRow(table, title, cells);
}

void ButtonsPage::addStates()
{
    QGridLayout *table = addTable(
        tr("Tool buttons"), tr("Move the mouse over them and reach them with the Tab key."),
        {tr("at rest"), tr("checked"), tr("disabled"), tr("disabled, checked")});
    addStateRow(table, tr("flat"), [] {
        auto *button = new ZelToolButton;
        button->setIcon(themed("folder"));
        return button;
    });
    addStateRow(table, tr("with border"), [] {
        auto *button = new ZelToolButton(ZelToolButton::Border);
        button->setIcon(themed("folder"));
        return button;
    });
    addStateRow(table, tr("text beside the icon"), [] {
        auto *button = new ZelToolButton(ZelToolButton::Border);
        button->setIcon(themed("lock"));
        button->setText(tr("Lock"));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        return button;
    });
    addStateRow(table, tr("icon button"), [] {
        auto *button = new ZelIconButton;
        button->setIcon(themed("home"));
        button->setText(tr("Home"));
        return button;
    });
    addStateRow(table, tr("tiny icon button"),
                [] { return new ZelTinyIconButton(themed("close"), QSize(12, 12), tr("Close")); });
    addStateRow(table, tr("hand cursor"), [] {
        auto *button = new ZelToolButton;
        button->setText(tr("Point here"));
        button->setUseHandCursorOnMouseOver(true);
        return button;
    });
}

void ButtonsPage::addRanks()
{
    const QString small = QStringLiteral("Small");
    const QString medium = QStringLiteral("Medium");
    const QString large = QStringLiteral("Large");
    QGridLayout *dimensions =
        addTable(tr("Ranks and dimensions"),
                 tr("On the left a tool button, on the right a push button of the same look."),
                 {small, QString(), medium, QString(), large, QString()});
    QGridLayout *states = addTable(
        tr("Ranks in other states"), QString(),
        {tr("checked"), QString(), tr("disabled"), QString(), tr("disabled, checked"), QString()});
    for (QGridLayout *table : {dimensions, states})
        table->setColumnMinimumWidth(0, 0);
    for (const QString &rank :
         {QStringLiteral("Primary"), QStringLiteral("Secondary"), QStringLiteral("Tertiary")}) {
        addRow(dimensions, rank,
               rankedPair(rank, small) + rankedPair(rank, medium) + rankedPair(rank, large));
        const QList<QWidget *> cells =
            rankedPair(rank, medium) + rankedPair(rank, medium) + rankedPair(rank, medium);
        addRow(states, rank, cells);
        for (int i = 0; i < cells.size(); ++i) {
            auto *button = qobject_cast<QAbstractButton *>(cells[i]);
            const bool isChecked = i / 2 != 1;
            button->setCheckable(isChecked);
            button->setChecked(isChecked);
            button->setEnabled(i < 2);
        }
    }
}

void ButtonsPage::addIconSizes()
{
    QGridLayout *table = addTable(
        tr("Icon sizes"),
        tr("The icon in percent of 24 pixels. The raster icon has pictures of 16 (red), 24 (green) "
           "and 48 pixels (blue); the largest that fits is taken."),
        {QStringLiteral("100 %"), QStringLiteral("75 %"), QStringLiteral("50 %"), tr("disabled")});
    const std::pair<QString, QIcon> icons[] = {{tr("themed"), themed("eyedropper")},
                                               {tr("raster"), raster()}};
    for (const auto &[name, icon] : icons) {
        for (const auto style : {Qt::ToolButtonTextUnderIcon, Qt::ToolButtonTextBesideIcon}) {
            QList<QWidget *> cells;
            for (const int percentage : {100, 75, 50, 75}) {
                ZelToolButton *button = underIcon(icon, tr("Pick"));
                button->setToolButtonStyle(style);
                button->setIconScalePercentage(percentage);
                button->setEnabled(cells.size() < 3);
                cells.append(button);
            }
            addRow(table,
                   style == Qt::ToolButtonTextUnderIcon ? tr("%1, text under icon").arg(name)
                                                        : tr("%1, text beside icon").arg(name),
                   cells);
        }
        QList<QWidget *> tall;
        for (const int percentage : {100, 75, 50}) {
            ZelToolButton *button = underIcon(icon, tr("Pick"));
            button->setIconScalePercentage(percentage);
            button->setForceTextAtBottom(true);
            button->setFixedHeight(button->iconSize().height() * 4);
            tall.append(button);
        }
        addRow(table, tr("%1, text at the lower edge").arg(name), tall);
    }
}

void ButtonsPage::addIconAlone()
{
    QGridLayout *table = addTable(tr("Icon alone"),
                                  tr("Nothing but the icon is painted, and a frame for the focus."),
                                  {tr("icon size"), tr("whole, squared"), tr("whole"),
                                   tr("disabled"), tr("text elided to the icon")});
    const std::pair<QString, QIcon> icons[] = {{tr("themed"), themed("palette")},
                                               {tr("raster"), raster()}};
    for (const auto &[name, icon] : icons) {
        QList<QWidget *> cells;
        for (const bool expand : {false, true, true, false}) {
            auto *button = named(new ZelToolButton, tr("%1 palette").arg(name));
            button->setIcon(icon);
            button->setIconOnlyMode(true);
            button->setExpandIfIconOnly(expand);
            button->setImageSquared(cells.size() != 2);
            button->setFixedSize(64, 36);
            button->setEnabled(cells.size() != 3);
            cells.append(button);
        }
        ZelToolButton *narrow = underIcon(icon, tr("A text that is wider than the icon"));
        narrow->setIconSize(QSize(72, 24));
        narrow->setTextWidthIgnore(true);
        addRow(table, name, cells << narrow);
    }
}

void ButtonsPage::addMenus()
{
    QGridLayout *table = addTable(tr("Tool buttons with a menu"), QString(),
                                  {tr("icon"), tr("text beside icon"), tr("disabled")});
    const std::pair<QString, QToolButton::ToolButtonPopupMode> modes[] = {
        {tr("delayed"), QToolButton::DelayedPopup},
        {tr("beside"), QToolButton::MenuButtonPopup},
        {tr("at once"), QToolButton::InstantPopup},
        {tr("no arrow"), QToolButton::InstantPopup}};
    for (const auto &[title, mode] : modes) {
        QList<QWidget *> cells;
        for (const bool withText : {false, true, true}) {
            auto *button = named(new ZelToolButton(ZelToolButton::Border), tr("Settings"));
            button->setIcon(themed("gear"));
            if (withText)
                button->setText(tr("Settings"));
            button->setToolButtonStyle(withText ? Qt::ToolButtonTextBesideIcon
                                                : Qt::ToolButtonIconOnly);
            auto *menu = new QMenu(button);
            menu->addAction(themed("undo"), tr("Reset"));
            menu->addAction(themed("save"), tr("Save"));
            watch(menu, &QMenu::triggered, QStringLiteral("triggered"));
            button->setMenu(menu);
            button->setPopupMode(mode);
            button->setEnabled(cells.size() != 2);
            button->setPaintMenuArrow(title != tr("no arrow"));
            cells.append(button);
        }
        addRow(table, title, cells);
    }
}

ZelMenuButton *ButtonsPage::materialButton(const QString &name)
{
    auto *button = new ZelMenuButton(this);
    button->setHeader(name);
    button->addAction(tr("Wood"), QStringLiteral("wood"));
    button->addAction(tr("Glass"), QStringLiteral("glass"));
    button->addSeparator();
    button->addAction(tr("Hammered copper"), QStringLiteral("copper"));
    watch(button, &ZelMenuButton::activated, QStringLiteral("activated"));
    watch(button, &ZelMenuButton::triggered, QStringLiteral("triggered"));
    watch(button, &ZelMenuButton::textActivated, QStringLiteral("textActivated"));
    return button;
}

void ButtonsPage::addMenuButtons()
{
    QGridLayout *table =
        addTable(tr("Menu buttons"), tr("With a header, or with the text of the current entry."),
                 {tr("enabled"), tr("disabled")});
    ZelMenuButton *header = materialButton(tr("Material"));
    ZelMenuButton *selection = materialButton(tr("Chosen material"));
    ZelMenuButton *hidden = materialButton(tr("No glass"));
    ZelMenuButton *disabled = materialButton(tr("Material"));
    selection->setCurrentIndex(3);
    selection->showSelection();
    hidden->hideActionByIndex(1);
    disabled->setEnabled(false);
    addRow(table, tr("header"), {header, disabled});
    addRow(table, tr("selection"), {selection});
    addRow(table, tr("one hidden entry"), {hidden});
}

void ButtonsPage::addSwitches()
{
    QGridLayout *table =
        addTable(tr("Switches"), tr("Space and Enter switch the one with the focus."),
                 {tr("off"), tr("on"), tr("disabled, off"), tr("disabled, on")});
    const auto row = [this, table](const QString &title, auto change, int mode) {
        QList<QWidget *> cells;
        for (const bool enabled : {true, false}) {
            for (const bool checked : {false, true}) {
                auto *control =
                    named(new ZelSwitchControl(ZelSwitchControl::SwithButtonMode(mode)), title);
                change(control);
                control->setChecked(checked, true);
                control->setEnabled(enabled);
                watch(control, &ZelSwitchControl::toggled, QStringLiteral("toggled"));
                cells.append(control);
            }
        }
        addRow(table, title, cells);
    };
    row(
        tr("plain"), [](ZelSwitchControl *) {}, ZelSwitchControl::Plain);
    row(
        tr("with marks"), [](ZelSwitchControl *) {}, ZelSwitchControl::OnOff);
    row(
        tr("scaled by 1.5"), [](ZelSwitchControl *c) { c->setScale(1.5F); },
        ZelSwitchControl::OnOff);
    row(
        tr("own pictures"),
        [](ZelSwitchControl *c) { c->setCustomButtons(themed("visible"), themed("hidden")); }, -1);
}

QWidget *ButtonsPage::boundBox(const QString &text, bool *value)
{
    auto *pair = new QWidget(this);
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *box = new ZelCheckBox(text, value);
    auto *shown = new QLabel(pair);
    shown->setProperty("dim", true);
    const auto show = [shown, value] {
        shown->setText(*value ? QStringLiteral("= true") : QStringLiteral("= false"));
    };
    show();
    layout->addWidget(box);
    layout->addWidget(shown);
    connect(box, &ZelCheckBox::valueUpdated, this, show);
    watch(box, &ZelCheckBox::valueUpdated, QStringLiteral("valueUpdated"));

    auto *turn = named(new ZelToolButton(ZelToolButton::Border, pair), tr("Turn the value round"));
    turn->setIcon(themed("refresh"));
    connect(turn, &QToolButton::clicked, this, [box, value, show] {
        *value = !*value;
        box->updateValue();
        show();
    });
    auto *reset = named(new ZelToolButton(ZelToolButton::Border, pair), tr("Reset the value"));
    reset->setIcon(themed("undo"));
    connect(reset, &QToolButton::clicked, this, [box, show] {
        box->resetValue();
        show();
    });
    layout->addWidget(turn);
    layout->addWidget(reset);
    return pair;
}

void ButtonsPage::addBoundBoxes()
{
    QGridLayout *table = addTable(
        tr("Bound check boxes"),
        tr("Each writes to a value of the page, which is shown beside it. The buttons change the "
           "value and let the box read it again; that emits nothing."),
        {});
    addRow(table, tr("true at first"), {boundBox(tr("Shadows"), &shadows_)});
    addRow(table, tr("false at first"), {boundBox(tr("Reflections"), &reflections_)});
    auto *action = new QAction(themed("visible"), tr("Visible"), this);
    action->setCheckable(true);
    action->setChecked(true);
    watch(action, &QAction::toggled, QStringLiteral("toggled"));
    auto *box = new ZelCheckBox(action);
    auto *button = new ZelToolButton(action, this);
    addRow(table, tr("of one action"), {box, button});
}

void ButtonsPage::addOtherBoxes()
{
    QGridLayout *table = addTable(
        tr("Other boxes"), tr("Pictures of the application's own are not in the theme's colours."),
        {tr("at rest"), tr("checked"), tr("disabled"), tr("disabled, checked")});
    addStateRow(table, tr("own pictures"), [] {
        auto *box = new ZelIconCheckBox(tr("Opacity"));
        box->setSvgButtonIcon(QStringLiteral(":/res/opacity_stop"));
        return box;
    });
    addStateRow(table, tr("check box without a text"), [] { return new ZelTextlessCheckBox; });
    addStateRow(table, tr("radio button without a text"), [] {
        auto *radio = new ZelTextlessRadioButton;
        radio->setAutoExclusive(false);
        return radio;
    });
}
