#include "color/ZelSwatchAccessible.h"

#include "color/ColorSwatchModel.h"
#include "color/ZelColorSwatchListView.h"

#include <QAccessibleWidget>
#include <QPointer>

#include <vector>

namespace {

using View = ZelColorSwatchListView;

/// One colour. It stands for a row, whatever colour is there.
class Swatch : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    Swatch(View *view, int row)
        : view_(view)
        , row_(row)
    {}

    bool isValid() const override { return view_ && index().isValid(); }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(view_.data());
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QRect rect() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface
                   ? static_cast<QAccessibleActionInterface *>(this)
                   : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString &action) override
    {
        if (isValid() && action == pressAction())
            view_->pick(index());
    }
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    QModelIndex index() const { return view_->model()->index(row_, 0); }

    QPointer<View> view_;
    int row_;
};

QRect Swatch::rect() const
{
    if (!isValid())
        return {};
    const QRect place = view_->visualRect(index());
    return {view_->viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::State Swatch::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    const bool isSeen =
        view_->isVisible() && view_->viewport()->rect().intersects(view_->visualRect(index()));
    state.selectable = true;
    state.multiSelectable = true;
    state.focusable = true;
    state.disabled = !view_->isEnabled();
    state.selected = view_->selectionModel()->isSelected(index());
    state.focused = view_->hasFocus() && view_->currentIndex() == index();
    state.offscreen = !isSeen;
    return state;
}

QString Swatch::text(QAccessible::Text kind) const
{
    return isValid() && kind == QAccessible::Name ? view_->swatchModel()->text(row_) : QString();
}

/// The list. Its children live as long as it does, once they were asked for.
class SwatchList : public QAccessibleWidget
{
public:
    explicit SwatchList(View *view)
        : QAccessibleWidget(view, QAccessible::List)
    {}
    ~SwatchList() override
    {
        for (const QAccessible::Id id : ids_)
            QAccessible::deleteAccessibleInterface(id);
    }

    int childCount() const override { return view() ? view()->model()->rowCount() : 0; }
    QAccessibleInterface *child(int row) const override;
    QAccessibleInterface *childAt(int x, int y) const override
    {
        const QPoint place = view()->viewport()->mapFromGlobal(QPoint(x, y));
        const QModelIndex index = view()->indexAt(place);
        return index.isValid() ? child(index.row()) : nullptr;
    }
    QAccessibleInterface *focusChild() const override
    {
        return view()->hasFocus() ? child(view()->currentIndex().row()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface *searched) const override
    {
        for (int row = 0; row < childCount(); ++row) {
            if (child(row) == searched)
                return row;
        }
        return -1;
    }

private:
    View *view() const { return static_cast<View *>(object()); }

    mutable std::vector<QAccessible::Id> ids_;
};

QAccessibleInterface *SwatchList::child(int row) const
{
    if (row < 0 || row >= childCount())
        return nullptr;
    while (ids_.size() <= std::size_t(row)) {
        auto *swatch = new Swatch(view(), int(ids_.size()));
        ids_.push_back(QAccessible::registerAccessibleInterface(swatch));
    }
    return QAccessible::accessibleInterface(ids_[std::size_t(row)]);
}

QAccessibleInterface *createInterface(const QString &, QObject *object)
{
    auto *view = qobject_cast<View *>(object);
    return view ? new SwatchList(view) : nullptr;
}

} // namespace

void ZelSwatchAccessible::installFactory()
{
    static const bool isInstalled = (QAccessible::installFactory(createInterface), true);
    Q_UNUSED(isInstalled);
}
