#include "exchange/award_export.h"

#include <algorithm>

#include "core/log_line.h"
#include "core/text.h"

namespace vorelio {

namespace {

/// Fields of a `Ligne_Liste` at their full width, as the companions' columns want them.
class Item {
 public:
  explicit Item(std::string_view ligne) : ligne_(ligne) {}

  std::string_view Champ_Entier(const Champ& champ) const { return Debut(champ, champ.largeur); }
  std::string_view Debut(const Champ& champ, int largeur) const {
    return Coupe(ligne_, champ.colonne + kColonnes_Numero, largeur);
  }

 private:
  std::string_view ligne_;
};

std::string Ligne_Tournoi(const Compagnon& compagnon, const Item& item, const std::string& reference) {
  return std::string(item.Champ_Entier(champs::Date_A))
      .append("  ")
      .append(reference)
      .append("  ")
      .append(compagnon.site)
      .append("  ")
      .append(item.Champ_Entier(champs::Indicatif_A));
}

std::string Ligne_Diplome(const Compagnon& compagnon, const Item& item, const std::string& reference) {
  std::string ligne(item.Champ_Entier(champs::Indicatif_A));
  // Lighthouses are counted by department as well.
  if (compagnon.sigle == "DPLF") {
    ligne.append(" ").append(Majuscules(item.Debut(champs::Depart_A, 2))).append("   ");
  } else {
    ligne.append("      ");
  }
  ligne.append(Majuscules(item.Champ_Entier(champs::Prenom_A)));
  for (const std::string_view champ :
       {std::string_view(reference), item.Champ_Entier(champs::Date_A), item.Champ_Entier(champs::Debut_A),
        item.Debut(champs::Mode_A, 3), item.Debut(champs::Bande_A, 7), item.Debut(champs::RSTR_A, 3),
        item.Debut(champs::RSTE_A, 3)})
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
  const Item item(ligne_liste);
  return compagnon.tournoi ? Ligne_Tournoi(compagnon, item, reference) : Ligne_Diplome(compagnon, item, reference);
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
