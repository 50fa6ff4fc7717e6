#include "table.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace vorelio::bench {

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

std::vector<double> Medians(int rounds, const std::vector<Work>& works) {
  using Clock = std::chrono::steady_clock;
  std::vector<std::vector<double>> times(works.size());
  for (int round = 0; round <= rounds; ++round) {
    for (std::size_t i = 0; i < works.size(); ++i) {
      if (works[i].prepare) works[i].prepare();
      const auto begin = Clock::now();
      works[i].act();
      const std::chrono::duration<double, std::milli> time = Clock::now() - begin;
      if (round > 0) times[i].push_back(time.count());
    }
  }
  std::vector<double> medians;
  medians.reserve(times.size());
  for (auto& values : times) medians.push_back(Median(std::move(values)));
  return medians;
}

namespace {

std::string Milliseconds(std::optional<double> time) {
  if (!time) return "";
  char text[32];
  std::snprintf(text, sizeof text, *time < 10 ? "%.3f" : "%.1f", *time);
  return text;
}

std::string Ratio(std::optional<double> time, std::optional<double> floor) {
  if (!time || !floor) return "";
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", *time / *floor);
  return text;
}

std::string Measured(const Row& row) {
  if (!row.mebibytes) return Milliseconds(row.time);
  char text[32];
  std::snprintf(text, sizeof text, "%.1f MiB", *row.mebibytes);
  return text;
}

}  // namespace

void SetTarget(Row& row, const std::string& target, bool met) {
  row.target = target;
  row.met = met;
}

void Print(const std::vector<Row>& rows) {
  constexpr const char* kLine = "| %-34s | %6s | %9s | %9s | %6s | %9s | %6s | %-42s |\n";
  std::printf(kLine, "What", "QSOs", "ms", "floor", "ratio", "+ fsync", "ratio", "target");
  std::printf("| --- | ---: | ---: | ---: | ---: | ---: | ---: | --- |\n");
  for (const Row& row : rows) {
    const std::string verdict = row.target + (!row.met ? "" : *row.met ? ": met" : ": MISSED");
    std::printf(kLine, row.what.c_str(), std::to_string(row.contacts).c_str(), Measured(row).c_str(),
                Milliseconds(row.floor).c_str(), Ratio(row.time, row.floor).c_str(),
                Milliseconds(row.flushed_floor).c_str(), Ratio(row.time, row.flushed_floor).c_str(), verdict.c_str());
  }
}

void PrintGrowth(const std::vector<Row>& rows) {
  constexpr const char* kLine = "| %-34s | %9s | %9s | %9s |\n";
  std::printf("\n");
  std::printf(kLine, "What, by QSOs in the log", "1000", "10000", "99999");
  std::printf("| --- | ---: | ---: | ---: |\n");
  for (const Row& row : rows) {
    if (row.contacts != 1000) continue;
    const auto with = [&](int contacts) {
      const auto place = std::find_if(rows.begin(), rows.end(), [&](const Row& other) {
        return other.what == row.what && other.contacts == contacts;
      });
      return place == rows.end() ? std::string{} : Measured(*place);
    };
    std::printf(kLine, row.what.c_str(), with(1000).c_str(), with(10000).c_str(), with(99999).c_str());
  }
}

}  // namespace vorelio::bench
