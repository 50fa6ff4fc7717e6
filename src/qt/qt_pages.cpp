#include "qt/qt_pages.h"

#include <QCoreApplication>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include "core/errors.h"
#include "core/foreign_text.h"
#include "qt/qt_text.h"
#include "qt/qt_windows.h"

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
  // The limits hold also while something else that the user has begun meanwhile keeps this from looking.
  QNetworkReply* asked = reply.get();
  QTimer::singleShot(timeout_s * 1000, asked, &QNetworkReply::abort);
  QObject::connect(asked, &QNetworkReply::readyRead, asked, [asked] {
    if (asked->bytesAvailable() > kLargest) asked->abort();
  });
  windows_.WaitUntil([&] { return asked->isFinished() || abandoned(); });
  if (abandoned()) asked->abort();
  if (asked->error() != QNetworkReply::NoError) throw Erreur_Execution(Erreur::Disque_Non_Pret, url);
  return Texte_Recu(reply->readAll().toStdString());
}

}  // namespace vorelio
