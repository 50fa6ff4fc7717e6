#include "doubles/devices.h"

#include <algorithm>

#include "core/errors.h"

namespace vorelio::doubles {

// --- Printer --------------------------------------------------------------------------------------------------------

bool PaperRecord::Choose() {
  ++dialogs;
  if (answers.empty()) return true;
  const bool answer = answers.front();
  answers.pop_front();
  return answer;
}

void PaperRecord::PrintLine(const std::string& text) { events.push_back({Event::Kind::Line, text, font_}); }

void PaperRecord::EndJob() { events.push_back({Event::Kind::JobEnd, {}, font_}); }

void PaperRecord::DiscardJob() { events.push_back({Event::Kind::JobDiscarded, {}, font_}); }

std::vector<std::string> PaperRecord::Lines() const {
  std::vector<std::string> lines;
  for (const Event& event : events)
    if (event.kind == Event::Kind::Line) lines.push_back(event.text);
  return lines;
}

// --- Transceiver ----------------------------------------------------------------------------------------------------

namespace {

/// As the real port takes them: a speed, no parity, eight bits, one stop bit.
void CheckSettings(const std::string& settings) {
  const std::size_t comma = settings.find(',');
  if (comma == 0 || comma == std::string::npos || settings.substr(comma) != ",n,8,1" ||
      !std::all_of(settings.begin(), settings.begin() + static_cast<std::ptrdiff_t>(comma),
                   [](char c) { return c >= '0' && c <= '9'; }))
    throw Erreur_Execution(Erreur::Argument_Invalide, settings);
}

}  // namespace

void WireRecord::Open(int port, const std::string& name, const std::string& line_settings) {
  CheckSettings(line_settings);
  if (missing.contains(port)) throw Erreur_Execution(Erreur::Peripherique_Absent);
  number = port;
  device = name;
  settings = line_settings;
}

void WireRecord::Configure(const std::string& line_settings) {
  CheckSettings(line_settings);
  settings = line_settings;
}

void WireRecord::Write(const std::string& block) {
  if (number == 0 || unplugged) throw Erreur_Execution(Erreur::Peripherique);
  bytes += block;
}

// --- Web ------------------------------------------------------------------------------------------------------------

std::string SiteRecord::Fetch(const std::string& url, int, const Abandoned& abandoned) {
  const std::size_t scheme = url.find("://");
  const bool site = scheme != std::string::npos;
  const std::size_t path = url.find('/', site ? scheme + 3 : 0);
  urls.push_back(url);
  fetched.push_back(path == std::string::npos ? std::string("/") : url.substr(path));
  if (OnFetch) OnFetch();
  const auto page = pages.find(fetched.back());
  const auto text = site && page != pages.end() ? page->second() : std::nullopt;
  if (!text || abandoned()) throw Erreur_Execution(Erreur::Disque_Non_Pret, url);
  return *text;
}

// --- The rest -------------------------------------------------------------------------------------------------------

void SoundRecord::Play(const std::string& path, const Abandoned&) {
  played.push_back(path.substr(path.find_last_of("/\\") + 1));
  if (OnPlay) OnPlay();
}

bool DocumentRecord::Open(const std::string& path, const std::string& chapter) {
  opened.push_back(chapter.empty() ? path : path + "#" + chapter);
  return readable;
}

Platform Devices::Join(SettingsStore& settings, MessageService& messages, FileDialogService& dialogs,
                       ClockService& clock, WindowService& windows, Disk& disk, const std::string& directory) {
  return {settings, messages, dialogs, clock,     windows,   disk,      printer,
          serial,   pages,    sounds,  clipboard, documents, directory, '/'};
}

}  // namespace vorelio::doubles
