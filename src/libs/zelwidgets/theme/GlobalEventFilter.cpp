#include "GlobalEventFilter.h"

#include "GlobalEventFilterPrivate.h"
#include "ModalWindowPlacement.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFocusFrame>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QWidget>

namespace {

constexpr int expectedThemeChangeEvents = 1500;
constexpr int eventsPerSignal = 16;

enum SeenMark : uint { PaletteSeen = 1, StyleSeen = 2 };

uint seenMarkOf(QEvent::Type type)
{
    switch (type) {
    case QEvent::StyleChange:
        return StyleSeen;
    case QEvent::PaletteChange:
        return PaletteSeen;
    default:
        return 0;
    }
}

QWidget *asWidget(QObject *object)
{
    return object->isWidgetType() ? static_cast<QWidget *>(object) : nullptr;
}

void sizeIfToolTip(QObject *object)
{
    auto *label = qobject_cast<QLabel *>(object);
    if (label && label->objectName() == QLatin1String("qtooltip_label"))
        GlobalEventFilterPrivate::sizeToolTip(label);
}

enum class PaintCare { None, SpinBox, FocusFrame };

// One walk for both classes, as every paint event comes here.
PaintCare paintCareOf(const QObject *object)
{
    const QMetaObject *type = object->metaObject();
    for (; type && type != &QWidget::staticMetaObject; type = type->superClass()) {
        if (type == &QAbstractSpinBox::staticMetaObject)
            return PaintCare::SpinBox;
        if (type == &QFocusFrame::staticMetaObject)
            return PaintCare::FocusFrame;
    }
    return PaintCare::None;
}

// True if the object must not be painted.
bool handlePaint(QObject *object, QEvent *event)
{
    switch (paintCareOf(object)) {
    case PaintCare::None:
        return false;
    case PaintCare::SpinBox:
        GlobalEventFilterPrivate::prepareSpinBoxForFirstPaint(object);
        return false;
    case PaintCare::FocusFrame:
        event->accept();
        return true;
    }
    return false;
}

} // namespace

GlobalEventFilter *GlobalEventFilter::instance()
{
    QCoreApplication *application = QCoreApplication::instance();
    if (!application)
        return nullptr;
    auto *filter =
        application->findChild<GlobalEventFilter *>(QString(), Qt::FindDirectChildrenOnly);
    return filter ? filter : new GlobalEventFilter;
}

GlobalEventFilter::GlobalEventFilter()
    : QObject(QCoreApplication::instance())
    , d_(std::make_unique<GlobalEventFilterPrivate>())
{
    if (parent())
        parent()->installEventFilter(this);
}

GlobalEventFilter::~GlobalEventFilter() = default;

void GlobalEventFilter::setStyleChangeMode(bool on, bool skipFontChanges)
{
    changeThemeProgressCount_ = 0;
    styleChangeMode_ = on;
    if (on)
        skipFontChanges_ = skipFontChanges;
}

int GlobalEventFilter::changeThemeProgressCount() const
{
    return changeThemeProgressCount_;
}

int GlobalEventFilter::estiamteOnThemeChangeProgressObjects() const
{
    return expectedThemeChangeEvents;
}

bool GlobalEventFilter::eventFilter(QObject *object, QEvent *event)
{
    if (styleChangeMode_) {
        return handleThemeChangeEventAndReturnIfEventCanBeSkipped(object, event) ||
               QObject::eventFilter(object, event);
    }
    switch (event->type()) {
    case QEvent::TouchBegin:
        d_->trackPadTouched_ = true;
        break;
    case QEvent::TouchEnd:
        d_->trackPadTouched_ = false;
        break;
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton && asWidget(object))
            d_->leftButtonPressed(asWidget(object));
        break;
    case QEvent::Show:
        if (QWidget *widget = asWidget(object)) {
            d_->watchOpenedPopup(widget, this);
            ModalWindowPlacement::placeShownWindow(widget);
            sizeIfToolTip(object);
        }
        break;
    case QEvent::Move:
        // A tip that is shown already is moved when it takes another text.
        sizeIfToolTip(object);
        break;
    case QEvent::Hide:
        d_->repairStuckHover(object);
        break;
    case QEvent::Paint:
        if (handlePaint(object, event))
            return true;
        break;
    case QEvent::KeyRelease:
        d_->keyWentUp(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyPress:
        d_->keyWentDown(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::ShortcutOverride: {
        const auto *keyEvent = static_cast<QKeyEvent *>(event);
        d_->keyWentDown(*keyEvent);
        if (d_->isEditingKey(keyEvent->key(), QApplication::focusWidget())) {
            event->accept();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QObject::eventFilter(object, event);
}

bool GlobalEventFilter::handleThemeChangeEventAndReturnIfEventCanBeSkipped(QObject *object,
                                                                           QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::FontChange && skipFontChanges_)
        return true;
    if (const QWidget *widget = asWidget(object)) {
        if (!widget->isVisible())
            return true;
        const uint mark = seenMarkOf(type);
        if (mark && widget->styleSheet().isEmpty()) {
            uint &seen = seenMarks_[object];
            if (seen & mark)
                return true;
            seen |= mark;
        }
    }
    if (type != QEvent::FontChange)
        ++changeThemeProgressCount_;
    if (type == QEvent::Paint || type == QEvent::UpdateRequest)
        return false;
    if (changeThemeProgressCount_ % eventsPerSignal == 0)
        Q_EMIT themeChangedProgress();
    return false;
}

bool GlobalEventFilter::isKeyDown(int key) const
{
    return d_->keysDown_.contains(key);
}

bool GlobalEventFilter::isTrackPadTouched() const
{
    return d_->trackPadTouched_;
}

std::unique_ptr<QKeyEvent> GlobalEventFilter::lastKeyPress() const
{
    return std::unique_ptr<QKeyEvent>(d_->lastKeyPress_->clone());
}

std::unique_ptr<QKeyEvent> GlobalEventFilter::lastKeyRelease() const
{
    return std::unique_ptr<QKeyEvent>(d_->lastKeyRelease_->clone());
}
