#include "pilot/pilot.h"

#include "pilot/commands.h"

namespace vorelio::pilot {

bool RunText(const std::string& name, const std::string& text, const WayMaker& make_way, const Starter& starter,
             std::ostream& out) {
  try {
    const Scenario scenario = ParseScenario(name, text);
    return Run(scenario, make_way, starter, out).Execute();
  } catch (const ParseError& error) {
    out << name << ':' << error.line << ": " << error.text << '\n';
    return false;
  }
}

Score RunFiles(const std::vector<std::string>& files, const WayMaker& make_way, const Starter& starter,
               std::ostream& out) {
  Score score;
  for (const std::string& file : files) {
    const auto text = FileBytes(file);
    if (!text) out << file << ":0: expected a scenario, found no such file\n";
    const bool held = text && RunText(file, *text, make_way, starter, out);
    ++(held ? score.passed : score.failed);
  }
  out << score.passed << " passed, " << score.failed << " failed" << std::endl;
  return score;
}

}  // namespace vorelio::pilot
