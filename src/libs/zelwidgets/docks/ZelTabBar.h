#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QTabBar>
#include <QTabWidget>

/// A tab bar of texts with lines between the tabs. The style sheet reaches it by the dynamic
/// property "textOnlyTab" and sets the lines by the properties.
class ZELWIDGETS_EXPORT ZelTabBar : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(QColor dividerColor READ dividerColor WRITE setDividerColor)
    Q_PROPERTY(int dividerMargin READ dividerMargin WRITE setDividerMargin)
    Q_PROPERTY(int tabWidth READ tabWidth WRITE setTabWidth)
    Q_PROPERTY(int tabMargin READ tabMargin WRITE setTabMargin)

public:
    explicit ZelTabBar(QWidget *parent = nullptr);

    QColor dividerColor() const { return dividerColor_; }
    int dividerMargin() const { return dividerMargin_; }
    int tabWidth() const { return tabWidth_; }
    int tabMargin() const { return tabMargin_; }

    void setDividerColor(const QColor &color);
    /// Pixels that a line stays away from the upper and lower side.
    void setDividerMargin(int margin);
    /// The lines stand a tab width and two tab margins apart, in pixels.
    void setTabWidth(int width);
    void setTabMargin(int margin);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor dividerColor_;
    int dividerMargin_ = 0;
    int tabWidth_ = 0;
    int tabMargin_ = 0;
};

/// A tab widget with a ZelTabBar.
class ZELWIDGETS_EXPORT ZelTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit ZelTabWidget(QWidget *parent = nullptr);
};
