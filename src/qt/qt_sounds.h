#pragma once

#include "platform/platform.h"

namespace vorelio {

class QtWindows;

/// WAV files on the system's sound device.
class QtSounds : public SoundService {
 public:
  explicit QtSounds(QtWindows& windows) : windows_(windows) {}

  void Play(const std::string& path, const Abandoned& abandoned) override;

 private:
  QtWindows& windows_;
};

}  // namespace vorelio
