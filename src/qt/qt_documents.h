#pragma once

#include "platform/platform.h"

namespace vorelio {

/// Shows documents in the program that the desktop has for their kind.
class QtDocuments : public DocumentService {
 public:
  bool Open(const std::string& path, const std::string& chapter) override;
};

}  // namespace vorelio
