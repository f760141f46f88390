#pragma once

#include "GalleryPage.h"

#include <QList>

class GestureView;
class QCheckBox;
class QComboBox;
class QLabel;
class QTreeWidget;
class ZelMouseAction;
class ZelMouseShortcut;

/// What the mouse means in a 3-D view: a viewport that names the action of each event, a gesture
/// put together by hand, and the table for each preset of the camera.
class MouseGesturesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MouseGesturesPage(QWidget *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addView();
    void addPicker();
    void addTable();
    QCheckBox *createCheck(const QString &name, const QString &accessibleName);
    ZelMouseShortcut pickedGesture() const;
    void showPicked();
    void showMade(const ZelMouseShortcut &gesture, const ZelMouseAction *action);
    void chooseMode(int mode);
    void fillTable();

    GestureView *view_ = nullptr;
    QComboBox *event_ = nullptr;
    QComboBox *digit_ = nullptr;
    QList<QCheckBox *> modifiers_;
    QList<QCheckBox *> buttons_;
    QLabel *found_ = nullptr;
    QComboBox *mode_ = nullptr;
    QTreeWidget *table_ = nullptr;
};
