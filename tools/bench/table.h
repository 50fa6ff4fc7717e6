#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vorelio::bench {

/// Something to measure: what has to be made ready before each time, unmeasured, and the work itself.
struct Work {
  std::function<void()> prepare;
  std::function<void()> act;
};

/// The median time of each work in milliseconds, after a warm-up. The works take turns, so that what else the machine
/// does falls on all of them.
std::vector<double> Medians(int rounds, const std::vector<Work>& works);

double Median(std::vector<double> values);

struct Row {
  std::string what;
  int contacts = 0;
  std::optional<double> time;  ///< Milliseconds, as all times here.
  std::optional<double> floor;
  std::optional<double> flushed_floor;  ///< The same with the device flushed.
  std::string target;
  std::optional<bool> met;
  std::optional<double> mebibytes = {};  ///< In the place of a time.
};

void SetTarget(Row& row, const std::string& target, bool met);

/// Prints the rows as one table of Markdown.
void Print(const std::vector<Row>& rows);

/// Prints what has been measured with several logs once more, a line each, to show how it grows with the log.
void PrintGrowth(const std::vector<Row>& rows);

}  // namespace vorelio::bench
