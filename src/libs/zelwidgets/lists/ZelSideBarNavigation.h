#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QListWidget>
#include <QTreeWidget>

/// The list of pages beside a settings window, a little wider than its entries. It doesn't take the
/// focus.
class ZELWIDGETS_EXPORT ZelSideBarNavigation : public QListWidget
{
    Q_OBJECT

public:
    /// The parent owns the list.
    static QListWidget *create(QWidget *parent);
    /// Whether the list is one of these; null is not.
    static bool isNewSideBarStyle(QListWidget const *list);

    QSize sizeHint() const override;

private:
    explicit ZelSideBarNavigation(QWidget *parent);
};

/// The same for pages in groups.
class ZELWIDGETS_EXPORT ZelSideBarNavigationTree : public QTreeWidget
{
    Q_OBJECT

public:
    /// The parent owns the tree.
    static QTreeWidget *create(QWidget *parent);
    /// Whether the tree is one of these; null is not.
    static bool isNewSideBarStyle(QTreeWidget const *tree);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    explicit ZelSideBarNavigationTree(QWidget *parent);
};
