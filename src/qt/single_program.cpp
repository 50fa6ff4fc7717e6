#include "qt/single_program.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QFileInfo>
#include <QLocalSocket>

namespace vorelio {

namespace {

/// The same for every way that leads to the folder, and another one for each user.
QString NameOf(const QString& folder) {
  const QByteArray place = QFileInfo(folder).canonicalFilePath().toUtf8() + '\n' + QByteArray::number(getuid());
  return QStringLiteral("vorelio-") +
         QString::fromLatin1(QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex());
}

constexpr int kPatience_ms = 1000;

}  // namespace

SingleProgram::SingleProgram(const ProgramFolder& folder) : lock_(folder.bytes), name_(NameOf(folder.path)) {}

void SingleProgram::Listen(const std::function<void()>& action) {
  QObject::connect(&server_, &QLocalServer::newConnection, &server_, [this, action] {
    while (QLocalSocket* caller = server_.nextPendingConnection()) caller->deleteLater();
    action();
  });
  server_.setSocketOptions(QLocalServer::AbstractNamespaceOption);
  server_.listen(name_);
}

bool SingleProgram::Call() const {
  QLocalSocket socket;
  socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
  socket.connectToServer(name_);
  return socket.waitForConnected(kPatience_ms);
}

}  // namespace vorelio
