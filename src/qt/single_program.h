#pragma once

#include <QLocalServer>
#include <QString>
#include <functional>

#include "platform/folder_lock.h"
#include "qt/program_folder.h"

namespace vorelio {

/// One program per folder: the first one can be called to the front by those that come after it. The two meet at a
/// name without a file, which goes with the process.
class SingleProgram {
 public:
  explicit SingleProgram(const ProgramFolder& folder);

  /// Whether no other program works on the folder.
  bool First() const { return !lock_.TakenByOther(); }

  /// For the first one: `action` runs whenever another one calls.
  void Listen(const std::function<void()>& action);

  /// For the others: calls the first one. False if it doesn't answer within a second.
  bool Call() const;

 private:
  FolderLock lock_;
  QString name_;
  QLocalServer server_;
};

}  // namespace vorelio
