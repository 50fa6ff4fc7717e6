#include "maintenance/restore_activities_window.h"

#include <string>

#include "core/errors.h"
#include "core/text.h"
#include "stations/activities.h"

namespace vorelio {

using namespace Sous_Programmes;

Restoration_Activite::Restoration_Activite(Programme& programme)
    : Form(programme, "Restoration_Activite", "Update Activités"_t) {
  Ecriture_BDR.Click = [this] { Ecriture_BDR_Click(); };
}

void Restoration_Activite::Form_Load() {
  Centre();
  std::string annonce;
  try {
    Charge_Liste();
  } catch (const Erreur_Execution& erreur) {
    // The file that is named isn't the one that is missing: operators know the box by these words.
    annonce = erreur.Genre() == Erreur::Fichier_Introuvable
                  ? "Fichier " + programme_.contexte.Station_Indicatif + "_Prefixe.txt Absent"
                  : "Erreur N° "_t + std::to_string(erreur.Numero());
  }
  if (annonce.empty()) return;
  programme_.Message(annonce);
  programme_.Termine();
  programme_.Quitte_Si_Termine();
}

void Restoration_Activite::Charge_Liste() {
  const std::string sans_chemin = std::string("X:") + programme_.plateforme.separator + "XXXXXXX";
  const std::string base = programme_.reglages.Station("Chemin Sauvegarde", sans_chemin);
  Liste_Fichiers.ClearItems();
  const std::string texte = programme_.Disque().ReadAll(base + "_Activite.bak");
  for (Lecteur_Champs champs(texte); !champs.Fini();) Liste_Fichiers.AddItem(champs.Suivant());
}

void Restoration_Activite::Ecriture_BDR_Click() {
  const bool confirme = programme_.Avertissement(
      "Les activités presente dans la base de registre vont etre remplacées\r\n"
      "       par celles de la derniere sauvegarde, Continuer ?"_t);
  if (confirme) {
    programme_.reglages.Ecrit_Station("NB Activite", std::to_string(Liste_Fichiers.Count()));
    for (int n = 0; n < Liste_Fichiers.Count(); ++n)
      programme_.reglages.Ecrit_Station(Cle_Activite(n), Liste_Fichiers.Item(n));
  }
  Unload();
}

}  // namespace vorelio
