#include "platform/file_settings.h"

#include <utility>

#include "core/errors.h"
#include "platform/ini_text.h"

namespace vorelio {

namespace {

/// One part of a name. The two slashes part groups in the file's names, and a name can't be empty: "~" and the
/// character's number stand for such a character, "~" alone for the empty name.
std::string Part(const std::string& name) {
  if (name.empty()) return "~";
  std::string part;
  for (const char c : name) {
    switch (c) {
      case '/': part += "~2f"; break;
      case '\\': part += "~5c"; break;
      case '~': part += "~7e"; break;
      default: part += c;
    }
  }
  return part;
}

}  // namespace

FileSettings::FileSettings(Disk& disk, std::string path) : disk_(disk), path_(std::move(path)) {}

std::string FileSettings::Bytes() {
  try {
    return disk_.ReadAll(path_);
  } catch (const Erreur_Execution& error) {
    if (error.Genre() != Erreur::Fichier_Introuvable) throw;
    return {};
  }
}

std::optional<std::string> FileSettings::Read(const std::string& application, const std::string& section,
                                              const std::string& key) {
  return IniText(Bytes()).Value(Part(application), Part(section) + "/" + Part(key));
}

void FileSettings::Write(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& value) {
  const std::string old = Bytes();
  IniText text(old);
  text.SetValue(Part(application), Part(section) + "/" + Part(key), value);
  if (text.Bytes() == old) return;
  disk_.WriteAll(path_, text.Bytes());
}

}  // namespace vorelio
