#pragma once

#include <ZelCore/Quantity>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class QToolBar;
class ZelDoubleSliderEdit;
class ZelToolButton;
class ZelUnitManager;

/// A width and a height, of which one can follow the other by a locked aspect, height by width.
///
/// The numbers are the editor's own, both 1 at first. A single row for the size can stand for the
/// two: it is the width, and the height follows the aspect.
class ZELWIDGETS_EXPORT ZelSizeEdit : public QWidget
{
    Q_OBJECT

public:
    explicit ZelSizeEdit(QWidget *parent);
    ~ZelSizeEdit() override;

    float width() const { return width_; }
    float height() const { return height_; }
    bool isAspectLocked() const { return aspectLocked_; }

    /// Shows both numbers and emits nothing. The aspect is theirs from now on, unless the width is
    /// zero.
    void setSize(float width, float height);
    /// Gives the height that belongs to the width; emits sizeChanged(), unless the aspect is the
    /// present one. Not a number and the infinities are refused with a warning.
    void setAspect(double aspect);
    /// What resetAspect() and its button bring back; 1 at first.
    void setDefaultAspect(double aspect);
    /// Also locks the aspect.
    void resetAspect();
    void setAspectLocked(bool locked);
    /// Shows the row for the size alone; it needs the aspect, which is locked.
    void setShowSizeOnly(bool sizeOnly);
    void setSizeOnlyText(const QString &text);
    void setSizeText(const QString &width, const QString &height);
    void setQuantity(Quantity quantity);
    /// The manager isn't owned.
    void setUnit(const ZelUnitManager *manager);

Q_SIGNALS:
    /// The user changed a number, or the aspect was set: once, with both.
    void sizeChanged(float width, float height);
    void aspectLockChanged(bool lock);

private:
    ZelDoubleSliderEdit *addRow(const QString &text, float *number);
    QToolBar *makeToolBar();
    void sliderEditChanged(const ZelDoubleSliderEdit *row);
    void followAspect(const ZelDoubleSliderEdit *row);
    void computeAspect();
    void updateResetButton();
    void syncSliderRange();

    ZelToolButton *lockButton_;
    ZelToolButton *resetButton_;
    ZelDoubleSliderEdit *widthEdit_ = nullptr;
    ZelDoubleSliderEdit *heightEdit_ = nullptr;
    ZelDoubleSliderEdit *sizeEdit_ = nullptr;
    float width_ = 1;
    float height_ = 1;
    float size_ = 1;
    double aspect_ = 1;
    double defaultAspect_ = 1;
    bool showSizeOnly_ = false;
    bool aspectLocked_ = false;
    QToolBar *toolBar_;
};
