#pragma once

#include "GalleryPage.h"

class QGridLayout;

/// Every common Qt widget under the application's sheet, enabled and disabled.
class PlainWidgetsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit PlainWidgetsPage(QWidget *parent = nullptr);

    void lookChanged() override;

private:
    using Maker = QWidget *(PlainWidgetsPage::*)();
    void addPairs(const QString &title, const QList<std::pair<QString, Maker>> &makers,
                  int columns);

    QWidget *pushButtons();
    QWidget *toolButtons();
    QWidget *checkBoxes();
    QWidget *radioButtons();
    QWidget *lineEdits();
    QWidget *textEdits();
    QWidget *comboBoxes();
    QWidget *spinBoxes();
    QWidget *dateEdits();
    QWidget *sliders();
    QWidget *dials();
    QWidget *progressBars();
    QWidget *scrollBars();
    QWidget *tabs();
    QWidget *groupBoxes();
    QWidget *labels();
    QWidget *lists();
    QWidget *trees();
    QWidget *tables();
    QWidget *calendars();
    QWidget *menus();
    QWidget *toolBoxes();
    QWidget *docks();
    QWidget *dialogButtons();
};
