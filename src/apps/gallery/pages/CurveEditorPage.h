#pragma once

#include "GalleryPage.h"

class CurveHistory;
class CurveStrip;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class ZelBezierCurveModel;
class ZelCurveView2;
struct ZelCurveView2Style;

/// The curve editor with two curves, all decorators, context actions, navigation and undo.
class CurveEditorPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit CurveEditorPage(QWidget *parent = nullptr);
    ~CurveEditorPage() override;

    void lookChanged() override;

protected:
    void showEvent(QShowEvent *event) override;

private:
    void fillCurves();
    void addControls(QVBoxLayout *section);
    void addHistoryButtons(QHBoxLayout *row);
    void addView(QVBoxLayout *section);
    void addContextActions();
    void applyStyle();
    void addDecorators();
    void addRuler();
    void addTimeMarker();
    ZelBezierCurveModel *curveNear(const QPointF &position) const;

    ZelBezierCurveModel *tone_;
    ZelBezierCurveModel *falloff_;
    CurveHistory *history_ = nullptr;
    ZelCurveView2 *view_ = nullptr;
    CurveStrip *strip_ = nullptr;
    QComboBox *looks_ = nullptr;
    QCheckBox *navigation_ = nullptr;
    QCheckBox *decorated_ = nullptr;
};
