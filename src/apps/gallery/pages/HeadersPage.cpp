#include "HeadersPage.h"

#include <ZelWidgets/ZelDragHeader>
#include <ZelWidgets/ZelDragIndicator>
#include <ZelWidgets/ZelPersistentHeaderView>
#include <ZelWidgets/ZelPersistentSplitter>
#include <ZelWidgets/ZelSideBarNavigation>
#include <ZelWidgets/ZelSplitterHandle>
#include <ZelWidgets/ZelStableSplitter>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int tableHeight = 190;
constexpr int dropLineWidth = 2;
constexpr int leastPanel = 80;
constexpr int mostPanel = 400;

QStandardItemModel *modelOf(const QStringList &columns, const QList<QStringList> &rows,
                            QObject *parent)
{
    auto *model = new QStandardItemModel(0, int(columns.size()), parent);
    model->setHorizontalHeaderLabels(columns);
    for (const QStringList &row : rows) {
        QList<QStandardItem *> items;
        for (const QString &text : row)
            items << new QStandardItem(text);
        model->appendRow(items);
    }
    return model;
}

/// A table whose rows are dragged by their headers; it draws the line where the row would go.
class LayerTable : public QTableView
{
public:
    explicit LayerTable(QWidget *parent)
        : QTableView(parent)
        , header_(new ZelDragHeader(Qt::Vertical, QIcon()))
    {
        header_->setSectionsMovable(true);
        setVerticalHeader(header_);
    }
    ZelDragHeader *dragHeader() const { return header_; }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QTableView::paintEvent(event);
        const int from = header_->movingFrom();
        const int to = header_->movingTo();
        if (from < 0 || to < 0)
            return;
        const bool isDown = header_->visualIndex(to) > header_->visualIndex(from);
        const int y =
            header_->sectionViewportPosition(to) + (isDown ? header_->sectionSize(to) : 0);
        QPainter painter(viewport());
        painter.fillRect(0, y - dropLineWidth / 2, viewport()->width(), dropLineWidth,
                         palette().color(QPalette::Link));
    }

private:
    ZelDragHeader *header_;
};

QLabel *area(const QString &text, const QString &name)
{
    auto *label = new QLabel(text);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setFrameShape(QFrame::StyledPanel);
    return label;
}

} // namespace

HeadersPage::HeadersPage(QWidget *parent)
    : GalleryPage(parent)
    , materials_(modelOf({tr("Name"), tr("Type"), tr("Used"), tr("Size"), tr("Notes")},
                         {{tr("Brushed steel"), tr("Metal"), QStringLiteral("14"),
                           QStringLiteral("2.1 MB"), tr("Fine grain")},
                          {tr("Oak veneer"), tr("Wood"), QStringLiteral("6"),
                           QStringLiteral("8.4 MB"), tr("Quarter sawn")},
                          {tr("Clear glass"), tr("Glass"), QStringLiteral("22"),
                           QStringLiteral("0.1 MB"), QString()},
                          {tr("Car paint, red"), tr("Paint"), QStringLiteral("3"),
                           QStringLiteral("0.6 MB"), tr("Three layers")}},
                         this))
    , layers_(modelOf({tr("Layer"), tr("Blend")},
                      {{tr("Dust"), tr("Multiply")},
                       {tr("Scratches"), tr("Overlay")},
                       {tr("Clear coat"), tr("Normal")},
                       {tr("Base"), tr("Normal")}},
                      this))
{
    addTables();
    addSplitters();
    addSideBars();
    addStretch();
}

QWidget *HeadersPage::persistentTable()
{
    auto *view = new QTableView(this);
    view->setAccessibleName(tr("Materials"));
    auto *header =
        new ZelPersistentHeaderView(QStringLiteral("galleryMaterialColumns"), Qt::Horizontal,
                                    ZelPersistentHeaderView::hideColumns({4}), view);
    watch(header, &ZelPersistentHeaderView::settingsNotRestored,
          QStringLiteral("settingsNotRestored"));
    header->setSortIndicatorShown(true);
    view->setHorizontalHeader(header);
    view->setModel(materials_);
    view->setSortingEnabled(true);
    view->verticalHeader()->hide();
    view->setTabKeyNavigation(false);
    view->setFixedHeight(tableHeight);
    return view;
}

