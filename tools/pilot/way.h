#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "forms/controls.h"
#include "platform/platform.h"

/// A way of driving the program, and what it needs of the scenario that is running.
namespace vorelio::pilot {

/// The scenario's side: boxes go to its record, dialogs are answered from its queue, and what waits for the user gets
/// the commands that follow.
class Script {
 public:
  virtual ~Script() = default;

  /// Runs the commands that follow until `done`, or until the program has ended. When they have run out before, the
  /// run is left by `Fin_Programme`.
  virtual void GoOn(const std::function<bool()>& done) = 0;
  /// The same for one command.
  virtual void GoOnOnce() = 0;

  virtual void Message(const std::string& text) = 0;
  /// A question without an answer is a failure, and leaves the run by `Fin_Programme`.
  virtual bool Question(const std::string& text, Buttons buttons, Icon icon) = 0;
  /// Whether the commands that follow are to answer the question on the screen, with keys: none is queued for it.
  virtual bool KeysAnswer() const { return false; }
  virtual void Fatal(int number, const std::string& text) = 0;
  /// Path of the next file dialog, empty for a dialog that is cancelled.
  virtual std::string Choice() = 0;

  /// The scenario ends here as a failed one.
  virtual void Fail(const std::string& text) = 0;

  /// A scratch folder beside the program's directory, for what a way keeps.
  virtual const std::string& ScratchFolder() const = 0;
};

/// A key of the keyboard, with what is held down beside it.
struct KeyStroke {
  std::string key;  ///< A character in UTF-8, or a name: "Return", "F5", ...
  bool shift = false, ctrl = false, alt = false;
};

/// Whether a control is there to be clicked on: a button, a check box, an option.
bool Clickable(const Control& control);

/// Acts on the program as its user. Every control that it is given can be reached.
class Way {
 public:
  virtual ~Way() = default;

  virtual SettingsStore& Settings() = 0;
  virtual MessageService& Messages() = 0;
  virtual FileDialogService& Dialogs() = 0;
  virtual WindowService& Windows() = 0;

  /// One key; `first` of a run of keys. Enter is 13. False if the control takes no keys.
  virtual bool Key(Control& control, int key, bool first) = 0;
  /// False if the control has no text that a user could replace.
  virtual bool Paste(Control& control, const std::string& text) = 0;
  virtual void Caret(TextField& field, int start, int length) = 0;
  virtual void Select(ListControl& list, int row) = 0;
  /// False if a click on such a control means nothing.
  virtual bool Click(Control& control) = 0;
  /// Row -1 is the space below a list's rows. False if a double click on such a control means nothing.
  virtual bool DblClick(Control& control, int row) = 0;
  virtual void Tick(ListBox& list, int row) = 0;
  virtual void Choose(MenuItem& entry) = 0;
  virtual void Close(Form& form) = 0;

  /// Whether there are real windows.
  virtual bool OnScreen() const { return false; }
  /// The key goes down, repeats `repeats` times by itself, and goes up, for whatever has the focus on the screen. False
  /// for a key that no keyboard has.
  virtual bool Press(const KeyStroke&, int /*repeats*/) { return false; }

  /// Lets everything happen that the last command has brought about.
  virtual void Settle() {}

  /// What the screen shows of a property, written as the pilot writes it; nothing where there is no screen, or it
  /// doesn't show this one.
  virtual std::optional<std::string> Seen(const Control&, std::string_view) { return std::nullopt; }
  virtual std::optional<std::string> SeenItem(const ListControl&, int) { return std::nullopt; }
  virtual std::optional<std::string> SeenTitle(const Form&) { return std::nullopt; }
  virtual std::optional<bool> SeenOpen(const Form&) { return std::nullopt; }
  virtual std::optional<bool> SeenFocus(const Control&) { return std::nullopt; }
};

using WayMaker = std::function<std::unique_ptr<Way>(Script&)>;

/// The forms themselves, with no toolkit.
std::unique_ptr<Way> MakeFormsWay(Script& script);

}  // namespace vorelio::pilot
