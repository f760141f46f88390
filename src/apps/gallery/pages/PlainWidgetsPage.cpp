#include "PlainWidgetsPage.h"

#include "StyleFile.h"

#include <ZelWidgets/ZelStyleIcon>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QDial>
#include <QDialogButtonBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLCDNumber>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTextCharFormat>
#include <QTextEdit>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

/// Height of a calendar in text lines, and what each line gets besides the text.
constexpr int calendarLines = 9;
constexpr int calendarLeading = 8;

/// Height of a widget in text lines that follows the font.
constexpr const char *linesProperty = "galleryLines";
constexpr int lineLeading = 5;

QIcon icon(const char *name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/") + QLatin1String(name) +
                        QStringLiteral(".svg"));
}

QWidget *inColumn(const QList<QWidget *> &widgets)
{
    auto *holder = new QWidget;
    auto *layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : widgets)
        layout->addWidget(widget);
    layout->addStretch(1);
    return holder;
}

void setLines(QWidget *widget, int lines)
{
    widget->setProperty(linesProperty, lines);
}

/// What stands in a container, away from its border.
QLabel *content(const QString &text)
{
    auto *label = new QLabel(text);
    label->setMargin(8);
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    return label;
}

template <typename Widget>
Widget *named(Widget *widget, const QString &name)
{
    widget->setAccessibleName(name);
    return widget;
}

} // namespace

PlainWidgetsPage::PlainWidgetsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addPairs(tr("Buttons"),
             {{tr("Push buttons"), &PlainWidgetsPage::pushButtons},
              {tr("Tool buttons"), &PlainWidgetsPage::toolButtons},
              {tr("Check boxes"), &PlainWidgetsPage::checkBoxes},
              {tr("Radio buttons"), &PlainWidgetsPage::radioButtons},
              {tr("Dialog buttons"), &PlainWidgetsPage::dialogButtons}},
             4);
    addPairs(tr("Text and choice"),
             {{tr("Line edits"), &PlainWidgetsPage::lineEdits},
              {tr("Combo boxes"), &PlainWidgetsPage::comboBoxes},
              {tr("Labels"), &PlainWidgetsPage::labels},
              {tr("Text edits"), &PlainWidgetsPage::textEdits}},
             2);
    addPairs(tr("Numbers and ranges"),
             {{tr("Spin boxes"), &PlainWidgetsPage::spinBoxes},
              {tr("Date and time"), &PlainWidgetsPage::dateEdits},
              {tr("Sliders"), &PlainWidgetsPage::sliders},
              {tr("Dial and number display"), &PlainWidgetsPage::dials},
              {tr("Progress bars"), &PlainWidgetsPage::progressBars},
              {tr("Scroll bars"), &PlainWidgetsPage::scrollBars}},
             3);
    addPairs(tr("Views"),
             {{tr("List"), &PlainWidgetsPage::lists},
              {tr("Tree"), &PlainWidgetsPage::trees},
              {tr("Table"), &PlainWidgetsPage::tables}},
             2);
    addPairs(tr("Calendar"), {{tr("Calendar"), &PlainWidgetsPage::calendars}}, 1);
    addPairs(tr("Containers"),
             {{tr("Tabs"), &PlainWidgetsPage::tabs},
              {tr("Group boxes"), &PlainWidgetsPage::groupBoxes},
              {tr("Tool box"), &PlainWidgetsPage::toolBoxes},
              {tr("Menu bar, tool bar, status bar"), &PlainWidgetsPage::menus},
              {tr("Docks"), &PlainWidgetsPage::docks}},
             2);
    addStretch();
    lookChanged();
}

void PlainWidgetsPage::lookChanged()
{
    ensurePolished();
    const StyleFile::Palette palette = StyleFile::paletteInForce();
    QTextCharFormat weekend;
    weekend.setForeground(StyleFile::color(palette.value(QStringLiteral("@error@"))));
    for (QCalendarWidget *calendar : findChildren<QCalendarWidget *>()) {
        for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
            calendar->setWeekdayTextFormat(day, weekend);
        calendar->setMinimumHeight(calendarLines * (fontMetrics().height() + calendarLeading));
    }
    for (QWidget *widget : findChildren<QWidget *>()) {
        const QVariant lines = widget->property(linesProperty);
        if (lines.isValid())
            widget->setFixedHeight(lines.toInt() * (fontMetrics().height() + lineLeading));
    }
}

