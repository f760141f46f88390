#pragma once

#include <QRect>
#include <QWidget>

/// Lies over a main window and shows a place in it and a message, which assistive technology
/// speaks. It takes no mouse and no keys.
class ZelDockPreview : public QWidget
{
    Q_OBJECT

public:
    explicit ZelDockPreview(QWidget *window);

    QString message() const { return message_; }
    /// Shows and speaks; a message that was there already is spoken again.
    void tell(const QRect &place, const QString &message);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect place_;
    QString message_;
};
