#pragma once

#include "doubles/devices.h"
#include "doubles/ready_station.h"
#include "doubles/scratch_folder.h"
#include "doubles/services.h"

namespace vorelio::tests {

using namespace doubles;

/// What stands around a program in a test, but its windows and its disk.
struct Outside {
  Platform Join(WindowService& windows, Disk& disk, const std::string& folder) {
    return devices.Join(settings, messages, dialogs, clock, windows, disk, folder);
  }

  MapSettings settings;
  RecordedMessages messages;
  QueuedDialogs dialogs;
  FixedClock clock;
  Devices devices;
};

}  // namespace vorelio::tests
