#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/disk.h"

/// What the logic needs of the outside, one small interface per service. All texts are in the program's own character
/// set (Windows-1252).
namespace vorelio {

class Control;
class Form;

/// The user's settings, addressed by application, section and key; names count to the last blank.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> Read(const std::string& application, const std::string& section,
                                          const std::string& key) = 0;
  /// The value is kept before this returns.
  virtual void Write(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) = 0;
};

enum class Buttons { YesNo, OkCancel };
enum class Icon { Plain, Question, Critical };

/// Modal boxes; each waits for the user.
class MessageService {
 public:
  virtual ~MessageService() = default;
  virtual void Show(const std::string& text) = 0;
  /// True for Yes or OK. Closing the box is the other answer.
  virtual bool Ask(const std::string& text, Buttons buttons, Icon icon) = 0;
  /// The box of a run-time error that ends the program.
  virtual void Fatal(int number, const std::string& text) = 0;
};

/// The common file dialogs; an empty answer is a dialog that was cancelled.
class FileDialogService {
 public:
  virtual ~FileDialogService() = default;
  /// `filter` is "words|pattern", for instance ".not |*.not", or empty for all files.
  virtual std::string Open(const std::string& folder, const std::string& filter) = 0;
  virtual std::string Save(const std::string& folder, const std::string& name, const std::string& filter) = 0;
};

struct Instant {
  int year = 2000, month = 1, day = 1, hour = 0, minute = 0, second = 0;
};

class ClockService {
 public:
  virtual ~ClockService() = default;
  virtual Instant Utc() = 0;
  virtual Instant Local() = 0;
};

/// The screen: it shows the forms that the logic tells it to.
class WindowService {
 public:
  virtual ~WindowService() = default;
  /// A form has come to life: its view is made here, before its `Form_Load`.
  virtual void Created(Form& form) = 0;
  /// The form is about to go; its view must not touch it afterwards.
  virtual void Destroyed(Form& form) = 0;
  /// The form's title or its being visible has changed; a form that is shown anew comes to the front.
  virtual void Changed(Form& form) = 0;
  virtual void Centre(Form& form) = 0;
  /// Waits, serving events, until the form is no longer visible or the program has ended.
  virtual void RunModal(Form& form) = 0;
  virtual void Focus(Control& control) = 0;
  /// Lets waiting events in; costs next to nothing when none wait.
  virtual void ServeEvents() = 0;
  /// Waits for something to happen and serves it.
  virtual void WaitForEvent() = 0;
};

/// Everything that a run of the program stands on. `directory` is the program's own, where every data file lies,
/// without a separator at its end.
struct Platform {
  SettingsStore& settings;
  MessageService& messages;
  FileDialogService& dialogs;
  ClockService& clock;
  WindowService& windows;
  Disk& disk;
  std::string directory;
  char separator = '/';
};

}  // namespace vorelio
