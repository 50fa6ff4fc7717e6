#pragma once

#include <QNetworkAccessManager>

#include "platform/platform.h"

namespace vorelio {

class QtWindows;

/// Pages over HTTP and HTTPS.
class QtPages : public PageService {
 public:
  explicit QtPages(QtWindows& windows) : windows_(windows) {}

  std::string Fetch(const std::string& url, int timeout_s, const Abandoned& abandoned) override;

 private:
  QtWindows& windows_;
  QNetworkAccessManager network_;
};

}  // namespace vorelio
