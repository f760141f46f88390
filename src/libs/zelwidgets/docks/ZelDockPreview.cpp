#include "ZelDockPreview.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace {

constexpr int borderWidth = 2;
constexpr int textMargin = 10;
constexpr double placeOpacity = 0.35;

void installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory([](const QString &name, QObject *object) {
            const bool isOwn = name == QLatin1String("ZelDockPreview");
            return static_cast<QAccessibleInterface *>(
                isOwn ? new QAccessibleWidget(static_cast<QWidget *>(object),
                                              QAccessible::AlertMessage)
                      : nullptr);
        });
        return true;
    }();
    Q_UNUSED(installed);
}

} // namespace

ZelDockPreview::ZelDockPreview(QWidget *window)
    : QWidget(window)
{
    installFactory();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void ZelDockPreview::tell(const QRect &place, const QString &message)
{
    place_ = place;
    message_ = message;
    setGeometry(parentWidget()->rect());
    raise();
    show();
    update();
    setAccessibleName(message);
    // Speech reads the name of what has the focus, and what is announced.
    QAccessibleEvent focus(this, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void ZelDockPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setOpacity(placeOpacity);
    painter.fillRect(place_, palette().highlight());
    painter.setOpacity(1);
    // The highlight of a light theme may be too faint for a line.
    painter.setPen(QPen(palette().color(QPalette::WindowText), borderWidth));
    painter.drawRect(place_.adjusted(1, 1, -1, -1));

    const QRect room = rect().adjusted(textMargin, textMargin, -textMargin, -textMargin);
    const int flags = Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap;
    const QRect text = painter.boundingRect(
        room.adjusted(textMargin, textMargin, -textMargin, -textMargin), flags, message_);
    const QRect plate = text.adjusted(-textMargin, -textMargin, textMargin, textMargin);
    painter.fillRect(plate, palette().color(QPalette::Window));
    painter.drawRect(plate);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(text, flags, message_);
}
