#include "qt/qt_sounds.h"

#include <QAudioDevice>
#include <QFile>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>
#include <QtEndian>
#include <algorithm>

#include "qt/qt_text.h"
#include "qt/qt_windows.h"

namespace vorelio {

namespace {

constexpr int kLoading_ms = 2000;  ///< For the file and the device to be ready, and for the device to fall silent.
constexpr int kLongest_ms = 60000;

/// How long a WAV file plays, 0 for what is none. Its head is "RIFF", size, "WAVE"; then come chunks of a name, a size
/// and their bytes: "fmt " with the bytes per second at its byte 8, and "data".
int Duration_ms(QFile& file) {
  const QByteArray head = file.read(12);
  if (!head.startsWith("RIFF") || head.mid(8) != "WAVE") return 0;
  qint64 rate = 0;
  for (;;) {
    const QByteArray chunk = file.read(8);
    if (chunk.size() < 8) return 0;
    const qint64 size = qFromLittleEndian<quint32>(chunk.constData() + 4);
    if (chunk.startsWith("data"))
      return rate == 0 ? 0 : static_cast<int>(std::min<qint64>(size * 1000 / rate + 1, kLongest_ms));
    const qint64 next = file.pos() + size + size % 2;
    if (chunk.startsWith("fmt ")) {
      const QByteArray format = file.read(16);
      if (format.size() < 16) return 0;
      rate = qFromLittleEndian<quint32>(format.constData() + 8);
    }
    if (!file.seek(next)) return 0;
  }
}

}  // namespace

void QtSounds::Play(const std::string& path, const Abandoned& abandoned) {
  const QString name = ToQt(path);
  QFile file(name);
  const int duration = file.open(QIODevice::ReadOnly) ? Duration_ms(file) : 0;
  // Whoever plays many sounds in a row stays alive to the user also where none is heard.
  windows_.ServeEvents();
  if (duration == 0 || QMediaDevices::defaultAudioOutput().isNull()) return;

  QSoundEffect effect;
  // Waits for `done`, for so many milliseconds at most; false if nobody waits any more.
  const auto wait = [&](int limit_ms, const auto& done) {
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(limit_ms);
    windows_.WaitUntil([&] { return done() || !limit.isActive() || abandoned(); });
    return done() && !abandoned();
  };
  effect.setSource(QUrl::fromLocalFile(name));
  const auto loaded = [&] { return effect.status() == QSoundEffect::Ready || effect.status() == QSoundEffect::Error; };
  if (!wait(kLoading_ms, loaded) || effect.status() != QSoundEffect::Ready) return;
  effect.play();
  wait(duration + kLoading_ms, [&] { return !effect.isPlaying(); });
}

}  // namespace vorelio
