#include "platform/qt/qt_serial.h"

#include "core/errors.h"
#include "platform/qt/qt_text.h"

namespace vorelio {

void QtSerial::Open(int number, const std::string& device, const std::string& settings) {
  Configure(settings);
  port_.setPortName(device.empty() ? QStringLiteral("/dev/ttyS%1").arg(number - 1) : ToQt(device));
  if (!port_.open(QIODevice::WriteOnly)) throw Erreur_Execution(Erreur::Peripherique_Absent, device);
}

void QtSerial::Configure(const std::string& settings) {
  const QStringList parts = ToQt(settings).split(u',');
  if (parts.size() != 4 || !port_.setBaudRate(parts[0].toInt()))
    throw Erreur_Execution(Erreur::Argument_Invalide, settings);
}

void QtSerial::ClearInput() { port_.clear(QSerialPort::Input); }

void QtSerial::Write(const std::string& bytes) {
  if (port_.write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size()))
    throw Erreur_Execution(Erreur::Peripherique);
}

int QtSerial::Pending() { return static_cast<int>(port_.bytesToWrite()); }

}  // namespace vorelio
