#pragma once

#include <ZelWidgets/ZelMouseAction>
#include <ZelWidgets/zelwidgets_export.h>

#include <memory>

class ZelMouseActionSettingsPrivate;

/// The table of all mouse gestures of the 3-D views and the lists; it answers what a mouse event
/// means. A view asks with the event's data and acts on the action that comes back:
///
///     const auto *settings = ZelMouseActionSettings::instance();
///     const ZelMouseAction *action = settings->findAction(ZelMouseShortcut::Drag, buttons, keys);
///     if (action && action == settings->findById(QStringLiteral("cam#ctrl.bPan")))
///         pan(delta);
class ZELWIDGETS_EXPORT ZelMouseActionSettings
{
    Q_DECLARE_TR_FUNCTIONS(ZelMouseActionSettings)

public:
    /// Both make the table at first use; the registry of shortcuts has to exist.
    static const ZelMouseActionSettings *instance();
    static ZelMouseActionSettings *nonConstInstance();

    /// The first action that is on and has just this event, these buttons and these keys; of the
    /// keys only modifiers and the digits 1 and 2 count. Null if there is none.
    const ZelMouseAction *findAction(ZelMouseShortcut::MouseEventAction event,
                                     QFlags<Qt::MouseButton> buttons, QKeyCombination key) const;
    /// The same for the click of one button; null for several.
    const ZelMouseAction *findClickEvent(QFlags<Qt::MouseButton> buttons,
                                         const QKeyCombination &key) const;
    const ZelMouseAction *findById(const QString &id) const;

    /// What a plain drag with the left button is at present, on or off; null if the table says.
    const ZelMouseAction *getDefaultLeftMouseAction() const;
    /// Lets a tool take the plain left drag over; null gives it back.
    void setDefaultLeftMouseAction(const ZelMouseAction *action);
    /// Takes what the table says of a plain left drag, or tumbling.
    void autoSetDefaultMouseAction();
    /// What the table alone says of a plain left drag.
    const ZelMouseAction *getSettingsNonDefaultLeftMouseAction() const;

private:
    friend class ZelShortcutHandler;
    friend struct std::default_delete<ZelMouseActionSettings>;
    ZelMouseActionSettings();
    ~ZelMouseActionSettings();
    static ZelMouseActionSettings *existing();
    /// Announces all actions to a registry that doesn't know them yet.
    void registerAgain();

    std::unique_ptr<ZelMouseActionSettingsPrivate> d_;
};
