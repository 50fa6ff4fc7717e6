#include "pilot/windows/windows_way.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <algorithm>
#include <cstdlib>
#include <iostream>

#include "core/text.h"
#include "forms/programme.h"
#include "pilot/windows/boxes.h"
#include "pilot/windows/real_events.h"
#include "pilot/windows/seen.h"
#include "pilot/words.h"
#include "qt/application.h"
#include "qt/qt_text.h"
#include "qt/rows_view.h"

namespace vorelio::pilot {

namespace {

class WindowsWay : public Way {
 public:
  explicit WindowsWay(Script& script)
      : memory_(QString::fromStdString(script.ScratchFolder() + "/windows.ini"), QSettings::IniFormat),
        appearance_(memory_),
        extras_(appearance_, memory_),
        settings_(QString::fromStdString(script.ScratchFolder() + "/settings.ini")),
        messages_(windows_, script),
        dialogs_(windows_, messages_, script) {
    windows_.Furnish = [this](const Form& form, QWidget& window) { return extras_.Furnish(form, window); };
    windows_.Waiter = [&script](const std::function<bool()>& done) { script.GoOn(done); };
  }

  ~WindowsWay() override {
    UntilIdle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  SettingsStore& Settings() override { return settings_; }
  MessageService& Messages() override { return messages_; }
  FileDialogService& Dialogs() override { return dialogs_; }
  WindowService& Windows() override { return windows_; }

  // --- Acting ---

  bool Key(Control& control, int key, bool first) override {
    if (!Clickable(control) && !dynamic_cast<TextField*>(&control) && !dynamic_cast<ListControl*>(&control))
      return false;
    QWidget& widget = Reach(control);
    // A word looked for in a list begins anew, as after a pause.
    if (auto* combo = dynamic_cast<ComboBox*>(&control); combo && first) combo->UserKeysBegin();
    Enter(control, widget);
    Type(widget, ToQt(std::string(1, static_cast<char>(key)))[0]);
    return true;
  }

  bool Paste(Control& control, const std::string& text) override {
    auto* field = dynamic_cast<TextField*>(&control);
    auto* combo = dynamic_cast<ComboBox*>(&control);
    if (!field && !combo) return false;
    QWidget& widget = Reach(control);
    GoTo(widget);
    if (combo && combo->Genre() == ComboBox::Kind::Choice) {
      // Such a box takes no text from the keys.
      combo->Parent().programme().Recoit([&] { combo->UserText(text); });
      return true;
    }
    const bool line_ends = text.find_first_of("\r\n") != std::string::npos;
    if (field && (field->ReadOnly() || (line_ends && !field->MultiLine()))) {
      // No key puts such a text there.
      const int caret = static_cast<int>(text.size());
      control.Parent().programme().Recoit([&] { field->UserText(text, caret); });
      return true;
    }
    Strike(widget, Qt::Key_A, Qt::ControlModifier);
    if (text.empty()) {
      Strike(widget, Qt::Key_Delete);
      return true;
    }
    QApplication::clipboard()->setText(ToQt(text).remove(u'\r'));
    Strike(widget, Qt::Key_V, Qt::ControlModifier);
    return true;
  }

  void Caret(TextField& field, int start, int length) override {
    QWidget& widget = Reach(field);
    GoTo(widget);
    PutCaret(field, widget, start, length);
  }

  void Select(ListControl& list, int row) override {
    QWidget& widget = Reach(list);
    if (auto* combo = qobject_cast<QComboBox*>(&widget)) return PickRow(*combo, row);
    auto& rows = dynamic_cast<RowsView&>(widget);
    pilot::Press(*rows.viewport(), PlaceOf(rows, row));
  }

  bool Click(Control& control) override {
    if (auto* entry = dynamic_cast<MenuItem*>(&control)) {
      Choose(*entry);
      return true;
    }
    const auto* field = dynamic_cast<TextField*>(&control);
    if ((field && !field->Click) || dynamic_cast<ListControl*>(&control)) {
      Enter(control, Reach(control));
      return true;
    }
    if (!field && !Clickable(control)) return false;
    pilot::Press(Reach(control));
    return true;
  }

  bool DblClick(Control& control, int row) override {
    if (!dynamic_cast<TextField*>(&control) && !dynamic_cast<ListBox*>(&control)) return false;
    QWidget& widget = Reach(control);
    auto* rows = dynamic_cast<RowsView*>(&widget);
    if (rows && row < 0) {
      // The key does the same, also where no space is left below the rows.
      GoTo(widget);
      Strike(widget, Qt::Key_F2);
    } else if (rows) {
      DoublePress(*rows->viewport(), PlaceOf(*rows, row));
    } else {
      DoublePress(widget, widget.rect().center());
    }
    return true;
  }

  void Tick(ListBox& list, int row) override {
    auto& rows = dynamic_cast<RowsView&>(Reach(list));
    rows.horizontalScrollBar()->setValue(0);
    pilot::Press(*rows.viewport(), {rows.TextStart() / 2, PlaceOf(rows, row).y()});
  }

  void Choose(MenuItem& entry) override {
    windows_.ShowPending();
    QAction* action = windows_.ActionOf(entry);
    QWidget* window = windows_.WindowOf(entry.Parent());
    if (!action || !window || !window->isVisible() || !action->isEnabled() || !action->isVisible())
      throw Failure{entry.Name() + " can be chosen in the program but not on the screen"};
    if (!PickEntry(*window, *action)) throw Failure{"no menu on the screen leads to " + entry.Name()};
  }

  void Close(Form& form) override {
    windows_.ShowPending();
    QWidget* window = windows_.WindowOf(form);
    if (!window) throw Failure{form.Name() + " has no window on the screen"};
    window->close();
  }

  bool OnScreen() const override { return true; }

  bool Press(const KeyStroke& stroke, int repeats) override {
    windows_.ShowPending();
    UntilIdle();
    return HoldKey(stroke, repeats);
  }

  void Settle() override {
    UntilIdle();
    windows_.ShowPending();
    UntilIdle();
  }

  // --- Seeing ---

  std::optional<std::string> Seen(const Control& control, std::string_view property) override {
    windows_.ShowPending();
    if (const auto* entry = dynamic_cast<const MenuItem*>(&control)) {
      const QAction* action = windows_.ActionOf(*entry);
      return action ? SeenProperty(*entry, *action, property) : std::nullopt;
    }
    const QWidget* widget = windows_.WidgetOf(control);
    return widget ? SeenProperty(control, *widget, property) : std::nullopt;
  }

  std::optional<std::string> SeenItem(const ListControl& list, int row) override {
    const QWidget* widget = windows_.WidgetOf(list);
    return widget ? SeenRow(list, *widget, row).value_or("no such row") : std::optional<std::string>();
  }

  std::optional<std::string> SeenTitle(const Form& form) override {
    const QWidget* window = windows_.WindowOf(form);
    return window ? window->windowTitle().toStdString() : std::optional<std::string>();
  }

  std::optional<bool> SeenOpen(const Form& form) override {
    windows_.ShowPending();
    const QWidget* window = windows_.WindowOf(form);
    return window ? window->isVisible() : std::optional<bool>();
  }

  std::optional<bool> SeenFocus(const Control& control) override {
    const QWidget* widget = windows_.WidgetOf(control);
    return widget ? widget->window()->focusWidget() == widget : std::optional<bool>();
  }

 private:
  /// The widget of a control that the model lets a user reach; it must be within reach on the screen too.
  QWidget& Reach(const Control& control) {
    QWidget* widget = windows_.WidgetOf(control);
    if (!widget) throw Failure{control.Name() + " has no widget on the screen"};
    const QWidget* modal = QApplication::activeModalWidget();
    const char* obstacle = !widget->isVisible()                 ? "hidden"
                           : !widget->isEnabled()               ? "disabled"
                           : modal && modal != widget->window() ? "locked behind another window"
                                                                : nullptr;
    if (obstacle)
      throw Failure{control.Name() + " can be reached in the program but is " + obstacle + " on the screen"};
    return *widget;
  }

  /// Moves the focus to a control. A field that the user comes back to may have had its caret elsewhere.
  void Enter(const Control& control, QWidget& widget) {
    const auto* field = dynamic_cast<const TextField*>(&control);
    if (!field || widget.window()->focusWidget() == &widget) return GoTo(widget);
    const int start = field->Caret(), length = field->SelectionLength();
    GoTo(widget);
    const auto* edit = qobject_cast<const QLineEdit*>(&widget);
    const bool all = edit && start == 0 && length == edit->text().size();
    if (!all) PutCaret(*field, widget, start, length);
  }

  /// With the keys, from the start of the text.
  static void PutCaret(const TextField& field, QWidget& widget, int start, int length) {
    const std::string& text = field.Text();
    const int size = static_cast<int>(text.size());
    start = std::clamp(start, 0, size);
    length = std::clamp(length, 0, size - start);
    // A line end is two characters to the program and one to the keys.
    const auto keys = [&](int from, int count) {
      return count - static_cast<int>(std::count(text.begin() + from, text.begin() + from + count, '\r'));
    };
    Strike(widget, Qt::Key_Home, field.MultiLine() ? Qt::ControlModifier : Qt::NoModifier);
    for (int i = keys(0, start); i > 0; --i) Strike(widget, Qt::Key_Right);
    for (int i = keys(start, length); i > 0; --i) Strike(widget, Qt::Key_Right, Qt::ShiftModifier);
    UntilIdle();
  }

  /// A place in a row's text, once the row has been brought into sight.
  static QPoint PlaceOf(RowsView& rows, int row) {
    const QModelIndex index = rows.model()->index(row, 0);
    rows.scrollTo(index);
    const QRect place = rows.visualRect(index);
    return {std::min(rows.TextStart() + 4, rows.viewport()->width() - 1), place.center().y()};
  }

  QSettings memory_;
  Appearance appearance_;
  WindowExtras extras_;
  QtWindows windows_;
  QtSettings settings_;
  PilotMessages messages_;
  PilotDialogs dialogs_;
};

/// By itself the offscreen platform has a smaller screen than the windows are made for.
constexpr const char* kScreen = R"({"screens": [{"name": "", "x": 0, "y": 0, "width": 1920, "height": 1080,)"
                                R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";

/// The offscreen platform says at each window what it can't do; a pilot's reader has no use for it.
void DropPlatformNotes(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith(QLatin1String("This plugin does not support"))) std::cerr << text.toStdString() << std::endl;
}

}  // namespace

std::unique_ptr<Way> MakeWindowsWay(Script& script) { return std::make_unique<WindowsWay>(script); }

Desktop::Desktop() {
  for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"})
    setenv(variable, home_.Path().c_str(), 1);
  const char* platform = std::getenv("QT_QPA_PLATFORM");
  if (!platform || std::string_view(platform) == "offscreen") {
    home_.Write("screen.json", kScreen);
    setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + home_.File("screen.json")).c_str(), 1);
  }
  qInstallMessageHandler(DropPlatformNotes);
  application_ = std::make_unique<QApplication>(count_, arguments_);
  SetUpApplication();
}

Desktop::~Desktop() = default;

}  // namespace vorelio::pilot
