#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace vorelio {

/// The system's serial ports, on the system's own calls: they tell a port that has been unplugged when it is written
/// to, and how much the driver still holds.
class QtSerial final : public SerialService {
 public:
  QtSerial() = default;
  ~QtSerial() override { Close(); }
  QtSerial(const QtSerial&) = delete;
  QtSerial& operator=(const QtSerial&) = delete;

  /// Built-in ports before those of adapters, by their numbers.
  std::vector<std::string> Devices() override;
  void Open(int number, const std::string& device, const std::string& settings) override;
  bool IsOpen() override { return port_ >= 0; }
  void Close() override;
  void Configure(const std::string& settings) override;
  void ClearInput() override;
  void Write(const std::string& bytes) override;
  int Pending() override;

 private:
  void Push();

  int port_ = -1;
  std::string waiting_;  ///< What the driver hasn't taken yet.
};

}  // namespace vorelio
