#include <algorithm>

#include "core/text.h"
#include "pilot/commands.h"
#include "pilot/file_expectations.h"

/// What a scenario expects, and what it wants to see.
namespace vorelio::pilot {

namespace {

// --- Boxes and the end ----------------------------------------------------------------------------------------------

doubles::Box* Oldest(Run& run, doubles::Box::Kind kind) {
  auto& boxes = run.Boxes().boxes;
  const auto found = std::find_if(boxes.begin(), boxes.end(),
                                  [kind](const doubles::Box& box) { return box.kind == kind && !box.expected; });
  return found == boxes.end() ? nullptr : &*found;
}

void ExpectBox(Run& run, Args& args, doubles::Box::Kind kind, const std::string& word) {
  const bool part = args.Take("contains");
  const std::string text = args.Text("text");
  args.End();
  doubles::Box* box = Oldest(run, kind);
  const std::string expected = word + (part ? " containing " : " ") + Shown(text);
  if (!box) Differs(expected, "none");
  box->expected = true;
  if (part ? box->text.find(text) == std::string::npos : box->text != text) Differs(expected, Shown(box->text));
}

void ExpectMessage(Run& run, Args& args) { ExpectBox(run, args, doubles::Box::Kind::Message, "message"); }
void ExpectQuestion(Run& run, Args& args) { ExpectBox(run, args, doubles::Box::Kind::Question, "question"); }

void ExpectFatal(Run& run, Args& args) {
  const int number = args.Number("error number");
  args.End();
  doubles::Box* box = Oldest(run, doubles::Box::Kind::Fatal);
  const std::string expected = "run-time error " + std::to_string(number);
  if (!box) Differs(expected, "none");
  box->expected = true;
  if (run.Boxes().fatal_number != number)
    Differs(expected, std::to_string(run.Boxes().fatal_number) + ": " + Shown(box->text));
}

void ExpectEnded(Run& run, Args& args) {
  args.End();
  if (!run.Started().Termine_Deja()) Differs("the program to have ended", "it running");
}

// --- Settings -------------------------------------------------------------------------------------------------------

void ExpectSetting(Run& run, Args& args) {
  const std::string application = args.Text("application"), section = args.Text("section"), key = args.Text("key");
  const bool absent = args.Take("absent");
  const std::string value = absent ? std::string{} : args.Text("value");
  args.End();
  const auto found = run.Settings().Read(application, section, key);
  const std::string name = "setting " + Shown(application) + " " + Shown(section) + " " + Shown(key);
  if (absent ? found.has_value() : found != value)
    Differs(name + " " + (absent ? "absent" : Shown(value)), found ? Shown(*found) : "none");
}

// --- Controls -------------------------------------------------------------------------------------------------------

std::string Written(const std::string& value, bool text) { return text ? InQuotes(value) : value; }

/// The screen must show what the program holds.
void CompareSeen(const std::string& expected, const std::string& held, const std::optional<std::string>& seen,
                 bool text) {
  if (seen && *seen != held)
    Differs(expected, Written(held, text) + " in the program but " + Written(*seen, text) + " on the screen");
}

void ExpectProperty(Run& run, Args& args, const std::string& name, const std::string& property) {
  const Control& control = run.FindControl(name);
  const std::string found = PropertyOf(control, property);
  std::string value = args.Word("value");
  args.End();
  if (property == "colour" && value != "window") value = Vers_Utf8(Majuscules(value));
  const bool text = IsText(property);
  const std::string expected = name + " " + property + " " + Written(value, text);
  const auto seen = run.way().Seen(control, property);
  if (found != value) Differs(expected, Written(found, text));
  CompareSeen(expected, found, seen, text);
}

void ExpectItem(Run& run, Args& args, const std::string& name) {
  const auto* list = dynamic_cast<const ListControl*>(&run.FindControl(name));
  if (!list) throw Failure{name + " is no list"};
  const int row = args.Number("row");
  const bool part = args.Take("contains");
  const std::string text = args.Word("text");
  args.End();
  const std::string expected = name + " item " + std::to_string(row) + (part ? " containing " : " ") + InQuotes(text);
  if (row < 0 || row >= list->Count()) Differs(expected, std::to_string(list->Count()) + " rows");
  const std::string found = Vers_Utf8(list->Item(row));
  if (part ? found.find(text) == std::string::npos : found != text) Differs(expected, InQuotes(found));
  CompareSeen(expected, found, run.way().SeenItem(*list, row), true);
}

void ExpectFocus(Run& run, Args& args) {
  const std::string name = args.Word("control");
  args.End();
  const Control& control = run.FindControl(name);
  const Control* focus = run.Started().Focus();
  if (focus != &control)
    Differs("focus on " + name, focus ? "it on " + focus->Parent().Name() + "." + focus->Name() : "it nowhere");
  if (!run.way().SeenFocus(control).value_or(true))
    Differs("focus on " + name, "it there in the program but not on the screen");
}

// --- Forms ----------------------------------------------------------------------------------------------------------

void ExpectOpen(Run& run, Args& args, const std::string& name, bool open) {
  args.End();
  const Form* form = run.FindForm(name);
  const bool found = form && form->Visible();
  const auto word = [](bool is_open) { return std::string(is_open ? "open" : "closed"); };
  if (found != open) Differs(name + " " + word(open), word(found));
  if (const auto seen = form ? run.way().SeenOpen(*form) : std::nullopt; seen && *seen != found)
    Differs(name + " " + word(open), word(found) + " in the program but " + word(*seen) + " on the screen");
}

void ExpectTitle(Run& run, Args& args, const std::string& name) {
  const std::string title = args.Word("title");
  args.End();
  const Form* form = run.FindForm(name);
  const std::string expected = name + " title " + InQuotes(title);
  if (!form) Differs(expected, "no such window open");
  const std::string found = Vers_Utf8(form->Title());
  if (found != title) Differs(expected, InQuotes(found));
  CompareSeen(expected, found, run.way().SeenTitle(*form), true);
}

// --- Which is which -------------------------------------------------------------------------------------------------

constexpr NamedCommand kExpectations[] = {
    {"message", ExpectMessage}, {"question", ExpectQuestion}, {"fatal", ExpectFatal}, {"ended", ExpectEnded},
    {"setting", ExpectSetting}, {"focus", ExpectFocus},       {"file", ExpectFile}};

void Expect(Run& run, Args& args) {
  const std::string subject = args.Word("subject");
  if (const CommandFunction act = FindIn(kExpectations, subject)) return act(run, args);
  if (const CommandFunction act = FindDeviceExpectation(subject)) return act(run, args);
  for (const bool open : {true, false})
    if (args.Take(open ? "open" : "closed")) return ExpectOpen(run, args, subject, open);
  if (args.Take("title")) return ExpectTitle(run, args, subject);
  if (args.Take("item")) return ExpectItem(run, args, subject);
  ExpectProperty(run, args, subject, args.Word("property"));
}

// --- Showing --------------------------------------------------------------------------------------------------------

void ShowMessages(Run& run) {
  for (const doubles::Box& box : run.Boxes().boxes) {
    const bool question = box.kind == doubles::Box::Kind::Question;
    run.Print(std::string(question ? "question " : "message ") + Shown(box.text) +
              (box.expected ? "" : ", not expected yet"));
  }
}

void Show(Run& run, Args& args) {
  if (args.Take("messages")) {
    args.End();
    return ShowMessages(run);
  }
  if (args.Take("file")) return ShowFile(run, args);
  const std::string name = args.Word("control"), property = args.Word("property");
  args.End();
  run.Print(name + " " + property + " " + Written(PropertyOf(run.FindControl(name), property), IsText(property)));
}

constexpr NamedCommand kExpecting[] = {{"expect", Expect}, {"show", Show}};

}  // namespace

CommandFunction FindExpecting(std::string_view name) { return FindIn(kExpecting, name); }

}  // namespace vorelio::pilot
