#include "import_measures.h"

#include <stdexcept>
#include <string>

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/adif_import.h"
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
}

}  // namespace vorelio::bench
