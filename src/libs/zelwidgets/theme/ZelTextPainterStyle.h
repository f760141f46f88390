#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QWidget>

/// A widget that is never shown and carries the style sheet's colours for text that is painted
/// over pictures:
///
///     ZelTextPainterStyle { qproperty-fillColor: rgba(0, 0, 0, 160); }
class ZELWIDGETS_EXPORT ZelTextPainterStyle : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QColor fillColor READ getFillColor WRITE setFillColor)
    Q_PROPERTY(QColor borderColor READ getBorderColor WRITE setBorderColor)
    Q_PROPERTY(QColor textColor READ getTextColor WRITE setTextColor)

public:
    explicit ZelTextPainterStyle(QWidget *parent = nullptr);

    QColor getFillColor() const;
    void setFillColor(const QColor &color);
    QColor getBorderColor() const;
    void setBorderColor(const QColor &color);
    QColor getTextColor() const;
    void setTextColor(const QColor &color);

private:
    QColor fillColor_{200, 200, 200, 200};
    QColor borderColor_{50, 50, 50, 128};
    QColor textColor_{10, 10, 10, 200};
};
