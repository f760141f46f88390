#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QList>
#include <QObject>
#include <QPointer>

class QKeySequence;
class QMainWindow;
class QWidget;

/// Walks the panes of a main window with F6 and Shift+F6, or with the keys that the user gave to
/// "if.oNextPane" and "if.pPreviousPane".
///
///     auto *walker = new ZelPaneWalker(window);
///     walker->addPane(viewport);
///
/// Panes are the docks that can be seen, the side panels (ZelTabWidgetBase) outside of docks, the
/// central widget, and what was added. They are walked in reading order, then the floating docks.
/// In each, the widget that had the focus last gets it, else the first one. What is inside two
/// panes belongs to the inner one; a pane without anything that takes the focus is left out.
///
/// The window owns it. ZelShortcutHandler has to be prepared before.
class ZELWIDGETS_EXPORT ZelPaneWalker : public QObject
{
    Q_OBJECT

public:
    explicit ZelPaneWalker(QMainWindow *window);

    /// The panes of now, in order.
    QList<QWidget *> panes() const;
    /// Not owned.
    void addPane(QWidget *pane);

public Q_SLOTS:
    void goToNext();
    void goToPrevious();

private:
    QList<QWidget *> candidates() const;
    void addKey(const QString &id, const QString &text, const QKeySequence &key,
                void (ZelPaneWalker::*slot)());
    void go(int step);

    QPointer<QMainWindow> window_;
    QList<QPointer<QWidget>> added_;
};
