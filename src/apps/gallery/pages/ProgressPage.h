#pragma once

#include "GalleryPage.h"

#include <QPointer>
#include <QTimer>

#include <functional>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class ZelProgressDialog;
class ZelSplashWindow;

/// Progress dialogs on work by the clock, the observer dialog while a picture is computed, and the
/// splash window in each of its forms.
class ProgressPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ProgressPage(QWidget *parent = nullptr);

private:
    void addDialogs();
    void addObserver();
    void addSplash();
    QAbstractButton *createButton(const QString &text, const std::function<void()> &action);

    void startWork(bool hasTwoBars);
    void work();
    void endWork(const QString &result);

    void computePicture();

    void replaySplash();
    void advanceSplash();
    QPixmap ownPicture() const;

    QCheckBox *canCancel_ = nullptr;
    QCheckBox *closesItself_ = nullptr;
    QSpinBox *minimumDuration_ = nullptr;
    QPointer<ZelProgressDialog> dialog_;
    QTimer workTimer_;
    int step_ = 0;

    QCheckBox *observerCanCancel_ = nullptr;
    QAbstractButton *compute_ = nullptr;
    QLabel *picture_ = nullptr;

    QComboBox *splashType_ = nullptr;
    QCheckBox *splashLabel_ = nullptr;
    QLineEdit *legalLine_ = nullptr;
    QPointer<ZelSplashWindow> splash_;
    QTimer splashTimer_;
    int splashStep_ = 0;
};
