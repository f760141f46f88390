#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

class QAbstractItemView;
class QKeyEvent;

/// Turns the platform's keys for copy, cut and paste into signals and keeps them from global
/// shortcuts. It installs itself on the object that it gets as parent.
class ZELWIDGETS_EXPORT ZelCopyPasteEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit ZelCopyPasteEventFilter(QObject *parent);
    explicit ZelCopyPasteEventFilter(QAbstractItemView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void copyPressed();
    void cutPressed();
    void pastePressed();

private:
    bool handleKey(const QKeyEvent *event);
};
