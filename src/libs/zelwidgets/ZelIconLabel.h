#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QWidget>

class QSpacerItem;
class ZelLabel;

/// A text with an icon in front, which stays at the first line.
class ZELWIDGETS_EXPORT ZelIconLabel : public QWidget
{
    Q_OBJECT

public:
    ZelIconLabel(const QIcon &icon, const QString &text);

    void setIcon(const QIcon &icon);

Q_SIGNALS:
    /// A click on the icon or the text.
    void labelClicked();
    void labelRightClicked();

private:
    class Icon;

    ZelLabel *textLabel_;
    Icon *iconLabel_;
    QSpacerItem *spacer_;
};
