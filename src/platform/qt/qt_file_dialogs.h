#pragma once

#include <QString>
#include <string>

#include "platform/platform.h"

namespace vorelio {

class MessageService;
class QtWindows;

/// The file dialogs on Qt. A file whose path the program's character set can't hold is refused with a message.
class QtFileDialogs : public FileDialogService {
 public:
  QtFileDialogs(QtWindows& windows, MessageService& messages) : windows_(windows), messages_(messages) {}

  std::string Open(const std::string& folder, const std::string& filter) override;
  std::string Save(const std::string& folder, const std::string& name, const std::string& filter) override;

 protected:
  /// Show the dialog and wait; an empty answer is a dialog that was cancelled. `filter` is in Qt's form.
  virtual QString ExecuteOpen(const QString& folder, const QString& filter);
  virtual QString ExecuteSave(const QString& path, const QString& filter);

 private:
  std::string Taken(const QString& path);

  QtWindows& windows_;
  MessageService& messages_;
};

/// A filter "words|pattern|words|pattern..." in Qt's form, with all files as the last choice.
QString ToQtFilter(const std::string& filter);

}  // namespace vorelio
