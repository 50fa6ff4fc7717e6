#include "map_measures.h"

#include <stdexcept>
#include <string>

#include "core/log_line.h"
#include "core/text.h"
#include "log_maker.h"
#include "station_run.h"
#include "tallies/rebuild.h"
#include "views/activity_map.h"
#include "views/department_map.h"
#include "views/locator_maps.h"

namespace vorelio::bench {

namespace {

constexpr int kFull_Log = 99999;
constexpr int kRounds = 9;

/// The made log with every contact filed under the first activity: each of them goes to the map.
std::string LogOfOneActivity() {
  std::string log = MakeLog(kFull_Log);
  const std::size_t length = kLargeur_Ligne + kFin_De_Ligne.size();
  for (std::size_t line = 0; line < log.size(); line += length)
    log[line + static_cast<std::size_t>(champs::Activ_A.colonne) - 1] = '1';
  return log;
}

}  // namespace

void MeasureMaps(std::vector<Row>& rows) {
  StationRun run(kFull_Log, DateMode::Automatic);
  Programme& programme = run.Run();
  programme.Disque().WriteAll(run.File(".log"), LogOfOneActivity());
  programme.Recoit([&] {
    Sous_Programmes::Refait_Departements(programme);
    Sous_Programmes::Refait_Locators(programme);
  });
  const auto close = [&](const char* name) {
    return [&programme, name] {
      if (Form* map = programme.Cherche_Fenetre(name)) programme.Recoit([map] { map->Unload(); });
    };
  };
  const auto departments = [&] { programme.Recoit([&] { programme.Fenetre<Carte>().Show(); }); };
  const auto activity = [&] {
    programme.Recoit([&] { programme.Fenetre<Carte_Acti>().Show(); });
    programme.Recoit([&] { programme.Fenetre<Carte_Acti>().Aff_Carte.UserClick(); });
  };
  programme.Recoit([&] { programme.Fenetre<Select_Locator>().Show(); });
  const auto squares = [&] { programme.Recoit([&] { programme.Fenetre<Select_Locator>().Command1.UserClick(); }); };
  const auto times =
      Medians(kRounds, {{close("Carte"), departments}, {close("Carte_Acti"), activity}, {close("Carte_JN"), squares}});
  if (programme.Fenetre<Carte_Acti>().NB_Activ.Caption() != std::to_string(kFull_Log))
    throw std::runtime_error("the map of the activity has lost contacts");
  const char* names[] = {"Map of the departments", "Map of an activity", "Map of a field's squares"};
  for (std::size_t i = 0; i < times.size(); ++i)
    rows.push_back({names[i], kFull_Log, times[i], {}, {}, "under 200 ms", times[i] < 200});
}

}  // namespace vorelio::bench
