#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "pilot/run.h"

namespace vorelio::pilot {

/// How many scenarios of a run held.
struct Score {
  int passed = 0;
  int failed = 0;
};

/// Runs a scenario given as text; true if everything held. What didn't is printed.
bool RunText(const std::string& name, const std::string& text, const WayMaker& make_way, const Starter& starter,
             std::ostream& out);

/// Runs scenario files and prints the score after their failures.
Score RunFiles(const std::vector<std::string>& files, const WayMaker& make_way, const Starter& starter,
               std::ostream& out);

}  // namespace vorelio::pilot
