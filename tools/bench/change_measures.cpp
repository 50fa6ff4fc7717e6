#include "change_measures.h"

#include <string>

#include "core/log_line.h"
#include "floors.h"
#include "log_maker.h"
#include "qsl/qsl_window.h"
#include "station_run.h"

namespace vorelio::bench {

namespace {

constexpr int kRounds = 9;
constexpr double kLimit = 2;

/// Measures one kind of change against the log's bytes put in the place of the file as often as the change does that.
void Measure(std::vector<Row>& rows, StationRun& run, const std::string& what, int contacts, const Work& work,
             int replacements) {
  const std::string log = run.Run().Disque().ReadAll(run.File(".log"));
  const std::string scratch = run.File("_floor.log");
  const Work floor{{}, [&] {
                     for (int i = 0; i < replacements; ++i) Replace(scratch, log);
                   }};
  const auto times = Medians(kRounds, {work, floor});
  rows.push_back({what, contacts, times[0], {}, times[1], {}, {}});
  // In a short log what a change costs besides the file is more than the file.
  if (contacts >= 10000) SetTarget(rows.back(), "twice the floor at most", times[0] <= kLimit * times[1]);
}

}  // namespace

void MeasureChanges(std::vector<Row>& rows, int contacts) {
  StationRun run(contacts < kFull_Log ? contacts : contacts - kRounds - 1, DateMode::Manual);
  const auto event = [&run](const auto& action) { run.Run().Recoit(action); };
  DDFM& main = run.Main();
  const auto show = [&] { event([&] { main.Liste_QSO.UserDblClick(main.Liste_QSO.Count() / 2); }); };

  const std::string date(Lit_Liste(main.Liste_QSO.Item(contacts / 2), champs::Date_A));
  Measure(rows, run, "Insert a contact by date", contacts, {[&] { run.FillIn(date); }, [&] { run.Save(); }}, 1);

  int corrections = 0;
  const auto correct = [&] {
    show();
    event([&] { main.Editer.UserClick(); });
    event([&] { main.Prenom_A.SetText("Corrige " + std::to_string(++corrections)); });
  };
  Measure(rows, run, "Correct a contact", contacts, {correct, [&] { run.Save(); }}, 1);

  const auto choose = [&] {
    show();
    run.Boxes().Answer(true);
  };
  Measure(rows, run, "Delete a contact", contacts, {choose, [&] { event([&] { main.Effacer.UserClick(); }); }}, 1);

  int card = 0;
  const auto open = [&] {
    event([&] { main.Liste_QSO.UserSelect(++card); });
    event([&] { main.Gestion_QSL.UserClick(); });
    event([&] { run.Run().Fenetre<QSL>().Check_Recu.UserClick(); });
  };
  // The new log is written to a work file first.
  Measure(rows, run, "Enter a card", contacts,
          {open, [&] { event([&] { run.Run().Fenetre<QSL>().Enregistre.UserClick(); }); }}, 2);
}

}  // namespace vorelio::bench
