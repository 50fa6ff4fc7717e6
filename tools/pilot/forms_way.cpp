#include "doubles/services.h"
#include "forms/programme.h"
#include "pilot/way.h"

namespace vorelio::pilot {

namespace {

class ScriptMessages : public MessageService {
 public:
  explicit ScriptMessages(Script& script) : script_(script) {}
  void Show(const std::string& text) override { script_.Message(text); }
  bool Ask(const std::string& text, Buttons buttons, Icon icon, Guard) override {
    return script_.Question(text, buttons, icon);
  }
  void Fatal(int number, const std::string& text) override { script_.Fatal(number, text); }

 private:
  Script& script_;
};

class ScriptDialogs : public FileDialogService {
 public:
  explicit ScriptDialogs(Script& script) : script_(script) {}
  std::string Open(const std::string&, const std::string&) override { return script_.Choice(); }
  std::string Save(const std::string&, const std::string&, const std::string&) override { return script_.Choice(); }

 private:
  Script& script_;
};

class FormsWay : public Way {
 public:
  explicit FormsWay(Script& script) : messages_(script), dialogs_(script) {
    windows_.OnModal = [&script](Form& form) { script.GoOn([&form] { return !form.Visible(); }); };
    windows_.OnWait = [&script] { script.GoOnOnce(); };
  }

  SettingsStore& Settings() override { return settings_; }
  MessageService& Messages() override { return messages_; }
  FileDialogService& Dialogs() override { return dialogs_; }
  WindowService& Windows() override { return windows_; }

  bool Key(Control& control, int key, bool first) override {
    if (auto* field = dynamic_cast<TextField*>(&control)) return Do(control, [=] { field->UserKey(key); });
    if (auto* list = dynamic_cast<ListBox*>(&control)) return Do(control, [=] { list->UserKey(key); });
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
      if (first) combo->UserKeysBegin();
      return Do(control, [=] { combo->UserKey(key); });
    }
    if (!Clickable(control)) return false;
    // Enter and the space bar press a button, other keys do nothing to it.
    if (key == kEntree || key == ' ') Click(control);
    return true;
  }

  bool Paste(Control& control, const std::string& text) override {
    if (auto* field = dynamic_cast<TextField*>(&control))
      return Do(control, [&] {
        field->SetFocus();
        field->UserText(text, static_cast<int>(text.size()));
      });
    auto* combo = dynamic_cast<ComboBox*>(&control);
    if (!combo) return false;
    return Do(control, [&] {
      combo->SetFocus();
      combo->UserText(text);
    });
  }

  void Caret(TextField& field, int start, int length) override {
    Do(field, [&] {
      field.SetFocus();
      field.UserCaret(start, length);
    });
  }

  void Select(ListControl& list, int row) override {
    Do(list, [&] { list.UserSelect(row); });
  }

  bool Click(Control& control) override {
    return ClickOn<Button>(control) || ClickOn<CheckBox>(control) || ClickOn<OptionButton>(control) ||
           ClickOn<MenuItem>(control) || ClickOn<TextField>(control) || FocusOn<ListControl>(control);
  }

  bool DblClick(Control& control, int row) override {
    if (auto* field = dynamic_cast<TextField*>(&control)) return Do(control, [=] { field->UserDblClick(); });
    if (auto* list = dynamic_cast<ListBox*>(&control)) return Do(control, [=] { list->UserDblClick(row); });
    return false;
  }

  void Tick(ListBox& list, int row) override {
    Do(list, [&] { list.UserTick(row); });
  }

  void Choose(MenuItem& entry) override { ClickOn<MenuItem>(entry); }

  void Close(Form& form) override {
    form.programme().Recoit([&] { form.UserClose(); });
  }

 private:
  static bool Do(Control& control, const std::function<void()>& action) {
    control.Parent().programme().Recoit(action);
    return true;
  }

  template <typename T>
  static bool ClickOn(Control& control) {
    auto* target = dynamic_cast<T*>(&control);
    return target && Do(control, [=] { target->UserClick(); });
  }

  template <typename T>
  static bool FocusOn(Control& control) {
    auto* target = dynamic_cast<T*>(&control);
    return target && Do(control, [=] { target->SetFocus(); });
  }

  doubles::MapSettings settings_;
  doubles::SilentWindows windows_;
  ScriptMessages messages_;
  ScriptDialogs dialogs_;
};

}  // namespace

bool Clickable(const Control& control) {
  return dynamic_cast<const Button*>(&control) || dynamic_cast<const CheckBox*>(&control) ||
         dynamic_cast<const OptionButton*>(&control);
}

std::unique_ptr<Way> MakeFormsWay(Script& script) { return std::make_unique<FormsWay>(script); }

}  // namespace vorelio::pilot
