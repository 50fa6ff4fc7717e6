#include <cstdio>
#include <utility>

#include "core/text.h"
#include "pilot/commands.h"

/// What stands around the computer: what it will do, and what is expected of it.
namespace vorelio::pilot {

namespace {

// --- Preparing and acting -------------------------------------------------------------------------------------------

/// A site that a scenario speaks of has an address, unless the scenario has emptied it.
void GiveSiteAnAddress(SettingsStore& settings) {
  if (!settings.Read("DDFM", "Setup", "Adresse Cluster"))
    settings.Write("DDFM", "Setup", "Adresse Cluster", "http://cluster.invalid");
}

void Page(Run& run, Args& args) {
  const std::string url_path = args.Word("path of the page");
  doubles::SiteRecord::Answer& answer = run.Devices().pages.pages[url_path];
  if (args.Take("fail")) {
    answer = [] { return std::nullopt; };
  } else if (args.Take("empty")) {
    answer = [] { return std::string{}; };
  } else {
    answer = [path = run.Path(args.Word("file"))] { return FileBytes(path); };
  }
  args.End();
  GiveSiteAnAddress(run.Settings());
}

void Port(Run& run, Args& args) {
  const int number = args.Number("port");
  if (!args.Take("missing")) throw Failure{"port N: missing"};
  args.End();
  run.Devices().serial.missing.insert(number);
}

void Printer(Run& run, Args& args) {
  const std::string answer = args.Word("answer");
  args.End();
  if (answer != "ok" && answer != "cancel") Differs("ok or cancel", InQuotes(answer));
  run.Devices().printer.answers.push_back(answer == "ok");
}

void Clipboard(Run& run, Args& args) {
  run.Devices().clipboard.text = args.Text("text");
  args.End();
}

constexpr NamedCommand kCommands[] = {{"page", Page}, {"port", Port}, {"printer", Printer}, {"clipboard", Clipboard}};

// --- Expecting ------------------------------------------------------------------------------------------------------

void ExpectSerial(Run& run, Args& args) {
  const std::string expected = args.Word("bytes");
  args.End();
  std::string found;
  for (const char byte : std::exchange(run.Devices().serial.bytes, {})) {
    char hex[4];
    std::snprintf(hex, sizeof hex, " %02X", static_cast<unsigned>(static_cast<unsigned char>(byte)));
    found += hex;
  }
  found = found.substr(found.empty() ? 0 : 1);
  if (found != expected) Differs("serial " + InQuotes(expected), InQuotes(found));
}

/// The oldest entry of a record must be this one; it then counts as expected.
void ExpectOldest(std::deque<std::string>& record, const std::string& what, const std::string& entry) {
  const std::string expected = what + " " + Shown(entry);
  if (record.empty()) Differs(expected, "none");
  const std::string found = record.front();
  record.pop_front();
  if (found != entry) Differs(expected, Shown(found));
}

void ExpectSound(Run& run, Args& args) {
  const std::string file = args.Text("file");
  args.End();
  ExpectOldest(run.Devices().sounds.played, "sound", file);
}

void ExpectNo(Run& run, Args& args) {
  if (!args.Take("sound")) throw Failure{"expect no: sound"};
  args.End();
  const auto& played = run.Devices().sounds.played;
  if (!played.empty()) Differs("no sound", Shown(played.front()));
}

void ExpectFetched(Run& run, Args& args) {
  const std::string path = args.Text("path of the page");
  args.End();
  ExpectOldest(run.Devices().pages.fetched, "fetched", path);
}

using PaperEvent = doubles::PaperRecord::Event;

std::string Printed(const std::string& text, const std::string& font) {
  return "printed " + Shown(text) + (font.empty() ? "" : " " + font);
}

std::string InWords(const PrinterFont& font) {
  char size[32];
  std::snprintf(size, sizeof size, "%g", font.size);
  return std::string(size) + (font.bold ? " bold" : "");
}

std::string InWords(const PaperEvent& event) {
  switch (event.kind) {
    case PaperEvent::Kind::Line: return Printed(event.text, InWords(event.font));
    case PaperEvent::Kind::JobEnd: return "job end";
    case PaperEvent::Kind::JobDiscarded: return "job discarded";
  }
  return {};
}

PaperEvent NextOnPaper(Run& run, const std::string& expected) {
  auto& events = run.Devices().printer.events;
  if (events.empty()) Differs(expected, "nothing more on the printer");
  PaperEvent event = events.front();
  events.pop_front();
  return event;
}

void ExpectPrinted(Run& run, Args& args) {
  const std::string text = args.Text("text");
  std::string font;
  if (args.More()) font = std::to_string(args.Number("size"));
  if (args.Take("bold")) font += " bold";
  args.End();
  const std::string expected = Printed(text, font);
  const PaperEvent event = NextOnPaper(run, expected);
  const bool line = event.kind == PaperEvent::Kind::Line;
  if (!line || event.text != text || (!font.empty() && font != InWords(event.font))) Differs(expected, InWords(event));
}

void ExpectJob(Run& run, Args& args) {
  const bool end = args.Take("end");
  if (!end && !args.Take("discarded")) throw Failure{"expect job: end or discarded"};
  args.End();
  const std::string expected = end ? "job end" : "job discarded";
  const std::string found = InWords(NextOnPaper(run, expected));
  if (found != expected) Differs(expected, found);
}

void ExpectClipboard(Run& run, Args& args) {
  const std::string text = args.Text("text");
  args.End();
  const std::string& found = run.Devices().clipboard.text;
  if (found != text) Differs("clipboard " + Shown(text), Shown(found));
}

constexpr NamedCommand kExpectations[] = {{"serial", ExpectSerial},      {"sound", ExpectSound},     {"no", ExpectNo},
                                          {"fetched", ExpectFetched},    {"printed", ExpectPrinted}, {"job", ExpectJob},
                                          {"clipboard", ExpectClipboard}};

}  // namespace

CommandFunction FindDeviceCommand(std::string_view name) { return FindIn(kCommands, name); }

CommandFunction FindDeviceExpectation(std::string_view subject) { return FindIn(kExpectations, subject); }

}  // namespace vorelio::pilot
