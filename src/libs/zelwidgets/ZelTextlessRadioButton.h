#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QRadioButton>

/// A radio button that without a text takes no more width than its indicator and the space behind
/// it. The tool tip is its accessible name then.
class ZELWIDGETS_EXPORT ZelTextlessRadioButton : public QRadioButton
{
    Q_OBJECT

public:
    explicit ZelTextlessRadioButton(QWidget *parent = nullptr);
    explicit ZelTextlessRadioButton(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;
};
