#include "ZelLinkColors.h"

#include <QApplication>
#include <QLabel>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include <utility>
#include <vector>

namespace ZelLinkColors {
namespace {

using Ranges = std::vector<std::pair<int, int>>;

Ranges linksOfColor(const QTextDocument &document, const QColor &color)
{
    Ranges ranges;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            const QTextCharFormat format = fragment.charFormat();
            if (format.isAnchor() && format.foreground().color() == color)
                ranges.emplace_back(fragment.position(), fragment.position() + fragment.length());
        }
    }
    return ranges;
}

QTextDocument *shownDocument(QWidget *widget)
{
    if (auto *label = qobject_cast<QLabel *>(widget))
        return label->findChild<QTextDocument *>();
    auto *view = qobject_cast<QTextEdit *>(widget);
    return view && view->isReadOnly() ? view->document() : nullptr;
}

} // namespace

void recolor(QTextDocument &document, const QColor &from, const QColor &to)
{
    const Ranges ranges = linksOfColor(document, from);
    if (ranges.empty())
        return;
    const bool wasModified = document.isModified();
    QTextCharFormat format;
    format.setForeground(to);
    QTextCursor cursor(&document);
    for (const auto &[begin, end] : ranges) {
        cursor.setPosition(begin);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(format);
    }
    document.setModified(wasModified);
}

void recolorApplication(const QColor &from, const QColor &to)
{
    if (from == to)
        return;
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (QTextDocument *document = shownDocument(widget))
            recolor(*document, from, to);
    }
}

} // namespace ZelLinkColors
