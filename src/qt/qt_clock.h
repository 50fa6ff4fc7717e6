#pragma once

#include "platform/platform.h"

namespace vorelio {

/// The system's clocks.
class QtClock : public ClockService {
 public:
  Instant Utc() override;
  Instant Local() override;
};

}  // namespace vorelio
