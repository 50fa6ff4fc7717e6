#pragma once

namespace vorelio::bench {

/// How long a start takes, in milliseconds.
struct StartTime {
  double outside = 0;  ///< From the making of the process until it ends, which it does once it waits.
  double inside = 0;   ///< From its `main` until the main window is on the screen and waits.
};

/// Medians of `rounds` starts with a log of `contacts`, real windows on the offscreen screen, each in a process and a
/// folder of its own.
StartTime MeasureStart(int contacts, int rounds);

}  // namespace vorelio::bench
