#include "ZelLineEdit.h"

#include <QPainter>
#include <QStyleOptionFrame>

#include <algorithm>

namespace {

// What a plain line edit keeps free on either side of its text.
constexpr int sideSpace = 2;
// The base class's minimum hint has room for about so many characters already.
constexpr int charactersOfMinimumHint = 3;
constexpr double disabledOpacity = 0.6;

} // namespace

ZelLineEdit::ZelLineEdit()
    : ZelLineEdit(QString())
{}

ZelLineEdit::ZelLineEdit(QWidget *parent)
    : ZelLineEdit(QString(), parent)
{}

ZelLineEdit::ZelLineEdit(const QString &text, QWidget *parent)
    : QLineEdit(text, parent)
{}

QColor ZelLineEdit::placeholderTextColor() const
{
    return placeholderColor_;
}

void ZelLineEdit::setPlaceholderTextColor(const QColor &color)
{
    if (color == placeholderColor_)
        return;
    placeholderColor_ = color;
    update();
}

void ZelLineEdit::setStyleablePlaceholderText(const QString &text)
{
    if (text == styleablePlaceholder_)
        return;
    if (accessibleDescription() == styleablePlaceholder_)
        setAccessibleDescription(text);
    styleablePlaceholder_ = text;
    update();
}

void ZelLineEdit::setMinimalTextWidth(int characters)
{
    if (characters == minimalTextWidth_)
        return;
    minimalTextWidth_ = characters;
    updateGeometry();
}

QSize ZelLineEdit::sizeHint() const
{
    if (minimalTextWidth_ < 0)
        return QLineEdit::sizeHint();
    const int characters = std::max(minimalTextWidth_ - charactersOfMinimumHint, 0);
    const qint64 advance = fontMetrics().horizontalAdvance(QLatin1Char('x'));
    QSize hint = QLineEdit::minimumSizeHint();
    hint.setWidth(int(std::min<qint64>(hint.width() + advance * characters, QWIDGETSIZE_MAX)));
    return hint;
}

QSize ZelLineEdit::minimumSizeHint() const
{
    return minimalTextWidth_ < 0 ? QLineEdit::minimumSizeHint() : sizeHint();
}

void ZelLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (!text().isEmpty() || !placeholderText().isEmpty() || styleablePlaceholder_.isEmpty())
        return;
    const QRect target = placeholderRect();
    QFont italic = font();
    italic.setItalic(true);
    QPainter painter(this);
    painter.setFont(italic);
    painter.setPen(placeholderColor_);
    painter.setOpacity(isEnabled() ? 1.0 : disabledOpacity);
    painter.drawText(
        target, int(QStyle::visualAlignment(layoutDirection(), alignment())),
        painter.fontMetrics().elidedText(styleablePlaceholder_, Qt::ElideRight, target.width()));
}

QRect ZelLineEdit::placeholderRect() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    QRect target = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    target = target.marginsRemoved(textMargins()).adjusted(sideSpace, 0, -sideSpace, 0);
    const int height = fontMetrics().height();
    return QRect(target.x(), target.y() + (target.height() - height + 1) / 2, target.width(),
                 height);
}
