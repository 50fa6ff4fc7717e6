#include "map_measures.h"

#include <stdexcept>
#include <string>

#include "log_maker.h"
#include "maintenance/rebuild.h"
#include "maps/activity_map.h"
#include "maps/department_map.h"
#include "maps/locator_maps.h"
#include "station_run.h"

namespace vorelio::bench {

namespace {

constexpr int kRounds = 9;

}  // namespace

void MeasureMaps(std::vector<Row>& rows) {
  StationRun run(kFull_Log, DateMode::Automatic);
  Programme& programme = run.Run();
  programme.Disque().WriteAll(run.File(".log"), FullLogOfOneActivity());
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
