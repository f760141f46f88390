#pragma once

#include <QByteArrayList>
#include <QString>
#include <QWidget>

/// Renders an SVG text through the icon colour theme in all modes and states, live.
class LiveIconView : public QWidget
{
    Q_OBJECT

public:
    explicit LiveIconView(QWidget *parent = nullptr);

    void setDocument(const QString &svg);
    /// Maps the document to the icon theme anew; its messages come once for each picture.
    void refresh();
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString svg_;
    QByteArrayList documents_;
};
