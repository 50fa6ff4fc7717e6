#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/calendar.h"

/// How contacts come into a log one by one, each at its own date and start time.
namespace vorelio {

/// A line on its way into a log; `ligne` must outlive the merge.
struct Ligne_A_Placer {
  Moment moment;
  std::string_view ligne;
};

/// Lines of a log by their index from 0, and what takes their place.
using Lignes_Changees = std::map<std::size_t, std::string>;

/// The moment of a log line; nothing if its date or time is none.
std::optional<Moment> Moment_Ligne(std::string_view ligne);

/// Orders lines by date and start time; those of one minute stay in their order.
void Trie_Par_Moment(std::vector<Ligne_A_Placer>& lignes);

/// The text of the log with each of `nouvelles`, which are in order, behind the last line that isn't later; those of
/// `changees` stand where the old ones stood. The log's own lines keep their order. Where that isn't the order of
/// time, as few as can be count as astray, and so does a line without a real date: they stay behind the line that they
/// follow, and have no say in where a contact goes.
std::string Log_Fusionne(std::string_view log, const std::vector<Ligne_A_Placer>& nouvelles,
                         const Lignes_Changees& changees);

}  // namespace vorelio
