#include "platform/qt/qt_documents.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "platform/qt/qt_text.h"

namespace vorelio {

bool QtDocuments::Open(const std::string& path) {
  const QFileInfo file(ToQt(path));
  return file.exists() && QDesktopServices::openUrl(QUrl::fromLocalFile(file.absoluteFilePath()));
}

}  // namespace vorelio
