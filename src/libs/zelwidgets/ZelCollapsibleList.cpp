#include "ZelCollapsibleList.h"

#include "ZelComboBox.h"
#include "ZelStoredValue.h"
#include "ZelToolButton.h"
#include "theme/SingleClickActivationStyle.h"

#include <QAction>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QListView>
#include <QMenu>
#include <QSignalBlocker>

#include <algorithm>

namespace {

QString stateKey()
{
    return QStringLiteral("collapsedState");
}

ZelSettings settingsOf(const QObject *list)
{
    return ZelSettings(QStringLiteral("ZelCollapsibleList") + list->objectName());
}

} // namespace

ZelCollapsibleList::ZelCollapsibleList(const QString &name, QAbstractItemModel *model)
    : collapseIcon_(QStringLiteral(":/ui/icons/window_collapse"))
    , expandIcon_(QStringLiteral(":/ui/icons/window_expand"))
{
    setObjectName(name);
    createParts(model);
    arrangeParts();
    connectParts();
    restoreState();
}

ZelCollapsibleList::~ZelCollapsibleList()
{
    settingsOf(this).setValue(stateKey(), int(state_));
}

void ZelCollapsibleList::createParts(QAbstractItemModel *model)
{
    listContainer_ = new QWidget(this);
    listContainer_->setContentsMargins(0, 0, 0, 0);
    buttonLayout_ = new QVBoxLayout(listContainer_);
    buttonLayout_->setContentsMargins(0, 0, 0, 0);
    buttonLayout_->setSpacing(5);

    listView_ = new QListView(this);
    listView_->setStyle(new SingleClickActivationStyle(listView_));
    listView_->setAlternatingRowColors(true);
    listView_->setModel(model);
    listView_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    listView_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    listView_->setAccessibleName(objectName());

    modeButton_ = new ZelToolButton(ZelToolButton::Flat, this);
    modeButton_->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/list_toggle_mode")));
    modeButton_->setToolTip(tr("Actions"));
    modeButton_->setFocusPolicy(Qt::StrongFocus);
    modeButton_->hide();
    modeMenu_ = new QMenu(modeButton_);
    modeButton_->setMenu(modeMenu_);
    modeButton_->setPopupMode(QToolButton::InstantPopup);
    modeButton_->setPaintMenuArrow(false);

    comboBox_ = new ZelComboBox(this);
    comboBox_->hide();
    comboBox_->setModel(model);
    comboBox_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    comboBox_->setAccessibleName(objectName());

    toggleButton_ = new ZelToolButton(ZelToolButton::Flat, this);
    toggleButton_->setIcon(collapseIcon_);
    toggleButton_->setToolTip(tr("Collapse or expand the list"));
    toggleButton_->setFocusPolicy(Qt::StrongFocus);
}

void ZelCollapsibleList::arrangeParts()
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(listContainer_, 0, Qt::AlignTop);
    layout->addWidget(modeButton_, 0, Qt::AlignTop);
    layout->addWidget(listView_);
    layout->addWidget(comboBox_, 0, Qt::AlignTop);
    layout->addWidget(toggleButton_, 0, Qt::AlignTop);
}

void ZelCollapsibleList::connectParts()
{
    connect(toggleButton_, &QAbstractButton::clicked, this, &ZelCollapsibleList::toggleState);
    if (listView_->selectionModel()) {
        connect(listView_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                &ZelCollapsibleList::listSelectionChanged);
    }
    connect(listView_, &QAbstractItemView::activated, this,
            &ZelCollapsibleList::listCurrentIndexChanged);
    connect(comboBox_, &QComboBox::activated, this, &ZelCollapsibleList::comboCurrentIndexChanged);
}

void ZelCollapsibleList::restoreState()
{
    const ZelSettings settings = settingsOf(this);
    if (settings.hasKey(stateKey()))
        setState(storedValue<int>(settings, stateKey(), Expanded) == Collapsed ? Collapsed
                                                                               : Expanded);
    // The height of a list that was never shown is none to come back to.
    expandedHeight_ = 0;
}

ZelToolButton *ZelCollapsibleList::addButton(QAction *action)
{
    auto *button = new ZelToolButton(ZelToolButton::Flat, listContainer_);
    button->setDefaultAction(action);
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    buttonLayout_->addWidget(button);
    modeMenu_->addAction(action);
    return button;
}

