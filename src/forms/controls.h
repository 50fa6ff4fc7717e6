#pragma once

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "core/rows.h"
#include "forms/colours.h"

/// The windows as the logic sees them: plain objects with a name, the properties that the logic uses and the events
/// that it needs. They draw nothing; a view may watch each of them and show it on a screen.
///
/// Two kinds of entry exist. What the logic calls (`SetText`, `SetListIndex`, ...) changes the object and runs the
/// events that such a change raises. What a user does (`User...`) is refused by a control that a user couldn't reach
/// (disabled, hidden, in a window behind a modal one), and is what views and the pilot call, inside
/// `Programme::Recoit`.
namespace vorelio {

class Form;
class Programme;
class WindowService;

/// Character 13 of a key press.
inline constexpr int kEntree = 13;

/// What of a control has changed, for its view.
enum class Property {
  Text,
  Caption,
  Enabled,
  Visible,
  Colour,
  ListIndex,
  Items,
  Caret,
  Checked,
  ScrollToEnd,
  Progress
};

class Control;

/// Watches one control; lives as long as it is set there.
class ControlView {
 public:
  virtual ~ControlView() = default;
  virtual void Changed(Property property) = 0;
};

class Control {
 public:
  Control(Form& form, std::string_view name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The control's name within its form; an element of an array is "Dpt(57)".
  const std::string& Name() const { return name_; }
  Form& Parent() const { return form_; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  bool Visible() const { return visible_; }
  void SetVisible(bool visible);

  Couleur Colour() const { return colour_; }
  void SetColour(Couleur colour);

  /// Gives the control the focus. A control that is disabled or hidden doesn't take it.
  void SetFocus();

  /// The user has moved the focus here.
  void UserFocus();

  /// Whether a user can reach the control now.
  bool Reachable() const;

  /// Text or caption, whichever the control has, for those who know it by name alone.
  virtual std::string_view Words() const { return {}; }

  void SetView(ControlView* view) { view_ = view; }

 protected:
  void Notify(Property property) const {
    if (view_) view_->Changed(property);
  }

  /// Runs an event procedure of this control's form, if there is one.
  void Raise(const std::function<void()>& event) const;

  /// Runs a key through a handler; false if the handler has dropped it.
  bool RaiseKey(const std::function<void(int&)>& handler, int& key) const;

 private:
  Form& form_;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  Couleur colour_ = kFond_Fenetre;
  ControlView* view_ = nullptr;
};

/// Enables or disables all of them.
void EnableAll(std::initializer_list<Control*> controls, bool enabled);

/// A key that runs through a `KeyPress` handler before it acts: the handler may change it, or drop it with 0.
using KeyHandler = std::function<void(int& key)>;

class TextField : public Control {
 public:
  /// A field that starts with `text`; `multi_line` fields take line ends.
  TextField(Form& form, std::string_view name, std::string_view text = {}, bool multi_line = false);

  const std::string& Text() const { return text_; }
  /// Fires nothing. The new text stands selected, so that a user's next character takes its place.
  void SetText(std::string_view text);
  void Clear() { SetText({}); }

  int Caret() const { return caret_; }
  int SelectionLength() const { return selection_; }
  /// Puts the caret after `position` characters, clipped to the text, and selects `length` more.
  void SetCaret(int position, int length = 0);
  /// Puts `text` in place of the selection, the caret after it.
  void ReplaceSelection(std::string_view text);

  bool MultiLine() const { return multi_line_; }

  /// A field that only shows: it takes the focus and its events, but no characters.
  bool ReadOnly() const { return read_only_; }
  void SetReadOnly(bool read_only) { read_only_ = read_only; }

  std::string_view Words() const override { return text_; }

  KeyHandler KeyPress;
  std::function<void()> Click;
  std::function<void()> DblClick;

  /// One key of the user: through `KeyPress`, then into the text (Enter joins only a multi-line text).
  void UserKey(int key);
  /// The user has changed the text without characters of his own: deleted, pasted, dropped.
  void UserText(std::string_view text, int caret);
  void UserCaret(int position, int length);
  /// The mouse, and nothing else: who comes here with the keys doesn't click.
  void UserClick();
  void UserDblClick();

 private:
  std::string text_;
  int caret_ = 0;
  int selection_ = 0;
  bool multi_line_;
  bool read_only_ = false;
};

/// What list boxes and combo boxes share: rows of text, one of them selected.
class ListControl : public Control {
 public:
  using Control::Control;

  int Count() const { return static_cast<int>(items_.Size()); }
  const Rows& Items() const { return items_; }
  /// Row `index` from 0; an index outside the list gives the empty text. Looks into the list, until its next change.
  std::string_view Item(int index) const;

  int ListIndex() const { return index_; }
  /// Selects a row (-1: none). It is a click, each time, also on the row that was selected. An index outside the list
  /// is run-time error 9.
  void SetListIndex(int index);

  virtual void ClearItems();
  /// Takes the room for so many rows of so many characters in all, where that is known beforehand.
  void Reserve(std::size_t rows, std::size_t characters) { items_.Reserve(rows, characters); }
  /// Puts `head` in the place of the first characters of a row, which stays where it is.
  void WriteOver(int index, std::string_view head);

  std::function<void()> Click;

  void UserSelect(int index);

 protected:
  /// Selects without a click.
  virtual void TakeIndex(int index);
  void InsertAt(int index, std::string_view text);
  void Append(const std::vector<std::string>& texts);
  /// Puts sorted rows among the sorted ones that are there, after equal ones.
  void Merge(const std::vector<std::string>& texts);
  void EraseAt(int index);
  void ReplaceAt(int index, std::string_view text);

 private:
  Rows items_;
  int index_ = -1;
};

class ListBox : public ListControl {
 public:
  enum class Kind { Plain, Sorted, Checked };

  ListBox(Form& form, std::string_view name, Kind kind = Kind::Plain);

  Kind Genre() const { return kind_; }

  /// Adds a row: at the end, or in a sorted list at its place by the bytes of the text, after equal ones.
  void AddItem(std::string_view text);
  /// Adds many rows, each as `AddItem` would, in the time of one sort at most.
  void AddItems(std::vector<std::string> texts);
  /// Removes a row; an index outside the list is run-time error 5. The removal of the selected row leaves none
  /// selected; no click.
  void RemoveItem(int index);
  /// Gives a row another text, at its place; an index outside the list is run-time error 5.
  void SetItem(int index, std::string_view text);
  void ClearItems() override;

  /// Text of the selected row, empty if none is.
  std::string_view Text() const { return Item(ListIndex()); }
  std::string_view Words() const override { return Text(); }

  /// Shows the last row, selecting none; no click.
  void ShowEnd();

  bool Checked(int index) const;
  void UserTick(int index);

  std::function<void()> DblClick;
  KeyHandler KeyPress;

  /// The user double-clicks row `index` (-1: the empty space below the rows).
  void UserDblClick(int index);
  void UserKey(int key);

 private:
  Kind kind_;
  std::vector<bool> checked_;
};

/// A list with a text field over it. The text is a selected row's, or what was set or typed.
class ComboBox : public ListControl {
 public:
  enum class Kind { Editable, Choice };

  ComboBox(Form& form, std::string_view name, Kind kind, std::string_view text = {});

  Kind Genre() const { return kind_; }

  void AddItem(std::string_view text) { InsertAt(Count(), text); }
  void ClearItems() override;

  const std::string& Text() const { return text_; }
  /// Whether the user's next character takes the place of the text: it was chosen or set, not typed.
  bool ReplacedByKey() const { return replace_; }
  /// Fires nothing. The row of that text, letter for letter, is then the selected one; else none is.
  void SetText(std::string_view text);
  std::string_view Words() const override { return text_; }

  KeyHandler KeyPress;

  /// One key of the user: through `KeyPress`, then into the text of an editable box. In a choice box a character
  /// selects the next row that begins with what has been typed since `UserKeysBegin`.
  void UserKey(int key);
  void UserKeysBegin() { typed_.clear(); }
  /// The user has come in with the keys: the whole text stands selected.
  void UserEnter();
  void UserText(std::string_view text);

 protected:
  void TakeIndex(int index) override;

 private:
  void Put(std::string_view text, bool replace);

  Kind kind_;
  std::string text_;
  std::string typed_;
  bool replace_ = true;
};

/// A control with a caption.
class Captioned : public Control {
 public:
  Captioned(Form& form, std::string_view name, std::string_view caption);

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  std::string_view Words() const override { return caption_; }

 private:
  std::string caption_;
};

class Label : public Captioned {
 public:
  Label(Form& form, std::string_view name, std::string_view caption = {}) : Captioned(form, name, caption) {}
};

class Frame : public Captioned {
 public:
  Frame(Form& form, std::string_view name, std::string_view caption = {}) : Captioned(form, name, caption) {}
};

class Button : public Captioned {
 public:
  Button(Form& form, std::string_view name, std::string_view caption) : Captioned(form, name, caption) {}

  std::function<void()> Click;
  void UserClick();
};

class CheckBox : public Captioned {
 public:
  CheckBox(Form& form, std::string_view name, std::string_view caption) : Captioned(form, name, caption) {}

  bool Checked() const { return checked_; }
  /// A change is a click.
  void SetChecked(bool checked);

  std::function<void()> Click;
  void UserClick();

 private:
  bool checked_ = false;
};

/// How far something long has come.
class Gauge : public Control {
 public:
  using Control::Control;

  int Done() const { return done_; }
  int Total() const { return total_; }
  /// `done` of `total` steps; a total of 0 shows as finished.
  void SetProgress(int done, int total);

 private:
  int done_ = 0;
  int total_ = 0;
};

/// An image, and controls that lie on it at fixed places: what shows it larger moves and enlarges them with it.
class Picture : public Control {
 public:
  /// A place on the image, in pixels of its plain size.
  struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
  };

  /// `file` is the image's path below the program's directory, `width` and `height` its plain size in pixels. Beside
  /// "name.jpg" the same image may lie twice as large as "name@2x.jpg". An image that is missing is no error.
  Picture(Form& form, std::string_view name, std::string_view file, int width, int height);

  const std::string& File() const { return file_; }
  int Width() const { return width_; }
  int Height() const { return height_; }

  void Lay(const Control& control, const Place& place) { places_[&control] = place; }
  /// Where a control lies on the image; nothing if it doesn't.
  std::optional<Place> PlaceOf(const Control& control) const;

 private:
  std::string file_;
  int width_;
  int height_;
  std::unordered_map<const Control*, Place> places_;
};

/// One of the option buttons of a group: setting one clears the others.
class OptionButton : public Captioned {
 public:
  /// Buttons of one form with the same `group` exclude each other.
  OptionButton(Form& form, std::string_view name, std::string_view caption, std::string_view group, bool set = false);

