#pragma once

#include "GalleryPage.h"

class SceneModel;
class ZelTreeView;

/// The tree of a scene of five thousand objects, with materials to be dropped on them.
class TreePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TreePage(QWidget *parent = nullptr);

private:
    void setUpTree();
    void answerRequests();
    QWidget *materials();

    SceneModel *scene_;
    ZelTreeView *tree_;
};
