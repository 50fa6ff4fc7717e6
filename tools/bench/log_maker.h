#pragma once

#include <string>

namespace vorelio::bench {

/// A callsign that no made log holds.
inline constexpr const char* kIndicatif_Absent = "F1ZZZZ";

/// The contents of a log of `contacts` lines, an hour after one another from 1990 on; the same at each call.
std::string MakeLog(int contacts);

/// The most contacts that a log can number.
inline constexpr int kFull_Log = 99999;

/// A full log with every contact filed under the first activity.
std::string FullLogOfOneActivity();

}  // namespace vorelio::bench
