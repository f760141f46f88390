#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QIcon>
#include <QWidget>

/// Shows an icon over its whole area. For assistive technology it is a picture, named by its
/// accessible name or tool tip.
class ZELWIDGETS_EXPORT ZelIconWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelIconWidget(const QIcon &icon, QIcon::Mode mode = QIcon::Normal,
                           QIcon::State state = QIcon::Off);

    void setIcon(const QIcon &icon);
    void setMode(QIcon::Mode mode);
    void setState(QIcon::State state);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QIcon icon_;
    QIcon::Mode mode_;
    QIcon::State state_;
};
