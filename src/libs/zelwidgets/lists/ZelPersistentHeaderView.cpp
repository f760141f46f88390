#include "ZelPersistentHeaderView.h"

#include "lists/ZelHeaderState.h"

#include <ZelCore/ZelSettings>

#include <QDebug>
#include <QMenu>

#include <utility>

namespace {

QString group()
{
    return QStringLiteral("ui");
}

} // namespace

ZelPersistentHeaderView::ZelPersistentHeaderView(QString const &settingsKey,
                                                 Qt::Orientation orientation,
                                                 std::function<bool(int)> hiddenColumnsPredicate,
                                                 QWidget *parent)
    : QHeaderView(orientation, parent)
    , settingsKey_(settingsKey)
    , hiddenColumnsPredicate_(std::move(hiddenColumnsPredicate))
{
    setSectionsMovable(true);
    setSectionsClickable(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this,
            &ZelPersistentHeaderView::onHeaderMenu);
}

ZelPersistentHeaderView::~ZelPersistentHeaderView()
{
    keepState();
    if (!state_.isEmpty() && !settingsKey_.isEmpty())
        ZelSettings(group()).setValue(settingsKey_, state_);
}

/// A header that has lost its sections with its model keeps what it had before.
void ZelPersistentHeaderView::keepState()
{
    if (count() > 0)
        state_ = saveState();
}

std::function<bool(int)> ZelPersistentHeaderView::hideColumns(QList<int> columns)
{
    return [columns = std::move(columns)](int column) {
        return columns.contains(column);
    };
}

std::function<bool(int)> ZelPersistentHeaderView::showColumns(QList<int> columns)
{
    return [columns = std::move(columns)](int column) {
        return !columns.contains(column);
    };
}

void ZelPersistentHeaderView::setHiddenColumns(QList<int> const &columns)
{
    hiddenColumnsPredicate_ = hideColumns(columns);
}

void ZelPersistentHeaderView::setModel(QAbstractItemModel *model)
{
    if (this->model())
        disconnect(this->model(), &QObject::destroyed, this, nullptr);
    // Before the header hears of it itself and forgets its sections.
    if (model)
        connect(model, &QObject::destroyed, this, &ZelPersistentHeaderView::keepState);
    QHeaderView::setModel(model);
    const ZelSettings settings(group());
    const bool isStored = !settingsKey_.isEmpty() && settings.hasKey(settingsKey_);
    const bool isRestored = isStored && restore(settings.value(settingsKey_));
    if (!isStored && hiddenColumnsPredicate_) {
        for (int column = 0; column < count(); ++column)
            setSectionHidden(column, hiddenColumnsPredicate_(column));
    }
    setSectionsClickable(true);
    if (!isRestored)
        Q_EMIT settingsNotRestored();
}

bool ZelPersistentHeaderView::restore(const QVariant &stored)
{
    // Without sections there is nothing to give the state to.
    if (count() == 0)
        return true;
    const bool isBytes = stored.metaType() == QMetaType::fromType<QByteArray>();
    const QByteArray bytes = isBytes ? stored.toByteArray() : QByteArray();
    const auto state = ZelHeaderState::read(bytes);
    if (!state || state->orientation() != orientation()) {
        qWarning() << "The stored columns can't be read:" << settingsKey_;
        return false;
    }
    if (state->count() == count())
        return restoreState(bytes);
    state->applyTo(*this);
    return true;
}

void ZelPersistentHeaderView::onHeaderMenu(QPoint point)
{
    if (!model())
        return;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool isLast = count() - hiddenSectionCount() <= 1;
    for (int column = 0; column < count(); ++column) {
        const QString text = model()->headerData(column, orientation(), Qt::DisplayRole).toString();
        QAction *action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(!isSectionHidden(column));
        // Without any section there would be no place for the menu.
        action->setEnabled(!isLast || isSectionHidden(column));
        connect(action, &QAction::triggered, this,
                [this, column](bool isShown) { setSectionHidden(column, !isShown); });
    }
    menu->popup(mapToGlobal(point));
}
