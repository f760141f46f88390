#pragma once

#include <ZelWidgets/ZelGradientStop>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QWidget>

class ZelColorWidget;
class ZelDoubleSliderEdit;
class ZelGradient;
class ZelGradientDisplay;
class ZelToolButton;

/// The whole editor of a gradient: its bar, buttons that add and delete stops, and color,
/// brightness and opacity of the selected stop.
///
///     auto *view = new ZelGradientView(nullptr);
///     view->setGradient(&gradient);
///     connect(view, &ZelGradientView::gradientChanged, this, &Panel::render);
///
/// It edits the gradient directly and keeps no state of its own; several views on one gradient stay
/// in step. Without a gradient, or after its gradient is gone, its controls do nothing.
class ZELWIDGETS_EXPORT ZelGradientView : public QWidget
{
    Q_OBJECT

public:
    /// The extra widget stands at the bottom and becomes part of the view; it may be null. It is
    /// enabled while a stop is selected.
    explicit ZelGradientView(QWidget *extra);
    ~ZelGradientView() override;

    ZelGradient *gradient() const;
    /// Doesn't take ownership. A gradient without a selected stop gets its first one selected, a
    /// color stop if it has any.
    void setGradient(ZelGradient *gradient);

Q_SIGNALS:
    /// After each edit made here.
    void gradientChanged();

private Q_SLOTS:
    void alphaChanged();
    void gainChanged();
    void colorChanged();
    void addColorStop();
    void addAlphaStop();
    void deleteStop();
    void smoothStop();
    void editStopColor(ZelGradientStop stop);
    void selectionChanged();
    void pull();

private:
    void makeControls();
    void makeLayout();
    void makeConnections();
    void selectFirstStop();
    void cancelColorDialog();
    ZelGradientStop selected() const;
    ZelGradientStop selectedColorStop() const;

    QPointer<ZelGradient> gradient_;
    ZelGradientDisplay *display_;
    ZelDoubleSliderEdit *opacityEdit_;
    ZelDoubleSliderEdit *brightnessEdit_;
    ZelColorWidget *colorWidget_;
    ZelToolButton *deleteButton_;
    ZelToolButton *addStopButton_;
    ZelToolButton *addOpacityStopButton_;
    ZelToolButton *smoothButton_;
    QPointer<QWidget> extra_;
    /// The last one that took a color; the first color comes back to it when the dialog is closed.
    ZelGradientStop editedStop_;
    bool isCancelling_ = false;
    float alpha_ = 0;
    float gain_ = 0;
};
