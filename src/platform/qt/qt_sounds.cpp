#include "platform/qt/qt_sounds.h"

#include <QFileInfo>
#include <QSoundEffect>
#include <QUrl>

#include "platform/qt/qt_text.h"
#include "platform/qt/qt_windows.h"

namespace vorelio {

void QtSounds::Play(const std::string& path, const Abandoned& abandoned) {
  QSoundEffect effect;
  effect.setSource(QUrl::fromLocalFile(QFileInfo(ToQt(path)).absoluteFilePath()));
  effect.play();
  windows_.WaitUntil([&] { return !effect.isPlaying() || abandoned(); });
}

}  // namespace vorelio
