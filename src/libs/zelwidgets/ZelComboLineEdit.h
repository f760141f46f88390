#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>

class QComboBox;
class QMouseEvent;

/// The text of a combo box as a surface that opens the pop-up: a click anywhere on the combo box
/// is a click on its arrow. A click while the pop-up is open closes it and doesn't open it again.
class ZELWIDGETS_EXPORT ZelComboLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// Makes itself the line edit of the combo box, which owns it from then on.
    explicit ZelComboLineEdit(QComboBox *combo);
    ~ZelComboLineEdit() override;

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    class ClickFilter;

    QComboBox *combo_;
    ClickFilter *filter_ = nullptr;
};
