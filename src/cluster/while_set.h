#pragma once

#include <utility>

namespace vorelio {

/// Sets a flag for as long as this lives; then it is again what it was.
class Pendant {
 public:
  explicit Pendant(bool& drapeau) : drapeau_(drapeau), avant_(std::exchange(drapeau, true)) {}
  ~Pendant() { drapeau_ = avant_; }
  Pendant(const Pendant&) = delete;
  Pendant& operator=(const Pendant&) = delete;

 private:
  bool& drapeau_;
  bool avant_;
};

}  // namespace vorelio
