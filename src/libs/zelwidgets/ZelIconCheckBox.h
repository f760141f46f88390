#pragma once

#include <ZelWidgets/ZelCheckBox>

/// A check box whose indicator is a family of pictures of the application's own.
class ZELWIDGETS_EXPORT ZelIconCheckBox : public ZelCheckBox
{
    Q_OBJECT

public:
    ZelIconCheckBox();
    explicit ZelIconCheckBox(QWidget *parent);
    explicit ZelIconCheckBox(const QString &text, QWidget *parent = nullptr);

    /// Shows the pictures "_inactive", "_active", "_hover" and "_disabled" behind this base name,
    /// each with ".svg" at its end, at the size of the style's indicator. They are drawn as they
    /// are, not in the colours of the theme.
    void setSvgButtonIcon(const QString &baseName);
    QString svgButtonIcon() const { return baseName_; }

private:
    QString baseName_;
};
