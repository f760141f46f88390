#pragma once

#include <ZelWidgets/ZelLabel>
#include <ZelWidgets/zelwidgets_export.h>

/// A label that wraps its text and has the height that the text needs at its width.
class ZELWIDGETS_EXPORT ZelWordWrapLabel : public ZelLabel
{
    Q_OBJECT

public:
    explicit ZelWordWrapLabel(const QString &text);
};
