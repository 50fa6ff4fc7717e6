#include "search/search.h"

#include <array>

#include "core/errors.h"
#include "core/text.h"
#include "search/found_line.h"

namespace vorelio {

namespace {

struct Cle {
  int colonne, largeur;  ///< In the list's item.
  bool rognee;
  bool majuscules;
  bool contient;
  const char* message_vide;
};

// The callsign's last two columns aren't looked at. The reference is looked for where operators write it, in the place,
// with the end of the report before it.
constexpr std::array<Cle, 5> kCles = {{{17, 10, true, true, true, "Entrez un indicatif"},
                                       {7, 8, true, true, false, "Entrez une date"},
                                       {43, 2, false, false, false, "Entrez un departement"},
                                       {48, 4, false, false, false, "Entrez un locator"},
                                       {89, 20, false, true, true, "Entrez une reference"}}};

const Cle& Cle_De(int option) {
  if (option < 1 || option > static_cast<int>(kCles.size())) throw Erreur_Execution(Erreur::Indice_Hors_Limites);
  return kCles[static_cast<std::size_t>(option - 1)];
}

}  // namespace

bool Repond(std::string_view element, int option, std::string_view cherche) {
  const Cle& cle = Cle_De(option);
  std::string_view texte = Coupe(element, cle.colonne, cle.largeur);
  if (cle.rognee) texte = Rogne(texte);
  return cle.contient ? texte.find(cherche) != std::string_view::npos : texte == cherche;
}

std::string Texte_Cherche(std::string_view texte, int option) {
  return Cle_De(option).majuscules ? Majuscules(texte) : std::string(texte);
}

const char* Message_Texte_Vide(int option) { return Cle_De(option).message_vide; }

std::string Ligne_Trouvee(std::string_view element, std::string_view lettre) {
  return std::string(Coupe(element, 1, kColonnes_Trouvees)).append(lettre);
}

std::string Ligne_Courte(std::string_view element, std::string_view lettre) {
  std::string ligne(Coupe(element, 1, 35));
  ligne.append(Coupe(element, 56, 18)).append(Coupe(element, 95, 22)).append(Coupe(element, 175, 30));
  return ligne.append(lettre);
}

}  // namespace vorelio
