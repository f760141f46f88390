#pragma once

#include <QObject>

/// Deletes an object that is no QObject together with itself, so that deleteLater() can be called
/// for it: a graphics item must not go inside an event that it is handling.
template <typename T>
class ZelDelayedDelete : public QObject
{
public:
    explicit ZelDelayedDelete(T *object, QObject *parent = nullptr)
        : QObject(parent)
        , object_(object)
    {}
    ~ZelDelayedDelete() override { delete object_; }

private:
    T *object_;
};
