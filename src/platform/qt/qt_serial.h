#pragma once

#include <QSerialPort>

#include "platform/platform.h"

namespace vorelio {

/// The system's serial ports.
class QtSerial : public SerialService {
 public:
  void Open(int number, const std::string& device, const std::string& settings) override;
  bool IsOpen() override { return port_.isOpen(); }
  void Close() override { port_.close(); }
  void Configure(const std::string& settings) override;
  void ClearInput() override;
  void Write(const std::string& bytes) override;
  int Pending() override;

 private:
  QSerialPort port_;
};

}  // namespace vorelio
