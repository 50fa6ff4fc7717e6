#include "view_measures.h"

#include <functional>
#include <stdexcept>
#include <string>

#include "log_maker.h"
#include "search/search_window.h"
#include "station_run.h"
#include "statistics/activation_statistics_window.h"
#include "statistics/distance_statistics_window.h"
#include "statistics/qso_statistics_window.h"

namespace vorelio::bench {

namespace {

constexpr int kRounds = 9;

void Measure(std::vector<Row>& rows, const std::string& what, const Work& work, double limit) {
  const double time = Medians(kRounds, {work})[0];
  rows.push_back(
      {what, kFull_Log, time, {}, {}, "under " + std::to_string(static_cast<int>(limit)) + " ms", time < limit});
}

template <typename F>
Work Opening(StationRun& run) {
  return {[&run] {
            if (F* open = run.Run().Ouverte<F>()) run.Run().Recoit([open] { open->Unload(); });
          },
          [&run] { run.Run().Recoit([&run] { run.Run().Fenetre<F>().Show(); }); }};
}

}  // namespace

void MeasureViews(std::vector<Row>& rows) {
  StationRun run(kFull_Log, DateMode::Automatic);
  Measure(rows, "Statistics of distances", Opening<Statistiques>(run), 200);
  Measure(rows, "Statistics of contacts", Opening<Statistique_QSO>(run), 200);
  // The longest list that the window can be asked for.
  run.Run().Disque().WriteAll(run.File(".log"), FullLogOfOneActivity());
  run.Run().Recoit([&] { run.Run().Fenetre<Statistique_DFCF>().Show(); });
  auto& activations = run.Run().Fenetre<Statistique_DFCF>();
  Measure(rows, "Activations, half the log listed",
          {{}, [&] { run.Run().Recoit([&] { activations.Affiche_Contact.UserClick(); }); }}, 200);

  run.Run().Recoit([&] { run.Run().Fenetre<Recherche_Indicatif>(); });
  auto& search = run.Run().Fenetre<Recherche_Indicatif>();
  const auto look_for = [&](const char* callsign) {
    return Work{[&search, callsign] { search.Indica.SetText(callsign); },
                [&] { run.Run().Recoit([&] { search.Indica.UserKey(kEntree); }); }};
  };
  Measure(rows, "Search a callsign", look_for("F5XYZ"), 100);
  Measure(rows, "Search, a third of the log found", look_for("F"), 100);
  if (search.QSO_Effectues.Count() < kFull_Log / 4) throw std::runtime_error("the search has found too little");
}

}  // namespace vorelio::bench
