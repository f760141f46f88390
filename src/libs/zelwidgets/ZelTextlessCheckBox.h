#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCheckBox>

/// A check box that without a text takes no more width than its indicator and the space behind it.
/// The tool tip is its accessible name then.
class ZELWIDGETS_EXPORT ZelTextlessCheckBox : public QCheckBox
{
    Q_OBJECT

public:
    explicit ZelTextlessCheckBox(QWidget *parent = nullptr);
    explicit ZelTextlessCheckBox(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;
};
