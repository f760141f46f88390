#pragma once

#include "GalleryPage.h"

#include <QList>

class QAbstractButton;
class QGridLayout;
class ZelMenuButton;
class ZelToolButton;

/// The button family: each class in each state, rank and dimension.
class ButtonsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ButtonsPage(QWidget *parent = nullptr);

private:
    void addStates();
    void addRanks();
    void addIconSizes();
    void addIconAlone();
    void addMenus();
    void addMenuButtons();
    void addSwitches();
    void addBoundBoxes();
    void addOtherBoxes();

    QGridLayout *addTable(const QString &title, const QString &explanation,
                          const QStringList &columns);
    void addRow(QGridLayout *table, const QString &title, const QList<QWidget *> &cells);
    template <typename Make>
    void addStateRow(QGridLayout *table, const QString &title, Make make);
    ZelMenuButton *materialButton(const QString &name);
    QWidget *boundBox(const QString &text, bool *value);

    // What the bound check boxes write to.
    bool shadows_ = true;
    bool reflections_ = false;
};
