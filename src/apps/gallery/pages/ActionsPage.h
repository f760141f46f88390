#pragma once

#include "GalleryPage.h"

#include <memory>

class HotKeysDisableEnable;
class QCheckBox;
class QPushButton;
class QThread;
class ZelActionState;

/// Action states that menu, buttons and tool bar share, hot keys that are switched off and on, and
/// changes that come from a thread.
class ActionsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ActionsPage(QWidget *parent = nullptr);
    ~ActionsPage() override;

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void addShared();
    void addHotKeys();
    void addThread();
    QAction *createAction(ZelActionState *state, const QString &text, const char *icon);
    void switchHotKeys(bool on);
    void startThread();

    ZelActionState *grid_;
    ZelActionState *render_;
    QCheckBox *hotKeys_ = nullptr;
    std::unique_ptr<HotKeysDisableEnable> disabled_;
    std::unique_ptr<QThread> thread_;
};
