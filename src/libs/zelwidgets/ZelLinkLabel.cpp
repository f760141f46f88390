#include "ZelLinkLabel.h"

#include <QRegularExpression>

namespace {

QString styledAnchor(const QColor &color)
{
    return QStringLiteral("<a style='color:%1;' href").arg(color.name());
}

} // namespace

ZelLinkLabel::ZelLinkLabel(QWidget *parent)
    : ZelLabel(parent)
{}

QColor ZelLinkLabel::linkColor() const
{
    return linkColor_;
}

void ZelLinkLabel::setLinkColor(const QColor &color)
{
    if (color == linkColor_)
        return;
    const QString before = styledAnchor(linkColor_);
    linkColor_ = color;
    if (preparedText_.contains(before)) {
        const bool isShown = text() == preparedText_;
        preparedText_.replace(before, styledAnchor(color));
        if (isShown)
            ZelLabel::setText(preparedText_);
    }
    update();
}

void ZelLinkLabel::setText(const QString &text)
{
    static const QRegularExpression anchor(QStringLiteral("<a\\s+href"));
    QString prepared = text;
    preparedText_ = prepared.replace(anchor, styledAnchor(linkColor_));
    ZelLabel::setText(preparedText_);
}

void ZelLinkLabel::paintEvent(QPaintEvent *event)
{
    if (text() == preparedText_) {
        ZelLabel::paintEvent(event);
        return;
    }
    setText(text());
    update();
}
