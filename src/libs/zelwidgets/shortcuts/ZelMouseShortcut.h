#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCoreApplication>
#include <QKeyCombination>
#include <QMetaType>
#include <QString>

/// A mouse gesture: an event, the keys that are held with it, and the buttons that are held.
///
/// Its text form is what settings and exchange files hold, for example "!#MD#LMB#!#" for a drag
/// with the left button.
class ZELWIDGETS_EXPORT ZelMouseShortcut
{
    Q_DECLARE_TR_FUNCTIONS(ZelMouseShortcut)

public:
    enum MouseEventAction : int {
        LeftClick = 0,
        RightClick = 1,
        CentreClick = 2,
        DoubleClick = 3,
        Wheel = 4,
        Drag = 5,
        None = 6 ///< no gesture
    };

    /// No gesture.
    ZelMouseShortcut() = default;
    /// The key part is Qt::Key_unknown where no key is meant.
    ZelMouseShortcut(MouseEventAction event, const QKeyCombination &key,
                     QFlags<Qt::MouseButton> buttons);
    ZelMouseShortcut(MouseEventAction event, QFlags<Qt::KeyboardModifier> modifiers,
                     QFlags<Qt::MouseButton> buttons);

    MouseEventAction getEvent() const { return event_; }
    QKeyCombination getKeyCombination() const { return key_; }
    /// The buttons held; for a drag, those that drag.
    QFlags<Qt::MouseButton> getMouseModifiers() const { return mouseModifiers_; }

    /// True if a plain click of this button is of this gesture's kind and the keys hold nothing but
    /// Shift, Control and Alt; which of them the gesture wants isn't compared.
    bool clickMatch(Qt::MouseButton button, const QKeyCombination &key) const;
    /// True if the gesture's buttons are the left, right and middle ones of these, and the keys
    /// hold nothing but Shift, Control and Alt.
    bool modiferMatch(const QKeyCombination &key, QFlags<Qt::MouseButton> buttons) const;

    /// A held key of a gesture with neither modifier nor button is lost.
    QString exportToString() const;
    /// What users see, in the platform's words; empty for no gesture.
    QString publicShortcutText() const;

    /// Unknown parts are skipped, with a debug message; a text without a known event gives no
    /// gesture.
    static ZelMouseShortcut buildFromExportedString(const QString &text);
    /// Whether the text is of the form of exportToString().
    static bool isMouseShortcut(const QString &text);
    /// Whether two such texts stand for one gesture.
    static bool likelyConflict(const QString &a, const QString &b);

    friend bool operator==(const ZelMouseShortcut &, const ZelMouseShortcut &) = default;

private:
    void sanityCheck() const;

    MouseEventAction event_ = None;
    QKeyCombination key_ = QKeyCombination(Qt::NoModifier, Qt::Key_unknown);
    QFlags<Qt::MouseButton> mouseModifiers_ = Qt::NoButton;
};

Q_DECLARE_METATYPE(ZelMouseShortcut)
