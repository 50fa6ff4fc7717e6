#pragma once

#include <QNetworkAccessManager>
#include <memory>

#include "platform/platform.h"

namespace vorelio {

class QtWindows;

/// Pages over HTTP and HTTPS. Bytes that are UTF-8 are read so, others as Windows-1252.
class QtPages : public PageService {
 public:
  explicit QtPages(QtWindows& windows) : windows_(windows) {}

  /// A page of more bytes than this is abandoned.
  static constexpr qint64 kLargest = qint64{32} * 1024 * 1024;

  std::string Fetch(const std::string& url, int timeout_s, const Abandoned& abandoned) override;

 private:
  QtWindows& windows_;
  std::unique_ptr<QNetworkAccessManager> network_;  ///< Made for the first page: most runs never ask for one.
};

}  // namespace vorelio
