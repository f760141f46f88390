#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

#include <memory>

class QKeyEvent;
class QMainWindow;
class QPoint;

/// Docks panels by keyboard. Ctrl+M, or the key that the user gave to "if.nDockingMode", on a dock
/// or on a page of a ZelTextIconTabWidget in dock mode begins it; the window then shows and speaks
/// where the panel would go.
///
///     new ZelDockingMode(window);
///
/// The arrow keys choose the place, Return takes the panel there, Escape leaves it where it was.
/// While it floats, Ctrl and the arrow keys move it, but not its title off the screens, and Shift
/// and the arrow keys size it. The Menu key or Shift+F10 opens the panel's context menu instead.
/// All other keys do nothing meanwhile; a click, another application or the end of the panel
/// cancels. The panel has the focus afterwards.
///
/// The window owns it. ZelShortcutHandler has to be prepared before.
class ZELWIDGETS_EXPORT ZelDockingMode : public QObject
{
    Q_OBJECT

public:
    explicit ZelDockingMode(QMainWindow *window);
    ~ZelDockingMode() override;

    bool isActive() const;
    /// What is shown and spoken; empty if the mode isn't active.
    QString message() const;

public Q_SLOTS:
    /// Begins with the panel that has the focus; nothing happens without one, or with docking
    /// switched off.
    void start();
    void accept();
    void cancel();

Q_SIGNALS:
    void started();
    /// Another place was chosen, or the panel's window was moved or sized.
    void messageChanged(const QString &message);
    void finished(bool accepted);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void press(QKeyEvent *event);
    void choose(const QPoint &step);
    void moveWindow(const QPoint &step);
    void sizeWindow(const QPoint &step);
    void openMenu();
    void tell(const QString &message);
    void end();

    std::unique_ptr<class ZelDockingModePrivate> d_;
};
