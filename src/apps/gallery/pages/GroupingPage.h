#pragma once

#include "GalleryPage.h"

#include <QStringListModel>

class QBoxLayout;

/// The collapsible list on a real model, sections with remembered state, and the containers.
class GroupingPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit GroupingPage(QWidget *parent = nullptr);

private:
    void addCollapsibleList();
    void addAccordion();
    void addContentWidgets();
    QWidget *createSections();

    QStringListModel lights_;
};
