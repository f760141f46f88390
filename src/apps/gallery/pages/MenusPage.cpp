#include "MenusPage.h"

#include <ZelWidgets/ZelButtonAction>
#include <ZelWidgets/ZelMenu>
#include <ZelWidgets/ZelSeparator>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolBar>
#include <ZelWidgets/ZelToolButton>

#include <QActionGroup>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

QIcon icon(const char *name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/") + QLatin1String(name) +
                        QStringLiteral(".svg"));
}

/// A ball, as a small preview of a material; a picture that is the same in both themes.
QPixmap materialPicture()
{
    constexpr int extent = 32;
    QPixmap picture(extent, extent);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient shade(QPointF(12, 11), 20);
    shade.setColorAt(0, QColor(0xff, 0xd2, 0x9a));
    shade.setColorAt(1, QColor(0xb3, 0x4a, 0x10));
    painter.setBrush(shade);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(2, 2, extent - 4, extent - 4));
    return picture;
}

QLabel *dimLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("dim", true);
    return label;
}

} // namespace

MenusPage::MenusPage(QWidget *parent)
    : GalleryPage(parent)
{
    addMenus();
    addToolBars();
    addSeparators();
    addStretch();
}

QToolButton *MenusPage::createMenuButton(const QString &text, ZelMenu *menu)
{
    auto *button = new ZelToolButton(ZelToolButton::Border, this);
    button->addToObjectName(QStringLiteral("Menu"));
    button->setText(text);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setMenu(menu);
    connect(menu, &QMenu::triggered, this, [this, text](QAction *action) {
        log(text + QStringLiteral(": ") + action->text().remove(u'&'));
    });
    return button;
}

void MenusPage::addMenus()
{
    QVBoxLayout *section = addSection(
        tr("Menus"), tr("Entries under \"Options\" leave the menu open, also in the submenu; the "
                        "last one closes "
                        "it. The text below follows the entry under the mouse of \"Explained\"."));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(createMenuButton(tr("Options"), createOptions()));
    row->addWidget(createMenuButton(tr("Chain"), createChain()));
    row->addWidget(createMenuButton(tr("Explained"), createExplained()));
    row->addWidget(createMenuButton(tr("States"), createStates()));
    QToolButton *off = createMenuButton(tr("Disabled"), new ZelMenu(this));
    off->setEnabled(false);
    row->addWidget(off);
    row->addStretch(1);
    section->addLayout(row);
    explanation_ = dimLabel(tr("No entry under the mouse."));
    section->addWidget(explanation_);
}

ZelMenu *MenusPage::createOptions()
{
    auto *menu = new ZelMenu(this);
    for (const QString &text : {tr("&Grid"), tr("&Axes"), tr("&Light signs")}) {
        QAction *action = menu->addNotHideAction(text);
        action->setCheckable(true);
        action->setChecked(true);
    }
    auto *more = new ZelMenu(tr("&Columns"), menu);
    for (const QString &text : {tr("&Name"), tr("&Kind"), tr("&Size")})
        more->addNotHideAction(text)->setCheckable(true);
    menu->addMenu(more);
    menu->addSeparator();
    auto *quality = new QActionGroup(menu);
    for (const QString &text : {tr("&Draft"), tr("&Final")}) {
        QAction *action = menu->addNotHideAction(text);
        action->setCheckable(true);
        action->setActionGroup(quality);
    }
    quality->actions().first()->setChecked(true);
    menu->addAction(new ZelSeparatorAction(menu));
    menu->addAction(icon("undo"), tr("&Reset and close"));
    return menu;
}

ZelMenu *MenusPage::createChain()
{
    auto *menu = new ZelMenu(this);
    QMenu *level = menu;
    for (int depth = 1; depth <= 3; ++depth) {
        auto *next = new ZelMenu(tr("Level %1").arg(depth), level);
        level->addAction(icon("folder"), tr("Entry of level %1").arg(depth));
        level->addMenu(next)->setIcon(icon("move_down"));
        level = next;
    }
    level->addAction(icon("check"), tr("The last entry closes the chain"));
    return menu;
}

ZelMenu *MenusPage::createExplained()
{
    auto *menu = new ZelMenu(this);
    menu->setAccessibleName(tr("Explained"));
    const QList<QPair<QString, QString>> entries{
        {tr("Render"), tr("Starts a picture with the settings in force.")},
        {tr("Pause"), tr("Keeps what was computed and gives the processor free.")},
        {tr("Stop"), tr("Ends the picture; what was computed can be saved.")}};
    for (const auto &[text, tip] : entries)
        menu->addAction(text)->setToolTip(tip);
    watch(menu, &ZelMenu::hideTooltip, QStringLiteral("hideTooltip"));
    connect(menu, &ZelMenu::showTooltip, this, [this](const QAction *action) {
        explanation_->setText(action->toolTip());
        log(tr("showTooltip: %1").arg(action->text()));
    });
    connect(menu, &ZelMenu::hideTooltip, this,
            [this] { explanation_->setText(tr("No entry under the mouse.")); });
    return menu;
}

