#pragma once

#include "pilot/way.h"
#include "qt/qt_file_dialogs.h"
#include "qt/qt_messages.h"

/// The boxes that wait for the user, shown for real and answered by the scenario.
namespace vorelio::pilot {

class PilotMessages : public QtMessages {
 public:
  PilotMessages(QtWindows& windows, Script& script) : QtMessages(windows), script_(script) {}

  void Show(const std::string& text) override;
  bool Ask(const std::string& text, Buttons buttons, Icon icon, Guard guard) override;
  void Fatal(int number, const std::string& text) override;

 protected:
  /// Shows the box, reads its words from its label, and presses a button with the mouse.
  int Execute(QMessageBox& box) override;

 private:
  Script& script_;
  QString words_;         ///< What the box must say.
  bool yes_ = true;       ///< The button to press.
  bool by_keys_ = false;  ///< The commands that follow press it.
};

class PilotDialogs : public QtFileDialogs {
 public:
  PilotDialogs(QtWindows& windows, MessageService& messages, Script& script)
      : QtFileDialogs(windows, messages), script_(script) {}

 protected:
  QString Execute(QFileDialog& dialog) override;

 private:
  Script& script_;
};

}  // namespace vorelio::pilot
