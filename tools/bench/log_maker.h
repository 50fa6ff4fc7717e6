#pragma once

#include <string>

namespace vorelio::bench {

/// A callsign that no made log holds.
inline constexpr const char* kIndicatif_Absent = "F1ZZZZ";

/// The contents of a log of `contacts` lines, an hour after one another from 1990 on; the same at each call.
std::string MakeLog(int contacts);

}  // namespace vorelio::bench
