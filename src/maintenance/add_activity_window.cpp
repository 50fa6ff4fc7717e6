#include "maintenance/add_activity_window.h"

#include "core/text.h"
#include "forms/main_window.h"
#include "stations/activities.h"

namespace vorelio {

using namespace Sous_Programmes;

Ajout_Activite::Ajout_Activite(Programme& programme) : Form(programme, "Ajout_Activite", "Ajout d'une activité"_t) {
  Nom_Activ.KeyPress = [this](int& touche) { Nom_Activ_KeyPress(touche); };
  Command1.Click = [this] { Command1_Click(); };
}

void Ajout_Activite::Form_Load() {
  Centre();
  programme_.contexte.Nb_Activite = programme_.reglages.Nombre_Activites(2);
  for (const std::string& nom : Noms_Activites(programme_, "Err4")) Activ_Exist.AddItem(nom);
}

void Ajout_Activite::Nom_Activ_KeyPress(int& touche) { touche = Touche_Majuscule(touche); }

void Ajout_Activite::Command1_Click() {
  const Reglages& reglages = programme_.reglages;
  auto& nombre = programme_.contexte.Nb_Activite;
  nombre = reglages.Nombre_Activites(2);
  reglages.Ecrit_Station(Cle_Activite(nombre), Nom_Activ.Text());
  reglages.Ecrit_Station("NB Activite", std::to_string(nombre + 1));
  programme_.Principale().Charge_Activites(2, "err5");
  Unload();
}

void Ajout_Activite::Form_Unload() { Ecrit_Fichier_Activites(programme_); }

}  // namespace vorelio
