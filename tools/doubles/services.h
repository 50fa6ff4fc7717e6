#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "platform/platform.h"

/// Doubles of the platform's services, for unit tests and the pilot. All texts are the program's (Windows-1252).
namespace vorelio::doubles {

/// The settings store, in memory.
class MapSettings : public SettingsStore {
 public:
  using Address = std::tuple<std::string, std::string, std::string>;  ///< Application, section, key.

  std::optional<std::string> Read(const std::string& application, const std::string& section,
                                  const std::string& key) override;
  void Write(const std::string& application, const std::string& section, const std::string& key,
             const std::string& value) override;
  void Remove(const std::string& application, const std::string& section, const std::string& key);

  /// A value of application "DDFM"; the empty text where there is none.
  std::string Get(const std::string& section, const std::string& key);

  std::map<Address, std::string> values;
};

/// One message box as it was shown.
struct Box {
  enum class Kind { Message, Question, Fatal };
  Kind kind = Kind::Message;
  std::string text;
  Buttons buttons = Buttons::YesNo;
  Icon icon = Icon::Plain;
  bool answer = false;
  bool answered = true;   ///< False for a question that nothing was queued for; it got the answer No or Cancel.
  bool expected = false;  ///< Free for the test, to tick off what it has looked at,
  int line = 0;           ///< and to note where it was shown.
};

/// The boxes that a run has shown, and the answers waiting for the next questions.
class BoxRecord {
 public:
  std::vector<Box> boxes;
  std::deque<bool> answers;
  int fatal_number = 0;

  /// Queues answers for the next questions; true for Yes and OK.
  void Answer(bool yes) { answers.push_back(yes); }

  void Message(const std::string& text);
  /// Takes the oldest answer queued.
  bool Question(const std::string& text, Buttons buttons, Icon icon);
  void Fatal(int number, const std::string& text);

  /// The texts of the boxes of one kind, in their order.
  std::vector<std::string> Texts(Box::Kind kind) const;
  /// How many questions found no answer.
  int Unanswered() const;
  void Forget() { boxes.clear(); }
};

/// Records messages, and answers questions from the queue.
class RecordedMessages : public MessageService, public BoxRecord {
 public:
  void Show(const std::string& text) override;
  bool Ask(const std::string& text, Buttons buttons, Icon icon, Guard guard) override;
  void Fatal(int number, const std::string& text) override;

  /// What has been shown since the last call: messages alone, then questions alone. Each call forgets what it gives.
  std::vector<std::string> TakeMessages() { return Take(Box::Kind::Message); }
  std::vector<std::string> TakeQuestions() { return Take(Box::Kind::Question); }

  /// Runs while a box waits for the user, after the recording.
  std::function<void(const Box&)> OnBox;

 private:
  std::vector<std::string> Take(Box::Kind kind);
};

/// File dialogs that are answered beforehand.
class QueuedDialogs : public FileDialogService {
 public:
  struct Call {
    bool save = false;
    std::string folder, name, filter;
  };

  /// An empty path is a dialog that the user cancels, and what an empty queue answers.
  void Choose(const std::string& path) { answers.push_back(path); }

  std::string Open(const std::string& folder, const std::string& filter) override;
  std::string Save(const std::string& folder, const std::string& name, const std::string& filter) override;

  std::deque<std::string> answers;
  std::vector<Call> calls;
  int unanswered = 0;

 private:
  std::string Next(Call call);
};

/// A clock that stands still.
class FixedClock : public ClockService {
 public:
  /// `utc` reads "2003-05-12 12:34:56", `offset` "+02:00"; false if one doesn't, and nothing changes.
  bool Set(std::string_view utc, std::string_view offset);

  Instant Utc() override { return utc_; }
  Instant Local() override;

 private:
  Instant utc_{2003, 5, 12, 12, 34, 56};
  int offset_minutes_ = 120;
};

/// A screen that shows nothing. What waits returns at once, unless a test says what happens meanwhile.
class SilentWindows : public WindowService {
 public:
  std::function<void(Form&)> OnModal;
  std::function<void()> OnServe;
  /// Unset, a wait without end is left as an ended program leaves it, by `Fin_Programme`.
  std::function<void()> OnWait;

  std::vector<std::string> events;  ///< "created DDFM", "centre Station", "modal Station", "destroyed Station".

  void Created(Form& form) override;
  void Destroyed(Form& form) override;
  void Changed(Form&) override {}
  void Centre(Form& form) override;
  void RunModal(Form& form) override;
  void Focus(Control&) override {}
  void ServeEvents() override;
  void WaitForEvent() override;
};

}  // namespace vorelio::doubles
