#include "maps/tally_painting.h"

#include <array>
#include <string>

#include "core/text.h"
#include "maps/department_map.h"
#include "maps/locator_maps.h"
#include "stations/error_window.h"
#include "stations/station_files.h"
#include "tallies/department_tally.h"
#include "tallies/locator_tally.h"
#include "tallies/tally_file.h"

namespace vorelio::Sous_Programmes {

namespace {

constexpr int kLargeur_Departement = 2;
constexpr int kLargeur_Champ = 2;
constexpr int kLargeur_Carre = 4;

void Compte_Couleur(Couleur couleur, Compte_Departements& compte) {
  if (couleur == kDpt_Contacte) ++compte.sans;
  if (couleur == kDpt_QSL_Envoyee) ++compte.envoyees;
  if (couleur == kDpt_QSL_Recue) ++compte.recues;
  if (couleur == kDpt_Confirme) ++compte.confirmees;
}

}  // namespace

bool Couleur_Code(std::string_view code, Couleur& couleur) {
  constexpr std::array kCouleurs = {kDpt_Contacte, kDpt_QSL_Envoyee, kDpt_QSL_Recue, kDpt_Confirme};
  if (code.size() != 1 || code[0] < '1' || code[0] > '4') return false;
  couleur = kCouleurs[static_cast<std::size_t>(code[0] - '1')];
  return true;
}

void Efface_Cellules(const Cellules& cellules, Couleur fond) {
  for (const auto& cellule : cellules) cellule->SetColour(fond);
}

int Cellule_Departement(std::string_view cle) {
  if (cle == "2a" || cle == "2A") return 96;
  if (cle == "2b" || cle == "2B") return 97;
  return Nombre_Entier(cle);
}

void Peint_Cellules(Programme& programme, std::string_view bande, const Cellules& cellules, int& total) {
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Departement));
  total = 0;
  Efface_Cellules(cellules, kFond_Fenetre);

  const int colonne = Colonne_Departement(bande);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    // An empty or truncated line has nothing to tell. A band without a column reads no line's code, and counts them
    // all.
    if (!A_Un_Code(ligne, colonne > 0 ? colonne : kLargeur_Departement)) continue;
    const std::string_view code = colonne > 0 ? Coupe(ligne, colonne, 1) : std::string_view{};
    if (code == "0") continue;
    const int cellule = Cellule_Departement(Coupe(ligne, 1, kLargeur_Departement));
    if (Couleur couleur{}; Couleur_Code(code, couleur)) cellules(cellule).SetColour(couleur);
    ++total;
  }
}

Compte_Departements Compte_Cellules(const Cellules& cellules) {
  Compte_Departements compte;
  for (const auto& cellule : cellules) Compte_Couleur(cellule->Colour(), compte);
  return compte;
}

Compte_Departements Affiche_Departements(Programme& programme, std::string_view bande, int& total) {
  const Cellules& grille = programme.Principale().Grille();
  Piege_Fichier_Station(programme, kSuite_Departement, [&] { Peint_Cellules(programme, bande, grille, total); });
  // What the cells show in the end counts, not the lines: two lines of one cell are one department here. Where the map
  // of the departments is open its cells count, though they may be of another band.
  const auto* carte = programme.Ouverte<Carte>();
  return Compte_Cellules(carte ? carte->Dep : grille);
}

void Affiche_Locators(Programme& programme, std::string_view bande, std::string_view champ, int& total) {
  const std::string texte = programme.Disque().ReadAll(programme.Chemin_Station(kSuite_Locator));
  const Cellules& grille = programme.Principale().Grille();
  Carte_Champ* carte = Carte_Du_Champ(programme, champ);
  total = 0;
  // The pale colour tells the squares from the departments.
  Efface_Cellules(grille, kFait);
  if (carte) Efface_Cellules(carte->Dep, kFond_Fenetre);

  const int colonne = Colonne_Locator(bande);
  for (Lecteur_Lignes lignes(texte); !lignes.Fini();) {
    const std::string_view ligne = lignes.Suivante();
    // An empty or truncated line has nothing to tell. A band without a column reads no line's code, and counts all the
    // lines of the field.
    if (!A_Un_Code(ligne, colonne > 0 ? colonne : kLargeur_Carre)) continue;
    const std::string_view code = colonne > 0 ? Coupe(ligne, colonne, 1) : std::string_view{};
    if (code == "0" || Coupe(ligne, 1, kLargeur_Champ) != champ) continue;
    if (Couleur couleur{}; Couleur_Code(code, couleur)) {
      const int cellule = Nombre_Entier(Coupe(ligne, kLargeur_Champ + 1, kLargeur_Carre - kLargeur_Champ));
      grille(cellule).SetColour(couleur);
      if (carte) carte->Dep(cellule).SetColour(couleur);
    }
    ++total;
  }
  if (carte) carte->Bande_Carre.SetCaption(bande);
}

}  // namespace vorelio::Sous_Programmes
