#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "doubles/devices.h"
#include "doubles/scratch_folder.h"
#include "doubles/services.h"
#include "forms/programme.h"
#include "pilot/scenario.h"
#include "pilot/way.h"
#include "pilot/words.h"
#include "platform/posix_disk.h"

namespace vorelio::pilot {

/// Brings the program to life: called inside `Programme::Recoit`.
using Starter = std::function<void(Programme&)>;

/// One scenario being run: its program directory, its services, the program, and the place in its commands.
class Run : private Script {
 public:
  /// Failures and what `show` prints go to `out`.
  Run(const Scenario& scenario, const WayMaker& make_way, Starter starter, std::ostream& out);
  ~Run() override;

  /// Runs the scenario; true if everything held.
  bool Execute();

  // --- For the commands ---

  const doubles::ScratchFolder& Folder() const { return folder_; }
  /// A path of the scenario, absolute; UTF-8.
  std::string Path(const std::string& path) const;
  /// `{dir}` and `{/}` resolved.
  std::string Expand(std::string text) const;

  Way& way() const { return *way_; }
  SettingsStore& Settings() const { return way_->Settings(); }
  doubles::FixedClock& Clock() { return clock_; }
  doubles::BoxRecord& Boxes() { return boxes_; }
  std::deque<std::string>& Choices() { return choices_; }
  doubles::Devices& Devices() { return devices_; }

  /// What a run of the program stands on here.
  Platform Stand();
  /// Starts the program; raises `Failure` if it is running.
  void Start();
  /// The program; raises `Failure` if it hasn't been started.
  Programme& Started() const;

  /// The control that a scenario calls `name`; raises `Failure` if there is none.
  Control& FindControl(const std::string& name) const;
  /// The same, or null where the control's window is closed by now.
  Control* FindOpenControl(const std::string& name) const;
  /// The loaded form of that name, or null.
  Form* FindForm(const std::string& name) const;

  /// Something that isn't wrong by itself, but may be why a later expectation doesn't hold.
  void Note(const std::string& text);
  /// This scenario is about real windows: passed over where there are none.
  void OnlyOnScreen();
  /// A line for the reader, with no judgement.
  void Print(const std::string& text);

 private:
  // Script
  void GoOn(const std::function<bool()>& done) override;
  void GoOnOnce() override;
  void Message(const std::string& text) override;
  bool Question(const std::string& text, Buttons buttons, Icon icon) override;
  bool KeysAnswer() const override { return keys_ && boxes_.answers.empty(); }
  void Fatal(int number, const std::string& text) override;
  std::string Choice() override;
  void Fail(const std::string& text) override { Fail(line_, text); }
  const std::string& ScratchFolder() const override { return way_folder_.Path(); }

  bool Waiting() const { return !failed_ && next_ < scenario_.commands.size(); }
  bool Ended() const { return !programme_ || programme_->Termine_Deja(); }
  void Step();
  void Fail(int line, const std::string& text);
  void JudgeBoxes();
  std::string Place(int line) const { return scenario_.name + ":" + std::to_string(line) + ": "; }

  const Scenario& scenario_;
  Starter starter_;
  std::ostream& out_;

  std::size_t next_ = 0;
  int line_ = 0;
  bool failed_ = false;
  bool keys_ = false;  ///< Keys may answer boxes: the scenario is about real windows.
  std::vector<std::string> notes_;

  doubles::ScratchFolder folder_;
  doubles::ScratchFolder way_folder_;
  doubles::FixedClock clock_;
  doubles::BoxRecord boxes_;
  doubles::Devices devices_;
  std::deque<std::string> choices_;
  PosixDisk disk_;
  std::unique_ptr<Way> way_;
  std::unique_ptr<Programme> programme_;
};

}  // namespace vorelio::pilot
