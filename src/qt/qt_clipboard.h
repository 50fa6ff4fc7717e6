#pragma once

#include "platform/platform.h"

namespace vorelio {

/// The desktop's clipboard.
class QtClipboard : public ClipboardService {
 public:
  explicit QtClipboard(MessageService& messages) : messages_(messages) {}

  /// Tells of characters that the program's texts can't hold; they become "?".
  std::string Text() override;
  void SetText(const std::string& text) override;
  void Clear() override;

 private:
  MessageService& messages_;
};

}  // namespace vorelio
