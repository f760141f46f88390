#pragma once

#include <ZelDeliveryManager/continuous_delivery_manager_export.h>

#include <optional>
#include <string_view>

/// Features that can be switched on and off from outside. All functions may be called from any
/// thread.
namespace orv::cdm {

/// Whether the feature is on: what setFeatureOverride() said, else the environment variable
/// ZEL_FEATURE_ with the name in capitals behind it (letters and digits; whatever else becomes an
/// underscore), else the default. The variable is "1", "on", "true" or "yes", or "0", "off",
/// "false" or "no", in any case; another text counts as not set.
CONTINUOUS_DELIVERY_MANAGER_EXPORT bool isFeatureEnabled(std::string_view name, bool defaultValue);

/// Switches a feature for this process; nullopt leaves it to the environment and the default again.
CONTINUOUS_DELIVERY_MANAGER_EXPORT void setFeatureOverride(std::string_view name,
                                                           std::optional<bool> enabled);

} // namespace orv::cdm