QWidget *HeadersPage::dragTable()
{
    auto *view = new LayerTable(this);
    view->setAccessibleName(tr("Layers"));
    view->setModel(layers_);
    view->horizontalHeader()->setStretchLastSection(true);
    view->setTabKeyNavigation(false);
    view->setFixedHeight(tableHeight);
    connect(view->dragHeader(), &QHeaderView::sectionMoved, this, [this](int layer, int, int to) {
        log(tr("%1 is number %2 now").arg(layers_->item(layer)->text()).arg(to + 1));
    });
    return view;
}

void HeadersPage::addTables()
{
    QVBoxLayout *section = addSection(
        tr("Headers"),
        tr("On the left, columns can be moved, sized, sorted and hidden by the header's "
           "menu; they are the same at the next start. On the right, rows are dragged by "
           "their handles."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(persistentTable(), 3);
    row->addWidget(dragTable(), 2);
    section->addLayout(row);
}

void HeadersPage::addSplitters()
{
    QVBoxLayout *section = addSection(
        tr("Splitters"),
        tr("The sizes of the two parts, and the height of the panel above the bar, are kept. The "
           "handle at the right tells how far it is dragged; the arrow keys move it, too."));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    section->addLayout(row);
    auto *persistent =
        new ZelPersistentSplitter(QStringLiteral("gallerySplitter"), Qt::Horizontal, this);
    persistent->addWidget(area(tr("Project"), QStringLiteral("Project")));
    persistent->addWidget(area(tr("Properties"), QStringLiteral("Properties")));
    persistent->setMinimumHeight(tableHeight);
    row->addWidget(persistent, 2);

    auto *column = new QVBoxLayout;
    QLabel *panel = area(tr("Panel of a fixed height"), QStringLiteral("GalleryPanel"));
    panel->resize(panel->width(), leastPanel);
    auto *bar = new ZelStableSplitter(panel, Qt::Vertical, this);
    bar->setHeightRange(leastPanel / 2, mostPanel);
    column->setSpacing(0);
    column->addWidget(panel);
    column->addWidget(bar);
    column->addWidget(area(tr("Takes the rest"), QStringLiteral("Rest")), 1);
    row->addLayout(column, 2);

    QLabel *sized = area(tr("Sized by the handle"), QStringLiteral("Sized"));
    sized->setFixedWidth(2 * leastPanel);
    auto *handle = new ZelSplitterHandle(Qt::Horizontal, this);
    connect(handle, &ZelSplitterHandle::dragStarted, sized,
            [sized] { sized->setProperty("widthAtStart", sized->width()); });
    connect(handle, &ZelSplitterHandle::dragged, sized, [sized](int pixels) {
        const int width = sized->property("widthAtStart").toInt() + pixels;
        sized->setFixedWidth(std::clamp(width, leastPanel, mostPanel));
    });
    watch(handle, &ZelSplitterHandle::dragged, QStringLiteral("dragged"));
    auto *pair = new QHBoxLayout;
    pair->setSpacing(2);
    pair->addWidget(sized);
    pair->addWidget(handle);
    row->addLayout(pair);
    auto *indicator = new ZelDragIndicator(this);
    indicator->setToolTip(tr("Drag indicator"));
    row->addWidget(indicator, 0, Qt::AlignTop);
    row->addStretch(1);
}

void HeadersPage::addSideBars()
{
    QVBoxLayout *section = addSection(tr("Side bars"));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    section->addLayout(row);
    QListWidget *list = ZelSideBarNavigation::create(this);
    list->setAccessibleName(tr("Pages"));
    auto *pages = new QStackedWidget(this);
    for (const QString &name : {tr("General"), tr("Rendering"), tr("Keyboard and mouse")}) {
        list->addItem(name);
        pages->addWidget(area(name, QString()));
    }
    connect(list, &QListWidget::currentRowChanged, pages, &QStackedWidget::setCurrentIndex);
    list->setCurrentRow(0);
    row->addWidget(list);
    row->addWidget(pages, 1);
    QTreeWidget *tree = ZelSideBarNavigationTree::create(this);
    tree->setAccessibleName(tr("Pages in groups"));
    for (const QString &group : {tr("Application"), tr("Scene")}) {
        auto *item = new QTreeWidgetItem(tree, {group});
        for (const QString &page : {tr("Look"), tr("Units"), tr("Memory")})
            new QTreeWidgetItem(item, {page});
    }
    tree->expandAll();
    row->addWidget(tree);
    row->addStretch(1);
}
