#pragma once

#include <QPointer>
#include <QString>

class QDockWidget;
class QMainWindow;
class QWidget;
class ZelTextIconTabWidget;

/// The panel that is to be moved: a dock, or a page among the tabs that becomes one.
class ZelDockSubject
{
public:
    ZelDockSubject() = default;
    /// The nearest panel of the main window that the widget is in and that can be moved; invalid if
    /// there is none or if docking is switched off.
    static ZelDockSubject around(QWidget *widget, const QMainWindow *window);

    bool isValid() const;
    QString title() const;
    /// Null for a page among the tabs.
    QDockWidget *dock() const;
    /// The tab widget that the panel is in or came from.
    ZelTextIconTabWidget *tabs() const;
    bool isFloating() const;
    bool canFloat() const;
    bool isAreaAllowed(Qt::DockWidgetArea area) const;

    /// Makes a dock of the page; null if that can't be done.
    QDockWidget *takeOut();

private:
    QPointer<QDockWidget> dock_;
    QPointer<ZelTextIconTabWidget> tabs_;
    QPointer<QWidget> page_;
};
