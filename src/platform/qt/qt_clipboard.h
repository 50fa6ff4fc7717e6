#pragma once

#include "platform/platform.h"

namespace vorelio {

/// The desktop's clipboard.
class QtClipboard : public ClipboardService {
 public:
  std::string Text() override;
  void SetText(const std::string& text) override;
  void Clear() override;
};

}  // namespace vorelio
