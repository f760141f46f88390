#include "lists/ZelTreeAccessible.h"

#include "lists/ZelTreeRowIcons.h"
#include "lists/ZelTreeView.h"

#include <QAccessible>
#include <QPointer>
#include <QScopedValueRollback>

#include <vector>

namespace {

class Tree;

/// An icon of whatever row is the current one.
class Icon : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    Icon(Tree *tree, int icon)
        : tree_(tree)
        , icon_(icon)
    {}

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::CheckBox; }
    QRect rect() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override { return {toggleAction()}; }
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    ZelTreeRowIcons icons() const;

    Tree *tree_;
    int icon_;
};

/// Hands on what Qt tells of the tree.
class Tree : public QAccessibleInterface
{
public:
    Tree(ZelTreeView *view, QAccessibleInterface *inner)
        : view_(view)
        , innerId_(QAccessible::uniqueId(inner))
    {}
    ~Tree() override
    {
        for (const QAccessible::Id id : icons_)
            QAccessible::deleteAccessibleInterface(id);
        QAccessible::deleteAccessibleInterface(innerId_);
    }

    ZelTreeView *view() const { return view_; }

    bool isValid() const override { return inner() && inner()->isValid(); }
    QObject *object() const override { return view_; }
    QWindow *window() const override { return inner() ? inner()->window() : nullptr; }
    QAccessibleInterface *parent() const override { return inner()->parent(); }
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override { return inner()->childCount() + icons().count(); }
    int indexOfChild(const QAccessibleInterface *child) const override;
    QString text(QAccessible::Text kind) const override { return inner()->text(kind); }
    void setText(QAccessible::Text kind, const QString &text) override
    {
        inner()->setText(kind, text);
    }
    QRect rect() const override { return inner()->rect(); }
    QAccessible::Role role() const override { return inner()->role(); }
    QAccessible::State state() const override { return inner()->state(); }
    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return inner()->interface_cast(type);
    }

private:
    QAccessibleInterface *inner() const { return QAccessible::accessibleInterface(innerId_); }
    ZelTreeRowIcons icons() const { return ZelTreeRowIcons(view_); }
    QAccessibleInterface *icon(int index) const;

    QPointer<ZelTreeView> view_;
    QAccessible::Id innerId_;
    mutable std::vector<QAccessible::Id> icons_;
};

QAccessibleInterface *Tree::icon(int index) const
{
    while (icons_.size() <= std::size_t(index)) {
        auto *icon = new Icon(const_cast<Tree *>(this), int(icons_.size()));
        icons_.push_back(QAccessible::registerAccessibleInterface(icon));
    }
    return QAccessible::accessibleInterface(icons_[std::size_t(index)]);
}

QAccessibleInterface *Tree::child(int index) const
{
    const int cells = inner()->childCount();
    if (index < cells)
        return inner()->child(index);
    return index < childCount() ? icon(index - cells) : nullptr;
}

QAccessibleInterface *Tree::childAt(int x, int y) const
{
    const ZelTreeRowIcons icons = this->icons();
    const QPoint point = view_->viewport()->mapFromGlobal(QPoint(x, y));
    for (int index = 0; index < icons.count(); ++index) {
        if (icons.area(index).contains(point))
            return icon(index);
    }
    return inner()->childAt(x, y);
}

QAccessibleInterface *Tree::focusChild() const
{
    const ZelTreeRowIcons icons = this->icons();
    for (int index = 0; index < icons.count(); ++index) {
        if (icons.isFramed(index))
            return icon(index);
    }
    return inner()->focusChild();
}

int Tree::indexOfChild(const QAccessibleInterface *child) const
{
    for (int index = 0; index < icons().count(); ++index) {
        if (icon(index) == child)
            return inner()->childCount() + index;
    }
    return inner()->indexOfChild(child);
}

ZelTreeRowIcons Icon::icons() const
{
    return ZelTreeRowIcons(tree_->view());
}

bool Icon::isValid() const
{
    return tree_->view() && icon_ < icons().count();
}

QAccessibleInterface *Icon::parent() const
{
    return tree_;
}

QRect Icon::rect() const
{
    if (!isValid())
        return {};
    const QRect area = icons().area(icon_);
    return {tree_->view()->viewport()->mapToGlobal(area.topLeft()), area.size()};
}

QAccessible::State Icon::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid)
        return state;
    state.invisible = !icons().isShown(icon_);
    state.focusable = true;
    state.checkable = true;
    state.checked = icons().isActive(icon_);
    state.focused = icons().isFramed(icon_);
    state.disabled = !tree_->view()->isEnabled();
    return state;
}

QString Icon::text(QAccessible::Text kind) const
{
    return isValid() && kind == QAccessible::Name ? icons().text(icon_) : QString();
}

void *Icon::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface *>(this)
                                                : nullptr;
}

void Icon::doAction(const QString &action)
{
    if (isValid() && action == toggleAction() && tree_->view()->isEnabled())
        icons().click(icon_);
}

QAccessibleInterface *create(const QString &className, QObject *object)
{
    static bool isAsking = false;
    auto *view = className == QLatin1String("ZelTreeView") && !isAsking
                     ? qobject_cast<ZelTreeView *>(object)
                     : nullptr;
    if (!view)
        return nullptr;
    // Qt makes its own for the base class, as this factory then has none.
    const QScopedValueRollback<bool> asking(isAsking, true);
    QAccessibleInterface *inner = QAccessible::queryAccessibleInterface(view);
    return inner ? new Tree(view, inner) : nullptr;
}

} // namespace

void ZelTreeAccessible::installFactory()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory(&create);
        return true;
    }();
    Q_UNUSED(isInstalled);
}
