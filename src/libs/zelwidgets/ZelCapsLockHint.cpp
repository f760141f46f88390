#include "ZelCapsLockHint.h"

#include <QAction>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStyle>
#include <QToolTip>

namespace {

/// The lock bit in the modifiers of X11 and of Wayland's key maps.
constexpr quint32 lockMask = 0x2;

} // namespace

ZelCapsLockHint::ZelCapsLockHint(QLineEdit *field)
    : QObject(field)
    , field_(field)
{
    field->installEventFilter(this);
}

std::optional<bool> ZelCapsLockHint::stateAfter(const QKeyEvent &event, const QString &platform)
{
    if (platform != QLatin1String("xcb") && !platform.startsWith(QLatin1String("wayland")))
        return std::nullopt;
    const bool wasOn = event.nativeModifiers() & lockMask;
    if (event.key() != Qt::Key_CapsLock)
        return wasOn;
    // The modifiers are those before the event. The press turns the lock on; while it is on, the
    // release turns it off, so what the press told stands.
    if (event.type() == QEvent::KeyPress && !event.isAutoRepeat())
        return !wasOn;
    return std::nullopt;
}

bool ZelCapsLockHint::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != field_)
        return false;
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        const auto state =
            stateAfter(*static_cast<QKeyEvent *>(event), QGuiApplication::platformName());
        if (state)
            showHint(*state);
    } else if (event->type() == QEvent::FocusOut) {
        showHint(false);
    }
    return false;
}

void ZelCapsLockHint::showHint(bool on)
{
    if (on == !sign_.isNull())
        return;
    if (!on) {
        delete sign_;
        field_->setAccessibleDescription(QString());
        QToolTip::hideText();
        return;
    }
    const QString text = tr("Caps Lock is on");
    sign_ = field_->addAction(
        field_->style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, field_),
        QLineEdit::TrailingPosition);
    sign_->setText(text);
    field_->setAccessibleDescription(text);
    // Beside the field, where it covers nothing of the dialog.
    QToolTip::showText(field_->mapToGlobal(QPoint(field_->width(), -field_->height() / 2)), text,
                       field_);
}
