#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QPointer>
#include <QSize>
#include <QStyledItemDelegate>

#include <vector>

class QAbstractItemView;

/// Rows with icons at their end, each for a yes or no of the model: locks, eyes and the like.
/// A click on one is the application's matter.
///
/// By the keyboard, Alt+Left and Alt+Right go from icon to icon of the current row, and Space
/// clicks the one that is framed.
class ZELWIDGETS_EXPORT ZelTreeItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    struct IconAndRole
    {
        /// While the role is false, or always.
        QIcon icon;
        /// Read by toBool().
        int role = Qt::UserRole;
        /// Whether it is there while the role is false.
        bool alwaysVisible = false;
        /// Whether activeIcon stands for the icon while the role is true. With both, such a row is
        /// painted disabled, but for the current one.
        bool hasActiveIcon = false;
        QIcon activeIcon;
        /// What it tells while the role is true, for those who can't see it.
        QString text = {};
    };

    /// The view owns the delegate, which doesn't become its delegate by that.
    explicit ZelTreeItemDelegate(QAbstractItemView *view);
    ~ZelTreeItemDelegate() override;

    /// To the left of those that are there.
    void addIcon(IconAndRole icon);
    /// An open lock, or a closed one while the role is true.
    void addLockIcon(int role);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// Stands behind the row's text.
    virtual QString nameAppendix(QModelIndex const &index) const;
    virtual bool shouldDisplayIconsFor(QModelIndex const &index) const;
    /// Whether the click was taken; a click on an icon goes nowhere else in either case.
    virtual bool iconClicked(std::size_t iconIndex, QModelIndex const &index) = 0;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    friend class ZelTreeRowIcons;

    int firstIconHorizontalOffset(QRect const &row) const;
    QRect iconRect(std::size_t icon, QRect const &row) const;
    int iconSpacing() const;
    int iconVerticalOffset(QRect const &row) const;
    bool isIconActive(std::size_t icon, QModelIndex const &index) const;
    int paintIcon(QPainter *painter, const QIcon &icon, int x, int y, QIcon::Mode mode) const;

    QRect mirrored(const QRect &icon, const QRect &row) const;
    void paintIcons(QPainter *painter, const QRect &row, const QModelIndex &index) const;
    bool isPaintedDisabled(const QModelIndex &index) const;
    bool isShown(std::size_t icon, const QModelIndex &index) const;
    bool isFramed(std::size_t icon, const QModelIndex &index) const;
    bool keyPressed(QKeyEvent *event);
    int shownFrom(int icon, int step, const QModelIndex &index) const;
    void frame(int icon);

    QPointer<QAbstractItemView> view_;
    std::vector<IconAndRole> icons_;
    QSize iconSize_{12, 12};
    int iconGap_ = 3;
    /// The icon of the current row that the keyboard is at, or -1.
    int framed_ = -1;
};
