#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>

/// A field for the name of a file, without a path. Characters that some system doesn't allow in a
/// file name can't be typed or pasted; a text set by code is taken as it is.
class ZELWIDGETS_EXPORT ZelFileEdit : public QLineEdit
{
    Q_OBJECT

public:
    ZelFileEdit();
    explicit ZelFileEdit(const QString &text);
};
