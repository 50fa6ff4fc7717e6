#include <algorithm>

#include "core/text.h"
#include "pilot/commands.h"

/// What the user does.
namespace vorelio::pilot {

namespace {

/// Why a user couldn't reach a control; empty if he could.
std::string OutOfReach(const Control& control) {
  const Form& form = control.Parent();
  const Form* modal = form.programme().Fenetre_Modale();
  if (control.Reachable()) return {};
  if (form.programme().Termine_Deja()) return "gone with the program, which has ended";
  if (!form.Visible()) return "in a window that isn't shown";
  if (modal && modal != &form) return "locked behind the window " + modal->Name();
  return control.Visible() ? "disabled" : "hidden";
}

/// Whether the user can act on the control; if not, that is noted, for a click on a grey button is no fault by itself.
bool Reach(Run& run, const Control& control, const std::string& name, std::string_view done) {
  const std::string obstacle = OutOfReach(control);
  if (!obstacle.empty()) run.Note(name + " is " + obstacle + ", nothing was " + std::string(done));
  return obstacle.empty();
}

template <typename T>
T& As(Control& control, const std::string& name, std::string_view kind) {
  if (auto* target = dynamic_cast<T*>(&control)) return *target;
  throw Failure{name + " is no " + std::string(kind)};
}

void TypeKeys(Run& run, const std::string& name, const std::string& utf8) {
  if (!Reach(run, run.FindControl(name), name, "typed")) return;
  bool first = true;
  for (std::size_t place = 0; place < utf8.size();) {
    const auto key = Octet_1252(detail::Point_Suivant(utf8, place));
    if (!key || *key == '\n') continue;
    // A key may have closed the window, or have ended its field.
    Control* control = run.FindOpenControl(name);
    if (!control || !Reach(run, *control, name, "typed from " + InQuotes(utf8.substr(place - 1)) + " on")) return;
    if (!run.way().Key(*control, static_cast<unsigned char>(*key), first)) throw Failure{name + " can't be typed into"};
    run.way().Settle();
    first = false;
  }
}

void Type(Run& run, Args& args) {
  const std::string name = args.Word("control"), text = args.Word("text");
  args.End();
  TypeKeys(run, name, text);
}

void Enter(Run& run, Args& args) {
  do TypeKeys(run, args.Word("control"), "\r");
  while (args.More());
  args.End();
}

void Paste(Run& run, Args& args) {
  const std::string name = args.Word("control"), utf8 = args.Word("text");
  args.End();
  Control& control = run.FindControl(name);
  if (!Reach(run, control, name, "pasted")) return;
  const auto text = De_Utf8_Exact(utf8);
  if (!text) return run.Note(InQuotes(utf8) + " has a character that the program can't hold, nothing was pasted");
  if (!run.way().Paste(control, *text)) throw Failure{name + " has no text that a user could replace"};
}

void Caret(Run& run, Args& args) {
  const std::string name = args.Word("control");
  const int start = args.Number("start"), length = args.Number("length");
  args.End();
  auto& field = As<TextField>(run.FindControl(name), name, "text field");
  if (Reach(run, field, name, "selected")) run.way().Caret(field, start, length);
}

/// The row that a scenario means: a number, or a row's text.
int RowOf(const ListControl& list, const std::string& name, Args& args) {
  const bool quoted = args.Quoted();
  const std::string word = args.Word("row");
  const auto number = WholeNumber(word);
  const int count = list.Count();
  if (number && !quoted) {
    if (*number < 0 || *number >= count)
      Differs("row " + word + " in " + name, std::to_string(count) + (count == 1 ? " row" : " rows"));
    return *number;
  }
  const auto& rows = list.Items();
  const auto found = std::find(rows.begin(), rows.end(), ToProgram(word));
  if (found == rows.end()) Differs("a row " + InQuotes(word) + " in " + name, "none among " + std::to_string(count));
  return static_cast<int>(found - rows.begin());
}

void Select(Run& run, Args& args) {
  const std::string name = args.Word("control");
  auto& list = As<ListControl>(run.FindControl(name), name, "list");
  const int row = RowOf(list, name, args);
  args.End();
  if (Reach(run, list, name, "selected")) run.way().Select(list, row);
}

void Click(Run& run, Args& args) {
  const std::string name = args.Word("control");
  args.End();
  Control& control = run.FindControl(name);
  if (Reach(run, control, name, "clicked") && !run.way().Click(control))
    throw Failure{"a click on " + name + " does nothing"};
}

void DblClick(Run& run, Args& args) {
  const std::string name = args.Word("control");
  Control& control = run.FindControl(name);
  const auto* list = dynamic_cast<ListControl*>(&control);
  int row = list ? list->ListIndex() : -1;
  if (args.More()) row = RowOf(As<ListControl>(control, name, "list"), name, args);
  args.End();
  if (Reach(run, control, name, "clicked") && !run.way().DblClick(control, row))
    throw Failure{"a double click on " + name + " does nothing"};
}

void Tick(Run& run, Args& args) {
  const std::string name = args.Word("control");
  auto& list = As<ListBox>(run.FindControl(name), name, "list");
  if (list.Genre() != ListBox::Kind::Checked) throw Failure{name + " is no list with check boxes"};
  const int row = RowOf(list, name, args);
  args.End();
  if (Reach(run, list, name, "ticked")) run.way().Tick(list, row);
}

void Menu(Run& run, Args& args) {
  const std::string name = args.Word("name");
  args.End();
  auto& entry = As<MenuItem>(run.FindControl(name), name, "menu entry");
  if (Reach(run, entry, name, "chosen")) run.way().Choose(entry);
}

void Close(Run& run, Args& args) {
  const std::string name = args.Word("form");
  args.End();
  Form* form = run.FindForm(name);
  if (!form) Differs("an open window " + name, "none");
  const Form* modal = run.Started().Fenetre_Modale();
  if (modal && modal != form && !form->Main()) run.Note(name + " is locked behind the window " + modal->Name());
  run.way().Close(*form);
}

void FireTimer(Run& run, Args& args) {
  const std::string name = args.Word("control");
  args.End();
  auto& timer = As<Timer>(run.FindControl(name), name, "timer");
  if (!timer.Enabled()) return run.Note(name + " is disabled and didn't fire");
  run.Started().Recoit([&] { timer.Fire(); });
}

void Answer(Run& run, Args& args) {
  const std::string answer = args.Word("answer");
  args.End();
  const bool yes = answer == "yes" || answer == "ok";
  if (!yes && answer != "no" && answer != "cancel") Differs("yes, no, ok or cancel", InQuotes(answer));
  run.Boxes().Answer(yes);
}

void Choose(Run& run, Args& args) {
  const bool none = args.Take("none");
  run.Choices().push_back(none ? std::string{} : ToProgram(run.Path(args.Word("path"))));
  args.End();
}

KeyStroke StrokeOf(std::string word) {
  KeyStroke stroke;
  const std::pair<std::string_view, bool KeyStroke::*> held[] = {
      {"Shift+", &KeyStroke::shift}, {"Ctrl+", &KeyStroke::ctrl}, {"Alt+", &KeyStroke::alt}};
  for (bool found = true; found;) {
    found = false;
    for (const auto& [name, flag] : held) {
      if (!word.starts_with(name) || word.size() == name.size()) continue;
      stroke.*flag = found = true;
      word.erase(0, name.size());
    }
  }
  stroke.key = word;
  return stroke;
}

void PressKey(Run& run, const std::string& word, int repeats) {
  if (!run.way().OnScreen()) throw Failure{"keys are pressed on the screen alone: begin with \"only windows\""};
  if (!run.way().Press(StrokeOf(word), repeats)) Differs("a key", word);
  run.way().Settle();
}

void Press(Run& run, Args& args) {
  do PressKey(run, args.Word("key"), 0);
  while (args.More());
}

void Hold(Run& run, Args& args) {
  const std::string word = args.Word("key");
  const int repeats = args.Number("repeats");
  args.End();
  PressKey(run, word, repeats);
}

constexpr NamedCommand kActing[] = {{"type", Type},         {"enter", Enter}, {"paste", Paste},     {"caret", Caret},
                                    {"select", Select},     {"click", Click}, {"tick", Tick},       {"menu", Menu},
                                    {"dblclick", DblClick}, {"close", Close}, {"timer", FireTimer}, {"answer", Answer},
                                    {"choose", Choose},     {"press", Press}, {"hold", Hold}};

}  // namespace

CommandFunction FindActing(std::string_view name) { return FindIn(kActing, name); }

}  // namespace vorelio::pilot
