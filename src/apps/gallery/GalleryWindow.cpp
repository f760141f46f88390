#include "GalleryWindow.h"

#include "BindableAction.h"
#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "LogPanel.h"
#include "LookControls.h"
#include "PageCatalog.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelCommandPalette>
#include <ZelWidgets/ZelShortcutHandler>

#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

ZelSettings windowSettings()
{
    return ZelSettings(QStringLiteral("gallery"));
}

/// True by default, also when the settings hold something else under the key.
bool flag(const ZelSettings &settings, const QString &key)
{
    const QVariant value = settings.value(key, true);
    return value.typeId() != QMetaType::Bool || value.toBool();
}

/// The last control of the widget in the order of the Tab key; the widget if it has none.
QWidget *lastTabStop(QWidget *widget)
{
    QWidget *last = widget;
    for (QWidget *next = widget->nextInFocusChain(); widget->isAncestorOf(next);
         next = next->nextInFocusChain()) {
        if ((next->focusPolicy() & Qt::TabFocus) && !next->focusProxy())
            last = next;
    }
    return last;
}

} // namespace

GalleryWindow::GalleryWindow(GalleryApplication *application)
    : application_(application)
    , stack_(nullptr)
    , log_(nullptr)
    , pages_(pageCatalog().size(), nullptr)
{
    setWindowTitle(tr("Widget gallery"));
    setWindowIcon(LookControls::icon(QStringLiteral("widgets")));
    // The order of creation is the order of the Tab key.
    listPanel_ = createPageList();
    stack_ = new QStackedWidget(this);
    log_ = new LogPanel(this);

    auto *right = new QSplitter(Qt::Vertical, this);
    right->setObjectName(QStringLiteral("GalleryLogSplitter"));
    right->addWidget(stack_);
    right->addWidget(log_);
    right->setStretchFactor(0, 1);
    right->setCollapsible(0, false);
    right->setSizes({700, 150});
    auto *whole = new QSplitter(Qt::Horizontal, this);
    whole->setObjectName(QStringLiteral("GalleryListSplitter"));
    whole->addWidget(listPanel_);
    whole->addWidget(right);
    whole->setStretchFactor(1, 1);
    whole->setCollapsible(1, false);
    whole->setSizes({220, 1060});
    setCentralWidget(whole);

    for (int i = 0; i < pages_.size(); ++i) {
        auto *area = new QScrollArea(stack_);
        area->setWidgetResizable(true);
        area->setFrameShape(QFrame::NoFrame);
        stack_->addWidget(area);
    }
    createActions();
    createToolBar();
    connect(application_, &GalleryApplication::themeChanged, this, &GalleryWindow::tellPages);
    connect(application_, &GalleryApplication::fontSizeChanged, this, &GalleryWindow::tellPages);
    restoreLayout();
    showPage(0);
    if (showList_->isChecked())
        list_->setFocus();
    else
        stack_->currentWidget()->setFocus();
    fitListToTitles();
    ZelShortcutHandler::instance()->restoreSettings();
    ZelShortcutHandler::instance()->setSystemInitialized(this);
}

QWidget *GalleryWindow::createPageList()
{
    auto *panel = new QWidget(this);
    filter_ = new QLineEdit(panel);
    filter_->setObjectName(QStringLiteral("GalleryFilter"));
    filter_->setPlaceholderText(tr("Filter pages"));
    filter_->setAccessibleName(tr("Filter pages"));
    filter_->setClearButtonEnabled(true);
    list_ = new QListWidget(panel);
    list_->setObjectName(QStringLiteral("GalleryPages"));
    list_->setAccessibleName(tr("Pages"));
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const PageEntry &entry : pageCatalog()) {
        auto *item = new QListWidgetItem(LookControls::icon(entry.icon), entry.title, list_);
        item->setToolTip(entry.purpose);
    }
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(8, 8, 4, 8);
    layout->addWidget(filter_);
    layout->addWidget(list_, 1);

    connect(filter_, &QLineEdit::textChanged, this, &GalleryWindow::filterPages);
    connect(filter_, &QLineEdit::returnPressed, this, &GalleryWindow::openFirstMatch);
    connect(list_, &QListWidget::currentRowChanged, this, &GalleryWindow::showPage);
    return panel;
}

void GalleryWindow::createActions()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    bindable("file.zQuit", file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close),
             this);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    showList_ = view->addAction(tr("Page &list"));
    showList_->setCheckable(true);
    showList_->setChecked(true);
    showList_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_1));
    bindable("if.aPageList", showList_, this);
    connect(showList_, &QAction::toggled, listPanel_, &QWidget::setVisible);
    showLog_ = view->addAction(tr("&Signals and messages"));
    showLog_->setCheckable(true);
    showLog_->setChecked(true);
    showLog_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_2));
    bindable("if.bLog", showLog_, this);
    connect(showLog_, &QAction::toggled, log_, &QWidget::setVisible);
    view->addSeparator();
    bindable("if.cNextPage",
             view->addAction(tr("&Next page"), QKeySequence(Qt::CTRL | Qt::Key_PageDown), this,
                             [this] { stepPage(1); }),
             this);
    bindable("if.dPreviousPage",
             view->addAction(tr("&Previous page"), QKeySequence(Qt::CTRL | Qt::Key_PageUp), this,
                             [this] { stepPage(-1); }),
             this);
    bindable(
        "if.eFilterPages",
        view->addAction(tr("&Filter pages"), QKeySequence::Find, this, &GalleryWindow::focusFilter),
        this);
    createPaletteEntry(view);
    createThemeMenu();
}

