#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bench/station_run.h"

namespace vorelio::reliability {

inline constexpr int kContacts = 2000;

/// Something that the program does to its files.
struct Deed {
  std::string name;
  bench::DateMode mode = bench::DateMode::Automatic;
  /// Everything up to the moment before.
  std::function<void(bench::StationRun& run)> prepare;
  std::function<void(bench::StationRun& run)> act;
};

const std::vector<Deed>& Deeds();

}  // namespace vorelio::reliability
