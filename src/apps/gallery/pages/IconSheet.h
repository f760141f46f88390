#pragma once

#include <QIcon>
#include <QWidget>

#include <vector>

/// Paints every icon of a resource folder in all modes and states at three sizes, with its name.
/// A tool tip tells which is which.
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
    bool event(QEvent *event) override;

private:
    struct Entry
    {
        QString name;
        QIcon icon;
    };

    /// One picture of a cell, by its places in the lists of sizes, modes and states.
    struct Slot
    {
        int size;
        int mode;
        int state;
    };

    QSize cellSize() const;
    QRect cellRect(int index) const;
    QRect slotRect(const Slot &slot) const;
    template <typename Visit>
    void forEachSlot(const QRect &cell, Visit visit) const;
    int columnsFor(int width) const;
    void paintCell(QPainter &painter, const QRect &cell, const Entry &entry) const;
    QString describe(QPoint position) const;

    std::vector<Entry> entries_;
};
