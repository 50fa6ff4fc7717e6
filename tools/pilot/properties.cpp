#include <array>
#include <cstdio>
#include <optional>

#include "core/text.h"
#include "pilot/commands.h"

/// The properties of a control that a scenario can name.
namespace vorelio::pilot {

namespace {

std::string ColourWord(Couleur colour) {
  if (colour == kFond_Fenetre) return "window";
  char word[9];
  std::snprintf(word, sizeof word, "%X", static_cast<unsigned>(colour));
  return word;
}

using Reading = std::optional<std::string>;

Reading Words(const Control& control) { return Vers_Utf8(control.Words()); }
Reading Enabled(const Control& control) { return YesNo(control.Enabled()); }
Reading Visible(const Control& control) { return YesNo(control.Visible()); }
Reading Colour(const Control& control) { return ColourWord(control.Colour()); }

Reading Checked(const Control& control) {
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) return YesNo(option->Set());
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return YesNo(box->Checked());
  if (const auto* entry = dynamic_cast<const MenuItem*>(&control)) return YesNo(entry->Checked());
  return std::nullopt;
}

Reading Index(const Control& control) {
  const auto* list = dynamic_cast<const ListControl*>(&control);
  return list ? Reading(std::to_string(list->ListIndex())) : std::nullopt;
}

Reading Count(const Control& control) {
  const auto* list = dynamic_cast<const ListControl*>(&control);
  return list ? Reading(std::to_string(list->Count())) : std::nullopt;
}

Reading Caret(const Control& control) {
  const auto* field = dynamic_cast<const TextField*>(&control);
  return field ? Reading(std::to_string(field->Caret())) : std::nullopt;
}

struct NamedProperty {
  std::string_view name;
  Reading (*read)(const Control&);
};

constexpr NamedProperty kProperties[] = {{"text", Words},      {"caption", Words},   {"enabled", Enabled},
                                         {"visible", Visible}, {"checked", Checked}, {"colour", Colour},
                                         {"index", Index},     {"count", Count},     {"caret", Caret}};

}  // namespace

std::string PropertyOf(const Control& control, const std::string& property) {
  for (const NamedProperty& known : kProperties) {
    if (known.name != property) continue;
    if (auto value = known.read(control)) return *value;
    throw Failure{control.Name() + " has no property " + property};
  }
  throw Failure{"unknown property " + property};
}

bool IsText(std::string_view property) { return property == "text" || property == "caption"; }

}  // namespace vorelio::pilot
