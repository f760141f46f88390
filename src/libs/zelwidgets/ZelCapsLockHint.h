#pragma once

#include <QObject>
#include <QPointer>

#include <optional>

class QAction;
class QKeyEvent;
class QLineEdit;
class QString;

/// Tells in a password field that Caps Lock is on: a sign at the end of the field, a tool tip and
/// the accessible description. Belongs to the field.
///
/// The state is read from the field's own key events, so it is known from the first key on (the
/// release of the Tab key that brought the focus is one). Where the platform puts no lock keys into
/// its key events nothing is ever shown.
class ZelCapsLockHint : public QObject
{
    Q_OBJECT

public:
    explicit ZelCapsLockHint(QLineEdit *field);

    /// Whether Caps Lock is on once the event has passed; nothing if the event doesn't tell on this
    /// platform (QGuiApplication::platformName()).
    static std::optional<bool> stateAfter(const QKeyEvent &event, const QString &platform);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showHint(bool on);

    QLineEdit *field_;
    QPointer<QAction> sign_;
};
