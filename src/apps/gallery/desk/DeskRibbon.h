#pragma once

#include <QAction>
#include <QToolBar>

class DeskWindow;
class WorkSpaceWidgetRibbon;

/// Lets the Tab key reach the buttons of a tool bar, and the one that stands for those without
/// room.
void makeButtonsReachable(const QToolBar *bar);

/// The ribbon: workspaces, panels, studios and switches of the rendering. A workspace stores which
/// of its buttons are visible, by their object names "Ribbon" and an id.
class DeskRibbon : public QToolBar
{
    Q_OBJECT

public:
    explicit DeskRibbon(DeskWindow *window);

    /// The button of an id; null if there is none.
    QAction *button(const QString &id) const;
    /// The button of the workspaces.
    WorkSpaceWidgetRibbon *workSpaces() const { return workSpaces_; }
    /// The switches of the rendering.
    QList<QAction *> renderSwitches() const;
    /// Adds the buttons that show and hide docks, and the tool bar.
    void addPanelButtons();

private:
    QAction *add(const QString &id, const QString &icon, const QString &text,
                 const QString &explanation);
    void addStudioButtons();
    void addRenderButtons();

    DeskWindow *window_;
    WorkSpaceWidgetRibbon *workSpaces_;
};
