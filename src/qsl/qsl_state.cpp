#include "qsl/qsl_state.h"

#include <optional>

#include "core/bands.h"
#include "core/log_line.h"
#include "core/text.h"
#include "forms/clock_text.h"
#include "forms/main_window.h"
#include "maps/tally_painting.h"
#include "stations/log_guard.h"
#include "tallies/department_tally.h"
#include "tallies/locator_tally.h"
#include "tallies/tally_file.h"

namespace vorelio::Sous_Programmes {

namespace {

/// What sets a card that was sent apart from one that was received.
struct Genre_Carte {
  std::string_view etat_seule;  ///< State of a contact with this card alone.
  int etat_autre;               ///< State of a contact with the other card alone.
  std::string_view bande_50;    ///< What is taken for the 50 MHz band.
  int carre_jusqu_a;            ///< Square codes up to this one become `etat_seule`, higher ones "4".
  Champ garde;                  ///< What of the QSL block stays before today's date.
  int reste;                    ///< Characters at the line's end that stay after it.
};

constexpr Genre_Carte kEnvoyee{"2", 3, "50 Mhz", 2, {137, 0, 0}, 55};

// "50Mhz" without its blank is no band: a card received on 50 MHz never reaches the squares. The tallies in operators'
// folders are kept so, card by card; a rebuild is the way to even them out.
constexpr Genre_Carte kRecue{"3", 2, "50Mhz", 1, {137, 9, 0}, 46};

/// The squares' turn: one of the seven bands of the contact, or the form's own band on 24 GHz, whatever the contact's
/// is: operators' tallies hold what that band gave, and a card must go on where the last one left them.
bool Compte_Le_Carre(const Genre_Carte& carte, std::string_view bande, std::string_view bande_courante) {
  if (bande_courante == kBandes.back()) return true;
  if (bande == carte.bande_50) return true;
  return Bande_VHF(bande) && bande != kBandes[kBandes_HF] && bande != kBandes.back();
}

void Maj_Carre(Programme& programme, const Genre_Carte& carte, std::string_view carre, std::string_view bande) {
  std::string code, ligne;
  Cherche_Locator(programme, carre, code, bande, ligne);
  const double ancien = Valeur(code);
  if (ancien >= 0 && ancien <= 4) code = ancien <= carte.carre_jusqu_a ? std::string(carte.etat_seule) : "4";
  programme.saisie.Carre_Nouveau = ligne.substr(0, 4);
  Maj_Locator(programme, programme.saisie.Carre_Nouveau, code, bande);
  // The square stands in the place of a field, so nothing is painted: the grid is repainted by the caller.
  Affiche_Locators(programme, bande, carre, programme.contexte.Nb_Contactes);
}

void Maj_QSL(Programme& programme, const Genre_Carte& carte, Lignes_Remplacees& remplacees) {
  auto& saisie = programme.saisie;
  const std::string ligne = saisie.Ligne_Selection;
  const std::string depart = Forme_Pointage(std::string(Lit_Liste(ligne, champs::Depart_Court)));
  const std::string bande(Lit_Liste(ligne, champs::Bande_A));
  const std::string carre(Coupe(ligne, champs::Locator_A.colonne + kColonnes_Numero, 4));
  const std::string aujourd_hui = programme.Principale().Saisie_En_UTC() ? Date_UTC(programme) : Date_Locale(programme);

  std::string code, nom, ligne_dpt;
  Cherche_Departement(programme, depart, code, nom, bande, ligne_dpt);

  std::string etat;
  if (saisie.Etat_QSL_Courant == 0 || saisie.Etat_QSL_Courant == 1) etat = carte.etat_seule;
  if (saisie.Etat_QSL_Courant == carte.etat_autre) etat = "4";
  if (etat.empty()) return;

  std::string nouvelle(Coupe(ligne, 1 + kColonnes_Numero, champs::Etat_QSL.colonne - 1));
  nouvelle.append(etat).append(" ");
  nouvelle.append(Champ_Liste(ligne, carte.garde));
  nouvelle.append(aujourd_hui).append(Fin(ligne, carte.reste));
  // A contact whose both cards are entered at once goes on from "sent".
  if (etat == "2") saisie.Etat_QSL_Courant = 2;

  if (Valeur(code) < Valeur(etat)) Maj_Departement(programme, depart, etat, bande);
  if (Compte_Le_Carre(carte, bande, programme.contexte.Bande_Courante)) Maj_Carre(programme, carte, carre, bande);

  remplacees.Note(Fin(ligne, kLargeur_Ligne), nouvelle);
  saisie.Ligne_Selection = ligne.substr(0, kColonnes_Numero) + nouvelle;
}

}  // namespace

void Lignes_Remplacees::Applique(Programme& programme) {
  if (lignes_.empty()) return;
  const auto a_faire = std::move(lignes_);
  lignes_.clear();
  const std::string log = programme.Chemin_Log(programme.contexte.Station_Indicatif);
  const std::string temporaire = programme.Chemin("Temporaire4.txt");
  Ecrit_Temporaire(programme.Disque(), log, temporaire, [&](std::string_view ligne) {
    const auto place = a_faire.find(ligne);
    return place == a_faire.end() ? std::nullopt : std::optional(place->second);
  });
  Prend_Log(programme, log, temporaire);
  // A change of the list that comes before it is read anew rewrites the log from it.
  auto& liste = programme.Principale().Journal();
  for (int i = 0; i < liste.Count(); ++i) {
    const auto place = a_faire.find(liste.Item(i).substr(kColonnes_Numero));
    if (place != a_faire.end()) liste.SetItem(i, Colonne_Numero(i + 1) + place->second);
  }
}

void Maj_QSL_Envoyee(Programme& programme, Lignes_Remplacees& remplacees) { Maj_QSL(programme, kEnvoyee, remplacees); }

void Maj_QSL_Recue(Programme& programme, Lignes_Remplacees& remplacees) { Maj_QSL(programme, kRecue, remplacees); }

}  // namespace vorelio::Sous_Programmes
