#include "platform/qt/qt_pages.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <memory>

#include "core/errors.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_windows.h"

namespace vorelio {

std::string QtPages::Fetch(const std::string& url, int timeout_s, const Abandoned& abandoned) {
  const std::unique_ptr<QNetworkReply> reply(network_.get(QNetworkRequest(QUrl(ToQt(url)))));
  QTimer limit;
  limit.setSingleShot(true);
  limit.start(timeout_s * 1000);
  windows_.WaitUntil([&] { return reply->isFinished() || !limit.isActive() || abandoned(); });
  if (!reply->isFinished()) reply->abort();
  if (reply->error() != QNetworkReply::NoError) throw Erreur_Execution(Erreur::Disque_Non_Pret, url);
  return FromQt(QString::fromUtf8(reply->readAll()));
}

}  // namespace vorelio
