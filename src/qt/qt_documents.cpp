#include "qt/qt_documents.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "qt/qt_text.h"

namespace vorelio {

bool QtDocuments::Open(const std::string& path, const std::string& chapter) {
  const QFileInfo file(ToQt(path));
  QUrl place = QUrl::fromLocalFile(file.absoluteFilePath());
  if (!chapter.empty()) place.setFragment(ToQt(chapter));
  return file.exists() && QDesktopServices::openUrl(place);
}

}  // namespace vorelio
