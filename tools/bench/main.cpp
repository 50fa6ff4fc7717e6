// Measures what the operator waits for, each against its floor in the same run, and prints one table.

#include <cstdio>
#include <exception>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "change_measures.h"
#include "core/log_line.h"
#include "floors.h"
#include "import_measures.h"
#include "log_maker.h"
#include "map_measures.h"
#include "start_time.h"
#include "station_run.h"
#include "stations/log_file.h"
#include "table.h"
#include "tallies/department_tally.h"
#include "tallies/prefix_tally.h"
#include "tally_measures.h"
#include "view_measures.h"

namespace vorelio::bench {
namespace {

constexpr int kRounds = 9;

void MeasureReading(std::vector<Row>& rows, int contacts) {
  StationRun run(contacts, DateMode::Automatic);
  std::vector<std::string> lines;
  const auto load =
      Medians(kRounds, {{{}, [&] { run.Run().Recoit([&] { Sous_Programmes::Charge_Log(run.Run(), kStation); }); }},
                        {{}, [&] { ReadLines(run.File(".log"), lines); }}});
  // Without lines there is nothing to stand on.
  const auto floor = [contacts](double time) { return contacts > 0 ? std::optional(time) : std::nullopt; };
  rows.push_back({"Load the log", contacts, load[0], floor(load[1]), {}, {}, {}});
  if (contacts > 0) SetTarget(rows.back(), "3 times the floor at most", load[0] <= 3 * load[1]);

  volatile int found = 0;
  const auto look_up = Medians(kRounds, {{[&] {
                                            run.Cancel();
                                            run.TypeCallsign(kIndicatif_Absent);
                                          },
                                          [&] { run.LookUp(); }},
                                         {{}, [&] { found = CountCallsign(lines, kIndicatif_Absent); }}});
  rows.push_back({"Look a new callsign up", contacts, look_up[0], floor(look_up[1]), {}, "under 5 ms", look_up[0] < 5});
}

/// Measures saves at the end of a log, which is full with the last of them; gives the median.
double MeasureSaves(std::vector<Row>& rows, int contacts) {
  StationRun run(contacts < kFull_Log ? contacts : contacts - kRounds - 1, DateMode::Automatic);
  const std::string scratch = run.File("_floor.log");
  const std::string line(kLargeur_Ligne + kFin_De_Ligne.size(), 'x');
  Rewrite(scratch, MakeLog(contacts), Flush::Yes);
  const auto floor = [&](Flush flush) { return Work{{}, [&, flush] { AppendTo(scratch, line, flush); }}; };
  const auto times =
      Medians(kRounds, {{[&] { run.FillIn(); }, [&] { run.Save(); }}, floor(Flush::No), floor(Flush::Yes)});
  rows.push_back({"Save a contact", contacts, times[0], times[1], times[2], {}, {}});
  return times[0];
}

void MeasureTallies(std::vector<Row>& rows) {
  using namespace Sous_Programmes;
  StationRun run(0, DateMode::Automatic);
  std::string code, country, prefix;
  const auto measure = [&](const std::string& what, const std::string& ending, const std::function<void()>& update) {
    const auto ready = [&, ending] { run.Restore(ending); };
    const std::string path = run.File(ending);
    const auto times = Medians(kRounds, {{ready, [&] { run.Run().Recoit(update); }},
                                         {ready, [&] { ReadAndRewrite(path, Flush::No); }},
                                         {ready, [&] { ReadAndRewrite(path, Flush::Yes); }}});
    rows.push_back({what, 0, times[0], times[1], times[2], {}, {}});
  };
  measure("Update a department", "_Departement.txt", [&] { Maj_Departement(run.Run(), "57", "1", "14 Mhz"); });
  measure("Update a prefix", "_Prefixe.txt",
          [&] { Maj_Prefixe(run.Run(), kIndicatif_Absent, "14 Mhz", code, country, prefix); });
}

void MeasureStarts(std::vector<Row>& rows) {
  const StartCost empty = MeasureStart(0, kRounds);
  for (const int contacts : {0, 1000, 10000, kFull_Log}) {
    const StartCost start = contacts == 0 ? empty : MeasureStart(contacts, kRounds);
    const bool full = contacts == kFull_Log;
    rows.push_back({"Start, inside the process", contacts, start.inside, {}, {}, {}, {}});
    rows.push_back({"Start, seen from outside", contacts, start.outside, {}, {}, {}, {}});
    if (full) SetTarget(rows.back(), "40 ms longer than with 0 at most", start.outside - empty.outside <= 40);
    rows.push_back({"Memory of the process", contacts, {}, {}, {}, {}, {}});
    rows.back().mebibytes = start.mebibytes;
    if (full) SetTarget(rows.back(), "25 MiB more than with 0 at most", start.mebibytes - empty.mebibytes <= 25);
  }
}

void MeasureAll() {
  std::vector<Row> rows;
  std::vector<double> saves;
  for (const int contacts : {0, 1000, 10000, kFull_Log}) {
    std::fprintf(stderr, "%d QSOs...\n", contacts);
    MeasureReading(rows, contacts);
    saves.push_back(MeasureSaves(rows, contacts));
    if (contacts == kFull_Log)
      SetTarget(rows.back(), "as with 0, to a quarter and 2 ms", saves.back() <= 1.25 * saves.front() + 2);
    if (contacts > 0) MeasureChanges(rows, contacts);
  }
  std::fprintf(stderr, "Tallies and starts...\n");
  MeasureTallies(rows);
  std::fprintf(stderr, "Rebuilds, cards and maps...\n");
  MeasureRebuilds(rows);
  MeasureCards(rows);
  MeasureMaps(rows);
  std::fprintf(stderr, "Imports...\n");
  MeasureImports(rows);
  std::fprintf(stderr, "Statistics and searches...\n");
  MeasureViews(rows);
  MeasureStarts(rows);
  Print(rows);
  PrintGrowth(rows);
}

}  // namespace
}  // namespace vorelio::bench

int main(int argc, char** argv) {
  try {
    // In a process of its own, for its memory to be its own.
    if (argc == 2 && std::string(argv[1]) == "--memory") return vorelio::bench::ImportForMemory();
    vorelio::bench::MeasureAll();
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bench: %s\n", error.what());
    return 1;
  }
}
