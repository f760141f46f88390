#pragma once

#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/zelwidgets_export.h>

#include <QString>
#include <QWidget>

class QPainter;

/// The caption of a collapsible section: a small arrow and a text. It doesn't flip by itself: its
/// owner calls setOpen() on clicked().
///
/// The style sheet sees the state in the dynamic properties "open", "hover" and "disabled".
class ZELWIDGETS_EXPORT ZelFlipLabel : public QWidget
{
    Q_OBJECT

public:
    ZelFlipLabel(const QString &text, bool open);
    /// Starts as the settings have it under the key in the unnamed group, else as the argument
    /// says, and stores its state there when it is destroyed. An empty key stores nothing.
    ZelFlipLabel(const QString &text, const QString &settingsKey, bool open);
    ~ZelFlipLabel() override;

    bool isOpen() const;
    QString text() const;

    void setOpen(bool open);
    void setArrowVisible(bool visible);
    void setDisabled(bool disabled);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Emitted when the left mouse button, Space or Enter is pressed.
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setHovered(bool hovered);
    void showState(const char *property, bool value);
    int textStart() const;
    void paintArrow(QPainter &painter);

    QString text_;
    QString settingsKey_;
    ZelStyleIcon arrow_;
    bool isOpen_;
    bool isArrowVisible_ = true;
    bool isHovered_ = false;
};
