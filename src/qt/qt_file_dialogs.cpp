#include "qt/qt_file_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>

#include "core/text.h"
#include "qt/qt_text.h"
#include "qt/qt_windows.h"

namespace vorelio {

namespace {
constexpr const char* kEverything = "Tous les fichiers (*)";

/// A filter "words|pattern|words|pattern..." in Qt's form, with all files as the last choice.
QStringList ToQtFilters(const std::string& filter) {
  const QStringList parts = ToQt(filter).split(u'|', Qt::SkipEmptyParts);
  QStringList choices;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
    choices << QStringLiteral("%1 (%2)").arg(parts[i].trimmed(), QString(parts[i + 1]).replace(u';', u' ').trimmed());
  return choices << QLatin1String(kEverything);
}

}  // namespace

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
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Ouvrir"), ToQt(folder));
  dialog.setFileMode(QFileDialog::ExistingFile);
  dialog.setNameFilters(ToQtFilters(filter));
  return Taken(Execute(dialog));
}

std::string QtFileDialogs::Save(const std::string& folder, const std::string& name, const std::string& filter) {
  windows_.ShowPending();
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Enregistrer sous"), ToQt(folder));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setNameFilters(ToQtFilters(filter));
  // A name without an ending gets the one under which the file is looked for later.
  static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)"));
  dialog.setDefaultSuffix(ending.match(ToQt(filter)).captured(1));
  if (!name.empty()) dialog.selectFile(ToQt(name));
  return Taken(Execute(dialog));
}

QString QtFileDialogs::Execute(QFileDialog& dialog) {
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

}  // namespace vorelio
