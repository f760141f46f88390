#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QLineEdit>

/// A line edit with a placeholder whose colour the style sheet sets, and with a width that can be
/// asked for in characters:
///
///     ZelLineEdit { qproperty-placeholderTextColor: #9e9e9e; }
///
/// The styleable placeholder shows in italics while the text and the standard placeholder are both
/// empty. It is the accessible description too.
class ZELWIDGETS_EXPORT ZelLineEdit : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QColor placeholderTextColor READ placeholderTextColor WRITE setPlaceholderTextColor)

public:
    ZelLineEdit();
    explicit ZelLineEdit(QWidget *parent);
    explicit ZelLineEdit(const QString &text, QWidget *parent = nullptr);

    QColor placeholderTextColor() const;
    void setPlaceholderTextColor(const QColor &color);
    void setStyleablePlaceholderText(const QString &text);
    /// Makes the hints wide enough for this many characters; a negative number goes back to the
    /// hints of a plain line edit.
    void setMinimalTextWidth(int characters);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect placeholderRect() const;

    QString styleablePlaceholder_;
    QColor placeholderColor_{0x9e, 0x9e, 0x9e};
    int minimalTextWidth_ = -1;
};
