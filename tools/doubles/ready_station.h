#pragma once

#include <string>

#include "platform/platform.h"

namespace vorelio::doubles {

/// The settings as the choice of a new station in the first run leaves them. `call` is in its "_" form. A second
/// station is listed after the first, and becomes the current one.
void SeedStationSettings(SettingsStore& settings, const std::string& directory, char separator, const std::string& call,
                         const std::string& locator);

}  // namespace vorelio::doubles
