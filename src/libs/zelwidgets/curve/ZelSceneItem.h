#pragma once

#include "curve/ZelDelayedDelete.h"

#include <QGraphicsItem>
#include <QGraphicsScene>

#include <memory>
#include <utility>

/// Base, beside QGraphicsItem, of items that a decorator can lose: a scene takes its items with it.
class ZelSceneItem
{
public:
    std::weak_ptr<const void> life() const { return life_; }

private:
    std::shared_ptr<const void> life_ = std::make_shared<char>();
};

/// Whether mouse events go to this item.
inline bool zelHoldsMouse(const QGraphicsItem *item)
{
    return item->scene() && item->scene()->mouseGrabberItem() == item;
}

/// Owns an item, in a scene or not, until either of them ends: it is null once the item is gone.
template <typename Item>
class ZelSceneItemOwner
{
public:
    ZelSceneItemOwner() = default;
    explicit ZelSceneItemOwner(std::unique_ptr<Item> item)
        : life_(item->life())
        , item_(item.release())
    {}
    ZelSceneItemOwner(ZelSceneItemOwner &&other) noexcept
        : life_(std::move(other.life_))
        , item_(std::exchange(other.item_, nullptr))
    {}
    ZelSceneItemOwner &operator=(ZelSceneItemOwner &&other) noexcept
    {
        std::swap(life_, other.life_);
        std::swap(item_, other.item_);
        return *this;
    }
    ~ZelSceneItemOwner() { destroy(); }

    Item *get() const { return life_.expired() ? nullptr : item_; }
    Item *operator->() const { return get(); }
    explicit operator bool() const { return get() != nullptr; }

private:
    void destroy()
    {
        Item *item = get();
        if (!item || !zelHoldsMouse(item)) {
            delete item;
            return;
        }
        // It may be in the middle of an event.
        item->scene()->removeItem(item);
        (new ZelDelayedDelete<Item>(item))->deleteLater();
    }

    std::weak_ptr<const void> life_;
    Item *item_ = nullptr;
};
