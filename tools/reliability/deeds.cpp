#include "deeds.h"

#include "core/log_line.h"
#include "core/text.h"
#include "exchange/adif_import.h"
#include "maintenance/backup.h"
#include "maintenance/rebuild.h"
#include "qsl/qsl_window.h"

namespace vorelio::reliability {

namespace {

using bench::StationRun;

void FillIn(StationRun& run) {
  run.TypeCallsign(bench::kStation);
  run.FillIn();
  // The callsign goes into the directory.
  run.Boxes().Answer(true);
}

void Save(StationRun& run) { run.Save(); }

void ShowOne(StationRun& run) {
  run.Run().Recoit([&] { run.Main().Liste_QSO.UserDblClick(kContacts / 2); });
}

void EditOne(StationRun& run) {
  ShowOne(run);
  run.Run().Recoit([&] { run.Main().Editer.UserClick(); });
  run.Run().Recoit([&] { run.Main().Prenom_A.SetText("Corrige"); });
}

void DeleteOne(StationRun& run) {
  run.Boxes().Answer(true);
  run.Run().Recoit([&] { run.Main().Effacer.UserClick(); });
}

void OpenCard(StationRun& run) {
  run.Run().Recoit([&] {
    run.Main().Liste_QSO.SetListIndex(kContacts / 2);
    run.Main().Gestion_QSL.UserClick();
    run.Run().Fenetre<QSL>().Check_Recu.UserClick();
  });
}

void TakeCard(StationRun& run) {
  run.Run().Recoit([&] { run.Run().Fenetre<QSL>().Enregistre.UserClick(); });
}

void WriteAdif(StationRun& run) {
  std::string adif = "Essai\r\n<EOH>\r\n";
  for (int i = 0; i < 500; ++i)
    adif += "<CALL:6>F5" + std::to_string(1000 + i) +
            "<QSO_DATE:8>19900301<TIME_ON:4>1200<BAND:3>20M<MODE:3>SSB<RST_SENT:2>59<RST_RCVD:2>59<EOR>\r\n";
  const std::string file = run.File("_essai.adi");
  run.Run().Disque().WriteAll(file, adif);
  run.Dialogs().Choose(file);
}

void Import(StationRun& run) {
  run.Run().Recoit([&] { Sous_Programmes::Importe_ADIF(run.Run()); });
}

void Rebuild(StationRun& run) {
  run.Run().Recoit([&] {
    Sous_Programmes::Refait_Prefixes(run.Run());
    Sous_Programmes::Refait_Departements(run.Run());
    Sous_Programmes::Refait_Locators(run.Run());
  });
}

void SetBackup(StationRun& run) {
  run.Run().reglages.Ecrit_Station("Chemin Sauvegarde", run.File("_copie"));
  // An older backup stands there already.
  run.Run().Recoit([&] { Sous_Programmes::Sauvegarde_Auto(run.Run()); });
  run.Run().Disque().Append(run.File(".log"), Construit_Ligne({}) + "\r\n");
}

void BackUp(StationRun& run) {
  run.Run().Recoit([&] { Sous_Programmes::Sauvegarde_Auto(run.Run()); });
}

}  // namespace

const std::vector<Deed>& Deeds() {
  using bench::DateMode;
  static const std::vector<Deed> deeds = {{"save, date automatic", DateMode::Automatic, FillIn, Save},
                                          {"save, date by hand", DateMode::Manual, FillIn, Save},
                                          {"edit", DateMode::Automatic, EditOne, Save},
                                          {"delete", DateMode::Automatic, ShowOne, DeleteOne},
                                          {"QSL card", DateMode::Automatic, OpenCard, TakeCard},
                                          {"import of 500", DateMode::Automatic, WriteAdif, Import},
                                          {"three rebuilds", DateMode::Automatic, {}, Rebuild},
                                          {"backup", DateMode::Automatic, SetBackup, BackUp}};
  return deeds;
}

}  // namespace vorelio::reliability
