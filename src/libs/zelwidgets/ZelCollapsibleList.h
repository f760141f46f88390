#pragma once

#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/zelwidgets_export.h>

#include <QModelIndex>
#include <QWidget>

class QAbstractItemDelegate;
class QAbstractItemModel;
class QHBoxLayout;
class QListView;
class QMenu;
class QVBoxLayout;
class ZelComboBox;
class ZelToolButton;

/// A list that a button collapses to a combo box of one line on the same model. The state is
/// remembered under the object's name.
class ZELWIDGETS_EXPORT ZelCollapsibleList : public QWidget
{
    Q_OBJECT

public:
    enum State : int { Expanded = 0, Collapsed = 1 };
    Q_ENUM(State)

    /// The name is the object name and that of the settings group. The model stays the caller's.
    ZelCollapsibleList(const QString &name, QAbstractItemModel *model);
    /// Stores the state.
    ~ZelCollapsibleList() override;

    /// A button for the action beside the list; while collapsed a menu offers the action.
    ZelToolButton *addButton(QAction *action);

    QModelIndex currentIndex() const;
    /// Makes the index current; emits nothing.
    void setCurrentIndex(const QModelIndex &index);
    /// What is selected in the list, or the one row of the combo box.
    QList<QModelIndex> currentSelection() const;
    /// Opens the list's editor on the index.
    void edit(const QModelIndex &index);

    /// Heights in pixels while expanded.
    void setHeightRange(int minimum, int maximum);
    void setItemDelegate(QAbstractItemDelegate *delegate);

    State state() const;
    void setState(State state);

public Q_SLOTS:
    void toggleState();

Q_SIGNALS:
    void currentIndexChanged();
    void selectionChanged();
    void stateChanged();

protected:
    QListView *list() const;
    ZelComboBox *combo() const;

private:
    void createParts(QAbstractItemModel *model);
    void arrangeParts();
    void connectParts();
    void restoreState();
    void showExpanded();
    void showCollapsed(int row);
    void applyHeightRange();
    QModelIndex comboIndex() const;
    void comboCurrentIndexChanged();
    void listCurrentIndexChanged(const QModelIndex &index);
    void listSelectionChanged();

    QVBoxLayout *buttonLayout_ = nullptr;
    QWidget *listContainer_ = nullptr;
    ZelToolButton *modeButton_ = nullptr;
    QMenu *modeMenu_ = nullptr;
    QListView *listView_ = nullptr;
    ZelComboBox *comboBox_ = nullptr;
    ZelToolButton *toggleButton_ = nullptr;
    State state_ = Expanded;
    int expandedHeight_ = 0;
    ZelStyleIcon collapseIcon_;
    ZelStyleIcon expandIcon_;
    int minHeight_ = 0;
    int maxHeight_ = QWIDGETSIZE_MAX;
};
