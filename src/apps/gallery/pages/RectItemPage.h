#pragma once

#include "GalleryPage.h"

class QGridLayout;
class QLabel;
class QSpinBox;

/// A rectangle that is dragged over a picture and snaps to its corners and edges.
class RectItemPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit RectItemPage(QWidget *parent = nullptr);

private:
    class Stage;

    void addControls();
    void addPositions(QGridLayout *grid);
    QSpinBox *addNumber(QGridLayout *grid, int row, const QString &text, int value);
    void allow(int position, bool allowed);
    void applyNumbers();
    void showPlace();

    Stage *stage_;
    QLabel *place_ = nullptr;
    QSpinBox *border_ = nullptr;
    QSpinBox *distance_ = nullptr;
    int allowed_ = 127;
    int shownSnap_ = 0;
};
