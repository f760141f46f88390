#include "ZelMouseRecorder.h"

#include "ZelCheckBox.h"
#include "ZelComboBox.h"
#include "ZelGestureChoice.h"
#include "theme/KeyStateInformation.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

using Shortcut = ZelMouseShortcut;

constexpr Qt::KeyboardModifier modifiers[] = {Qt::AltModifier, Qt::ControlModifier,
                                              Qt::ShiftModifier};
constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
constexpr Qt::Key digits[] = {Qt::Key_unknown, Qt::Key_1, Qt::Key_2};

Qt::Key heldDigit()
{
    for (const Qt::Key key : {Qt::Key_1, Qt::Key_2}) {
        if (KeyStateInformation::isKeyDown(key))
            return key;
    }
    return Qt::Key_unknown;
}

Shortcut::MouseEventAction clickOf(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return Shortcut::LeftClick;
    case Qt::RightButton:
        return Shortcut::RightClick;
    case Qt::MiddleButton:
        return Shortcut::CentreClick;
    default:
        return Shortcut::None;
    }
}

} // namespace

ZelGesturePad::ZelGesturePad(QWidget *parent)
    : QFrame(parent)
    , label_(new QLabel(this))
{
    setObjectName(QStringLiteral("ShortcutGesturePad"));
    setFrameShape(QFrame::StyledPanel);
    label_->setAlignment(Qt::AlignCenter);
    label_->setWordWrap(true);
    label_->setAttribute(Qt::WA_TransparentForMouseEvents);
    setMinimumHeight(5 * fontMetrics().lineSpacing());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label_);
}

void ZelGesturePad::setCategory(ZelMouseAction::Category category)
{
    category_ = category;
    isClick_ = false;
}

void ZelGesturePad::setText(const QString &text)
{
    label_->setText(text);
}

void ZelGesturePad::record(Shortcut::MouseEventAction event, Qt::KeyboardModifiers modifiers,
                           Qt::MouseButtons buttons)
{
    if (!ZelGestureChoice::events(category_).contains(event))
        return;
    Q_EMIT recorded(ZelGestureChoice::normalized(
        {event, QKeyCombination(modifiers & ~Qt::KeypadModifier, heldDigit()), buttons}));
}

void ZelGesturePad::mousePressEvent(QMouseEvent *event)
{
    pressPosition_ = event->pos();
    isClick_ = event->buttons() == event->button();
}

void ZelGesturePad::mouseMoveEvent(QMouseEvent *event)
{
    const int distance = (event->pos() - pressPosition_).manhattanLength();
    if (!event->buttons() || distance < QApplication::startDragDistance())
        return;
    isClick_ = false;
    record(Shortcut::Drag, event->modifiers(), event->buttons());
}

void ZelGesturePad::mouseReleaseEvent(QMouseEvent *event)
{
    if (std::exchange(isClick_, false))
        record(clickOf(event->button()), event->modifiers());
}

void ZelGesturePad::mouseDoubleClickEvent(QMouseEvent *event)
{
    isClick_ = false;
    if (event->button() == Qt::LeftButton)
        record(Shortcut::DoubleClick, event->modifiers());
}

void ZelGesturePad::wheelEvent(QWheelEvent *event)
{
    record(Shortcut::Wheel, event->modifiers());
    event->accept();
}

void ZelGesturePad::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
}