void GalleryWindow::createPaletteEntry(QMenu *menu)
{
    auto *commands = new ZelCommandPalette(this);
    bindable("if.gCommandPalette",
             menu->addAction(tr("&Command palette"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
                             commands, &ZelCommandPalette::open),
             this);
}

void GalleryWindow::focusFilter()
{
    showList_->setChecked(true);
    filter_->setFocus(Qt::ShortcutFocusReason);
    filter_->selectAll();
}

void GalleryWindow::createThemeMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Theme"));
    LookControls::addThemes(menu, application_);
    menu->addSeparator();
    bindable("if.fOtherTheme",
             menu->addAction(tr("&Other theme"), QKeySequence(Qt::CTRL | Qt::Key_T), this,
                             [this] { LookControls::takeOtherTheme(application_); }),
             this);
}

void GalleryWindow::createToolBar()
{
    QToolBar *bar = addToolBar(tr("Look"));
    bar->setObjectName(QStringLiteral("GalleryToolBar"));
    bar->setMovable(false);
    bar->addAction(showList_);
    bar->addAction(showLog_);
    showList_->setIcon(LookControls::icon(QStringLiteral("list_toggle_mode")));
    showLog_->setIcon(LookControls::icon(QStringLiteral("log")));
    // In the menu the check mark tells more than the icon.
    showList_->setIconVisibleInMenu(false);
    showLog_->setIconVisibleInMenu(false);
    bar->addSeparator();
    auto *other = new QAction(LookControls::icon(QStringLiteral("theme")),
                              tr("Switch to the other theme (Ctrl+T)"), this);
    connect(other, &QAction::triggered, this,
            [this] { LookControls::takeOtherTheme(application_); });
    bar->addAction(other);
    bar->addSeparator();

    auto *label = new QLabel(tr("Font size"), bar);
    fontSizeBox_ = new FontSizeBox(application_, bar);
    label->setBuddy(fontSizeBox_);
    bar->addWidget(label);
    bar->addWidget(fontSizeBox_);
}

void GalleryWindow::filterPages(const QString &text)
{
    const QList<PageEntry> &catalog = pageCatalog();
    for (int i = 0; i < catalog.size(); ++i) {
        const bool fits = catalog[i].title.contains(text, Qt::CaseInsensitive) ||
                          catalog[i].purpose.contains(text, Qt::CaseInsensitive);
        list_->item(i)->setHidden(!fits);
    }
}

void GalleryWindow::openFirstMatch()
{
    list_->setFocus(Qt::OtherFocusReason);
    if (!list_->item(currentPage())->isHidden())
        return;
    for (int row = 0; row < list_->count(); ++row) {
        if (!list_->item(row)->isHidden())
            return showPage(row);
    }
}

void GalleryWindow::stepPage(int step)
{
    const int count = static_cast<int>(pages_.size());
    for (int index = currentPage() + step; index >= 0 && index < count; index += step) {
        if (!list_->item(index)->isHidden())
            return showPage(index);
    }
}

/// The titles are read whole at every font size.
void GalleryWindow::fitListToTitles()
{
    list_->ensurePolished();
    list_->setMinimumWidth(list_->sizeHintForColumn(0) + 4 * list_->frameWidth());
}

void GalleryWindow::tellPages()
{
    fitListToTitles();
    for (GalleryPage *page : std::as_const(pages_)) {
        if (page)
            page->lookChanged();
    }
}

GalleryPage *GalleryWindow::page(int index) const
{
    return pages_.value(index);
}

int GalleryWindow::currentPage() const
{
    return stack_->currentIndex();
}

void GalleryWindow::showPage(int index)
{
    if (index < 0 || index >= pages_.size())
        return;
    if (!pages_[index]) {
        pages_[index] = pageCatalog()[index].create();
        connect(pages_[index], &GalleryPage::logged, log_, &LogPanel::addSignal);
        pages_[index]->leaveWheelToScrolling();
        static_cast<QScrollArea *>(stack_->widget(index))->setWidget(pages_[index]);
        // A new page comes last in the tab order; the log and the tool bar have to come after it.
        log_->followInTabOrder(lastTabStop(pages_[index]));
        setTabOrder(log_->lastTabStop(), fontSizeBox_);
    }
    stack_->setCurrentIndex(index);
    list_->setCurrentRow(index);
}

void GalleryWindow::createAllPages()
{
    const int shown = currentPage();
    for (int i = 0; i < pages_.size(); ++i)
        showPage(i);
    showPage(shown);
}

void GalleryWindow::setLogVisible(bool visible)
{
    showLog_->setChecked(visible);
}

void GalleryWindow::restoreLayout()
{
    resize(1280, 860);
    const ZelSettings settings = windowSettings();
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    for (QSplitter *splitter : findChildren<QSplitter *>())
        splitter->restoreState(settings.value(splitter->objectName()).toByteArray());
    showList_->setChecked(flag(settings, QStringLiteral("showList")));
    showLog_->setChecked(flag(settings, QStringLiteral("showLog")));
}

void GalleryWindow::saveLayout() const
{
    ZelSettings settings = windowSettings();
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    for (const QSplitter *splitter : findChildren<QSplitter *>()) {
        if (splitter->objectName().startsWith(QStringLiteral("Gallery")))
            settings.setValue(splitter->objectName(), splitter->saveState());
    }
    settings.setValue(QStringLiteral("showList"), showList_->isChecked());
    settings.setValue(QStringLiteral("showLog"), showLog_->isChecked());
}

void GalleryWindow::closeEvent(QCloseEvent *event)
{
    saveLayout();
    QMainWindow::closeEvent(event);
}
