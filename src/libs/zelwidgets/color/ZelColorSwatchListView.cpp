#include "color/ZelColorSwatchListView.h"

#include "ZelDeleteEventFilter.h"
#include "ZelMenu.h"
#include "ZelMessageBox.h"
#include "color/ColorSwatchModel.h"
#include "color/ZelColorConversion.h"
#include "color/ZelColorMime.h"
#include "color/ZelSwatchAccessible.h"
#include "color/ZelSwatchFile.h"

#include <ZelCore/ZelGammaPolicy>

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {

constexpr double iconHeights = 1.5;
constexpr int shownRows = 4;

QString fileFilter()
{
    return ZelColorSwatchListView::tr("Palettes (*.gpl);;All files (*)");
}

/// Draws an edge round the colours, so that each is seen on any ground.
class SwatchDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        QStyleOptionViewItem shown(option);
        initStyleOption(&shown, index);
        const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
        const QRect place =
            style->subElementRect(QStyle::SE_ItemViewItemDecoration, &shown, option.widget);
        painter->save();
        painter->setPen(Qt::gray);
        painter->drawRect(place.adjusted(0, 0, -1, -1));
        painter->restore();
    }
};

} // namespace

ZelColorSwatchListView::ZelColorSwatchListView(QWidget *parent)
    : QListView(parent)
    , model_(new ColorSwatchModel(this))
{
    ZelSwatchAccessible::installFactory();
    setModel(model_);
    setItemDelegate(new SwatchDelegate(this));
    setViewMode(QListView::IconMode);
    setMovement(QListView::Static);
    setWrapping(true);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DropOnly);
    // Icons that stay in their places would make the list refuse drops.
    viewport()->setAcceptDrops(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAccessibleName(tr("Color Swatches"));
    updateIconSize();
    connect(new ZelDeleteEventFilter(this), &ZelDeleteEventFilter::deletePressed, this,
            &ZelColorSwatchListView::deleteSelected);
    connect(this, &QAbstractItemView::clicked, this,
            [this](const QModelIndex &index) { Q_EMIT colorChanged(model_->color(index.row())); });
    connect(this, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT doubleClick(model_->color(index.row())); });
    const auto repaint = [this] {
        viewport()->update();
    };
    connect(ZelGammaPolicy::get(), &ZelGammaPolicy::gammaCorrectChanged, this, repaint);
    connect(ZelGammaPolicy::get(), &ZelGammaPolicy::gammaChanged, this, repaint);
}

ZelColorSwatchListView::~ZelColorSwatchListView()
{
    model_->save();
}

void ZelColorSwatchListView::updateIconSize()
{
    const int side = qRound(fontMetrics().height() * iconHeights);
    setIconSize({side, side});
}

void ZelColorSwatchListView::addColor(const ZelColor &color)
{
    model_->addColor(color);
    scrollToBottom();
}

QSize ZelColorSwatchListView::sizeHint() const
{
    const int height = shownRows * sizeHintForIndex(model_->index(0)).height();
    return {QListView::sizeHint().width(), qMax(height, iconSize().height()) + 2 * frameWidth()};
}

QSize ZelColorSwatchListView::minimumSizeHint() const
{
    return {QListView::minimumSizeHint().width(), sizeHint().height() / 2};
}

void ZelColorSwatchListView::deleteSelected()
{
    std::vector<int> rows;
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    for (const QModelIndex &index : selected)
        rows.push_back(index.row());
    model_->removeColors(std::move(rows));
}

void ZelColorSwatchListView::pick(const QModelIndex &index)
{
    setCurrentIndex(index);
    Q_EMIT colorChanged(model_->color(index.row()));
}

/// The entry of a selected row stands for the whole selection.
void ZelColorSwatchListView::deleteAt(const QModelIndex &index)
{
    if (selectionModel()->isSelected(index))
        deleteSelected();
    else
        model_->removeColors({index.row()});
}

QString ZelColorSwatchListView::importPalette(const QString &fileName)
{
    const ZelSwatchFile::Result read = ZelSwatchFile::read(fileName);
    model_->addColors(read.colors);
    if (!read.colors.empty())
        scrollToBottom();
    return read.problem;
}

QString ZelColorSwatchListView::exportPalette(const QString &fileName) const
{
    return ZelSwatchFile::write(fileName, model_->colors());
}

void ZelColorSwatchListView::importByUser()
{
    const QString title = tr("Import Palette");
    const QString path = QFileDialog::getOpenFileName(this, title, QString(), fileFilter());
    if (path.isEmpty())
        return;
    const QString problem = importPalette(path);
    if (!problem.isEmpty())
        ZelMessageBox::warning(this, title, problem);
}

void ZelColorSwatchListView::exportByUser()
{
    const QString title = tr("Export Palette");
    const QString path =
        QFileDialog::getSaveFileName(this, title, QStringLiteral("swatches.gpl"), fileFilter());
    if (path.isEmpty())
        return;
    const QString problem = exportPalette(path);
    if (!problem.isEmpty())
        ZelMessageBox::warning(this, title, problem);
}

void ZelColorSwatchListView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isByKey ? currentIndex() : indexAt(event->pos());
    auto *menu = new ZelMenu(this);
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    if (index.isValid()) {
        menu->addAction(tr("Delete"), this,
                        [this, row = QPersistentModelIndex(index)] { deleteAt(row); });
    } else {
        menu->addAction(tr("Import Palette..."), this, &ZelColorSwatchListView::importByUser);
        menu->addAction(tr("Export Palette..."), this, &ZelColorSwatchListView::exportByUser)
            ->setEnabled(model_->rowCount() > 0);
    }
    const QRect place = visualRect(index);
    menu->popup(isByKey && index.isValid() ? viewport()->mapToGlobal(place.center())
                                           : event->globalPos());
}

void ZelColorSwatchListView::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateIconSize();
}

void ZelColorSwatchListView::dragEnterEvent(QDragEnterEvent *event)
{
    dragMoveEvent(event);
}

void ZelColorSwatchListView::dragMoveEvent(QDragMoveEvent *event)
{
    event->setAccepted(ZelColorMime::hasColor(event->mimeData()));
    if (event->isAccepted())
        event->setDropAction(Qt::CopyAction);
}

void ZelColorSwatchListView::dropEvent(QDropEvent *event)
{
    const bool isTaken = model_->dropMimeData(event->mimeData(), Qt::CopyAction, -1, -1, {});
    event->setAccepted(isTaken);
    if (!isTaken)
        return;
    event->setDropAction(Qt::CopyAction);
    scrollToBottom();
}

void ZelColorSwatchListView::keyPressEvent(QKeyEvent *event)
{
    const QModelIndex index = currentIndex();
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isPick = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    if (isPlain && isPick && index.isValid())
        pick(index);
    else
        QListView::keyPressEvent(event);
}

bool ZelColorSwatchListView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString text = index.isValid() ? model_->text(index.row()) : QString();
    QToolTip::showText(help->globalPos(), text.toHtmlEscaped(), viewport(), visualRect(index));
    return true;
}