  bool Set() const { return set_; }
  /// Sets the button. If it wasn't set, that is a click; the others of its group are cleared without one.
  void SetOn();
  const std::string& Group() const { return group_; }

  std::function<void()> Click;
  void UserClick();

 private:
  std::string group_;
  bool set_;
};

class MenuItem : public Captioned {
 public:
  MenuItem(Form& form, std::string_view name, std::string_view caption, bool checked = false);

  bool Checked() const { return checked_; }
  /// Fires nothing.
  void SetChecked(bool checked);

  std::function<void()> Click;
  void UserClick();

 private:
  bool checked_;
};

/// Fires `Tick` every `interval` milliseconds while enabled and its form is loaded.
class Timer : public Control {
 public:
  Timer(Form& form, std::string_view name, int interval_ms, bool enabled = true);

  int Interval() const { return interval_; }

  std::function<void()> Tick;
  void Fire();

 private:
  int interval_;
};

/// Controls of one name, told apart by their index from `first` on; each is called "Name(index)".
template <typename T>
class ControlArray {
 public:
  template <typename... Rest>
  ControlArray(Form& form, std::string_view name, int first, int count, const Rest&... rest) : first_(first) {
    for (int i = first; i < first + count; ++i)
      items_.push_back(std::make_unique<T>(form, std::string(name) + "(" + std::to_string(i) + ")", rest...));
  }

