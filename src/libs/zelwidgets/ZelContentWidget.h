#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

/// A plain container that reports when it is shown or hidden.
class ZELWIDGETS_EXPORT ZelContentWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelContentWidget(QWidget *parent = nullptr);

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Emitted by every setVisible(), also by those that change nothing and by Qt's own when the
    /// parent is shown for the first time.
    void visibilityChanged(bool b);
};

/// The same container under a second name, for style sheets that tell the two apart.
class ZELWIDGETS_EXPORT ZelContentWidget2 : public QWidget
{
    Q_OBJECT

public:
    explicit ZelContentWidget2(QWidget *parent = nullptr);

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// As ZelContentWidget::visibilityChanged().
    void visibilityChanged(bool b);
};
