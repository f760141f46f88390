#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QToolButton>

/// A tool button that is nothing but a small icon, without a face or a border; a frame shows the
/// focus. The tool tip is its accessible name.
class ZELWIDGETS_EXPORT ZelTinyIconButton : public QToolButton
{
    Q_OBJECT

public:
    ZelTinyIconButton(const QIcon &icon, const QSize &iconSize, const QString &toolTip,
                      QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
