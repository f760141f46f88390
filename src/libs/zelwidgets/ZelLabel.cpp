#include "ZelLabel.h"

#include <QHelpEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QTextDocument>
#include <QTextOption>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int narrowWidth = 25;
constexpr int shortText = 10;
constexpr int greatestHeight = 1000;
constexpr int widthOfOneLine = 8000;
// A label paints no more of its text than this; it also bounds the time that eliding takes.
constexpr int longestElided = 10000;

bool changesTheText(QEvent::Type type)
{
    return type == QEvent::Resize || type == QEvent::StyleChange ||
           type == QEvent::ScreenChangeInternal || type == QEvent::FontChange;
}

} // namespace

ZelLabel::ZelLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextInteractionFlags(Qt::NoTextInteraction);
}

ZelLabel::ZelLabel(const QString &text)
    : ZelLabel(static_cast<QWidget *>(nullptr))
{
    setText(text);
}

ZelLabel *ZelLabel::makeBold(const QString &text)
{
    auto *label = new ZelLabel(text);
    label->setBold(true);
    return label;
}

void ZelLabel::enableCustomWordWrap(bool enable)
{
    setWordWrap(enable);
    hasCustomWordWrap_ = enable;
    setSizePolicy(enable ? QSizePolicy::Ignored : QSizePolicy::Preferred,
                  enable ? QSizePolicy::Minimum : QSizePolicy::Preferred);
}

void ZelLabel::setElideMode(bool elide)
{
    if (elide == isElided_)
        return;
    isElided_ = elide;
    QSizePolicy policy = sizePolicy();
    policy.setHorizontalPolicy(elide ? QSizePolicy::Ignored : QSizePolicy::Preferred);
    setSizePolicy(policy);
    if (wordWrap())
        enableCustomWordWrap(true);
    update();
}

void ZelLabel::setBold(bool bold)
{
    QFont changed = font();
    changed.setWeight(bold ? QFont::Bold : QFont::Normal);
    setFont(changed);
}

bool ZelLabel::hasMouseText() const
{
    return textInteractionFlags().testFlag(Qt::LinksAccessibleByMouse);
}

// Only rich text has a document, which belongs to a helper object of the label.
const QTextDocument *ZelLabel::document() const
{
    return findChild<QTextDocument *>();
}

QString ZelLabel::elidedText() const
{
    const QString shown = text();
    QString elided = fontMetrics().elidedText(shown.left(longestElided), Qt::ElideRight, width());
    if (shown.size() > longestElided && elided.size() >= longestElided)
        elided = elided.left(longestElided - 1) + QChar(0x2026);
    return elided;
}

bool ZelLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && isElided_)
        showWholeText(static_cast<QHelpEvent *>(event));
    const bool result = QLabel::event(event);
    if (changesTheText(event->type()))
        followTextHeight();
    return result;
}

void ZelLabel::showWholeText(QHelpEvent *event)
{
    if (elidedText() != text())
        QToolTip::showText(event->globalPos(), text(), this, QRect());
}

void ZelLabel::followTextHeight()
{
    // First of all: polishing comes back here by its own style change, and a size taken before that
    // would have to be taken again.
    ensurePolished();
    if (document())
        setMinimumHeight(0);
    setMinimumHeight(sizeHint().height());
    // Not activate(): that would come back here before this event is through.
    if (parentWidget() && parentWidget()->layout())
        parentWidget()->layout()->update();
}

void ZelLabel::paintEvent(QPaintEvent *event)
{
    if (!isElided_) {
        QLabel::paintEvent(event);
        return;
    }
    const QString elided = elidedText();
    if (elided == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    painter.setPen(palette().color(foregroundRole()));
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    painter.drawText(rect(), elided, option);
}

QSize ZelLabel::sizeHint() const
{
    if (!isCustomWrapped())
        return QLabel::sizeHint();
    ensurePolished();
    const QFontMetrics metrics = fontMetrics();
    int narrow = narrowWidth;
    if (text().size() < shortText)
        narrow = std::min(narrow, metrics.horizontalAdvance(text()));
    if (document())
        return QSize(narrow, heightForWidth(width()));
    const QRect room(0, 0, std::max(narrow, width()), greatestHeight);
    const int flags =
        (int(alignment()) & ~int(Qt::AlignHCenter | Qt::AlignVCenter)) | Qt::TextWordWrap;
    const QMargins margins = contentsMargins();
    const int height = metrics.boundingRect(room, flags, text()).height() + margins.top() +
                       margins.bottom() + 2 * margin();
    return QSize(narrow, std::min(height, greatestHeight));
}

QSize ZelLabel::minimumSizeHint() const
{
    return hasCustomWordWrap_ ? sizeHint() : QLabel::minimumSizeHint();
}

int ZelLabel::heightForWidth(int width) const
{
    return QLabel::heightForWidth(isCustomWrapped() ? widthOfOneLine : width);
}

void ZelLabel::mousePressEvent(QMouseEvent *event)
{
    QLabel::mousePressEvent(event);
    if (event->button() != Qt::RightButton || hasMouseText())
        return;
    event->accept();
    Q_EMIT rightClick();
}

void ZelLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (hasMouseText())
        QLabel::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT click();
}

void ZelLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    QLabel::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClick();
}
