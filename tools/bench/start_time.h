#pragma once

namespace vorelio::bench {

/// What a start costs.
struct StartCost {
  double outside = 0;    ///< Milliseconds from the making of the process until it ends, which it does once it waits.
  double inside = 0;     ///< Milliseconds from its `main` until the main window is on the screen and waits.
  double mebibytes = 0;  ///< What the process then holds in memory.
};

/// Medians of `rounds` starts with a log of `contacts`, real windows on the offscreen screen, each in a process and a
/// folder of its own.
StartCost MeasureStart(int contacts, int rounds);

}  // namespace vorelio::bench
