#pragma once

#include "GalleryPage.h"

#include <ZelWidgets/ZelNotificationAction>
#include <ZelWidgets/ZelNotificationList>

#include <QPointer>

#include <functional>

class NotificationStrip;
class QAbstractButton;
class QCheckBox;
class QLabel;
class QListWidget;
class QSpinBox;

/// The notification list behind a strip of buttons: actions come and go, change their priority, are
/// triggered, die and are pruned.
class NotificationsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit NotificationsPage(QWidget *parent = nullptr);

private:
    void addStrip();
    void addEntries();
    QWidget *createProperties();
    QAbstractButton *createButton(const QString &text, const std::function<void()> &slot);
    ZelNotificationAction *addAction(const QString &icon, const QString &toolTip, int priority);
    /// Adds the next of a few sample actions.
    void addSample();
    void select(int row);
    void refresh();

    ZelNotificationList list_;
    int samples_ = 0;
    QPointer<ZelNotificationAction> current_;
    NotificationStrip *strip_ = nullptr;
    QListWidget *entries_ = nullptr;
    QLabel *count_ = nullptr;
    QWidget *properties_ = nullptr;
    QSpinBox *priority_ = nullptr;
    QCheckBox *visible_ = nullptr;
    QCheckBox *toggle_ = nullptr;
    QList<QAbstractButton *> needCurrent_;
};
