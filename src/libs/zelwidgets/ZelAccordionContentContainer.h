#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

/// The content area of a ZelAccordionWidget; reports when it is shown or hidden.
class ZELWIDGETS_EXPORT ZelAccordionContentContainer : public QWidget
{
    Q_OBJECT

public:
    explicit ZelAccordionContentContainer(QWidget *parent = nullptr);

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// Emitted by every setVisible().
    void visibilityChanged(bool b);
};
