#include "platform/qt/qt_file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>

#include "core/text.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/qt_windows.h"

namespace vorelio {

namespace {
constexpr const char* kEverything = "Tous les fichiers (*)";
}  // namespace

QString ToQtFilter(const std::string& filter) {
  const QStringList parts = ToQt(filter).split(u'|', Qt::SkipEmptyParts);
  QStringList choices;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    choices << QStringLiteral("%1 (%2)").arg(parts[i].trimmed(), QString(parts[i + 1]).replace(u';', u' ').trimmed());
  choices << QLatin1String(kEverything);
  return choices.join(QStringLiteral(";;"));
}

std::string QtFileDialogs::Taken(const QString& path) {
  if (path.isEmpty()) return {};
  const QString clean = QDir::cleanPath(path);
  if (const auto text = FromQtExact(clean)) {
    // A name with decomposed accents is another file than the one with composed ones.
    if (ToQt(*text) == clean) return *text;
  }
  messages_.Show("Ce nom de fichier comporte un caractère que Vorelio ne peut pas noter :\r\n"_t + FromQt(clean));
  return {};
}

std::string QtFileDialogs::Open(const std::string& folder, const std::string& filter) {
  windows_.ShowPending();
  return Taken(ExecuteOpen(ToQt(folder), ToQtFilter(filter)));
}

std::string QtFileDialogs::Save(const std::string& folder, const std::string& name, const std::string& filter) {
  windows_.ShowPending();
  return Taken(ExecuteSave(QDir(ToQt(folder)).filePath(ToQt(name)), ToQtFilter(filter)));
}

QString QtFileDialogs::ExecuteOpen(const QString& folder, const QString& filter) {
  return QFileDialog::getOpenFileName(QApplication::activeWindow(), QStringLiteral("Ouvrir"), folder, filter);
}

QString QtFileDialogs::ExecuteSave(const QString& path, const QString& filter) {
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Enregistrer sous"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(filter.split(QStringLiteral(";;")));
  // A name without an ending gets the one under which the file is looked for later.
  static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)"));
  dialog.setDefaultSuffix(ending.match(filter).captured(1));
  const QFileInfo proposed(path);
  dialog.setDirectory(proposed.path());
  if (!proposed.isDir()) dialog.selectFile(proposed.fileName());
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace vorelio
