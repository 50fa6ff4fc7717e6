#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "pilot/pilot.h"

namespace vorelio::pilot {

/// Runs scenario files through the real windows, with real key and mouse events, and prints the score behind their
/// failures. Qt's platform is "offscreen" unless the environment names another; no file of the user is touched.
Score RunFilesInWindows(const std::vector<std::string>& files, const Starter& starter, std::ostream& out);

}  // namespace vorelio::pilot
