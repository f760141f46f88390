#pragma once

#include <ZelWidgets/ZelMenuButton>
#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QString>

#include <memory>

struct WorkSpaceRibbonData;

/// The button with which the user picks, adds and manages workspaces and chooses the colour theme.
///
///     auto *button = new WorkSpaceWidgetRibbon(ribbon);
///     button->setLibraryWindow(library);
///     button->setProjectWindow(project);
///     ribbon->addWidget(button);
///
/// On the first start the factory workspaces become those of the user, and the first one is shown.
/// Later the one that was used last is shown; the button doesn't restore it, as the start-up of the
/// application does that.
///
/// A dot marks the button, and the entry of the current workspace, while the interface differs from
/// that workspace. It is found out when the menu opens, or when the application asks for it.
class ZELWIDGETS_EXPORT WorkSpaceWidgetRibbon : public ZelMenuButton
{
    Q_OBJECT

public:
    explicit WorkSpaceWidgetRibbon(QWidget *parent = nullptr);
    ~WorkSpaceWidgetRibbon() override;

    /// The menu of workspaces and themes, which is made anew whenever it opens.
    QMenu *menu() const;
    /// The id of the workspace in force; empty if there is none.
    QString currentWorkSpace() const;
    /// As of the last look.
    bool isWorkSpaceChanged() const;
    /// The tab widgets whose windows are captured and restored, see WorkSpaceHandler.
    void setLibraryWindow(QWidget *window);
    void setProjectWindow(QWidget *window);

public Q_SLOTS:
    /// Looks whether the interface differs from the current workspace. Takes a capture.
    void updateChangeMark();

Q_SIGNALS:
    /// The user chose a theme, and it is in force.
    void changedTheme(QString theme);

protected Q_SLOTS:
    void slotAddWorkSpace();
    /// Copies the stored form of the current workspace to a new one, which becomes current. The
    /// interface stays as it is.
    void slotDuplicateWorkSpace();
    void slotOverwriteWorkSpace();
    void slotExportWorkSpace();
    void slotRunMaintainDlg();
    void slotCreateMenu();
    void slotSetInitialWorkSpaces();
    void slotWorkSpaceMenuItemSelected(QAction *action);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void createMenuButton();
    void addWorkSpaceEntries();
    void addThemeEntries();
    void chooseTheme(const QString &key);
    void chooseWorkSpace(const QString &id);
    bool confirmRevert(const QString &name);
    /// The typed name; a null text if there is none, or if the button is gone.
    QString askForName(const QString &title, const QString &proposal);
    void makeCurrent(const QString &id);
    void showCurrentName();
    QByteArray capture() const;
    /// What the interface is now counts as the current workspace.
    void settle(const QByteArray &data);
    void setChanged(bool changed);

    std::shared_ptr<WorkSpaceRibbonData> data_;
    /// What was captured when the current workspace came into force.
    QByteArray settled_;
    bool isChanged_ = false;
};