void PlainWidgetsPage::addPairs(const QString &title,
                                const QList<std::pair<QString, Maker>> &makers, int columns)
{
    QVBoxLayout *section =
        addSection(title, tr("Each in two copies, one enabled and one disabled."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(28);
    grid->setVerticalSpacing(12);
    for (int i = 0; i < makers.size(); ++i) {
        auto *cell = new QGridLayout;
        cell->setHorizontalSpacing(12);
        cell->setVerticalSpacing(6);
        cell->setRowStretch(2, 1);
        auto *name = new QLabel(makers[i].first, this);
        name->setProperty("heading", true);
        cell->addWidget(name, 0, 0, 1, 2);
        QWidget *enabled = (this->*makers[i].second)();
        QWidget *disabled = (this->*makers[i].second)();
        disabled->setEnabled(false);
        cell->addWidget(enabled, 1, 0);
        cell->addWidget(disabled, 1, 1);
        cell->setColumnStretch(0, 1);
        cell->setColumnStretch(1, 1);
        const int span = i + 1 == makers.size() ? columns - i % columns : 1;
        grid->addLayout(cell, i / columns, i % columns, 1, span);
        grid->setColumnStretch(i % columns, 1);
    }
    section->addLayout(grid);
}

QWidget *PlainWidgetsPage::pushButtons()
{
    auto *plain = new QPushButton(tr("Plain"));
    auto *withIcon = new QPushButton(icon("save"), tr("With icon"));
    auto *checked = new QPushButton(tr("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *menu = new QPushButton(tr("With menu"));
    menu->setMenu(new QMenu(menu));
    menu->menu()->addAction(tr("Entry"));
    watch(plain, &QPushButton::clicked, QStringLiteral("clicked"));
    watch(checked, &QPushButton::toggled, QStringLiteral("toggled"));
    return inColumn({plain, withIcon, checked, menu});
}

QWidget *PlainWidgetsPage::toolButtons()
{
    auto *plain = named(new QToolButton, tr("Folder"));
    plain->setIcon(icon("folder"));
    plain->setToolTip(tr("Folder"));
    auto *checked = named(new QToolButton, tr("Lock"));
    checked->setIcon(icon("lock"));
    checked->setToolTip(tr("Lock"));
    checked->setCheckable(true);
    checked->setChecked(true);
    auto *text = new QToolButton;
    text->setText(tr("Beside"));
    text->setIcon(icon("zoom"));
    text->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    auto *menu = new QToolButton;
    menu->setText(tr("Menu"));
    menu->setPopupMode(QToolButton::MenuButtonPopup);
    menu->setMenu(new QMenu(menu));
    menu->menu()->addAction(tr("Entry"));
    watch(plain, &QToolButton::clicked, QStringLiteral("clicked"));
    return inColumn({plain, checked, text, menu});
}

QWidget *PlainWidgetsPage::checkBoxes()
{
    QList<QWidget *> boxes;
    const std::pair<Qt::CheckState, QString> states[] = {{Qt::Unchecked, tr("Unchecked")},
                                                         {Qt::Checked, tr("Checked")},
                                                         {Qt::PartiallyChecked, tr("Partly")}};
    for (const auto &[state, text] : states) {
        auto *box = new QCheckBox(text);
        box->setTristate(state == Qt::PartiallyChecked);
        box->setCheckState(state);
        watch(box, &QCheckBox::stateChanged, QStringLiteral("stateChanged"));
        boxes.append(box);
    }
    return inColumn(boxes);
}

QWidget *PlainWidgetsPage::radioButtons()
{
    auto *first = new QRadioButton(tr("Chosen"));
    first->setChecked(true);
    auto *second = new QRadioButton(tr("Other"));
    watch(first, &QRadioButton::toggled, QStringLiteral("toggled"));
    return inColumn({first, second});
}

QWidget *PlainWidgetsPage::dialogButtons()
{
    return new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

QWidget *PlainWidgetsPage::lineEdits()
{
    auto *text = named(new QLineEdit(tr("Text")), tr("Text"));
    text->setClearButtonEnabled(true);
    auto *empty = named(new QLineEdit, tr("Empty"));
    empty->setPlaceholderText(tr("Placeholder"));
    auto *readOnly = named(new QLineEdit(tr("Read only")), tr("Read only"));
    readOnly->setReadOnly(true);
    auto *password = named(new QLineEdit(QStringLiteral("secret")), tr("Password"));
    password->setEchoMode(QLineEdit::Password);
    watch(text, &QLineEdit::textChanged, QStringLiteral("textChanged"));
    return inColumn({text, empty, readOnly, password});
}

QWidget *PlainWidgetsPage::textEdits()
{
    auto *rich = named(new QTextBrowser, tr("Rich text"));
    rich->setOpenLinks(false);
    watch(rich, &QTextBrowser::anchorClicked, QStringLiteral("anchorClicked"));
    rich->setHtml(tr("<b>Rich</b> text with <a href=\"#\">a link</a> and a list"
                     "<ul><li>one</li><li>two</li></ul>"));
    auto *plain = named(new QPlainTextEdit(tr("Plain text\nof two lines")), tr("Plain text"));
    for (QWidget *edit : {static_cast<QWidget *>(rich), static_cast<QWidget *>(plain)})
        setLines(edit, 5);
    plain->setTabChangesFocus(true);
    return inColumn({rich, plain});
}

QWidget *PlainWidgetsPage::comboBoxes()
{
    auto *fixed = named(new QComboBox, tr("Choice"));
    auto *editable = named(new QComboBox, tr("Editable choice"));
    for (QComboBox *box : {fixed, editable}) {
        box->addItem(icon("folder"), tr("Folder"));
        box->addItem(icon("link"), tr("Link"));
        box->addItem(tr("No icon"));
        watch(box, &QComboBox::currentIndexChanged, QStringLiteral("currentIndexChanged"));
    }
    editable->setEditable(true);
    return inColumn({fixed, editable});
}

QWidget *PlainWidgetsPage::labels()
{
    auto *plain = new QLabel(tr("A plain label"));
    auto *link = new QLabel(tr("A label with <a href=\"#\">a link</a>"));
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    auto *framed = new QLabel(tr("A framed label"));
    framed->setFrameShape(QFrame::StyledPanel);
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    return inColumn({plain, link, framed, line});
}

QWidget *PlainWidgetsPage::spinBoxes()
{
    auto *whole = named(new QSpinBox, tr("Whole number"));
    whole->setRange(-100, 100);
    auto *fraction = named(new QDoubleSpinBox, tr("Length"));
    fraction->setSuffix(tr(" cm"));
    watch(whole, &QSpinBox::valueChanged, QStringLiteral("valueChanged"));
    return inColumn({whole, fraction});
}

QWidget *PlainWidgetsPage::dateEdits()
{
    auto *date = named(new QDateEdit(QDate(2024, 2, 29)), tr("Date"));
    date->setCalendarPopup(true);
    date->calendarWidget()->setAccessibleName(tr("Date"));
    auto *time = named(new QTimeEdit(QTime(12, 30)), tr("Time"));
    return inColumn({date, time});
}

QWidget *PlainWidgetsPage::sliders()
{
    auto *horizontal = named(new QSlider(Qt::Horizontal), tr("Slider"));
    horizontal->setValue(40);
    auto *vertical = named(new QSlider(Qt::Vertical), tr("Upright slider"));
    vertical->setFixedHeight(70);
    vertical->setValue(60);
    watch(horizontal, &QSlider::valueChanged, QStringLiteral("valueChanged"));
    return inColumn({horizontal, vertical});
}

QWidget *PlainWidgetsPage::dials()
{
    auto *dial = named(new QDial, tr("Dial"));
    dial->setNotchesVisible(true);
    dial->setFixedSize(64, 64);
    auto *number = new QLCDNumber(4);
    number->display(42);
    setLines(number, 2);
    connect(dial, &QDial::valueChanged, number, qOverload<int>(&QLCDNumber::display));
    return inColumn({dial, number});
}

QWidget *PlainWidgetsPage::progressBars()
{
    auto *some = named(new QProgressBar, tr("Progress"));
    some->setValue(60);
    auto *plain = named(new QProgressBar, tr("Progress without text"));
    plain->setValue(30);
    plain->setTextVisible(false);
    return inColumn({some, plain});
}

QWidget *PlainWidgetsPage::scrollBars()
{
    auto *horizontal = named(new QScrollBar(Qt::Horizontal), tr("Scroll bar"));
    auto *vertical = named(new QScrollBar(Qt::Vertical), tr("Upright scroll bar"));
    vertical->setFixedHeight(70);
    for (QScrollBar *bar : {horizontal, vertical}) {
        bar->setRange(0, 100);
        bar->setPageStep(30);
        bar->setValue(20);
    }
    return inColumn({horizontal, vertical});
}

QWidget *PlainWidgetsPage::lists()
{
    auto *list = named(new QListWidget, tr("List"));
    for (const char *name : {"folder", "link", "lock", "save", "zoom", "refresh"})
        list->addItem(new QListWidgetItem(icon(name), QLatin1String(name)));
    list->setCurrentRow(1);
    list->setAlternatingRowColors(true);
    setLines(list, 7);
    return list;
}

QWidget *PlainWidgetsPage::trees()
{
    auto *tree = named(new QTreeWidget, tr("Tree"));
    tree->setHeaderLabels({tr("Name"), tr("Kind")});
    for (const QString &name : {tr("Scene"), tr("Materials")}) {
        auto *top = new QTreeWidgetItem(tree, {name, tr("group")});
        top->setIcon(0, icon("folder"));
        for (int i = 1; i < 3; ++i) {
            auto *child = new QTreeWidgetItem(top, {tr("Item %1").arg(i), tr("leaf")});
            child->setCheckState(0, i == 1 ? Qt::Checked : Qt::Unchecked);
        }
    }
    tree->topLevelItem(0)->setExpanded(true);
    tree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    setLines(tree, 7);
    return tree;
}

QWidget *PlainWidgetsPage::tables()
{
    auto *table = named(new QTableWidget(3, 3), tr("Table"));
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            table->setItem(row, column, new QTableWidgetItem(QString::number(row * 3 + column)));
    }
    table->horizontalHeader()->setStretchLastSection(true);
    table->setTabKeyNavigation(false);
    table->setCurrentCell(1, 1);
    table->horizontalHeader()->setDefaultSectionSize(60);
    setLines(table, 7);
    return table;
}

QWidget *PlainWidgetsPage::calendars()
{
    auto *calendar = named(new QCalendarWidget, tr("Calendar"));
    calendar->setSelectedDate(QDate(2024, 2, 29));
    return calendar;
}

QWidget *PlainWidgetsPage::tabs()
{
    QList<QWidget *> widgets;
    for (const auto position : {QTabWidget::North, QTabWidget::West}) {
        auto *tabs = named(new QTabWidget, tr("Tabs"));
        tabs->setTabPosition(position);
        tabs->addTab(content(tr("First page")), tr("One"));
        tabs->addTab(content(tr("Second page")), icon("lock"), tr("Two"));
        tabs->addTab(content(tr("Third page")), tr("Off"));
        tabs->setTabEnabled(2, false);
        tabs->setTabsClosable(position == QTabWidget::North);
        tabs->tabBar()->setTabButton(2, QTabBar::RightSide, nullptr);
        setLines(tabs, position == QTabWidget::North ? 5 : 10);
        watch(tabs, &QTabWidget::currentChanged, QStringLiteral("currentChanged"));
        widgets.append(tabs);
    }
    return inColumn(widgets);
}

QWidget *PlainWidgetsPage::groupBoxes()
{
    QList<QWidget *> boxes;
    for (const bool checkable : {false, true}) {
        auto *box = new QGroupBox(checkable ? tr("Checkable group") : tr("Group"));
        box->setCheckable(checkable);
        auto *layout = new QVBoxLayout(box);
        layout->addWidget(new QCheckBox(tr("Inside")));
        boxes.append(box);
    }
    return inColumn(boxes);
}

QWidget *PlainWidgetsPage::toolBoxes()
{
    auto *box = new QToolBox;
    box->addItem(content(tr("First content")), icon("folder"), tr("First"));
    box->addItem(content(tr("Second content")), tr("Second"));
    setLines(box, 7);
    return box;
}

QWidget *PlainWidgetsPage::menus()
{
    auto *window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    QMenu *menu = window->menuBar()->addMenu(tr("Menu"));
    menu->addAction(icon("save"), tr("With icon"));
    QAction *checked = menu->addAction(tr("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addSeparator();
    menu->addMenu(tr("More"))->addAction(tr("Entry"));
    menu->addAction(tr("Disabled"))->setEnabled(false);
    window->menuBar()->addMenu(tr("Other"))->addAction(tr("Entry"));
    QToolBar *bar = window->addToolBar(tr("Tools"));
    for (const char *name : {"save", "folder", "refresh"})
        bar->addAction(icon(name), QLatin1String(name));
    bar->addSeparator();
    bar->addAction(icon("lock"), tr("lock"))->setCheckable(true);
    window->setCentralWidget(content(tr("Centre")));
    window->statusBar()->showMessage(tr("Status"));
    setLines(window, 7);
    return window;
}

QWidget *PlainWidgetsPage::docks()
{
    auto *window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    auto *dock = new QDockWidget(tr("Dock"), window);
    dock->setWidget(content(tr("Docked content")));
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *centre = named(new QTextEdit(tr("Centre")), tr("Centre"));
    centre->setTabChangesFocus(true);
    window->setCentralWidget(centre);
    setLines(window, 7);
    return window;
}
