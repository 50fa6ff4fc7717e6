#include "station_run.h"

#include <map>
#include <stdexcept>

#include "doubles/ready_station.h"
#include "log_maker.h"
#include "stations/station_files.h"

namespace vorelio::bench {

StationRun::StationRun(int contacts, DateMode mode)
    : programme_(devices_.Join(settings_, messages_, dialogs_, clock_, windows_, disk_, folder_.Path())) {
  doubles::CopyTemplates(folder_.Path());
  Sous_Programmes::Cree_Fichiers_Station(programme_, kStation);
  doubles::SeedStationSettings(settings_, folder_.Path(), '/', kStation, "JN33BB");
  const std::string section = std::string("Setup ") + kStation;
  settings_.Write("DDFM", section, "Date Automatique", mode == DateMode::Automatic ? "True" : "False");
  // A backup in the middle of a measure would be another measure.
  settings_.Write("DDFM", section, "Delta Sauvegarde", "1000000");
  disk_.WriteAll(File(".log"), MakeLog(contacts));
  programme_.Recoit([this] { programme_.Fenetre<DDFM>(); });
  MustStillRun();
}

void StationRun::Restore(const std::string& ending) { disk_.Copy(folder_.File("FXXXX" + ending), File(ending)); }

void StationRun::TypeCallsign(const std::string& callsign) {
  if (!Main().Indicatif_A.Enabled()) Main().Bande_A.UserKey(kEntree);
  Main().Indicatif_A.UserText(callsign, 0);
}

void StationRun::LookUp() {
  programme_.Recoit([this] { Main().Indicatif_A.UserKey(kEntree); });
  MustStillRun();
}

void StationRun::Cancel() {
  programme_.Recoit([this] { Main().Annuler.UserClick(); });
  MustStillRun();
}

void StationRun::FillIn(const std::string& date) {
  const std::map<const Control*, std::string> texts = {{&Main().Indicatif_A, "F5XYZ"}, {&Main().Depart_A, "57"},
                                                       {&Main().Date_A, date},         {&Main().Debut_A, "12:00"},
                                                       {&Main().Fin_A, "12:01"},       {&Main().Prenom_A, "Michel"}};
  constexpr int kMost_Fields = 30;
  for (int i = 0; !Main().Enregistrer.Enabled() && i < kMost_Fields; ++i) {
    Control* focus = programme_.Focus();
    programme_.Recoit([&] {
      if (auto* field = dynamic_cast<TextField*>(focus)) {
        if (const auto text = texts.find(focus); text != texts.end()) field->SetText(text->second);
        field->UserKey(kEntree);
      } else if (auto* box = dynamic_cast<ComboBox*>(focus)) {
        box->UserKey(kEntree);
      }
    });
  }
  MustStillRun();
  if (!Main().Enregistrer.Enabled()) throw std::runtime_error("the chain of fields has come to no end");
}

void StationRun::Save() {
  programme_.Recoit([this] { Main().Enregistrer.UserClick(); });
  MustStillRun();
}

void StationRun::MustStillRun() const {
  if (programme_.Termine_Deja())
    throw std::runtime_error("the program has ended with error " + std::to_string(programme_.Erreur_Fatale()));
}

}  // namespace vorelio::bench
