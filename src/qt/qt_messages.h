#pragma once

#include <QMessageBox>
#include <string>

#include "platform/platform.h"

namespace vorelio {

class QtWindows;

/// Message boxes on Qt: titled "Vorelio", their texts as they are, line breaks and blanks included.
class QtMessages : public MessageService {
 public:
  explicit QtMessages(QtWindows& windows) : windows_(windows) {}

  void Show(const std::string& text) override;
  bool Ask(const std::string& text, Buttons buttons, Icon icon, Guard guard) override;
  void Fatal(int number, const std::string& text) override;

 protected:
  /// Shows the box and waits; gives the standard button that was pressed.
  virtual int Execute(QMessageBox& box) { return box.exec(); }

 private:
  /// Without an `escape`, NoButton, the box goes by its buttons alone.
  int Run(const std::string& text, Icon icon, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton first,
          QMessageBox::StandardButton escape, const QString& only_button = {});

  QtWindows& windows_;
};

}  // namespace vorelio