QModelIndex ZelCollapsibleList::currentIndex() const
{
    return state_ == Expanded ? listView_->currentIndex() : comboIndex();
}

// Not that of its view, which knows nothing of a choice by keys before it was first shown.
QModelIndex ZelCollapsibleList::comboIndex() const
{
    const QAbstractItemModel *model = comboBox_->model();
    return model ? model->index(comboBox_->currentIndex(), comboBox_->modelColumn())
                 : QModelIndex();
}

void ZelCollapsibleList::setCurrentIndex(const QModelIndex &index)
{
    if (state_ == Expanded) {
        const QSignalBlocker blocker(listView_);
        // The selection model tells this list, which would tell others.
        const QSignalBlocker ownBlocker(this);
        listView_->clearSelection();
        listView_->setCurrentIndex(index);
    } else {
        const QSignalBlocker blocker(comboBox_);
        comboBox_->setCurrentIndex(index.row());
    }
}

QList<QModelIndex> ZelCollapsibleList::currentSelection() const
{
    if (state_ == Expanded)
        return listView_->selectionModel() ? listView_->selectionModel()->selectedIndexes()
                                           : QModelIndexList();
    const QModelIndex index = comboIndex();
    return index.isValid() ? QModelIndexList{index} : QModelIndexList();
}

void ZelCollapsibleList::edit(const QModelIndex &index)
{
    listView_->edit(index);
}

void ZelCollapsibleList::setHeightRange(int minimum, int maximum)
{
    minHeight_ = std::clamp(minimum, 0, QWIDGETSIZE_MAX);
    maxHeight_ = std::clamp(maximum, minHeight_, QWIDGETSIZE_MAX);
    if (state_ == Expanded)
        applyHeightRange();
}

void ZelCollapsibleList::applyHeightRange()
{
    setMaximumHeight(maxHeight_);
    setMinimumHeight(minHeight_);
}

void ZelCollapsibleList::setItemDelegate(QAbstractItemDelegate *delegate)
{
    listView_->setItemDelegate(delegate);
    comboBox_->setItemDelegate(delegate);
}

ZelCollapsibleList::State ZelCollapsibleList::state() const
{
    return state_;
}

void ZelCollapsibleList::setState(State state)
{
    const int row = currentIndex().row();
    const bool isChange = state != state_;
    if (isChange && state == Collapsed)
        expandedHeight_ = height();
    state_ = state;
    if (state == Expanded)
        showExpanded();
    else
        showCollapsed(row);
    if (isChange)
        Q_EMIT stateChanged();
}

void ZelCollapsibleList::showExpanded()
{
    toggleButton_->setIcon(collapseIcon_);
    comboBox_->hide();
    modeButton_->hide();
    listView_->show();
    listContainer_->show();
    if (expandedHeight_ > 0)
        setFixedHeight(expandedHeight_);
    applyHeightRange();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ZelCollapsibleList::showCollapsed(int row)
{
    toggleButton_->setIcon(expandIcon_);
    comboBox_->show();
    modeButton_->show();
    listView_->hide();
    listContainer_->hide();
    {
        const QSignalBlocker blocker(comboBox_);
        comboBox_->setCurrentIndex(row);
    }
    setFixedHeight(sizeHint().height());
}

void ZelCollapsibleList::toggleState()
{
    setState(state_ == Collapsed ? Expanded : Collapsed);
}

QListView *ZelCollapsibleList::list() const
{
    return listView_;
}

ZelComboBox *ZelCollapsibleList::combo() const
{
    return comboBox_;
}

void ZelCollapsibleList::comboCurrentIndexChanged()
{
    if (state_ != Collapsed)
        return;
    {
        const QSignalBlocker blocker(listView_);
        const QSignalBlocker ownBlocker(this);
        listView_->setCurrentIndex(comboIndex());
    }
    Q_EMIT currentIndexChanged();
    Q_EMIT selectionChanged();
}

void ZelCollapsibleList::listCurrentIndexChanged(const QModelIndex &index)
{
    // With Control or Shift the user selects.
    if (state_ != Expanded || QGuiApplication::keyboardModifiers() != Qt::NoModifier)
        return;
    {
        const QSignalBlocker blocker(comboBox_);
        listView_->setCurrentIndex(index);
        comboBox_->setCurrentIndex(index.row());
    }
    Q_EMIT currentIndexChanged();
}

void ZelCollapsibleList::listSelectionChanged()
{
    Q_EMIT selectionChanged();
}
