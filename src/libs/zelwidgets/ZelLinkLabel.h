#pragma once

#include <ZelWidgets/ZelLabel>
#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>

/// A label whose links have the colour that the style sheet gives:
///
///     ZelLinkLabel { qproperty-linkColor: #4aa3ff; }
///
/// text() is the text with the colour written into it.
class ZELWIDGETS_EXPORT ZelLinkLabel : public ZelLabel
{
    Q_OBJECT
    Q_PROPERTY(QColor linkColor READ linkColor WRITE setLinkColor)

public:
    explicit ZelLinkLabel(QWidget *parent = nullptr);

    QColor linkColor() const;
    /// Links that have been coloured already take the new colour.
    void setLinkColor(const QColor &color);
    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor linkColor_;
    QString preparedText_;
};
