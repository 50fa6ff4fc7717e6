#include "statistics/activation_statistics_window.h"

#include <string>

#include "core/bands.h"
#include "core/text.h"
#include "forms/clock_text.h"
#include "stations/activities.h"
#include "stations/log_file.h"
#include "statistics/statistics.h"

namespace vorelio {

using namespace Sous_Programmes;

Statistique_DFCF::Statistique_DFCF(Programme& programme)
    : Form(programme, "Statistique_DFCF", "Statistiques des activations contactées"_t) {
  Affiche_Contact.Click = [this] { Affiche_Contact_Click(); };
  Enregistrement.Click = [this] { Enregistrement_Click(); };
}

void Statistique_DFCF::Form_Load() {
  Centre();
  Bande_E.AddItem(kBandes_HF_Ensemble);
  Bande_E.AddItem(kBandes_VHF_Ensemble);
  for (const auto bande : kBandes) Bande_E.AddItem(bande);
  for (const std::string& nom : Noms_Activites(programme_, "Err2")) Activite_A.AddItem(nom);
  Bande_E.SetListIndex(0);
  Activite_A.SetListIndex(0);
}

void Statistique_DFCF::Affiche_Contact_Click() {
  BandActiv.SetCaption(Rogne(Bande_E.Text()));
  TypActiv.SetCaption(Rogne(Activite_A.Text()));
  Liste_Chateaux.ClearItems();
  const std::string log = Texte_Log(programme_);
  const std::string indice = std::to_string(Activite_A.ListIndex() + 1);
  for (const std::string& ligne : Lignes_Activation(log, indice, Bande_E.Text())) Liste_Chateaux.AddItem(ligne);
  TotActiv.SetCaption(Texte_Nombre_Blanc(Liste_Chateaux.Count()));
}

void Statistique_DFCF::Enregistrement_Click() {
  const std::string& station = programme_.contexte.Station_Indicatif;
  const auto ligne = [](std::string_view texte) { return std::string(texte).append(kFin_De_Ligne); };
  // The words are of castles whatever the activity: readers of these files know them so.
  std::string texte = ligne(station + " Liste alphanumerique des Chateaux contactés sur "_t + Bande_E.Text() + " au " +
                            Date_Du_Jour(programme_)) +
                      ligne("");
  for (const std::string_view contact : Liste_Chateaux.Items()) texte += ligne(contact);
  texte += ligne("") + ligne("Nombre total de Chateaux : " + Texte_Nombre_Blanc(Liste_Chateaux.Count()));

  const std::string chemin = programme_.Chemin_Station(" " + Bande_E.Text() + " Alphanumerique.txt");
  programme_.Disque().WriteAll(chemin, texte);
  programme_.Message("Le fichier a été enregistré sous le nom : "_t + chemin);
}

}  // namespace vorelio
