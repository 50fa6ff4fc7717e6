#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>

namespace vorelio {

/// The folder in which every data file lies.
struct ProgramFolder {
  QString path;
  /// How the program calls it: its text in the program's character set, in which "?" stands for what that can't hold.
  std::string text;
  /// How the system calls it.
  std::string bytes;
};

/// Finds the folder, and makes and fills it where needed: the program's own, if it can be written and holds the
/// templates, else `data_home`/Vorelio, where the templates and what goes with them (manual, maps, sounds) that lie
/// beside the program or in ../share/vorelio are copied to, over nothing that stands there but older files in folders
/// of their own. Nothing, with the reason in `problem`, if neither can be had.
std::optional<ProgramFolder> FindProgramFolder(const QString& program, const QString& data_home, QString& problem);

/// The names of the files without which no station can be made.
const QStringList& TemplateFiles();

/// The names of the sounds; without them the program is silent.
const QStringList& SoundFiles();

}  // namespace vorelio
