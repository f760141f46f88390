#pragma once

#include "ZelStyleIcon.h"

#include <QIconEngine>
#include <QList>

/// Hands each request on to the picture that fits the mode and state best.
class ZelCombinedIconEngine : public QIconEngine
{
public:
    ZelCombinedIconEngine() = default;
    ~ZelCombinedIconEngine() override = default;

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    /// The clone shares the pictures.
    QIconEngine *clone() const override;
    void virtual_hook(int id, void *data) override;

    /// Appends an entry; one that is there for the pair gets the new icon as well.
    void addIcon(const ZelStyleIcon &icon, QIcon::Mode mode, QIcon::State state);
    /// The icon by the order of fallback; nothing, with a warning, if there is no entry.
    const ZelStyleIcon *findBestMatch(QIcon::Mode mode, QIcon::State state) const;
    qsizetype count() const { return entries_.size(); }
    const ZelStyleIcon &iconAt(qsizetype index) const { return entries_.at(index).icon; }

private:
    ZelCombinedIconEngine(const ZelCombinedIconEngine &other) = default;

    struct Entry
    {
        ZelStyleIcon icon;
        QIcon::Mode mode;
        QIcon::State state;
    };

    QList<Entry> entries_;
};
