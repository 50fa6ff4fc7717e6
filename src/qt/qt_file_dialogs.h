#pragma once

#include <QString>
#include <string>

#include "platform/platform.h"

class QFileDialog;

namespace vorelio {

class QtWindows;

/// The file dialogs on Qt. A file whose path the program's character set can't hold is refused with a message.
class QtFileDialogs : public FileDialogService {
 public:
  QtFileDialogs(QtWindows& windows, MessageService& messages) : windows_(windows), messages_(messages) {}

  std::string Open(const std::string& folder, const std::string& filter) override;
  std::string Save(const std::string& folder, const std::string& name, const std::string& filter) override;

 protected:
  /// Shows the dialog and waits; an empty answer is a dialog that was cancelled.
  virtual QString Execute(QFileDialog& dialog);

 private:
  std::string Taken(const QString& path);

  QtWindows& windows_;
  MessageService& messages_;
};

}  // namespace vorelio
