#pragma once

#include <memory>

#include "doubles/scratch_folder.h"
#include "pilot/way.h"

class QApplication;

namespace vorelio::pilot {

/// What windows need around them, for as long as it lives: Qt's application, on the platform "offscreen" unless the
/// environment names another, and a home of its own, so that no file of the user is touched. One in a process.
class Desktop {
 public:
  Desktop();
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

 private:
  doubles::ScratchFolder home_;
  int count_ = 1;
  char name_[6] = "pilot";
  char* arguments_[2] = {name_, nullptr};
  std::unique_ptr<QApplication> application_;
};

/// The real windows, with real key and mouse events. Needs a `Desktop`.
std::unique_ptr<Way> MakeWindowsWay(Script& script);

}  // namespace vorelio::pilot
