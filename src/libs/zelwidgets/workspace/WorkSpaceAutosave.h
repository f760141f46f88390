#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QMainWindow>
#include <QObject>
#include <QPointer>
#include <QTimer>

/// Keeps the present arrangement of the interface in the settings, so that a process that is killed
/// loses nothing but its last moment.
///
///     auto *autosave = new WorkSpaceAutosave(library, project, mainWindow);
///     if (autosave->restore() == WorkSpaceAutosave::NothingStored)
///         restoreLastWorkspace();
///     autosave->setEnabled(true);
///
/// It is off at first. While it is on, a change of windows, docks, tabs and tool bars is stored
/// after the delay, however many changes follow. Nothing is stored while a mouse button is held,
/// while a workspace is being restored, or once the main window is closing (hidden, or with the
/// property "ClosingZelmora").
class ZELWIDGETS_EXPORT WorkSpaceAutosave : public QObject
{
    Q_OBJECT

public:
    enum RestoreResult : int {
        NothingStored,
        Restored,
        Failed, ///< What was stored could not be restored, and is dropped.
        Skipped ///< The last start died in its restore: what was stored is dropped and the mark of
                ///< that start cleared. Begin with the default.
    };
    Q_ENUM(RestoreResult)

    /// The tab widgets as in WorkSpaceHandler; both may die before this object.
    WorkSpaceAutosave(QWidget *libraryWindow, QWidget *projectWindow, QObject *parent = nullptr);

    bool isEnabled() const { return isEnabled_; }
    /// In milliseconds; 1000 at first.
    int delay() const { return timer_.interval(); }
    /// Restores what was stored last, as the restore of the start-up.
    RestoreResult restore();
    /// Turned off, what waits to be stored isn't.
    void setEnabled(bool enabled);
    /// A negative delay counts as 0.
    void setDelay(int milliseconds);

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Stores the arrangement after the delay, if this is on.
    void schedule();

Q_SIGNALS:
    /// Another arrangement than the last one is in the settings file.
    void saved(QByteArray data);

private:
    bool isClosing() const;
    bool mustWait() const;
    void save();
    void watch();

    QPointer<QWidget> library_;
    QPointer<QWidget> project_;
    QPointer<QMainWindow> window_;
    QTimer timer_;
    QByteArray last_;
    bool isEnabled_ = false;
};
