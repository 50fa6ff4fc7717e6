#include "qt/qt_serial.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QCollator>
#include <QFile>
#include <QSerialPortInfo>
#include <QStringList>
#include <algorithm>
#include <cerrno>

#include "core/errors.h"
#include "qt/qt_text.h"

namespace vorelio {

namespace {

/// What may wait for a port: more is a port that takes nothing.
constexpr std::size_t kOutputBuffer = 512;

/// Speed and format of a port.
struct LineSettings {
  speed_t speed;
  tcflag_t format;
};

speed_t ToSpeed(const QString& words) {
  static constexpr struct {
    int baud;
    speed_t speed;
  } kSpeeds[] = {{1200, B1200},   {2400, B2400},   {4800, B4800},   {9600, B9600},
                 {19200, B19200}, {38400, B38400}, {57600, B57600}, {115200, B115200}};
  for (const auto& [baud, speed] : kSpeeds)
    if (words == QString::number(baud)) return speed;
  return B0;
}

/// "4800,n,8,1": speed, parity (n, e, o), bits (7, 8), stop bits (1, 2).
LineSettings Parse(const std::string& settings) {
  const QStringList parts = ToQt(settings).toLower().split(u',');
  const auto refuse = [&] { throw Erreur_Execution(Erreur::Argument_Invalide, settings); };
  if (parts.size() != 4) refuse();
  LineSettings line{ToSpeed(parts[0]), CREAD | CLOCAL};
  const QStringList parities = {QStringLiteral("n"), QStringLiteral("e"), QStringLiteral("o")};
  if (line.speed == B0 || !parities.contains(parts[1])) refuse();
  if (parts[1] != parities[0]) line.format |= PARENB;
  if (parts[1] == parities[2]) line.format |= PARODD;
  if (parts[2] != QLatin1String("7") && parts[2] != QLatin1String("8")) refuse();
  line.format |= parts[2] == QLatin1String("7") ? CS7 : CS8;
  if (parts[3] != QLatin1String("1") && parts[3] != QLatin1String("2")) refuse();
  if (parts[3] == QLatin1String("2")) line.format |= CSTOPB;
  return line;
}

/// Bytes go through as they are, and nothing waits for another line of the plug.
bool Apply(int port, const LineSettings& line) {
  termios state{};
  if (tcgetattr(port, &state) != 0) return false;
  cfmakeraw(&state);
  state.c_cflag = line.format;
  cfsetispeed(&state, line.speed);
  cfsetospeed(&state, line.speed);
  return tcsetattr(port, TCSANOW, &state) == 0;
}

}  // namespace

std::vector<std::string> QtSerial::Devices() {
  QStringList names;
  for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts()) names << port.systemLocation();
  QCollator order(QLocale::c());
  order.setNumericMode(true);
  const auto built_in = [](const QString& name) { return name.startsWith(QLatin1String("/dev/ttyS")); };
  std::sort(names.begin(), names.end(), [&](const QString& a, const QString& b) {
    return built_in(a) != built_in(b) ? built_in(a) : order.compare(a, b) < 0;
  });
  std::vector<std::string> devices;
  for (const QString& name : names) devices.push_back(FromQt(name));
  return devices;
}

void QtSerial::Open(int number, const std::string& device, const std::string& settings) {
  Close();
  const LineSettings line = Parse(settings);
  std::string name = device;
  if (name.empty()) {
    const std::vector<std::string> devices = Devices();
    if (number < 1 || number > static_cast<int>(devices.size()))
      throw Erreur_Execution(Erreur::Peripherique_Absent, "Com " + std::to_string(number));
    name = devices[static_cast<std::size_t>(number - 1)];
  }
  // A modem line that is off would hold up an opening that waits.
  port_ = open(QFile::encodeName(ToQt(name)).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
  if (port_ < 0 || !Apply(port_, line)) {
    Close();
    throw Erreur_Execution(Erreur::Peripherique_Absent, "Com " + std::to_string(number) + ": " + name);
  }
  ioctl(port_, TIOCEXCL);
  // Where a cable keys the transmitter it does so by this line, which an opening raises.
  const int request_to_send = TIOCM_RTS;
  ioctl(port_, TIOCMBIC, &request_to_send);
}

void QtSerial::Close() {
  if (port_ < 0) return;
  // What a dead line still holds must not keep the program waiting.
  tcflush(port_, TCIOFLUSH);
  close(port_);
  port_ = -1;
  waiting_.clear();
}

void QtSerial::Configure(const std::string& settings) {
  const LineSettings line = Parse(settings);
  if (port_ >= 0 && !Apply(port_, line)) throw Erreur_Execution(Erreur::Peripherique, settings);
}

void QtSerial::ClearInput() {
  if (port_ >= 0) tcflush(port_, TCIFLUSH);
}

void QtSerial::Write(const std::string& bytes) {
  if (port_ < 0) throw Erreur_Execution(Erreur::Peripherique);
  Push();
  if (waiting_.size() + bytes.size() > kOutputBuffer) throw Erreur_Execution(Erreur::Peripherique);
  waiting_ += bytes;
  Push();
}

int QtSerial::Pending() {
  if (port_ < 0) return 0;
  Push();
  int held = 0;
  if (ioctl(port_, TIOCOUTQ, &held) != 0) throw Erreur_Execution(Erreur::Peripherique);
  return static_cast<int>(waiting_.size()) + held;
}

/// Gives the driver what it takes now.
void QtSerial::Push() {
  while (!waiting_.empty()) {
    const ssize_t taken = write(port_, waiting_.data(), waiting_.size());
    if (taken > 0) {
      waiting_.erase(0, static_cast<std::size_t>(taken));
    } else if (taken < 0 && errno == EINTR) {
      continue;
    } else if (taken < 0 && errno != EAGAIN) {
      throw Erreur_Execution(Erreur::Peripherique);
    } else {
      return;
    }
  }
}

}  // namespace vorelio
