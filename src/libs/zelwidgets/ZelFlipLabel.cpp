#include "ZelFlipLabel.h"

#include "ZelAccessible.h"
#include "ZelStoredValue.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr int arrowSide = 8;
// Larger fonts have it lower, in the middle of their line.
constexpr int arrowTop = 4;
constexpr int heightWithArrow = 11;
constexpr int textStartWithArrow = 12;
constexpr int textStartAlone = 1;

} // namespace

ZelFlipLabel::ZelFlipLabel(const QString &text, bool open)
    : ZelFlipLabel(text, QString(), open)
{}

ZelFlipLabel::ZelFlipLabel(const QString &text, const QString &settingsKey, bool open)
    : text_(text)
    , settingsKey_(settingsKey)
    , isOpen_(storedValue(ZelSettings(), settingsKey, open))
{
    ZelAccessible::installFactory();
    setObjectName(QStringLiteral("ZelFlipLabel"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setContentsMargins(0, 0, 0, 0);
    setFocusPolicy(Qt::TabFocus);
    setProperty("open", isOpen_);
    setProperty("hover", false);
    setProperty("disabled", false);
}

ZelFlipLabel::~ZelFlipLabel()
{
    if (!settingsKey_.isEmpty())
        ZelSettings().setValue(settingsKey_, isOpen_);
}

bool ZelFlipLabel::isOpen() const
{
    return isOpen_;
}

QString ZelFlipLabel::text() const
{
    return text_;
}

void ZelFlipLabel::setOpen(bool open)
{
    if (open == isOpen_)
        return;
    isOpen_ = open;
    showState("open", open);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void ZelFlipLabel::setArrowVisible(bool visible)
{
    if (visible == isArrowVisible_)
        return;
    isArrowVisible_ = visible;
    updateGeometry();
    update();
}

void ZelFlipLabel::setDisabled(bool disabled)
{
    QWidget::setDisabled(disabled);
}

QSize ZelFlipLabel::sizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    const QSize text = metrics.boundingRect(text_).size();
    int height = std::max(text.height(), metrics.height());
    if (isArrowVisible_)
        height = std::max(height, heightWithArrow);
    return QSize(text.width() + textStart(), height);
}

QSize ZelFlipLabel::minimumSizeHint() const
{
    return QSize(textStart() + fontMetrics().horizontalAdvance(QChar(0x2026)), sizeHint().height());
}

int ZelFlipLabel::textStart() const
{
    return isArrowVisible_ ? textStartWithArrow : textStartAlone;
}

void ZelFlipLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
    if (isArrowVisible_)
        paintArrow(painter);
    const QFontMetrics metrics = fontMetrics();
    const int start = textStart();
    const QString shown =
        metrics.boundingRect(text_).width() > width() - start
            ? metrics.elidedText(text_, Qt::ElideRight, std::max(0, width() - start))
            : text_;
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const int x = isMirrored ? width() - start - metrics.horizontalAdvance(shown) : start;
    painter.drawText(x, metrics.ascent(), shown);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Active, QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void ZelFlipLabel::paintArrow(QPainter &painter)
{
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    const QString closed = isMirrored ? QStringLiteral(":ui/widgetIcons/arrow_left.zelsvg")
                                      : QStringLiteral(":ui/widgetIcons/arrow_right.zelsvg");
    const QString name = isOpen_ ? QStringLiteral(":ui/widgetIcons/arrow_down.zelsvg") : closed;
    if (arrow_.iconName() != name)
        arrow_ = ZelStyleIcon(name);
    ZelStyleIcon icon = arrow_;
    if (!isEnabled())
        icon = icon.disabled();
    else if (isHovered_)
        icon = icon.hover();
    const int x = isMirrored ? width() - arrowSide : 0;
    const int y = std::max(arrowTop, (fontMetrics().height() - arrowSide) / 2);
    icon.paint(&painter, x, y, arrowSide, arrowSide);
}

void ZelFlipLabel::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
    else
        QWidget::mousePressEvent(event);
}

void ZelFlipLabel::keyPressEvent(QKeyEvent *event)
{
    const bool isPress = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                         event->key() == Qt::Key_Enter;
    if (!isPress) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!event->isAutoRepeat())
        Q_EMIT clicked();
}

void ZelFlipLabel::enterEvent(QEnterEvent *)
{
    setHovered(true);
}

void ZelFlipLabel::leaveEvent(QEvent *)
{
    setHovered(false);
}

void ZelFlipLabel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange)
        showState("disabled", !isEnabled());
    else if (event->type() == QEvent::FontChange)
        updateGeometry();
}

void ZelFlipLabel::setHovered(bool hovered)
{
    if (hovered == isHovered_)
        return;
    isHovered_ = hovered;
    showState("hover", hovered);
}

void ZelFlipLabel::showState(const char *property, bool value)
{
    setProperty(property, value);
    style()->unpolish(this);
    style()->polish(this);
    update();
}
