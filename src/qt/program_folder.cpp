#include "qt/program_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "qt/qt_text.h"

namespace vorelio {

namespace {

bool HoldsTemplates(const QDir& folder) {
  return std::all_of(TemplateFiles().begin(), TemplateFiles().end(),
                     [&](const QString& name) { return folder.exists(name); });
}

ProgramFolder Described(const QDir& folder) {
  const QString path = folder.absolutePath();
  return {path, FromQt(path), QFile::encodeName(path).toStdString()};
}

/// The folders of what is the program's alone, and goes with its version: the manual, the maps. The files beside them
/// become the user's once they are there.
const QStringList& OwnFolders() {
  static const QStringList names = {QStringLiteral("manuel"), QStringLiteral("maps")};
  return names;
}

/// Whether the copy of a file is to be renewed; `name` is its path from the folder.
bool Outdated(const QString& name, const QFileInfo& source, const QFileInfo& copy) {
  return OwnFolders().contains(name.section(u'/', 0, 0)) &&
         (source.size() != copy.size() || source.lastModified() > copy.lastModified());
}

/// Copies a file by way of another name, for a copy that is cut short not to pass for the whole. The copy is the
/// user's, and he may write it.
bool CopyWhole(const QString& source, const QString& target, QString& problem) {
  const QString partial = target + QStringLiteral(".neuf");
  QFile::remove(partial);
  const bool copied =
      QDir().mkpath(QFileInfo(target).path()) && QFile::copy(source, partial) &&
      QFile::setPermissions(partial, QFile::permissions(partial) | QFile::ReadOwner | QFile::WriteOwner) &&
      QFile::rename(partial, target);
  if (!copied) problem = QStringLiteral("Impossible d'écrire le fichier %1.").arg(target);
  return copied;
}

/// Copies the files that lie `below` a folder; what is the user's stays.
bool Seed(const QDir& from, const QString& below, const QDir& to, QString& problem) {
  QDirIterator files(from.filePath(below), QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) {
    const QString name = from.relativeFilePath(files.next());
    const QString target = to.filePath(name);
    if (QFile::exists(target)) {
      if (!Outdated(name, QFileInfo(files.filePath()), QFileInfo(target))) continue;
      QFile::remove(target);
    }
    if (!CopyWhole(files.filePath(), target, problem)) return false;
  }
  return true;
}

}  // namespace

const QStringList& TemplateFiles() {
  static const QStringList names = {QStringLiteral("FXXXX.log"), QStringLiteral("FXXXX_Departement.txt"),
                                    QStringLiteral("FXXXX_Locator.txt"), QStringLiteral("FXXXX_Prefixe.txt"),
                                    QStringLiteral("Nomenclature.txt")};
  return names;
}

const QStringList& SoundFiles() {
  static const QStringList names = {QStringLiteral("ringout.wav"), QStringLiteral("ringin.wav"),
                                    QStringLiteral("tada.wav")};
  return names;
}

std::optional<ProgramFolder> FindProgramFolder(const QString& program, const QString& data_home, QString& problem) {
  const QDir own(program);
  if (HoldsTemplates(own) && QFileInfo(own.path()).isWritable()) return Described(own);

  const QDir folder(QDir(data_home).filePath(QStringLiteral("Vorelio")));
  if (!QDir().mkpath(folder.path())) {
    problem = QStringLiteral("Impossible de créer le dossier %1.").arg(folder.path());
    return std::nullopt;
  }
  // Beside the program stand the program and whatever else is installed there: only what is known by name is taken
  // then.
  const QDir shared(own.filePath(QStringLiteral("../share/vorelio")));
  if (HoldsTemplates(shared)) {
    if (!Seed(shared, QStringLiteral("."), folder, problem)) return std::nullopt;
  } else if (HoldsTemplates(own)) {
    for (const QString& name : TemplateFiles() + SoundFiles()) {
      const QString target = folder.filePath(name);
      const bool wanted = own.exists(name) && !QFile::exists(target);
      if (wanted && !CopyWhole(own.filePath(name), target, problem)) return std::nullopt;
    }
    for (const QString& name : OwnFolders())
      if (!Seed(own, name, folder, problem)) return std::nullopt;
  }
  return Described(folder);
}

}  // namespace vorelio
