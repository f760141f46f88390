#pragma once

#include <QIcon>
#include <QWidget>

#include <vector>

/// Paints every icon of a resource folder in all modes and states at three sizes, with its name.
class IconSheet : public QWidget
{
    Q_OBJECT

public:
    IconSheet(const QString &folder, const QStringList &patterns, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Entry
    {
        QString name;
        QIcon icon;
    };

    QSize cellSize() const;
    int columnsFor(int width) const;
    void paintCell(QPainter &painter, QPoint origin, const Entry &entry) const;

    std::vector<Entry> entries_;
};
