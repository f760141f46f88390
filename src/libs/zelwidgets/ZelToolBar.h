#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QToolBar>

/// A tool bar with three icon sizes, whose buttons can be reached by the Tab key.
class ZELWIDGETS_EXPORT ZelToolBar : public QToolBar
{
    Q_OBJECT

public:
    enum ToolBarBorderMode : int {
        NoBorder = 0,    ///< without a border, whatever the style sheet says
        StyledBorder = 1 ///< as the style sheet says
    };
    Q_ENUM(ToolBarBorderMode)

    enum IconSizeMode : int {
        UnknownIcons = 0, ///< no size was chosen yet
        SmallIcons = 1,   ///< 16 pixels
        MediumIcons = 2,  ///< 24 pixels
        LargeIcons = 3    ///< 32 pixels
    };
    Q_ENUM(IconSizeMode)

    explicit ZelToolBar(ToolBarBorderMode borderMode, QWidget *parent = nullptr);

    /// Adds an empty widget that takes all space that is left, and returns its action. Its object
    /// name is "ToolBarSpacer".
    QAction *addSpacer();

    IconSizeMode currentIconSizeMode() const;
    /// Gives all buttons of the bar the size. An unknown mode changes nothing, with a warning.
    void setIconSizeMode(IconSizeMode mode);
    /// Sets the mode whose icons are nearest to the height of the size.
    void setBestIconSizeModeFromSize(const QSize &size);
    /// The mode whose icons are nearest to the height; the smaller one if two are.
    static IconSizeMode getBestIconSizeModeFromSize(const QSize &size);
    static bool isKnownMode(IconSizeMode mode);

    /// Sets the dynamic property "toolBarStyleName", by which the style sheet gives a kind of tool
    /// bar its look, and polishes the bar and what is on it anew. The object name is left alone: it
    /// is what the layout of a window is stored by.
    void setToolBarStyleName(const QString &name);

protected:
    void actionEvent(QActionEvent *event) override;

private:
    IconSizeMode iconSizeMode_ = UnknownIcons;
};
