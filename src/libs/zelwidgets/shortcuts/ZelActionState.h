#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

class QAction;

/// The state of an action that appears in several places: all actions that it makes stay in step.
///
///     auto *grid = new ZelActionState(true, window);
///     menu->addAction(grid->createAction());
///     toolBar->addAction(grid->createAction());
///     connect(grid, &ZelActionState::checkStateChanged, view, &View::setGridVisible);
class ZELWIDGETS_EXPORT ZelActionState : public QObject
{
    Q_OBJECT

public:
    ZelActionState(bool checkable, QObject *parent);
    ~ZelActionState() override;

    bool enabled() const { return enabled_; }
    bool checked() const { return checked_; }
    /// A new action in this state, owned by it; text, icon and key are the caller's to set.
    QAction *createAction();

    /// These two may be called from any thread; the change comes with the event loop.
    void setCheckedAsync(bool b);
    void setEnabledAsync(bool b);

public Q_SLOTS:
    /// Nothing happens unless checkable.
    void setChecked(bool b);
    void setEnabled(bool b);

Q_SIGNALS:
    void enabledStateChanged(bool enabled);
    void checkStateChanged(bool checked);
    /// One of the actions was triggered.
    void triggered(bool checked);

private:
    bool enabled_ = true;
    bool checked_ = false;
    const bool checkable_;
};