  T& operator()(int index) const;
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }
  int First() const { return first_; }
  int Count() const { return static_cast<int>(items_.size()); }

 private:
  int first_;
  std::vector<std::unique_ptr<T>> items_;
};

[[noreturn]] void Indice_Refuse();

template <typename T>
T& ControlArray<T>::operator()(int index) const {
  if (index < first_ || index >= first_ + Count()) Indice_Refuse();
  return *items_[static_cast<std::size_t>(index - first_)];
}

/// One window. A class per window derives from it, holds its controls as members and its event procedures.
class Form {
 public:
  /// `name` is the class's own name, `title` the words of the title bar.
  Form(Programme& programme, std::string_view name, std::string_view title);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const std::string& Title() const { return title_; }
  void SetTitle(std::string_view title);

  bool Visible() const { return visible_; }
  bool Modal() const { return modal_; }
  bool Unloaded() const { return unloaded_; }

  /// Shows the window and goes on.
  void Show();
  /// Shows the window, does `first`, and waits until the window is hidden or unloaded; the other windows are locked
  /// meanwhile.
  void ShowModal(const std::function<void()>& first = {});
  void Hide();
  /// Runs `Form_Unload`, closes the window and forgets its state: the next use starts anew.
  void Unload();
  /// Puts the window in the middle of the screen.
  void Centre();

  /// The user closes the window.
  void UserClose();

  /// Whether the program ends with this window.
  virtual bool Main() const { return false; }
  /// Whether the window stands above modal ones, and can be used under them.
  virtual bool AboveModal() const { return false; }

  const std::vector<Control*>& Controls() const { return controls_; }
  /// The control of that name, or null.
  Control* Find(std::string_view name) const;

  Programme& programme() const { return programme_; }

  virtual void Form_Load() {}
  virtual void Form_Unload() {}

 protected:
  Programme& programme_;

 private:
  friend class Control;
  friend class Programme;

  WindowService& Screen() const;

  std::string name_;
  std::string title_;
  Control* active_ = nullptr;
  bool visible_ = false;
  bool modal_ = false;
  bool unloading_ = false;
  bool unloaded_ = false;
  std::vector<Control*> controls_;
};

}  // namespace vorelio
