#pragma once

#include <QMimeData>

#include <functional>
#include <memory>
#include <utility>

/// Mime data that are made when somebody asks for them, for drags of things that take long to write
/// and mostly are not asked for.
class ZelLazyMimeData : public QMimeData
{
public:
    using Make = std::function<QMimeData *()>;

    /// The maker gives up ownership; it may return null.
    ZelLazyMimeData(QStringList formats, Make make)
        : formats_(std::move(formats))
        , make_(std::move(make))
    {}

    QStringList formats() const override { return formats_; }
    bool hasFormat(const QString &format) const override { return formats_.contains(format); }

protected:
    QVariant retrieveData(const QString &format, QMetaType) const override
    {
        if (make_)
            data_.reset(std::exchange(make_, nullptr)());
        return data_ ? QVariant(data_->data(format)) : QVariant();
    }

private:
    QStringList formats_;
    mutable Make make_;
    mutable std::unique_ptr<QMimeData> data_;
};
