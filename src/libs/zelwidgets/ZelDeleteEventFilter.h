#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QObject>

class QAbstractItemView;

/// Turns the Delete key, without modifiers, into a signal and keeps it from global shortcuts. It
/// installs itself on the object that it gets as parent.
class ZELWIDGETS_EXPORT ZelDeleteEventFilter : public QObject
{
    Q_OBJECT

public:
    explicit ZelDeleteEventFilter(QObject *parent);
    explicit ZelDeleteEventFilter(QAbstractItemView *view);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void deletePressed();
};
