#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPixmap>
#include <QWidget>

/// A picture that fills the widget as far as its aspect ratio lets it, in the middle.
class ZELWIDGETS_EXPORT ZelAspectRatioLabel : public QWidget
{
    Q_OBJECT

public:
    explicit ZelAspectRatioLabel(QWidget *parent = nullptr);

    QPixmap pixmap() const;
    void setPixmap(const QPixmap &pixmap);

    QSize sizeHint() const override;
    /// The height that the picture has at this width.
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap pixmap_;
};
