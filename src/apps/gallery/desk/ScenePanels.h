#pragma once

#include "viewport/ViewportRenderer.h"

#include <QList>
#include <QListWidget>
#include <QPointer>
#include <QTreeWidget>
#include <QWidget>

class QAction;
class QLabel;
class ViewScene;

/// The objects of the scene, each with a check mark for its visibility.
class SceneTreePanel : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SceneTreePanel(ViewScene *scene, QWidget *parent = nullptr);

private:
    void fill();
    void follow();
    void selectChosen();

    QPointer<ViewScene> scene_;
};

/// The studios that the scene can be shown in.
class StudioPanel : public QListWidget
{
    Q_OBJECT

public:
    explicit StudioPanel(ViewScene *scene, QWidget *parent = nullptr);
};

/// Switches of the rendering, each for an action that the ribbon has as well.
class RenderSettingsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit RenderSettingsPanel(const QList<QAction *> &switches, QWidget *parent = nullptr);
};

/// What the last picture took.
class StatisticsPanel : public QWidget
{
    Q_OBJECT

public:
    explicit StatisticsPanel(QWidget *parent = nullptr);

    void showReport(const ViewportRenderer::Report &report);

private:
    QList<QLabel *> numbers_;
    int pictures_ = 0;
};
