#include "tally_measures.h"

#include <string>

#include "bench/line_by_line.h"
#include "core/text.h"
#include "log_maker.h"
#include "maintenance/rebuild.h"
#include "qsl/multi_qsl_window.h"
#include "station_run.h"

namespace vorelio::bench {

namespace {

constexpr int kRounds = 5;

/// The work that a rebuild once was: the whole tally written anew for every line of the log, in memory and on no disk.
void RewriteForEveryLine(StationRun& run, const std::string& log) {
  struct {
    LineByLine::Kind kind;
    const char* ending;
  } const tallies[] = {{LineByLine::Kind::Prefix, "_Prefixe.txt"},
                       {LineByLine::Kind::Department, "_Departement.txt"},
                       {LineByLine::Kind::Locator, "_Locator.txt"}};
  for (const auto& tally : tallies) {
    run.Restore(tally.ending);
    LineByLine judge(tally.kind, run.Run().Disque().ReadAll(run.File(tally.ending)), "1.8 Mhz");
    for (Lecteur_Lignes lines(log); !lines.Fini();) judge.Take(std::string(lines.Suivante()));
  }
}

}  // namespace

void RebuildAll(StationRun& run) {
  run.Run().Recoit([&] {
    Sous_Programmes::Refait_Prefixes(run.Run());
    Sous_Programmes::Refait_Departements(run.Run());
    Sous_Programmes::Refait_Locators(run.Run());
  });
}

void MeasureRebuilds(std::vector<Row>& rows) {
  for (const int contacts : {1000, 10000, kFull_Log}) {
    StationRun run(contacts, DateMode::Automatic);
    const double time = Medians(kRounds, {{{}, [&] { RebuildAll(run); }}})[0];
    rows.push_back({"Rebuild the three tallies", contacts, time, {}, {}, {}, {}});
    if (contacts == kFull_Log) SetTarget(rows.back(), "under 60 ms", time < 60);
    // With a full log that takes minutes.
    if (contacts == kFull_Log) continue;
    const std::string log = MakeLog(contacts);
    const double plain = Medians(1, {{{}, [&] { RewriteForEveryLine(run, log); }}})[0];
    rows.push_back({"The same, rewriting for every line", contacts, plain, {}, {}, {}, {}});
  }
}

void MeasureCards(std::vector<Row>& rows) {
  constexpr int kCards = 1000;
  StationRun run(kFull_Log, DateMode::Automatic);
  const std::string log = MakeLog(kFull_Log);
  const auto tick = [&] {
    run.Run().Disque().WriteAll(run.File(".log"), log);
    run.Run().Recoit([&] { run.Run().Fenetre<Multi_QSL>().Show(); });
    auto& window = run.Run().Fenetre<Multi_QSL>();
    run.Run().Recoit([&] { window.Recherche.UserClick(); });
    for (int i = 0; i < kCards; ++i) window.Liste_QSO.UserTick(i * (window.Liste_QSO.Count() / kCards));
  };
  const auto enter = [&] { run.Run().Recoit([&] { run.Run().Fenetre<Multi_QSL>().Enregistre.UserClick(); }); };
  const double time = Medians(3, {{tick, enter}})[0];
  rows.push_back({"Enter 1,000 cards", kFull_Log, time, {}, {}, "under 3000 ms", time < 3000});
}

}  // namespace vorelio::bench
