#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QMap>
#include <QObject>

#include <memory>

class QKeyEvent;
class QWidget;

/// The event filter that every event of the application passes first.
///
/// It keeps the state of keys and track pad (see KeyStateInformation), throttles the flood of
/// style, palette and font events while a style sheet goes in, keeps modal dialogs from coming up
/// under always-on-top windows, and corrects some behaviour of Qt: tool tips, focus frames, stuck
/// hover states, editing keys against shortcuts.
///
/// There is one object, a child of the application object; it needs no set-up.
class ZELWIDGETS_EXPORT GlobalEventFilter : public QObject
{
    Q_OBJECT

public:
    /// The filter of the application, made at the first call; null if there is no application.
    static GlobalEventFilter *instance();
    ~GlobalEventFilter() override;

    /// Switches the throttle for a change of the style sheet. While it is on, hidden widgets get no
    /// events at all, and a visible widget without a style sheet of its own gets its StyleChange
    /// and its PaletteChange once in the life of the process. With skipFontChanges no FontChange
    /// passes either. Each call starts the count of events anew.
    void setStyleChangeMode(bool on, bool skipFontChanges);
    /// Events that passed since the last setStyleChangeMode().
    int changeThemeProgressCount() const;
    /// How many events a change of the whole theme is expected to take.
    int estiamteOnThemeChangeProgressObjects() const;

Q_SIGNALS:
    /// Emitted at every 16th counted event while the style sheet goes in, from within that event:
    /// a slot may repaint, but must not run an event loop.
    void themeChangedProgress();

protected:
    GlobalEventFilter();

    bool eventFilter(QObject *object, QEvent *event) override;
    bool handleThemeChangeEventAndReturnIfEventCanBeSkipped(QObject *object, QEvent *event);

    bool isKeyDown(int key) const;
    bool isTrackPadTouched() const;
    std::unique_ptr<QKeyEvent> lastKeyPress() const;
    std::unique_ptr<QKeyEvent> lastKeyRelease() const;

private:
    friend class KeyStateInformation;

    QMap<QObject *, uint> seenMarks_;
    bool styleChangeMode_ = false;
    bool skipFontChanges_ = false;
    int changeThemeProgressCount_ = 0;
    std::unique_ptr<class GlobalEventFilterPrivate> d_;
};
