#include "platform/qt/qt_pages.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "core/errors.h"
#include "exchange/text_import.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_windows.h"

namespace vorelio {

std::string QtPages::Fetch(const std::string& url, int timeout_s, const Abandoned& abandoned) {
  const QUrl address(ToQt(url));
  const bool web = address.scheme() == QLatin1String("http") || address.scheme() == QLatin1String("https");
  if (!web || !address.isValid()) throw Erreur_Execution(Erreur::Disque_Non_Pret, url);
  if (!network_) network_ = std::make_unique<QNetworkAccessManager>();
  QNetworkRequest request(address);
  request.setHeader(QNetworkRequest::UserAgentHeader,
                    QCoreApplication::applicationName() + u'/' + QCoreApplication::applicationVersion());
  // Each page is asked for to be new.
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);

  const std::unique_ptr<QNetworkReply> reply(network_->get(request));
  QTimer limit;
  limit.setSingleShot(true);
  limit.start(timeout_s * 1000);
  bool given_up = false;
  windows_.WaitUntil([&] {
    given_up = !limit.isActive() || reply->bytesAvailable() > kLargest || abandoned();
    return given_up || reply->isFinished();
  });
  if (given_up) reply->abort();
  if (given_up || reply->error() != QNetworkReply::NoError) throw Erreur_Execution(Erreur::Disque_Non_Pret, url);
  return Texte_Recu(reply->readAll().toStdString());
}

}  // namespace vorelio
