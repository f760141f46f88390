#include "DeskRibbon.h"

#include "DeskWindow.h"
#include "LookControls.h"
#include "viewport/ViewScene.h"
#include "viewport/Viewport.h"

#include <ZelWidgets/WorkSpaceWidgetRibbon>
#include <ZelWidgets/ZelCommandPalette>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelToolBar>

#include <QToolButton>

namespace {

constexpr int nameLength = 24;

} // namespace

void makeButtonsReachable(const QToolBar *bar)
{
    for (QToolButton *button :
         bar->findChildren<QToolButton *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (button->focusPolicy() == Qt::NoFocus)
            button->setFocusPolicy(Qt::TabFocus);
        if (button->objectName() == QLatin1String("qt_toolbar_ext_button"))
            button->setAccessibleName(DeskRibbon::tr("More of %1").arg(bar->windowTitle()));
    }
}

DeskRibbon::DeskRibbon(DeskWindow *window)
    : QToolBar(tr("Ribbon"), window)
    , window_(window)
    , workSpaces_(new WorkSpaceWidgetRibbon(this))
{
    setObjectName(QStringLiteral("Ribbon"));
    setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    setAccessibleName(tr("Ribbon"));
    workSpaces_->setAccessibleName(tr("Workspace"));
    workSpaces_->setFixedWidth(fontMetrics().averageCharWidth() * nameLength);
    addWidget(workSpaces_);
    addSeparator();
    QAction *commands = add(QStringLiteral("Script"), QStringLiteral("menu"), tr("Commands"),
                            tr("Run any command by its name"));
    auto *palette = new ZelCommandPalette(window);
    connect(commands, &QAction::triggered, palette, &ZelCommandPalette::open);
    QAction *picture = add(QStringLiteral("Picture"), QStringLiteral("save"), tr("Picture"),
                           tr("Save the picture of the view"));
    connect(picture, &QAction::triggered, window_, &DeskWindow::savePicture);
    addSeparator();
    addStudioButtons();
    addSeparator();
    addRenderButtons();
}

QAction *DeskRibbon::add(const QString &id, const QString &icon, const QString &text,
                         const QString &explanation)
{
    QAction *action = addAction(LookControls::icon(icon), text);
    action->setObjectName(QStringLiteral("Ribbon") + id);
    action->setToolTip(explanation);
    return action;
}

QAction *DeskRibbon::button(const QString &id) const
{
    return findChild<QAction *>(QStringLiteral("Ribbon") + id, Qt::FindDirectChildrenOnly);
}

void DeskRibbon::addStudioButtons()
{
    ViewScene *scene = window_->scene();
    add(QStringLiteral("Studios"), QStringLiteral("studio"), tr("Studios"),
        tr("Show or hide the list of studios"))
        ->setCheckable(true);
    QAction *toggle = add(QStringLiteral("StudiosTggl"), QStringLiteral("visible"), tr("Lit"),
                          tr("Light the scene by its studio, or evenly"));
    toggle->setCheckable(true);
    toggle->setChecked(scene->studiosAreOn());
    QAction *step = add(QStringLiteral("StudiosStep"), QStringLiteral("refresh"), tr("Next"),
                        tr("Go to the next studio"));
    connect(toggle, &QAction::toggled, scene, &ViewScene::setStudiosOn);
    connect(step, &QAction::triggered, scene, [scene] {
        scene->setCurrentStudio((scene->currentStudio() + 1) % scene->studioCount());
    });
    const auto follow = [scene, toggle, step] {
        toggle->setChecked(scene->studiosAreOn());
        step->setEnabled(scene->studiosAreOn());
    };
    connect(scene, &ViewScene::studioChanged, this, follow);
}

void DeskRibbon::addRenderButtons()
{
    Viewport *viewport = window_->viewport();
    QAction *fast = add(QStringLiteral("GPU"), QStringLiteral("draft"), tr("Fast"),
                        tr("Draw coarsely while things move"));
    QAction *smooth = add(QStringLiteral("Denoise"), QStringLiteral("smooth"), tr("Smooth"),
                          tr("Smooth the edges at rest"));
    QAction *fine = add(QStringLiteral("HDPI"), QStringLiteral("hidpi"), tr("HiDPI"),
                        tr("Draw every pixel of a fine display"));
    for (QAction *action : {fast, smooth, fine}) {
        action->setCheckable(true);
        action->setChecked(true);
    }
    connect(fast, &QAction::toggled, viewport->renderer(), &ViewportRenderer::setDraftWhileMoving);
    connect(smooth, &QAction::toggled, viewport, [viewport](bool on) {
        viewport->renderer()->setSmoothAtRest(on);
        viewport->refresh();
    });
    connect(fine, &QAction::toggled, viewport, &Viewport::setUsesDevicePixels);
}

QList<QAction *> DeskRibbon::renderSwitches() const
{
    return {button(QStringLiteral("GPU")), button(QStringLiteral("Denoise")),
            button(QStringLiteral("HDPI"))};
}

void DeskRibbon::addPanelButtons()
{
    const auto follow = [](QAction *action, QAction *toggle) {
        action->setCheckable(true);
        action->setChecked(toggle->isChecked());
        connect(action, &QAction::triggered, toggle, &QAction::trigger);
        connect(toggle, &QAction::toggled, action, &QAction::setChecked);
    };
    addSeparator();
    for (ZelDockWidget *dock : window_->docks()) {
        const QString name = dock->objectName();
        if (name == QLatin1String("StudioDockWidget")) {
            follow(button(QStringLiteral("Studios")), dock->toggleViewAction());
            continue;
        }
        QAction *action = add(name, dock->property("ribbonIcon").toString(), dock->windowTitle(),
                              tr("Show or hide \"%1\"").arg(dock->windowTitle()));
        follow(action, dock->toggleViewAction());
    }
    addSeparator();
    QAction *tools = add(QStringLiteral("ToolBoxBtn"), QStringLiteral("settings_dropdown"),
                         tr("Tool bar"), tr("Show or hide the tool bar"));
    follow(tools, window_->mainToolBar()->toggleViewAction());
    makeButtonsReachable(this);
}
