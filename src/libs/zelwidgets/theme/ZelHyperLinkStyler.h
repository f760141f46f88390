#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QWidget>

/// A widget that is never shown and carries the style sheet's link colours into the palette:
///
///     ZelHyperLinkStyler { qproperty-hyperLinkColor: #4aa3ff; }
///
/// Both colours are invalid until a sheet sets them.
class ZELWIDGETS_EXPORT ZelHyperLinkStyler : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor hyperLinkColor READ getHyperLinkColor WRITE setHyperLinkColor)
    Q_PROPERTY(
        QColor hyperLinkVisitedColor READ getHyperLinkVisitedColor WRITE setHyperLinkVisitedColor)

public:
    explicit ZelHyperLinkStyler(QWidget *parent = nullptr);

    QColor getHyperLinkColor() const;
    void setHyperLinkColor(const QColor &color);
    QColor getHyperLinkVisitedColor() const;
    void setHyperLinkVisitedColor(const QColor &color);

    /// Puts the link colours of the application style sheet into the application palette.
    static void updateApplicationPalette();

private:
    QColor hyperLinkColor_;
    QColor hyperLinkVisitedColor_;
};
