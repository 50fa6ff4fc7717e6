#include "exchange/award_export.h"

#include <algorithm>

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

// The companions' columns want the fields at their full width, or at the start of it.

std::string Ligne_Tournoi(const Compagnon& compagnon, std::string_view item, const std::string& reference) {
  return std::string(Champ_Liste(item, champs::Date_A))
      .append("  ")
      .append(reference)
      .append("  ")
      .append(compagnon.site)
      .append("  ")
      .append(Champ_Liste(item, champs::Indicatif_A));
}

std::string Ligne_Diplome(const Compagnon& compagnon, std::string_view item, const std::string& reference) {
  std::string ligne(Champ_Liste(item, champs::Indicatif_A));
  // Lighthouses are counted by department as well.
  if (compagnon.sigle == "DPLF") {
    ligne.append(" ").append(Majuscules(Champ_Liste(item, champs::Depart_Court))).append("   ");
  } else {
    ligne.append("      ");
  }
  ligne.append(Majuscules(Champ_Liste(item, champs::Prenom_A)));
  const auto debut = [item](const Champ& champ, int largeur) { return Coupe(Champ_Liste(item, champ), 1, largeur); };
  for (const std::string_view champ :
       {std::string_view(reference), Champ_Liste(item, champs::Date_A), Champ_Liste(item, champs::Debut_A),
        debut(champs::Mode_A, 3), debut(champs::Bande_A, 7), debut(champs::RSTR_A, 3), debut(champs::RSTE_A, 3)})
    ligne.append(" ").append(champ);
  return ligne.append(" ").append(Blancs(compagnon.blancs));
}

}  // namespace

bool Activite_Exportable(std::string_view activite) {
  return std::any_of(kCompagnons.begin(), kCompagnons.end(),
                     [&](const Compagnon& compagnon) { return compagnon.sigle == activite; });
}

std::string Reference_Activation(const Compagnon& compagnon, std::string_view ligne_liste) {
  const std::string_view reference = Coupe(ligne_liste, compagnon.colonne_item, compagnon.largeur);
  return std::string(compagnon.tournoi ? Rogne(reference) : reference);
}

std::string Ligne_Compagnon(const Compagnon& compagnon, std::string_view ligne_liste) {
  const std::string reference = Reference_Activation(compagnon, ligne_liste);
  return compagnon.tournoi ? Ligne_Tournoi(compagnon, ligne_liste, reference)
                           : Ligne_Diplome(compagnon, ligne_liste, reference);
}

Deja_Contacte Cherche_Reference(const Compagnon& compagnon, std::string_view texte, std::string_view reference) {
  Deja_Contacte resultat;
  const std::string_view zone = Coupe(reference, 1, 2);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    if (Coupe(ligne, compagnon.colonne_reference, compagnon.largeur) == reference) {
      resultat.trouve = true;
      resultat.date = Coupe(ligne, compagnon.colonne_date, champs::Date_A.largeur);
    }
    if (Coupe(ligne, compagnon.colonne_reference, 2) == zone) resultat.zone_vue = true;
  }
  return resultat;
}

}  // namespace vorelio
