#pragma once

#include "ViewCtrl.h"

#include <QWidget>

class QComboBox;

/// Chooses the preset of the camera. A choice is in force at once, and taken back by restore().
class ZelViewModeChoice : public QWidget
{
    Q_OBJECT

public:
    explicit ZelViewModeChoice(QWidget *parent = nullptr);

    void setNames(const QStringList &names);
    bool isChanged() const;
    /// Shows the mode in force, which others may have set.
    void refresh();
    /// Others have set the mode, or its gestures, on behalf of the user.
    void touch() { isTouched_ = true; }
    /// What is in force is what restore() comes back to.
    void remember();
    void store();
    void restore();

Q_SIGNALS:
    void chosen();

private:
    void choose(int row);

    QComboBox *box_;
    ViewCtrl::ViewMode mode_;
    ViewCtrl::DollyMouseMode dolly_;
    bool isTouched_ = false;
};
