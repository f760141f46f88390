#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QMenu>

#include <memory>

/// A menu with entries that don't close it, which reports the entry under the mouse for tool tips.
///
///     auto *menu = new ZelMenu(tr("Columns"), this);
///     menu->addNotHideAction(tr("Size"))->setCheckable(true);
///     menu->addAction(tr("Close"));
///
/// Hiding is deferred: hide(), close() and Qt's own closing take effect when control returns to the
/// event loop, unless the action that was triggered meanwhile keeps the menu open. Connect to
/// triggered() rather than use what exec() returns: entries that don't close the menu are
/// triggered while exec() runs.
class ZELWIDGETS_EXPORT ZelMenu : public QMenu
{
    Q_OBJECT

public:
    explicit ZelMenu(QWidget *parent = nullptr);
    explicit ZelMenu(const QString &title, QWidget *parent = nullptr);
    ~ZelMenu() override;

    /// Adds an entry that leaves the menu open when it is triggered.
    QAction *addNotHideAction(const QString &text);
    /// Makes the action one that leaves this menu open, and returns it. The action is not added;
    /// a null one is refused with a warning.
    QAction *setNotHideAction(QAction *action);
    bool isActionNonHideMenuItem(QAction *action) const;

    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Keeps the menu open once: the close that is under way, or one that is asked for before
    /// control returns to the event loop, does not happen.
    void slotSetPreventCloseNow();

Q_SIGNALS:
    /// The mouse came upon another entry.
    void showTooltip(QAction *a);
    /// The mouse is on no entry, or the menu was left or hidden.
    void hideTooltip();

protected:
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    bool staysOpenFor(QAction *action) const;
    void deferHide();
    void hideNow();
    void forgetTooltip();

    std::unique_ptr<class ZelMenuPrivate> d_;
};
