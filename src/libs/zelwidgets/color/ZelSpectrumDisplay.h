#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

/// A large field in which the user picks a colour.
class ZELWIDGETS_EXPORT ZelSpectrumDisplay : public QWidget
{
    Q_OBJECT

public:
    explicit ZelSpectrumDisplay(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows the colour; emits nothing.
    virtual void setColor(ZelColor color) = 0;

Q_SIGNALS:
    /// The user picked another colour.
    void colorChanged(ZelColor color);
};
