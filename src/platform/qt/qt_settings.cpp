#include "platform/qt/qt_settings.h"

#include "core/errors.h"
#include "platform/qt/qt_text.h"

namespace vorelio {

namespace {

/// One part of a name. The two slashes part groups in Qt's names, and a name can't be empty: "~" and the character's
/// number stand for such a character, "~" alone for the empty name.
QString Part(const std::string& name) {
  if (name.empty()) return QStringLiteral("~");
  QString part;
  for (const QChar character : ToQt(name)) {
    const bool special = character == u'/' || character == u'\\' || character == u'~';
    part += special ? QStringLiteral("~%1").arg(character.unicode(), 2, 16, QLatin1Char('0')) : QString(character);
  }
  return part;
}

QString FullName(const std::string& application, const std::string& section, const std::string& key) {
  return Part(application) + u'/' + Part(section) + u'/' + Part(key);
}

}  // namespace

std::optional<std::string> QtSettings::Read(const std::string& application, const std::string& section,
                                            const std::string& key) {
  const QVariant value = file_.value(FullName(application, section, key));
  if (value.typeId() != QMetaType::QString) return std::nullopt;
  return FromQtExact(value.toString());
}

void QtSettings::Write(const std::string& application, const std::string& section, const std::string& key,
                       const std::string& value) {
  file_.setValue(FullName(application, section, key), ToQt(value));
  file_.sync();
  if (file_.status() != QSettings::NoError) throw Erreur_Execution(Erreur::Acces_Chemin, FromQt(file_.fileName()));
}

}  // namespace vorelio
