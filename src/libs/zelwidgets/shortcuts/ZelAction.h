#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QKeySequence>
#include <QObject>
#include <QPointer>
#include <QString>

class QAction;
class QWidget;

/// A QAction with an id in the registry of shortcuts; users may give it another key.
///
///     auto *frame = new ZelAction(QStringLiteral("cam.fFrame"), tr("Frame Selection"),
///                                 Qt::Key_F, viewport);
///     connect(frame, qOverload<>(&ZelAction::triggered), viewport, &Viewport::frameSelection);
///     viewport->addAction(frame->qAction());
///
/// All slots do nothing once the QAction is gone.
class ZELWIDGETS_EXPORT ZelAction : public QObject
{
    Q_OBJECT

public:
    /// Makes a QAction of its own.
    ZelAction(const QString &id, const QString &text, QKeySequence key, QObject *parent);
    /// Wraps an action, which stays its owner's. Its shortcut becomes the one of the registry.
    ZelAction(const QString &id, QAction *action, QObject *parent);
    ~ZelAction() override;

    QString id() const { return id_; }
    /// Null once the action is gone.
    QAction *qAction() const { return action_; }

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    void hover();
    void setChecked(bool b);
    void setDisabled(bool b);
    void setEnabled(bool b);
    void setVisible(bool b);
    void toggle();
    /// Only if the action is enabled.
    void trigger();
    /// The widget that the action belongs to when keys are in conflict; not owned.
    void setScope(QWidget *wdg);
    /// Without one that was set, the first widget among the QAction's ancestors.
    QWidget *scope() const;

Q_SIGNALS:
    void changed();
    void hovered();
    void toggled(bool checked);
    /// Both go out for each trigger.
    void triggered(bool checked);
    void triggered();

protected Q_SLOTS:
    void slotActionDestroyed();

private:
    void setUp();

    QString id_;
    QAction *action_;
    QPointer<QWidget> scopeWidget_;
};
