#include "doubles/services.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

#include "core/errors.h"
#include "forms/controls.h"

namespace vorelio::doubles {

// --- Settings -------------------------------------------------------------------------------------------------------

std::optional<std::string> MapSettings::Read(const std::string& application, const std::string& section,
                                             const std::string& key) {
  const auto found = values.find({application, section, key});
  if (found == values.end()) return std::nullopt;
  return found->second;
}

void MapSettings::Write(const std::string& application, const std::string& section, const std::string& key,
                        const std::string& value) {
  values[{application, section, key}] = value;
}

void MapSettings::Remove(const std::string& application, const std::string& section, const std::string& key) {
  values.erase({application, section, key});
}

std::string MapSettings::Get(const std::string& section, const std::string& key) {
  return Read("DDFM", section, key).value_or("");
}

// --- Messages -------------------------------------------------------------------------------------------------------

void BoxRecord::Message(const std::string& text) {
  Box box;
  box.text = text;
  boxes.push_back(box);
}

bool BoxRecord::Question(const std::string& text, Buttons buttons, Icon icon) {
  Box box{Box::Kind::Question, text, buttons, icon};
  box.answered = !answers.empty();
  if (box.answered) {
    box.answer = answers.front();
    answers.pop_front();
  }
  boxes.push_back(box);
  return box.answer;
}

void BoxRecord::Fatal(int number, const std::string& text) {
  fatal_number = number;
  Box box;
  box.kind = Box::Kind::Fatal;
  box.text = text;
  boxes.push_back(box);
}

std::vector<std::string> BoxRecord::Texts(Box::Kind kind) const {
  std::vector<std::string> texts;
  for (const Box& box : boxes)
    if (box.kind == kind) texts.push_back(box.text);
  return texts;
}

int BoxRecord::Unanswered() const {
  return static_cast<int>(std::count_if(boxes.begin(), boxes.end(), [](const Box& box) { return !box.answered; }));
}

void RecordedMessages::Show(const std::string& text) {
  Message(text);
  if (OnBox) OnBox(Box(boxes.back()));
}

bool RecordedMessages::Ask(const std::string& text, Buttons buttons, Icon icon, Guard) {
  const bool answer = Question(text, buttons, icon);
  if (OnBox) OnBox(Box(boxes.back()));
  return answer;
}

void RecordedMessages::Fatal(int number, const std::string& text) {
  BoxRecord::Fatal(number, text);
  if (OnBox) OnBox(Box(boxes.back()));
}

std::vector<std::string> RecordedMessages::Take(Box::Kind kind) {
  std::vector<std::string> texts = Texts(kind);
  std::erase_if(boxes, [kind](const Box& box) { return box.kind == kind && box.answered; });
  return texts;
}

// --- File dialogs ---------------------------------------------------------------------------------------------------

std::string QueuedDialogs::Open(const std::string& folder, const std::string& filter) {
  return Next({false, folder, "", filter});
}

std::string QueuedDialogs::Save(const std::string& folder, const std::string& name, const std::string& filter) {
  return Next({true, folder, name, filter});
}

std::string QueuedDialogs::Next(Call call) {
  calls.push_back(std::move(call));
  if (answers.empty()) {
    ++unanswered;
    return {};
  }
  std::string answer = answers.front();
  answers.pop_front();
  return answer;
}

// --- Clock ----------------------------------------------------------------------------------------------------------

namespace {

namespace chr = std::chrono;

chr::sys_seconds Point(const Instant& i) {
  const chr::year_month_day day{chr::year(i.year), chr::month(static_cast<unsigned>(i.month)),
                                chr::day(static_cast<unsigned>(i.day))};
  return chr::sys_days(day) + chr::hours(i.hour) + chr::minutes(i.minute) + chr::seconds(i.second);
}

Instant Fields(chr::sys_seconds point) {
  const auto midnight = chr::floor<chr::days>(point);
  const chr::year_month_day day(midnight);
  const chr::hh_mm_ss time(point - midnight);
  return {static_cast<int>(day.year()),
          static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day())),
          static_cast<int>(time.hours().count()),
          static_cast<int>(time.minutes().count()),
          static_cast<int>(time.seconds().count())};
}

}  // namespace

bool FixedClock::Set(std::string_view utc, std::string_view offset) {
  Instant i;
  char sign = 0;
  int hours = 0, minutes = 0, end = 0;
  const std::string date(utc), zone(offset);
  if (std::sscanf(date.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &i.year, &i.month, &i.day, &i.hour, &i.minute, &i.second,
                  &end) != 6 ||
      end != static_cast<int>(date.size()))
    return false;
  // A day or an hour that doesn't exist comes back as another.
  const Instant back = Fields(Point(i));
  if (std::tie(i.month, i.day, i.hour, i.minute, i.second) !=
      std::tie(back.month, back.day, back.hour, back.minute, back.second))
    return false;
  if (std::sscanf(zone.c_str(), "%c%2d:%2d%n", &sign, &hours, &minutes, &end) != 3 ||
      end != static_cast<int>(zone.size()) || (sign != '+' && sign != '-'))
    return false;
  utc_ = i;
  offset_minutes_ = (sign == '-' ? -1 : 1) * (hours * 60 + minutes);
  return true;
}

Instant FixedClock::Local() { return Fields(Point(utc_) + chr::minutes(offset_minutes_)); }

// --- Windows --------------------------------------------------------------------------------------------------------

void SilentWindows::Created(Form& form) { events.push_back("created " + form.Name()); }

void SilentWindows::Destroyed(Form& form) { events.push_back("destroyed " + form.Name()); }

void SilentWindows::Centre(Form& form) { events.push_back("centre " + form.Name()); }

void SilentWindows::RunModal(Form& form) {
  events.push_back("modal " + form.Name());
  if (OnModal) OnModal(form);
}

void SilentWindows::ServeEvents() {
  if (OnServe) OnServe();
}

void SilentWindows::WaitForEvent() {
  if (!OnWait) throw Fin_Programme{};
  OnWait();
}

}  // namespace vorelio::doubles
