#include "stations/error_window.h"

#include <optional>

#include "core/errors.h"

namespace vorelio {

Gestion_Erreur::Gestion_Erreur(Programme& programme) : Form(programme, "Gestion_Erreur", "Erreur") {
  Initialisation.Click = [this] { Initialisation_Click(); };
  Quitter.Click = [this] { Quitter_Click(); };
}

void Gestion_Erreur::Form_Load() {
  Centre();
  Ind_Station.SetCaption(programme_.contexte.Station_Indicatif);
  Ind_Station1.SetCaption(programme_.contexte.Station_Indicatif);
}

// Without its buttons on the screen the user would have no way out of the wait.
void Gestion_Erreur::Form_Unload() { programme_.Termine(); }

void Gestion_Erreur::Initialisation_Click() {
  programme_.reglages.Ecrit_Commun("Indicatif Station", kStation_Modele);
  programme_.reglages.Ecrit_Commun("Locator Station", kSans_Locator);
  programme_.Termine();
}

void Gestion_Erreur::Quitter_Click() { programme_.Termine(); }

namespace Sous_Programmes {

void Piege_Fichier_Station(Programme& programme, std::string_view suite, const std::function<void()>& travail) {
  std::optional<Erreur_Execution> erreur;
  try {
    travail();
  } catch (const Erreur_Execution& attrapee) {
    erreur = attrapee;
  }
  if (!erreur) return;

  if (erreur->Genre() == Erreur::Fichier_Introuvable) {
    auto& fenetre = programme.Fenetre<Gestion_Erreur>();
    fenetre.Err_Departement.SetCaption(suite);
    fenetre.Show();
    programme.Attend_La_Fin();
  }
  // No other error is survived. It is told as 13, the number that the manual explains for a tally that can't be read;
  // its own words say what it was.
  programme.Evenement([&] { throw Erreur_Execution(Erreur::Type_Incompatible, erreur->Texte()); });
}

}  // namespace Sous_Programmes

}  // namespace vorelio