ZelMenu *MenusPage::createStates()
{
    auto *menu = new ZelMenu(this);
    menu->addAction(icon("save"), tr("With icon and key"))
        ->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_F9));
    QAction *checked = menu->addAction(tr("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    QAction *off = menu->addAction(icon("lock"), tr("Disabled"));
    off->setEnabled(false);
    menu->addSeparator();
    auto *button =
        new ZelButtonAction(materialPicture(), tr("Material"), tr("A button with a picture"), menu);
    menu->addAction(button);
    auto *stay = new ZelButtonAction(materialPicture(), tr("Material, stays open"),
                                     tr("A button that leaves the menu open"), menu);
    menu->addAction(menu->setNotHideAction(stay));
    return menu;
}

void MenusPage::fill(ZelToolBar *bar)
{
    bar->setAccessibleName(tr("Tools"));
    const QList<QPair<const char *, QString>> tools{
        {"save", tr("Save")}, {"folder", tr("Open")}, {"copy", tr("Copy")}, {"paste", tr("Paste")}};
    for (const auto &[name, text] : tools) {
        QAction *action = bar->addAction(icon(name), text);
        connect(action, &QAction::triggered, this,
                [this, action] { log(tr("tool: %1").arg(action->text())); });
    }
    bar->addAction(new ZelSeparatorAction(bar));
    auto *button =
        new ZelButtonAction(materialPicture(), tr("Material"), tr("A button with a picture"), bar);
    connect(button, &QAction::triggered, this, [this] { log(tr("tool: Material")); });
    bar->addAction(button);
    QAction *locked = bar->addAction(icon("lock"), tr("Lock"));
    locked->setCheckable(true);
    locked->setChecked(true);
    bar->addAction(icon("delete"), tr("Disabled"))->setEnabled(false);
    bar->addSpacer();
    bar->addAction(icon("question"), tr("Help"));
}

void MenusPage::addToolBars()
{
    QVBoxLayout *section =
        addSection(tr("Tool bars"),
                   tr("Without a border, with the border of the style name \"Framed\", and with "
                      "texts. All of them take the icon size that is chosen below."));
    for (int i = 0; i < 3; ++i) {
        auto *bar = new ZelToolBar(i == 1 ? ZelToolBar::StyledBorder : ZelToolBar::NoBorder, this);
        if (i == 1)
            bar->setToolBarStyleName(QStringLiteral("Framed"));
        if (i == 2)
            bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        fill(bar);
        section->addWidget(bar);
        bars_.append(bar);
    }
    addSizeChoice(section);
}

void MenusPage::addSizeChoice(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    auto *sizes = new QButtonGroup(this);
    const QStringList texts{tr("Small, 16 pixels"), tr("Medium, 24 pixels"),
                            tr("Large, 32 pixels")};
    for (int i = 0; i < texts.size(); ++i) {
        auto *choice = new QRadioButton(texts[i], this);
        sizes->addButton(choice, i + 1);
        row->addWidget(choice);
    }
    auto *height = new QSpinBox(this);
    height->setRange(0, 64);
    height->setValue(24);
    height->setAccessibleName(tr("Wanted height"));
    auto *label = new QLabel(tr("&Best for a height of"), this);
    label->setBuddy(height);
    row->addStretch(1);
    section->addLayout(row);
    auto *heightRow = new QHBoxLayout;
    heightRow->addWidget(label);
    heightRow->addWidget(height);
    heightRow->addStretch(1);
    section->addLayout(heightRow);
    connect(sizes, &QButtonGroup::idClicked, this, [this](int mode) {
        for (ZelToolBar *bar : std::as_const(bars_))
            bar->setIconSizeMode(ZelToolBar::IconSizeMode(mode));
    });
    const auto choose = [this, sizes](int pixels) {
        for (ZelToolBar *bar : std::as_const(bars_))
            bar->setBestIconSizeModeFromSize(QSize(pixels, pixels));
        sizes->button(bars_.first()->currentIconSizeMode())->setChecked(true);
        log(tr("icon size mode: %1").arg(int(bars_.first()->currentIconSizeMode())));
    };
    connect(height, &QSpinBox::valueChanged, this, choose);
    choose(height->value());
}

void MenusPage::addSeparators()
{
    QVBoxLayout *section = addSection(tr("Separators"));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    const QStringList texts{tr("Left"), tr("Middle"), tr("Right")};
    for (int i = 0; i < texts.size(); ++i) {
        if (i > 0)
            row->addWidget(new ZelSeparator(Qt::Vertical, this));
        row->addWidget(new QLabel(texts[i], this));
    }
    row->addStretch(1);
    section->addLayout(row);
    section->addWidget(new ZelSeparator(Qt::Horizontal, this));
    section->addWidget(dimLabel(tr("Below the line")));
}
