#include "color/ZelMultiColorTreeView.h"

#include "ZelDeleteEventFilter.h"
#include "ZelMenu.h"
#include "ZelMessageBox.h"
#include "color/ZelMultiColorListModel.h"
#include "color/ZelMultiColorTreeDelegate.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelStyleIcon>

#include <QContextMenuEvent>
#include <QDrag>
#include <QHeaderView>
#include <QIcon>
#include <QScopedValueRollback>

namespace {

constexpr double iconHeights = 1.4;

} // namespace

ZelMultiColorTreeView::ZelMultiColorTreeView(ILibrary *library, QWidget *parent)
    : QTreeView(parent)
    , library_(library)
    , model_(new ZelMultiColorListModel(this))
{
    setModel(model_);
    setItemDelegate(new ZelMultiColorTreeDelegate(this));
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    header()->setStretchLastSection(true);
    header()->setSectionResizeMode(ZelMultiColorListModel::IconColumn,
                                   QHeaderView::ResizeToContents);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setDropIndicatorShown(true);
    setAccessibleName(tr("Sub-colors"));
    updateIconSize();
    connect(new ZelDeleteEventFilter(this), &ZelDeleteEventFilter::deletePressed, this,
            &ZelMultiColorTreeView::deleteCurrent);
    connect(model_, &ZelMultiColorListModel::edited, this, [this] {
        showActive();
        Q_EMIT colorChanged(color().getActive());
    });
    const auto repaint = [this] {
        viewport()->update();
    };
    connect(ZelGammaPolicy::get(), &ZelGammaPolicy::gammaCorrectChanged, this, repaint);
    connect(ZelGammaPolicy::get(), &ZelGammaPolicy::gammaChanged, this, repaint);
}

ZelMultiColorTreeView::~ZelMultiColorTreeView() = default;

const zelsg::Color &ZelMultiColorTreeView::color() const
{
    return model_->color();
}

void ZelMultiColorTreeView::setColor(const zelsg::Color &color)
{
    const QScopedValueRollback<bool> showing(isShowing_, true);
    model_->setColor(color);
    showActive();
}

void ZelMultiColorTreeView::reload()
{
    const QScopedValueRollback<bool> showing(isShowing_, true);
    model_->reload();
    showActive();
}

void ZelMultiColorTreeView::showActive()
{
    const QScopedValueRollback<bool> showing(isShowing_, true);
    const int active = color().activeIndex();
    if (currentIndex().row() != active)
        setCurrentIndex(model_->index(active, ZelMultiColorListModel::NameColumn));
}

void ZelMultiColorTreeView::select(int index)
{
    model_->setActive(index);
    reload();
}

void ZelMultiColorTreeView::addColor(const ZelColor &color)
{
    model_->appendColor(color);
}

void ZelMultiColorTreeView::onColorChanged(zelsg::Color col, bool cancelled)
{
    if (cancelled) {
        const QModelIndex name = currentIndex().siblingAtColumn(ZelMultiColorListModel::NameColumn);
        if (QWidget *editor = indexWidget(name))
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        return;
    }
    if (col.isSharedWith(color()))
        reload();
    else
        setColor(col);
}

void ZelMultiColorTreeView::deleteCurrent()
{
    model_->deleteColor(currentIndex().row());
}

void ZelMultiColorTreeView::saveToLibrary(int row)
{
    const ZelColor chosen = color().getColor(row);
    if (QString::fromStdString(chosen.name()).simplified().isEmpty()) {
        ZelMessageBox::warning(this, tr("Save Color to Library"),
                               tr("Please specify a color name"));
        return;
    }
    Q_EMIT saveColorToLibrary(zelsg::Color(chosen));
}

void ZelMultiColorTreeView::updateIconSize()
{
    const int side = qRound(fontMetrics().height() * iconHeights);
    setIconSize({side, side});
}

void ZelMultiColorTreeView::changeEvent(QEvent *event)
{
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateIconSize();
}

void ZelMultiColorTreeView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = isByKey ? currentIndex() : indexAt(event->pos());
    if (!index.isValid())
        return;
    const QPersistentModelIndex row(index);
    auto *menu = new ZelMenu(this);
    connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    menu->addAction(ZelStyleIcon(QStringLiteral(":ui/icons/delete")), tr("Delete Color"), this,
                    [this, row] { model_->deleteColor(row.row()); })
        ->setEnabled(color().nColors() > 1);
    menu->addAction(ZelStyleIcon(QStringLiteral(":ui/icons/save")), tr("Save to Library"), this,
                    [this, row] { saveToLibrary(row.row()); });
    menu->popup(isByKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

void ZelMultiColorTreeView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    if (isShowing_ || model_->isEditing() || !current.isValid() ||
        current.row() == color().activeIndex())
        return;
    model_->setActive(current.row());
    Q_EMIT colorChanged(color().getActive());
}

bool ZelMultiColorTreeView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    // The icon stands for its row.
    return QTreeView::edit(index.siblingAtColumn(ZelMultiColorListModel::NameColumn), trigger,
                           event);
}

void ZelMultiColorTreeView::keyPressEvent(QKeyEvent *event)
{
    const int row = currentIndex().row();
    const bool isUp = event->key() == Qt::Key_Up;
    if (event->modifiers() == Qt::AltModifier && (isUp || event->key() == Qt::Key_Down))
        model_->moveColor(row, isUp ? row - 1 : row + 1);
    else
        QTreeView::keyPressEvent(event);
}

void ZelMultiColorTreeView::startDrag(Qt::DropActions supportedActions)
{
    const QModelIndex dragged = currentIndex().siblingAtColumn(ZelMultiColorListModel::IconColumn);
    if (!dragged.isValid())
        return;
    // The colour alone: a picture of the row would cover the place where it is to be dropped.
    auto *drag = new QDrag(this);
    drag->setMimeData(model_->mimeData({dragged}));
    const QIcon icon = dragged.data(Qt::DecorationRole).value<QIcon>();
    drag->setPixmap(icon.pixmap(iconSize(), devicePixelRatioF()));
    drag->exec(supportedActions, Qt::CopyAction);
}
