#pragma once

#include <string>

#include "doubles/devices.h"
#include "doubles/scratch_folder.h"
#include "doubles/services.h"
#include "entry/ddfm.h"
#include "forms/programme.h"
#include "platform/posix_disk.h"

namespace vorelio::bench {

inline constexpr const char* kStation = "F6ABC";

enum class DateMode { Automatic, Manual };

/// A started program on a scratch folder, with a station whose log holds `contacts`: the product's own logic and disk,
/// without a screen.
class StationRun {
 public:
  StationRun(int contacts, DateMode mode);

  Programme& Run() { return programme_; }
  DDFM& Main() { return programme_.Fenetre<DDFM>(); }
  /// Absolute path of a file of the station.
  std::string File(const std::string& ending) const { return folder_.File(kStation + ending); }
  /// Where the next file dialog finds its answer.
  doubles::QueuedDialogs& Dialogs() { return dialogs_; }
  /// What happens while a modal window waits.
  void While(std::function<void(Form&)> modal) { windows_.OnModal = std::move(modal); }
  /// What the program has shown, and the answers to its questions.
  doubles::BoxRecord& Boxes() { return messages_; }
  /// Copies a file of the template station over the station's.
  void Restore(const std::string& ending);

  /// Types the callsign, without its Enter.
  void TypeCallsign(const std::string& callsign);
  /// The Enter after the callsign: what the log, the prefixes and the directory know of it.
  void LookUp();
  /// Drops what has been typed.
  void Cancel();
  /// Goes through the whole chain of a contact, up to the button that saves it; its date is asked for in manual mode.
  void FillIn(const std::string& date = "31/12/49");
  void Save();

 private:
  void MustStillRun() const;

  doubles::ScratchFolder folder_;
  doubles::MapSettings settings_;
  doubles::RecordedMessages messages_;
  doubles::QueuedDialogs dialogs_;
  doubles::FixedClock clock_;
  doubles::SilentWindows windows_;
  doubles::Devices devices_;
  PosixDisk disk_;
  Programme programme_;
};

}  // namespace vorelio::bench
