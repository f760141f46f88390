#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QObject>
#include <QString>

/// Something that the application has to tell: an icon, a tool tip and a priority. A
/// ZelNotificationList keeps actions in order and triggers them; the widget that shows the list
/// shows the visible ones.
///
///     auto *action = new ZelNotificationAction(icon, tr("Two textures are missing"), this);
///     action->setVisible(true);
///     connect(action, &ZelNotificationAction::triggered, this, &Panel::showTextures);
///     notifications->addAction(action);
///
/// The setters emit their signal once, and only if the value changes.
class ZELWIDGETS_EXPORT ZelNotificationAction : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon NOTIFY changed)
    Q_PROPERTY(QString toolTip READ toolTip WRITE setToolTip NOTIFY changed)
    Q_PROPERTY(int priority READ priority WRITE setPriority NOTIFY priorityChanged)
    Q_PROPERTY(bool visible READ isVisible WRITE setVisible NOTIFY changed)
    Q_PROPERTY(bool toggleState READ toggleState WRITE setToggleState NOTIFY changed)

public:
    enum Flag : int {
        NoFlag = 0,
        Toggle = 2 ///< Each trigger by a list turns the toggle state over.
    };
    Q_ENUM(Flag)

    ZelNotificationAction(const QIcon &icon, const QString &toolTip, QObject *parent = nullptr);

    QIcon icon() const { return icon_; }
    QString toolTip() const { return toolTip_; }
    /// A lower number comes first; 0 unless set.
    int priority() const { return priority_; }
    /// Whether the widget is to show it; false unless set.
    bool isVisible() const { return visible_; }
    bool toggleState() const { return toggleState_; }
    /// Whether all bits of the flag are set; for NoFlag whether none is.
    bool hasFlag(Flag flag) const;

    /// Icons are the same if their cache keys are.
    void setIcon(const QIcon &icon);
    void setToolTip(const QString &toolTip);
    void setPriority(int priority);
    void setVisible(bool visible);
    void setToggleState(bool on);
    void setFlag(Flag flag, bool on);

    /// Order by priority; false if one of the pointers is null.
    static bool priorityLessThan(const ZelNotificationAction *left,
                                 const ZelNotificationAction *right);

Q_SIGNALS:
    /// Emitted by ZelNotificationList::trigger().
    void triggered();
    /// Anything but the priority changed.
    void changed();
    void priorityChanged();

private:
    QString toolTip_;
    QIcon icon_;
    int flags_ = NoFlag;
    int priority_ = 0;
    bool visible_ = false;
    bool toggleState_ = false;
};
