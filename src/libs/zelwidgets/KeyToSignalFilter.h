#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

/// Turns the keys Escape and Return (or Enter) into signals; the watched object doesn't get them.
/// It installs itself on the object that it gets as parent.
class ZELWIDGETS_EXPORT KeyToSignalFilter : public QObject
{
    Q_OBJECT

public:
    explicit KeyToSignalFilter(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void escapePressed();
    void enterPressed();
};
