#include "stations/station_form.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <utility>

#include "core/errors.h"
#include "core/text.h"
#include "forms/main_window.h"
#include "forms/manual.h"
#include "geo/locator.h"
#include "stations/activities.h"
#include "stations/loading_window.h"
#include "stations/log_file.h"
#include "stations/station_files.h"

namespace vorelio {

using namespace Sous_Programmes;

namespace {

constexpr const char* kNouvel_Indicatif = "Nouvel Indicatif";
constexpr int kLargeur_Indicatif = 12;
/// Nobody has held that many callsigns: such a count is damage, and reading on would fill the memory with rows.
constexpr int kStations_Au_Plus = 9999;

/// Runs one step; if it fails, the next one still gets its turn.
void Essaie(const std::function<void()>& etape) {
  try {
    etape();
  } catch (const Erreur_Execution&) {
    // What the step hasn't done shows at the next use: a missing tally, for one, opens Gestion_Erreur.
  }
}

/// What a new station starts with, in the section of its own.
constexpr std::array<std::pair<const char*, const char*>, 11> kReglages_Neufs = {{
    {"Date Automatique", "True"},
    {"Heure UTC", "True"},
    {"Activite0", "QSO"},
    {"Activite1", "DFCF"},
    {"Activite2", "DMF"},
    {"Activite3", "DIFI"},
    {"Activite4", "DIFM"},
    {"NB Activite", "5"},
    {"bande Utilisee", "0"},
    {"Mode Utilise", "0"},
    {"Activite", "0"},
}};

int Sans_Barre(int touche) { return touche == '/' ? '_' : touche; }

}  // namespace

Station::Station(Programme& programme)
    : Form(programme, "Station", "Identification de la station"),
      Label5(*this, "Label5", "Le / est remplacé par _ à la saisie"_t) {
  // The fields wait for Enter on the row "Nouvel Indicatif", the button for a station to take over.
  EnableAll({&New_Indicatif, &New_Locator, &Label3, &Label4, &Label5, &Validation}, false);

  Liste_Indicatifs.KeyPress = [this](int& touche) { Liste_Indicatifs_KeyPress(touche); };
  New_Indicatif.KeyPress = [this](int& touche) { New_Indicatif_KeyPress(touche); };
  New_Locator.KeyPress = [this](int& touche) { New_Locator_KeyPress(touche); };
  Validation.Click = [this] { Validation_Click(); };
  Quitter.Click = [this] { Quitter_Click(); };
  Autre_Logiciel.Click = [this] { Ouvre_Mode_Emploi(programme_, "venir"); };
}

void Station::Form_Load() {
  const Reglages& reglages = programme_.reglages;
  Centre();
  New_Indicatif.SetText(reglages.Commun("Indicatif Station", kStation_Modele));
  New_Locator.SetText(reglages.Commun("Locator Station", "JN33BB"));

  if (New_Indicatif.Text() != kStation_Modele) {
    const int nombre = Nombre_Entier(reglages.Commun("Nombre Indicatif", "0"));
    if (nombre > kStations_Au_Plus) throw Erreur_Execution(Erreur::Depassement, "Nombre Indicatif");
    for (int i = 1; i <= nombre; ++i)
      Liste_Indicatifs.AddItem(reglages.Commun("Indicatif" + std::to_string(i), "No Call"));
  }
  Liste_Indicatifs.AddItem(kNouvel_Indicatif);
  Liste_Indicatifs.SetListIndex(0);
  New_Indicatif.Clear();
  New_Locator.Clear();
}

bool Station::Nouvel_Indicatif_Choisi() const { return Liste_Indicatifs.Text() == kNouvel_Indicatif; }

void Station::Liste_Indicatifs_KeyPress(int& touche) {
  if (touche != kEntree) {
    touche = Sans_Barre(Touche_Majuscule(touche));
    return;
  }
  touche = 0;
  Liste_Indicatifs.SetColour(kFace_Bouton);
  if (Nouvel_Indicatif_Choisi()) {
    EnableAll({&New_Indicatif, &New_Locator, &Label3, &Label4, &Label5}, true);
    New_Indicatif.Clear();
    New_Locator.Clear();
    New_Indicatif.SetColour(kSaisie);
    New_Indicatif.SetFocus();
  } else {
    Validation.SetEnabled(true);
    Validation.SetFocus();
    const std::string choisie(Liste_Indicatifs.Text());
    New_Indicatif.SetText(Rogne(Coupe(choisie, 1, kLargeur_Indicatif)));
    New_Locator.SetText(Fin(choisie, static_cast<int>(kLongueur_Locator)));
  }
}

void Station::New_Indicatif_KeyPress(int& touche) {
  touche = Sans_Barre(Touche_Majuscule(touche));
  if (touche != kEntree) return;
  touche = 0;
  New_Indicatif.SetColour(kFait);
  New_Locator.SetColour(kSaisie);
  New_Locator.SetFocus();
}

void Station::New_Locator_KeyPress(int& touche) {
  touche = Touche_Majuscule(touche);
  if (touche != kEntree) return;
  touche = 0;
  New_Locator.SetColour(kFait);
  Validation.SetEnabled(true);
  Validation.SetFocus();
}

bool Station::Indicatif_Bon(const std::string& indicatif) {
  if (indicatif.empty()) {
    programme_.Message("Vous devez entrer un indicatif");
    return false;
  }
  if (indicatif.size() > kLargeur_Indicatif) {
    programme_.Message("12 caracteres maximum pour l'indicatif");
    return false;
  }
  const bool permis = std::all_of(indicatif.begin(), indicatif.end(),
                                  [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || c == '_'; });
  if (!permis) {
    programme_.Message("L'indicatif ne doit comporter que des lettres des chiffres ou le signe _ ");
    New_Indicatif.Clear();
  }
  return permis;
}

bool Station::Locator_Bon(const std::string& locator) {
  if (locator.empty()) {
    programme_.Message("Vous devez entrer un locator");
    return false;
  }
  if (locator.size() != kLongueur_Locator) {
    programme_.Message("Le locator doit comporter 6 caracteres");
    return false;
  }
  int erreur = 0;
  Verifie_Locator(locator, erreur);
  if (erreur == 1) programme_.Message("Erreur dans la saisie du locator");
  return erreur != 1;
}

void Station::Validation_Click() {
  const std::string indicatif = Majuscules(New_Indicatif.Text());
  if (!Indicatif_Bon(indicatif)) return;
  const std::string locator = Majuscules(New_Locator.Text());
  if (!Locator_Bon(locator)) return;

  // From here on a failure doesn't keep the steps after it from being tried.
  if (Nouvel_Indicatif_Choisi()) Essaie([&] { Ajoute_A_La_Liste(indicatif, locator); });

  // Only a log that isn't there makes a new station. One that merely can't be read now must not be copied over.
  bool fichier_absent = false;
  Essaie([&] { fichier_absent = !programme_.Disque().Exists(programme_.Cherche_Log(indicatif)); });

  auto& principale = programme_.Principale();
  programme_.contexte.Station_Indicatif = indicatif;
  programme_.contexte.Station_Locator = locator;
  principale.Affiche_Station();

  if (fichier_absent)
    Cree_Station(indicatif, locator);
  else
    Adopte_Station(indicatif, locator);
  Montre_Station();

  // In an empty log this selects nothing, and so forgets the line that was selected in the log before.
  Essaie([&] { principale.Journal().SetListIndex(principale.Journal().Count() - 1); });
  principale.Attend_Bande();
  Unload();
}

void Station::Quitter_Click() { Unload(); }

void Station::Ajoute_A_La_Liste(const std::string& indicatif, const std::string& locator) {
  const Reglages& reglages = programme_.reglages;
  const std::int64_t nombre = std::int64_t{Nombre_Entier(reglages.Commun("Nombre Indicatif", "0"))} + 1;
  reglages.Ecrit_Commun("Nombre Indicatif", std::to_string(nombre));
  reglages.Ecrit_Commun("Indicatif" + std::to_string(nombre), Complete(indicatif, kLargeur_Indicatif, 1) + locator);
}

void Station::Cree_Station(const std::string& indicatif, const std::string& locator) {
  const Reglages& reglages = programme_.reglages;
  Essaie([&] { Cree_Fichiers_Station(programme_, indicatif); });
  Essaie([&] { Enregistre_Choix(indicatif, locator); });
  Essaie([&] {
    reglages.Ecrit_Station("Indicatif Station", indicatif);
    reglages.Ecrit_Station("Locator Station", locator);
    for (const auto& [cle, valeur] : kReglages_Neufs) reglages.Ecrit_Station(cle, valeur);
  });
  Essaie([&] { Relit_Choix(); });
  Essaie([&] { Ecrit_Fichier_Activites(programme_); });
  programme_.contexte.Numero_Sauvegarde = 0;
  Essaie([&] {
    reglages.Ecrit_Station("Chemin Sauvegarde", programme_.Chemin_De(indicatif, ""));
    reglages.Ecrit_Station("Delta Sauvegarde", "10");
  });
}

void Station::Adopte_Station(const std::string& indicatif, const std::string& locator) {
  Essaie([&] { Enregistre_Choix(indicatif, locator); });
  Essaie([&] { Relit_Choix(); });
}

void Station::Enregistre_Choix(const std::string& indicatif, const std::string& locator) {
  programme_.reglages.Ecrit_Commun("Indicatif Station", indicatif);
  programme_.reglages.Ecrit_Commun("Locator Station", locator);
}

void Station::Relit_Choix() {
  programme_.contexte.Station_Indicatif = programme_.reglages.Commun("Indicatif Station", kStation_Modele);
  programme_.contexte.Station_Locator = programme_.reglages.Commun("Locator Station", kSans_Locator);
}

void Station::Montre_Station() {
  auto& principale = programme_.Principale();
  principale.Affiche_Station();
  Essaie([&] { principale.Charge_Bande_Mode(); });
  Essaie([&] { principale.Montre_Options(); });
  Essaie([&] { principale.Charge_Activites(5); });
  Essaie([&] { Charge_Log(programme_, programme_.contexte.Station_Indicatif); });
  // A load that fails leaves its own window in place of the main one.
  if (!principale.Visible()) {
    programme_.Fenetre<Chargement>().Hide();
    principale.Show();
  }
  Essaie([&] { principale.Peint_Departements(); });
}

}  // namespace vorelio
