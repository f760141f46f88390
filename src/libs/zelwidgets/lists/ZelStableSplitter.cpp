#include "ZelStableSplitter.h"

#include "ZelStoredValue.h"

#include <QCursor>
#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace {

QString group()
{
    return QStringLiteral("ui");
}

QWidget *spacer(QWidget *parent)
{
    auto *spacer = new QWidget(parent);
    spacer->setFixedHeight(1);
    spacer->setContentsMargins(0, 0, 0, 0);
    return spacer;
}

} // namespace

ZelStableSplitter::ZelStableSplitter(QWidget *widget, Qt::Orientation orientation, QWidget *parent)
    : QSplitter(orientation, parent)
    , widget_(widget)
{
    setObjectName(QStringLiteral("ZelStableSplitter"));
    setContentsMargins(0, 0, 0, 0);
    setChildrenCollapsible(false);
    addWidget(spacer(this));
    addWidget(spacer(this));
    connect(this, &QSplitter::splitterMoved, this, &ZelStableSplitter::setWidgetSize);
    if (!widget)
        return;
    const int height = storedValue(ZelSettings(group()), settingsKey(), widget->height());
    const int screen = widget->screen()->availableGeometry().height();
    widget->setFixedHeight(std::clamp(height, 1, std::max(screen, 1)));
    widget->installEventFilter(this);
    remember();
}

ZelStableSplitter::~ZelStableSplitter()
{
    saveSplitterState();
}

QString ZelStableSplitter::settingsKey() const
{
    return objectName() + widget_->objectName() + QStringLiteral("height");
}

void ZelStableSplitter::saveSplitterState()
{
    remember();
    if (!key_.isEmpty())
        ZelSettings(group()).setValue(key_, height_);
}

void ZelStableSplitter::remember()
{
    if (!widget_)
        return;
    key_ = settingsKey();
    height_ = widget_->height();
}

bool ZelStableSplitter::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget_ && event->type() == QEvent::Resize)
        remember();
    return QSplitter::eventFilter(watched, event);
}

void ZelStableSplitter::setHeightRange(int minimum, int maximum)
{
    if (minimum < 1 || maximum < minimum || !widget_)
        return;
    minHeight_ = minimum;
    maxHeight_ = maximum;
    widget_->setFixedHeight(std::clamp(widget_->height(), minimum, maximum));
}

/// The widget's lower edge follows the cursor, which holds the middle of the splitter.
void ZelStableSplitter::setWidgetSize()
{
    if (!widget_ || !parentWidget())
        return;
    const int cursor = parentWidget()->mapFromGlobal(QCursor::pos()).y();
    const int wished = cursor - (geometry().center().y() - widget_->rect().bottom());
    const int height = std::clamp(wished, minHeight_, maxHeight_);
    if (height != widget_->height())
        widget_->setFixedHeight(height);
}
