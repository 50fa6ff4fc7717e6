#include "tallies/department_tally.h"

#include "core/bands.h"
#include "core/text.h"
#include "stations/station_files.h"
#include "tallies/tally_file.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr int kPremiere_Bande = 4;
constexpr int kLargeur_Cle = 2;
constexpr int kColonne_Nom = 22;

std::string_view Cle(std::string_view ligne) { return Coupe(ligne, 1, kLargeur_Cle); }

}  // namespace

std::string Forme_Pointage(const std::string& departement) {
  return departement == "2a" ? "96" : departement == "2b" ? "97" : departement;
}

std::string Forme_Affichee(const std::string& departement) {
  return departement == "96" ? "2a" : departement == "97" ? "2b" : departement;
}

int Colonne_Departement(std::string_view bande) {
  const int indice = Indice_Bande(bande);
  return indice < 0 ? 0 : kPremiere_Bande + indice;
}

void Cherche_Departement(Programme& programme, std::string_view departement, std::string& code, std::string& nom,
                         std::string_view bande, std::string& ligne) {
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Departement));
  const int colonne = Colonne_Departement(bande);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view lue = lignes.Suivante();
    if (Cle(lue) != departement) continue;
    if (colonne > 0) code = Coupe(lue, colonne, 1);
    ligne = lue;
    nom = Rogne_Gauche(Coupe(lue, kColonne_Nom));
    return;
  }
}

void Maj_Departement(Programme& programme, std::string_view departement, std::string_view code,
                     std::string_view bande) {
  const std::string fichier = programme.Chemin_Station(kSuite_Departement);
  const std::string temporaire = programme.Chemin("Temporaire2.txt");
  const int colonne = Colonne_Departement(bande);
  Ecrit_Temporaire(programme.Disque(), fichier, temporaire, [&](std::string_view ligne) {
    const bool touchee = colonne > 0 && Cle(ligne) == departement;
    return touchee ? std::optional(Avec_Code(ligne, colonne, code, kPremiere_Bande)) : std::nullopt;
  });
  Prend_Temporaire(programme.Disque(), fichier, temporaire);
}

}  // namespace vorelio::Sous_Programmes
