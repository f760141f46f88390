#pragma once

#include <ZelWidgets/ZelLinkLabel>
#include <ZelWidgets/zelwidgets_export.h>

#include <QSize>

/// A link label of a fixed size, whose links can be reached by mouse and by key. They are told by
/// linkActivated() unless setOpenExternalLinks() is on.
class ZELWIDGETS_EXPORT ZelSFixedLinkedLabel : public ZelLinkLabel
{
    Q_OBJECT

public:
    ZelSFixedLinkedLabel(const QString &text, const QSize &size, QWidget *parent = nullptr);

    QSize sizeHint() const override { return size_; }

private:
    QSize size_;
};
