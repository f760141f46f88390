#include "GlobalEventFilterPrivate.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTimer>

#include <array>

namespace {

constexpr int popupDelayMs = 500;
constexpr int popupWatchMs = 15;
constexpr int toolTipMargin = 20;
constexpr int toolTipPadding = 12;
constexpr const char *paintedProperty = "isPainted";

std::unique_ptr<QKeyEvent> noKeyEvent()
{
    return std::make_unique<QKeyEvent>(QEvent::None, 0, Qt::NoModifier);
}

bool isPlainModifier(int key)
{
    constexpr std::array modifiers{Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_AltGr};
    return std::find(modifiers.begin(), modifiers.end(), key) != modifiers.end();
}

} // namespace

GlobalEventFilterPrivate::GlobalEventFilterPrivate()
    : lastKeyPress_(noKeyEvent())
    , lastKeyRelease_(noKeyEvent())
{}

GlobalEventFilterPrivate::~GlobalEventFilterPrivate() = default;

void GlobalEventFilterPrivate::keyWentDown(const QKeyEvent &event)
{
    keysDown_.insert(event.key());
    if (!isPlainModifier(event.key()))
        lastKeyPress_.reset(event.clone());
}

void GlobalEventFilterPrivate::keyWentUp(const QKeyEvent &event)
{
    keysDown_.remove(event.key());
    lastKeyRelease_.reset(event.clone());
}

void GlobalEventFilterPrivate::leftButtonPressed(QWidget *widget)
{
    lastLeftPress_.restart();
    lastLeftPressed_ = widget;
}

bool GlobalEventFilterPrivate::isOpenedByPress(const QWidget &shown, qint64 msSincePress)
{
    constexpr int windowOrPopup = 9;
    return shown.isWindow() && (shown.windowFlags().toInt() & windowOrPopup) &&
           msSincePress < popupDelayMs;
}

void GlobalEventFilterPrivate::watchOpenedPopup(QWidget *shown, QObject *context)
{
    if (!lastLeftPressed_ || !lastLeftPress_.isValid() ||
        !isOpenedByPress(*shown, lastLeftPress_.elapsed()))
        return;
    QTimer::singleShot(popupWatchMs, context, [this, popup = QPointer<QWidget>(shown)] {
        hoverToClear_ = lastLeftPressed_;
        openedPopup_ = popup;
    });
}

void GlobalEventFilterPrivate::repairStuckHover(const QObject *hidden)
{
    if (openedPopup_.data() != hidden || !hoverToClear_)
        return;
    if (QApplication::widgetAt(QCursor::pos()) == hoverToClear_)
        return;
    const QPointF outside(-1.0, -1.0);
    QMouseEvent leave(QEvent::Leave, outside, hoverToClear_->mapToGlobal(outside), Qt::LeftButton,
                      Qt::NoButton, Qt::NoModifier, QPointingDevice::primaryPointingDevice());
    QCoreApplication::sendEvent(hoverToClear_, &leave);
    hoverToClear_.clear();
}

bool GlobalEventFilterPrivate::isEditingKey(int key, const QWidget *focusWidget)
{
    const bool isSpinBox = qobject_cast<const QAbstractSpinBox *>(focusWidget) != nullptr;
    switch (key) {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return isSpinBox || qobject_cast<const QLineEdit *>(focusWidget);
    case Qt::Key_Up:
    case Qt::Key_Down:
        return isSpinBox;
    default:
        return false;
    }
}

void GlobalEventFilterPrivate::prepareSpinBoxForFirstPaint(QObject *spinBox)
{
    if (spinBox->property(paintedProperty).isValid())
        return;
    spinBox->setProperty(paintedProperty, true);
    if (auto *lineEdit = spinBox->findChild<QLineEdit *>()) {
        QEvent screenChange(QEvent::ScreenChangeInternal);
        QCoreApplication::sendEvent(lineEdit, &screenChange);
    }
}

void GlobalEventFilterPrivate::sizeToolTip(QLabel *label)
{
    const QFontMetrics metrics = label->fontMetrics();
    label->setFixedWidth(metrics.horizontalAdvance(label->text()) + toolTipMargin);
    label->setFixedHeight(metrics.capHeight() + toolTipPadding);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
}