ZelMouseRecorder::ZelMouseRecorder(QWidget *parent)
    : QWidget(parent)
    , pad_(new ZelGesturePad(this))
    , event_(new ZelComboBox(this))
    , digit_(new ZelComboBox(this))
{
    event_->setAccessibleName(tr("Mouse event"));
    digit_->setAccessibleName(tr("Held digit"));
    digit_->setToolTip(tr("A digit that is held as well; it needs a modifier or a drag"));
    digit_->addItems({tr("No digit"), tr("Digit 1"), tr("Digit 2")});
    auto *row = new QHBoxLayout;
    row->addWidget(event_);
    for (const QString &text : {tr("Alt"), tr("Ctrl"), tr("Shift")})
        row->addWidget(modifiers_.emplaceBack(addCheckBox(text)));
    row->addWidget(digit_);
    for (const QString &text : {tr("Left"), tr("Right"), tr("Middle")}) {
        row->addWidget(buttons_.emplaceBack(addCheckBox(text)));
        buttons_.last()->setAccessibleName(tr("%1 button").arg(text));
    }
    row->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(pad_, 1);
    layout->addLayout(row);
    connect(event_, &QComboBox::activated, this, &ZelMouseRecorder::readControls);
    connect(digit_, &QComboBox::activated, this, &ZelMouseRecorder::readControls);
    connect(pad_, &ZelGesturePad::recorded, this, &ZelMouseRecorder::take);
    setFocusProxy(event_);
}

QCheckBox *ZelMouseRecorder::addCheckBox(const QString &text)
{
    auto *box = new ZelCheckBox(text);
    connect(box, &QCheckBox::clicked, this, &ZelMouseRecorder::readControls);
    return box;
}

void ZelMouseRecorder::start(ZelMouseAction::Category category, const ZelMouseShortcut &gesture)
{
    const auto events = ZelGestureChoice::events(category);
    event_->clear();
    for (const auto event : events)
        event_->addItem(ZelGestureChoice::eventText(event), static_cast<int>(event));
    pad_->setCategory(category);
    gesture_ = events.contains(gesture.getEvent())
                   ? gesture
                   : ZelMouseShortcut(events.first(), Qt::NoModifier, Qt::NoButton);
    showGesture();
}

void ZelMouseRecorder::take(const ZelMouseShortcut &gesture)
{
    if (gesture == gesture_)
        return;
    gesture_ = gesture;
    showGesture();
    Q_EMIT recorded(gesture_);
}

void ZelMouseRecorder::readControls()
{
    const auto chosen = [](const QList<QCheckBox *> &boxes, const auto &values) {
        int bits = 0;
        for (int i = 0; i < boxes.size(); ++i)
            bits |= boxes[i]->isChecked() ? static_cast<int>(values[i]) : 0;
        return bits;
    };
    const auto event = static_cast<Shortcut::MouseEventAction>(event_->currentData().toInt());
    const Qt::KeyboardModifiers keys(chosen(modifiers_, ::modifiers));
    const Qt::MouseButtons held(chosen(buttons_, ::buttons));
    take(ZelGestureChoice::normalized(
        {event, QKeyCombination(keys, digits[qMax(0, digit_->currentIndex())]), held}));
    showGesture();
}

void ZelMouseRecorder::showGesture()
{
    const QKeyCombination key = gesture_.getKeyCombination();
    event_->setCurrentIndex(event_->findData(static_cast<int>(gesture_.getEvent())));
    for (int i = 0; i < modifiers_.size(); ++i)
        modifiers_[i]->setChecked(key.keyboardModifiers().testFlag(::modifiers[i]));
    const bool hasButtons = ZelGestureChoice::hasButtons(gesture_.getEvent());
    for (int i = 0; i < buttons_.size(); ++i) {
        buttons_[i]->setVisible(hasButtons);
        buttons_[i]->setChecked(gesture_.getMouseModifiers().testFlag(::buttons[i]));
    }
    digit_->setEnabled(key.keyboardModifiers() || gesture_.getMouseModifiers());
    digit_->setCurrentIndex(key.key() == Qt::Key_1 ? 1 : key.key() == Qt::Key_2 ? 2 : 0);
    const QString text = gesture_.publicShortcutText();
    pad_->setText(ZelGestureChoice::isComplete(gesture_)
                      ? tr("%1\nMake another gesture here, or choose it below.").arg(text)
                      : tr("Make the gesture here, or choose it below."));
}
