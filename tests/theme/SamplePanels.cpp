#include "SamplePanels.h"

#include <QtWidgets>

namespace SamplePanels {
namespace {

// A labelled row of one of each small control.
QWidget *makeRow(QWidget *parent, int number)
{
    auto *row = new QWidget(parent);
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Parameter %1").arg(number), row));
    layout->addWidget(new QLineEdit(QString::number(number), row));
    auto *spinBox = new QSpinBox(row);
    spinBox->setValue(number % 100);
    layout->addWidget(spinBox);
    auto *checkBox = new QCheckBox(QStringLiteral("On"), row);
    checkBox->setChecked(number % 2);
    layout->addWidget(checkBox);
    auto *button = new QPushButton(QStringLiteral("Reset"), row);
    button->setEnabled(number % 3);
    layout->addWidget(button);
    auto *comboBox = new QComboBox(row);
    comboBox->addItems({QStringLiteral("One"), QStringLiteral("Two")});
    layout->addWidget(comboBox);
    auto *slider = new QSlider(Qt::Horizontal, row);
    slider->setValue(number % 100);
    layout->addWidget(slider);
    auto *more = new QToolButton(row);
    more->setText(QStringLiteral("..."));
    layout->addWidget(more);
    layout->addWidget(new QLabel(QStringLiteral("mm"), row));
    layout->addWidget(new QRadioButton(row));
    return row;
}

// With the spin box's line edit and the combo box's popup.
constexpr int widgetsOfRow = 19;
constexpr int rowsOfGroup = 6;

QWidget *makePage(QWidget *parent, int rowCount)
{
    auto *area = new QScrollArea(parent);
    area->setWidgetResizable(true);
    auto *content = new QWidget(area);
    auto *layout = new QVBoxLayout(content);
    QGroupBox *group = nullptr;
    for (int row = 0; row < rowCount; ++row) {
        if (row % rowsOfGroup == 0) {
            group = new QGroupBox(QStringLiteral("Group %1").arg(row / rowsOfGroup), content);
            new QVBoxLayout(group);
            layout->addWidget(group);
        }
        group->layout()->addWidget(makeRow(group, row));
    }
    area->setWidget(content);
    return area;
}

QTreeWidget *makeTree(QWidget *parent)
{
    auto *tree = new QTreeWidget(parent);
    tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
    auto *item = new QTreeWidgetItem(tree, {QStringLiteral("Lights"), QStringLiteral("2")});
    new QTreeWidgetItem(item, {QStringLiteral("Sun"), QStringLiteral("1.0")});
    tree->expandAll();
    tree->setCurrentItem(item);
    return tree;
}

} // namespace

std::unique_ptr<QMainWindow> makeWindow(int widgetCount, int pageCount)
{
    auto window = std::make_unique<QMainWindow>();
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Open"));
    window->addToolBar(QStringLiteral("Tools"))->addAction(QStringLiteral("Move"));
    window->statusBar()->showMessage(QStringLiteral("Ready"));
    auto *centre = new QWidget(window.get());
    auto *layout = new QVBoxLayout(centre);
    auto *pages = new QStackedWidget(centre);
    layout->addWidget(pages);
    for (int page = 0; page < pageCount; ++page)
        pages->addWidget(makePage(pages, widgetCount / pageCount / widgetsOfRow));
    window->setCentralWidget(centre);
    window->resize(1200, 900);
    return window;
}

QWidget *makeMixedPage(QWidget *parent)
{
    auto *page = new QWidget(parent);
    auto *grid = new QGridLayout(page);
    auto *text =
        new QTextEdit(QStringLiteral("Rich <b>text</b> with <a href=\"x\">a link</a>"), page);
    text->setReadOnly(true);
    grid->addWidget(text, 0, 0);
    grid->addWidget(new QPlainTextEdit(QStringLiteral("Plain text"), page), 0, 1);
    grid->addWidget(makeTree(page), 1, 0);
    auto *tabs = new QTabWidget(page);
    tabs->addTab(new QLabel(QStringLiteral("First <a href=\"x\">link</a>"), tabs),
                 QStringLiteral("First"));
    tabs->addTab(makeRow(tabs, 5), QStringLiteral("Second"));
    grid->addWidget(tabs, 1, 1);
    auto *progress = new QProgressBar(page);
    progress->setValue(40);
    grid->addWidget(progress, 2, 0);
    auto *own = new QGroupBox(QStringLiteral("Own sheet"), page);
    own->setStyleSheet(QStringLiteral("QLabel { border: 2px solid red; }"));
    auto *ownLayout = new QVBoxLayout(own);
    ownLayout->addWidget(new QLabel(QStringLiteral("Framed"), own));
    ownLayout->addWidget(new QLineEdit(QStringLiteral("Text"), own));
    grid->addWidget(own, 2, 1);
    grid->addWidget(makeRow(page, 7), 3, 0, 1, 2);
    grid->addWidget(new QDial(page), 4, 0);
    grid->addWidget(new QListView(page), 4, 1);
    return page;
}

void showPage(QMainWindow &window, int page)
{
    window.findChild<QStackedWidget *>()->setCurrentIndex(page);
}

} // namespace SamplePanels
