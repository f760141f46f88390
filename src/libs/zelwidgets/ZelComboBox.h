#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QComboBox>

/// A combo box for panels that scroll: the plain wheel is left to the panel, Control and the wheel
/// change the choice. The pop-up has neither a frame nor a shadow of the window system.
class ZELWIDGETS_EXPORT ZelComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit ZelComboBox(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    void showPopup() override;

Q_SIGNALS:
    /// Emitted before the pop-up comes up, whoever asked for it; the place to fill the list.
    void aboutToPopup();

protected:
    void wheelEvent(QWheelEvent *event) override;
};
