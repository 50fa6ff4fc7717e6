#include "import_measures.h"

#include <malloc.h>

#include <cstdio>
#include <fstream>
#include <stdexcept>
#include <string>

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/adif3_writer.h"
#include "exchange/adif_import.h"
#include "exchange/import_journal_window.h"
#include "floors.h"
#include "log_maker.h"
#include "station_run.h"
#include "tally_measures.h"

namespace vorelio::bench {

namespace {

void AddField(std::string& record, const char* tag, std::string_view value) {
  record.append("<").append(tag).append(":").append(std::to_string(value.size())).append(">").append(value);
}

/// The contacts of a made log as another program would hand them over.
std::string MakeAdif(int records) {
  std::string adif = "Made for a measure\r\n<EOH>\r\n";
  const std::string log = MakeLog(records);
  for (Lecteur_Lignes lines(log); !lines.Fini();) {
    const std::string_view line = lines.Suivante();
    const std::string_view date = Lit_Log(line, champs::Date_A), time = Lit_Log(line, champs::Debut_A);
    const std::string century = Valeur(Fin(date, 2)) >= 50 ? "19" : "20";
    AddField(adif, "CALL", Lit_Log(line, champs::Indicatif_A));
    AddField(adif, "QSO_DATE",
             century + std::string(date.substr(6)) + std::string(date.substr(3, 2)) + std::string(date.substr(0, 2)));
    AddField(adif, "TIME_ON", std::string(time.substr(0, 2)) + std::string(time.substr(3)));
    AddField(adif, "BAND", "20M");
    AddField(adif, "MODE", "SSB");
    AddField(adif, "RST_SENT", "59");
    AddField(adif, "RST_RCVD", "59");
    AddField(adif, "NAME", Lit_Log(line, champs::Prenom_A));
    adif += "<EOR>\r\n";
  }
  return adif;
}

/// From the choice of the file to the reloaded log, through the window that shows what will come in.
void ImportWhole(StationRun& run, const std::string& file) {
  run.Dialogs().Choose(file);
  run.While([](Form& window) { static_cast<Import_Journal&>(window).Importer.UserClick(); });
  run.Run().Recoit([&] { Sous_Programmes::Importe_Journal(run.Run()); });
}

/// A log as the whole export gives it to another program.
std::string MakeWholeExport(int records) {
  return Fichier_ADIF3(MakeLog(records), {kStation, "JN33BB", {"QSO"}, {}}, "20240512 163000");
}

void MeasureWhole(std::vector<Row>& rows, int records) {
  constexpr int kRounds = 3;
  StationRun run(0, DateMode::Automatic);
  const std::string file = run.File("_import.adi"), scratch = run.File("_floor.log"), log = MakeLog(records);
  run.Run().Disque().WriteAll(file, MakeWholeExport(records));
  const auto floor = [&](Flush flush) { return Work{{}, [&, flush] { Rewrite(scratch, log, flush); }}; };
  const auto times =
      Medians(kRounds, {{[&] { run.Run().Disque().WriteAll(run.File(".log"), ""); }, [&] { ImportWhole(run, file); }},
                        floor(Flush::No),
                        floor(Flush::Yes)});
  if (run.Main().Liste_QSO.Count() != records) throw std::runtime_error("the whole import has lost records");
  rows.push_back({"Import " + std::to_string(records) + " records, shown", 0, times[0], times[1], times[2],
                  "under 1000 ms", times[0] < 1000});
}

void Measure(std::vector<Row>& rows, int records, int contacts) {
  constexpr int kRounds = 3;
  StationRun run(contacts, DateMode::Automatic);
  const std::string log = MakeLog(contacts);
  const std::string file = run.File("_import.adi");
  run.Run().Disque().WriteAll(file, MakeAdif(records));
  const auto prepare = [&] {
    run.Run().Disque().WriteAll(run.File(".log"), log);
    run.Dialogs().Choose(file);
  };
  const auto import = [&] { run.Run().Recoit([&] { Sous_Programmes::Importe_ADIF(run.Run()); }); };
  // The work file and then the log are written, each whole; the rebuilds are a measure of their own.
  const std::string written = MakeLog(contacts + records), scratch = run.File("_floor.log");
  const Work floor{{}, [&] {
                     Replace(scratch, written);
                     Replace(scratch, written);
                   }};
  const auto times = Medians(kRounds, {{prepare, import}, floor, {{}, [&] { RebuildAll(run); }}});
  if (run.Main().Liste_QSO.Count() != contacts + records) throw std::runtime_error("the import has lost records");
  rows.push_back({"Import " + std::to_string(records) + " ADIF records", contacts, times[0], {}, times[1], {}, {}});
  SetTarget(rows.back(), "3 times the floor and the rebuilds", times[0] <= 3 * times[1] + times[2]);
}

}  // namespace

void MeasureImports(std::vector<Row>& rows) {
  Measure(rows, 10000, 10000);
  Measure(rows, 99999, 0);
  MeasureWhole(rows, kFull_Log);
}

int ImportForMemory() {
  StationRun run(0, DateMode::Automatic);
  const std::string file = run.File("_import.adi");
  {
    const std::string made = MakeWholeExport(kFull_Log);
    run.Run().Disque().WriteAll(file, made);
  }
  malloc_trim(0);
  std::ofstream("/proc/self/clear_refs") << 5;  // From here on the peak counts.
  ImportWhole(run, file);
  std::string word;
  long peak_kb = 0;
  for (std::ifstream status("/proc/self/status"); status >> word;)
    if (word == "VmHWM:") status >> peak_kb;
  const double mb = 1048576.0, size = static_cast<double>(run.Run().Disque().Size(file)) / mb;
  const double peak = static_cast<double>(peak_kb) * 1024 / mb;
  std::printf("%.1f MB at most for a file of %.1f MB: %.2f times, target 3 times: %s\n", peak, size, peak / size,
              peak <= 3 * size ? "met" : "MISSED");
  return run.Main().Liste_QSO.Count() == kFull_Log ? 0 : 1;
}

}  // namespace vorelio::bench
