#pragma once

#include <QJsonValue>
#include <QVariant>

#include <optional>

/// How single values stand in the settings file.
///
/// What JSON tells apart by itself stands bare: true, 12, 0.5, "text", ["texts"], [1, "mixed"].
/// Everything else is an object with the marks "type" and "value".
namespace ZelSettingsValue {

/// Values may be nested as deeply as this; the file stays far below what a JSON parser bears.
constexpr int maximumDepth = 64;

/// The value in a type that the file keeps; empty if there is none or it is nested too deep.
std::optional<QVariant> storable(const QVariant &value);
/// Takes what storable() gave.
QJsonValue toJson(const QVariant &value);
/// An object without sound marks is a QVariantMap. Empty if it is nested too deep.
std::optional<QVariant> fromJson(const QJsonValue &value);

} // namespace ZelSettingsValue
